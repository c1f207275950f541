#include "Pelorin/controls/VerticalLabel.h"

#include "Pelorin/controls/FixedSize_p.h"
#include "Pelorin/theme/StyledBackground_p.h"

#include <QFontMetrics>

VerticalLabel::VerticalLabel(QWidget *parent)
    : VerticalLabel(QString(), parent)
{}

VerticalLabel::VerticalLabel(const QString &text, QWidget *parent)
    : QLabel(parent)
{
    setText(text);
}

void VerticalLabel::setFontSize(int points)
{
    m_fontSize = points;
    refreshSize();
}

void VerticalLabel::setFontColor(QColor color)
{
    m_fontColor = color;
    update();
}

void VerticalLabel::setText(const QString &text)
{
    QLabel::setText(text);
    refreshSize();
}

QFont VerticalLabel::textFont() const
{
    return QFont(QStringLiteral("Calibri"), m_fontSize);
}

void VerticalLabel::refreshSize()
{
    const QFontMetrics metrics(textFont());
    setFixedWidth(boundedLength(metrics.height()));
    setMinimumHeight(boundedLength(metrics.horizontalAdvance(text())));
    m_indentOffset =
        indent() < 1
            ? 0
            : boundedLength(qint64(metrics.horizontalAdvance(QLatin1Char('X')) / 2) * indent());
    update();
}

QSize VerticalLabel::sizeHint() const
{
    return QSize(minimumWidth(), QWIDGETSIZE_MAX);
}

QSize VerticalLabel::minimumSizeHint() const
{
    return minimumSize();
}

void VerticalLabel::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    drawStyledBackground(painter, *this);
    painter.setFont(textFont());
    painter.translate(width(), 0);
    painter.rotate(90.0);
    painter.setPen(m_fontColor);
    const QRect place(QPoint(m_indentOffset, 0), QPoint(height() - 1, width() - 1));
    painter.drawText(place, int(alignment()), text());
}
