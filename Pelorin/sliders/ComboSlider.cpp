#include "Pelorin/sliders/ComboSlider.h"

#include "Pelorin/controls/ComboBox.h"
#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/sliders/ComboSliderScale.h"
#include "Pelorin/sliders/ComboSliderUnit.h"
#include "Pelorin/sliders/DigitStep_p.h"
#include "Pelorin/sliders/ScaleSlider.h"
#include "Pelorin/theme/PanelGround_p.h"
#include "Pelorin/theme/PartsEnd_p.h"
#include "Pelorin/theme/StyleProperty_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

#include <QHBoxLayout>
#include <QPainter>
#include <QVBoxLayout>

#include <algorithm>
#include <cmath>

namespace {

/// Number and unit together.
constexpr int numberAndUnitWidth = 150;

} // namespace

ComboSlider::ComboSlider(int sideMargin, QWidget *parent)
    : QWidget(parent)
    , m_scaleCombo(new ComboBox(this))
    , m_lineInput(new LineEditNumber(this))
    , m_unitCombo(new ComboBox(this))
    , m_slider(new ScaleSlider(this))
    , m_nudgeHold(this, QStringLiteral("nudgeTimer"))
{
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    configureFields(sideMargin);
    connectFields();
    layOut(sideMargin);
    setDarkBackground(true);
}

ComboSlider::~ComboSlider()
{
    stopListeningToParts(this);
}

void ComboSlider::configureFields(int sideMargin)
{
    m_scaleCombo->setProperty(StyleProperty::type, StyleType::label);
    m_scaleCombo->setSingleMode(true);
    m_lineInput->setProperty(StyleProperty::flat, true);
    m_lineInput->setProperty(StyleProperty::type, StyleType::label);
    m_lineInput->setMaximumWidth(120);
    m_lineInput->enableTimeout(true);
    m_unitCombo->setProperty(StyleProperty::type, StyleType::label);
    m_unitCombo->setSingleMode(true);
    m_slider->setAll(0.0, 100.0, 50.0);
    m_slider->setSideMargins(sideMargin);
}

/// Where one signal has several receivers, they hear of it in this order.
void ComboSlider::connectFields()
{
    connect(m_lineInput, &QLineEdit::returnPressed, this, &ComboSlider::acceptInputValue);
    connect(m_lineInput, &LineEditNumber::arrowPressed, this, &ComboSlider::nudge);
    connect(m_slider, &ScaleSlider::handleMoved, this, &ComboSlider::valueChanging);
    connect(m_scaleCombo, &ComboBox::currentIndexChanged, this, &ComboSlider::updateUnitCombo);
    connect(m_scaleCombo, &ComboBox::currentIndexChanged, this, &ComboSlider::scaleIndexChanged);
    connect(m_slider, &ScaleSlider::handleMoved, this, &ComboSlider::setInputValue);
    connect(m_unitCombo, &ComboBox::currentIndexChanged, this, &ComboSlider::updateSlider);
    connect(m_unitCombo, &ComboBox::currentIndexChanged, this, &ComboSlider::emitSelectionIndexes);
    connect(m_unitCombo, &ComboBox::currentIndexChanged, this, &ComboSlider::unitIndexChanged);
    connect(m_slider, &ScaleSlider::handleFinishedMoving, this, &ComboSlider::acceptInputValue);
    connect(m_slider, &ScaleSlider::wheelMoved, this, &ComboSlider::nudge);
    connect(m_nudgeHold.feedbackTimer(), &QTimer::timeout, this, &ComboSlider::updateFeedbackValue);
    connect(m_lineInput, &LineEdit::textEditing, this, &ComboSlider::enterEditMode);
    connect(m_slider, &ScaleSlider::handleGrapped, this, &ComboSlider::enterEditMode);
    connect(m_lineInput, &LineEditNumber::numberSaved, this, &ComboSlider::exitEditMode);
    connect(m_slider, &ScaleSlider::handleFinishedMoving, this, &ComboSlider::exitEditMode);
    connect(m_lineInput, &LineEdit::textReset, this, &ComboSlider::cancelEditMode);
}

