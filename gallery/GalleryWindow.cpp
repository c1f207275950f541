#include "gallery/GalleryWindow.h"

#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <Pelorin/CenterTabWidget>
#include <Pelorin/DockWidget>

#include <QApplication>
#include <QHBoxLayout>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QTabWidget>
#include <QVBoxLayout>

/// Resources of a static library have to be asked for, and from outside of any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(gallery);
}

namespace {

constexpr int sidebarWidth = 216;
const QSize preferredSize(1440, 900);
const char mainWindowProperty[] = "APPLICATIONWINDOWPTR";

/// The gallery's own parts, in the colours of the library's sheet, which is installed on the
/// application.
const QString windowSheet = QStringLiteral(R"(
DockWidget { font-family: "Calibri"; font-size: 14px; color: #444; }
DockWidget::title { background-color: #DDD; padding: 6px 16px; }
CenterTabWidget > QTabWidget > QTabBar::tab {
    font-family: "Calibri"; font-size: 15px; color: #666; background-color: #DDD;
    padding: 6px 16px; border: none; border-right: 1px solid #F6F6F6; border-top: 3px solid #DDD;
}
CenterTabWidget > QTabWidget > QTabBar::tab:hover { background-color: #ED6E00; color: #FFF; }
CenterTabWidget > QTabWidget > QTabBar::tab:selected {
    background-color: #F6F6F6; color: #444; border-top: 3px solid #87212E;
}
#sidebar { background-color: #87212E; }
#brand { font-family: "Tavrin"; font-size: 26px; color: #FFF; }
#sidebar QListWidget {
    background-color: transparent; border: none; outline: 0px;
    font-family: "Calibri"; font-size: 16px; color: #DDD;
}
#sidebar QListWidget::item { padding: 8px 16px; border: none; }
#sidebar QListWidget::item:hover { background-color: #ED6E00; color: #FFF; }
#sidebar QListWidget::item:selected { background-color: #FFF; color: #87212E; }
#ground, #page { background-color: #F6F6F6; }
#card { background-color: #FFF; border: 1px solid #DDD; border-radius: 6px; }
#signalLog { background-color: #F6F6F6; color: #444; font-family: "DejaVu Sans Mono", monospace;
    font-size: 12px; }
)");

/// The window itself builds the welcome page, so the picture has to be there before it.
QWidget *withResources(QWidget *parent)
{
    initResources();
    return parent;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : TavrinMainWindow(withResources(parent))
    , m_tabs(centerTabWidget()->findChild<QTabWidget *>())
{
    qApp->setProperty(mainWindowProperty,
                      QVariant::fromValue(static_cast<TavrinMainWindow *>(this)));
    setWindowTitle(QStringLiteral("Pelorin Gallery"));
    setStyleSheet(windowSheet);
    resize(preferredSize);

    createGenericDockWidget(makeSidebar(), QStringLiteral("Topics"), Qt::LeftDockWidgetArea, true);
    m_tabs->setDocumentMode(true);
    connect(m_topics, &QListWidget::currentRowChanged, this, &GalleryWindow::showRow);
    connect(m_tabs, &QTabWidget::currentChanged, this, &GalleryWindow::followTab);
}

GalleryWindow::~GalleryWindow()
{
    qApp->setProperty(mainWindowProperty, QVariant());
}

bool GalleryWindow::showPage(const QString &name)
{
    const Page *page = findPage(name);
    if (!page)
        return false;
    m_topics->setCurrentRow(int(page - pages().constData()));
    return true;
}

QWidget *GalleryWindow::makeSidebar()
{
    auto *sidebar = new QFrame;
    sidebar->setObjectName(QStringLiteral("sidebar"));
    sidebar->setMinimumWidth(sidebarWidth);

    auto *brand = new QLabel(QStringLiteral("Pelorin"));
    brand->setObjectName(QStringLiteral("brand"));
    m_topics = new QListWidget;
    m_topics->setObjectName(QStringLiteral("topics"));
    for (const Page &page : pages())
        m_topics->addItem(page.title);

    auto *layout = new QVBoxLayout(sidebar);
    layout->setContentsMargins(0, 24, 0, 16);
    layout->setSpacing(0);
    auto *brandLayout = new QHBoxLayout;
    brandLayout->setContentsMargins(16, 0, 16, 0);
    brandLayout->addWidget(brand);
    layout->addLayout(brandLayout);
    layout->addSpacing(24);
    layout->addWidget(m_topics, 1);
    return sidebar;
}

QWidget *GalleryWindow::makePage(const Page &page)
{
    auto *ground = new QWidget;
    ground->setObjectName(QStringLiteral("page"));
    auto *layout = new QVBoxLayout(ground);
    layout->setContentsMargins(24, 20, 24, 24);
    layout->setSpacing(0);
    layout->addWidget(PageParts::label(page.title, "heading"));
    QLabel *summary = PageParts::label(page.summary, "text");
    summary->setWordWrap(true);
    layout->addWidget(summary);
    layout->addSpacing(PageParts::gap);
    layout->addWidget(page.build(), 1);

    auto *scroll = new QScrollArea;
    scroll->setObjectName(QStringLiteral("ground"));
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setWidgetResizable(true);
    scroll->setWidget(ground);
    return scroll;
}

void GalleryWindow::showRow(int row)
{
    if (row < 0)
        return;
    if (QWidget *page = m_built.value(row)) {
        centerTabWidget()->selectCenterWidget(page);
        return;
    }
    QWidget *page = makePage(pages().at(row));
    m_built.insert(row, page);
    createSystemWidget(page, pages().at(row).title, false, true);
}

/// The topic of the tab in front is the chosen one; the welcome page has none.
void GalleryWindow::followTab(int index)
{
    m_topics->setCurrentRow(m_built.key(m_tabs->widget(index), -1));
}
