#ifndef PELORIN_SPECTRAL_FLUOROPHORETAGNAME_H
#define PELORIN_SPECTRAL_FLUOROPHORETAGNAME_H

#include "Pelorin/PelorinGlobal.h"

#include <QGraphicsSimpleTextItem>
#include <QString>

/// The small tag with the name of a dye that stands over its curve on a WavelengthChart. The
/// description is its tool tip.
///
/// The text that it inherits stays empty: the name is drawn centred on a ground of its own.
class PELORIN_EXPORT FluorophoreTagName : public QGraphicsSimpleTextItem
{
public:
    FluorophoreTagName(const QString &name, const QString &description,
                       QGraphicsItem *parent = nullptr);

    QString name() const { return m_name; }
    QString description() const { return m_description; }
    void setNameDesc(const QString &name, const QString &description);

    /// As large as the name with a little room round it.
    QRectF boundingRect() const override;
    /// All of it, so that the mouse finds the tool tip.
    QPainterPath shape() const override;
    bool contains(const QPointF &point) const override;
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *option, QWidget *widget) override;

private:
    QString m_name;
    QString m_description;
};

#endif
