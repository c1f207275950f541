#include "Pelorin/shell/DockWidget.h"
#include "Pelorin/shell/MainControlPanel.h"
#include "Pelorin/shell/TavrinMainWindow.h"
#include "tests/support/RealMouse.h"
#include "tests/support/TestCase.h"

#include <QPointer>
#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>

namespace {

struct Move
{
    QPoint before;
    QPoint now;
};

/// A main window with a dock, and what it reports.
class Window : public TavrinMainWindow
{
public:
    Window()
        : TavrinMainWindow(nullptr)
    {
        setWindowTitle(QStringLiteral("Docks"));
        setGeometry(200, 150, 800, 500);
        auto *content = new QWidget;
        content->setMinimumSize(120, 80);
        createGenericDockWidget(content, QStringLiteral("Trigger"), Qt::LeftDockWidgetArea, true);
        show();
        activateWindow();
    }

    /// Waits until the window manager has done its part, and starts to listen.
    bool listen()
    {
        const bool active = QTest::qWaitForWindowActive(this);
        quiet();
        connect(this, &TavrinMainWindow::sigMainWindowMoved, this,
                [this](QPoint before, QPoint now) {
                    moves.append({ before, now });
                });
        connect(this, &TavrinMainWindow::sigMainWindowResized, this,
                [this](QRect rect) { rects.append(rect); });
        return active;
    }

    /// Lets all events pass that are on their way: the server has answered a question asked after
    /// them.
    static void quiet()
    {
        for (int i = 0; i < 3; ++i) {
            RealMouse::xdotool({ QStringLiteral("getmouselocation") });
            QCoreApplication::processEvents();
        }
    }

    bool xdotool(const char *command, int a, int b)
    {
        return RealMouse::xdotool({ QLatin1String(command), QString::number(winId()),
                                    QString::number(a), QString::number(b) });
    }

    DockWidget *dock() const { return findChild<DockWidget *>(); }
    QTabWidget *tabs() const { return findChild<QTabWidget *>(); }

    QList<Move> moves;
    QList<QRect> rects;
};

/// Puts a control into each pane.
void fill(MainControlPanel &panel)
{
    for (const auto show :
         { &MainControlPanel::showMainControl, &MainControlPanel::showChildControl }) {
        auto *control = new QWidget;
        control->setMinimumSize(100, 40);
        (panel.*show)(control, true);
    }
}

QPoint middle(const QWidget &widget)
{
    return widget.mapToGlobal(widget.rect().center());
}

} // namespace

class tst_MainWindowDocks : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void reportsAMoveOnce();
    void reportsAResizeOnce();
    void reportsBothWhenTheTopLeftCornerMoves();
    void bringsAFloatingDockBack();
    void removesATab();
    void savesAndRestoresTheDivider();
};

void tst_MainWindowDocks::reportsAMoveOnce()
{
    Window window;
    QVERIFY(window.listen());
    const QPoint before = window.geometry().topLeft();

    QVERIFY(window.xdotool("windowmove", 320, 260));
    QTRY_VERIFY(!window.moves.isEmpty());
    Window::quiet();

    QCOMPARE(window.moves.size(), 1);
    const QPoint now = window.geometry().topLeft();
    QVERIFY(now != before);
    QCOMPARE(window.moves.first().now, now);
    QCOMPARE(window.moves.first().before, now + before);
    QVERIFY(window.rects.isEmpty());
}

void tst_MainWindowDocks::reportsAResizeOnce()
{
    Window window;
    QVERIFY(window.listen());

    QVERIFY(window.xdotool("windowsize", 900, 620));
    QTRY_VERIFY(!window.rects.isEmpty());
    Window::quiet();

    QCOMPARE(window.rects, QList<QRect>({ window.geometry() }));
    QCOMPARE(window.size(), QSize(900, 620));
    QVERIFY(window.moves.isEmpty());
}

