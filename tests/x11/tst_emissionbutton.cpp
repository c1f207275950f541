#include "Pelorin/controls/IndicatorButton.h"
#include "Pelorin/shell/GUIWidget.h"
#include "tests/support/RealMouse.h"
#include "tests/support/TestCase.h"

#include <QCoreApplication>
#include <QToolTip>
#include <QVBoxLayout>

namespace {

/// A page with an emission button that notes what is asked for.
class Panel : public GUIWidget
{
public:
    Panel()
        : emission(new IndicatorButton(QStringLiteral("Emission\nON / OFF"), IndicatorButton::Left))
    {
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(emission, 0, Qt::AlignCenter);
        emission->setEmissionButtonStatus(true);
        emission->button()->setToolTip(QStringLiteral("Toggle Emission"));
        connect(emission, &IndicatorButton::toggled, this, [this](bool on) { requests << on; });
        setGeometry(200, 150, 600, 300);
        show();
        activateWindow();
    }

    QPoint buttonPlace() const
    {
        const Button &button = *emission->button();
        return button.mapToGlobal(button.rect().center());
    }

    IndicatorButton *emission;
    QList<bool> requests;
};

/// Until the server has answered a question that was asked after all events on their way.
void letEventsPass()
{
    for (int i = 0; i < 3; ++i) {
        RealMouse::xdotool({ QStringLiteral("getmouselocation") });
        QCoreApplication::processEvents();
    }
}

} // namespace

class tst_EmissionButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void obeysItsShortcut();
    void refusesTheSpaceBar();
    void explainsItselfUnderTheMouse();
    void canBePressedThroughAMessage();
};

void tst_EmissionButton::obeysItsShortcut()
{
    Panel panel;
    QVERIFY(QTest::qWaitForWindowActive(&panel));

    QVERIFY(RealMouse::key(QStringLiteral("ctrl+shift+e")));
    QTRY_COMPARE(panel.requests, QList<bool>({ true }));

    QVERIFY(RealMouse::key(QStringLiteral("ctrl+shift+e")));
    QTRY_COMPARE(panel.requests, QList<bool>({ true, false }));
}

void tst_EmissionButton::refusesTheSpaceBar()
{
    Panel panel;
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    panel.emission->button()->setFocus();

    QVERIFY(RealMouse::key(QStringLiteral("space")));
    letEventsPass();
    QCOMPARE(panel.requests, QList<bool>());

    panel.emission->setEmissionButtonStatus(false);
    QVERIFY(RealMouse::key(QStringLiteral("space"))); // as it does on any other button
    QTRY_COMPARE(panel.requests, QList<bool>({ true }));
}

void tst_EmissionButton::explainsItselfUnderTheMouse()
{
    Panel panel;
    QVERIFY(QTest::qWaitForWindowActive(&panel));

    QVERIFY(RealMouse::moveTo(panel.buttonPlace() - QPoint(0, 100)));
    QVERIFY(RealMouse::moveTo(panel.buttonPlace()));

    QTRY_COMPARE(QToolTip::text(),
                 QStringLiteral("Toggle Emission<br><span style=\"font-style:italic; "
                                "color:#00007f;\">Shortcut: Ctrl+Shift+E</span>"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_EmissionButton::canBePressedThroughAMessage()
{
    Panel panel;
    QVERIFY(QTest::qWaitForWindowActive(&panel));
    panel.setOverlayMessage(QStringLiteral("Warming up"));

    QVERIFY(RealMouse::click(panel.buttonPlace()));
    QTRY_COMPARE(panel.requests, QList<bool>({ true }));

    panel.setEnabled(false);
    QVERIFY(RealMouse::click(panel.buttonPlace()));
    letEventsPass();
    QCOMPARE(panel.requests.size(), 1);
}

PELORIN_TEST_MAIN(tst_EmissionButton)
#include "tst_emissionbutton.moc"
