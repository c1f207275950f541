#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/Button>
#include <Pelorin/CenterTabWidget>
#include <Pelorin/ColHeader>
#include <Pelorin/DockWidget>
#include <Pelorin/MainControlPanel>
#include <Pelorin/SplashImage>
#include <Pelorin/TavrinMainWindow>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QSplitter>
#include <QTimer>

namespace {

constexpr int columnWidth = 300;

Button *makeButton(const QString &text, Button::Color color)
{
    auto *button = new Button(text);
    button->setSize(Button::LongSmall);
    button->setColor(color);
    return button;
}

/// A control for a pane: a ground in a colour of the sheet, and its name.
QWidget *makeControl(const QString &name, const char *color)
{
    auto *control = new QFrame;
    control->setProperty("widget-color", QString::fromLatin1(color));
    control->setMinimumSize(columnWidth - 40, 60);
    auto *layout = new QVBoxLayout(control);
    layout->addWidget(PageParts::label(name, qstrcmp(color, "red") == 0 ? "panel-label" : "label"),
                      0, Qt::AlignCenter);
    return control;
}

/// A column as an application builds it: a header that shows and hides the panel below it.
QWidget *makeColumn(MainControlPanel *panel, SignalLog *log)
{
    auto *column = new QWidget;
    column->setFixedWidth(columnWidth);
    auto *header = new ColHeader;
    header->setText(QStringLiteral("Channels"));
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(header);
    layout->addWidget(panel, 1);
    layout->addStretch(0);
    QObject::connect(header, &ColHeader::sigShowStateChanged, panel, &QWidget::setVisible);
    QObject::connect(header, &ColHeader::sigShowStateChanged, log, [log](bool shown) {
        log->note(QStringLiteral("header"), QStringLiteral("sigShowStateChanged"),
                  shown ? QStringLiteral("true") : QStringLiteral("false"));
    });
    return column;
}

/// Buttons that show one control or another in the two panes.
QLayout *makeChoices(MainControlPanel *panel)
{
    struct Choice
    {
        const char *text;
        Button::Color color;
        bool main;
        const char *ground;
    };
    const Choice choices[] = { { "Laser", Button::Red, true, "red" },
                               { "Trigger", Button::Red, true, "light-grey" },
                               { "Filter", Button::DarkGrey, false, "light-grey" },
                               { "Shutter", Button::DarkGrey, false, "white" } };
    auto *layout = new QVBoxLayout;
    for (const Choice &choice : choices) {
        const auto show =
            choice.main ? &MainControlPanel::showMainControl : &MainControlPanel::showChildControl;
        QWidget *control = makeControl(QLatin1String(choice.text), choice.ground);
        (panel->*show)(control, false);
        Button *button = makeButton(QLatin1String(choice.text), choice.color);
        QObject::connect(button, qOverload<bool, QString>(&Button::clicked), panel,
                         [panel, control, show] { (panel->*show)(control, true); });
        layout->addWidget(button);
    }
    for (const bool main : { true, false }) {
        const auto show =
            main ? &MainControlPanel::showMainControl : &MainControlPanel::showChildControl;
        Button *button =
            makeButton(main ? QStringLiteral("No main") : QStringLiteral("No child"), Button::Grey);
        QObject::connect(button, qOverload<bool, QString>(&Button::clicked), panel,
                         [panel, show] { (panel->*show)(nullptr, true); });
        layout->addWidget(button);
    }
    layout->addStretch(1);
    return layout;
}

QFrame *columnCard(SignalLog *log)
{
    auto *panel = new MainControlPanel;
    auto *content = new QHBoxLayout;
    content->setSpacing(PageParts::gap);
    QLayout *choices = makeChoices(panel);
    content->addWidget(makeColumn(panel, log));
    content->addLayout(choices);
    content->addStretch(1);
    panel->showMainControl(makeControl(QStringLiteral("Main control"), "red"), true);
    panel->showChildControl(makeControl(QStringLiteral("Child control"), "light-grey"), true);
    QObject::connect(panel, &MainControlPanel::splitterStateChanged, log,
                     [log](const QByteArray &state) {
                         log->note(QStringLiteral("panel"), QStringLiteral("splitterStateChanged"),
                                   QStringLiteral("%1 bytes").arg(state.size()));
                     });
    return PageParts::card(
        QStringLiteral("Control column"),
        QStringLiteral("A header over two panes; drag the divider between them."), content);
}

/// The main window around the page, which is there once the page is shown.
TavrinMainWindow *mainWindow(const QWidget *page)
{
    return qobject_cast<TavrinMainWindow *>(page->window());
}

QFrame *dockCard(QWidget *page, SignalLog *log)
{
    Button *add = makeButton(QStringLiteral("Add a dock"), Button::Red);
    Button *reset = makeButton(QStringLiteral("Reset docks"), Button::DarkGrey);
    Button *tab = makeButton(QStringLiteral("Add a tab"), Button::Red);
    const auto clicked = qOverload<bool, QString>(&Button::clicked);
    QObject::connect(add, clicked, page, [page, log] {
        TavrinMainWindow *window = mainWindow(page);
        const int number = window->findChildren<DockWidget *>().size();
        const QString title = QStringLiteral("Dock %1").arg(number);
        window->createGenericDockWidget(makeControl(title, "white"), title, Qt::RightDockWidgetArea,
                                        true);
        log->note(QStringLiteral("window"), QStringLiteral("createGenericDockWidget"), title);
    });
    QObject::connect(reset, clicked, page, [page] { mainWindow(page)->resetAllGenericDocks(); });
    QObject::connect(tab, clicked, page, [page, log] {
        mainWindow(page)->createSystemWidget(
            makeControl(QStringLiteral("A system widget"), "white"),
            QStringLiteral("System widget"), false, false);
        log->note(QStringLiteral("window"), QStringLiteral("createSystemWidget"));
    });
    auto *row = new QHBoxLayout;
    row->setSpacing(PageParts::gap);
    for (Button *button : { add, reset, tab })
        row->addWidget(button, 0, Qt::AlignTop);
    row->addStretch(1);
    return PageParts::card(
        QStringLiteral("Docks and tabs"),
        QStringLiteral("Set a dock afloat, move and resize it, and bring all back."), row);
}

QFrame *splashCard()
{
    auto *splash = new SplashImage;
    splash->setFixedWidth(columnWidth);
    splash->setFixedHeight(splash->heightForWidth(columnWidth));
    auto *content = new QVBoxLayout;
    content->addWidget(splash);
    content->addStretch(1);
    return PageParts::card(QStringLiteral("Splash picture"),
                           QStringLiteral("The application brings it; the welcome page shows it."),
                           content);
}

/// Notes what the window reports of itself.
void follow(QWidget *page, SignalLog *log)
{
    TavrinMainWindow *window = mainWindow(page);
    if (!window)
        return;
    QObject::connect(window, &TavrinMainWindow::sigMainWindowMoved, log, [log](QPoint, QPoint now) {
        log->note(QStringLiteral("window"), QStringLiteral("sigMainWindowMoved"),
                  QStringLiteral("%1, %2").arg(now.x()).arg(now.y()));
    });
    QObject::connect(window, &TavrinMainWindow::sigMainWindowResized, log, [log](QRect rect) {
        log->note(QStringLiteral("window"), QStringLiteral("sigMainWindowResized"),
                  QStringLiteral("%1 x %2").arg(rect.width()).arg(rect.height()));
    });
}

} // namespace

QWidget *buildShellPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Move or resize the window, or a divider"));
    grid->addWidget(columnCard(log), 0, 0, 2, 1);
    grid->addWidget(dockCard(page, log), 0, 1);
    grid->addWidget(splashCard(), 1, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 2, 0, 1, 2);
    grid->setRowStretch(1, 1);
    grid->setRowStretch(2, 1);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    QTimer::singleShot(0, log, [page, log] { follow(page, log); }); // once it stands in its window
    return page;
}
