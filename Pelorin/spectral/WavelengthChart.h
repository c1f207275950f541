#ifndef PELORIN_SPECTRAL_WAVELENGTHCHART_H
#define PELORIN_SPECTRAL_WAVELENGTHCHART_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/spectral/FluorophoreData.h"
#include "Pelorin/theme/Converter.h"

#include <QAreaSeries>
#include <QChartView>
#include <QFont>
#include <QLineSeries>
#include <QMap>
#include <QPixmap>
#include <QPointer>
#include <QValueAxis>
#include <QVector>

#include <functional>

class ChartTable;
class FluorophoreTagName;
class QCheckBox;
class QDir;
class QGraphicsPixmapItem;
class QGraphicsProxyWidget;
class QGraphicsTextItem;
class QLabel;
class QTimer;
class SeriesLayer;
class ZoomResetProxy;

/// The spectral display of an instrument: over wavelength in nm it shows what a spectrometer
/// measures, the band that a laser is set to, and the excitation and emission curves of dyes. Above
/// the plot lie a rainbow and a row of controls.
///
/// Values reach the chart by its slots, in the unit that was announced; nothing is converted. What
/// the operator does on it leaves by its signals. The setters report the stored values even when
/// nothing changed, which keeps several charts in step.
///
/// A spectrum may come as fast as the instrument delivers it: only the curve that changed is drawn
/// anew.
///
/// Widgets and scene items belong to the view. The series and axes belong to chart(), where an
/// application finds them.
class PELORIN_EXPORT WavelengthChart : public QtCharts::QChartView
{
    Q_OBJECT

public:
    /// What the chart holds for a dye.
    struct tFluorophoreViewData : tFluorophoreData
    {
        FluorophoreTagName *nameTag = nullptr; ///< owned by the scene
        QColor color;                          ///< not used by the chart
        QPointF excitationPeak;
        QPointer<QtCharts::QLineSeries> excitationLine;
        QPointer<QtCharts::QAreaSeries> excitationArea;
        QPointF emissionPeak; ///< of the full curve, whatever the laser excites
        QPointer<QtCharts::QLineSeries> emissionLine;
        QPointer<QtCharts::QAreaSeries> emissionArea;
    };

    /// 350 to 800 nm, with a synthetic spectrum and filter, so that it is never blank. The number is
    /// not used.
    explicit WavelengthChart(int unused, QWidget *parent = nullptr);
    ~WavelengthChart() override;

    /// The smallest size at which all controls have room.
    QSize sizeHint() const override;

    /// The power axis of the spectrum as it was last set; -10 and 100 before.
    double minPower() const { return m_spectrumPowerMin; }
    double maxPower() const { return m_spectrumPowerMax; }
    /// The range in nm as it was last set; the axis may reach out to rounder numbers.
    double minWavelength() const { return m_minWavelength; }
    double maxWavelength() const { return m_maxWavelength; }
    /// The axis of the power setpoint as it was last set; -10 and 100 before.
    double minFilterPower() const { return m_filterPowerMin; }
    double maxFilterPower() const { return m_filterPowerMax; }

    /// A million divided by \a wavelength, as an application is used to show a wavenumber.
    static double wavelengthToWavenumber(double wavelength);

    /// The colour of light of \a wavelength nm on a chart from \a min to \a max nm: from the ends of
    /// the visible band it fades to white. \a alpha from 0 to 1; more counts as 1, less gives an
    /// invalid colour.
    static QColor generateRgbColor(double wavelength, double min, double max, double alpha);

    /// All dyes, in the order of their ids.
    void getFluorophores(QList<tFluorophoreData> &fluorophores) const;

    /// The highest of \a points, the first of several; (0, 0) if none is above 0.
    static void getSeriesPeakPoint(const QVector<QPointF> &points, QPointF &peak);

    /// The colour of light at the peak of \a points on the present axis.
    QColor getFluorophoreColor(const QVector<QPointF> &points) const;

    /// The part, from 0 to 1, of what a laser line of \a bandwidth nm at \a wavelength nm excites of
    /// a dye: the largest value of the curve within the band and at the first point past it. Without
    /// a bandwidth, the straight line through the points at and past the wavelength. 0 beyond the end
    /// of the curve. \a excitation is in percent, sorted by wavelength.
    static double getExcitationScale(double wavelength, double bandwidth,
                                     const QVector<QPointF> &excitation);

    /// All curves as a table, hidden ones too: a line of quoted titles, then a line of numbers with two
    /// decimals for each wavelength, parted by \a separator. The wavelengths are the whole ones of the
    /// range and those between at which a curve has a point. Other curves are interpolated there, and
    /// are 0 before their first and after their last point. An emission is as the chart shows it.
    ///
    /// A name goes into the titles as it is, whatever it holds. A range of more than 100,000 nm is cut
    /// off there.
    QString generateCSVContent(QChar separator) const;

