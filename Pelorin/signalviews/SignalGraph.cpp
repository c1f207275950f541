#include "Pelorin/signalviews/SignalGraph.h"

#include <QDebug>
#include <QLoggingCategory>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace {

constexpr QRgb ink = 0xFF444444;
constexpr QRgb curveColor = 0xFF87212E;
/// The axis, and where the curve begins behind it.
constexpr int axisX = 45;
constexpr int curveX = 46;

/// A block of a few hundred samples makes as many lines; nothing is put into words that nobody
/// takes.
bool isLogged()
{
    return QLoggingCategory::defaultCategory()->isDebugEnabled();
}

} // namespace

SignalGraph::SignalGraph(QWidget *parent)
    : QWidget(parent)
{
    constexpr int count = 314;
    setFixedHeight(200);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    QVector<short> sine(count);
    for (int i = 0; i < count; ++i)
        sine[i] = short(qRound(std::sin(i / 10.0) * 10000.0));
    insertData(sine, 0, count);
}

void SignalGraph::clearData()
{
    m_samples.clear();
}

void SignalGraph::insertData(QVector<short> block, unsigned int position, int count)
{
    if (m_samples.isEmpty() && !block.isEmpty()) {
        m_minValue = block.first();
        m_maxValue = block.first();
    }
    if (position > unsigned(m_samples.size()) || block.size() != count || count < 1)
        return;
    m_samples.insert(int(position), count, 0);
    std::copy(block.cbegin(), block.cend(), m_samples.begin() + int(position));
    const auto extremes = std::minmax_element(block.cbegin(), block.cend());
    m_minValue = std::min(m_minValue, *extremes.first);
    m_maxValue = std::max(m_maxValue, *extremes.second);
}

void SignalGraph::paintEvent(QPaintEvent *event)
{
    QWidget::paintEvent(event);
    QPainter painter(this);
    drawScale(painter);
    const int midLine = drawZeroLine(painter);
    if (m_samples.size() < 2 || width() - 1 <= curveX)
        return;
    const QPolygon points = curve(midLine);
    painter.setPen(QPen(QBrush(QColor::fromRgba(curveColor)), 2.0, Qt::SolidLine, Qt::SquareCap,
                        Qt::BevelJoin));
    painter.drawPolyline(points);
}

void SignalGraph::drawScale(QPainter &painter) const
{
    const int bottom = height() - 1;
    painter.setFont(QFont(QStringLiteral("Calibri"), 10));
    painter.setPen(QColor::fromRgba(ink));
    painter.drawText(QRect(QPoint(0, 0), QPoint(41, 14)), Qt::AlignRight | Qt::AlignVCenter,
                     QString::number(m_maxValue));
    painter.drawText(QRect(QPoint(0, bottom - 16), QPoint(41, bottom - 2)),
                     Qt::AlignRight | Qt::AlignVCenter, QString::number(m_minValue));
    painter.drawLine(axisX, 0, axisX, bottom - 1);
}

/// Returns where zero lies, also where that is off the graph. Samples that are all the same have no
/// extent, and lie in the middle.
int SignalGraph::drawZeroLine(QPainter &painter) const
{
    const double range = m_maxValue - m_minValue;
    const int bottom = height() - 1;
    const double room = bottom - 2;
    const auto part = [range](double value) { return range > 0.0 ? value / range : 0.5; };
    if (m_maxValue < 0)
        return qRound(part(m_maxValue) * room) + 1;
    if (m_minValue >= 1)
        return bottom + qRound(part(m_minValue) * room);
    const int midLine = qRound(room * part(m_maxValue)) + 1;
    painter.drawLine(axisX, midLine, width() - 2, midLine);
    if (isLogged())
        qDebug() << "MID LINE:" << midLine;
    return midLine;
}

QPolygon SignalGraph::curve(int midLine) const
{
    const double xDensity = double(m_samples.size()) / (width() - 1 - curveX);
    const double room = height() - 3;
    const double range = m_maxValue - m_minValue;
    const double yDensity = range / room;
    const bool logged = isLogged();
    if (logged) {
        qDebug() << "X DENSITY:" << xDensity;
        qDebug() << "Y DENSITY:" << yDensity;
    }
    QPolygon points;
    points.reserve(m_samples.size());
    for (int i = 0; i < m_samples.size(); ++i) {
        const double y = range > 0.0 ? midLine + 1 - m_samples.at(i) / yDensity : room / 2.0 + 1.0;
        points.append(QPoint(qRound(i / xDensity) + curveX, qRound(y)));
        if (logged)
            qDebug() << points.last();
    }
    return points;
}
