#include "Pelorin/spectral/WavelengthChart.h"

#include "Pelorin/spectral/SeriesLayer_p.h"
#include "Pelorin/spectral/ZoomResetProxy.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QCheckBox>
#include <QGraphicsLayout>
#include <QGraphicsPixmapItem>
#include <QGraphicsProxyWidget>
#include <QGraphicsTextItem>
#include <QHBoxLayout>
#include <QLabel>
#include <QLegend>
#include <QTimer>

using QtCharts::QAreaSeries;
using QtCharts::QChart;
using QtCharts::QChartView;
using QtCharts::QLineSeries;
using QtCharts::QValueAxis;

namespace {

constexpr int coordMs = 5000;
/// Room over the plot for the rainbow and the controls.
constexpr int topMargin = 55;

const QColor chartGround(246, 246, 246);
const QColor plotGround(33, 32, 33);
const QColor filterColor(226, 226, 226, 80);

QFont calibri(int points, int weight = -1)
{
    return QFont(QStringLiteral("Calibri"), points, weight);
}

QHBoxLayout *bareRow(QWidget *parent)
{
    auto *row = new QHBoxLayout(parent);
    row->setContentsMargins(0, 0, 0, 0);
    return row;
}

QValueAxis *makeAxis(double min, double max, const char *labelFormat)
{
    auto *axis = new QValueAxis;
    axis->setRange(min, max);
    axis->setLabelFormat(QLatin1String(labelFormat));
    axis->setGridLineVisible(false);
    axis->setTitleFont(calibri(12, 75));
    axis->setLabelsFont(calibri(10));
    return axis;
}

} // namespace

WavelengthChart::WavelengthChart(int, QWidget *parent)
    : QChartView(parent)
    , m_chart(chart())
    , m_baseFont(calibri(9))
    , m_coordFont(calibri(9))
    , m_controlFont(calibri(9))
{
    qRegisterMetaType<tFluorophoreData>();
    qRegisterMetaType<tFluorophoreDetails>();
    qRegisterMetaType<tFluorophoreDataList>("tFluorophoreDataList");
    setUpView();
    createControls();
    createControlRow();
    createCoordinates();
    createSpectrum();
    createFilter();
    generateSpectrum();
    m_layer->setPlotArea(m_chart->plotArea());
}

WavelengthChart::~WavelengthChart() = default;

QSize WavelengthChart::sizeHint() const
{
    return minimumSize();
}

void WavelengthChart::setUpView()
{
    setProperty(StyleProperty::type, StyleType::chartBackWidget);
    setRenderHint(QPainter::Antialiasing);
    setMinimumSize(650, 330);
    setSizePolicy(QSizePolicy::MinimumExpanding, QSizePolicy::Minimum);
    setBackgroundBrush(chartGround);
    setRubberBand(QChartView::HorizontalRubberBand);

    connect(m_chart, &QChart::plotAreaChanged, this, &WavelengthChart::priPlotAreaChanged);
    m_chart->setFocusPolicy(Qt::NoFocus);
    m_chart->setContentsMargins(0.0, 0.0, 0.0, 0.0);
    m_chart->layout()->setContentsMargins(0.0, 0.0, 0.0, 0.0);
    m_chart->setMargins(QMargins(0, topMargin, 0, 0));
    m_chart->setBackgroundVisible(true);
    m_chart->setBackgroundRoundness(0.0);
    m_chart->setBackgroundBrush(chartGround);
    m_chart->setPlotAreaBackgroundBrush(plotGround);
    m_chart->setPlotAreaBackgroundVisible(true);
    m_chart->legend()->hide();
}

