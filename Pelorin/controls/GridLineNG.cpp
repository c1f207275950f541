#include "Pelorin/controls/GridLineNG.h"

#include "Pelorin/theme/Palette_p.h"
#include "Pelorin/theme/StyleProperty_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

#include <QPen>

#include <array>

namespace {

constexpr int penWidth = 4;

/// Places along a side of the cell. The edges are half a line within it, and the height stands for
/// a place along the width, which is where the slanted line ends.
enum class Place { Start, StartEdge, Middle, EndEdge, End, Height };

struct Line
{
    Place x1, y1, x2, y2;
};

constexpr Line left{ Place::Start, Place::Middle, Place::Middle, Place::Middle };
constexpr Line right{ Place::Middle, Place::Middle, Place::End, Place::Middle };
constexpr Line up{ Place::Middle, Place::Start, Place::Middle, Place::Middle };
constexpr Line down{ Place::Middle, Place::Middle, Place::Middle, Place::End };
constexpr Line across{ Place::Start, Place::Middle, Place::End, Place::Middle };
constexpr Line upright{ Place::Middle, Place::Start, Place::Middle, Place::End };
constexpr Line slant{ Place::Middle, Place::Start, Place::Height, Place::Middle };
constexpr Line upAtLeft{ Place::StartEdge, Place::Start, Place::StartEdge, Place::Middle };
constexpr Line upAtRight{ Place::EndEdge, Place::Start, Place::EndEdge, Place::Middle };
constexpr Line downAtRight{ Place::EndEdge, Place::Middle, Place::EndEdge, Place::End };
constexpr Line leftEdge{ Place::StartEdge, Place::Start, Place::StartEdge, Place::End };
constexpr Line rightEdge{ Place::EndEdge, Place::Start, Place::EndEdge, Place::End };

/// The lines of each type; a type of one line has it twice.
constexpr std::array<std::array<Line, 2>, 19> lineTable{ {
    { right, up },
    { right, down },
    { across, up },
    { across, down },
    { left, up },
    { left, down },
    { across, across },
    { up, up },
    { down, down },
    { across, upAtLeft },
    { across, slant },
    { across, upAtRight },
    { across, downAtRight },
    { leftEdge, leftEdge },
    { rightEdge, rightEdge },
    { upright, upright },
    { left, upright },
    { right, upright },
    { across, upright },
} };

int pixel(Place place, int length, int height)
{
    switch (place) {
    case Place::Start:
        return 0;
    case Place::StartEdge:
        return penWidth / 2;
    case Place::Middle:
        return length / 2;
    case Place::EndEdge:
        return length - penWidth / 2;
    case Place::End:
        return length;
    case Place::Height:
        return height;
    }
    return 0;
}

} // namespace

GridLineNG::GridLineNG(GridLineNG::tLineType type, QWidget *parent)
    : QLabel(parent)
    , m_lineType(type)
{
    setProperty(StyleProperty::flat, true);
    setProperty(StyleProperty::type, StyleType::label);
    setMinimumWidth(5);
    setMinimumHeight(20);
}

void GridLineNG::changeLineType(GridLineNG::tLineType type)
{
    if (type == m_lineType)
        return;
    m_lineType = type;
    update();
}

void GridLineNG::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
    if (m_lineType < UpAndRight || m_lineType > Cross)
        return;
    painter.setPen(QPen(QColor::fromRgba(Palette::handle), penWidth));
    const int w = width();
    const int h = height();
    for (const Line &line : lineTable[std::size_t(m_lineType)]) {
        painter.drawLine(pixel(line.x1, w, h), pixel(line.y1, h, h), pixel(line.x2, w, h),
                         pixel(line.y2, h, h));
    }
}
