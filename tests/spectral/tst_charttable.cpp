#include "Pelorin/spectral/ChartTable_p.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QBuffer>
#include <QProcess>
#include <QRandomGenerator>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>

using Curve = ChartTable::Curve;
using Points = QVector<QPointF>;

Q_DECLARE_METATYPE(Points)

namespace {

Curve curve(const Points &points)
{
    return { QStringLiteral("Dye"), points };
}

/// The lines of a table, without that of the titles.
QStringList rowsOf(const ChartTable &table)
{
    QStringList lines = table.text(QLatin1Char(',')).split(QLatin1Char('\n'));
    lines.removeFirst();
    lines.removeLast(); // behind the last line feed
    return lines;
}

QString numberText(double value)
{
    std::string text;
    ChartTable::appendNumber(text, value);
    return QString::fromStdString(text);
}

/// A curve as instruments and data bases deliver them, and as nobody does: sorted and not, whole and
/// fractional, with points twice, values of all sizes, and what is no number at all.
Points randomPoints(QRandomGenerator &random)
{
    Points points;
    const int kind = random.bounded(4);
    for (int i = random.bounded(60); i > 0; --i) {
        const double x = kind == 0 ? random.bounded(-20, 60) : random.bounded(80.0) - 20.0;
        double y = random.bounded(200.0) - 100.0;
        if (kind == 2)
            y *= std::pow(10.0, random.bounded(-20, 300));
        if (kind == 3 && random.bounded(10) == 0)
            y = random.bounded(2) ? qInf() : qQNaN();
        points.append(QPointF(x, y));
    }
    if (random.bounded(2))
        std::sort(points.begin(), points.end(),
                  [](const QPointF &a, const QPointF &b) { return a.x() < b.x(); });
    return points;
}

QByteArray inputOf(double min, double max, const QVector<Curve> &curves)
{
    const auto exact = [](double value) { return QByteArray::number(value, 'g', 17); };
    QByteArray input = exact(min) + ' ' + exact(max) + '\n';
    for (const Curve &each : curves) {
        input += each.title.toUtf8() + '\n' + QByteArray::number(each.points.size()) + '\n';
        for (const QPointF &point : each.points)
            input += exact(point.x()) + ' ' + exact(point.y()) + '\n';
    }
    return input;
}

} // namespace

class tst_ChartTable : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void quotesTheTitles();
    void startsWithTheWholeWavelengths_data();
    void startsWithTheWholeWavelengths();
    void mergesACurve_data();
    void mergesACurve();
    void interpolatesOntoTheRowsOfOtherCurves();
    void calculatesTheEndOfABridge();
    void takesAnySeparator();
    void endsAnEndlessRange();
    void writesTheSameInPieces();
    void writesNumbersAsQtDoes_data();
    void writesNumbersAsQtDoes();
    void writesRandomNumbersAsQtDoes();
    void agreesWithAnotherProgram_data();
    void agreesWithAnotherProgram();
};

void tst_ChartTable::quotesTheTitles()
{
    const ChartTable none(2.0, 1.0, {});
    const ChartTable odd(2.0, 1.0,
                         { { QStringLiteral("Filter (mW)"), {} },
                           { QStringLiteral("a \"b\", c\n%1"), {} },
                           { QString(), {} } });

    QCOMPARE(none.text(QLatin1Char(',')), QStringLiteral("\"Wavelength (nm)\"\n"));
    QCOMPARE(odd.text(QLatin1Char(',')),
             QStringLiteral("\"Wavelength (nm)\",\"Filter (mW)\",\"a \"b\", c\n%1\",\"\"\n"));
}

void tst_ChartTable::startsWithTheWholeWavelengths_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QStringList>("rows");

    QTest::newRow("whole ends") << 350.0 << 352.0 << list({ "350.00", "351.00", "352.00" });
    QTest::newRow("fractional end") << 350.0 << 350.5 << list({ "350.00", "351.00" });
    QTest::newRow("fractional start") << 350.9 << 351.0 << list({ "350.00", "351.00" });
    QTest::newRow("start below zero") << -1.5 << 0.0 << list({ "-1.00", "0.00" });
    QTest::newRow("start a little below zero") << -0.5 << 0.0 << list({ "0.00" });
    QTest::newRow("without span") << 400.0 << 400.0 << list({ "400.00" });
    QTest::newRow("reversed within a nanometre") << 400.9 << 400.1 << list({ "400.00", "401.00" });
    QTest::newRow("reversed") << 400.0 << 399.0 << QStringList();
    QTest::newRow("far beyond") << 1e300 << 1e300 << QStringList();
    QTest::newRow("no number") << qQNaN() << qQNaN() << QStringList();
}

void tst_ChartTable::startsWithTheWholeWavelengths()
{
    QFETCH(double, min);
    QFETCH(double, max);

    const ChartTable table(min, max, {});

    QTEST(rowsOf(table), "rows");
}

