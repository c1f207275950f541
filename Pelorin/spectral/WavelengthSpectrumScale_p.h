#ifndef PELORIN_SPECTRAL_WAVELENGTHSPECTRUMSCALE_P_H
#define PELORIN_SPECTRAL_WAVELENGTHSPECTRUMSCALE_P_H

#include "Pelorin/theme/Rounding_p.h"

#include <QColor>
#include <QFontMetrics>
#include <QPainter>
#include <QRect>
#include <QString>
#include <QVector>
#include <QWidget>

#include <algorithm>
#include <cmath>

/// The distance between two labels of a wavelength scale: the first round number of nm that is not
/// smaller than \a least.
inline double wavelengthLabelDistance(double least)
{
    for (const double distance : { 10.0, 20.0, 50.0, 100.0, 200.0, 500.0, 1000.0 }) {
        if (least <= distance)
            return distance;
    }
    return std::max(least, 2000.0);
}

/// The same for a power scale: tens up to a hundred.
inline double powerLabelDistance(double least)
{
    for (int distance = 10; distance <= 90; distance += 10) {
        if (least <= distance)
            return distance;
    }
    return std::max(least, 100.0);
}

/// What \a pixels take up on a scale of \a span units and \a length pixels; 0 where there is no
/// telling.
inline double unitsOfPixels(double span, int length, int pixels)
{
    const double units = span / length * pixels;
    return length != 0 && qIsFinite(units) ? units : 0.0;
}

/// A place in pixels, cut to a whole number. What lies farther out than a widget can reach stays
/// there, where it can still be reckoned with.
inline int wholePixel(double place)
{
    constexpr double farAway = QWIDGETSIZE_MAX;
    return qIsNaN(place) ? 0 : int(qBound(-farAway, place, farAway));
}

/// One of the two scales of a spectrum bar. Its labels count from the lower end in equal steps, but
/// for the last one, which stands at the upper end however near to its neighbour.
struct WavelengthSpectrumScale
{
    double min;
    double max;
    double first; ///< the value of the first label
    double last;  ///< the value of the label that would come to lie beyond the upper end
    double distance;

    /// The values of the labels. None on a reversed scale, and none where the ends are not finite.
    QVector<double> values() const
    {
        QVector<double> result;
        if (!qIsFinite(max - min))
            return result;
        double value = first;
        while (value <= max) {
            result.append(value);
            double next = value + distance;
            if (value < max && next > max)
                next = last;
            if (!(next > value)) // the upper end lies between two labels, or beyond all digits
                break;
            value = next;
        }
        return result;
    }

    /// How far from the lower end \a value lies on \a length pixels. A scale without a span has all
    /// its values at the lower end.
    double pixelsTo(double value, int length) const
    {
        const double pixelsPerUnit = length / (max - min);
        return qIsFinite(pixelsPerUnit) ? pixelsPerUnit * (value - min) : 0.0;
    }
};

/// Where the parts of a spectrum bar lie: the spectrum inside of a margin, powers at the left and
/// wavelengths below.
struct WavelengthSpectrumLayout
{
    QRect widgetRect;   ///< all that is painted
    QRect chartRect;    ///< without the scales
    QRect spectrumRect; ///< without the margin; what the ranges span
    int margin = 0;
    int fontHeight = 0;
    int wavelengthLabelHeight = 0;
    int powerLabelWidth = 0;

    /// A margin wider than any widget is as good as the widest. A negative one, which draws the
    /// spectrum over the scales, goes as far as the largest screens.
    explicit WavelengthSpectrumLayout(int gap)
        : margin(qBound(-4096, gap, QWIDGETSIZE_MAX))
    {}

    /// Lays all out in \a outer, with \a widestPower as the widest label of the power scale.
    void update(const QRect &outer, const QFontMetrics &metrics, const QString &widestPower)
    {
        constexpr int labelGap = 7;
        fontHeight = metrics.height();
        wavelengthLabelHeight = fontHeight + labelGap;
        powerLabelWidth = metrics.horizontalAdvance(widestPower) + labelGap;
        widgetRect = outer;
        chartRect = outer.adjusted(powerLabelWidth, 0, 0, -wavelengthLabelHeight);
        spectrumRect = chartRect.adjusted(margin, margin, -margin, -margin);
    }

    bool operator==(const WavelengthSpectrumLayout &other) const
    {
        return widgetRect == other.widgetRect && chartRect == other.chartRect
               && spectrumRect == other.spectrumRect && fontHeight == other.fontHeight;
    }

    static QPen scalePen() { return QPen(QColor(0x66, 0x66, 0x66), 1); }

    void drawWavelengthScale(QPainter &painter, const WavelengthSpectrumScale &scale) const
    {
        if (spectrumRect.isEmpty())
            return;
        const int left = widgetRect.left() + powerLabelWidth;
        const int axis = widgetRect.bottom() + 1 - wavelengthLabelHeight;
        painter.save();
        painter.setPen(scalePen());
        painter.drawLine(left, axis - 1, widgetRect.right() + 1 - margin, axis - 1);
        const QVector<double> values = scale.values();
        for (const double value : values) {
            const int x = wholePixel(scale.pixelsTo(value, spectrumRect.width()) + left + margin);
            painter.drawLine(x, axis, x, axis + 5);
            drawWavelength(painter, QString::number(value, 'f', 0), x, axis + 7);
        }
        painter.restore();
    }

    /// With the label of a power \a textRise pixels above its tick.
    void drawPowerScale(QPainter &painter, const WavelengthSpectrumScale &scale, int textRise) const
    {
        if (spectrumRect.isEmpty())
            return;
        const int axis = spectrumRect.left() - margin;
        const int right = widgetRect.left() + powerLabelWidth;
        painter.save();
        painter.setPen(scalePen());
        painter.drawLine(axis, spectrumRect.top(), axis, spectrumRect.bottom() + margin);
        const QVector<double> values = scale.values();
        for (const double value : values) {
            const double rise = scale.pixelsTo(value, spectrumRect.height());
            const int y = wholePixel(spectrumRect.bottom() + 1 - rise);
            painter.drawText(
                QRect(widgetRect.left(), y - textRise, powerLabelWidth - 7, fontHeight),
                Qt::AlignRight | Qt::AlignHCenter | Qt::AlignVCenter,
                QString::number(value, 'f', 0));
            painter.drawLine(right - 5, y, right, y);
        }
        painter.restore();
    }

    /// Fills \a area column by column with the colours of the wavelengths from \a start on, which
    /// grow by \a step from column to column.
    template<typename ColorOf>
    static void drawColumns(QPainter &painter, const QRect &area, double start, double step,
                            ColorOf colorOf)
    {
        double wavelength = start;
        for (int x = area.left(); x <= area.right(); ++x) {
            const QRect column(x, area.top(), 1, area.height());
            painter.fillRect(column, QColor::fromRgba(colorOf(wavelength)));
            wavelength += step;
        }
    }

private:
    /// Under its tick at \a x, or as far to the right as it goes.
    void drawWavelength(QPainter &painter, const QString &text, int x, int top) const
    {
        const int width = painter.fontMetrics().horizontalAdvance(text);
        if (x + width <= widgetRect.right()) {
            painter.drawText(QRect(x - width / 2, top, width, fontHeight),
                             Qt::AlignVCenter | Qt::AlignHCenter, text);
            return;
        }
        const int left = widgetRect.right() - (width / 2 + width / 2);
        painter.drawText(QRect(left, top, width, fontHeight), Qt::AlignVCenter | Qt::AlignRight,
                         text);
    }
};

#endif
