#ifndef PELORIN_SPECTRAL_WAVELENGTHSPECTRUMNG_H
#define PELORIN_SPECTRAL_WAVELENGTHSPECTRUMNG_H

#include "Pelorin/PelorinGlobal.h"

#include <QRect>
#include <QRgb>
#include <QWidget>

#include <memory>

struct WavelengthSpectrumLayout;

/// The ground of a spectrum display of the second generation: a power scale at the left, a wavelength
/// scale below, and three flat rectangles that show the layout. Subclasses draw into it;
/// drawWavelengths() gives them a rainbow of the visible band, on grey.
///
/// Wavelengths are in nm. Powers have the unit that the application gives them. Labels are whole
/// numbers, so ranges should be. A range may be reversed: the rainbow then runs from red to violet,
/// and the scale has no labels. Neither has it with an end that is not finite. A range without span
/// has its one label at the lower end.
class PELORIN_EXPORT WavelengthSpectrumNG : public QWidget
{
    Q_OBJECT

public:
    /// From 300 to 950 nm and from 0 to 100. The scales stand \a margin pixels away from the
    /// rectangle that the two ranges span.
    explicit WavelengthSpectrumNG(int margin, QWidget *parent = nullptr);
    ~WavelengthSpectrumNG() override;

    /// Any two numbers, in any order.
    virtual void setPowerRange(double min, double max);
    virtual double minPower() const;
    virtual double maxPower() const;

    /// Any two numbers, in any order, in nm.
    virtual void setWavelengthRange(double min, double max);
    virtual double minWavelength() const;
    virtual double maxWavelength() const;

    /// The minimum size.
    QSize sizeHint() const override;

    /// What the two ranges span, in pixels of the widget, as it was painted last; invalid before the
    /// first time.
    QRect spectrumRect();

    /// The colour of light of \a wavelength nm; dark grey outside of 380 to 750.
    QRgb generateRgbColor(double wavelength) const;

    // The steps of a paint, in the layout of the last one. Without any, or in a widget too small
    // for a spectrum, they draw nothing.

    /// The rainbow, which this class itself never draws. It reaches out by the margin.
    void drawWavelengths(QPainter *painter) const;
    /// The scale below, in the painter's font.
    void drawWavelengthLabels(QPainter *painter) const;
    /// The scale at the left, in the painter's font.
    void drawPowerLabels(QPainter *painter) const;

    /// The nm between two labels: a round number that takes up 40 pixels or more, at least 10.
    int calculateHorizontalGridLineDistance() const;
    /// The power between two labels: a round number that takes up about \a pixels or more, at least
    /// 10.
    int calculateVerticalGridLineDistance(int pixels) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    double wavelengthDistance() const;
    double powerDistance(int pixels) const;

    std::unique_ptr<WavelengthSpectrumLayout> m_layout;
    double m_minPower = 0.0;
    double m_maxPower = 100.0;
    double m_minWavelength = 300.0;
    double m_maxWavelength = 950.0;
};

#endif
