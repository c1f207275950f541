#include "Pelorin/spectral/FluorophoreTagName.h"

#include <QFontMetrics>
#include <QPainter>
#include <QPainterPath>

FluorophoreTagName::FluorophoreTagName(const QString &name, const QString &description,
                                       QGraphicsItem *parent)
    : QGraphicsSimpleTextItem(parent)
    , m_name(name)
    , m_description(description)
{
    setToolTip(description);
}

void FluorophoreTagName::setNameDesc(const QString &name, const QString &description)
{
    prepareGeometryChange();
    m_name = name;
    m_description = description;
    setToolTip(description);
    update();
}

QRectF FluorophoreTagName::boundingRect() const
{
    const QFontMetrics metrics(font());
    return QRectF(0.0, 0.0, metrics.horizontalAdvance(m_name) + 8, metrics.height() + 4);
}

QPainterPath FluorophoreTagName::shape() const
{
    QPainterPath path;
    path.addRect(boundingRect());
    return path;
}

/// The text item would look for a text of its own.
bool FluorophoreTagName::contains(const QPointF &point) const
{
    return boundingRect().contains(point);
}

void FluorophoreTagName::paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *)
{
    const QRectF ground = boundingRect();
    painter->setPen(Qt::white);
    painter->setBrush(QColor(64, 64, 64, 180));
    painter->setFont(font());
    painter->drawRoundedRect(ground, 4.0, 4.0);
    painter->drawText(ground, Qt::AlignCenter, m_name);
}
