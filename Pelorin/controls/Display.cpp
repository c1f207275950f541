#include "Pelorin/controls/Display.h"

#include "Pelorin/controls/FixedSize_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

#include <QFontMetrics>

namespace {

constexpr int margin = 10;
constexpr int firstPixelSize = 32;

QFont pitchedFont()
{
    QFont font(QStringLiteral("Consolas"));
    font.setStyleHint(QFont::Monospace); // where the family is not at hand
    font.setPixelSize(firstPixelSize);
    return font;
}

double charRatioOf(const QFont &font)
{
    const int width = QFontMetrics(font).averageCharWidth();
    return double(font.pixelSize()) / std::max(width, 1);
}

} // namespace

Display::Display(int rows, int columns, QWidget *parent)
    : QWidget(parent)
    , m_rows(rows)
    , m_columns(columns)
    , m_font(pitchedFont())
    , m_fontSize(18)
{
    m_charRatio = charRatioOf(m_font);
    setContentsMargins(margin, margin, margin, margin);
    setFixedHeight(80);
    setFixedWidth(200);
}

void Display::setFontSize(int px)
{
    if (px < 1)
        return;
    m_fontSize = boundedLength(px);
    setFixedHeight(boundedLength(qint64(px) * m_rows + 2 * margin));
    setFixedWidth(boundedLength(qint64(m_columns * (px / m_charRatio) + 2.0 * margin)));
    m_font.setPixelSize(m_fontSize);
}

void Display::addReplacement(QChar from, QChar to)
{
    m_replacements.append({ from, to });
}

void Display::setText(QString text)
{
    for (const auto &replacement : m_replacements)
        text.replace(replacement.first, replacement.second, Qt::CaseSensitive);
    m_lines.clear();
    if (m_columns < 1)
        return;
    // Rows without text need no line.
    qint64 start = 0;
    for (int i = 0; i < m_rows && start < text.size(); ++i, start += m_columns)
        m_lines.append(text.mid(int(start), m_columns));
}

void Display::resizeEvent(QResizeEvent *event)
{
    if (m_columns != 0)
        m_fontSize = int(((width() - 2 * margin) / m_columns) * m_charRatio);
    if (m_fontSize > 0)
        m_font.setPixelSize(m_fontSize);
    QWidget::resizeEvent(event);
}

void Display::paintEvent(QPaintEvent *event)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
    painter.setFont(m_font);
    painter.setPen(QColor(Qt::white));
    if (m_rows < 1) {
        QWidget::paintEvent(event);
        return;
    }
    int top = margin;
    for (const QString &line : m_lines) {
        if (top >= height())
            break;
        const QRect row(QPoint(margin, top), QPoint(width() - margin - 1, top + m_fontSize - 1));
        painter.drawText(row, 0, line);
        top += m_fontSize;
    }
}
