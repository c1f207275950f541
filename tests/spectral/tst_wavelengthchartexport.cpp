#include "tests/spectral/ChartProbe.h"
#include "tests/support/DialogHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QFileInfo>
#include <QImageReader>
#include <QTemporaryDir>

#include <limits>
#include <memory>
#include <thread>

#include <fcntl.h>
#include <poll.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString imageFilter = QStringLiteral("Image files (*.png *.jpg *.jpeg *.bmp)");
const QString dataFilter = QStringLiteral("Data files (*.csv *.txt)");
const QString saveTitle = QStringLiteral("Save chart as image file or as data file");
const QString dataFailure = QStringLiteral("Warning|Saving chart as data, failed!|[OK]");
const QString imageFailure = QStringLiteral("Warning|Saving chart as image, failed!|[OK]");

QString question(const QString &directory)
{
    return QStringLiteral("Warning|The directory \"%1\" does not exist.\n"
                          "Should we create it?|[OK]|[Cancel]")
        .arg(directory);
}

QString filterReport(const QString &filter)
{
    return QStringLiteral("sigChartSaveFilterTypeChanged(\"%1\")").arg(filter);
}

QString folderReport(const QString &folder)
{
    return QStringLiteral("sigChartSaveFoldernameChanged(\"%1\")").arg(folder);
}

QByteArray contentOf(const QString &fileName)
{
    QFile file(fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void makeFile(const QString &fileName)
{
    QFile file(fileName);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write("here before");
}

QByteArray dataOf(const WavelengthChart &chart)
{
    return "sep=,\n" + chart.generateCSVContent(QLatin1Char(',')).toUtf8();
}

/// The column under \a title: the text in each row.
QStringList columnOf(const WavelengthChart &chart, const QString &title, int which = 0)
{
    QStringList result;
    int column = -1;
    const QStringList lines = chart.generateCSVContent(QLatin1Char(',')).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        const QStringList cells = line.split(QLatin1Char(','));
        for (int i = 0; column < 0 && i < cells.size(); ++i) {
            if (cells.at(i) == QLatin1Char('"') + title + QLatin1Char('"') && which-- == 0)
                column = i;
        }
        result << cells.value(column);
    }
    return result.mid(1, result.size() - 2); // without title and end
}

tFluorophoreData slopedDye(unsigned int id, const char *name)
{
    tFluorophoreData data;
    data.id = id;
    data.name = QString::fromUtf8(name);
    data.excitation = { { 500, 10.0 * id }, { 503, 40.0 * id } };
    data.emission = { { 501, 20.0 * id }, { 502, 40.0 * id } };
    return data;
}

/// The other end of a pipe that somebody writes into: takes all that comes, and tells of the cursor at
/// the first of it, while the writer cannot go on.
struct SlowReader
{
    void run(int pipe)
    {
        pollfd waiting{ pipe, POLLIN, 0 };
        char buffer[4096];
        while (poll(&waiting, 1, 5000) > 0) {
            if (content.isEmpty())
                cursor = QApplication::overrideCursor() ? QApplication::overrideCursor()->shape()
                                                        : Qt::ArrowCursor;
            const ssize_t count = read(pipe, buffer, sizeof buffer);
            if (count <= 0)
                return;
            content.append(buffer, int(count));
        }
    }

    QByteArray content;
    Qt::CursorShape cursor = Qt::ArrowCursor;
};

/// A chart from 500 to 503 nm with all curves by hand.
class SmallChart : public ChartProbe
{
public:
    SmallChart()
    {
        setWavelengthRange(500.0, 503.0);
        setFilterPowerRange(0.0, 100.0, Converter::pwrMW3);
        setWavelengthBandwidthPower(501.5, 1.0, 20.0);
        setSpectrometerData({ { 500.5, 1.0 }, { 502.0, 2.5 } });
    }
};

class Recorder : public SignalRecorder
{
public:
    explicit Recorder(const WavelengthChart &chart)
        : SignalRecorder(&chart, QString(), &QtCharts::QChartView::staticMetaObject)
    {}
};

} // namespace

