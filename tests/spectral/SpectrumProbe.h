#ifndef PELORIN_TESTS_SPECTRUMPROBE_H
#define PELORIN_TESTS_SPECTRUMPROBE_H

#include "tests/support/PaintRecorder.h"

#include <QFont>
#include <QFontMetrics>
#include <QImage>
#include <QList>
#include <QWidget>

/// What the tests of the spectrum bars look at.
namespace SpectrumProbe {

constexpr QRgb ink = 0xFF666666;
constexpr QRgb white = 0xFFFFFFFF;

inline QFontMetrics metrics()
{
    return QFontMetrics(QFont(QStringLiteral("Calibri"), 10));
}

inline int labelHeight()
{
    return metrics().height() + 7;
}

/// Of a power scale whose upper end is written as \a text.
inline int labelWidth(const char *text)
{
    return metrics().horizontalAdvance(QLatin1String(text)) + 7;
}

/// Shows \a widget on white at any \a size.
inline void showOnWhite(QWidget &widget, QSize size)
{
    QPalette palette;
    palette.setColor(QPalette::Window, Qt::white);
    widget.setPalette(palette);
    widget.setMinimumSize(0, 0);
    widget.resize(size);
    widget.show();
}

inline QImage picture(QWidget &widget)
{
    return widget.grab().toImage().convertToFormat(QImage::Format_RGB32);
}

inline QString labels(QWidget &widget)
{
    return PaintRecorder(widget).textList().join(QLatin1Char(' '));
}

/// The columns in which \a row of \a image has \a color.
inline QList<int> columnsOf(const QImage &image, int row, QRgb color = ink)
{
    QList<int> result;
    for (int x = 0; x < image.width(); ++x) {
        if (image.pixel(x, row) == color)
            result << x;
    }
    return result;
}

/// The rows in which \a column of \a image has \a color.
inline QList<int> rowsOf(const QImage &image, int column, QRgb color = ink)
{
    return columnsOf(image.transformed(QTransform(0, 1, 1, 0, 0, 0)), column, color);
}

/// From \a first to \a last.
inline QList<int> span(int first, int last)
{
    QList<int> result;
    for (int i = first; i <= last; ++i)
        result << i;
    return result;
}

/// Whether \a image is all of \a color.
inline bool isPlain(const QImage &image, QRgb color)
{
    for (int y = 0; y < image.height(); ++y) {
        if (columnsOf(image, y, color).size() != image.width())
            return false;
    }
    return true;
}

} // namespace SpectrumProbe

#endif
