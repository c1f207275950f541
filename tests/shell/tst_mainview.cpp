#include "tests/controls/ListRows.h"
#include "tests/shell/MainViewParts.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QPixmap>
#include <QPointer>

#include <functional>
#include <limits>
#include <memory>

namespace {

using Parts = MainViewParts;

/// What the user sees of the pages: the title row, the tab bar, and the current page.
QString shown(const MainView &view)
{
    const Parts parts(view);
    QStringList result;
    if (!parts.settingsHeader->isHidden())
        result << QStringLiteral("title");
    if (!parts.tabBar->isHidden())
        result << QStringLiteral("tabs");
    const QWidget *page = parts.stack->currentWidget();
    result << (page && !page->isHidden() ? page->objectName() : QStringLiteral("nothing"));
    return result.join(QLatin1Char(' '));
}

QWidget *makePage(const QString &name, int height = 30)
{
    auto *page = new QWidget;
    page->setObjectName(name);
    page->setFixedHeight(height);
    return page;
}

/// With the pages "Control", "Trigger", "Filter" and "Service", of which the last is out of reach.
void fill(MainView &view)
{
    for (const char *name : { "Control", "Trigger", "Filter", "Service" })
        view.addControlPage(QLatin1String(name), makePage(QLatin1String(name)));
    view.setSettingsPageAccess(3, false);
}

/// Opens the menu and chooses the page at \a index there.
void choose(const MainView &view, int index)
{
    Selector &selector = *Parts(view).selector;
    MouseHand(selector).press(selector.rect().center());
    QApplication::processEvents();
    pressRow(*listOf(selector), index);
}

/// Tells of the rows that come into the menu and of the pages that come into the stack.
class AdditionWatcher : public QObject
{
public:
    explicit AdditionWatcher(const MainView &view)
        : m_menu(frameOf(*listOf(*Parts(view).selector)))
        , m_stack(Parts(view).stack)
    {
        m_menu->installEventFilter(this);
        m_stack->installEventFilter(this);
    }

    QStringList entries() const { return m_entries; }

    bool eventFilter(QObject *watched, QEvent *event) override
    {
        const auto *added = dynamic_cast<QChildEvent *>(event);
        if (added && added->added() && added->child()->isWidgetType())
            m_entries << (watched == m_menu ? QStringLiteral("item") : QStringLiteral("page"));
        return false;
    }

private:
    QObject *m_menu;
    QObject *m_stack;
    QStringList m_entries;
};

using PartOf = std::function<QWidget *(const Parts &)>;

} // namespace

Q_DECLARE_METATYPE(PartOf)

class tst_MainView : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();

    void setsTwoColumnsSideBySide();
    void laysOutTheWhiteColumn();
    void laysOutTheHeaderRow();
    void laysOutTheSettingsHeader();
    void laysOutTheTabBar();
    void laysOutThePages();
    void keepsAShortPageAtTheTop();
    void laysOutTheRedColumn();
    void scrollsItsColumnsUpAndDownOnly();
    void asksTheSheetForTheLookOfItsParts_data();
    void asksTheSheetForTheLookOfItsParts();
    void startsWithoutPages();

    void addsPages();
    void addsTheNameBeforeThePage();
    void neverOffersTheFirstPage();
    void ignoresAPageThatCannotBeOne_data();
    void ignoresAPageThatCannotBeOne();

    void showsAPage_data();
    void showsAPage();
    void showsTheTabBarAgainOnlyWithTabs();
    void selectsPageZeroWithoutPages();
    void leavesAnUnreachablePageAlone_data();
    void leavesAnUnreachablePageAlone();
    void tellsWhetherAPageCanBeReached();
    void opensAPageAgainThatWasOutOfReach();
    void keepsAPageThatIsLockedWhileShown();
    void showsThePageBeforeItReportsTheChoice();
    void reportsAChosenPageThatIsOutOfReach();
    void closesTheSettings_data();
    void closesTheSettings();
    void closesTheSettingsBeforeItReports();
    void survivesItsEndWhileAPageIsShown();
    void livesWithAPageThatWasDeleted();

    void hidesAnEmptyHeader();
    void neverHidesTheTinyHeader();
    void showsTheWarning();
    void explainsTheWarning();
    void hidesTheSettingsMenu();
    void neverAsksToBeClosed();
    void tellsTheHeights();
    void tellsNoHeightOfAMissingPage_data();
    void tellsNoHeightOfAMissingPage();

    void deletesWhatItHasTakenOver();
};

