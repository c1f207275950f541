#include "Pelorin/controls/Button.h"
#include "Pelorin/controls/ComboBox.h"
#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/sliders/ComboSlider.h"
#include "Pelorin/spectral/ChannelSliders.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QGridLayout>
#include <QLabel>

namespace {

/// A shown panel, and its parts by their places.
class Panel : public ChannelSliders
{
public:
    explicit Panel(int channel = 2)
        : ChannelSliders(channel)
    {
        resize(400, 300);
        show();
    }

    QGridLayout &grid() const { return *qobject_cast<QGridLayout *>(layout()); }
    QPushButton &closeButton() const
    {
        return *qobject_cast<QPushButton *>(grid().itemAtPosition(0, 0)->widget());
    }
    Button &enableButton() const { return *findChild<Button *>(); }
    ComboSlider &power() const
    {
        return *qobject_cast<ComboSlider *>(grid().itemAtPosition(2, 0)->widget());
    }
    ComboSlider &wavelength() const
    {
        return *qobject_cast<ComboSlider *>(grid().itemAtPosition(3, 0)->widget());
    }
};

void type(ComboSlider &slider, const char *text)
{
    slider.getLineInput()->selectAll();
    QTest::keyClicks(slider.getLineInput(), QLatin1String(text));
    QTest::keyClick(slider.getLineInput(), Qt::Key_Return);
}

} // namespace

class tst_ChannelSliders : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void laysItsPartsOut();
    void setsItsSlidersUp();
    void showsWhatIsReported();
    void ignoresOtherChannels();
    void reportsTheSwitch();
    void reportsBothValuesForEither();
    void cutsThePowerToAWholeNumber();
    void closesWithFalse();
    void takesOtherRanges();
    void keepsCrystalAndProfile();
};

void tst_ChannelSliders::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = ChannelSliders::staticMetaObject;

    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             list({ "closeClicked(int,bool)", "enableChanged(int,bool)",
                    "channelChanged(int,double,int)", "setChannel(int,double,int)",
                    "enableChannel(int,bool)", "emitEnabledChanged(bool)",
                    "emitChannelChanged(double)", "setWavelengthRange(double,double)",
                    "setPowerRange(double,double)", "closeClicked()" }));
}

void tst_ChannelSliders::laysItsPartsOut()
{
    const Panel panel(2);
    QGridLayout &grid = panel.grid();
    const auto place = [&grid](QWidget *widget) {
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid.getItemPosition(grid.indexOf(widget), &row, &column, &rows, &columns);
        return QList<int>{ row, column, rows, columns };
    };
    QLabel *const title = panel.findChild<QLabel *>(QString(), Qt::FindDirectChildrenOnly);

    QCOMPARE(grid.contentsMargins(), QMargins());
    QCOMPARE(grid.count(), 5);
    QCOMPARE(place(&panel.closeButton()), (QList<int>{ 0, 0, 1, 2 }));
    QCOMPARE(grid.itemAtPosition(0, 0)->alignment(), Qt::AlignRight);
    QCOMPARE(panel.closeButton().property("style").toString(), QStringLiteral("close"));
    QCOMPARE(place(title), (QList<int>{ 1, 0, 1, 2 }));
    QCOMPARE(title->text(), QStringLiteral("Channel 3"));
    QCOMPARE(title->property("type").toString(), QStringLiteral("title"));
    QCOMPARE(place(&panel.enableButton()), (QList<int>{ 1, 1, 1, 1 }));
    QCOMPARE(place(&panel.power()), (QList<int>{ 2, 0, 1, 2 }));
    QCOMPARE(place(&panel.wavelength()), (QList<int>{ 3, 0, 1, 2 }));

    QCOMPARE(panel.enableButton().text(), QStringLiteral("ON"));
    QVERIFY(panel.enableButton().isCheckable());
    QCOMPARE(panel.enableButton().size(), QSize(30, 30));
    QCOMPARE(panel.enableButton().color(), Button::DarkGrey);
    QCOMPARE(panel.enableButton().checkedColor(), Button::Green);
}

