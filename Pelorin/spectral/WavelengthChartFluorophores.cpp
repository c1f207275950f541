#include "Pelorin/spectral/WavelengthChart.h"

#include "Pelorin/spectral/FluorophoreTagName.h"
#include "Pelorin/spectral/SeriesLayer_p.h"

#include <QCheckBox>
#include <QGraphicsPixmapItem>
#include <QSet>
#include <QSignalBlocker>

#include <algorithm>

using QtCharts::QAreaSeries;
using QtCharts::QLineSeries;

namespace {

constexpr double smallestRaisedScale = 0.01;

/// The points as Qt Charts can draw them.
QVector<QPointF> drawable(const QVector<QPointF> &points, double scale = 1.0)
{
    QVector<QPointF> result;
    result.reserve(points.size());
    for (const QPointF &point : points) {
        const QPointF scaled(point.x(), point.y() * scale);
        if (qIsFinite(scaled.x()) && qIsFinite(scaled.y()))
            result.append(scaled);
    }
    return result;
}

/// Where the area has been deleted from outside, Qt Charts still has an item that listens to the
/// line, and would look for it.
void replacePoints(QLineSeries *line, const QAreaSeries *area, const QVector<QPointF> &points)
{
    if (line && area)
        line->replace(points);
}

} // namespace

void WavelengthChart::getFluorophores(QList<tFluorophoreData> &fluorophores) const
{
    fluorophores.clear();
    for (const tFluorophoreViewData &view : m_fluorophores)
        fluorophores.append(view);
}

void WavelengthChart::getSeriesPeakPoint(const QVector<QPointF> &points, QPointF &peak)
{
    peak = QPointF(0.0, 0.0);
    for (const QPointF &point : points) {
        if (point.y() > peak.y())
            peak = point;
    }
}

QColor WavelengthChart::getFluorophoreColor(const QVector<QPointF> &points) const
{
    QPointF peak;
    getSeriesPeakPoint(points, peak);
    return generateRgbColor(peak.x(), m_wavelengthAxis->min(), m_wavelengthAxis->max(), 1.0);
}

double WavelengthChart::getExcitationScale(double wavelength, double bandwidth,
                                           const QVector<QPointF> &excitation)
{
    const double lower = wavelength - bandwidth * 0.5;
    const double upper = wavelength + bandwidth * 0.5;
    const QPointF *first = nullptr;
    const QPointF *last = nullptr;
    double highest = 0.0;
    for (const QPointF &point : excitation) {
        if (point.x() >= lower) {
            highest = first ? std::max(highest, point.y()) : point.y();
            first = first ? first : &point;
            last = &point;
        }
        if (point.x() > upper)
            break; // the first point past the band counts
    }
    if (!first)
        return 0.0;
    if (lower != upper)
        return highest * 0.01;
    if (first->x() == last->x())
        return first->y() * 0.01;
    const double slope = (last->y() - first->y()) / (last->x() - first->x());
    return (first->y() + (wavelength - first->x()) * slope) * 0.01;
}

void WavelengthChart::addFluorophore(tFluorophoreData fluorophoreData)
{
    if (m_fluorophores.contains(fluorophoreData.id)) {
        updFluorophore(fluorophoreData);
        return;
    }
    tFluorophoreViewData view;
    static_cast<tFluorophoreData &>(view) = fluorophoreData;
    addCurve(view.excitationLine, view.excitationArea);
    addCurve(view.emissionLine, view.emissionArea);
    view.nameTag = new FluorophoreTagName(view.name, view.description);
    scene()->addItem(view.nameTag);
    m_fluorophores.insert(view.id, view);
    refreshFluorophoreData(view);
}

void WavelengthChart::addCurve(QPointer<QLineSeries> &line, QPointer<QAreaSeries> &area)
{
    line = new QLineSeries(m_chart); // an area does not own its edge
    area = new QAreaSeries(line);
    m_layer->adopt(area);
    area->attachAxis(m_wavelengthAxis);
    area->attachAxis(m_fluorophoreAxis);
}

void WavelengthChart::updFluorophore(tFluorophoreData fluorophoreData)
{
    const auto found = m_fluorophores.find(fluorophoreData.id);
    if (found == m_fluorophores.end())
        return;
    static_cast<tFluorophoreData &>(*found) = fluorophoreData;
    tFluorophoreViewData view = *found;
    refreshFluorophoreData(view);
}

void WavelengthChart::updFluorophore(tFluorophoreDetails fluorophoreDetails)
{
    const auto found = m_fluorophores.find(fluorophoreDetails.id);
    if (found == m_fluorophores.end())
        return;
    found->name = fluorophoreDetails.name;
    found->description = fluorophoreDetails.description;
    tFluorophoreViewData view = *found;
    refreshFluorophoreData(view);
}