void ComboSlider::layOut(int sideMargin)
{
    auto *row = new QHBoxLayout;
    row->setContentsMargins(sideMargin, 0, sideMargin, 0);
    row->setSpacing(4);
    row->addWidget(m_scaleCombo);
    row->addStretch(25);
    row->addWidget(m_lineInput);
    row->addWidget(m_unitCombo);

    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 4, 0, 4);
    layout->setSpacing(4);
    layout->addStretch(0);
    layout->addLayout(row);
    layout->addStretch(0);
    layout->addWidget(m_slider);
    layout->addStretch(0);
}

void ComboSlider::addScale(ComboSliderScale *scale)
{
    if (!scale)
        return;
    scale->setParent(this);
    m_scales.append(scale);
    const bool first = m_scaleCombo->addItem(scale->title()) == 0;
    updateUnitCombo();
    if (first)
        updateUnitCombo();
}

int ComboSlider::scaleIndex() const
{
    return m_scaleCombo->currentIndex();
}

int ComboSlider::unitIndex() const
{
    return m_unitCombo->currentIndex();
}

double ComboSlider::value() const
{
    return m_slider->currentValue();
}

void ComboSlider::setPrecision(int) {}

void ComboSlider::setDarkBackground(bool dark)
{
    setPanelGround(*this, dark, { m_lineInput });
}

bool ComboSlider::isScaleVisible(int index) const
{
    return m_scaleCombo->hasItemVisibility(index);
}

void ComboSlider::setValue(double value)
{
    if (m_nudgeHold.holdsBack()) {
        m_feedbackValue = value;
        return;
    }
    m_slider->setCurrentValue(value);
    setInputValue(m_slider->currentValue());
}

void ComboSlider::setCurrentScaleIndex(int index)
{
    m_scaleCombo->setCurrentIndex(index);
    updateUnitCombo();
}

void ComboSlider::setCurrentUnitIndex(int index)
{
    m_unitCombo->setCurrentIndex(index);
    updateSlider();
}

void ComboSlider::setUnitVisibility(int index, bool visible)
{
    if (index < m_unitCombo->count())
        m_unitCombo->setItemVisibility(index, visible);
}

void ComboSlider::setScaleTitle(int scaleIndex, QString title)
{
    if (ComboSliderScale *const changed = scale(scaleIndex)) {
        changed->setTitle(title);
        m_scaleCombo->setItemText(scaleIndex, title);
    }
}

void ComboSlider::setScaleVisible(int scaleIndex, bool visible)
{
    if (scale(scaleIndex))
        m_scaleCombo->setItemVisibility(scaleIndex, visible);
}

void ComboSlider::setUnitRange(int scaleIndex, int unitIndex, double min, double max)
{
    ComboSliderScale *const changed = scale(scaleIndex);
    if (!changed)
        return;
    changed->setUnitRange(unitIndex, min, max);
    updateSlider();
}

void ComboSlider::setEnabled(bool enabled)
{
    QWidget::setEnabled(enabled);
    m_slider->setEnabled(enabled);
    m_lineInput->setEnabled(enabled);
}

void ComboSlider::updateSlider()
{
    const ComboSliderUnit *const unit = currentUnit();
    if (!unit)
        return;
    m_slider->setScaleType(unit->scaleType());
    m_slider->setRange(unit->minValue(), unit->maxValue());
    m_slider->setStepList(unit->stepList());
    m_slider->setPrecision(unit->precision());
    m_slider->setMaxLabelIntervals(uint(unit->maxLabelIntervals()));
    m_slider->setMaxStepTicks(unit->maxStepTicks());
    m_slider->setTraditionalLogarithmicScale(unit->traditionalLogarithmicScale());

    if (m_slider->currentValue() < unit->minValue())
        setValue(unit->minValue());
    else if (m_slider->currentValue() > unit->maxValue())
        setValue(unit->maxValue());
}

void ComboSlider::emitSelectionIndexes()
{
    Q_EMIT selectionChanged(scaleIndex(), unitIndex());
}

