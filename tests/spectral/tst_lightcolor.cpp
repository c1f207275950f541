#include "Pelorin/spectral/LightColor_p.h"
#include "tests/support/TestCase.h"

#include <QVector>

#include <limits>

namespace {

QString text(QRgb color)
{
    return QStringLiteral("%1").arg(color, 8, 16, QLatin1Char('0'));
}

QString text(const QColor &color)
{
    return color.isValid() ? text(color.rgba()) : QStringLiteral("invalid");
}

// The ramps once more, from tables: what falls or rises from where to where.

struct HueRow
{
    int from;
    int to;
    int reach; ///< degrees over the band
    int width; ///< nm of the band
    int end;   ///< degrees at the upper end
};

constexpr HueRow hueRows[] = {
    { 380, 434, 15, 55, 265 }, { 435, 499, 75, 65, 190 }, { 500, 519, 15, 20, 175 },
    { 520, 564, 105, 45, 70 }, { 565, 589, 20, 25, 50 },  { 590, 624, 25, 35, 25 },
    { 625, 674, 25, 50, 0 },
};

/// All numbers are positive, so that dividing whole numbers cuts as it has to.
QRgb expectedHue(int w)
{
    QColor color;
    if (w <= 379)
        color.setHsl(280, 200, w <= 300 ? 0 : (w - 300) * 128 / 80, 255);
    for (const HueRow &row : hueRows) {
        if (w >= row.from && w <= row.to)
            color.setHsl((row.to + 1 - w) * row.reach / row.width + row.end, 200, 128, 255);
    }
    if (w >= 675 && w <= 724)
        color.setHsl(0, 200, 801 - w, 255);
    const int d = w >= 725 ? (w - 725) / 2 : -1;
    if (d >= 0 && d <= 200)
        color.setHsl(0, 200 - d, 76, 255);
    if (d > 200)
        color.setHsl(0, 0, d < 276 ? 276 - d : 0, 255);
    return color.rgba();
}

int power(double part)
{
    return int(std::floor(255 * std::pow(part, 0.8)));
}

bool expectedVisible(double w, int rgb[3])
{
    const auto set = [rgb](int r, int g, int b) {
        rgb[0] = r;
        rgb[1] = g;
        rgb[2] = b;
        return true;
    };
    if (w >= 380 && w <= 440) {
        const double f = 0.3 + 0.7 * (w - 380) / 60;
        return set(power(f * (440 - w) / 60), 0, power(f));
    }
    if (w > 440 && w <= 490)
        return set(0, power((w - 440) / 50), 255);
    if (w > 490 && w <= 510)
        return set(0, 255, power((510 - w) / 20));
    if (w > 510 && w <= 580)
        return set(power((w - 510) / 70), 255, 0);
    if (w > 580 && w <= 645)
        return set(255, power((645 - w) / 65), 0);
    if (w > 645 && w <= 750)
        return set(power(0.3 + 0.7 * (750 - w) / 105), 0, 0);
    return false;
}

QRgb expectedGamma(double w)
{
    int rgb[3];
    return expectedVisible(w, rgb) ? qRgb(rgb[0], rgb[1], rgb[2]) : qRgb(63, 63, 63);
}

QColor expectedChart(double w, double a, double b)
{
    const double k = 1.0 - std::pow(0.3, 0.8);
    int rgb[3] = { 255, 255, 255 };
    if (w >= a && w <= 380) {
        const double r = (w - a) / (380 - a);
        rgb[0] = rgb[2] = int(std::floor(255 * (1 - k * r)));
        rgb[1] = int(std::floor(255 * (1 - r)));
    } else if (!expectedVisible(w, rgb) && w > 750 && w <= b) {
        rgb[1] = rgb[2] = int(std::floor(255 * ((w - 750) / (b - 750))));
        rgb[0] = int(std::floor(255 * (1 - k * (b - w) / (b - 750))));
    }
    return QColor(rgb[0], rgb[1], rgb[2]);
}

/// Every nanometre, and tenths round the borders of the bands.
QVector<double> wavelengths()
{
    QVector<double> result;
    for (int w = 0; w <= 1300; ++w)
        result << w;
    for (const int border : { 300, 350, 380, 440, 490, 510, 580, 645, 750, 800, 950 }) {
        for (int tenth = -15; tenth <= 15; ++tenth)
            result << border + tenth / 10.0;
        result << std::nextafter(border, 0.0) << std::nextafter(border, 1.0e4);
    }
    return result;
}

} // namespace