void tst_ChartTable::mergesACurve_data()
{
    QTest::addColumn<Points>("points");
    QTest::addColumn<QStringList>("rows");

    // in a table from 10 to 13
    QTest::newRow("no points") << Points{}
                               << list({ "10.00,0.00", "11.00,0.00", "12.00,0.00", "13.00,0.00" });
    QTest::newRow("a single point")
        << Points{ { 11, 5 } } << list({ "10.00,0.00", "11.00,5.00", "12.00,0.00", "13.00,0.00" });
    QTest::newRow("a gap") << Points{ { 10, 1 }, { 13, 4 } }
                           << list({ "10.00,1.00", "11.00,2.00", "12.00,3.00", "13.00,4.00" });
    QTest::newRow("an inner stretch")
        << Points{ { 11, 1 }, { 12, 2 } }
        << list({ "10.00,0.00", "11.00,1.00", "12.00,2.00", "13.00,0.00" });
    QTest::newRow("fractional points") << Points{ { 10.5, 1 }, { 12.5, 5 } }
                                       << list({ "10.00,0.00", "10.50,1.00", "11.00,2.00",
                                                 "12.00,4.00", "12.50,5.00", "13.00,0.00" });
    QTest::newRow("points not in order")
        << Points{ { 13, 4 }, { 10, 1 } }
        << list({ "10.00,1.00", "11.00,2.00", "12.00,3.00", "13.00,4.00" });
    QTest::newRow("the later of two points at one wavelength")
        << Points{ { 11, 5 }, { 12, 2 }, { 11, 6 }, { 11, 7 } }
        << list({ "10.00,0.00", "11.00,7.00", "12.00,2.00", "13.00,0.00" });
    QTest::newRow("points outside")
        << Points{ { 9.999, 8 }, { 10, 1 }, { 13, 4 }, { 13.001, 9 } }
        << list({ "10.00,1.00", "11.00,2.00", "12.00,3.00", "13.00,4.00" });
    QTest::newRow("points that are a hair apart")
        << Points{ { 10, 1 }, { std::nextafter(10.0, 11.0), 2 }, { 13, 2 } }
        << list({ "10.00,1.00", "10.00,2.00", "11.00,2.00", "12.00,2.00", "13.00,2.00" });
    QTest::newRow("no wavelength")
        << Points{ { qQNaN(), 8 }, { qInf(), 8 }, { 11, 5 } }
        << list({ "10.00,0.00", "11.00,5.00", "12.00,0.00", "13.00,0.00" });
    QTest::newRow("a value that is no number")
        << Points{ { 10, 1 }, { 11, qQNaN() }, { 13, 1 } }
        << list({ "10.00,1.00", "11.00,nan", "12.00,nan", "13.00,nan" });
    QTest::newRow("an infinite value")
        << Points{ { 10, -qInf() }, { 11, 1 } }
        << list({ "10.00,-inf", "11.00,1.00", "12.00,0.00", "13.00,0.00" });
}

void tst_ChartTable::mergesACurve()
{
    QFETCH(Points, points);

    const ChartTable table(10.0, 13.0, { curve(points) });

    QTEST(rowsOf(table), "rows");
    QCOMPARE(table.rowCount(), rowsOf(table).size());
}

void tst_ChartTable::interpolatesOntoTheRowsOfOtherCurves()
{
    const ChartTable table(10.0, 12.0,
                           { curve({ { 10, 0 }, { 12, 8 } }), curve({ { 10.25, 3 } }),
                             curve({ { 10.25, 6 }, { 12, 6 } }) });

    QCOMPARE(rowsOf(table), list({ "10.00,0.00,0.00,0.00", "10.25,1.00,3.00,6.00",
                                   "11.00,4.00,0.00,6.00", "12.00,8.00,0.00,6.00" }));
}

/// 1e17 and 1 are too far apart for a double: at the end of a gap the line comes out at 0, while the
/// point itself starts the next gap.
void tst_ChartTable::calculatesTheEndOfABridge()
{
    const ChartTable bridged(10.0, 14.0, { curve({ { 10, 1e17 }, { 12, 1 }, { 14, 3 } }) });
    const ChartTable close(10.0, 11.0, { curve({ { 10, 1e17 }, { 11, 1 } }) });

    QCOMPARE(rowsOf(bridged), list({ "10.00,100000000000000000.00", "11.00,50000000000000000.00",
                                     "12.00,0.00", "13.00,2.00", "14.00,3.00" }));
    QCOMPARE(rowsOf(close).last(), QStringLiteral("11.00,1.00"));
}

void tst_ChartTable::takesAnySeparator()
{
    const ChartTable table(10.0, 10.0, { { QStringLiteral("a,b"), { { 10, 1.5 } } } });

    QCOMPARE(table.text(QLatin1Char(';')),
             QStringLiteral("\"Wavelength (nm)\";\"a,b\"\n10.00;1.50\n"));
    QCOMPARE(table.text(QLatin1Char('\t')),
             QStringLiteral("\"Wavelength (nm)\"\t\"a,b\"\n10.00\t1.50\n"));
    const QChar bar(0x2502);
    QCOMPARE(table.text(bar), QStringLiteral("\"Wavelength (nm)\"") + bar
                                  + QStringLiteral("\"a,b\"\n10.00") + bar
                                  + QStringLiteral("1.50\n"));
}

