#ifndef PELORIN_CONTROLS_DISPLAY_H
#define PELORIN_CONTROLS_DISPLAY_H

#include "Pelorin/PelorinGlobal.h"

#include <QChar>
#include <QFont>
#include <QPair>
#include <QString>
#include <QStringList>
#include <QVector>
#include <QWidget>

/// The text display of an instrument: a fixed number of rows and columns in a face of fixed pitch,
/// white on the ground of the style sheet.
///
/// The text is cut into rows as it comes; what does not fit is dropped. All lengths are in pixels.
class PELORIN_EXPORT Display : public QWidget
{
    Q_OBJECT

public:
    /// 200 x 80 until setFontSize() fits the size to the rows and columns. With less than one row
    /// or column it shows no text.
    Display(int rows, int columns, QWidget *parent = nullptr);

    /// Sets the height of a row and fixes the size of the display to its rows and columns. Less
    /// than one pixel is ignored.
    void setFontSize(int px);

    /// From now on, setText() replaces \a from by \a to: characters that the instrument uses in its
    /// own way. Replacements are made in the order in which they were added, one after the other.
    void addReplacement(QChar from, QChar to);

public Q_SLOTS:
    /// Stores the text. It is shown with the next repaint, so that a display that is read out often
    /// does not repaint for each reading: call update() to see it now.
    void setText(QString text);

protected:
    /// Fits the text to the width.
    void resizeEvent(QResizeEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    int m_rows;
    int m_columns;
    double m_charRatio; ///< height of a character by its width
    QFont m_font;
    int m_fontSize;
    QStringList m_lines;
    QVector<QPair<QChar, QChar>> m_replacements;
};

#endif
