#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleOption>
#include <QStylePainter>
#include <QTabBar>
#include <QTabWidget>
#include <QVariant>

namespace {

struct ButtonLook
{
    const char *property;
    const char *value;
    const char *text;
    QSize size; ///< none for what the button asks for itself
    bool knowsDisabled;
    bool knowsChecked;
};

const QVector<ButtonLook> &buttonLooks()
{
    static const QVector<ButtonLook> list{
        { "style", "close", "", QSize(), false, false },
        { "style", "warning", "", QSize(22, 22), false, false },
        { "style", "toggle", "", QSize(), false, true },
        { "style", "playbutton", "", QSize(34, 34), true, false },
        { "style", "stopbutton", "", QSize(34, 34), true, false },
        { "style", "editbutton", "", QSize(), false, false },
        { "style", "savebutton", "", QSize(), true, false },
        { "style", "savebutton-scaleable", "", QSize(48, 48), true, false },
        { "style", "setbutton", "", QSize(), false, false },
        { "type", "rounded-red", "Start", QSize(), true, false },
        { "type", "rounded-grey", "Cancel", QSize(), true, false },
        { "type", "fluorophore-clearbutton", "", QSize(26, 26), false, false },
    };
    return list;
}

QPushButton *makeButton(const ButtonLook &look)
{
    auto *button = new QPushButton(QLatin1String(look.text));
    button->setProperty(look.property, QString::fromLatin1(look.value));
    button->setCheckable(look.knowsChecked);
    if (look.size.isValid())
        button->setFixedSize(look.size);
    else
        button->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return button;
}

void addButtonRow(QGridLayout *grid, int row, const ButtonLook &look)
{
    const auto add = [grid, row](QPushButton *button, int column) {
        grid->addWidget(button, row, column, Qt::AlignLeft | Qt::AlignVCenter);
    };
    QLabel *name = PageParts::label(QLatin1String(look.value), "text");
    name->setWordWrap(true);
    grid->addWidget(name, row, 0);
    add(makeButton(look), 1);

    QPushButton *hovered = makeButton(look);
    PageParts::freezeHovered(hovered);
    add(hovered, 2);

    if (look.knowsDisabled) {
        QPushButton *disabled = makeButton(look);
        disabled->setEnabled(false);
        add(disabled, 3);
    }
    if (look.knowsChecked) {
        QPushButton *checked = makeButton(look);
        checked->setChecked(true);
        PageParts::freeze(checked);
        add(checked, 4);
    }
}

QFrame *buttonCard()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    const char *const captions[] = { "style or type", "normal", "hover", "disabled", "checked" };
    int column = 0;
    for (const char *caption : captions)
        grid->addWidget(PageParts::label(QLatin1String(caption), "text-bold"), 0, column++);
    int row = 1;
    for (const ButtonLook &look : buttonLooks()) {
        grid->setRowMinimumHeight(row, 46);
        addButtonRow(grid, row++, look);
    }
    grid->setColumnMinimumWidth(0, 122);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(row, 1);
    return PageParts::card(QStringLiteral("Push buttons"),
                           QStringLiteral("The normal ones can be tried."), grid);
}

/// Paints every tab as if the mouse were on it.
class HoveredTabBar : public QTabBar
{
protected:
    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        for (int i = 0; i < count(); ++i) {
            QStyleOptionTab option;
            initStyleOption(&option, i);
            option.state |= QStyle::State_MouseOver;
            painter.drawControl(QStyle::CE_TabBarTab, option);
        }
    }
};

QTabBar *hoveredTabs(const char *property, const QVariant &value)
{
    auto *bar = new HoveredTabBar;
    bar->setProperty(property, value);
    bar->addTab(QStringLiteral("selected, hover"));
    bar->addTab(QStringLiteral("hover"));
    PageParts::freeze(bar);
    return bar;
}

QFrame *flatTabCard()
{
    auto *tabs = new QTabWidget;
    tabs->setProperty("flat", true);
    tabs->tabBar()->setProperty("flat", true);
    tabs->addTab(new QWidget, QStringLiteral("selected"));
    tabs->addTab(new QWidget, QStringLiteral("not selected"));
    tabs->setFixedHeight(76);
    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(tabs);
    column->addWidget(hoveredTabs("flat", true), 0, Qt::AlignLeft);
    return PageParts::card(QStringLiteral("Tab widget and tab bar, flat"), QString(), column);
}

