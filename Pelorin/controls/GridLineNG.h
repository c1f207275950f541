#ifndef PELORIN_CONTROLS_GRIDLINENG_H
#define PELORIN_CONTROLS_GRIDLINENG_H

#include "Pelorin/PelorinGlobal.h"

#include <QLabel>

/// The share of one layout cell in a drawing of red lines, with which the cells of a grid show what
/// is connected with what. It shows no text.
class PELORIN_EXPORT GridLineNG : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(tLineType lineType READ lineType WRITE changeLineType)

public:
    /// Lines from the middle of the cell to its sides, or across it. Any other number draws none.
    enum tLineType : int {
        UpAndRight = 0,
        RightAndDown = 1,
        AcrossAndUp = 2,
        AcrossAndDown = 3,
        LeftAndUp = 4,
        LeftAndDown = 5,
        Across = 6,
        Up = 7,
        Down = 8,
        AcrossAndUpAtLeftEdge = 9,
        AcrossAndSlant = 10, ///< from the middle above to the middle line, as far right as the cell
                             ///< is high
        AcrossAndUpAtRightEdge = 11,
        AcrossAndDownAtRightEdge = 12,
        LeftEdge = 13,
        RightEdge = 14,
        UpAndDown = 15,
        UpDownAndLeft = 16,
        UpDownAndRight = 17,
        Cross = 18
    };
    Q_ENUM(tLineType)

    /// At least 5 x 20 pixels.
    explicit GridLineNG(GridLineNG::tLineType type, QWidget *parent = nullptr);

    void changeLineType(GridLineNG::tLineType type);
    tLineType lineType() const { return m_lineType; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    tLineType m_lineType;
};

#endif