void tst_ChannelSliders::setsItsSlidersUp()
{
    const Panel panel;
    const auto texts = [](const ComboSlider &slider) {
        QStringList result;
        for (const ComboBox *box : slider.findChildren<ComboBox *>())
            result << box->currentText();
        return result;
    };

    QCOMPARE(texts(panel.power()), list({ "Channel power", "%" }));
    QCOMPARE(texts(panel.wavelength()), list({ "Center wavelength", "nm" }));
    for (const ComboSlider *slider : { &panel.power(), &panel.wavelength() })
        QCOMPARE(slider->property("widget-color").toString(), QStringLiteral("white"));
    panel.power().setValue(1000.0);
    QCOMPARE(panel.power().getLineInput()->text(), QStringLiteral("100"));
    panel.power().setValue(-5.0);
    QCOMPARE(panel.power().value(), 0.0);
    panel.wavelength().setValue(1000.0);
    QCOMPARE(panel.wavelength().getLineInput()->text(), QStringLiteral("750.0"));
    panel.wavelength().setValue(0.0);
    QCOMPARE(panel.wavelength().value(), 400.0);
}

void tst_ChannelSliders::showsWhatIsReported()
{
    Panel panel(2);
    SignalRecorder recorder(&panel);

    panel.setChannel(2, 512.5, 30);
    panel.enableChannel(2, true);

    QCOMPARE(panel.wavelength().value(), 512.5);
    QCOMPARE(panel.power().value(), 30.0);
    QVERIFY(panel.enableButton().isChecked());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ChannelSliders::ignoresOtherChannels()
{
    Panel panel(2);
    panel.setChannel(2, 512.5, 30);

    for (const int other : { 1, 3, -1, 8 }) {
        panel.setChannel(other, 600.0, 90);
        panel.enableChannel(other, true);
    }

    QCOMPARE(panel.wavelength().value(), 512.5);
    QCOMPARE(panel.power().value(), 30.0);
    QVERIFY(!panel.enableButton().isChecked());
}

void tst_ChannelSliders::reportsTheSwitch()
{
    Panel panel(4);
    SignalRecorder recorder(&panel);

    QTest::mouseClick(&panel.enableButton(), Qt::LeftButton);

    QCOMPARE(recorder.taken(), list({ "enableChanged(4, true)" }));
}

void tst_ChannelSliders::reportsBothValuesForEither()
{
    Panel panel(4);
    panel.setChannel(4, 512.5, 30);
    SignalRecorder recorder(&panel);

    type(panel.power(), "42");
    QCOMPARE(recorder.taken(), list({ "channelChanged(4, 512.5, 42)" }));

    type(panel.wavelength(), "600.5");
    QCOMPARE(recorder.taken(), list({ "channelChanged(4, 600.5, 42)" }));
}

void tst_ChannelSliders::cutsThePowerToAWholeNumber()
{
    Panel panel(0);
    panel.setChannel(0, 500.0, 0);
    panel.power().setValue(99.9);
    SignalRecorder recorder(&panel);

    panel.emitChannelChanged(-1.0); // its argument does not matter

    QCOMPARE(recorder.taken(), list({ "channelChanged(0, 500, 99)" }));
}

void tst_ChannelSliders::closesWithFalse()
{
    Panel panel(6);
    SignalRecorder recorder(&panel);

    QTest::mouseClick(&panel.closeButton(), Qt::LeftButton);

    QCOMPARE(recorder.taken(), list({ "closeClicked(6, false)" }));
    QVERIFY(panel.isVisible()); // the application closes it
}

void tst_ChannelSliders::takesOtherRanges()
{
    Panel panel(0);
    panel.setChannel(0, 500.0, 90);
    SignalRecorder recorder(&panel);

    panel.setWavelengthRange(600.0, 700.0);
    panel.setPowerRange(10.0, 50.0);

    QCOMPARE(panel.wavelength().value(), 600.0);
    QCOMPARE(panel.power().value(), 50.0);
    QCOMPARE(recorder.taken(), QStringList());
    panel.setWavelengthRange(500.0, 500.0);
    panel.setPowerRange(9.0, 3.0);
    panel.grab(); // and lives
}

void tst_ChannelSliders::keepsCrystalAndProfile()
{
    Panel panel(5);
    QCOMPARE(panel.channel(), 5);
    QCOMPARE(panel.crystal(), 0);
    QCOMPARE(panel.profile(), 0);

    panel.setCrystal(3);
    panel.setProfile(-8);

    QCOMPARE(panel.crystal(), 3);
    QCOMPARE(panel.profile(), -8);
}

PELORIN_TEST_MAIN(tst_ChannelSliders)
#include "tst_channelsliders.moc"