void tst_ChartTable::endsAnEndlessRange()
{
    const ChartTable endless(350.0, 1e9, { curve({ { 100'000.5, 1 }, { 200'000, 2 } }) });
    const ChartTable absurd(-1e300, 1e300, {});

    QCOMPARE(endless.rowCount(), 100'001); // and the point that lies between
    QCOMPARE(rowsOf(endless).last(), QStringLiteral("100349.00,0.00"));
    QCOMPARE(absurd.rowCount(), 1); // the next whole number is no other double
}

void tst_ChartTable::writesTheSameInPieces()
{
    Points points;
    for (int i = 0; i < 20'000; ++i)
        points << QPointF(i, i * 0.25);
    const ChartTable table(0.0, 20'000.0, { { QString(QChar(0x3bc)), points } });
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);

    table.writeTo(buffer);

    QVERIFY(buffer.data().size() > 200'000); // several pieces
    QVERIFY(buffer.data() == table.text(QLatin1Char(',')).toUtf8());
}

void tst_ChartTable::writesNumbersAsQtDoes_data()
{
    QTest::addColumn<double>("value");
    QTest::addColumn<QString>("text");

    QTest::newRow("zero") << 0.0 << "0.00";
    QTest::newRow("negative zero") << -0.0 << "0.00";
    QTest::newRow("a little below zero") << -0.001 << "-0.00";
    QTest::newRow("smallest") << 5e-324 << "0.00";
    QTest::newRow("smallest below zero") << -5e-324 << "-0.00";
    QTest::newRow("half of a hundredth, exactly") << 0.125 << "0.13";
    QTest::newRow("half of a hundredth, a hair less") << std::nextafter(0.125, 0.0) << "0.12";
    QTest::newRow("negative half") << -0.375 << "-0.38";
    QTest::newRow("five thousandths, as a double a hair more") << 0.005 << "0.01";
    QTest::newRow("1.005, as a double a hair less") << 1.005 << "1.00";
    QTest::newRow("carry") << 99.996 << "100.00";
    QTest::newRow("largest of the short way") << std::nextafter(1e15, 0.0) << "999999999999999.88";
    QTest::newRow("first of the long way") << 1e15 << "1000000000000000.00";
    QTest::newRow("large") << 1e22 << "10000000000000000000000.00";
    QTest::newRow("infinite") << qInf() << "inf";
    QTest::newRow("negative infinite") << -qInf() << "-inf";
    QTest::newRow("no number") << qQNaN() << "nan";
}

void tst_ChartTable::writesNumbersAsQtDoes()
{
    QFETCH(double, value);

    QTEST(numberText(value), "text");
    QCOMPARE(QString::number(value, 'f', 2), numberText(value));
}

void tst_ChartTable::writesRandomNumbersAsQtDoes()
{
    QRandomGenerator random(4711);
    for (int i = 0; i < 200'000; ++i) {
        const quint64 bits = random.generate64();
        double value = 0.0;
        switch (i % 4) {
        case 0:
            std::memcpy(&value, &bits, sizeof value); // any double there is
            break;
        case 1:
            value = random.bounded(2000.0) - 1000.0;
            break;
        case 2:
            value = double(random.bounded(-80'000, 80'000)) / 800.0; // many exact halves
            break;
        default:
            value = std::ldexp(double(bits >> 11), random.bounded(-75, 0));
            break;
        }

        const QString text = numberText(value);

        if (text != QString::number(value, 'f', 2))
            QFAIL(qPrintable(QStringLiteral("%1 for %2").arg(text).arg(value, 0, 'g', 17)));
    }
}

void tst_ChartTable::agreesWithAnotherProgram_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_ChartTable::agreesWithAnotherProgram()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    const double min = random.bounded(40.0) - 20.0;
    const double max = min + random.bounded(50.0) - 1.0;
    QVector<Curve> curves;
    for (int i = random.bounded(8); i > 0; --i)
        curves.append({ QStringLiteral("Dye %1").arg(random.bounded(3)), randomPoints(random) });
    QProcess python;

    python.start(QStringLiteral("python3"), { QFINDTESTDATA("chart_table.py") });
    python.write(inputOf(min, max, curves));
    python.closeWriteChannel();

    QVERIFY2(python.waitForFinished() && python.exitCode() == 0, python.readAllStandardError());
    const QString text = ChartTable(min, max, curves).text(QLatin1Char(','));
    QCOMPARE(text.split(QLatin1Char('\n')),
             QString::fromUtf8(python.readAllStandardOutput()).split(QLatin1Char('\n')));
}

PELORIN_TEST_MAIN(tst_ChartTable)
#include "tst_charttable.moc"
