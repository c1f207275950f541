#include "Pelorin/sliders/ScaleSliderNG.h"

#include "Pelorin/sliders/ScaleAxis_p.h"
#include "Pelorin/sliders/ScaleMapping_p.h"
#include "Pelorin/sliders/ScaleSliderNGLayers_p.h"
#include "Pelorin/theme/Palette_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

#include <QPaintEvent>
#include <QPainter>

#include <utility>

namespace {

/// How far outlines and square line ends may reach beyond the rectangles that they belong to.
constexpr int bleed = 2;

QRect grown(const QRect &rect)
{
    return rect.adjusted(-bleed, -bleed, bleed, bleed);
}

void drawRounded(QPainter &painter, const QRect &rect, int radius)
{
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.drawRoundedRect(rect, radius, radius, Qt::AbsoluteSize);
}

} // namespace

void ScaleSliderNG::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
    const QRect trackBounds = grown(m_trackRect);
    m_layers->track.draw(painter, trackBounds.topLeft(), trackBounds.size(), [&](QPainter &layer) {
        layer.translate(-trackBounds.topLeft());
        drawTrack(layer);
    });
    drawHandles(painter);
    if (m_showLabels) {
        const QRect scaleBounds = grown(m_scaleRect | m_labelRect);
        m_layers->scale.draw(painter, scaleBounds.topLeft(), scaleBounds.size(),
                             [&](QPainter &layer) {
                                 layer.translate(-scaleBounds.topLeft());
                                 drawScale(layer);
                             });
    }
    if (m_showFrame)
        drawFrame(painter);
}

ScaleSliderNG::HandleView ScaleSliderNG::handleView(int index) const
{
    HandleView view;
    if (!isEnabled() && m_hideHandleOnDisable)
        return view;
    view.rect = getHandleRect(index);
    if (!isEnabled())
        view.look = HandleLook::Disabled;
    else if (m_grabbed[index] || (hasFocus() && m_focused[index]))
        view.look = HandleLook::Active;
    else if (m_hovered[index])
        view.look = HandleLook::Hovered;
    return view;
}

/// Repaints where a handle was and where it is now, and nothing if it still looks the same.
void ScaleSliderNG::updateHandles()
{
    for (int i = 0; i < 2; ++i) {
        const HandleView before = std::exchange(m_shownHandles[i], handleView(i));
        const HandleView &now = m_shownHandles[i];
        if (now.rect == before.rect && now.look == before.look)
            continue;
        if (before.rect.intersects(now.rect)) {
            update(grown(before.rect | now.rect)); // a short way, as in most steps of a drag
            continue;
        }
        if (!before.rect.isNull())
            update(grown(before.rect));
        if (!now.rect.isNull())
            update(grown(now.rect));
    }
}

void ScaleSliderNG::updateAll()
{
    m_layers->invalidate();
    update();
}

void ScaleSliderNG::drawTrack(QPainter &painter) const
{
    painter.setPen(QColor::fromRgba(Palette::track));
    painter.setBrush(QColor::fromRgba(Palette::track));
    drawRounded(painter, m_trackRect, m_cornerRadius);
}

/// The handle that was touched last lies on top.
void ScaleSliderNG::drawHandles(QPainter &painter)
{
    m_shownHandles = { handleView(0), handleView(1) }; // Qt repaints for reasons of its own as well
    const bool secondOnTop = m_grabbed[1] || (hasFocus() && m_focused[1]);
    const std::array<int, 2> order =
        secondOnTop ? std::array<int, 2>{ 0, 1 } : std::array<int, 2>{ 1, 0 };
    for (const int index : order) {
        const HandleView &view = m_shownHandles[index];
        if (view.rect.isNull())
            continue;
        const QRect bounds = grown(view.rect);
        m_layers->handle[std::size_t(view.look)].draw(
            painter, bounds.topLeft(), bounds.size(),
            [&](QPainter &layer) { drawHandle(layer, view.look); });
    }
}

/// A handle with the top left corner of its square at (bleed, bleed). The mark lies at the edge
/// next to the ticks.
void ScaleSliderNG::drawHandle(QPainter &painter, HandleLook look) const
{
    static constexpr std::array<QRgb, 4> brushes{ Palette::disabled, Palette::activeHandle,
                                                  Palette::hover, Palette::handle };
    const QColor color = QColor::fromRgba(brushes[std::size_t(look)]);
    const QRect square(bleed, bleed, m_handleSize, m_handleSize);
    painter.setPen(look == HandleLook::Active ? QColor(Qt::white) : color);
    painter.setBrush(color);
    drawRounded(painter, square, m_cornerRadius);

    constexpr int markLength = 5;
    const bool horizontal = axis().isHorizontal();
    const int center = bleed + m_handleSize / 2;
    const int near = horizontal ? bleed + m_handleSize - markLength : bleed;
    painter.setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    painter.setRenderHint(QPainter::Antialiasing, !horizontal);
    painter.drawLine(axis().point(center, near), axis().point(center, near + markLength));
}

void ScaleSliderNG::drawScale(QPainter &painter) const
{
    painter.setFont(QFont(QStringLiteral("Calibri"), m_fontSize, -1, false));
    painter.setPen(QColor::fromRgba(Palette::text));
    painter.setRenderHint(QPainter::Antialiasing, false);
    const bool horizontal = axis().isHorizontal();
    const int tickBase = horizontal ? m_scaleRect.top() : m_scaleRect.right() + 1;
    const int start = horizontal ? m_scaleRect.left() : m_scaleRect.top();
    for (auto label = m_labels.cbegin(); label != m_labels.cend(); ++label) {
        const int center = pixelOffset(label.key()) + m_handleSize / 2;
        const bool minor = label->text.isEmpty();
        // In the small size a minor tick is shorter than nothing and points towards the track.
        const int length = minor ? m_minorTickBase - 3 : axis().across(m_scaleRect.size());
        const int tip = horizontal ? tickBase + length : tickBase - length;
        painter.drawLine(axis().point(start + center, tickBase), axis().point(start + center, tip));
        if (!minor)
            drawLabel(painter, label.key(), *label, center);
    }
}

void ScaleSliderNG::drawLabel(QPainter &painter, int key, const tLabelItem &item, int center) const
{
    if (!axis().isHorizontal()) {
        int y = std::max(0, center - m_labelHeight / 2);
        if (y + m_labelHeight > m_labelRect.height())
            y = m_labelRect.height() - m_labelHeight;
        const QRect place(m_labelRect.left(), m_labelRect.top() + y, m_labelWidth, m_labelHeight);
        painter.drawText(place, Qt::AlignRight, item.text);
        return;
    }
    // A wide end label stands further in than the band alone would ask for.
    const int half = item.rect.width() / 2;
    int shift = 0;
    if (key == 0 && center - half < 0)
        shift = half - center;
    else if (key == ScaleMapping::handleMax && center + half > m_labelRect.width())
        shift = m_labelRect.width() - (center + half);
    painter.drawText(item.rect.translated(shift, 0), Qt::AlignHCenter, item.text);
}

/// The outline lies over the handles.
void ScaleSliderNG::drawFrame(QPainter &painter) const
{
    painter.setPen(QPen(QBrush(Qt::darkGray), 0.0));
    painter.setBrush(Qt::NoBrush);
    drawRounded(painter, m_trackRect, m_cornerRadius);
}
