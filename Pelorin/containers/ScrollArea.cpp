#include "Pelorin/containers/ScrollArea.h"

#include "Pelorin/theme/StyleProperty_p.h"

#include <QEvent>
#include <QScrollBar>
#include <QVariant>

ScrollArea::ScrollArea(bool noHorizontalScroll, QWidget *parent)
    : QScrollArea(parent)
    , m_noHorizontalScroll(noHorizontalScroll)
    , m_innerWidget(new QWidget)
{
    m_innerWidget->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    m_innerWidget->setProperty(StyleProperty::widgetColor, WidgetColor::white);
    setProperty(StyleProperty::flat, true);
    setWidget(m_innerWidget);
    if (noHorizontalScroll)
        setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAsNeeded);
    setWidgetResizable(true);
    setSizeAdjustPolicy(QAbstractScrollArea::AdjustToContents);
}

void ScrollArea::setLayout(QLayout *layout)
{
    if (m_innerWidget && layout)
        m_innerWidget->setLayout(layout);
}

bool ScrollArea::setWidgetProperty(const char *name, const QVariant &value)
{
    return m_innerWidget && m_innerWidget->setProperty(name, value);
}

/// A page is never cut off at the side.
bool ScrollArea::eventFilter(QObject *watched, QEvent *event)
{
    if (m_noHorizontalScroll && watched == m_innerWidget && event->type() == QEvent::Resize)
        setMinimumWidth(m_innerWidget->minimumSizeHint().width() + verticalScrollBar()->width());
    return QScrollArea::eventFilter(watched, event);
}
