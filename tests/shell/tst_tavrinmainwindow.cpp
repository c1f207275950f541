#include "Pelorin/shell/CenterTabWidget.h"
#include "Pelorin/shell/DockWidget.h"
#include "Pelorin/shell/TavrinMainWindow.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QMoveEvent>
#include <QPointer>
#include <QTabWidget>

#include <functional>

namespace {

class Window : public TavrinMainWindow
{
public:
    using TavrinMainWindow::accessoryDocks;
    using TavrinMainWindow::TavrinMainWindow;

    DockWidget *dock(const char *title) const
    {
        return findChild<DockWidget *>(QLatin1String(title));
    }
    QTabWidget *tabs() const { return findChild<QTabWidget *>(); }

    QWidget *addDock(const char *title, Qt::DockWidgetArea area, bool visible)
    {
        auto *content = new QWidget;
        content->setMinimumSize(40, 40);
        createGenericDockWidget(content, QLatin1String(title), area, visible);
        return content;
    }
};

/// What resetAllGenericDocks() writes for each dock.
void expectSizeLine(const DockWidget *dock, QSize size)
{
    QString line;
    QDebug(&line) << "DockWidget::getDefSize" << dock << size;
    TestCase::expectMessage(QtDebugMsg, line.trimmed());
}

void settle()
{
    QCoreApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

} // namespace

class tst_TavrinMainWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithTheWelcomeTab();
    void declaresSignalsAndSlotsInOrder();
    void isFoundInTheApplicationsProperty();
    void addsAndRemovesSystemWidgets();
    void leavesAnAccessoryWidgetAlone();
    void reportsAMove();
    void reportsAResize();
    void makesADock_data();
    void makesADock();
    void ignoresADockWithoutASide();
    void removesItsDocksInReverse();
    void removesAccessoryDocks();
    void putsDocksBack();
    void leavesTheSizeOfADockThatWasNeverShown();
    void survivesADockThatIsGone();
};

void tst_TavrinMainWindow::startsWithTheWelcomeTab()
{
    const Window window(nullptr);

    QCOMPARE(window.centralWidget(), window.centerTabWidget());
    QCOMPARE(window.tabs()->count(), 1);
    QCOMPARE(window.tabs()->tabText(0), QStringLiteral("Welcome"));
    QCOMPARE(window.windowTitle(), QString());
    QCOMPARE(window.windowFlags() & ~Qt::WindowType_Mask,
             QMainWindow().windowFlags() & ~Qt::WindowType_Mask);
    QCOMPARE(TavrinMainWindow::staticMetaObject.superClass(), &QMainWindow::staticMetaObject);
}

void tst_TavrinMainWindow::declaresSignalsAndSlotsInOrder()
{
    const QStringList own = ownMethods(TavrinMainWindow::staticMetaObject);

    const QStringList expected{
        QStringLiteral("sigMainWindowMoved(QPoint,QPoint)"),
        QStringLiteral("sigMainWindowResized(QRect)"),
        QStringLiteral("createSystemWidget(QWidget*,QString,bool,bool)"),
        QStringLiteral("removeSystemWidget(QWidget*)"),
        QStringLiteral("removeAllSystemWidgets()"),
        QStringLiteral("createAccessoryWidget(QWidget*,uchar,ushort)"),
        QStringLiteral("removeAllAccessoryDocks()"),
        QStringLiteral("createGenericDockWidget(QWidget*,QString,Qt::DockWidgetArea,bool)"),
        QStringLiteral("removeAllGenericDocks()"),
        QStringLiteral("resetAllGenericDocks()"),
    };
    QCOMPARE(own, expected);
}

void tst_TavrinMainWindow::isFoundInTheApplicationsProperty()
{
    Window window(nullptr);
    QVERIFY(!qApp->property("APPLICATIONWINDOWPTR").isValid()); // the library never sets it

    qApp->setProperty("APPLICATIONWINDOWPTR",
                      QVariant::fromValue(static_cast<TavrinMainWindow *>(&window)));

    const QVariant stored = qApp->property("APPLICATIONWINDOWPTR");
    QCOMPARE(stored.value<TavrinMainWindow *>(), &window);
    QCOMPARE(qobject_cast<TavrinMainWindow *>(stored.value<QObject *>()), &window);
    qApp->setProperty("APPLICATIONWINDOWPTR", QVariant());
}