class tst_WavelengthChartExport : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();

    void comparesNearlyEqualNumbers_data();
    void comparesNearlyEqualNumbers();

    void writesThreeColumnsWithoutDyes();
    void writesTwoColumnsForEachDye();
    void namesTheUnits();
    void writesHiddenCurves();
    void writesTheEmissionAsItIsShown();
    void startsACurveAtItsFirstPoint();
    void takesPointsUpToTheNextWholeWavelength();
    void writesNoRowsForAReversedRange();
    void livesWithoutItsSeries();

    void writesDataAndReportsFirst();
    void offersTheLastFilterAndFolder();
    void changesNothingWhenCancelled();
    void opensTheDialogAtEachClick();
    void choosesTheKindByTheFilter_data();
    void choosesTheKindByTheFilter();
    void showsTheWaitCursorWhileItWritesData();
    void savesThePictureAsItWasBeforeTheDialog();
    void asksForAMissingDirectory();
    void makesAMissingDirectory();
    void asksForADirectoryThatVanishes();
    void tellsThatAFileCannotBeWritten_data();
    void tellsThatAFileCannotBeWritten();
    void tellsThatADirectoryCannotBeMade();
    void survivesItsEndInAReport_data();
    void survivesItsEndInAReport();

private:
    QString path(const char *name) const { return m_folder->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_folder;
};

void tst_WavelengthChartExport::initTestCase()
{
    QCoreApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
}

void tst_WavelengthChartExport::init()
{
    TestCase::init();
    m_folder = std::make_unique<QTemporaryDir>();
    QVERIFY(m_folder->isValid());
}

void tst_WavelengthChartExport::comparesNearlyEqualNumbers_data()
{
    QTest::addColumn<double>("a");
    QTest::addColumn<double>("b");
    QTest::addColumn<int>("ulp");
    QTest::addColumn<bool>("equal");

    const double epsilon = std::numeric_limits<double>::epsilon();
    const double smallest = std::numeric_limits<double>::min();
    QTest::newRow("the same") << 3.0 << 3.0 << 0 << true;
    QTest::newRow("a step") << 1.0 << 1.0 + epsilon << 1 << true;
    QTest::newRow("a step, none allowed") << 1.0 << 1.0 + epsilon << 0 << false;
    QTest::newRow("two steps of the sum") << 1.0 << 1.0 + 2.0 * epsilon << 1 << true;
    QTest::newRow("three steps") << 1.0 << 1.0 + 3.0 * epsilon << 1 << false;
    QTest::newRow("opposite") << 1.0 << -1.0 << 1000 << false;
    QTest::newRow("subnormal") << 0.0 << smallest / 2.0 << 0 << true;
    QTest::newRow("the smallest normal number") << 0.0 << smallest << 0 << false;
    QTest::newRow("no number") << qQNaN() << qQNaN() << 1 << false;
}

void tst_WavelengthChartExport::comparesNearlyEqualNumbers()
{
    QFETCH(double, a);
    QFETCH(double, b);
    QFETCH(int, ulp);

    QTEST(WavelengthChart::almostEqual(a, b, ulp), "equal");
    QTEST(WavelengthChart::almostEqual(b, a, ulp), "equal");
}

void tst_WavelengthChartExport::writesThreeColumnsWithoutDyes()
{
    const SmallChart chart;

    // The filter from 501 to 502 has six points; the spectrum rises by 1 in each nm.
    QCOMPARE(chart.generateCSVContent(QLatin1Char(';')),
             QStringLiteral("\"Wavelength (nm)\";\"Filter (mW)\";\"Spectrometer (mW)\"\n"
                            "500.00;0.00;0.00\n"
                            "500.50;0.00;1.00\n"
                            "501.00;0.00;1.50\n"
                            "501.10;100.00;1.60\n"
                            "501.20;20.00;1.70\n"
                            "501.80;20.00;2.30\n"
                            "501.90;100.00;2.40\n"
                            "502.00;0.00;2.50\n"
                            "503.00;0.00;0.00\n"));
}