void WavelengthChart::createControls()
{
    m_zoomResetButton = new QCheckBox;
    m_zoomResetButton->setProperty(StyleProperty::type, StyleType::chartZoomResetButton);
    m_zoomResetButton->setFont(m_controlFont);
    m_zoomResetButton->setContentsMargins(0, 0, 0, 0);
    m_zoomResetButton->setToolTip(tr("Reset zoom"));
    connect(m_zoomResetButton, &QCheckBox::clicked, this, &WavelengthChart::priZoomReset);
    m_zoomResetProxy = new ZoomResetProxy;
    m_zoomResetProxy->setWidget(m_zoomResetButton);
    scene()->addItem(m_zoomResetProxy);
    m_zoomResetProxy->hide();

    m_saveChartButton = new QCheckBox;
    m_saveChartButton->setProperty(StyleProperty::type, StyleType::chartSaveButton);
    m_saveChartButton->setToolTip(tr("Save chart as image or CSV data"));
    connect(m_saveChartButton, &QCheckBox::toggled, this, &WavelengthChart::priSaveChartClicked);
    m_spectrometerCheckBox = makeBox(tr("Spectrometer"), tr("Show spectrometer"));
    connect(m_spectrometerCheckBox, &QCheckBox::toggled, this,
            &WavelengthChart::priShowSpectrometerClicked);

    m_excitationCheckBox = makeBox(tr("Excitation"), tr("Show fluorophore excitation"));
    m_emissionCheckBox = makeBox(tr("Emission"), tr("Show fluorophore emission"));
    m_dynamicCheckBox = makeBox(tr("Dynamic"), tr("Show dynamic emission"));
    connect(m_excitationCheckBox, &QCheckBox::toggled, this,
            &WavelengthChart::priShowExcitationClicked);
    connect(m_emissionCheckBox, &QCheckBox::toggled, this,
            &WavelengthChart::priShowEmissionClicked);
    connect(m_dynamicCheckBox, &QCheckBox::toggled, this, &WavelengthChart::priShowDynamicClicked);
}

QCheckBox *WavelengthChart::makeBox(const QString &text, const QString &toolTip)
{
    auto *box = new QCheckBox(text);
    box->setProperty(StyleProperty::type, StyleType::chartVisibilityCheckBox);
    box->setFont(m_controlFont);
    box->setContentsMargins(0, 0, 0, 0);
    box->setToolTip(toolTip);
    box->setChecked(true);
    return box;
}

void WavelengthChart::createControlRow()
{
    auto *title = new QLabel(tr("Total power:"));
    title->setProperty(StyleProperty::type, StyleType::chartTotalPowerTitle);
    m_totalPowerValue = new QLabel(QStringLiteral("0.000 mW"));
    m_totalPowerValue->setProperty(StyleProperty::type, StyleType::chartTotalPowerValue);
    m_totalPowerContainer = new QWidget;
    m_totalPowerContainer->setProperty(StyleProperty::type, StyleType::chartTotalPowerContainer);
    QHBoxLayout *const power = bareRow(m_totalPowerContainer);
    power->addWidget(title);
    power->addWidget(m_totalPowerValue);

    m_fluorophoreControls = new QWidget;
    QHBoxLayout *const boxes = bareRow(m_fluorophoreControls);
    boxes->addWidget(m_excitationCheckBox);
    boxes->addWidget(m_emissionCheckBox);
    boxes->addWidget(m_dynamicCheckBox);
    m_fluorophoreControls->hide();

    auto *container = new QWidget;
    container->setProperty(StyleProperty::type, StyleType::chartControlContainer);
    QHBoxLayout *const row = bareRow(container);
    row->addWidget(m_saveChartButton);
    row->addWidget(m_spectrometerCheckBox);
    row->addWidget(m_totalPowerContainer, 1, Qt::AlignHCenter);
    row->addWidget(m_fluorophoreControls);
    m_controlsProxy = scene()->addWidget(container);
    m_controlsProxy->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
}

