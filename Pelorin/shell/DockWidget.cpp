#include "Pelorin/shell/DockWidget.h"

#include <QResizeEvent>

DockWidget::DockWidget(const QString &title, Qt::DockWidgetArea area, bool visible, QWidget *parent,
                       Qt::WindowFlags flags)
    : DockWidget(area, visible, parent, flags)
{
    setWindowTitle(title);
}

DockWidget::DockWidget(Qt::DockWidgetArea area, bool visible, QWidget *parent,
                       Qt::WindowFlags flags)
    : QDockWidget(parent, flags)
    , m_currentArea(area)
    , m_defaultArea(area)
    , m_defaultVisible(visible)
{
    connect(this, &QDockWidget::dockLocationChanged, this, &DockWidget::onDockLocationChanged);
}

/// No default size is laid down anywhere: the first one that the layout gives is it.
void DockWidget::resizeEvent(QResizeEvent *event)
{
    if (!m_defSizeKnown) {
        m_defSizeKnown = true;
        m_defSize = event->size();
    }
    QDockWidget::resizeEvent(event);
}

void DockWidget::onDockLocationChanged(Qt::DockWidgetArea area)
{
    m_currentArea = area;
}
