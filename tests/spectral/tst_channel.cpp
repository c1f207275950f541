#include "Pelorin/controls/Button.h"
#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/spectral/Channel.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QGridLayout>
#include <QLabel>

#include <limits>

namespace {

/// A shown cell, and its parts by their places.
class Cell : public Channel
{
public:
    explicit Cell(int number = 2)
        : Channel(number)
    {
        show();
    }

    template<typename Part>
    Part &at(int row, int column) const
    {
        auto *grid = qobject_cast<QGridLayout *>(layout());
        return *qobject_cast<Part *>(grid->itemAtPosition(row, column)->widget());
    }
    Button &enableButton() const { return at<Button>(0, 0); }
    Button &setButton() const { return at<Button>(1, 0); }
    LineEditNumber &powerEdit() const { return at<LineEditNumber>(0, 1); }
    LineEditNumber &wavelengthEdit() const { return at<LineEditNumber>(1, 1); }
};

void type(LineEditNumber &edit, const char *text)
{
    edit.selectAll();
    QTest::keyClicks(&edit, QLatin1String(text));
    QTest::keyClick(&edit, Qt::Key_Return);
}

} // namespace

class tst_Channel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void laysItsPartsOut();
    void setsItsPartsUp();
    void showsWhatIsReported();
    void staysSilentAboutReports();
    void cannotCheckTheSetButton();
    void reportsTheSwitch();
    void reportsTheSetButton();
    void reportsBothNumbersForEither();
    void stepsByTheArrowKeys();
    void takesItsNumberFromItsButton();
    void cutsThePowerToAWholeNumber_data();
    void cutsThePowerToAWholeNumber();
    void paintsTheGroundOfTheSheet();
};

void tst_Channel::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = Channel::staticMetaObject;

    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(
        ownMethods(meta),
        list({ "enableChanged(int,bool)", "setClicked(int,bool)", "channelChanged(int,double,int)",
               "enableChannel(bool)", "setChannelChecked(bool)", "setChannel(double,int)",
               "setChannelPower(int)", "setChannelWavelength(double)", "emitEnableChanged(bool)",
               "emitChannelChanged()", "emitSetClicked(bool)" }));
}

void tst_Channel::laysItsPartsOut()
{
    const Cell cell;

    QCOMPARE(cell.layout()->contentsMargins(), QMargins(0, 0, 5, 0));
    QCOMPARE(cell.layout()->count(), 6);
    QCOMPARE(cell.at<QLabel>(0, 2).text(), QStringLiteral("%"));
    QCOMPARE(cell.at<QLabel>(1, 2).text(), QStringLiteral("nm"));
    QCOMPARE(cell.at<QLabel>(0, 2).property("type").toString(), QStringLiteral("text"));
    QCOMPARE(cell.at<QLabel>(1, 2).property("type").toString(), QStringLiteral("text"));
}

void tst_Channel::setsItsPartsUp()
{
    const Cell cell(2);

    QCOMPARE(cell.enableButton().text(), QStringLiteral("3"));
    QVERIFY(cell.enableButton().isCheckable());
    QCOMPARE(cell.enableButton().size(), QSize(30, 30));
    QCOMPARE(cell.enableButton().color(), Button::DarkGrey);
    QCOMPARE(cell.enableButton().checkedColor(), Button::Green);
    QCOMPARE(cell.setButton().text(), QStringLiteral("Set"));
    QVERIFY(!cell.setButton().isCheckable());
    QCOMPARE(cell.setButton().size(), QSize(30, 30));
    QCOMPARE(cell.setButton().property("button-size").toString(), QStringLiteral("small"));
    QCOMPARE(cell.setButton().color(), Button::DarkGrey);
    for (const LineEditNumber *edit : { &cell.powerEdit(), &cell.wavelengthEdit() }) {
        QCOMPARE(edit->property("flat").toBool(), true);
        QCOMPARE(edit->property("type").toString(), QStringLiteral("text"));
    }
}

void tst_Channel::showsWhatIsReported()
{
    Cell cell;

    cell.setChannel(500.25, 10);
    QCOMPARE(cell.wavelengthEdit().text(), QString::number(500.25, 'f', 1));
    QCOMPARE(cell.powerEdit().text(), QStringLiteral("10"));
    QCOMPARE(cell.power(), 10);

    cell.setChannelWavelength(612.0);
    cell.setChannelPower(99);
    QCOMPARE(cell.wavelengthEdit().text(), QStringLiteral("612.0"));
    QCOMPARE(cell.wavelength(), 612.0);
    QCOMPARE(cell.power(), 99);

    QVERIFY(!cell.enabled());
    cell.enableChannel(true);
    QVERIFY(cell.enabled());
    QVERIFY(cell.enableButton().isChecked());
}

