#include "Pelorin/spectral/WavelengthChart.h"

#include "Pelorin/spectral/FluorophoreTagName.h"

#include <QFocusEvent>
#include <QFontMetrics>
#include <QGraphicsTextItem>
#include <QMouseEvent>
#include <QRegularExpression>
#include <QTextStream>
#include <QTimer>

#include <algorithm>

using QtCharts::QChartView;
using QtCharts::QValueAxis;

namespace {

constexpr int longestLine = 50;
constexpr double readoutHeight = 100.0; ///< over all else in the scene

/// The time in which Qt lays out tables within tables doubles with each of them.
constexpr int mostTables = 8;

/// How far the lines of a read-out are from the pointer, to either side of it.
constexpr int firstGap = 2;
constexpr int gap = 10;

bool isOn(const QValueAxis &axis, double value)
{
    return value >= axis.min() && value <= axis.max();
}

QString spaced(const QString &line)
{
    return QLatin1String("&nbsp;") + line + QLatin1String("&nbsp;");
}

/// Lines of at most fifty characters. A description may have markup.
QStringList linesOf(QString description)
{
    static const QRegularExpression table(QStringLiteral("<\\s*table"),
                                          QRegularExpression::CaseInsensitiveOption);
    const bool plain = description.count(table) > mostTables;
    QStringList result;
    QTextStream stream(&description, QIODevice::ReadOnly);
    while (!stream.atEnd()) {
        const QString line = stream.readLine(longestLine);
        result.append(spaced(plain ? line.toHtmlEscaped() : line));
    }
    return result;
}

QString tagHtml(const QString &text)
{
    return QStringLiteral("<div style='padding: 2px; color: #FFFFFF; "
                          "background-color: rgba(64, 64, 64, 0.7);'>%1</div>")
        .arg(text);
}

QString powerHtml(const QString &text)
{
    return QStringLiteral("<div style='display: inline-block; padding: 2px; color: #FFFFFF; "
                          "background-color: rgba(64, 64, 64, 0.7); border-radius: 5px;'>"
                          "&nbsp;%1&nbsp;</div>")
        .arg(text);
}

/// A move that says the same as the one before does not lay out the text again.
void setHtml(QGraphicsTextItem &item, const QString &html)
{
    constexpr int shownHtml = 0;
    if (item.data(shownHtml).toString() == html)
        return;
    item.setHtml(html);
    item.setData(shownHtml, html);
}

} // namespace

void WavelengthChart::mouseMoveEvent(QMouseEvent *event)
{
    showReadout(event->pos());
    QChartView::mouseMoveEvent(event);
}

void WavelengthChart::mouseReleaseEvent(QMouseEvent *event)
{
    if (event->button() != Qt::RightButton) {
        QChartView::mouseReleaseEvent(event);
        return;
    }
    m_chart->zoomReset(); // entirely, where the base class goes back a step
}

void WavelengthChart::focusOutEvent(QFocusEvent *event)
{
    m_coordText1->hide();
    m_coordText2->hide();
    QGraphicsView::focusOutEvent(event);
}

void WavelengthChart::priCoordTimeout()
{
    m_coordText1->hide();
    m_coordText2->hide();
    m_coordText3->hide();
}

void WavelengthChart::showReadout(QPoint pointer)
{
    const QString description = descriptionAt(pointer);
    if (!description.isEmpty()) {
        showTagReadout(pointer, description);
    } else if (m_chart->plotArea().contains(pointer)) {
        showCoordinates(pointer);
    } else {
        priCoordTimeout();
        m_coordTimer->stop();
    }
}

/// Of the first tag under the pointer that has one.
QString WavelengthChart::descriptionAt(QPoint pointer) const
{
    if (!m_fluorophoresVisible)
        return QString();
    const QPointF place = m_chart->mapToScene(pointer);
    for (const tFluorophoreViewData &view : m_fluorophores) {
        const QRectF tag(view.nameTag->pos(), view.nameTag->boundingRect().size());
        if (!view.description.isEmpty() && tag.contains(place))
            return view.description;
    }
    return QString();
}

void WavelengthChart::showTagReadout(QPoint pointer, const QString &description)
{
    QStringList body = linesOf(description);
    setHtml(*m_coordText1, tagHtml(body.takeFirst()));
    setHtml(*m_coordText2, tagHtml(body.join(QLatin1String("<br>"))));
    placeReadout(pointer, { m_coordText1, m_coordText2 });
    m_coordText1->show();
    m_coordText2->setVisible(!body.isEmpty());
    m_coordText3->hide();
    m_coordTimer->start();
}

void WavelengthChart::showCoordinates(QPoint pointer)
{
    if (!m_spectrumSeries || !m_filterSeries)
        return;
    const QPointF value = m_chart->mapToValue(pointer, m_spectrumSeries);
    const double setpoint = m_chart->mapToValue(pointer, m_filterSeries).y();
    if (!isOn(*m_wavelengthAxis, value.x()) || !isOn(*m_powerAxis, value.y()))
        return;
    const auto number = [](double power) { return QString::number(power, 'f', 3); };
    const auto unit = [](Converter::pwrType type) {
        return Converter::getPowerTypeStr(type, QString());
    };
    setHtml(*m_coordText1,
            QStringLiteral("<div style='padding: 2px; color: #FFFFFF; "
                           "background-color: rgba(64, 64, 64, 0.7); border: solid 1px; "
                           "border-radius: 5px;'>&nbsp;%1nm&nbsp;</div>")
                .arg(QString::number(value.x(), 'f', 1)));
    setHtml(
        *m_coordText2,
        powerHtml(tr("Power output [%1%2/nm]").arg(number(value.y()), unit(m_spectrumPowerType))));
    setHtml(*m_coordText3,
            powerHtml(tr("Power setpoint %1%2").arg(number(setpoint), unit(m_filterPowerType))));
    placeReadout(pointer, { m_coordText1, m_coordText2, m_coordText3 });
    m_coordText1->show();
    m_coordText2->show();
    m_coordText3->show();
    m_coordTimer->start();
}

/// The first line over the pointer, the others below it: to the right of it, or all to the left if
/// one has not enough room up to the end of the plot.
void WavelengthChart::placeReadout(QPoint pointer, const QVector<QGraphicsTextItem *> &lines)
{
    const QPoint plotEnd = m_chart->plotArea().topRight().toPoint();
    const int room = mapToGlobal(plotEnd).x() - mapToGlobal(pointer).x();
    const int height = QFontMetrics(m_coordFont).height();
    QVector<int> reaches;
    for (const QGraphicsTextItem *line : lines) {
        const int width = QFontMetrics(line->font()).horizontalAdvance(line->toPlainText());
        reaches.append(width + (reaches.isEmpty() ? firstGap : gap));
    }
    const bool flipped =
        std::any_of(reaches.cbegin(), reaches.cend(), [room](int reach) { return room < reach; });
    for (int i = 0; i < lines.size(); ++i) {
        const int right = i == 0 ? firstGap : gap;
        const int y = i == 0 ? -(height + 4) : (i - 1) * height - 4;
        lines.at(i)->setPos(pointer + QPoint(flipped ? -reaches.at(i) : right, y));
        lines.at(i)->setZValue(readoutHeight);
    }
}