class tst_LightColor : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void knowsTheHueOfEveryNanometre();
    void knowsTheHueAtTheBorders_data();
    void knowsTheHueAtTheBorders();
    void knowsTheGammaColorOfEveryNanometre();
    void knowsTheGammaColorAtTheBorders_data();
    void knowsTheGammaColorAtTheBorders();
    void knowsTheChartColorOfEveryNanometre_data();
    void knowsTheChartColorOfEveryNanometre();
    void knowsTheChartColorAtTheBorders_data();
    void knowsTheChartColorAtTheBorders();
    void limitsTheAlpha_data();
    void limitsTheAlpha();
    void carriesTheAlphaInEveryBand_data();
    void carriesTheAlphaInEveryBand();
    void tellsWhatHasNoColor_data();
    void tellsWhatHasNoColor();
};

void tst_LightColor::knowsTheHueOfEveryNanometre()
{
    for (int w = -100; w <= 2200; ++w) {
        if (LightColor::hueRamp(w) != expectedHue(w))
            QFAIL(qPrintable(QStringLiteral("%1 nm: %2, expected %3")
                                 .arg(w)
                                 .arg(text(LightColor::hueRamp(w)), text(expectedHue(w)))));
    }
}

void tst_LightColor::knowsTheHueAtTheBorders_data()
{
    QTest::addColumn<int>("wavelength");
    QTest::addColumn<int>("hue");
    QTest::addColumn<int>("saturation");
    QTest::addColumn<int>("lightness");

    QTest::newRow("lowest number") << std::numeric_limits<int>::min() << 280 << 200 << 0;
    QTest::newRow("last black") << 300 << 280 << 200 << 0;
    QTest::newRow("first ultraviolet") << 301 << 280 << 200 << 1;  // 1.6
    QTest::newRow("last ultraviolet") << 379 << 280 << 200 << 126; // 126.4
    QTest::newRow("first violet") << 380 << 280 << 200 << 128;
    QTest::newRow("last violet") << 434 << 265 << 200 << 128; // 265.27
    QTest::newRow("first blue") << 435 << 265 << 200 << 128;
    QTest::newRow("last blue") << 499 << 191 << 200 << 128; // 191.15
    QTest::newRow("first cyan") << 500 << 190 << 200 << 128;
    QTest::newRow("last cyan") << 519 << 175 << 200 << 128; // 175.75
    QTest::newRow("first green") << 520 << 175 << 200 << 128;
    QTest::newRow("last green") << 564 << 72 << 200 << 128; // 72.33
    QTest::newRow("first yellow") << 565 << 70 << 200 << 128;
    QTest::newRow("last yellow") << 589 << 50 << 200 << 128; // 50.8
    QTest::newRow("first orange") << 590 << 50 << 200 << 128;
    QTest::newRow("last orange") << 624 << 25 << 200 << 128; // 25.71
    QTest::newRow("first red") << 625 << 25 << 200 << 128;
    QTest::newRow("last red") << 674 << 0 << 200 << 128; // 0.5
    QTest::newRow("first dark red") << 675 << 0 << 200 << 126;
    QTest::newRow("last dark red") << 724 << 0 << 200 << 77;
    QTest::newRow("first infrared") << 725 << 0 << 200 << 76;
    QTest::newRow("two nanometres a step") << 726 << 0 << 200 << 76;
    QTest::newRow("last with a hue") << 1126 << 0 << 0 << 76; // d = 200
    QTest::newRow("first grey") << 1127 << 0 << 0 << 75;      // d = 201
    QTest::newRow("nearly black") << 1276 << 0 << 0 << 1;     // d = 275
    QTest::newRow("black") << 1277 << 0 << 0 << 0;            // d = 276
    QTest::newRow("far") << 2000 << 0 << 0 << 0;
    QTest::newRow("largest number") << std::numeric_limits<int>::max() << 0 << 0 << 0;
}