void tst_Channel::staysSilentAboutReports()
{
    Cell cell;
    SignalRecorder recorder(&cell);

    cell.setChannel(500.0, 10);
    cell.setChannelPower(11);
    cell.setChannelWavelength(501.0);
    cell.enableChannel(true);
    cell.setChannelChecked(true);

    QCOMPARE(recorder.taken(), QStringList());
}

void tst_Channel::cannotCheckTheSetButton()
{
    Cell cell;

    cell.setChannelChecked(true);
    QVERIFY(!cell.setButton().isChecked());

    cell.setButton().setCheckable(true); // by an application
    cell.setChannelChecked(true);
    QVERIFY(cell.setButton().isChecked());
}

void tst_Channel::reportsTheSwitch()
{
    Cell cell(5);
    SignalRecorder recorder(&cell);

    QTest::mouseClick(&cell.enableButton(), Qt::LeftButton);
    QTest::mouseClick(&cell.enableButton(), Qt::LeftButton);

    QCOMPARE(recorder.taken(), list({ "enableChanged(5, true)", "enableChanged(5, false)" }));
}

void tst_Channel::reportsTheSetButton()
{
    Cell cell(0);
    SignalRecorder recorder(&cell);

    QTest::mouseClick(&cell.setButton(), Qt::LeftButton);

    QCOMPARE(recorder.taken(), list({ "setClicked(0, false)" }));
}

void tst_Channel::reportsBothNumbersForEither()
{
    Cell cell(7);
    cell.setChannel(500.0, 10);
    SignalRecorder recorder(&cell);

    type(cell.powerEdit(), "42");
    QCOMPARE(recorder.taken(), list({ "channelChanged(7, 500, 42)" }));

    type(cell.wavelengthEdit(), "612.5");
    QCOMPARE(recorder.taken(), list({ "channelChanged(7, 612.5, 42)" }));
}

void tst_Channel::stepsByTheArrowKeys()
{
    Cell cell(1);
    cell.setChannel(500.0, 10);
    SignalRecorder recorder(&cell);
    tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumber::nudge"));

    QTest::keyClick(&cell.powerEdit(), Qt::Key_Up);
    QCOMPARE(recorder.taken(), list({ "channelChanged(1, 500, 11)" }));

    QTest::keyClick(&cell.wavelengthEdit(), Qt::Key_Down);
    QCOMPARE(recorder.taken(), list({ "channelChanged(1, 499.9, 11)" }));

    cell.setChannel(450.0, 77); // an old reading waits
    QCOMPARE(cell.power(), 11);
    QTRY_COMPARE(cell.power(), 77);
    QTRY_COMPARE(cell.wavelength(), 450.0);
}

void tst_Channel::takesItsNumberFromItsButton()
{
    Cell cell(3);
    SignalRecorder recorder(&cell);
    QCOMPARE(cell.enableButton().text(), QStringLiteral("4"));

    cell.enableButton().setText(QStringLiteral("9"));
    QTest::mouseClick(&cell.setButton(), Qt::LeftButton);

    QCOMPARE(recorder.taken(), list({ "setClicked(8, false)" }));
}

void tst_Channel::cutsThePowerToAWholeNumber_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("power");

    QTest::newRow("whole") << "42" << 42;
    QTest::newRow("decimals") << "42.9" << 42;
    QTest::newRow("negative") << "-3.9" << -3;
    QTest::newRow("nothing") << "" << 0;
    QTest::newRow("no number") << "+-." << 0;
    QTest::newRow("huge") << "99999999999999999999" << std::numeric_limits<int>::max();
}

void tst_Channel::cutsThePowerToAWholeNumber()
{
    QFETCH(QString, text);
    Cell cell;

    cell.powerEdit().setText(text);

    QTEST(cell.power(), "power");
}

void tst_Channel::paintsTheGroundOfTheSheet()
{
    Cell cell;

    cell.setStyleSheet(QStringLiteral("Channel { background-color: #123456; }"));

    QCOMPARE(cell.grab().toImage().pixel(cell.width() - 2, 1), 0xFF123456);
}

PELORIN_TEST_MAIN(tst_Channel)
#include "tst_channel.moc"
