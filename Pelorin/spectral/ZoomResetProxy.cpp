#include "Pelorin/spectral/ZoomResetProxy.h"

#include <QGraphicsSceneHoverEvent>

ZoomResetProxy::ZoomResetProxy(QGraphicsItem *parent)
    : QGraphicsProxyWidget(parent)
{}

void ZoomResetProxy::showEvent(QShowEvent *event)
{
    QGraphicsProxyWidget::showEvent(event);
    QGraphicsSceneHoverEvent leave(QEvent::GraphicsSceneHoverLeave);
    hoverLeaveEvent(&leave);
}