void tst_WavelengthChartExport::writesTwoColumnsForEachDye()
{
    SmallChart chart;
    chart.setFluorophoreVisibilityState(true, true, false);
    chart.setSpectrometerData({});
    chart.addFluorophore(slopedDye(2, "\"A\", \xc2\xb5"));
    chart.addFluorophore(slopedDye(1, "\"A\", \xc2\xb5"));

    const QStringList lines = chart.generateCSVContent(QLatin1Char(',')).split(QLatin1Char('\n'));

    QCOMPARE(lines.first(),
             QString::fromUtf8("\"Wavelength (nm)\",\"Filter (mW)\",\"Spectrometer (mW)\","
                               "\"\"A\", \xc2\xb5 Ex (%)\",\"\"A\", \xc2\xb5 Em (%)\","
                               "\"\"A\", \xc2\xb5 Ex (%)\",\"\"A\", \xc2\xb5 Em (%)\""));
    QCOMPARE(lines.at(1), QStringLiteral("500.00,0.00,0.00,10.00,0.00,20.00,0.00"));
    QCOMPARE(lines.at(2), QStringLiteral("501.00,0.00,0.00,20.00,20.00,40.00,40.00"));
    QCOMPARE(lines.at(3), QStringLiteral("501.10,100.00,0.00,21.00,22.00,42.00,44.00"));
}

void tst_WavelengthChartExport::namesTheUnits()
{
    SmallChart chart;

    chart.setFilterPowerRange(0.0, 100.0, Converter::pwrW1);
    chart.setSpectrumPowerRange(0.0, 100.0, Converter::pwrNW2);

    QVERIFY(chart.generateCSVContent(QLatin1Char(','))
                .startsWith(
                    QLatin1String("\"Wavelength (nm)\",\"Filter (W)\",\"Spectrometer (nW)\"\n")));
}

void tst_WavelengthChartExport::writesHiddenCurves()
{
    SmallChart chart;
    chart.addFluorophore(slopedDye(1, "A"));
    chart.setFluorophoresVisible(true);
    const QString all = chart.generateCSVContent(QLatin1Char(','));

    chart.setFluorophoresVisible(false);
    chart.setSpectrometerVisibility(false);
    chart.setFilterPowerRangeVisible(false);

    QCOMPARE(chart.generateCSVContent(QLatin1Char(',')), all);
    QVERIFY(all.contains(QLatin1String("\n502.00,0.00,2.50,30.00,")));
}

void tst_WavelengthChartExport::writesTheEmissionAsItIsShown()
{
    SmallChart chart;
    chart.addFluorophore(slopedDye(1, "A"));
    chart.setFluorophoreVisibilityState(true, true, true);

    chart.setWavelengthBandwidthPower(500.0, 0.0, 20.0); // on the line from 10 to 40 percent

    QCOMPARE(columnOf(chart, QStringLiteral("A Em (%)")).mid(0, 1), list({ "0.00" }));
    QVERIFY(columnOf(chart, QStringLiteral("A Em (%)")).contains(QStringLiteral("4.00")));
    QVERIFY(!columnOf(chart, QStringLiteral("A Em (%)")).contains(QStringLiteral("40.00")));
    chart.setFluorophoreVisibilityState(true, true, false);
    QVERIFY(columnOf(chart, QStringLiteral("A Em (%)")).contains(QStringLiteral("40.00")));
}

void tst_WavelengthChartExport::startsACurveAtItsFirstPoint()
{
    ChartProbe chart;
    chart.setWavelengthBandwidthPower(360.0, 10.0, 5.0);

    chart.setSpectrometerData({ { 500.0, 1.0 }, { 504.0, 5.0 }, { 600.0, 5.0 } });

    const QStringList wavelengths = columnOf(chart, QStringLiteral("Wavelength (nm)"));
    const QStringList spectrum = columnOf(chart, QStringLiteral("Spectrometer (mW)"));
    const auto at = [&](const char *wavelength) {
        return spectrum.value(wavelengths.indexOf(QLatin1String(wavelength)));
    };
    QCOMPARE(wavelengths.size(), 451 + 4); // 355 and 365 are whole
    QCOMPARE(at("350.00"), QStringLiteral("0.00"));
    QCOMPARE(at("499.00"), QStringLiteral("0.00"));
    QCOMPARE(at("500.00"), QStringLiteral("1.00"));
    QCOMPARE(at("501.00"), QStringLiteral("2.00"));
    QCOMPARE(at("599.00"), QStringLiteral("5.00"));
    QCOMPARE(at("601.00"), QStringLiteral("0.00"));
    QCOMPARE(at("800.00"), QStringLiteral("0.00"));
}

