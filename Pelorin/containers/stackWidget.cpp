#include "Pelorin/containers/stackWidget.h"

#include "Pelorin/containers/Position_p.h"

#include <QVBoxLayout>

stackWidget::stackWidget(QWidget *parent)
    : QWidget(parent)
{
    setLayout(new QVBoxLayout);
}

QWidget *stackWidget::currentWidget() const
{
    return widgetAt(m_currentPageIndex);
}

QWidget *stackWidget::widgetAt(int index) const
{
    return m_pages.value(index);
}

int stackWidget::indexOf(QWidget *widget) const
{
    return positionOf(widget, m_pages);
}

int stackWidget::addWidget(QWidget *widget)
{
    return insertWidget(m_pages.size(), widget);
}

/// In the layout a page always goes to the end; only one of them is shown.
int stackWidget::insertWidget(int index, QWidget *widget)
{
    if (!widget)
        return -1;
    layout()->addWidget(widget);
    m_pages.insert(qBound(0, index, m_pages.size()), widget);
    return indexOf(widget);
}

void stackWidget::removeWidget(QWidget *widget)
{
    const int index = indexOf(widget);
    if (index >= 0)
        takeOut(index);
}

void stackWidget::removeWidgetAt(int index)
{
    if (index >= 0 && index < m_pages.size() && m_currentPageIndex >= 0)
        takeOut(index);
}

void stackWidget::takeOut(int index)
{
    const QPointer<QWidget> page = m_pages.takeAt(index);
    if (page)
        layout()->removeWidget(page);
    Q_EMIT widgetRemoved(index);
}

void stackWidget::setCurrentIndex(int index)
{
    if (index < 0 || index >= m_pages.size() || index == m_currentPageIndex)
        return;
    // A page may do anything when it is shown or hidden. If it selects, its choice is the later one.
    const QPointer<stackWidget> self(this);
    const int before = m_currentPageIndex;
    for (int i = 0; i < m_pages.size(); ++i) {
        if (m_pages.at(i))
            m_pages.at(i)->setVisible(i == index);
        if (!self || m_currentPageIndex != before)
            return;
    }
    m_currentPageIndex = index;
    Q_EMIT currentChanged(index);
}

void stackWidget::setCurrentWidget(QWidget *widget)
{
    setCurrentIndex(indexOf(widget));
}
