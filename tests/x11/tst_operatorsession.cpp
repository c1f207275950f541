#include "tests/gallery/ApplicationProbe.h"
#include "tests/support/RealMouse.h"
#include "tests/support/TestCase.h"

#include <Pelorin/Button>
#include <Pelorin/LineEditPowerNG>
#include <Pelorin/Pelorin>
#include <Pelorin/ScaleSliderNG>
#include <Pelorin/WavelengthSelector>

#include <QDialog>
#include <QDockWidget>
#include <QRandomGenerator>
#include <QTemporaryDir>
#include <QTimer>
#include <QToolTip>

using Simulation::Instrument;
using Simulation::Laser;

namespace {

constexpr int actionCount = 1000;
constexpr int actionMs = 150; // an answer comes after 100
constexpr quint32 seed = 20;

// As the X server counts them.
constexpr int leftButton = 1;
constexpr int rightButton = 3;
constexpr int wheelUp = 4;
constexpr int wheelDown = 5;

const QStringList keys =
    QStringLiteral("Tab Tab Left Right Up Down Home End BackSpace Delete Return "
                   "Escape space Page_Up Page_Down shift+Right shift+Tab 1 2 5 "
                   "7 0 period minus")
        .split(QLatin1Char(' '));

/// What an operator does with mouse and keyboard, at random but repeatable.
class Operator
{
public:
    explicit Operator(ApplicationProbe &window)
        : m_window(window)
        , m_random(seed)
    {}

    /// One action, told in words of xdotool.
    QStringList next()
    {
        switch (m_random.bounded(10)) {
        case 0:
        case 1:
            return { QStringLiteral("key"), QStringLiteral("--delay"), QStringLiteral("0"),
                     keys.at(m_random.bounded(keys.size())) };
        case 2:
        case 3:
            return drag();
        case 4:
            return at(target()) + press(m_random.bounded(2) ? wheelUp : wheelDown);
        case 5:
            return at(target()) + press(rightButton);
        default:
            return at(target()) + press(leftButton);
        }
    }

private:
    static QStringList at(QPoint global)
    {
        return { QStringLiteral("mousemove"), QString::number(global.x()),
                 QString::number(global.y()) };
    }

    /// Not xdotool's click, which waits for a tenth of a second.
    static QStringList press(int button)
    {
        return { QStringLiteral("mousedown"), QString::number(button), QStringLiteral("mouseup"),
                 QString::number(button) };
    }

    QStringList drag()
    {
        const QPoint from = target();
        QStringList words =
            at(from) + QStringList{ QStringLiteral("mousedown"), QStringLiteral("1") };
        const QPoint way(m_random.bounded(-150, 150), m_random.bounded(-60, 60));
        for (int i = 1; i <= 4; ++i)
            words += at(inside(from + way * i / 4));
        return words + QStringList{ QStringLiteral("mouseup"), QStringLiteral("1") };
    }

    /// What can be seen; mostly what takes the mouse or the keyboard.
    QList<QWidget *> targets()
    {
        const bool all = m_random.bounded(5) == 0;
        QList<QWidget *> result;
        for (auto *each : m_window.findChildren<QWidget *>()) {
            const bool useful = each->focusPolicy() != Qt::NoFocus
                                || qobject_cast<ScaleSliderNG *>(each)
                                || qobject_cast<WavelengthSelector *>(each);
            if (each->isVisible() && !each->visibleRegion().isEmpty() && (all || useful))
                result << each;
        }
        return result;
    }

    /// On a widget that is there, seldom in its middle; a handle is mostly met.
    QPoint target()
    {
        QWidget *place = QApplication::activePopupWidget();
        if (!place) {
            const QList<QWidget *> widgets = targets();
            place = widgets.at(m_random.bounded(widgets.size()));
        }
        const auto *slider = qobject_cast<ScaleSliderNG *>(place);
        if (slider && m_random.bounded(4) > 0)
            return inside(slider->mapToGlobal(ApplicationProbe::handle(*slider)));
        const QRect rect = place->visibleRegion().boundingRect();
        return inside(place->mapToGlobal(rect.topLeft())
                      + QPoint(m_random.bounded(qMax(1, rect.width())),
                               m_random.bounded(qMax(1, rect.height()))));
    }

