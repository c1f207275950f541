#include "Pelorin/containers/stackWidget.h"

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
    return widget ? m_pages.indexOf(widget) : -1;
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
    const QPointer<stackWidget> self(this); // a page may do anything when it is shown
    const QList<QPointer<QWidget>> pages = m_pages;
    for (int i = 0; i < pages.size(); ++i) {
        if (pages.at(i))
            pages.at(i)->setVisible(i == index);
    }
    if (!self)
        return;
    m_currentPageIndex = index;
    Q_EMIT currentChanged(index);
}

void stackWidget::setCurrentWidget(QWidget *widget)
{
    setCurrentIndex(indexOf(widget));
}
