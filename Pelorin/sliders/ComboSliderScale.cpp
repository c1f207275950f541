#include "Pelorin/sliders/ComboSliderScale.h"

#include "Pelorin/sliders/ComboSliderUnit.h"

ComboSliderScale::ComboSliderScale(const QString &title, QObject *parent)
    : QObject(parent)
    , m_title(title)
{}

void ComboSliderScale::addUnit(ComboSliderUnit *unit)
{
    if (!unit)
        return;
    unit->setParent(parent());
    m_units.append(unit);
}

void ComboSliderScale::removeLastUnit()
{
    if (!m_units.isEmpty())
        m_units.removeLast();
}

ComboSliderUnit *ComboSliderScale::unit(int index) const
{
    return m_units.value(index);
}

QStringList ComboSliderScale::unitTexts() const
{
    QStringList texts;
    for (const ComboSliderUnit *unit : m_units)
        texts << (unit ? unit->text() : QString());
    return texts;
}

void ComboSliderScale::setUnitRange(int unitIndex, double min, double max)
{
    if (ComboSliderUnit *const changed = unit(unitIndex))
        changed->setRange(min, max);
}
