#include "gallery/GalleryWindow.h"

#include "gallery/Appearance.h"
#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <Pelorin/CenterTabWidget>
#include <Pelorin/DockWidget>

#include <QFrame>
#include <QLabel>
#include <QListWidget>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

const QSize preferredSize(1440, 900);

/// The window itself builds the welcome page, so the picture has to be there before it.
QWidget *withResources(QWidget *parent)
{
    Appearance::loadResources();
    return parent;
}

} // namespace

GalleryWindow::GalleryWindow(QWidget *parent)
    : TavrinMainWindow(withResources(parent))
    , m_tabs(centerTabWidget()->findChild<QTabWidget *>())
{
    setWindowTitle(QStringLiteral("Pelorin: widgets"));
    setStyleSheet(Appearance::windowSheet());
    resize(preferredSize);

    createGenericDockWidget(makeSidebar(), QStringLiteral("Topics"), Qt::LeftDockWidgetArea, true);
    m_tabs->setDocumentMode(true);
    connect(m_topics, &QListWidget::currentRowChanged, this, &GalleryWindow::showRow);
    connect(m_tabs, &QTabWidget::currentChanged, this, &GalleryWindow::followTab);
}

GalleryWindow::~GalleryWindow()
{
    Appearance::withdraw(this);
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
    QVBoxLayout *layout = nullptr;
    QFrame *sidebar = Appearance::sidebar(layout);
    m_topics = new QListWidget;
    m_topics->setObjectName(QStringLiteral("topics"));
    m_topics->verticalScrollBar()->setProperty("type",
                                               QStringLiteral("scrollbar-flat-rounded-grey"));
    for (const Page &page : pages())
        m_topics->addItem(page.title);
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
    Appearance::announce(this);
    QWidget *page = makePage(pages().at(row));
    m_built.insert(row, page);
    createSystemWidget(page, pages().at(row).title, false, true);
}

/// The topic of the tab in front is the chosen one; the welcome page has none.
void GalleryWindow::followTab(int index)
{
    m_topics->setCurrentRow(m_built.key(m_tabs->widget(index), -1));
}