void tst_LightColor::knowsTheHueAtTheBorders()
{
    QFETCH(int, wavelength);
    QFETCH(int, hue);
    QFETCH(int, saturation);
    QFETCH(int, lightness);

    QCOMPARE(text(LightColor::hueRamp(wavelength)),
             text(QColor::fromHsl(hue, saturation, lightness).rgba()));
}

void tst_LightColor::knowsTheGammaColorOfEveryNanometre()
{
    const QVector<double> all = wavelengths();
    for (const double w : all) {
        if (LightColor::gammaRamp(w) != expectedGamma(w))
            QFAIL(qPrintable(QStringLiteral("%1 nm: %2, expected %3")
                                 .arg(w)
                                 .arg(text(LightColor::gammaRamp(w)), text(expectedGamma(w)))));
    }
}

void tst_LightColor::knowsTheGammaColorAtTheBorders_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<QRgb>("color");

    QTest::newRow("first violet") << 380.0 << qRgb(97, 0, 97);
    QTest::newRow("blue") << 440.0 << qRgb(0, 0, 255);
    QTest::newRow("cyan") << 490.0 << qRgb(0, 255, 255);
    QTest::newRow("green") << 510.0 << qRgb(0, 255, 0);
    QTest::newRow("yellow") << 580.0 << qRgb(255, 255, 0);
    QTest::newRow("red") << 645.0 << qRgb(255, 0, 0);
    QTest::newRow("last red") << 750.0 << qRgb(97, 0, 0);
    QTest::newRow("ultraviolet") << 379.9 << qRgb(63, 63, 63);
    QTest::newRow("infrared") << 750.1 << qRgb(63, 63, 63);
    QTest::newRow("nothing") << 0.0 << qRgb(63, 63, 63);
    QTest::newRow("not a number") << qQNaN() << qRgb(63, 63, 63);
    QTest::newRow("infinite") << qInf() << qRgb(63, 63, 63);
    QTest::newRow("minus infinity") << -qInf() << qRgb(63, 63, 63);
}

void tst_LightColor::knowsTheGammaColorAtTheBorders()
{
    QFETCH(double, wavelength);
    QFETCH(QRgb, color);

    QCOMPARE(text(LightColor::gammaRamp(wavelength)), text(color));
}

void tst_LightColor::knowsTheChartColorOfEveryNanometre_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("350 to 800") << 350.0 << 800.0;
    QTest::newRow("the instrument's range") << 300.0 << 950.0;
    QTest::newRow("fractions") << 349.5 << 800.5;
    QTest::newRow("inside of the visible band") << 450.0 << 600.0;
    QTest::newRow("no ultraviolet") << 400.0 << 950.0;
    QTest::newRow("no infrared") << 300.0 << 750.0;
    QTest::newRow("reversed") << 950.0 << 300.0;
}

void tst_LightColor::knowsTheChartColorOfEveryNanometre()
{
    QFETCH(double, min);
    QFETCH(double, max);
    const QVector<double> all = wavelengths();

    for (const double w : all) {
        const QString color = text(LightColor::chartRamp(w, min, max, 1.0));
        if (color != text(expectedChart(w, min, max)))
            QFAIL(qPrintable(QStringLiteral("%1 nm: %2, expected %3")
                                 .arg(w)
                                 .arg(color, text(expectedChart(w, min, max)))));
    }
}