void tst_TavrinMainWindow::addsAndRemovesSystemWidgets()
{
    Window window(nullptr);
    QPointer<QWidget> first(new QWidget);
    QPointer<QWidget> second(new QWidget);

    window.createSystemWidget(first, QStringLiteral("Laser"), false, false);
    QCOMPARE(window.tabs()->currentIndex(), 0);
    window.createSystemWidget(second, QStringLiteral("Spectrum"), false, true);
    QCOMPARE(window.tabs()->currentWidget(), second.data());

    window.removeSystemWidget(first);
    settle();
    QVERIFY(!first);
    QCOMPARE(window.tabs()->count(), 2);

    window.removeSystemWidget(nullptr);
    QCOMPARE(window.tabs()->count(), 2);
}

void tst_TavrinMainWindow::leavesAnAccessoryWidgetAlone()
{
    Window window(nullptr);
    QWidget widget;
    SignalRecorder recorder(&window, QString(), &QMainWindow::staticMetaObject);

    window.createAccessoryWidget(&widget, 3, 7);
    window.createAccessoryWidget(nullptr, 255, 65535);

    QVERIFY(!widget.parentWidget());
    QVERIFY(window.findChildren<QDockWidget *>().isEmpty());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_TavrinMainWindow::reportsAMove()
{
    Window window(nullptr);
    window.setGeometry(100, 80, 400, 300);
    QVector<QPoint> points;
    connect(&window, &TavrinMainWindow::sigMainWindowMoved, this,
            [&points](QPoint before, QPoint now) { points << before << now; });
    QMoveEvent event(QPoint(100, 80), QPoint(60, 50));

    QApplication::sendEvent(&window, &event);

    // The old position is taken for one inside of the window, and so counted from where the window
    // is.
    QCOMPARE(points, QVector<QPoint>({ QPoint(160, 130), QPoint(100, 80) }));
}

void tst_TavrinMainWindow::reportsAResize()
{
    Window window(nullptr);
    window.setGeometry(100, 80, 400, 300);
    QVector<QRect> rects;
    connect(&window, &TavrinMainWindow::sigMainWindowResized, this,
            [&rects](QRect rect) { rects << rect; });
    QResizeEvent event(QSize(400, 300), QSize(1, 1));

    QApplication::sendEvent(&window, &event);

    QCOMPARE(rects, QVector<QRect>({ QRect(100, 80, 400, 300) }));
}

void tst_TavrinMainWindow::makesADock_data()
{
    QTest::addColumn<int>("area");
    QTest::addColumn<bool>("visible");

    QTest::newRow("left") << int(Qt::LeftDockWidgetArea) << true;
    QTest::newRow("right") << int(Qt::RightDockWidgetArea) << true;
    QTest::newRow("top, hidden") << int(Qt::TopDockWidgetArea) << false;
    QTest::newRow("bottom, hidden") << int(Qt::BottomDockWidgetArea) << false;
}

void tst_TavrinMainWindow::makesADock()
{
    QFETCH(int, area);
    QFETCH(bool, visible);
    Window window(nullptr);
    window.show();

    QWidget *content = window.addDock("Trigger", Qt::DockWidgetArea(area), visible);

    const DockWidget *dock = window.dock("Trigger");
    QVERIFY(dock);
    QCOMPARE(dock->windowTitle(), QStringLiteral("Trigger"));
    QCOMPARE(dock->parentWidget(), &window);
    QCOMPARE(dock->widget(), content);
    QCOMPARE(dock->isVisible(), visible);
    QCOMPARE(window.dockWidgetArea(window.dock("Trigger")), Qt::DockWidgetArea(area));
}

void tst_TavrinMainWindow::ignoresADockWithoutASide()
{
    Window window(nullptr);
    QWidget content;

    window.createGenericDockWidget(&content, QStringLiteral("None"), Qt::NoDockWidgetArea, true);
    window.createGenericDockWidget(&content, QStringLiteral("All"), Qt::AllDockWidgetAreas, true);
    window.createGenericDockWidget(nullptr, QStringLiteral("Empty"), Qt::LeftDockWidgetArea, true);

    QCOMPARE(window.findChildren<QDockWidget *>().size(), 1);
    QVERIFY(!content.parentWidget());
    window.removeAllGenericDocks();
}

void tst_TavrinMainWindow::removesItsDocksInReverse()
{
    Window window(nullptr);
    window.show();
    QStringList gone;
    for (const char *title : { "one", "two", "three" }) {
        QWidget *content = window.addDock(title, Qt::LeftDockWidgetArea, true);
        const QString name = QLatin1String(title);
        connect(content, &QObject::destroyed, this, [&gone, name] { gone << name; });
    }

    window.removeAllGenericDocks();
    QCOMPARE(gone, QStringList()); // later, by the event loop
    settle();

    QCOMPARE(gone, QStringList(
                       { QStringLiteral("three"), QStringLiteral("two"), QStringLiteral("one") }));
    window.removeAllGenericDocks();
    window.resetAllGenericDocks();
}

void tst_TavrinMainWindow::removesAccessoryDocks()
{
    Window window(nullptr);
    QPointer<DockWidget> accessory(
        new DockWidget(QStringLiteral("Meter"), Qt::TopDockWidgetArea, true, &window));
    window.addDockWidget(Qt::TopDockWidgetArea, accessory);
    window.accessoryDocks().append(accessory);
    window.addDock("Trigger", Qt::LeftDockWidgetArea, true);

    window.removeAllAccessoryDocks();
    settle();

    QVERIFY(!accessory);
    QVERIFY(window.accessoryDocks().isEmpty());
    QVERIFY(window.dock("Trigger"));
}

void tst_TavrinMainWindow::putsDocksBack()
{
    Window window(nullptr);
    window.resize(1000, 700);
    window.addDock("left", Qt::LeftDockWidgetArea, true);
    window.addDock("hidden", Qt::BottomDockWidgetArea, false);
    window.show();
    settle();
    DockWidget *left = window.dock("left");
    DockWidget *hidden = window.dock("hidden");
    const QSize first = left->defSize();
    QVERIFY(first.isValid());

    left->setFloating(true);
    left->resize(500, 400);
    hidden->setVisible(true);
    settle();
    QVERIFY(left->isFloating());
    QCOMPARE(left->defSize(), first);
    expectSizeLine(left, first);
    expectSizeLine(hidden, hidden->defSize());
    window.resetAllGenericDocks();
    settle();

    QVERIFY(!left->isFloating());
    QVERIFY(left->isVisible());
    QCOMPARE(window.dockWidgetArea(left), Qt::LeftDockWidgetArea);
    QCOMPARE(left->width(), first.width());
    QVERIFY(!hidden->isVisible());
}

void tst_TavrinMainWindow::leavesTheSizeOfADockThatWasNeverShown()
{
    Window window(nullptr);
    window.addDock("hidden", Qt::LeftDockWidgetArea, false);
    window.show();
    settle();
    DockWidget *hidden = window.dock("hidden");
    QCOMPARE(hidden->defSize(), QSize(-1, -1));

    expectSizeLine(hidden, QSize(-1, -1));
    window.resetAllGenericDocks();

    QCOMPARE(hidden->defSize(), QSize(-1, -1));
}

void tst_TavrinMainWindow::survivesADockThatIsGone()
{
    Window window(nullptr);
    window.addDock("one", Qt::LeftDockWidgetArea, true);
    window.addDock("two", Qt::LeftDockWidgetArea, true);

    delete window.dock("one");
    DockWidget *two = window.dock("two");
    expectSizeLine(two, two->defSize());
    window.resetAllGenericDocks();
    window.removeAllGenericDocks();
    settle();

    QVERIFY(!window.dock("two"));
}

PELORIN_TEST_MAIN(tst_TavrinMainWindow)
#include "tst_tavrinmainwindow.moc"