void ComboSlider::updateUnitCombo()
{
    const ComboSliderScale *const current = scale(scaleIndex());
    if (!current)
        return;
    m_unitCombo->clear();
    m_unitCombo->addItems(current->unitTexts());
    m_lineInput->setFixedWidth(std::max(0, numberAndUnitWidth - m_unitCombo->sizeHint().width()));
    updateSlider();
    emitSelectionIndexes();
}

void ComboSlider::updateScaleCombo()
{
    const int index = scaleIndex();
    m_scaleCombo->clear();
    for (const ComboSliderScale *each : qAsConst(m_scales))
        m_scaleCombo->addItem(each ? each->title() : QString());
    m_scaleCombo->setCurrentIndex(index);
    updateUnitCombo();
}

void ComboSlider::acceptInputValue()
{
    m_editMode = false;
    double value = m_slider->nearestStepValue(m_lineInput->number());
    const QPointer<ComboSlider> self(this);
    Q_EMIT valueEntered(value);
    const ComboSliderUnit *const unit = self ? currentUnit() : nullptr;
    if (!unit)
        return;
    value = std::min(std::max(value, unit->minValue()), unit->maxValue());
    showNumber(value, *unit);
    m_slider->setCurrentValue(value);
    Q_EMIT valueChanged(value);
}

void ComboSlider::setInputValue(double value)
{
    if (const ComboSliderUnit *const unit = currentUnit())
        showNumber(value, *unit);
}

void ComboSlider::enterEditMode()
{
    m_editMode = true;
    m_savedValue = m_slider->currentValue();
}

void ComboSlider::exitEditMode()
{
    m_editMode = false;
}

void ComboSlider::cancelEditMode()
{
    m_editMode = false;
    setValue(m_savedValue);
}

void ComboSlider::nudge(int direction)
{
    const ComboSliderUnit *const unit = currentUnit();
    if (!unit)
        return;
    double value = unit->stepList().isEmpty() ? nudgedByDigit(direction, *unit)
                                              : nudgedToStep(direction, *unit);
    if (unit->scaleType() == ScaleSlider::LogarithmicScale)
        value = std::pow(10.0, value);
    value = std::max(std::min(value, unit->maxValue()), unit->minValue());
    showNumber(value, *unit);
    m_slider->setCurrentValue(value);
    const QPointer<ComboSlider> self(this);
    Q_EMIT valueChanged(value);
    if (self)
        m_nudgeHold.begin();
}

void ComboSlider::updateFeedbackValue()
{
    setValue(m_feedbackValue);
}

void ComboSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
}

ComboSliderScale *ComboSlider::scale(int index) const
{
    return m_scales.value(index);
}

/// Null unless both selectors stand on an entry.
ComboSliderUnit *ComboSlider::currentUnit() const
{
    const ComboSliderScale *const current = scale(scaleIndex());
    return current ? current->unit(unitIndex()) : nullptr;
}

void ComboSlider::showNumber(double value, const ComboSliderUnit &unit)
{
    m_lineInput->setNumber(value, unit.precision(), unit.significantDigits());
}

double ComboSlider::nudgedByDigit(int direction, const ComboSliderUnit &unit) const
{
    const double step = unit.significantDigits() ? digitStep(m_lineInput->text(), unit.precision())
                                                 : std::pow(10.0, -unit.precision());
    return m_lineInput->number() + direction * step;
}

/// The next step in the numbers of the list.
double ComboSlider::nudgedToStep(int direction, const ComboSliderUnit &unit) const
{
    const bool logarithmic = unit.scaleType() == ScaleSlider::LogarithmicScale;
    const double value =
        logarithmic ? std::log10(m_slider->currentValue()) : m_slider->currentValue();
    const QList<double> steps = unit.stepList();
    const auto above = [=](double step) { return step > value; };
    const auto below = [=](double step) { return step < value; };
    if (direction > 0) {
        const auto found = std::find_if(steps.cbegin(), steps.cend(), above);
        return found != steps.cend() ? *found : value;
    }
    const auto found = std::find_if(steps.crbegin(), steps.crend(), below);
    return found != steps.crend() ? *found : value;
}
