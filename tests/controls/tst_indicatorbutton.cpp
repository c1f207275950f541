#include "Pelorin/controls/IndicatorButton.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QGridLayout>
#include <QTimer>

namespace {

constexpr Indicator::Color green = 0xFF95D400;
constexpr Indicator::Color grey = 0xFF555555;
constexpr Indicator::Color red = 0xFFFF0000;
constexpr Indicator::Color blue = 0xFF0000FF;

Indicator *lampOf(const QWidget &widget)
{
    return widget.findChild<Indicator *>();
}

} // namespace

class tst_IndicatorButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsInactive();
    void placesTheLamp_data();
    void placesTheLamp();
    void reportsAPressWithoutTheLamp();
    void lightsTheLampAtAPress();
    void takesTheStateInSilence();
    void turnsRoundWhatWasSet();
    void showsTheColorOfItsState_data();
    void showsTheColorOfItsState();
    void disablesBothButNotItself();
    void passesOnToTheButton();
    void blinksItsLamp();
    void keepsTheShortcutUnderANewText();
};

void tst_IndicatorButton::declaresItsInterface()
{
    const QMetaObject &meta = IndicatorButton::staticMetaObject;

    QCOMPARE(meta.className(), "IndicatorButton");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList(QStringLiteral("toggled(bool)")));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
             QStringList({ QStringLiteral("toggleState()"),
                           QStringLiteral("setEmissionButtonStatus(bool)") }));
}

void tst_IndicatorButton::startsInactive()
{
    const IndicatorButton plain(IndicatorButton::Left);
    const IndicatorButton named(QStringLiteral("Laser"), IndicatorButton::Left);

    QCOMPARE(plain.button()->text(), QString());
    QCOMPARE(named.button()->text(), QStringLiteral("Laser"));
    for (const IndicatorButton *each : { &plain, &named }) {
        QVERIFY(!each->isActive());
        QCOMPARE(each->onColor(), green);
        QCOMPARE(each->offColor(), grey);
        QCOMPARE(lampOf(*each)->color(), grey);
        QCOMPARE(each->button()->parent(), each);
        QCOMPARE(lampOf(*each)->parent(), each);
        QCOMPARE(each->sizePolicy(),
                 QSizePolicy(QSizePolicy::Minimum, QSizePolicy::Minimum, QSizePolicy::PushButton));
    }
}

void tst_IndicatorButton::placesTheLamp_data()
{
    QTest::addColumn<int>("position");
    QTest::addColumn<QPoint>("lampCell"); // column, row
    QTest::addColumn<QPoint>("buttonCell");

    QTest::newRow("above") << 0 << QPoint(0, 0) << QPoint(0, 1);
    QTest::newRow("left") << 1 << QPoint(0, 0) << QPoint(1, 0);
    QTest::newRow("right") << 2 << QPoint(1, 0) << QPoint(0, 0);
    QTest::newRow("below") << 3 << QPoint(0, 1) << QPoint(0, 0);
    QTest::newRow("one too many") << 4 << QPoint(0, 0) << QPoint(1, 0);
    QTest::newRow("negative") << -1 << QPoint(0, 0) << QPoint(1, 0);
}

