#ifndef PELORIN_SLIDERS_RANGEDINPUTPANEL_H
#define PELORIN_SLIDERS_RANGEDINPUTPANEL_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

class QHBoxLayout;
class QLabel;
class QLineEdit;
class QString;

/// What RangedInputSlider and RangedInputSliderNG share: two rows of title, number and unit, for
/// start and stop, above a slider, on a panel with a ground of the sheet. Not for direct use.
///
/// It has no meta-object of its own, so that each of the two declares its signals and slots itself.
class PELORIN_EXPORT RangedInputPanel : public QWidget
{
public:
    /// The title of the first row; "Start" at first.
    void setStartText(const QString &text);
    /// The title of the second row; "Stop" at first.
    void setStopText(const QString &text);
    /// The unit behind both numbers; empty at first.
    void setUnitText(const QString &text);

    /// A light grey panel with white fields, or without \a dark a white panel with grey fields, by
    /// the style properties "widget-color" and "background". Has to be called before the panel is
    /// shown. True at first.
    void setDarkBackground(bool dark);

protected:
    explicit RangedInputPanel(QWidget *parent);
    ~RangedInputPanel() override;

    /// Lays all out, with \a sideMargin free pixels at both sides of the rows; the panel takes the
    /// ownership. Called once, by the constructor.
    void layOut(int sideMargin, QLineEdit *startInput, QLineEdit *stopInput, QWidget *slider);

    void paintEvent(QPaintEvent *event) override;

private:
    /// One row: title, number, unit.
    struct Row
    {
        QLabel *label;
        QLineEdit *input = nullptr;
        QLabel *unit;

        explicit Row(const QString &title);
        QHBoxLayout *layOut(int sideMargin, QLineEdit *field);
    };

    Row m_start;
    Row m_stop;
};

#endif
