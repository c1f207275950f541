#ifndef PELORIN_SPECTRAL_WAVELENGTHSPECTRUM_H
#define PELORIN_SPECTRAL_WAVELENGTHSPECTRUM_H

#include "Pelorin/PelorinGlobal.h"

#include <QLabel>
#include <QRect>
#include <QRgb>

#include <memory>

class CachedLayer;
struct WavelengthSpectrumLayout;

/// A rainbow over a range of wavelengths, with a power scale at its left and a wavelength scale
/// below. It takes no input; WavelengthSelector puts markers on it.
///
/// Wavelengths are whole nm. Powers have the unit that the application gives them. A range may be
/// reversed: the rainbow then runs from red to violet, and the scale has no labels. A range without
/// span has its one label at the lower end.
class PELORIN_EXPORT WavelengthSpectrum : public QLabel
{
    Q_OBJECT

public:
    /// From 300 to 950 nm and from 0 to 100. The rainbow reaches \a margin pixels out beyond the
    /// rectangle that the two ranges span.
    explicit WavelengthSpectrum(int margin, QWidget *parent = nullptr);
    ~WavelengthSpectrum() override;

    /// Any two numbers, in any order.
    virtual void setPowerRange(int min, int max);
    virtual int minPower() const;
    virtual int maxPower() const;

    /// Any two numbers, in any order, in nm.
    virtual void setWavelengthRange(int min, int max);
    virtual int minWavelength() const;
    virtual int maxWavelength() const;

    /// What the two ranges span, in pixels of the widget, as it was painted last; invalid before the
    /// first time.
    QRect spectrumRect() const;

    /// The colour of light of \a wavelength nm. What cannot be seen goes over into black.
    QRgb generateRgbColor(int wavelength) const;

    // The steps of a paint, in the layout of the last one. Without any, or in a widget too small
    // for a spectrum, they draw nothing.

    /// The rainbow.
    void drawWavelengths(QPainter *painter) const;
    /// The scale below, in the painter's font.
    void drawWavelengthLabels(QPainter *painter) const;
    /// The scale at the left, in the painter's font.
    void drawPowerLabels(QPainter *painter) const;

    /// The nm between two labels: a round number that takes up 40 pixels or more, at least 10.
    int calculateHorizontalGridLineDistance() const;
    /// The power between two labels: a round number that takes up \a pixels or more, at least 10.
    int calculateVerticalGridLineDistance(int pixels) const;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void updateSpectrum();
    double wavelengthDistance() const;
    double powerDistance(int pixels) const;

    std::unique_ptr<WavelengthSpectrumLayout> m_layout;
    std::unique_ptr<CachedLayer> m_stillLayer;
    int m_minPower = 0;
    int m_maxPower = 100;
    int m_minWavelength = 300;
    int m_maxWavelength = 950;
};

#endif