void tst_IndicatorButton::placesTheLamp()
{
    QFETCH(int, position);
    QFETCH(QPoint, lampCell);
    QFETCH(QPoint, buttonCell);

    IndicatorButton widget(QStringLiteral("Laser"), IndicatorButton::Position(position));
    widget.show();

    const auto *grid = qobject_cast<QGridLayout *>(widget.layout());
    QVERIFY(grid);
    QCOMPARE(grid->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(grid->horizontalSpacing(), 0);
    QLayoutItem *lampItem = grid->itemAtPosition(lampCell.y(), lampCell.x());
    QLayoutItem *buttonItem = grid->itemAtPosition(buttonCell.y(), buttonCell.x());
    QVERIFY(lampItem && buttonItem);
    QCOMPARE(lampItem->widget(), lampOf(widget));
    QCOMPARE(lampItem->alignment(), Qt::AlignCenter);
    QCOMPARE(buttonItem->widget(), widget.button());
    QCOMPARE(buttonItem->alignment(), Qt::Alignment());
    QCOMPARE(grid->rowMinimumHeight(lampCell.y()), 40); // twice the lamp
    QCOMPARE(grid->columnMinimumWidth(lampCell.x()), 40);
    const QPoint toButton =
        widget.button()->geometry().center() - lampOf(widget)->geometry().center();
    const QPoint direction = buttonCell - lampCell;
    QCOMPARE(toButton.x() > 20, direction.x() > 0);
    QCOMPARE(toButton.x() < -20, direction.x() < 0);
    QCOMPARE(toButton.y() > 20, direction.y() > 0);
    QCOMPARE(toButton.y() < -20, direction.y() < 0);
}

void tst_IndicatorButton::reportsAPressWithoutTheLamp()
{
    IndicatorButton widget(IndicatorButton::Left);
    SignalRecorder recorder(&widget);

    QTest::mouseClick(widget.button(), Qt::LeftButton);
    QCOMPARE(recorder.taken(), QStringList(QStringLiteral("toggled(true)")));
    QVERIFY(widget.isActive());
    QCOMPARE(lampOf(widget)->color(), grey);

    QTest::mouseClick(widget.button(), Qt::LeftButton);
    QCOMPARE(recorder.taken(), QStringList(QStringLiteral("toggled(false)")));
    QVERIFY(!widget.isActive());
    QCOMPARE(lampOf(widget)->color(), grey);
}

void tst_IndicatorButton::lightsTheLampAtAPress()
{
    IndicatorButton widget(IndicatorButton::Left);
    widget.enableToggle(true);
    Indicator::Color seen = 0;
    connect(&widget, &IndicatorButton::toggled, this, [&] { seen = lampOf(widget)->color(); });

    widget.button()->click();
    QCOMPARE(seen, green); // the lamp first, the report last

    widget.button()->click();
    QCOMPARE(seen, grey);

    widget.enableToggle(false);
    widget.toggleState();
    QCOMPARE(lampOf(widget)->color(), grey);
}

void tst_IndicatorButton::takesTheStateInSilence()
{
    IndicatorButton widget(IndicatorButton::Left);
    SignalRecorder recorder(&widget);

    widget.setActive(true);
    QVERIFY(widget.isActive());
    QCOMPARE(lampOf(widget)->color(), green);

    widget.setActive(false);
    QVERIFY(!widget.isActive());
    QCOMPARE(lampOf(widget)->color(), grey);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_IndicatorButton::turnsRoundWhatWasSet()
{
    IndicatorButton widget(IndicatorButton::Left);
    SignalRecorder recorder(&widget);
    widget.setActive(true);

    widget.toggleState();

    QCOMPARE(recorder.taken(), QStringList(QStringLiteral("toggled(false)")));
    QCOMPARE(lampOf(widget)->color(), green); // until the answer comes
}

void tst_IndicatorButton::showsTheColorOfItsState_data()
{
    QTest::addColumn<bool>("active");
    QTest::addColumn<Indicator::Color>("afterOn");
    QTest::addColumn<Indicator::Color>("afterOff");
    QTest::addColumn<Indicator::Color>("afterBoth");

    QTest::newRow("active") << true << red << red << green;
    QTest::newRow("inactive") << false << grey << blue << red;
}

void tst_IndicatorButton::showsTheColorOfItsState()
{
    QFETCH(bool, active);
    QFETCH(Indicator::Color, afterOn);
    QFETCH(Indicator::Color, afterOff);
    QFETCH(Indicator::Color, afterBoth);
    IndicatorButton widget(IndicatorButton::Left);
    SignalRecorder recorder(&widget);
    widget.setActive(active);

    widget.setOnColor(red);
    QCOMPARE(widget.onColor(), red);
    QCOMPARE(lampOf(widget)->color(), afterOn);
    widget.setOffColor(blue);
    QCOMPARE(widget.offColor(), blue);
    QCOMPARE(lampOf(widget)->color(), afterOff);
    widget.setColors(green, red);
    QCOMPARE(widget.onColor(), green);
    QCOMPARE(widget.offColor(), red);
    QCOMPARE(lampOf(widget)->color(), afterBoth);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_IndicatorButton::disablesBothButNotItself()
{
    IndicatorButton widget(IndicatorButton::Left);

    widget.setEnabled(false);
    QVERIFY(!widget.button()->isEnabled());
    QVERIFY(!lampOf(widget)->isEnabled());
    QVERIFY(widget.isEnabled());

    widget.setEnabled(true);
    QVERIFY(widget.button()->isEnabled());
    QVERIFY(lampOf(widget)->isEnabled());
}

void tst_IndicatorButton::passesOnToTheButton()
{
    IndicatorButton widget(IndicatorButton::Left);
    Button &button = *widget.button();

    widget.setButtonText(QStringLiteral("Standby"));
    QCOMPARE(button.text(), QStringLiteral("Standby"));
    widget.setButtonColor(Button::DarkGrey);
    QCOMPARE(button.color(), Button::DarkGrey);
    widget.setButtonSize(Button::Small);
    QCOMPARE(button.size(), QSize(55, 35));
    widget.setButtonSize(77, 66);
    QCOMPARE(button.size(), QSize(77, 66));
    widget.setEmissionButtonStatus(true);
    QVERIFY(button.isEmissionButton());
    widget.setEmissionButtonStatus(false);
    QVERIFY(!button.isEmissionButton());
}

void tst_IndicatorButton::blinksItsLamp()
{
    IndicatorButton widget(IndicatorButton::Left);
    const auto *timer = lampOf(widget)->findChild<QTimer *>();

    widget.setBlink(true, 12345, red);
    QVERIFY(timer->isActive());
    QCOMPARE(timer->interval(), 12345);

    widget.setBlink(false, 500, red);
    QVERIFY(!timer->isActive());
}

void tst_IndicatorButton::keepsTheShortcutUnderANewText()
{
    IndicatorButton widget(IndicatorButton::Left);
    widget.setEmissionButtonStatus(true);

    widget.setButtonText(QStringLiteral("Emission"));
    QCOMPARE(widget.button()->shortcut(), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_E));

    widget.setEmissionButtonStatus(false);
    widget.setButtonText(QStringLiteral("&Emission"));
    QCOMPARE(widget.button()->shortcut(), QKeySequence(Qt::ALT + Qt::Key_E)); // Qt's own
}

PELORIN_TEST_MAIN(tst_IndicatorButton)
#include "tst_indicatorbutton.moc"