void WavelengthChart::createCoordinates()
{
    m_backItem = scene()->addPixmap(QPixmap());
    m_coordText1 = scene()->addText(QString(), m_coordFont);
    m_coordText2 = scene()->addText(QString(), m_coordFont);
    m_coordText3 = scene()->addText(QString(), m_coordFont);
    m_coordTimer = new QTimer(this);
    m_coordTimer->setSingleShot(true);
    m_coordTimer->setInterval(coordMs);
    connect(m_coordTimer, &QTimer::timeout, this, &WavelengthChart::priCoordTimeout);
}

void WavelengthChart::createSpectrum()
{
    m_spectrumSeries = new QLineSeries;
    m_spectrumSeries->setPen(QPen(Qt::white, 2.0, Qt::SolidLine, Qt::SquareCap, Qt::BevelJoin));
    m_chart->addSeries(m_spectrumSeries);

    m_wavelengthAxis = makeAxis(m_minWavelength, m_maxWavelength, "%.0f");
    m_wavelengthAxis->setTitleText(tr("Wavelength in nm"));
    m_wavelengthAxis->setTickCount(20);
    connect(m_wavelengthAxis, &QValueAxis::rangeChanged, this, &WavelengthChart::priScaleChanged);

    m_powerAxis = makeAxis(0.0, 2.0, "%.3f");
    m_powerAxis->setTitleText(tr("Power output in [%1/nm]").arg(QStringLiteral("mW")));
    m_chart->addAxis(m_wavelengthAxis, Qt::AlignBottom);
    m_chart->addAxis(m_powerAxis, Qt::AlignLeft);
    m_spectrumSeries->attachAxis(m_wavelengthAxis);
    m_spectrumSeries->attachAxis(m_powerAxis);
}

/// All that lies over the spectrum is drawn by the layer.
void WavelengthChart::createFilter()
{
    m_layer = new SeriesLayer(m_chart);
    m_filterSeries = new QLineSeries;
    m_filterSeries->setPen(QPen(filterColor, 1));
    m_layer->adopt(m_filterSeries);
    m_filterAxis = makeAxis(0.0, 100.0, "%.3f");
    m_filterAxis->setTitleText(tr("Power setpoint in %1").arg(QStringLiteral("mW")));
    m_filterAxis->setVisible(false);
    m_chart->addAxis(m_filterAxis, Qt::AlignRight);
    m_filterSeries->attachAxis(m_filterAxis);

    m_filterArea = new QAreaSeries(m_filterSeries);
    m_layer->adopt(m_filterArea);
    m_filterArea->attachAxis(m_wavelengthAxis);
    m_filterArea->attachAxis(m_filterAxis);
    m_filterArea->setColor(filterColor);
    m_filterArea->setPen(filterColor);
    m_filterArea->setBrush(filterColor);

    m_fluorophoreAxis = makeAxis(0.0, 100.0, "%.3f");
    m_fluorophoreAxis->setVisible(false);
    m_chart->addAxis(m_fluorophoreAxis, Qt::AlignRight);
    connect(m_fluorophoreAxis, &QValueAxis::rangeChanged, this,
            &WavelengthChart::priFluorophoreRangeChanged);
    for (const QValueAxis *axis : { m_wavelengthAxis, m_filterAxis, m_fluorophoreAxis })
        connect(axis, &QValueAxis::rangeChanged, m_layer, &SeriesLayer::invalidate);
    // Qt Charts moves the labels of an axis and leaves crumbs of those that were there.
    const auto repaint = [this] { viewport()->update(); };
    for (const QValueAxis *axis : { m_wavelengthAxis, m_powerAxis, m_filterAxis }) {
        connect(axis, &QValueAxis::rangeChanged, this, repaint);
        connect(axis, &QValueAxis::titleTextChanged, this, repaint);
    }
    // An area whose upper edge has an axis already makes Qt Charts forget the range of that axis.
    m_filterAxis->setRange(0.0, 100.0);
    m_fluorophoreAxis->setRange(0.0, 100.0);
}

void WavelengthChart::priZoomReset()
{
    m_chart->zoomReset();
}
