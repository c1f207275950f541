#include "Pelorin/shell/MainView.h"

#include "Pelorin/containers/ScrollArea.h"
#include "Pelorin/containers/stackWidget.h"
#include "Pelorin/controls/Selector.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QPointer>
#include <QPushButton>
#include <QTabBar>
#include <QVBoxLayout>
#include <QVariant>

#include <memory>

namespace {

/// From the text of a column to its left and right edge.
constexpr int sideMargin = 25;
/// Of the pictures on the warning button.
constexpr int warningSize = 22;

/// Whether \a part is \a whole or stands in it, be it in a window of its own.
bool isPartOf(const QWidget *part, const QWidget *whole)
{
    while (part && part != whole)
        part = part->parentWidget();
    return part != nullptr;
}

QLabel *makeLabel(const QString &text, QLatin1String type)
{
    auto *label = new QLabel(text);
    label->setProperty(StyleProperty::type, type);
    return label;
}

QPushButton *makeButton(QLatin1String style)
{
    auto *button = new QPushButton;
    button->setProperty(StyleProperty::style, style);
    return button;
}

QLabel *makeLogo()
{
    auto *logo = new QLabel;
    logo->setAlignment(Qt::AlignVCenter);
    logo->setPixmap(QPixmap(QStringLiteral(":/Pelorin/images/images/tavrinLogo.png")));
    return logo;
}

/// Takes the layout off \a frame, and gives back the panel that stood in it, or null.
QWidget *takePanel(const QWidget &frame)
{
    QLayout *layout = frame.layout();
    if (!layout)
        return nullptr;
    const std::unique_ptr<QLayoutItem> item(layout->takeAt(0));
    delete layout;
    return item ? item->widget() : nullptr;
}

} // namespace

MainView::MainView(QWidget *parent)
    : QWidget(parent)
    , m_remoteControlFrame(new QWidget)
    , m_tabBar(new QTabBar)
    , m_stack(new stackWidget)
    , m_settingsHeader(makeSettingsHeader())
    , m_headerLabel(makeLabel(QString(), StyleType::header))
    , m_tinyHeaderLabel(makeLabel(QString(), StyleType::tinyHeader))
    , m_settingsSelector(new Selector(QStringLiteral("Settings")))
    , m_warningButton(makeButton(ButtonStyle::warning))
{
    auto *columns = new QHBoxLayout(this);
    columns->setContentsMargins(0, 0, 0, 0);
    columns->setSpacing(0);
    columns->addWidget(makeWhiteColumn(), 3);
    columns->addWidget(makeRedColumn(), 1);

    // The page has changed when the application hears of it.
    connect(m_settingsSelector, &Selector::itemSelected, this, &MainView::setControlPage);
    connect(m_settingsSelector, &Selector::itemSelected, this, &MainView::controlPageChanged);
    connect(m_warningButton, &QPushButton::clicked, this, &MainView::warningClicked);
}

int MainView::addControlPage(const QString &name, QWidget *page)
{
    // A name without a page would give all names after it the page of their neighbour.
    if (!page || isPartOf(m_stack, page))
        return -1;
    m_settingsSelector->addItem(name);
    return m_stack->addWidget(page);
}

void MainView::setRemoteControlWidget(QWidget *widget)
{
    const QLayout *present = m_remoteControlFrame->layout();
    if (!widget || isPartOf(m_remoteControlFrame, widget)
        || (present && present->indexOf(widget) >= 0))
        return;
    if (isPartOf(widget, m_remoteControlFrame))
        widget->setParent(m_remoteControlFrame); // a piece of the old panel outlives it

    // Whoever hears of the end of the old panel may delete the new one, or put up something else.
    const QPointer<QWidget> panel(widget);
    delete takePanel(*m_remoteControlFrame);
    if (!panel)
        return;
    QWidget *other = takePanel(*m_remoteControlFrame);
    if (other && other != widget)
        other->deleteLater();

    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(sideMargin, 0, sideMargin, sideMargin);
    layout->addWidget(widget);
    m_remoteControlFrame->setLayout(layout);
    // By itself the layout lets go of it only at the end of the end, when it may be replaced already.
    connect(widget, &QObject::destroyed, layout,
            [layout, widget] { layout->removeWidget(widget); });
}

void MainView::showSettings(bool show)
{
    m_settingsSelector->setVisible(show);
}