void tst_LightColor::knowsTheChartColorAtTheBorders_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<QColor>("color");

    const QColor white(255, 255, 255);
    QTest::newRow("lower end") << 350.0 << 350.0 << 800.0 << white;
    QTest::newRow("upper end") << 800.0 << 350.0 << 800.0 << white;
    QTest::newRow("below") << 349.0 << 350.0 << 800.0 << white;
    QTest::newRow("above") << 801.0 << 350.0 << 800.0 << white;
    QTest::newRow("violet") << 380.0 << 350.0 << 800.0 << QColor(97, 0, 97);
    QTest::newRow("last red") << 750.0 << 350.0 << 800.0 << QColor(97, 0, 0);
    // half way: 255 * (1 - 0.618 / 2) = 176.16, 255 / 2 = 127.5
    QTest::newRow("half ultraviolet") << 365.0 << 350.0 << 800.0 << QColor(176, 127, 176);
    QTest::newRow("half infrared") << 775.0 << 350.0 << 800.0 << QColor(176, 127, 127);
    QTest::newRow("a chart from violet") << 380.0 << 380.0 << 800.0 << QColor(97, 0, 97);
    QTest::newRow("below a chart from violet") << 379.9 << 380.0 << 800.0 << white;
    QTest::newRow("a chart to the last red") << 750.0 << 350.0 << 750.0 << QColor(97, 0, 0);
    QTest::newRow("above a chart to the last red") << 750.1 << 350.0 << 750.0 << white;
    QTest::newRow("infinite") << qInf() << 350.0 << 800.0 << white;
    QTest::newRow("minus infinity") << -qInf() << 350.0 << 800.0 << white;
    QTest::newRow("not a number") << qQNaN() << 350.0 << 800.0 << white;
}

void tst_LightColor::knowsTheChartColorAtTheBorders()
{
    QFETCH(double, wavelength);
    QFETCH(double, min);
    QFETCH(double, max);
    QFETCH(QColor, color);

    QCOMPARE(text(LightColor::chartRamp(wavelength, min, max, 1.0)), text(color));
}

void tst_LightColor::limitsTheAlpha_data()
{
    QTest::addColumn<double>("alpha");
    QTest::addColumn<int>("expected"); // -1 for an invalid colour

    QTest::newRow("full") << 1.0 << 255;
    QTest::newRow("too much") << 2.0 << 255;
    QTest::newRow("infinite") << qInf() << 255;
    QTest::newRow("half, cut") << 0.5 << 127;          // 127.5
    QTest::newRow("nearly full, cut") << 0.999 << 254; // 254.7
    QTest::newRow("none") << 0.0 << 0;
    QTest::newRow("negative") << -0.5 << -1;
    QTest::newRow("less than a level below zero, cut") << -0.5 / 255.0 << 0;
    QTest::newRow("one level below zero") << -1.0 / 255.0 << -1;
    QTest::newRow("minus infinity") << -qInf() << -1;
    QTest::newRow("not a number") << qQNaN() << -1;
}

void tst_LightColor::limitsTheAlpha()
{
    QFETCH(double, alpha);
    QFETCH(int, expected);

    const QColor color = LightColor::chartRamp(510.0, 350.0, 800.0, alpha);

    QCOMPARE(color.isValid() ? color.alpha() : -1, expected);
    QCOMPARE(color, expected < 0 ? QColor() : QColor(0, 255, 0, expected));
}

void tst_LightColor::carriesTheAlphaInEveryBand_data()
{
    QTest::addColumn<double>("wavelength");

    for (const double w : { 340.0, 360.0, 400.0, 460.0, 500.0, 550.0, 600.0, 700.0, 780.0, 900.0 })
        QTest::addRow("%g nm", w) << w;
}

void tst_LightColor::carriesTheAlphaInEveryBand()
{
    QFETCH(double, wavelength);

    QColor opaque = expectedChart(wavelength, 350.0, 800.0);
    opaque.setAlpha(51);
    QCOMPARE(text(LightColor::chartRamp(wavelength, 350.0, 800.0, 0.2)), text(opaque));
    QVERIFY(!LightColor::chartRamp(wavelength, 350.0, 800.0, -0.2).isValid());
}

void tst_LightColor::tellsWhatHasNoColor_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");

    QTest::newRow("a fade from minus infinity") << 360.0 << -qInf() << 800.0;
    QTest::newRow("a fade to infinity") << 780.0 << 350.0 << qInf();
}

void tst_LightColor::tellsWhatHasNoColor()
{
    QFETCH(double, wavelength);
    QFETCH(double, min);
    QFETCH(double, max);

    QVERIFY(!LightColor::chartRamp(wavelength, min, max, 1.0).isValid());
}

PELORIN_TEST_MAIN(tst_LightColor)
#include "tst_lightcolor.moc"