void tst_MainWindowDocks::reportsBothWhenTheTopLeftCornerMoves()
{
    Window window;
    QVERIFY(window.listen());
    const QRect before = window.geometry();
    const QPoint corner = before.topLeft() + QPoint(60, 60);

    // The window manager resizes from the nearest corner while Alt and the right button are held.
    QVERIFY(RealMouse::xdotool({ QStringLiteral("keydown"), QStringLiteral("alt") }));
    QVERIFY(RealMouse::moveTo(corner));
    QVERIFY(RealMouse::press(3));
    QVERIFY(RealMouse::moveTo(corner - QPoint(20, 15)));
    QVERIFY(RealMouse::moveTo(corner - QPoint(40, 30)));
    QVERIFY(RealMouse::release(3));
    QVERIFY(RealMouse::xdotool({ QStringLiteral("keyup"), QStringLiteral("alt") }));
    QTRY_VERIFY(!window.moves.isEmpty());
    QTRY_VERIFY(!window.rects.isEmpty());
    Window::quiet();

    QCOMPARE(window.geometry().bottomRight(), before.bottomRight());
    QVERIFY(window.width() > before.width());
    // Qt tells the new size first, when the window still counts as standing at the old place.
    QCOMPARE(window.rects.last().size(), window.size());
    QCOMPARE(window.moves.last().now, window.geometry().topLeft());
}

void tst_MainWindowDocks::bringsAFloatingDockBack()
{
    Window window;
    QVERIFY(window.listen());
    DockWidget *dock = window.dock();
    const QSize first = dock->defSize();
    QVERIFY(first.isValid());
    const QPoint title = dock->mapToGlobal(QPoint(40, 10));

    // A double click on its title sets a dock afloat.
    QVERIFY(RealMouse::click(title));
    QVERIFY(RealMouse::click(title));
    QTRY_VERIFY(dock->isFloating());
    dock->resize(400, 300);
    Window::quiet();

    QString line;
    QDebug(&line) << "DockWidget::getDefSize" << static_cast<const DockWidget *>(dock) << first;
    expectMessage(QtDebugMsg, line.trimmed());
    window.resetAllGenericDocks();

    QTRY_VERIFY(!dock->isFloating());
    QTRY_COMPARE(window.dockWidgetArea(dock), Qt::LeftDockWidgetArea);
    QTRY_COMPARE(dock->width(), first.width());
    QVERIFY(dock->isVisible());
}

void tst_MainWindowDocks::removesATab()
{
    Window window;
    QVERIFY(window.listen());
    QPointer<QWidget> page(new QWidget);
    window.createSystemWidget(page, QStringLiteral("Laser"), false, false);
    QTabBar *bar = window.tabs()->tabBar();
    QTRY_COMPARE(bar->count(), 2);

    QVERIFY(RealMouse::click(bar->mapToGlobal(bar->tabRect(1).center())));
    QTRY_COMPARE(window.tabs()->currentWidget(), page.data());

    window.removeSystemWidget(page);
    QTRY_VERIFY(!page);
    QCOMPARE(bar->count(), 1);
}

void tst_MainWindowDocks::savesAndRestoresTheDivider()
{
    MainControlPanel panel(nullptr);
    fill(panel);
    panel.setGeometry(300, 200, 300, 500);
    panel.show();
    QVERIFY(QTest::qWaitForWindowExposed(&panel));
    Window::quiet();
    QByteArray state;
    connect(&panel, &MainControlPanel::splitterStateChanged, this,
            [&state](const QByteArray &bytes) { state = bytes; });
    auto *splitter = panel.findChild<QSplitter *>();
    const QList<int> before = splitter->sizes();
    const QPoint divider = middle(*splitter->handle(1));

    QVERIFY(RealMouse::drag(divider, divider - QPoint(0, 120)));
    QTRY_VERIFY(!state.isEmpty());
    QTRY_COMPARE(splitter->sizes().first(), before.first() - 120);
    QTRY_COMPARE(state, splitter->saveState());

    MainControlPanel other(nullptr);
    fill(other);
    other.resize(panel.size());
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    other.setSplitterState(state);
    QTRY_COMPARE(other.findChild<QSplitter *>()->sizes(), splitter->sizes());
}

PELORIN_TEST_MAIN(tst_MainWindowDocks)
#include "tst_mainwindowdocks.moc"
