#ifndef PELORIN_CONTROLS_VERTICALLABEL_H
#define PELORIN_CONTROLS_VERTICALLABEL_H

#include "Pelorin/PelorinGlobal.h"

#include <QColor>
#include <QLabel>
#include <QString>

/// A line of text turned a quarter of a turn clockwise, the title at the side of a column. It is as
/// wide as its text is high, and takes all the height that it gets.
///
/// The alignment of the label counts along the text: Qt::AlignLeft is at the top. An indent set by
/// QLabel::setIndent() counts in halves of the width of an "X", and from the next setText() or
/// setFontSize() on.
class PELORIN_EXPORT VerticalLabel : public QLabel
{
    Q_OBJECT
    Q_PROPERTY(int fontSize READ fontSize WRITE setFontSize)
    Q_PROPERTY(QColor fontColor READ fontColor WRITE setFontColor)

public:
    /// In light grey at 18 points.
    explicit VerticalLabel(QWidget *parent = nullptr);
    explicit VerticalLabel(const QString &text, QWidget *parent = nullptr);

    /// In points. Qt draws in its default size where less than one is asked for.
    void setFontSize(int points);
    int fontSize() const { return m_fontSize; }

    void setFontColor(QColor color);
    QColor fontColor() const { return m_fontColor; }

    /// Plain text. Hides the operation of QLabel.
    void setText(const QString &text);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QFont textFont() const;
    void refreshSize();

    int m_fontSize = 18;
    QColor m_fontColor = QColor(0xC5, 0xC6, 0xC6);
    int m_indentOffset = 0;
};

#endif