void WavelengthChart::delFluorophore(tFluorophoreDetails fluorophoreDetails)
{
    delFluorophore(fluorophoreDetails.id);
}

void WavelengthChart::delFluorophore(uint fluorophoreId)
{
    if (!m_fluorophores.contains(fluorophoreId))
        return;
    const tFluorophoreViewData view = m_fluorophores.take(fluorophoreId);
    removeCurve(view.excitationLine, view.excitationArea);
    removeCurve(view.emissionLine, view.emissionArea);
    m_layer->invalidate();
    delete view.nameTag; // leaves the scene
    if (m_fluorophores.isEmpty()) {
        generateBackBrush();
        m_fluorophoreControls->hide();
    }
}

void WavelengthChart::removeCurve(const QPointer<QLineSeries> &line,
                                  const QPointer<QAreaSeries> &area)
{
    if (area) {
        if (area->chart() == m_chart)
            m_chart->removeSeries(area);
        area->deleteLater();
    }
    if (line)
        line->deleteLater();
}

void WavelengthChart::delFluorophores()
{
    const QList<unsigned int> ids = m_fluorophores.keys();
    for (const unsigned int id : ids)
        delFluorophore(id);
}

void WavelengthChart::setFluorophores(tFluorophoreDataList fluorophores)
{
    QSet<unsigned int> listed;
    for (const tFluorophoreData &fluorophore : qAsConst(fluorophores)) {
        addFluorophore(fluorophore);
        listed.insert(fluorophore.id);
    }
    const QList<unsigned int> ids = m_fluorophores.keys();
    for (const unsigned int id : ids) {
        if (!listed.contains(id))
            delFluorophore(id);
    }
}

void WavelengthChart::removeAllFluorophores()
{
    delFluorophores();
    m_fluorophores.clear();
}

void WavelengthChart::refreshFluorophoreData(tFluorophoreViewData &view)
{
    const QColor color = getFluorophoreColor(view.emission);
    getSeriesPeakPoint(view.excitation, view.excitationPeak);
    replacePoints(view.excitationLine, view.excitationArea, drawable(view.excitation));
    if (view.excitationArea) {
        view.excitationArea->setName(QStringLiteral("%1-Excitation").arg(view.name));
        view.excitationArea->setColor(color);
        view.excitationArea->setPen(QPen(color, 2.0, Qt::DashLine));
        view.excitationArea->setBrush(QBrush());
    }
    getSeriesPeakPoint(view.emission, view.emissionPeak);
    replacePoints(view.emissionLine, view.emissionArea, drawable(view.emission));
    if (view.emissionArea) {
        view.emissionArea->setName(QStringLiteral("%1-Emission").arg(view.name));
        view.emissionArea->setColor(color);
        view.emissionArea->setPen(color);
        view.emissionArea->setBrush(QColor(color.red(), color.green(), color.blue(), 50));
    }
    view.nameTag->setNameDesc(view.name, view.description);
    applyVisibility(view, ExcitationPart | EmissionPart | TagPart);
    m_fluorophores.insert(view.id, view);

    const double scale = scaleOf(view);
    refreshFluorophoreEmission(view, scale);
    refreshFluorophoreNameTag(view, scale);
    m_fluorophoreControls->setVisible(m_fluorophoresVisible);
}

void WavelengthChart::refreshFluorophoreEmission(tFluorophoreViewData &view, double scale)
{
    replacePoints(view.emissionLine, view.emissionArea, drawable(view.emission, scale));
}

/// On the peak that is shown, or on the rainbow where there is none to stand on.
void WavelengthChart::refreshFluorophoreNameTag(tFluorophoreViewData &view, double scale)
{
    const bool onEmission = m_emissionVisible;
    const QPointer<QAreaSeries> &area = onEmission ? view.emissionArea : view.excitationArea;
    if (!area || (!onEmission && !m_excitationVisible))
        return;
    const QPointF peak = onEmission ? QPointF(view.emissionPeak.x(), view.emissionPeak.y() * scale)
                                    : view.excitationPeak;
    const QPointF top = m_chart->mapToPosition(peak, area);
    const QRectF plot = m_chart->plotArea();
    const QRectF tag = view.nameTag->boundingRect();
    const double stripY = m_backItem->y() - 2.0 + (m_chart->isZoomed() ? 6.0 : 0.0);
    const bool raised = onEmission && scale > smallestRaisedScale;
    const double x = std::min(std::max(top.x() - tag.width() * 0.5, plot.left()), plot.right());
    const double y = raised ? top.y() - tag.height() : stripY;
    if (qIsFinite(x) && qIsFinite(y))
        view.nameTag->setPos(x, y);
}

