#ifndef PELORIN_SLIDERS_COMBOSLIDERSCALE_H
#define PELORIN_SLIDERS_COMBOSLIDERSCALE_H

#include "Pelorin/PelorinGlobal.h"

#include <QList>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>

class ComboSliderUnit;

/// One quantity that a ComboSlider can set, with the units in which it is set. Plain data.
class PELORIN_EXPORT ComboSliderScale : public QObject
{
    Q_OBJECT

public:
    /// A scale without units. \a title is its entry in the scale selector.
    explicit ComboSliderScale(const QString &title, QObject *parent = nullptr);

    QString title() const { return m_title; }
    void setTitle(const QString &title) { m_title = title; }

    /// Adds \a unit at the end. Its parent becomes the parent of this scale, which may be none: give
    /// the scale a parent first, or the unit stays the caller's to delete. Null is ignored.
    void addUnit(ComboSliderUnit *unit);

    /// Takes the last unit out without deleting it.
    void removeLastUnit();

    /// Null out of range, and for a unit that was deleted meanwhile.
    ComboSliderUnit *unit(int index) const;
    int unitCount() const { return m_units.size(); }
    QStringList unitTexts() const;

    /// Ignored out of range.
    void setUnitRange(int unitIndex, double min, double max);

private:
    QString m_title;
    QList<QPointer<ComboSliderUnit>> m_units;
};

#endif
