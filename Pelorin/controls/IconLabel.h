#ifndef PELORIN_CONTROLS_ICONLABEL_H
#define PELORIN_CONTROLS_ICONLABEL_H

#include "Pelorin/PelorinGlobal.h"

#include <QLabel>
#include <QString>

/// A text with an icon at its left or right, the row of a list. The style sheet colours it as one
/// label.
class PELORIN_EXPORT IconLabel : public QLabel
{
    Q_OBJECT

public:
    /// Any other number counts as NoIcon.
    enum IconDisplay : int { NoIcon = 0, IconLeft = 1, IconRight = 2 };
    Q_ENUM(IconDisplay)

    /// Without an icon.
    explicit IconLabel(QWidget *parent = nullptr);
    explicit IconLabel(const QString &text, QWidget *parent = nullptr);

    /// The text beside the icon; these two hide the operations of QLabel.
    void setText(const QString &text);
    QString text() const;

    /// Loads the icon from a file or resource; one that cannot be loaded is empty. Which side it
    /// takes, and whether it is seen, says setIconDisplay().
    void setIcon(const QString &path);
    void setIconDisplay(IconLabel::IconDisplay display);

    /// A note of the list that the label stands in: whether it is to be seen while the list is
    /// open. True at first; it changes nothing here.
    void setHasVisibility(bool on) { m_hasVisibility = on; }
    bool hasVisibility() const { return m_hasVisibility; }

    /// Text and icon side by side as they are now, with 16 pixels for the gaps.
    QSize sizeHint() const override;

private:
    void refresh();

    bool m_hasVisibility = true;
    QLabel *m_textLabel;
    QLabel *m_iconLabel;
    IconDisplay m_iconDisplay = NoIcon;
};

#endif
