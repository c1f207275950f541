#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/Button>
#include <Pelorin/TabBar>
#include <Pelorin/TabWidget>
#include <Pelorin/stackWidget>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QStackedWidget>
#include <QVBoxLayout>

namespace {

constexpr int pageCount = 3;
const char *const pageNames[pageCount] = { "Output", "Trigger", "Service" };

const char *const settings[] = { "Setpoint",      "Ramp time",  "Source",       "Delay",
                                 "Pulse divider", "Gate level", "Standby after" };
const char *const values[] = { "80 mW", "250 ms", "External", "12.5 ns", "4", "1.2 V", "30 min" };

/// A page with the settings from \a first up to, but not including, \a last.
QFrame *makePage(int first, int last)
{
    auto *page = new QFrame;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(16, 12, 16, 12);
    grid->setVerticalSpacing(8);
    for (int i = first; i < last; ++i) {
        grid->addWidget(PageParts::label(QLatin1String(settings[i]), "text"), i, 0);
        grid->addWidget(PageParts::label(QLatin1String(values[i]), "text-bold"), i, 1,
                        Qt::AlignRight);
    }
    grid->setRowStretch(last, 1);
    return page;
}

/// The later ones are the higher.
QFrame *makeStackPage(int number)
{
    QFrame *page = makePage(0, 2 + 2 * number);
    page->setObjectName(QStringLiteral("stackPage"));
    return page;
}

/// \a stack over the strip of what comes next, which stands right below of it.
QWidget *underneath(const char *name, QWidget *stack)
{
    auto *next = PageParts::label(QStringLiteral("What comes next"), "text");
    next->setObjectName(QStringLiteral("next"));
    next->setAlignment(Qt::AlignCenter);
    auto *result = new QWidget;
    auto *column = new QVBoxLayout(result);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addWidget(PageParts::label(QLatin1String(name), "text-bold"));
    column->addWidget(stack);
    column->addWidget(next);
    column->addStretch(1);
    return result;
}

/// The stack beside the one of Qt, both under the same tabs.
class Stacks : public QWidget
{
public:
    explicit Stacks(SignalLog *log)
        : m_bar(new TabBar(nullptr))
        , m_stack(new stackWidget(nullptr))
        , m_peer(new QStackedWidget)
        , m_readout(PageParts::label(QString(), "text"))
        , m_remove(new Button(QStringLiteral("Remove page 2")))
    {
        m_bar->setProperty("type", QStringLiteral("mainview-tabbar"));
        m_bar->setDrawBase(false);
        for (int i = 0; i < pageCount; ++i) {
            m_bar->addTab(QLatin1String(pageNames[i]));
            m_stack->addWidget(makeStackPage(i));
            m_peer->addWidget(makeStackPage(i));
        }
        m_peer->setContentsMargins(9, 9, 9, 9); // as much as a layout has
        m_remove->setSize(Button::LongSmall);
        m_remove->setWidth(130);
        m_remove->setColor(Button::Red);
        arrange();
        m_stack->setCurrentIndex(0);
        listen(log);
        showState();
    }

private:
    void arrange()
    {
        auto *both = new QHBoxLayout;
        both->setSpacing(24);
        both->addWidget(underneath("stackWidget", m_stack), 1);
        both->addWidget(underneath("QStackedWidget", m_peer), 1);
        auto *foot = new QHBoxLayout;
        foot->setSpacing(16);
        foot->addWidget(m_remove);
        foot->addWidget(m_readout);
        foot->addStretch(1);
        auto *column = new QVBoxLayout(this);
        column->setContentsMargins(0, 0, 0, 0);
        column->setSpacing(12);
        column->addWidget(m_bar);
        column->addLayout(both);
        column->addLayout(foot);
    }

    void listen(SignalLog *log)
    {
        connect(m_bar, &QTabBar::currentChanged, this, [this](int index) {
            m_stack->setCurrentIndex(index);
            m_peer->setCurrentIndex(index);
            showState();
        });
        connect(m_stack, &stackWidget::currentChanged, log, [log](int index) {
            log->note(QStringLiteral("stackWidget"), QStringLiteral("currentChanged"),
                      QString::number(index));
        });
        connect(m_stack, &stackWidget::widgetRemoved, log, [log](int index) {
            log->note(QStringLiteral("stackWidget"), QStringLiteral("widgetRemoved"),
                      QString::number(index));
        });
        connect(m_remove, &Button::clicked, this, [this] { removeOrPutBack(); });
    }

    /// Takes the second page out, or puts it in again.
    void removeOrPutBack()
    {
        if (m_away) {
            m_stack->insertWidget(1, m_away);
            m_away->setVisible(m_stack->currentIndex() == 1);
            m_away = nullptr;
        } else {
            m_away = m_stack->widgetAt(1);
            m_stack->removeWidgetAt(1);
            m_away->hide(); // the stack leaves that to us
        }
        m_remove->setText(m_away ? QStringLiteral("Put page 2 back")
                                 : QStringLiteral("Remove page 2"));
        showState();
    }

    void showState()
    {
        m_readout->setText(QStringLiteral("count %1, current index %2")
                               .arg(m_stack->count())
                               .arg(m_stack->currentIndex()));
    }

    TabBar *m_bar;
    stackWidget *m_stack;
    QStackedWidget *m_peer;
    QLabel *m_readout;
    Button *m_remove;
    QWidget *m_away = nullptr;
};

QFrame *tabCard(SignalLog *log)
{
    auto *tabs = new TabWidget(nullptr);
    tabs->setProperty("flat", true);
    tabs->tabBar()->setProperty("flat", true);
    for (int i = 0; i < pageCount; ++i)
        tabs->addTab(makePage(2 * i, 2 * i + 2), QLatin1String(pageNames[i]));
    QObject::connect(tabs, &QTabWidget::currentChanged, log, [log](int index) {
        log->note(QStringLiteral("TabWidget"), QStringLiteral("currentChanged"),
                  QString::number(index));
    });
    return PageParts::card(QStringLiteral("Tab widget"), QString(), tabs);
}

} // namespace

QWidget *buildStackPage()
{
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Choose a tab"));
    auto *page = new QWidget;
    page->setStyleSheet(QStringLiteral(
        "#stackPage { background-color: #F6F6F6; border: 1px solid #DDD; border-radius: 6px; }"
        "#next { background-color: #DDD; border-radius: 6px; padding: 8px; }"));
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(PageParts::gap);
    layout->addWidget(
        PageParts::card(QStringLiteral("Stack under a tab bar"),
                        QStringLiteral("The stack is as high as the page that it shows, where "
                                       "Qt's own is as high as the highest."),
                        new Stacks(log)));
    layout->addWidget(tabCard(log));
    layout->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 1);
    return page;
}
