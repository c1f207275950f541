#include "Pelorin/spectral/WavelengthChart.h"

#include "Pelorin/spectral/ChartTable_p.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QMessageBox>

#include <cmath>
#include <limits>

namespace {

constexpr int bestQuality = 100;

const char *formatOf(const QString &fileName)
{
    const QString suffix = QFileInfo(fileName).suffix().toLower();
    if (suffix == QLatin1String("jpg") || suffix == QLatin1String("jpeg"))
        return "JPG";
    return suffix == QLatin1String("bmp") ? "BMP" : "PNG";
}

QVector<QPointF> pointsOf(const QtCharts::QLineSeries *line)
{
    return line ? line->pointsVector() : QVector<QPointF>();
}

} // namespace

bool WavelengthChart::almostEqual(double a, double b, int ulp)
{
    const double distance = std::fabs(a - b);
    return distance <= std::fabs(a + b) * std::numeric_limits<double>::epsilon() * ulp
           || distance < std::numeric_limits<double>::min();
}

QString WavelengthChart::generateCSVContent(QChar separator) const
{
    return makeTable().text(separator);
}

/// All curves, shown or hidden, as the chart holds them.
ChartTable WavelengthChart::makeTable() const
{
    const auto unit = [](Converter::pwrType type) {
        return Converter::getPowerTypeStr(type, QString());
    };
    QVector<ChartTable::Curve> curves{
        { QStringLiteral("Filter (%1)").arg(unit(m_filterPowerType)), pointsOf(m_filterSeries) },
        { QStringLiteral("Spectrometer (%1)").arg(unit(m_spectrumPowerType)),
          pointsOf(m_spectrumSeries) }
    };
    for (const tFluorophoreViewData &view : m_fluorophores) {
        curves.append({ view.name + QStringLiteral(" Ex (%)"), pointsOf(view.excitationLine) });
        curves.append({ view.name + QStringLiteral(" Em (%)"), pointsOf(view.emissionLine) });
    }
    return ChartTable(m_minWavelength, m_maxWavelength, curves);
}

void WavelengthChart::setChartSaveFilterType(QString filter)
{
    m_chartSaveFilterType = filter;
}

void WavelengthChart::setChartSaveFoldername(QString folder)
{
    m_chartSaveFoldername = folder;
}

void WavelengthChart::priSaveChartClicked(bool)
{
    // Before the dialog covers the chart.
    const QPixmap picture = grab(m_chart->boundingRect().toRect());
    const QString imageFilter = tr("Image files (*.png *.jpg *.jpeg *.bmp)");
    const QStringList filters{ imageFilter, tr("Data files (*.csv *.txt)") };
    const QPointer<WavelengthChart> chart(this); // whoever is told below may delete it
    QString filter = m_chartSaveFilterType;
    const QString fileName = QFileDialog::getSaveFileName(
        this, tr("Save chart as image file or as data file"), m_chartSaveFoldername,
        filters.join(QLatin1String(";;")), &filter);
    if (fileName.isEmpty() || !chart)
        return;
    m_chartSaveFilterType = filter;
    m_chartSaveFoldername = QFileInfo(fileName).absolutePath();
    Q_EMIT sigChartSaveFilterTypeChanged(m_chartSaveFilterType);
    if (chart)
        Q_EMIT sigChartSaveFoldernameChanged(m_chartSaveFoldername);
    if (!chart || !provideDirectory(QFileInfo(fileName).absoluteDir()) || !chart)
        return;
    if (filter.toLower() == imageFilter.toLower())
        saveImage(picture, fileName);
    else
        saveData(fileName);
}

/// Asks before it makes one. Whether it could be made shows when the file is written.
bool WavelengthChart::provideDirectory(const QDir &directory)
{
    if (directory.exists())
        return true;
    const auto answer = QMessageBox::warning(
        this, tr("Warning"),
        tr("The directory \"%1\" does not exist.\nShould we create it?").arg(directory.path()),
        QMessageBox::Ok | QMessageBox::Cancel);
    if (answer != QMessageBox::Ok)
        return false;
    directory.mkpath(QStringLiteral("."));
    return true;
}

void WavelengthChart::saveImage(const QPixmap &picture, const QString &fileName)
{
    if (!picture.save(fileName, formatOf(fileName), bestQuality))
        QMessageBox::critical(this, tr("Warning"), tr("Saving chart as image, failed!"),
                              QMessageBox::Ok);
}

void WavelengthChart::saveData(const QString &fileName)
{
    QFile file(fileName);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Text)) {
        QMessageBox::critical(this, tr("Warning"), tr("Saving chart as data, failed!"),
                              QMessageBox::Ok);
        return;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    file.write("sep=,\n"); // tells a spreadsheet the separator
    makeTable().writeTo(file);
    file.close();
    QApplication::restoreOverrideCursor();
}