void tst_MainView::declaresItsInterface()
{
    const QMetaObject &meta = MainView::staticMetaObject;

    QCOMPARE(meta.className(), "MainView");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             list({ "closeClicked()", "warningClicked()", "controlPageChanged(int)" }));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
             list({ "setTinyHeader(QString)", "setHeader(QString)", "setControlPage(int)",
                    "closeSettings()", "showWarning(bool)", "setWarningTooltip(QString)" }));
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        QCOMPARE(meta.method(i).access(), QMetaMethod::Public);
}

void tst_MainView::setsTwoColumnsSideBySide()
{
    const MainView view;
    const Parts parts(view);

    QCOMPARE(parts.columns->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(parts.columns->spacing(), 0);
    QCOMPARE(parts.columns->count(), 2);
    QCOMPARE(parts.columns->stretch(0), 3);
    QCOMPARE(parts.columns->stretch(1), 1);
}

void tst_MainView::laysOutTheWhiteColumn()
{
    const MainView view;
    const Parts parts(view);

    QCOMPARE(parts.whiteLayout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(parts.whiteLayout->count(), 4);
    QVERIFY(parts.headerRow);
    QVERIFY(parts.settingsHeader);
    QVERIFY(parts.tabBar);
    QVERIFY(parts.pageArea);
}

void tst_MainView::laysOutTheHeaderRow()
{
    const MainView view;
    const Parts parts(view);
    const QHBoxLayout *row = parts.headerRow;

    QCOMPARE(row->contentsMargins(), QMargins(25, 10, 25, 0));
    QCOMPARE(row->count(), 4);
    QVERIFY(row->itemAt(1)->spacerItem());
    QVERIFY(row->itemAt(1)->expandingDirections() & Qt::Horizontal);
    for (const int label : { 0, 2, 3 })
        QCOMPARE(row->itemAt(label)->alignment(), Qt::AlignVCenter);
    QCOMPARE(parts.logo->alignment(), Qt::AlignVCenter);
    QCOMPARE(parts.logo->pixmap(Qt::ReturnByValue).toImage(),
             QImage(QStringLiteral(":/Pelorin/images/images/tavrinLogo.png"))
                 .convertToFormat(parts.logo->pixmap(Qt::ReturnByValue).toImage().format()));
    QCOMPARE(parts.logo->pixmap(Qt::ReturnByValue).size(), QSize(157, 35));
    QCOMPARE(parts.tinyHeader->alignment(), Qt::AlignLeft | Qt::AlignVCenter);
    QCOMPARE(parts.header->alignment(), Qt::AlignHCenter | Qt::AlignVCenter);
}

void tst_MainView::laysOutTheSettingsHeader()
{
    const MainView view;
    const Parts parts(view);
    const QHBoxLayout *row = parts.settingsRow;

    QCOMPARE(row->contentsMargins(), QMargins(25, 0, 25, 0));
    QCOMPARE(row->count(), 3);
    QCOMPARE(parts.title->text(), QStringLiteral("Settings"));
    QVERIFY(row->itemAt(1)->spacerItem());
    QVERIFY(row->itemAt(1)->expandingDirections() & Qt::Horizontal);
    QCOMPARE(row->itemAt(2)->alignment(), Qt::AlignTop);
    QCOMPARE(parts.close->text(), QString());
}

void tst_MainView::laysOutTheTabBar()
{
    const MainView view;
    const Parts parts(view);

    QVERIFY(!parts.tabBar->expanding());
    QCOMPARE(parts.tabBar->count(), 0);
    QCOMPARE(view.controlPageTabBar(), parts.tabBar);
}

void tst_MainView::laysOutThePages()
{
    const MainView view;
    const Parts parts(view);

    QCOMPARE(parts.pageLayout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(parts.pageLayout->count(), 2);
    QVERIFY(parts.stack);
    QCOMPARE(parts.pageLayout->stretch(0), 0);
    QVERIFY(parts.pageLayout->itemAt(1)->spacerItem());
    QCOMPARE(parts.pageLayout->stretch(1), 1);
}

void tst_MainView::keepsAShortPageAtTheTop()
{
    MainView view;
    auto *page = new QWidget;
    page->setMinimumHeight(40);
    view.addControlPage(QStringLiteral("Control"), page);
    view.setControlPage(0);

    view.resize(900, 600);
    view.show();

    const Parts parts(view);
    const int margins = parts.stack->layout()->contentsMargins().top()
                        + parts.stack->layout()->contentsMargins().bottom();
    QCOMPARE(parts.stack->y(), 0);
    QCOMPARE(parts.stack->height(), 40 + margins);
    QVERIFY(parts.pageArea->height() > 400);
}

void tst_MainView::laysOutTheRedColumn()
{
    const MainView view;
    const Parts parts(view);

    QCOMPARE(parts.redLayout->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(parts.redLayout->count(), 3);
    QCOMPARE(parts.topRow->contentsMargins(), QMargins(25, 25, 25, 0));
    QCOMPARE(parts.topRow->count(), 3);
    QVERIFY(parts.topRow->itemAt(1)->spacerItem());
    QVERIFY(parts.topRow->itemAt(1)->expandingDirections() & Qt::Horizontal);
    QCOMPARE(parts.warning->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(parts.warning->minimumSize(), QSize(22, 22));
    QCOMPARE(parts.warning->text(), QString());
    QCOMPARE(parts.selector->text(), QStringLiteral("Settings"));
    QVERIFY(parts.sideExtra->children().isEmpty());
    QVERIFY(parts.remoteFrame->children().isEmpty());
}

void tst_MainView::scrollsItsColumnsUpAndDownOnly()
{
    const MainView view;
    const Parts parts(view);

    for (const ScrollArea *area : { parts.pageArea, parts.red }) {
        QCOMPARE(area->horizontalScrollBarPolicy(), Qt::ScrollBarAlwaysOff);
        QCOMPARE(area->verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    }
}

void tst_MainView::asksTheSheetForTheLookOfItsParts_data()
{
    QTest::addColumn<PartOf>("part");
    QTest::addColumn<QByteArray>("property");
    QTest::addColumn<QString>("value");
    const auto add = [](const char *name, const PartOf &part, const char *property,
                        const char *value) {
        QTest::newRow(name) << part << QByteArray(property) << QString::fromLatin1(value);
    };

    add(
        "white column", [](const Parts &parts) { return parts.white; }, "widget-color",
        "white-logo");
    add(
        "pages", [](const Parts &parts) { return parts.pageArea->widget(); }, "widget-color",
        "white");
    add(
        "red column", [](const Parts &parts) { return parts.red->widget(); }, "widget-color",
        "red");
    add(
        "tab bar", [](const Parts &parts) { return parts.tabBar; }, "type", "mainview-tabbar");
    add(
        "header", [](const Parts &parts) { return parts.header; }, "type", "header");
    add(
        "tiny header", [](const Parts &parts) { return parts.tinyHeader; }, "type", "tiny-header");
    add(
        "title of the settings", [](const Parts &parts) { return parts.title; }, "type", "title");
    add(
        "menu of settings", [](const Parts &parts) { return parts.selector; }, "type", "settings");
    add(
        "close button", [](const Parts &parts) { return parts.close; }, "style", "close");
    add(
        "warning button", [](const Parts &parts) { return parts.warning; }, "style", "warning");
}

void tst_MainView::asksTheSheetForTheLookOfItsParts()
{
    QFETCH(PartOf, part);
    QFETCH(QByteArray, property);
    QFETCH(QString, value);
    const MainView view;

    QCOMPARE(part(Parts(view))->property(property).toString(), value);
}

void tst_MainView::startsWithoutPages()
{
    MainView view;
    view.show();
    const Parts parts(view);

    QCOMPARE(parts.stack->count(), 0);
    QCOMPARE(parts.selector->itemCount(), 0);
    QVERIFY(parts.settingsHeader->isVisible());
    QVERIFY(parts.selector->isVisible());
    QVERIFY(parts.tinyHeader->isVisible());
    QVERIFY(!parts.header->isVisible());
    QVERIFY(!parts.tabBar->isVisible());
    QVERIFY(!parts.warning->isVisible());
}

void tst_MainView::addsPages()
{
    MainView view;
    const SignalRecorder recorder(&view);
    QWidget *first = makePage(QStringLiteral("Control"));
    QWidget *second = makePage(QStringLiteral("Trigger"));

    const int firstIndex = view.addControlPage(QStringLiteral("Control"), first);
    const int secondIndex = view.addControlPage(QStringLiteral("Trigger"), second);

    const Parts parts(view);
    QCOMPARE(firstIndex, 0);
    QCOMPARE(secondIndex, 1);
    QCOMPARE(parts.stack->widgetAt(0), first);
    QCOMPARE(parts.stack->widgetAt(1), second);
    QCOMPARE(first->parentWidget(), parts.stack);
    QCOMPARE(parts.stack->currentIndex(), -1);
    QCOMPARE(listOf(*parts.selector)->itemText(0), QStringLiteral("Control"));
    QCOMPARE(listOf(*parts.selector)->itemText(1), QStringLiteral("Trigger"));
    QCOMPARE(recorder.entries(), QStringList());
}

void tst_MainView::addsTheNameBeforeThePage()
{
    MainView view;
    const AdditionWatcher watcher(view);

    view.addControlPage(QStringLiteral("Control"), makePage(QStringLiteral("Control")));

    QCOMPARE(watcher.entries(), list({ "item", "page" }));
}

void tst_MainView::neverOffersTheFirstPage()
{
    MainView view;
    fill(view);
    view.show();
    Selector &selector = *Parts(view).selector;

    MouseHand(selector).press(selector.rect().center());

    QCOMPARE(shownTexts(*listOf(selector)), list({ "Trigger", "Filter" }));
}

void tst_MainView::ignoresAPageThatCannotBeOne_data()
{
    QTest::addColumn<QString>("page");

    QTest::newRow("null") << QString();
    QTest::newRow("the view itself") << QStringLiteral("view");
    QTest::newRow("a widget round the view") << QStringLiteral("dialog");
    QTest::newRow("a window round the view's own") << QStringLiteral("main window");
}

void tst_MainView::ignoresAPageThatCannotBeOne()
{
    QFETCH(QString, page);
    QWidget window;
    window.setObjectName(QStringLiteral("main window"));
    auto *dialog = new QWidget(&window, Qt::Window);
    dialog->setObjectName(QStringLiteral("dialog"));
    auto *view = new MainView(dialog);
    view->setObjectName(QStringLiteral("view"));
    QWidget *candidates[] = { &window, dialog, view };
    QWidget *candidate = nullptr;
    for (QWidget *each : candidates)
        candidate = each->objectName() == page ? each : candidate;

    const int index = view->addControlPage(QStringLiteral("Control"), candidate);

    QCOMPARE(index, -1);
    QCOMPARE(view->parentWidget(), dialog);
    QCOMPARE(dialog->parentWidget(), &window);
    QCOMPARE(Parts(*view).selector->itemCount(), 0);
    QCOMPARE(Parts(*view).stack->count(), 0);
    QCOMPARE(view->addControlPage(QStringLiteral("Control"), new QWidget), 0);
}

void tst_MainView::showsAPage_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("hasTabs");
    QTest::addColumn<QString>("expected");

    QTest::newRow("ordinary page") << 1 << 0 << false << QStringLiteral("Control");
    QTest::newRow("ordinary page with tabs") << 1 << 0 << true << QStringLiteral("tabs Control");
    QTest::newRow("settings page") << 0 << 1 << false << QStringLiteral("title Trigger");
    QTest::newRow("settings page instead of tabs")
        << 0 << 1 << true << QStringLiteral("title Trigger");
    QTest::newRow("settings page to settings page")
        << 1 << 2 << true << QStringLiteral("title Filter");
    QTest::newRow("same ordinary page") << 0 << 0 << true << QStringLiteral("tabs Control");
    QTest::newRow("same settings page") << 2 << 2 << true << QStringLiteral("title Filter");
}

void tst_MainView::showsAPage()
{
    QFETCH(int, before);
    QFETCH(int, index);
    QFETCH(bool, hasTabs);
    MainView view;
    fill(view);
    if (hasTabs)
        view.controlPageTabBar()->addTab(QStringLiteral("Pulse"));
    view.setControlPage(before);
    const SignalRecorder recorder(&view);

    view.setControlPage(index);

    QTEST(shown(view), "expected");
    for (int i = 0; i < 4; ++i)
        QCOMPARE(Parts(view).stack->widgetAt(i)->isHidden(), i != index);
    QCOMPARE(recorder.entries(), QStringList());
}

void tst_MainView::showsTheTabBarAgainOnlyWithTabs()
{
    MainView view;
    fill(view);
    view.controlPageTabBar()->addTab(QStringLiteral("Pulse"));
    QVERIFY(view.controlPageTabBar()->isHidden()); // until a page is selected
    view.setControlPage(0);
    view.setControlPage(1);

    view.controlPageTabBar()->removeTab(0);
    view.setControlPage(0);
    QCOMPARE(shown(view), QStringLiteral("Control"));

    view.controlPageTabBar()->addTab(QStringLiteral("Burst"));
    view.setControlPage(0);
    QCOMPARE(shown(view), QStringLiteral("tabs Control"));
}

void tst_MainView::selectsPageZeroWithoutPages()
{
    MainView view;
    view.controlPageTabBar()->addTab(QStringLiteral("Pulse"));
    const SignalRecorder recorder(&view);

    view.setControlPage(0);

    QCOMPARE(shown(view), QStringLiteral("tabs nothing"));
    QCOMPARE(recorder.entries(), QStringList());
}

void tst_MainView::leavesAnUnreachablePageAlone_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("least index") << std::numeric_limits<int>::min();
    QTest::newRow("negative") << -1;
    QTest::newRow("out of reach") << 3;
    QTest::newRow("behind the last") << 4;
    QTest::newRow("greatest index") << std::numeric_limits<int>::max();
}

void tst_MainView::leavesAnUnreachablePageAlone()
{
    QFETCH(int, index);
    MainView view;
    fill(view);
    view.controlPageTabBar()->addTab(QStringLiteral("Pulse"));
    const SignalRecorder recorder(&view);

    view.setControlPage(0);
    view.setControlPage(index);
    QCOMPARE(shown(view), QStringLiteral("tabs Control"));

    view.setControlPage(2);
    view.setControlPage(index);
    QCOMPARE(shown(view), QStringLiteral("title Filter"));
    QCOMPARE(recorder.entries(), QStringList());
}

void tst_MainView::tellsWhetherAPageCanBeReached()
{
    MainView view;
    fill(view);

    QVERIFY(!view.getSettingsPageAccess(-1));
    QVERIFY(!view.getSettingsPageAccess(0));
    QVERIFY(view.getSettingsPageAccess(1));
    QVERIFY(view.getSettingsPageAccess(2));
    QVERIFY(!view.getSettingsPageAccess(3));
    QVERIFY(!view.getSettingsPageAccess(4));
    view.setSettingsPageAccess(4, true);
    view.setSettingsPageAccess(-1, true);
    QVERIFY(!view.getSettingsPageAccess(4));
    QVERIFY(!view.getSettingsPageAccess(-1));
}

void tst_MainView::opensAPageAgainThatWasOutOfReach()
{
    MainView view;
    fill(view);
    view.setControlPage(0);

    view.setSettingsPageAccess(3, true);
    view.setControlPage(3);

    QCOMPARE(shown(view), QStringLiteral("title Service"));
}

void tst_MainView::keepsAPageThatIsLockedWhileShown()
{
    MainView view;
    fill(view);
    view.setControlPage(1);

    view.setSettingsPageAccess(1, false);

    QCOMPARE(shown(view), QStringLiteral("title Trigger"));
}

void tst_MainView::showsThePageBeforeItReportsTheChoice()
{
    MainView view;
    fill(view);
    view.controlPageTabBar()->addTab(QStringLiteral("Pulse"));
    view.setControlPage(0);
    view.show();
    SignalRecorder recorder(&view);
    QStringList seen;
    connect(&view, &MainView::controlPageChanged, &view, [&] { seen << shown(view); });

    choose(view, 1);
    choose(view, 2);
    choose(view, 2);

    QCOMPARE(seen, list({ "title Trigger", "title Filter", "title Filter" }));
    QCOMPARE(recorder.taken(),
             list({ "controlPageChanged(1)", "controlPageChanged(2)", "controlPageChanged(2)" }));
}

/// The menu does not offer it, but the signal goes its way whatever becomes of the page.
void tst_MainView::reportsAChosenPageThatIsOutOfReach()
{
    MainView view;
    fill(view);
    view.setControlPage(1);
    const SignalRecorder recorder(&view);

    Q_EMIT Parts(view).selector->itemSelected(3);

    QCOMPARE(shown(view), QStringLiteral("title Trigger"));
    QCOMPARE(recorder.entries(), list({ "controlPageChanged(3)" }));
}

void tst_MainView::closesTheSettings_data()
{
    QTest::addColumn<int>("before");
    QTest::addColumn<bool>("byTheButton");

    QTest::newRow("from a settings page by the button") << 2 << true;
    QTest::newRow("from a settings page by the slot") << 2 << false;
    QTest::newRow("from page zero by the button") << 0 << true;
    QTest::newRow("from page zero by the slot") << 0 << false;
}

void tst_MainView::closesTheSettings()
{
    QFETCH(int, before);
    QFETCH(bool, byTheButton);
    MainView view;
    fill(view);
    view.setControlPage(before);
    const SignalRecorder recorder(&view);

    if (byTheButton)
        Parts(view).close->click();
    else
        view.closeSettings();

    QCOMPARE(shown(view), QStringLiteral("Control"));
    QCOMPARE(recorder.entries(), list({ "controlPageChanged(0)" }));
}

void tst_MainView::closesTheSettingsBeforeItReports()
{
    MainView view;
    fill(view);
    view.setControlPage(2);
    QString seen;
    connect(&view, &MainView::controlPageChanged, &view, [&] { seen = shown(view); });

    view.closeSettings();

    QCOMPARE(seen, QStringLiteral("Control"));
}

void tst_MainView::survivesItsEndWhileAPageIsShown()
{
    const QPointer<MainView> view(new MainView);
    fill(*view);
    view->setControlPage(1);
    connect(Parts(*view).stack, &stackWidget::currentChanged, qApp, [&] { delete view; });

    view->closeSettings();

    QVERIFY(!view);
}

void tst_MainView::livesWithAPageThatWasDeleted()
{
    MainView view;
    fill(view);
    view.setControlPage(1);
    delete Parts(view).stack->currentWidget();
    QCOMPARE(shown(view), QStringLiteral("title nothing"));

    view.setControlPage(0);
    QCOMPARE(shown(view), QStringLiteral("Control"));
    view.setControlPage(1);
    QCOMPARE(shown(view), QStringLiteral("title nothing"));
    view.setControlPage(2);
    QCOMPARE(shown(view), QStringLiteral("title Filter"));
    QCOMPARE(view.addControlPage(QStringLiteral("Burst"), new QWidget), 4);
}

void tst_MainView::hidesAnEmptyHeader()
{
    MainView view;
    const QLabel *header = Parts(view).header;

    view.setHeader(QStringLiteral("Marquel"));
    QVERIFY(!header->isHidden());
    QCOMPARE(header->text(), QStringLiteral("Marquel"));

    view.setHeader(QString());
    QVERIFY(header->isHidden());
    QCOMPARE(header->text(), QString());

    view.setHeader(QStringLiteral(" "));
    QVERIFY(!header->isHidden());
    QCOMPARE(header->text(), QStringLiteral(" "));
}

void tst_MainView::neverHidesTheTinyHeader()
{
    MainView view;
    const QLabel *header = Parts(view).tinyHeader;

    view.setTinyHeader(QStringLiteral("532 nm"));
    QVERIFY(!header->isHidden());
    QCOMPARE(header->text(), QStringLiteral("532 nm"));

    view.setTinyHeader(QString());
    QVERIFY(!header->isHidden());
    QCOMPARE(header->text(), QString());
}

void tst_MainView::showsTheWarning()
{
    MainView view;
    QPushButton *warning = Parts(view).warning;
    const SignalRecorder recorder(&view);

    view.showWarning(true);
    QVERIFY(!warning->isHidden());
    QCOMPARE(recorder.entries(), QStringList());

    warning->click();
    QCOMPARE(recorder.entries(), list({ "warningClicked()" }));

    view.showWarning(false);
    QVERIFY(warning->isHidden());
    QCOMPARE(recorder.entries(), list({ "warningClicked()" }));
}

void tst_MainView::explainsTheWarning()
{
    MainView view;

    view.setWarningTooltip(QStringLiteral("Crystal too warm"));

    QCOMPARE(Parts(view).warning->toolTip(), QStringLiteral("Crystal too warm"));
    QVERIFY(Parts(view).warning->isHidden());
    QCOMPARE(view.toolTip(), QString());
}

void tst_MainView::hidesTheSettingsMenu()
{
    MainView view;
    fill(view);
    view.setControlPage(1);
    const Selector *selector = Parts(view).selector;

    view.showSettings(false);
    QVERIFY(selector->isHidden());
    QCOMPARE(shown(view), QStringLiteral("title Trigger"));

    view.showSettings(true);
    QVERIFY(!selector->isHidden());
}

void tst_MainView::neverAsksToBeClosed()
{
    MainView view;
    fill(view);
    view.show();
    const SignalRecorder recorder(&view);

    Parts(view).close->click();
    view.showWarning(true);
    Parts(view).warning->click();
    choose(view, 1);
    view.close();

    QCOMPARE(recorder.entries(),
             list({ "controlPageChanged(0)", "warningClicked()", "controlPageChanged(1)" }));
}

void tst_MainView::tellsTheHeights()
{
    MainView view;
    view.addControlPage(QStringLiteral("Control"), makePage(QStringLiteral("Control"), 120));
    view.addControlPage(QStringLiteral("Trigger"), makePage(QStringLiteral("Trigger"), 70));
    Parts(view).stack->layout()->setContentsMargins(0, 5, 0, 6);
    view.setControlPage(0);
    view.resize(900, 600);
    view.show();

    QCOMPARE(view.currentWidgetInfo(), QStringLiteral("Stack height: 131, Front height: 120"));

    view.setControlPage(1);
    QApplication::processEvents();
    QCOMPARE(view.currentWidgetInfo(), QStringLiteral("Stack height: 81, Front height: 70"));
}

void tst_MainView::tellsNoHeightOfAMissingPage_data()
{
    QTest::addColumn<int>("pages");
    QTest::addColumn<int>("current");

    QTest::newRow("no page") << 0 << -1;
    QTest::newRow("no page selected") << 1 << -1;
    QTest::newRow("page deleted") << 2 << 1;
}

void tst_MainView::tellsNoHeightOfAMissingPage()
{
    QFETCH(int, pages);
    QFETCH(int, current);
    MainView view;
    for (int i = 0; i < pages; ++i)
        view.addControlPage(QString::number(i), new QWidget);
    view.setControlPage(current);
    delete Parts(view).stack->currentWidget();
    Parts(view).stack->resize(200, 81);

    QCOMPARE(view.currentWidgetInfo(), QStringLiteral("Stack height: 81, Front height: 0"));
}

void tst_MainView::deletesWhatItHasTakenOver()
{
    auto view = std::make_unique<MainView>();
    const QPointer<QWidget> page(new QWidget);
    const QPointer<QWidget> panel(new QWidget);
    view->addControlPage(QStringLiteral("Control"), page);
    view->setRemoteControlWidget(panel);

    view.reset();

    QVERIFY(!page);
    QVERIFY(!panel);
}

PELORIN_TEST_MAIN(tst_MainView)
#include "tst_mainview.moc"