void MainView::setSettingsPageAccess(int index, bool visible)
{
    m_settingsSelector->setItemVisibility(index, visible);
}

bool MainView::getSettingsPageAccess(int index) const
{
    return m_settingsSelector->hasItemVisibility(index);
}

QString MainView::currentWidgetInfo() const
{
    const QWidget *front = m_stack->currentWidget();
    return QStringLiteral("Stack height: %1, Front height: %2")
        .arg(m_stack->height())
        .arg(front ? front->height() : 0);
}

void MainView::setTinyHeader(QString text)
{
    m_tinyHeaderLabel->setText(text);
}

void MainView::setHeader(QString text)
{
    m_headerLabel->setVisible(!text.isEmpty());
    m_headerLabel->setText(text);
}

void MainView::setControlPage(int index)
{
    if (index != 0 && !m_settingsSelector->hasItemVisibility(index))
        return;
    const bool isSettingsPage = index > 0;
    m_settingsHeader->setVisible(isSettingsPage);
    m_tabBar->setVisible(!isSettingsPage && m_tabBar->count() > 0);
    m_stack->setCurrentIndex(index);
}

void MainView::closeSettings()
{
    const QPointer<MainView> self(this); // a page may do anything when it is shown
    setControlPage(0);
    if (self)
        Q_EMIT controlPageChanged(0);
}

void MainView::showWarning(bool show)
{
    m_warningButton->setVisible(show);
}

void MainView::setWarningTooltip(QString text)
{
    m_warningButton->setToolTip(text);
}

QHBoxLayout *MainView::makeHeaderRow()
{
    m_tinyHeaderLabel->setAlignment(Qt::AlignLeft | Qt::AlignVCenter);
    m_headerLabel->setAlignment(Qt::AlignCenter);
    m_headerLabel->setVisible(false);

    auto *row = new QHBoxLayout;
    row->setContentsMargins(sideMargin, 10, sideMargin, 0);
    row->addWidget(makeLogo(), 0, Qt::AlignVCenter);
    row->addStretch();
    row->addWidget(m_tinyHeaderLabel, 0, Qt::AlignVCenter);
    row->addWidget(m_headerLabel, 0, Qt::AlignVCenter);
    return row;
}

QWidget *MainView::makeSettingsHeader()
{
    QPushButton *closeButton = makeButton(ButtonStyle::close);
    connect(closeButton, &QPushButton::clicked, this, &MainView::closeSettings);

    auto *header = new QWidget;
    auto *row = new QHBoxLayout(header);
    row->setContentsMargins(sideMargin, 0, sideMargin, 0);
    row->addWidget(makeLabel(tr("Settings"), StyleType::title));
    row->addStretch();
    row->addWidget(closeButton, 0, Qt::AlignTop);
    return header;
}

/// A short page stays at the top.
ScrollArea *MainView::makePageArea()
{
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_stack);
    layout->addStretch(1);
    auto *area = new ScrollArea(true);
    area->setLayout(layout);
    return area;
}

QWidget *MainView::makeWhiteColumn()
{
    m_tabBar->setProperty(StyleProperty::type, StyleType::mainViewTabBar);
    m_tabBar->setExpanding(false);
    m_tabBar->setVisible(false);

    auto *column = new QWidget;
    column->setProperty(StyleProperty::widgetColor, WidgetColor::whiteLogo);
    auto *layout = new QVBoxLayout(column);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(makeHeaderRow());
    layout->addWidget(m_settingsHeader);
    layout->addWidget(m_tabBar);
    layout->addWidget(makePageArea());
    return column;
}

ScrollArea *MainView::makeRedColumn()
{
    m_settingsSelector->setProperty(StyleProperty::type, StyleType::settings);
    m_warningButton->setContentsMargins(0, 0, 0, 0);
    m_warningButton->setMinimumSize(warningSize, warningSize);
    m_warningButton->setVisible(false);

    auto *topRow = new QHBoxLayout;
    topRow->setContentsMargins(sideMargin, sideMargin, sideMargin, 0);
    topRow->addWidget(m_warningButton);
    topRow->addStretch();
    topRow->addWidget(m_settingsSelector);
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addLayout(topRow);
    layout->addWidget(new QWidget); // room for more above the panel
    layout->addWidget(m_remoteControlFrame);
    auto *column = new ScrollArea(true);
    column->setWidgetProperty(StyleProperty::widgetColor, WidgetColor::red);
    column->setLayout(layout);
    return column;
}
