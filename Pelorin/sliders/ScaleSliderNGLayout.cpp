#include "Pelorin/sliders/ScaleSliderNG.h"

#include "Pelorin/sliders/ScaleAxis_p.h"
#include "Pelorin/sliders/ScaleMapping_p.h"

#include <QFontMetrics>
#include <QResizeEvent>
#include <QShowEvent>

#include <algorithm>

namespace {

constexpr int minimumLength = 150;
constexpr int preferredLength = 1024;
/// Beyond every screen, and far from overflow.
constexpr int maxLabelWidth = 16384;
/// More decimals than a double can tell apart.
constexpr int maxDecimals = 400;

QString numberText(double value, int decimals)
{
    return QString::number(value, 'f', std::min(decimals, maxDecimals));
}

} // namespace

void ScaleSliderNG::initSliderSize(bool small)
{
    m_sliderThickness = small ? 18 : 35;
    m_handleSize = small ? 18 : 35;
    m_cornerRadius = small ? 4 : 6;
    m_scaleWidth = small ? 2 : 5;
    m_minorTickBase = small ? 2 : 5;
    m_fontSize = small ? 6 : 10;
    setFont(QFont(QStringLiteral("Calibri"), m_fontSize, -1, false));
    updateAll();
}

void ScaleSliderNG::setSliderSize(bool small, bool labels, bool frame)
{
    initSliderSize(small);
    m_showLabels = labels;
    m_showFrame = frame;
    adjustSize();
}

void ScaleSliderNG::setOrientation(Qt::Orientation orientation)
{
    const QFontMetrics metrics(font());
    const qint64 width = qint64(metrics.horizontalAdvance(QLatin1Char('Q'))) * m_labelDigits;
    m_labelWidth = int(qBound<qint64>(0, width, maxLabelWidth));
    m_labelHeight = metrics.height();

    // A slider that is turned must be able to grow along its new direction.
    if (orientation != m_orientation) {
        const QSize free(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
        setMaximumSize(orientation == Qt::Horizontal ? QSize(free.width(), maximumHeight())
                                                     : QSize(maximumWidth(), free.height()));
    }
    m_orientation = orientation;
    const int bands = m_sliderThickness + m_scaleWidth + 2;
    if (orientation == Qt::Horizontal) {
        setFixedHeight(bands + m_labelHeight + 1);
        setMinimumWidth(minimumLength);
        setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
    } else {
        setFixedWidth(bands + m_labelWidth + 1);
        setMinimumHeight(minimumLength);
        setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Expanding);
    }
    adjustSize();
    update();
}

void ScaleSliderNG::setSideMargins(int pixels)
{
    m_sideMargins = qBound(-QWIDGETSIZE_MAX, pixels, QWIDGETSIZE_MAX);
    adjustSize();
}

void ScaleSliderNG::setLabelDigits(int digits)
{
    m_labelDigits = digits;
    buildLabelList();
    update();
}

void ScaleSliderNG::setLabelDecimalDigits(int decimals)
{
    m_labelDecimalDigits = decimals;
    buildLabelList();
    update();
}

void ScaleSliderNG::setLabelRoundingDigits(int decimals)
{
    m_labelRoundingDigits = decimals;
    buildLabelList();
    update();
}

void ScaleSliderNG::adjustSize()
{
    const int thickness = m_sliderThickness;
    const int ticks = m_scaleWidth;
    if (m_orientation == Qt::Horizontal) { // track on top, ticks and labels below it
        const int length = width() - 2 * m_sideMargins;
        m_trackRect = QRect(m_sideMargins, 0, length, thickness);
        m_scaleRect = QRect(m_sideMargins, thickness + 1, length, ticks);
        m_labelRect = QRect(0, thickness + ticks + 2, width(), m_labelHeight);
        m_trackLength = length - thickness;
    } else { // labels at the left, then ticks, the track at the right
        m_labelRect = QRect(0, 0, m_labelWidth, height());
        m_scaleRect = QRect(m_labelWidth + 1, 0, ticks, height());
        m_trackRect = QRect(m_labelWidth + ticks + 2, 0, thickness, height());
        m_trackLength = height() - thickness;
    }
    buildLabelList();
    updateAll();
}

QSize ScaleSliderNG::sizeHint() const
{
    return axis().size(preferredLength, axis().across(minimumSize()));
}

