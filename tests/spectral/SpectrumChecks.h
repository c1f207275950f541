#ifndef PELORIN_TESTS_SPECTRUMCHECKS_H
#define PELORIN_TESTS_SPECTRUMCHECKS_H

#include "tests/spectral/SpectrumProbe.h"
#include "tests/support/RepaintCounter.h"

#include <QPainter>
#include <QtTest>

/// What holds for both generations of the spectrum bar alike. \a Bar is the widget, \a Number the
/// type of its ranges.
namespace SpectrumChecks {

template<class Bar, typename Number>
void keepsAnyRange(Bar &bar, Number min, Number max)
{
    bar.setWavelengthRange(min, max);
    QCOMPARE(bar.minWavelength(), min);
    QCOMPARE(bar.maxWavelength(), max);
    QCOMPARE(bar.maxPower(), Number(100));

    bar.setPowerRange(min, max);
    QCOMPARE(bar.minPower(), min);
    QCOMPARE(bar.maxPower(), max);
}

template<class Bar>
void repaintsWhenARangeIsSet(Bar &bar)
{
    QVERIFY(QTest::qWaitForWindowExposed(&bar));
    RepaintCounter repaints(bar);

    bar.setWavelengthRange(300, 950); // what it was
    QCOMPARE(repaints.taken(), 1);

    bar.setPowerRange(0, 50);
    QCOMPARE(repaints.taken(), 1);
}

template<class Bar>
void drawsNothingBeforeTheFirstPaint(Bar &bar)
{
    QImage image(450, 250, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);

    bar.drawWavelengths(&painter);
    bar.drawPowerLabels(&painter);
    bar.drawWavelengthLabels(&painter);
    painter.end();

    QVERIFY(SpectrumProbe::isPlain(image, SpectrumProbe::white));
    QCOMPARE(bar.calculateHorizontalGridLineDistance(), 10);
    QCOMPARE(bar.calculateVerticalGridLineDistance(20), 10);

    bar.grab();
    bar.drawWavelengths(nullptr);
    bar.drawPowerLabels(nullptr);
    bar.drawWavelengthLabels(nullptr);
    QVERIFY(!bar.spectrumRect().isEmpty());
}

/// Rows for a spectrum of 400 pixels: 40 of them are a tenth of the range.
template<typename Number>
void addWavelengthDistances()
{
    const auto add = [](const char *name, int min, int max, int distance) {
        QTest::newRow(name) << Number(min) << Number(max) << distance;
    };
    QTest::addColumn<Number>("min");
    QTest::addColumn<Number>("max");
    QTest::addColumn<int>("distance");

    add("exactly ten", 400, 500, 10);
    add("less than eleven is cut to ten", 400, 509, 10);
    add("eleven", 400, 510, 20);
    add("twenty", 400, 600, 20);
    add("fifty", 400, 900, 50);
    add("hundred", 0, 1000, 100);
    add("two hundred", 0, 1010, 200);
    add("five hundred", 0, 5000, 500);
    add("thousand", 0, 10000, 1000);
    add("two thousand", 0, 10010, 2000);
    add("exactly two thousand", 0, 20000, 2000);
    add("what is no round number", 0, 20015, 2001); // 2001.5
    add("without span", 400, 400, 10);
    add("reversed", 900, 400, 10);
}

/// Rows for a spectrum of 200 pixels, from 0 up.
template<typename Number>
void addPowerDistances()
{
    QTest::addColumn<Number>("max");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<int>("distance");

    QTest::newRow("less than ten") << Number(100) << 15 << 10;      // 7.5
    QTest::newRow("just more than ten") << Number(104) << 20 << 10; // 10.4
    QTest::newRow("eleven") << Number(100) << 22 << 20;
    for (int tens = 20; tens <= 90; tens += 10)
        QTest::addRow("exactly %d", tens) << Number(200) << tens << tens;
    QTest::newRow("ninety-one") << Number(200) << 91 << 100;
    QTest::newRow("what is no round number") << Number(200) << 137 << 137;
    QTest::newRow("no pixels") << Number(100) << 0 << 10;
    QTest::newRow("fewer than no pixels") << Number(100) << -20 << 10;
    QTest::newRow("reversed") << Number(-100) << 15 << 10;
}

/// Rows for a spectrum of 401 pixels, with a wavelength in 40, and of 200, with a power in each
/// height of a text. The labels are first the powers, then the wavelengths.
template<typename Number>
void addLabels()
{
    const auto add = [](const char *name, int minPower, int maxPower, int minWavelength,
                        int maxWavelength, const char *labels) {
        QTest::newRow(name) << Number(minPower) << Number(maxPower) << Number(minWavelength)
                            << Number(maxWavelength) << QString::fromLatin1(labels);
    };
    QVERIFY(SpectrumProbe::metrics().height() <= 20);
    QTest::addColumn<Number>("minPower");
    QTest::addColumn<Number>("maxPower");
    QTest::addColumn<Number>("minWavelength");
    QTest::addColumn<Number>("maxWavelength");
    QTest::addColumn<QString>("labels");

    add("hundreds and the end", 0, 100, 300, 950,
        "0 10 20 30 40 50 60 70 80 90 100 300 400 500 600 700 800 900 950");
    add("whole steps", 0, 20, 400, 600, "0 10 20 400 420 440 460 480 500 520 540 560 580 600");
    add("steps from an odd start", 5, 32, 405, 492,
        "5 15 25 32 405 415 425 435 445 455 465 475 485 492");
    add("the last next to its neighbour", 0, 11, 500, 521, "0 10 11 500 510 520 521");
    add("negative", -15, 5, -20, 15, "-15 -5 5 -20 -10 0 10 15");
    add("without span", 50, 50, 500, 500, "50 500");
    add("reversed", 100, 0, 950, 300, "");
}

template<class Bar, typename Number>
void hasLabels(Bar &bar)
{
    QFETCH(Number, minPower);
    QFETCH(Number, maxPower);
    QFETCH(Number, minWavelength);
    QFETCH(Number, maxWavelength);
    bar.setPowerRange(minPower, maxPower);
    bar.setWavelengthRange(minWavelength, maxWavelength);

    QTEST(SpectrumProbe::labels(bar), "labels");
}

/// With the line of \a text from \a left on, and its top at \a top, in the font and the colour of
/// the scales.
inline void standsAt(const PaintRecorder &paper, const QString &text, int left, int top)
{
    const PaintRecorder::Text found = paper.find(text);
    QCOMPARE(found.text, text);
    QVERIFY(qAbs(found.baseline.x() - left) < 1.0);
    QVERIFY(qAbs(found.baseline.y() - (top + SpectrumProbe::metrics().ascent())) < 1.0);
    QCOMPARE(found.color.rgba(), SpectrumProbe::ink);
    QCOMPARE(found.font.pointSize(), 10);
    QCOMPARE(found.font.family(), QStringLiteral("Calibri"));
}

/// With the wavelengths from 400 on, in fifties, under \a ticks, but for the last of them. \a axis is
/// the row where the ticks begin.
inline void placesTheWavelengths(QWidget &bar, const QList<int> &ticks, int axis)
{
    const QImage image = SpectrumProbe::picture(bar);
    for (const int row : { axis, axis + 5 })
        QCOMPARE(SpectrumProbe::columnsOf(image, row), ticks);
    QCOMPARE(SpectrumProbe::columnsOf(image, axis + 6), QList<int>());

    const PaintRecorder paper(bar);
    for (int i = 0; i + 1 < ticks.size(); ++i) {
        const QString text = QString::number(400 + 50 * i);
        const int width = SpectrumProbe::metrics().horizontalAdvance(text);
        standsAt(paper, text, ticks.at(i) - width / 2, axis + 7);
    }
}

/// With the tens from 0 to 100, two pixels a unit, up from \a bottom; the ticks end at \a right. The
/// texts begin \a textRise above their ticks.
inline void placesThePowers(QWidget &bar, int bottom, int right, int textRise)
{
    QList<int> ticks;
    for (int power = 100; power >= 0; power -= 10)
        ticks << bottom + 1 - 2 * power;
    const QImage image = SpectrumProbe::picture(bar);
    for (const int column : { right - 5, right - 1 })
        QCOMPARE(SpectrumProbe::rowsOf(image, column), ticks);

    const PaintRecorder paper(bar);
    for (const int power : { 0, 10, 100 }) {
        const QString text = QString::number(power);
        const int width = SpectrumProbe::metrics().horizontalAdvance(text);
        standsAt(paper, text, right - 7 - width, bottom + 1 - 2 * power - textRise);
    }
}

} // namespace SpectrumChecks

#endif