void tst_WavelengthChartExport::takesPointsUpToTheNextWholeWavelength()
{
    ChartProbe chart;
    chart.setWavelengthRange(350.0, 800.5);

    chart.setSpectrometerData({ { 800.75, 3.0 }, { 801.0, 4.0 }, { 801.25, 9.0 } });

    const QStringList lines = chart.generateCSVContent(QLatin1Char(',')).split(QLatin1Char('\n'));
    QVERIFY(lines.contains(QStringLiteral("800.75,0.00,3.00")));
    QCOMPARE(lines.at(lines.size() - 2), QStringLiteral("801.00,0.00,4.00"));
}

void tst_WavelengthChartExport::writesNoRowsForAReversedRange()
{
    SmallChart chart;

    chart.setWavelengthRange(700.0, 400.0);

    QCOMPARE(chart.generateCSVContent(QLatin1Char(',')),
             QStringLiteral("\"Wavelength (nm)\",\"Filter (mW)\",\"Spectrometer (mW)\"\n"));
}

void tst_WavelengthChartExport::livesWithoutItsSeries()
{
    SmallChart chart;
    chart.addFluorophore(slopedDye(1, "A"));

    delete chart.filterArea();
    delete chart.filter();
    delete chart.spectrum();

    QVERIFY(chart.generateCSVContent(QLatin1Char(','))
                .contains(QLatin1String("\n500.00,0.00,0.00,10.00,0.00\n")));
}

void tst_WavelengthChartExport::writesDataAndReportsFirst()
{
    SmallChart chart;
    chart.addFluorophore(slopedDye(1, "\xc2\xb5"));
    const QString file = path("chart.csv");
    Recorder recorder(chart);
    QStringList seen;
    connect(&chart, &WavelengthChart::sigChartSaveFoldernameChanged, &chart,
            [&] { seen << list({ QFileInfo::exists(file) ? "written" : "not yet" }); });
    DialogHand hand;
    hand.save(file, dataFilter);

    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(hand.shown(), QStringList(saveTitle));
    QCOMPARE(recorder.taken(),
             (QStringList{ filterReport(dataFilter), folderReport(m_folder->path()) }));
    QCOMPARE(seen, list({ "not yet" }));
    const QByteArray content = contentOf(file);
    QVERIFY(content.startsWith("sep=,\n\"Wavelength (nm)\",\"Filter (mW)\",\"Spectrometer (mW)\","
                               "\"\xc2\xb5 Ex (%)\",\"\xc2\xb5 Em (%)\"\n500.00,0.00,0.00,10.00,"));
    QCOMPARE(content, dataOf(chart));
    QVERIFY(!QApplication::overrideCursor());
}

void tst_WavelengthChartExport::offersTheLastFilterAndFolder()
{
    SmallChart chart;
    Recorder recorder(chart);
    chart.setChartSaveFilterType(dataFilter);
    chart.setChartSaveFoldername(m_folder->path());
    QCOMPARE(recorder.taken(), QStringList());
    QStringList offered;
    const auto look = [&](QFileDialog &dialog) {
        offered << dialog.directory().path() << dialog.selectedNameFilter() << dialog.nameFilters();
    };
    DialogHand hand;
    hand.save(QString(), QString(), look);

    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(offered, (QStringList{ m_folder->path(), dataFilter, imageFilter, dataFilter }));
}

void tst_WavelengthChartExport::changesNothingWhenCancelled()
{
    SmallChart chart;
    chart.setChartSaveFoldername(m_folder->path());
    chart.setChartSaveFilterType(dataFilter);
    Recorder recorder(chart);
    QStringList offered;
    const auto look = [&](QFileDialog &dialog) {
        offered << dialog.directory().path() << dialog.selectedNameFilter();
        dialog.setDirectory(QDir::rootPath());
        dialog.selectNameFilter(imageFilter);
    };
    DialogHand hand;
    hand.save(QString(), QString(), look);
    hand.save(QString(), QString(), look);

    chart.saveButton()->click();
    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(offered, (QStringList{ m_folder->path(), dataFilter, m_folder->path(), dataFilter }));
    QVERIFY(QDir(m_folder->path()).isEmpty());
}

void tst_WavelengthChartExport::opensTheDialogAtEachClick()
{
    SmallChart chart;
    DialogHand hand;
    hand.save(path("one.csv"), dataFilter);
    hand.save(path("two.csv")); // with the filter of before

    chart.saveButton()->click();
    QVERIFY(chart.saveButton()->isChecked());
    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(contentOf(path("one.csv")), dataOf(chart));
    QCOMPARE(contentOf(path("two.csv")), dataOf(chart));
}

