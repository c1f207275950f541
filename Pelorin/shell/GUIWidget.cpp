#include "Pelorin/shell/GUIWidget.h"

#include "Pelorin/shell/GUIOverlay.h"

GUIWidget::GUIWidget(QWidget *parent)
    : QWidget(parent)
    , m_overlay(new GUIOverlay(this))
{}

void GUIWidget::setDisabledMessage(QString message)
{
    m_overlay->setDisabledMessage(message);
}

void GUIWidget::setOverlayMessage(QString message)
{
    m_overlay->setOverlayMessage(message);
}

void GUIWidget::showEvent(QShowEvent *event)
{
    QWidget::showEvent(event);
    Q_EMIT visibilityStateChanged(true);
}

void GUIWidget::hideEvent(QHideEvent *event)
{
    QWidget::hideEvent(event);
    Q_EMIT visibilityStateChanged(false);
}