QFrame *mainTabCard()
{
    const QString type = QStringLiteral("mainview-tabbar");
    auto *bar = new QTabBar;
    bar->setProperty("type", type);
    bar->addTab(QStringLiteral("selected"));
    bar->addTab(QStringLiteral("not selected"));
    auto *column = new QVBoxLayout;
    column->setSpacing(8);
    column->addWidget(bar, 0, Qt::AlignLeft);
    column->addWidget(hoveredTabs("type", type), 0, Qt::AlignLeft);
    return PageParts::card(QStringLiteral("Tab bar, mainview-tabbar"), QString(), column);
}

QProgressBar *progress(int value)
{
    auto *bar = new QProgressBar;
    bar->setProperty("flat", true);
    bar->setAlignment(Qt::AlignCenter);
    bar->setValue(value);
    bar->setFixedHeight(24);
    return bar;
}

QFrame *progressCard()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(PageParts::gap);
    for (const int value : { 0, 42, 100 })
        row->addWidget(progress(value));
    return PageParts::card(QStringLiteral("Flat progress bars"), QString(), row);
}

/// Paints its handle as if the mouse were on it.
class HoveredScrollBar : public QScrollBar
{
public:
    using QScrollBar::QScrollBar;

protected:
    void paintEvent(QPaintEvent *) override
    {
        QStylePainter painter(this);
        QStyleOptionSlider option;
        initStyleOption(&option);
        option.state |= QStyle::State_MouseOver;
        option.subControls = QStyle::SC_All;
        option.activeSubControls = QStyle::SC_ScrollBarSlider;
        painter.drawComplexControl(QStyle::CC_ScrollBar, option);
    }
};

QWidget *scrolledContent()
{
    auto *content = new QWidget;
    content->setProperty("widget-color", QStringLiteral("white"));
    auto *layout = new QVBoxLayout(content);
    for (int nanometres = 405; nanometres < 700; nanometres += 24)
        layout->addWidget(
            PageParts::label(QStringLiteral("%1 nm, 40.0 mW, on").arg(nanometres), "text"));
    return content;
}

enum class Look { Normal, Hovered, Disabled };

void addScrollSpecimen(QHBoxLayout *row, const char *caption, const char *type, Look look)
{
    auto *area = new QScrollArea;
    if (look == Look::Hovered) {
        area->setHorizontalScrollBar(new HoveredScrollBar(Qt::Horizontal));
        area->setVerticalScrollBar(new HoveredScrollBar(Qt::Vertical));
        PageParts::freeze(area->horizontalScrollBar());
        PageParts::freeze(area->verticalScrollBar());
    }
    for (QScrollBar *bar : { area->horizontalScrollBar(), area->verticalScrollBar() })
        bar->setProperty("type", QString::fromLatin1(type));
    area->setFrameShape(QFrame::NoFrame);
    area->setCornerWidget(new QWidget); // else it is a plate of the base style
    area->setWidget(scrolledContent());
    area->setFixedHeight(170);
    area->setEnabled(look != Look::Disabled);

    auto *column = new QVBoxLayout;
    column->addWidget(PageParts::label(QLatin1String(caption), "text"));
    column->addWidget(area);
    column->addStretch(1);
    row->addLayout(column);
}

QFrame *scrollCard()
{
    const char *const red = "scrollbar-flat-rounded-red";
    const char *const grey = "scrollbar-flat-rounded-grey";
    auto *row = new QHBoxLayout;
    row->setSpacing(PageParts::gap);
    addScrollSpecimen(row, "red", red, Look::Normal);
    addScrollSpecimen(row, "red, hover", red, Look::Hovered);
    addScrollSpecimen(row, "grey", grey, Look::Normal);
    addScrollSpecimen(row, "grey, hover", grey, Look::Hovered);
    addScrollSpecimen(row, "disabled", red, Look::Disabled);
    return PageParts::card(QStringLiteral("Scroll bars, scrollbar-flat-rounded-red and -grey"),
                           QString(), row);
}

} // namespace

QWidget *buildControlsPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    grid->addWidget(buttonCard(), 0, 0, 4, 1);
    grid->addWidget(flatTabCard(), 0, 1);
    grid->addWidget(mainTabCard(), 1, 1);
    grid->addWidget(progressCard(), 2, 1);
    grid->addWidget(scrollCard(), 3, 1);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(3, 1);
    return page;
}