void tst_WavelengthChartExport::choosesTheKindByTheFilter_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QByteArray>("format");

    QTest::newRow("PNG") << "chart.png" << imageFilter << QByteArray("png");
    QTest::newRow("JPEG") << "chart.jpeg" << imageFilter << QByteArray("jpeg");
    QTest::newRow("JPG") << "chart.jpg" << imageFilter << QByteArray("jpeg");
    QTest::newRow("JPEG in capitals") << "chart.JPEG" << imageFilter << QByteArray("jpeg");
    QTest::newRow("BMP") << "chart.bmp" << imageFilter << QByteArray("bmp");
    QTest::newRow("BMP after another dot") << "chart.png.Bmp" << imageFilter << QByteArray("bmp");
    QTest::newRow("picture named as data") << "chart.csv" << imageFilter << QByteArray("png");
    QTest::newRow("picture without suffix") << "chart" << imageFilter << QByteArray("png");
    QTest::newRow("data") << "chart.csv" << dataFilter << QByteArray();
    QTest::newRow("text") << "chart.txt" << dataFilter << QByteArray();
    QTest::newRow("data named as a picture") << "chart.png" << dataFilter << QByteArray();
}

void tst_WavelengthChartExport::choosesTheKindByTheFilter()
{
    QFETCH(QString, name);
    QFETCH(QString, filter);
    QFETCH(QByteArray, format);
    SmallChart chart;
    const QString file = m_folder->filePath(name);
    DialogHand hand;
    hand.save(file, filter);

    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(QImageReader::imageFormat(file), format);
    if (format.isEmpty())
        QCOMPARE(contentOf(file), dataOf(chart));
    else
        QCOMPARE(QImage(file).size(), chart.chart()->boundingRect().toRect().size());
}

