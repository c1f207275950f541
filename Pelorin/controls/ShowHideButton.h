#ifndef PELORIN_CONTROLS_SHOWHIDEBUTTON_H
#define PELORIN_CONTROLS_SHOWHIDEBUTTON_H

#include "Pelorin/PelorinGlobal.h"

#include <QPushButton>

/// A small square button with a triangle: up while what it belongs to is shown, down while it is
/// hidden. It only shows that state; who reacts to clicked() sets it with setShowState().
class PELORIN_EXPORT ShowHideButton : public QPushButton
{
    Q_OBJECT

public:
    /// In the state "shown", at least 16 x 16.
    explicit ShowHideButton(QWidget *parent = nullptr);

    /// 32 x 32.
    QSize sizeHint() const override;
    /// \a width.
    int heightForWidth(int width) const override;

public Q_SLOTS:
    /// Silent.
    void setShowState(bool shown);

protected:
    void paintEvent(QPaintEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    bool m_hovered = false; ///< kept for a look of its own under the mouse; nothing reads it yet
    bool m_shown = true;
};

#endif
