#include "Pelorin/shell/GUIOverlay.h"

#include <QPainter>
#include <QResizeEvent>

GUIOverlay::GUIOverlay(QWidget *parent)
    : QWidget(parent)
    , m_disabledMsg(tr("Unavailable"))
{
    setAttribute(Qt::WA_TranslucentBackground);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    watchParent();
}

void GUIOverlay::setDisabledMessage(QString message)
{
    m_disabledMsg = message;
    update();
}

void GUIOverlay::setOverlayMessage(QString message)
{
    m_overlayMsg = message;
    update();
}

bool GUIOverlay::eventFilter(QObject *watched, QEvent *event)
{
    if (watched == parent()) {
        if (event->type() == QEvent::Resize)
            resize(static_cast<QResizeEvent *>(event)->size());
        else if (event->type() == QEvent::ChildAdded)
            raise();
    }
    return QWidget::eventFilter(watched, event);
}

bool GUIOverlay::event(QEvent *event)
{
    if (event->type() == QEvent::ParentAboutToChange && parent())
        parent()->removeEventFilter(this);
    else if (event->type() == QEvent::ParentChange)
        watchParent();
    return QWidget::event(event);
}

void GUIOverlay::watchParent()
{
    if (!parent())
        return;
    parent()->installEventFilter(this);
    raise();
}

void GUIOverlay::paintEvent(QPaintEvent *)
{
    if (!parentWidget())
        return;
    if (parentWidget()->isEnabled() && m_overlayMsg.isEmpty())
        return;
    QPainter painter(this);
    painter.fillRect(rect(), QColor(100, 100, 100, 128));
    drawMessage(painter, m_overlayMsg.isEmpty() ? m_disabledMsg : m_overlayMsg);
}

/// The message on a pale box around it, in the middle of the overlay.
void GUIOverlay::drawMessage(QPainter &painter, const QString &message) const
{
    constexpr int room = 40; // both sides together
    constexpr qreal radius = 25.0;
    painter.setPen(QColor(0x55, 0x55, 0x55));
    painter.setBrush(QColor(255, 255, 255, 100));
    painter.setFont(QFont(QStringLiteral("Calibri"), 48));
    const QSize size = painter.fontMetrics().boundingRect(message).size() + QSize(room, room);
    const QPoint center((width() - 1) / 2, (height() - 1) / 2);
    const QRect box(center - QPoint(size.width() / 2, size.height() / 2), size);
    painter.drawRoundedRect(box, radius, radius, Qt::AbsoluteSize);
    painter.drawText(box, Qt::AlignCenter, message);
}
