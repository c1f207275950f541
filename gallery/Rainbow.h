#ifndef PELORIN_GALLERY_RAINBOW_H
#define PELORIN_GALLERY_RAINBOW_H

#include <Pelorin/WavelengthSpectrumNG>

#include <QPainter>

/// What the second generation is there for: its own rectangles covered, its rainbow shown.
class Rainbow : public WavelengthSpectrumNG
{
public:
    using WavelengthSpectrumNG::WavelengthSpectrumNG;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        WavelengthSpectrumNG::paintEvent(event);
        QPainter painter(this);
        painter.setFont(QFont(QStringLiteral("Calibri"), 10));
        painter.fillRect(rect(), Qt::white);
        drawWavelengths(&painter);
        drawPowerLabels(&painter);
        drawWavelengthLabels(&painter);
    }
};

#endif