double WavelengthChart::scaleOf(const tFluorophoreViewData &view, double wavelength) const
{
    return m_dynamicEmission ? getExcitationScale(wavelength, m_bandwidth, view.excitation) : 1.0;
}

double WavelengthChart::scaleOf(const tFluorophoreViewData &view) const
{
    return scaleOf(view, m_wavelength);
}

/// On a copy of each, in the order of their ids: what is done may change the map.
void WavelengthChart::forEachFluorophore(const std::function<void(tFluorophoreViewData &)> &action)
{
    const QList<unsigned int> ids = m_fluorophores.keys();
    for (const unsigned int id : ids) {
        const auto found = m_fluorophores.constFind(id);
        if (found == m_fluorophores.cend())
            continue;
        tFluorophoreViewData view = *found;
        action(view);
    }
}

void WavelengthChart::applyVisibility(const tFluorophoreViewData &view, int parts)
{
    if ((parts & ExcitationPart) && view.excitationArea)
        view.excitationArea->setVisible(m_fluorophoresVisible && m_excitationVisible);
    if ((parts & EmissionPart) && view.emissionArea)
        view.emissionArea->setVisible(m_fluorophoresVisible && m_emissionVisible);
    if (parts & TagPart)
        view.nameTag->setVisible(m_fluorophoresVisible
                                 && (m_emissionVisible || m_excitationVisible));
}

void WavelengthChart::setFluorophoreVisibilityState(bool excitationVisible, bool emissionVisible,
                                                    bool dynamicEmssion)
{
    m_excitationVisible = excitationVisible;
    m_emissionVisible = emissionVisible;
    m_dynamicEmission = dynamicEmssion;
    forEachFluorophore([this](tFluorophoreViewData &view) {
        applyVisibility(view, ExcitationPart | EmissionPart | TagPart);
        const double scale = scaleOf(view);
        refreshFluorophoreEmission(view, scale);
        refreshFluorophoreNameTag(view, scale);
    });
    const QSignalBlocker excitation(m_excitationCheckBox);
    const QSignalBlocker emission(m_emissionCheckBox);
    const QSignalBlocker dynamic(m_dynamicCheckBox);
    m_excitationCheckBox->setChecked(excitationVisible);
    m_emissionCheckBox->setChecked(emissionVisible);
    m_dynamicCheckBox->setChecked(dynamicEmssion);
}

void WavelengthChart::setFluorophoresVisible(bool visible)
{
    m_fluorophoresVisible = visible;
    m_fluorophoreControls->setVisible(visible);
    forEachFluorophore([this](tFluorophoreViewData &view) {
        applyVisibility(view, ExcitationPart | EmissionPart | TagPart);
        const double scale = scaleOf(view);
        refreshFluorophoreEmission(view, scale);
        refreshFluorophoreNameTag(view, scale);
    });
}

void WavelengthChart::priShowExcitationClicked(bool checked)
{
    m_excitationVisible = checked;
    forEachFluorophore([this](tFluorophoreViewData &view) {
        applyVisibility(view, ExcitationPart | TagPart);
        refreshFluorophoreNameTag(view, scaleOf(view));
    });
    emitVisibilityState();
}

void WavelengthChart::priShowEmissionClicked(bool checked)
{
    m_emissionVisible = checked;
    forEachFluorophore([this](tFluorophoreViewData &view) {
        applyVisibility(view, EmissionPart | TagPart);
        const double scale = scaleOf(view);
        refreshFluorophoreEmission(view, scale);
        refreshFluorophoreNameTag(view, scale);
    });
    emitVisibilityState();
}

void WavelengthChart::priShowDynamicClicked(bool checked)
{
    m_dynamicEmission = checked;
    forEachFluorophore([this](tFluorophoreViewData &view) {
        applyVisibility(view, EmissionPart | TagPart);
        const double scale = scaleOf(view);
        refreshFluorophoreEmission(view, scale);
        refreshFluorophoreNameTag(view, scale);
    });
    emitVisibilityState();
}

void WavelengthChart::emitVisibilityState()
{
    Q_EMIT sigFluorophoreVisibilityStateChanged(m_excitationVisible, m_emissionVisible,
                                                m_dynamicEmission);
}

void WavelengthChart::priFluorophoreRangeChanged(double, double)
{
    forEachFluorophore([this](tFluorophoreViewData &view) {
        const double scale = scaleOf(view);
        if (m_emissionVisible && m_dynamicEmission)
            refreshFluorophoreEmission(view, scale);
        refreshFluorophoreNameTag(view, scale);
    });
}

void WavelengthChart::updateSeries()
{
    for (const tFluorophoreViewData &view : qAsConst(m_fluorophores)) {
        if (view.emissionLine && view.emissionArea)
            Q_EMIT view.emissionLine->pointsReplaced();
    }
}