    /// Whether \a a and \a b differ by no more than \a ulp steps of rounding of their sum, or by less
    /// than the smallest normal number.
    static bool almostEqual(double a, double b, int ulp);

Q_SIGNALS:
    void sigSpectrumPowerRangeChanged(double min, double max);
    void sigWavelengthRangeChanged(double min, double max);
    void sigFilterPowerRangeChanged(double min, double max);
    /// The spectrum was shown or hidden, by the operator or by setSpectrometerVisibility().
    void sigSpectrometerVisibilityChanged(bool visible);
    /// The operator has clicked one of the three boxes.
    void sigFluorophoreVisibilityStateChanged(bool showExcitation, bool showEmission,
                                              bool dynamicEmission);
    /// The operator has chosen where and as what to save the chart; the application keeps it for the
    /// next start.
    void sigChartSaveFilterTypeChanged(QString filter);
    void sigChartSaveFoldernameChanged(QString folder);

public Q_SLOTS:
    /// For demonstrations: gives one point of the spectrum another power, at random. Does nothing
    /// with fewer than two points.
    void appendRandomData();

    /// The range in nm. The axis may reach out to rounder numbers. The laser line is kept inside in
    /// silence. Emits sigWavelengthRangeChanged(), also if nothing changed. Ignored if not finite; a
    /// range without span is stored, and the axis keeps what it has.
    void setWavelengthRange(double min, double max);

    /// Range and unit of the power axis on the left. From 0 to 0 is stored as 0 to 0.001. Emits
    /// sigSpectrumPowerRangeChanged() with what is stored. Ignored if not finite.
    void setSpectrumPowerRange(double min, double max, Converter::pwrType powerType);
    void setSpectrumPowerRangeVisible(bool visible);

    /// Range and unit of the setpoint axis on the right. Emits sigFilterPowerRangeChanged(). Ignored
    /// if not finite.
    void setFilterPowerRange(double min, double max, Converter::pwrType powerType);
    void setFilterPowerRangeVisible(bool visible);

    /// Shows \a totalPower over the plot, in the unit and with the decimals of \a powerType.
    void setTotalPower(double totalPower, Converter::pwrType powerType);
    void setTotalPowerVisible(bool visible);

    /// The measured curve: nm, and power per nm, in the order in which it is to be drawn. Points
    /// outside of the axes are clipped; what is not finite is left out.
    void setSpectrometerData(QVector<QPointF> serie);

    /// Shows or hides the measured curve. Emits sigSpectrometerVisibilityChanged().
    void setSpectrometerVisibility(bool visible);

    /// What the laser is set to: centre and width of its band in nm, and its power on the axis on the
    /// right. The centre is kept within the range. With dynamic emission the dyes follow. Ignored if
    /// not finite.
    void setWavelengthBandwidthPower(double wavelength, double bandwidth, double power);

    /// Adds a dye, or updates the one that has its id.
    void addFluorophore(tFluorophoreData fluorophoreData);
    /// Replaces all data of a dye. An unknown id is ignored, here and below.
    void updFluorophore(tFluorophoreData fluorophoreData);
    /// Replaces name and description of a dye.
    void updFluorophore(tFluorophoreDetails fluorophoreDetails);
    void delFluorophore(tFluorophoreDetails fluorophoreDetails);
    void delFluorophore(uint fluorophoreId);
    void delFluorophores();
    /// Shows exactly these dyes. Those that stay keep their series.
    void setFluorophores(tFluorophoreDataList fluorophores);
    void removeAllFluorophores();

    /// What of the dyes is shown, and whether an emission shows only what the laser excites. Silent.
    void setFluorophoreVisibilityState(bool excitationVisible, bool emissionVisible,
                                       bool dynamicEmssion);
    /// Shows or hides all dyes and their boxes; hidden at first. Silent.
    void setFluorophoresVisible(bool visible);

    /// What the save dialog offers first. Silent.
    void setChartSaveFilterType(QString filter);
    void setChartSaveFoldername(QString folder);

protected:
    /// Beside the pointer the chart tells wavelength, power and setpoint there, or what is known of the
    /// dye whose tag lies there. The texts vanish five seconds after the last move, or as soon as the
    /// pointer has left the plot.
    void mouseMoveEvent(QMouseEvent *event) override;
    /// The left button has dragged a range to zoom into; the right one goes back to the whole range.
    void mouseReleaseEvent(QMouseEvent *event) override;
    /// Hides wavelength and power. The setpoint stays until its time is over.
    void focusOutEvent(QFocusEvent *event) override;