    /// Never on the frame of the window: its buttons are for the window manager.
    QPoint inside(QPoint global) const
    {
        const QRect rect(m_window.mapToGlobal(QPoint(2, 2)), m_window.size() - QSize(4, 4));
        return { qBound(rect.left(), global.x(), rect.right()),
                 qBound(rect.top(), global.y(), rect.bottom()) };
    }

    ApplicationProbe &m_window;
    QRandomGenerator m_random;
};

/// Menus, lists and popup sliders: whatever else than a dock is a window of its own on the screen.
void closePopups(const QWidget &window)
{
    while (QWidget *popup = QApplication::activePopupWidget())
        popup->close();
    for (QWidget *each : QApplication::topLevelWidgets()) {
        if (each != &window && each->isVisible() && !each->graphicsProxyWidget()
            && !qobject_cast<QDockWidget *>(each))
            each->close();
    }
}

} // namespace

/// A long day at the laser: a thousand things that an operator does, in no order.
class tst_OperatorSession : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void staysTrueThroughAThousandActions();

private:
    static bool isTrue(ApplicationProbe &window, int row);
    static bool becomesTrue(ApplicationProbe &window, int row);
};

void tst_OperatorSession::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setCursorFlashTime(0); // or a screen is never like another
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
}

/// No hand is on a slider and all answers are there: what a device shows is what its instrument has.
bool tst_OperatorSession::isTrue(ApplicationProbe &window, int row)
{
    const MainView *view = window.view(qPrintable(devices().at(row).name));
    const Instrument &instrument = window.instrument(row);
    const auto value = [view](const char *name) {
        return view->findChild<HorizontalSlider *>(QLatin1String(name))->slider->value0();
    };
    return qAbs(value("power") - instrument.powerSetpoint()) < 0.06
           && qAbs(value("bandwidth") - instrument.bandwidth()) < 0.06
           && instrument.powerSetpoint() >= instrument.powerLimits().min
           && instrument.powerSetpoint() <= instrument.powerLimits().max;
}

/// Passes time until it is, and gives up after some twenty answers: what the server sends may still be
/// on its way.
bool tst_OperatorSession::becomesTrue(ApplicationProbe &window, int row)
{
    for (int i = 0; i < 20 && !isTrue(window, row); ++i) {
        QTest::qWait(10);
        window.advance(actionMs);
    }
    return isTrue(window, row);
}

void tst_OperatorSession::staysTrueThroughAThousandActions()
{
    tolerateMessages(QtDebugMsg, QString()); // what a signal graph writes of its points
    const QTemporaryDir dir;
    ApplicationProbe window(dir.filePath(QStringLiteral("layout.ini")));
    window.resize(1560, 900); // all of it and its frame are on the screen
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    for (const Device &device : devices())
        window.showDevice(device.name);
    QTimer refusal; // of every dialog that comes up
    connect(&refusal, &QTimer::timeout, &refusal, [] {
        if (auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget()))
            dialog->reject();
    });
    refusal.start(10);
    Operator hand(window);

    for (int i = 0; i < actionCount; ++i) {
        const QStringList action = hand.next();
        QVERIFY(RealMouse::xdotool(action));
        window.advance(actionMs);
        QCoreApplication::processEvents();
        if (i % 100 == 99) {
            closePopups(window);
            QVERIFY(RealMouse::moveTo(QPoint(1, 1)));
            QToolTip::hideText();
            window.resetLayout(); // docks that were closed come back
            QTRY_COMPARE(window.stalePart(), QRect());
        }
        for (int row = 0; row < devices().size(); ++row) {
            QVERIFY2(becomesTrue(window, row), qPrintable(QStringLiteral("%1, action %2: %3")
                                                              .arg(devices().at(row).title)
                                                              .arg(i)
                                                              .arg(action.join(QLatin1Char(' ')))));
        }
    }

    QVERIFY2(window.requests().size() > 50, qPrintable(QString::number(window.requests().size())));
    closePopups(window);
    Instrument &instrument = window.instrument(0);
    instrument.clearFault();
    instrument.requestPower(instrument.powerLimits().max);
    instrument.laser().emitLight(true);
    window.advance(15000);
    QVERIFY(qAbs(instrument.power() - instrument.powerLimits().max) < 0.1);
    QVERIFY(becomesTrue(window, 0));
}

PELORIN_TEST_MAIN(tst_OperatorSession)
#include "tst_operatorsession.moc"