void ScaleSliderNG::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    adjustSize();
}

/// Only now the style sheet has had its word on the font.
void ScaleSliderNG::showEvent(QShowEvent *event)
{
    if (m_orientationPending) {
        m_orientationPending = false;
        setOrientation(m_orientation);
    }
    QWidget::showEvent(event);
}

ScaleAxis ScaleSliderNG::axis() const
{
    return ScaleAxis(m_orientation);
}

/// The way of a handle's near edge from the start of the track, in pixels.
int ScaleSliderNG::pixelOffset(int handle) const
{
    const int fromStart = axis().fromStart(handle, ScaleMapping::handleMax);
    return qRound(m_trackLength / double(ScaleMapping::handleMax) * fromStart);
}

void ScaleSliderNG::buildLabelList()
{
    if (!isKnownType())
        return;
    m_labels.clear();
    addEndLabel(0, m_minValue);
    addEndLabel(ScaleMapping::handleMax, m_maxValue);
    if (hasSteps())
        addStepLabels();
    else
        addDivisionLabels();
    updateAll();
}

void ScaleSliderNG::addEndLabel(int key, double value)
{
    m_labels.insert(key, labelItem(key, value, m_labelDecimalDigits));
}

/// The labels of a continuous scale stand at equal distances of the handle, so that a square-root
/// scale gets unevenly spaced values.
void ScaleSliderNG::addDivisionLabels()
{
    const int count = divisions();
    if (count <= 2)
        return;
    for (int i = 1; i < count; ++i) {
        const int key = int(i * (double(ScaleMapping::handleMax) / count));
        if (m_labels.contains(key))
            continue;
        const double value = roundedToDecimals(handle2Value(key), m_labelRoundingDigits);
        m_labels.insert(key, labelItem(key, value, m_labelRoundingDigits));
    }
}

/// How many parts the room is worth: 5, 10, or a number below 6. Other numbers make odd labels.
int ScaleSliderNG::divisions() const
{
    const int room =
        axis().along(m_labelRect.size()) - (axis().isHorizontal() ? 2 * m_sideMargins : 0);
    const int each = axis().isHorizontal() ? m_labelWidth : m_labelHeight;
    const int available = each > 0 ? room / each : 0;
    if (available < 4)
        return 0;
    if (available <= 5)
        return std::min(available, m_maxLabels);
    return std::min(available <= 10 ? 5 : 10, m_maxLabels);
}

/// Each step between the ends gets a tick, and a label where it touches neither neighbour. Earlier
/// steps keep their label against later ones, the ends against all.
void ScaleSliderNG::addStepLabels()
{
    for (int i = 1; i < m_steps.size() - 1; ++i) {
        const double value = m_steps.at(i);
        const int key = int(roundedToDecimals(value2Handle(value), m_valuePrecision));
        if (m_labels.contains(key))
            continue;
        tLabelItem item = labelItem(key, value, m_labelRoundingDigits);
        const auto above = m_labels.upperBound(key);
        const auto below = std::prev(above);
        if (item.rect.intersects(below->rect) || item.rect.intersects(above->rect)) {
            item.text.clear();
            item.rect.setSize(axis().size(1, -1));
        }
        m_labels.insert(key, item);
    }
}

ScaleSliderNG::tLabelItem ScaleSliderNG::labelItem(int key, double value, int decimals) const
{
    tLabelItem item;
    item.text = numberText(value, decimals);
    setLabelSize(QSize(QFontMetrics(font()).horizontalAdvance(item.text), m_labelHeight), item);
    setLabelRect(key, item);
    return item;
}

/// Centres the label on its tick, and keeps it inside the band of the labels.
void ScaleSliderNG::setLabelRect(int key, tLabelItem &item) const
{
    const int length = axis().along(item.rect.size());
    const int margin = axis().isHorizontal() ? m_sideMargins : 0;
    const int limit = axis().along(m_labelRect.size());
    int start = std::max(0, pixelOffset(key) + m_handleSize / 2 - length / 2 + margin);
    if (start + length > limit)
        start = limit - length;
    item.rect.moveTo(m_labelRect.topLeft() + axis().point(start, 0));
}

/// Two pixels more than the text takes along the scale, which keeps neighbours apart.
void ScaleSliderNG::setLabelSize(QSize size, tLabelItem &item) const
{
    item.rect.setSize(size + axis().size(2, 0));
}