    void generateSpectrum();
    void refreshFilterIllustration();
    void generateBackBrush();
    void refreshZoom();
    void refreshDisplayControls();
    void refreshFluorophoreData(tFluorophoreViewData &view);
    void refreshFluorophoreEmission(tFluorophoreViewData &view, double scale);
    void refreshFluorophoreNameTag(tFluorophoreViewData &view, double scale);

private Q_SLOTS:
    void priPlotAreaChanged(QRectF plotArea);
    void priFluorophoreRangeChanged(double min, double max);
    void priScaleChanged();
    void priCoordTimeout();
    void priSaveChartClicked(bool checked);
    void priShowSpectrometerClicked(bool checked);
    void priZoomReset();
    void priShowExcitationClicked(bool checked);
    void priShowEmissionClicked(bool checked);
    void priShowDynamicClicked(bool checked);
    void updateSeries();

private:
    enum VisibilityPart { ExcitationPart = 1, EmissionPart = 2, TagPart = 4 };

    void setUpView();
    void createControls();
    void createControlRow();
    void createCoordinates();
    void createSpectrum();
    void createFilter();
    QCheckBox *makeBox(const QString &text, const QString &toolTip);

    void refreshLayout();
    void showAxis(QtCharts::QValueAxis &axis, double min, double max, const QString &title,
                  Converter::pwrType powerType);
    void showSpectrometer(bool visible);
    double scaleOf(const tFluorophoreViewData &view, double wavelength) const;
    double scaleOf(const tFluorophoreViewData &view) const;
    void forEachFluorophore(const std::function<void(tFluorophoreViewData &)> &action);
    void addCurve(QPointer<QtCharts::QLineSeries> &line, QPointer<QtCharts::QAreaSeries> &area);
    void removeCurve(const QPointer<QtCharts::QLineSeries> &line,
                     const QPointer<QtCharts::QAreaSeries> &area);
    void applyVisibility(const tFluorophoreViewData &view, int parts);
    void emitVisibilityState();

    void showReadout(QPoint pointer);
    QString descriptionAt(QPoint pointer) const;
    void showTagReadout(QPoint pointer, const QString &description);
    void showCoordinates(QPoint pointer);
    void placeReadout(QPoint pointer, const QVector<QGraphicsTextItem *> &lines);

    ChartTable makeTable() const;
    bool provideDirectory(const QDir &directory);
    void saveImage(const QPixmap &picture, const QString &fileName);
    void saveData(const QString &fileName);

    QtCharts::QChart *m_chart;
    QPixmap m_backPixmap;
    QGraphicsPixmapItem *m_backItem = nullptr;
    QFont m_baseFont;
    QFont m_coordFont;
    QFont m_controlFont;
    double m_spectrumPowerMin = -10.0;
    double m_spectrumPowerMax = 100.0;
    Converter::pwrType m_spectrumPowerType = Converter::pwrMW3;
    double m_wavelength = 450.0;
    double m_bandwidth = 5.0;
    double m_minWavelength = 350.0;
    double m_maxWavelength = 800.0;
    double m_filterPower = 10.0;
    double m_filterPowerMin = -10.0;
    double m_filterPowerMax = 100.0;
    Converter::pwrType m_filterPowerType = Converter::pwrMW3;
    double m_wavenumberMin = 1.0e6 / 350.0;
    double m_wavenumberMax = 1250.0;
    bool m_spectrometerVisible = true;
    bool m_fluorophoresVisible = false;
    bool m_excitationVisible = true;
    bool m_emissionVisible = true;
    bool m_dynamicEmission = true;
    QString m_chartSaveFilterType;
    QString m_chartSaveFoldername;
    QCheckBox *m_zoomResetButton = nullptr;
    ZoomResetProxy *m_zoomResetProxy = nullptr;
    QCheckBox *m_saveChartButton = nullptr;
    QCheckBox *m_spectrometerCheckBox = nullptr;
    QLabel *m_totalPowerValue = nullptr;
    QWidget *m_totalPowerContainer = nullptr;
    Converter::pwrType m_totalPowerType = Converter::pwrMW3;
    QCheckBox *m_excitationCheckBox = nullptr;
    QCheckBox *m_emissionCheckBox = nullptr;
    QCheckBox *m_dynamicCheckBox = nullptr;
    QWidget *m_fluorophoreControls = nullptr;
    QGraphicsProxyWidget *m_controlsProxy = nullptr;
    QGraphicsTextItem *m_coordText1 = nullptr;
    QGraphicsTextItem *m_coordText2 = nullptr;
    QGraphicsTextItem *m_coordText3 = nullptr;
    QTimer *m_coordTimer = nullptr;
    QPointer<QtCharts::QLineSeries> m_spectrumSeries;
    QtCharts::QValueAxis *m_wavelengthAxis = nullptr;
    QtCharts::QValueAxis *m_powerAxis = nullptr;
    QPointer<QtCharts::QLineSeries> m_filterSeries;
    QPointer<QtCharts::QAreaSeries> m_filterArea;
    QtCharts::QValueAxis *m_filterAxis = nullptr;
    QtCharts::QValueAxis *m_fluorophoreAxis = nullptr;
    QMap<unsigned int, tFluorophoreViewData> m_fluorophores;
    SeriesLayer *m_layer = nullptr;
};

#endif