void tst_WavelengthChartExport::showsTheWaitCursorWhileItWritesData()
{
    ChartProbe chart;
    QVector<QPointF> spectrum;
    for (int i = 0; i < 20'000; ++i) // more than a pipe holds
        spectrum << QPointF(400.0 + i / 64.0, i);
    chart.setSpectrometerData(spectrum);
    const QByteArray name = path("pipe").toLocal8Bit();
    QCOMPARE(mkfifo(name.constData(), 0600), 0);
    const int pipe = open(name.constData(), O_RDONLY | O_NONBLOCK);
    SlowReader reader;
    std::thread reading([&] { reader.run(pipe); });
    DialogHand hand;
    hand.save(path("pipe"), dataFilter);
    hand.answer(QMessageBox::Yes); // it replaces the pipe, which is there

    chart.saveButton()->click();

    reading.join();
    close(pipe);
    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(reader.cursor, Qt::WaitCursor);
    QVERIFY(!QApplication::overrideCursor());
    QVERIFY(reader.content == dataOf(chart));
}

void tst_WavelengthChartExport::savesThePictureAsItWasBeforeTheDialog()
{
    SmallChart chart;
    const QImage before = chart.grab(chart.chart()->boundingRect().toRect()).toImage();
    DialogHand hand;
    hand.save(path("chart.png"), imageFilter,
              [&](QFileDialog &) { chart.setSpectrometerVisibility(false); });

    chart.saveButton()->click();

    // The button is drawn as pressed, so that only the plot is compared.
    const QRect plot = chart.chart()->plotArea().toRect();
    const QImage saved(path("chart.png"));
    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(saved.copy(plot).convertToFormat(QImage::Format_RGB32),
             before.copy(plot).convertToFormat(QImage::Format_RGB32));
    const QImage after = chart.grab(chart.chart()->boundingRect().toRect()).toImage();
    QVERIFY(after.copy(plot) != before.copy(plot));
}

void tst_WavelengthChartExport::asksForAMissingDirectory()
{
    SmallChart chart;
    Recorder recorder(chart);
    DialogHand hand;
    hand.save(path("new/chart.csv"), dataFilter);
    hand.answer(QMessageBox::Cancel);

    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(hand.shown(), (QStringList{ saveTitle, question(path("new")) }));
    QCOMPARE(recorder.taken(),
             (QStringList{ filterReport(dataFilter), folderReport(path("new")) }));
    QVERIFY(!QFileInfo::exists(path("new")));
}

void tst_WavelengthChartExport::makesAMissingDirectory()
{
    SmallChart chart;
    DialogHand hand;
    hand.save(path("new/deeper/chart.csv"), dataFilter);
    hand.answer(QMessageBox::Ok);

    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(hand.shown().last(), question(path("new/deeper")));
    QCOMPARE(contentOf(path("new/deeper/chart.csv")), dataOf(chart));
}

void tst_WavelengthChartExport::asksForADirectoryThatVanishes()
{
    SmallChart chart;
    QVERIFY(QDir().mkdir(path("gone")));
    connect(&chart, &WavelengthChart::sigChartSaveFoldernameChanged, &chart,
            [](const QString &folder) { QDir().rmdir(folder); });
    DialogHand hand;
    hand.save(path("gone/chart.png"), imageFilter);
    hand.answer(QMessageBox::Ok);

    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(hand.shown().last(), question(path("gone")));
    QCOMPARE(QImageReader::imageFormat(path("gone/chart.png")), QByteArray("png"));
}

void tst_WavelengthChartExport::tellsThatAFileCannotBeWritten_data()
{
    QTest::addColumn<QString>("filter");
    QTest::addColumn<QString>("message");

    QTest::newRow("data") << dataFilter << dataFailure;
    QTest::newRow("image") << imageFilter << imageFailure;
}

/// The name has become that of a directory, which nobody can write.
void tst_WavelengthChartExport::tellsThatAFileCannotBeWritten()
{
    QFETCH(QString, filter);
    QFETCH(QString, message);
    SmallChart chart;
    const QString file = path("chart.csv");
    connect(&chart, &WavelengthChart::sigChartSaveFoldernameChanged, &chart,
            [file] { QDir().mkdir(file); });
    Recorder recorder(chart);
    DialogHand hand;
    hand.save(file, filter);
    hand.answer(QMessageBox::Ok);

    chart.saveButton()->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(hand.shown(), (QStringList{ saveTitle, message }));
    QCOMPARE(recorder.taken(),
             (QStringList{ filterReport(filter), folderReport(m_folder->path()) }));
    QVERIFY(!QApplication::overrideCursor());
}

/// A file bars the way to the directory.
void tst_WavelengthChartExport::tellsThatADirectoryCannotBeMade()
{
    SmallChart chart;
    makeFile(path("barred"));
    QStringList offered;
    DialogHand hand;
    hand.save(path("barred/deep/chart.csv"), dataFilter);
    hand.answer(QMessageBox::Ok);
    hand.answer(QMessageBox::Ok);
    hand.save(QString(), QString(),
              [&](QFileDialog &dialog) { offered << dialog.selectedNameFilter(); });

    chart.saveButton()->click();
    QCOMPARE(hand.shown(), (QStringList{ saveTitle, question(path("barred/deep")), dataFailure }));
    QCOMPARE(contentOf(path("barred")), QByteArray("here before"));

    chart.saveButton()->click();
    QCOMPARE(offered, QStringList(dataFilter)); // what was chosen stays
    QCOMPARE(hand.problems(), QStringList());
}

void tst_WavelengthChartExport::survivesItsEndInAReport_data()
{
    QTest::addColumn<bool>("atTheFilter");

    QTest::newRow("of the filter") << true;
    QTest::newRow("of the folder") << false;
}

void tst_WavelengthChartExport::survivesItsEndInAReport()
{
    QFETCH(bool, atTheFilter);
    const QPointer<SmallChart> chart(new SmallChart);
    const auto end = [chart] { delete chart; };
    if (atTheFilter)
        connect(chart, &WavelengthChart::sigChartSaveFilterTypeChanged, qApp, end);
    else
        connect(chart, &WavelengthChart::sigChartSaveFoldernameChanged, qApp, end);
    DialogHand hand;
    hand.save(path("chart.csv"), dataFilter);

    QMetaObject::invokeMethod(chart, "priSaveChartClicked", Q_ARG(bool, true));

    QCOMPARE(hand.problems(), QStringList());
    QVERIFY(chart.isNull());
    QVERIFY(!QFileInfo::exists(path("chart.csv")));
}

PELORIN_TEST_MAIN(tst_WavelengthChartExport)
#include "tst_wavelengthchartexport.moc"
