#ifndef PELORIN_CONTROLS_DROPDOWNLABEL_H
#define PELORIN_CONTROLS_DROPDOWNLABEL_H

#include "Pelorin/PelorinGlobal.h"

#include <QLabel>
#include <QString>

class DropDown;

/// What ComboBox and Selector share: a label that owns a list, opens it by a press of the left
/// button, and closes it by the next one, or when the focus goes elsewhere. Not for direct use.
///
/// The open list has the focus itself. So the focus is lost as soon as the window of the label is
/// active again and something else in it takes the focus.
///
/// It has no meta-object of its own, so that each of the two declares its signals and slots itself.
class PELORIN_EXPORT DropDownLabel : public QLabel
{
public:
    /// Shows or hides an item in the list; its index stays. Nothing if out of range.
    void setItemVisibility(int index, bool visible);
    /// What setItemVisibility() was told last, true at first; false out of range.
    bool hasItemVisibility(int index) const;

protected:
    DropDownLabel(const QString &text, QWidget *parent);

    DropDown *dropDown() const { return m_dropDown; }

    /// Where the upper left corner of the list goes, in the coordinates of the label.
    virtual QPoint dropDownPosition() const = 0;
    /// Shows the list at its place and gives it the focus.
    virtual void openDropDown();

    void mousePressEvent(QMouseEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    void setDropDownPosition();

    DropDown *m_dropDown;
};

#endif
