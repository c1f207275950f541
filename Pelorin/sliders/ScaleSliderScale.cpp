#include "Pelorin/sliders/ScaleSlider.h"

#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/sliders/HandleTravel_p.h"
#include "Pelorin/sliders/NiceStep_p.h"
#include "Pelorin/theme/CachedLayer_p.h"
#include "Pelorin/theme/Palette_p.h"
#include "Pelorin/theme/Rounding_p.h"

#include <QFontMetrics>
#include <QPainter>

#include <algorithm>

namespace {

constexpr int tickTop = HandleTravel::handleSize;
constexpr int tickBottom = tickTop + 3;
constexpr int labelTop = 40;
/// More than a double can tell apart.
constexpr int maxDecimals = 400;

} // namespace

void ScaleSlider::calculateLabelValues()
{
    updateScale();
    if (hasDecades()) {
        const double first = std::ceil(m_minValue);
        const double last = std::floor(m_maxValue);
        const double intervals =
            last - first + (first != m_minValue ? 1.0 : 0.0) + (last != m_maxValue ? 1.0 : 0.0);
        m_labelIntervals = qIsFinite(intervals) ? intervals : 0.0;
        return;
    }
    if (!hasSteps()) {
        calculateRoundLabels();
        return;
    }
    if (m_stepList.size() < 2)
        return;
    m_labelIntervals = m_stepList.size() - 1;
    m_labelStart = m_stepList.first();
    m_labelEnd = m_stepList.last();
}

/// Labels at round numbers, one for about a hundred pixels between the end labels. The scale is
/// clipped to the range.
void ScaleSlider::calculateRoundLabels()
{
    m_labelWidth = std::max({ calculateLabelWidth(realValue(m_minValue)),
                              calculateLabelWidth(realValue(m_maxValue)), 35.0 });
    const double parts = std::max((width() - 2.0 * m_labelWidth) / 100.0, 1.0);
    const NiceScale scale = niceScale(m_minValue, m_maxValue, parts);
    if (!scale.isValid()) {
        m_labelIntervals = 0.0;
        m_labelStart = m_minValue;
        m_labelEnd = m_maxValue;
        return;
    }
    m_labelIntervals = std::min(scale.intervals, double(m_maxLabelIntervals));
    m_labelStart = std::max(scale.start, m_minValue);
    m_labelEnd = std::min(scale.end, m_maxValue);
}

double ScaleSlider::calculateLabelWidth(double value) const
{
    const QString text = QString::number(value, 'f', std::min(m_precision, maxDecimals));
    return fontMetrics().horizontalAdvance(text) + 10;
}

void ScaleSlider::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_stillLayer->draw(painter, QPoint(0, 0), size(), [this](QPainter &layer) {
        drawScale(layer);
        travel().drawTrack(layer);
    });
    const QRgb color = HandleTravel::color(isEnabled(), m_hovered || m_grabbed);
    HandleTravel::drawHandle(painter, m_handleRect, color);
}

void ScaleSlider::drawScale(QPainter &painter) const
{
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setFont(QFont(QStringLiteral("Calibri"), 10, -1, false));
    painter.setPen(QColor::fromRgba(Palette::text));
    const QVector<Label> all = hasDecades() ? decadeLabels() : labels();
    for (const Label &label : all) {
        painter.drawLine(label.x, tickTop, label.x, tickBottom);
        const int textWidth = label.text.length() * m_charWidth;
        painter.drawText(QRect(label.x - textWidth / 2, labelTop, textWidth, m_fontHeight),
                         Qt::AlignHCenter, label.text);
    }
}

/// At equal distances from end to end.
QVector<ScaleSlider::Label> ScaleSlider::labels() const
{
    QVector<Label> result;
    const double start = m_sideMargins + HandleTravel::handleMiddle;
    const double span = width() - 1.0 - 35.0 - 2.0 * m_sideMargins;
    const int last = saturatedRound(std::floor(std::min(m_labelIntervals, 1.0e5)));
    for (int i = 0; i <= last && m_labelIntervals > 0.0; ++i) {
        if (!isLabelled(i))
            continue;
        const double value = m_labelStart + (m_labelEnd - m_labelStart) * i / m_labelIntervals;
        const double x = std::trunc(start + span * i / m_labelIntervals);
        result.append({ saturatedRound(x), labelText(i, value) });
    }
    return result;
}

/// The ends, and the powers of ten between them.
QVector<ScaleSlider::Label> ScaleSlider::decadeLabels() const
{
    QVector<Label> result;
    const int start = m_sideMargins + HandleTravel::handleMiddle;
    const int end = width() - 1 - 18 - m_sideMargins;
    const double lastPart = (m_maxValue - std::floor(m_maxValue)) / (m_maxValue - m_minValue);
    const double whole = end - start + 1.0;
    const double span = std::trunc(whole - lastPart * whole);
    const int last = saturatedRound(std::min(m_labelIntervals, 1.0e3));
    double power = std::pow(10.0, std::ceil(m_minValue));
    if (std::ceil(m_minValue) == m_minValue)
        power *= 10.0;
    for (int i = 0; i <= last; ++i) {
        Label label{ start, QString() };
        double value = std::pow(10.0, m_minValue);
        if (i == last && i > 0) {
            label.x = end;
            value = std::pow(10.0, m_maxValue);
        } else if (i > 0) {
            label.x = saturatedRound(std::trunc(start + span / (m_labelIntervals - 1.0) * i));
            value = power;
            power *= 10.0;
        }
        label.text = QString::number(value, 'f', 0);
        result.append(label);
    }
    return result;
}

bool ScaleSlider::isLabelled(int index) const
{
    if (!hasSteps() || index == 0 || index + 1 > m_labelIntervals)
        return true;
    const double limit = std::abs(double(m_maxStepTicks));
    if (m_scaleType == StepScaleInterpolated)
        return limit >= m_labelIntervals;
    const int count = m_stepList.size();
    if (limit >= count)
        return true;
    return m_maxStepTicks > 0 && index % int(std::ceil(double(count) / m_maxStepTicks)) == 0;
}

QString ScaleSlider::labelText(int index, double value) const
{
    switch (m_scaleType) {
    case LogarithmicScale:
        return toSignificantDigits(std::pow(10.0, value), 2);
    case StepScale:
        return QString::number(saturatedRound(m_stepList.value(index, value)));
    case StepScaleInterpolated:
        return toSignificantDigits(value, 2);
    case LinearScale:
        break;
    }
    return QString::number(value, 'f', std::min(m_precision, maxDecimals));
}
