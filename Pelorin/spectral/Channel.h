#ifndef PELORIN_SPECTRAL_CHANNEL_H
#define PELORIN_SPECTRAL_CHANNEL_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

class Button;
class LineEditNumber;

/// One channel of a tunable light source as a cell of numbers: on and off, wavelength in nm, power in
/// percent, and a button by which the operator asks for more. What it shows is its only state; it
/// takes what the instrument reports by its setters, which are silent.
class PELORIN_EXPORT Channel : public QWidget
{
    Q_OBJECT

public:
    /// The cell of channel \a number, counted from 0; its button shows the number counted from 1, and
    /// keeps it for the signals: the text of that button must not be changed.
    explicit Channel(int number, QWidget *parent = nullptr);
    ~Channel() override;

    bool enabled() const;
    /// The number in the field, in nm, also while it is edited; 0 if it is none.
    double wavelength() const;
    /// The number in the field, in percent, without its decimals.
    int power() const;

Q_SIGNALS:
    /// The operator switches the channel on or off.
    void enableChanged(int number, bool enabled);
    /// The operator has pressed "Set".
    void setClicked(int number, bool checked);
    /// One of the two numbers was saved; both come.
    void channelChanged(int number, double wavelength, int power);

public Q_SLOTS:
    void enableChannel(bool enable);
    /// Checks the button "Set", where an application has made it checkable.
    void setChannelChecked(bool checked);
    /// As setChannelWavelength() and setChannelPower(), in this order.
    void setChannel(double wavelength, int power);
    void setChannelPower(int power);
    /// Shows \a wavelength with one decimal. Right after a step by a key it waits, as the power does.
    void setChannelWavelength(double wavelength);

protected:
    void paintEvent(QPaintEvent *event) override;

private Q_SLOTS:
    void emitEnableChanged(bool enabled);
    void emitChannelChanged();
    void emitSetClicked(bool checked);

private:
    int number() const;
    LineEditNumber *makeEdit(double step);

    Button *m_enableButton;
    Button *m_setButton;
    LineEditNumber *m_powerEdit;
    LineEditNumber *m_wavelengthEdit;
};

#endif
