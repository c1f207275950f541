#ifndef PELORIN_TESTS_HANDLEPROBE_H
#define PELORIN_TESTS_HANDLEPROBE_H

#include <QImage>
#include <QList>
#include <QWidget>

/// Looks at the picture of a slider of the first generation, whose handle is the square on a track
/// of the same height at its top.
namespace HandleProbe {

constexpr QRgb track = 0xFFC5C6C6;
constexpr QRgb red = 0xFF87212E;
constexpr QRgb orange = 0xFFED6E00;
constexpr QRgb grey = 0xFFA6A6A6;
constexpr QRgb ink = 0xFF444444;

/// The x at which the row \a y of \a image has exactly the colour \a rgb.
inline QList<int> columnsOf(const QImage &image, int y, QRgb rgb)
{
    QList<int> result;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, y) == rgb)
            result << x;
    }
    return result;
}

/// The left edge of the first handle in \a color; -1 if there is none.
inline int handleLeft(QWidget &slider, QRgb color = red)
{
    const QList<int> columns = columnsOf(slider.grab().toImage(), 17, color);
    return columns.isEmpty() ? -1 : columns.first();
}

} // namespace HandleProbe

#endif
