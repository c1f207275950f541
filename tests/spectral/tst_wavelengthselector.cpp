#include "Pelorin/spectral/WavelengthSelector.h"
#include "tests/spectral/SpectrumProbe.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/MouseHand.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QPointer>

#include <limits>

namespace {

using namespace SpectrumProbe;

constexpr QRgb curveGrey = 0xFFCCCCCC;
constexpr int lowest = std::numeric_limits<int>::min();
constexpr int highest = std::numeric_limits<int>::max();
constexpr int gap = 20;

/// Makes the spectrum of \a selector 400 pixels wide, one for each nm from 400 to 800, and 200 high,
/// two for each unit of power.
void prepare(WavelengthSelector &selector)
{
    selector.setWavelengthRange(400, 800);
    const QSize frame(labelWidth("000") + 2 * gap + 2, labelHeight() + 2 * gap + 2);
    showOnWhite(selector, QSize(400, 200) + frame);
    selector.grab();
}

class Selector : public WavelengthSelector
{
public:
    Selector()
        : WavelengthSelector(gap)
    {
        prepare(*this);
    }

    /// Enables \a channel there, and paints.
    void place(int channel, double wavelength, int power)
    {
        setChannel(channel, wavelength, power);
        enableChannel(channel, true);
        grab();
    }

    /// The place of a wavelength and a power on the bar.
    QPoint at(double wavelength, double power) const
    {
        return spectrumRect().bottomLeft() + QPoint(qRound(wavelength - 400), -qRound(2 * power));
    }

    /// The middle of the marker of \a channel, as painted last; null if there is none.
    QPoint middle(int channel) const
    {
        for (int y = -30; y < height() + 30; ++y) {
            for (int x = -30; x < width() + 30; ++x) {
                if (isAboveChannel(channel, QPoint(x, y)))
                    return QPoint(x + 9, y + 9); // the first that is not on the edge
            }
        }
        return QPoint();
    }

    /// What a click on the marker of \a channel tells.
    QStringList clicked(int channel)
    {
        grab();
        SignalRecorder recorder(this);
        MouseHand hand(*this);
        hand.press(middle(channel));
        hand.release(middle(channel));
        return recorder.taken();
    }
};

/// A subclass that draws its curve where it belongs.
class CurveSelector : public WavelengthSelector
{
public:
    CurveSelector()
        : WavelengthSelector(gap)
    {
        prepare(*this);
    }

protected:
    void paintEvent(QPaintEvent *event) override
    {
        WavelengthSelector::paintEvent(event);
        drawPowerGrid();
        drawCurve();
    }
};

/// \a count times \a value.
QList<int> repeated(int value, int count)
{
    QList<int> result;
    for (int i = 0; i < count; ++i)
        result << value;
    return result;
}

} // namespace

class tst_WavelengthSelector : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void startsWithoutMarkers();
    void startsItsChannelsAt500();
    void limitsWhatIsSet_data();
    void limitsWhatIsSet();
    void setsOneValueOfTwo();
    void ignoresAWavelengthThatIsNoNumber();
    void ignoresOtherChannels_data();
    void ignoresOtherChannels();
    void keepsValuesWhenARangeChanges();
    void passesRangesToTheBar();
    void repaintsAndIsSilentWhenSet();

    void dragsAMarker();
    void tellsOfAClickThatItWasSaved();
    void keepsTheMarkerUnderThePointer();
    void dividesByFractions();
    void pinsTheValuesAtTheRange_data();
    void pinsTheValuesAtTheRange();
    void freezesOutsideOfTheWidget();
    void takesAMarkerStrictlyInside_data();
    void takesAMarkerStrictlyInside();
    void takesTheMarkerOnTop();
    void takesNoDisabledMarker();
    void takesAnyButton();
    void movesNothingAfterAPressBeside();
    void dragsWithoutASpan_data();
    void dragsWithoutASpan();
    void dragsOnABarWithoutRoom_data();
    void dragsOnABarWithoutRoom();
    void mayBeDeletedWhileItReports_data();
    void mayBeDeletedWhileItReports();

    void drawsEnabledMarkers();
    void drawsMarkersAtTheLowerEndWithoutASpan();
    void drawsABoxOnAStem();
    void drawsTheNumberInTheBox();
    void drawsMarkersInTheirOrder();
    void drawsTheWarningUnderTheMarkers();
    void drawsNoCurveByItself();
    void drawsACurveForSubclasses();
    void leavesOutWhatTheCurveHasNot();
    void addsToTheCurve();
    void livesThroughAbsurdNumbers();
};

void tst_WavelengthSelector::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = WavelengthSelector::staticMetaObject;

    QCOMPARE(meta.superClass(), &WavelengthSpectrum::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             list({ "channelChanged(int,double,int)", "channelSaved(int,double,int)",
                    "setChannel(int,double,int)", "setChannelPower(int,int)",
                    "setChannelWavelength(int,double)", "enableChannel(int,bool)",
                    "setCurveData(int,QList<int>)", "setCurveVisibility(bool)",
                    "setOverdriveVisibility(bool)" }));
}

void tst_WavelengthSelector::startsWithoutMarkers()
{
    Selector selector;
    WavelengthSpectrum bar(gap, nullptr);
    bar.setWavelengthRange(400, 800);
    showOnWhite(bar, selector.size());

    QCOMPARE(picture(selector), picture(bar));
    QVERIFY(!selector.isOverdriveVisible());
    QVERIFY(!selector.isCurveVisible());
    for (int i = 0; i < 8; ++i)
        QVERIFY(!selector.isAboveChannel(i, QPoint(0, 0)));
    QCOMPARE(WavelengthSelector(10).minimumSize(), QSize(250, 250));
}

void tst_WavelengthSelector::startsItsChannelsAt500()
{
    for (int i = 0; i < 8; ++i) {
        Selector selector;

        selector.enableChannel(i, true);

        QCOMPARE(selector.clicked(i),
                 QStringList(QStringLiteral("channelSaved(%1, 500, 0)").arg(i)));
        QCOMPARE(selector.middle(i), selector.at(500.0, 0.0));
    }
}

void tst_WavelengthSelector::limitsWhatIsSet_data()
{
    QTest::addColumn<double>("wavelength");
    QTest::addColumn<int>("power");
    QTest::addColumn<QString>("stored");

    QTest::newRow("inside") << 612.5 << 40 << "channelSaved(3, 612.5, 40)";
    QTest::newRow("lower end") << 400.0 << 0 << "channelSaved(3, 400, 0)";
    QTest::newRow("upper end") << 800.0 << 100 << "channelSaved(3, 800, 100)";
    QTest::newRow("below") << 399.9 << -1 << "channelSaved(3, 400, 0)";
    QTest::newRow("above") << 800.1 << 101 << "channelSaved(3, 800, 100)";
    QTest::newRow("far below") << -qInf() << lowest << "channelSaved(3, 400, 0)";
    QTest::newRow("far above") << qInf() << highest << "channelSaved(3, 800, 100)";
}

void tst_WavelengthSelector::limitsWhatIsSet()
{
    QFETCH(double, wavelength);
    QFETCH(int, power);
    QFETCH(QString, stored);
    Selector together;
    Selector apart;

    together.place(3, wavelength, power);
    apart.enableChannel(3, true);
    apart.setChannelPower(3, power);
    apart.setChannelWavelength(3, wavelength);

    QCOMPARE(together.clicked(3), QStringList(stored));
    QCOMPARE(apart.clicked(3), QStringList(stored));
}

void tst_WavelengthSelector::setsOneValueOfTwo()
{
    Selector selector;
    selector.place(0, 600.0, 30);

    selector.setChannelPower(0, 50);
    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 600, 50)" }));

    selector.setChannelWavelength(0, 450.0);
    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 450, 50)" }));
}

void tst_WavelengthSelector::ignoresAWavelengthThatIsNoNumber()
{
    Selector selector;
    selector.place(0, 600.0, 30);

    selector.setChannel(0, qQNaN(), 50);

    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 600, 50)" }));
}

void tst_WavelengthSelector::ignoresOtherChannels_data()
{
    QTest::addColumn<int>("channel");

    QTest::newRow("one too low") << -1;
    QTest::newRow("one too high") << 8;
    QTest::newRow("lowest number") << lowest;
    QTest::newRow("highest number") << highest;
}

void tst_WavelengthSelector::ignoresOtherChannels()
{
    QFETCH(int, channel);
    Selector selector;
    for (int i = 0; i < 8; ++i)
        selector.place(i, 420.0 + 50.0 * i, 10 * i);
    const QImage before = picture(selector);
    SignalRecorder recorder(&selector);

    selector.setChannel(channel, 700.0, 70);
    selector.setChannelPower(channel, 70);
    selector.setChannelWavelength(channel, 700.0);
    selector.enableChannel(channel, false);

    QVERIFY(!selector.isAboveChannel(channel, selector.middle(0)));
    QCOMPARE(picture(selector), before);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthSelector::keepsValuesWhenARangeChanges()
{
    Selector selector;
    selector.place(0, 800.0, 0);

    selector.setWavelengthRange(400, 790);
    selector.setPowerRange(5, 100);
    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 800, 0)" }));
    // 400 * 400 / 390 = 410.3 and -5 * 200 / 95 = -10.5
    QCOMPARE(selector.middle(0), selector.spectrumRect().bottomLeft() + QPoint(410, 11));

    selector.enableChannel(0, true);
    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 790, 5)" }));

    selector.setWavelengthRange(400, 780);
    selector.setPowerRange(10, 100);
    selector.setChannelPower(0, 5);
    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 790, 10)" }));

    selector.setChannel(0, 790.0, 10);
    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 780, 10)" }));
}

void tst_WavelengthSelector::passesRangesToTheBar()
{
    Selector selector;
    WavelengthSpectrum &bar = selector;

    bar.setWavelengthRange(500, 600);
    bar.setPowerRange(10, 20);

    QCOMPARE(bar.minWavelength(), 500);
    QCOMPARE(bar.maxWavelength(), 600);
    QCOMPARE(bar.minPower(), 10);
    QCOMPARE(bar.maxPower(), 20);
    QCOMPARE(labels(bar).split(QLatin1Char(' ')).first(), QStringLiteral("10"));
    selector.place(0, 1000.0, 1000);
    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 600, 20)" }));
}

void tst_WavelengthSelector::repaintsAndIsSilentWhenSet()
{
    Selector selector;
    QVERIFY(QTest::qWaitForWindowExposed(&selector));
    RepaintCounter repaints(selector);
    SignalRecorder recorder(&selector);

    selector.setChannel(0, 500.0, 0); // what it was
    QCOMPARE(repaints.taken(), 1);
    selector.setChannelPower(0, 0);
    QCOMPARE(repaints.taken(), 1);
    selector.setChannelWavelength(0, 500.0);
    QCOMPARE(repaints.taken(), 1);
    selector.enableChannel(0, false);
    QCOMPARE(repaints.taken(), 1);
    selector.setCurveVisibility(true);
    QCOMPARE(repaints.taken(), 1);
    selector.setOverdriveVisibility(true);
    QCOMPARE(repaints.taken(), 1);
    selector.setWavelengthRange(400, 800);
    QCOMPARE(repaints.taken(), 1);
    selector.setPowerRange(0, 100);
    QCOMPARE(repaints.taken(), 1);
    selector.setCurveData(400, { 1, 2, 3 });

    QVERIFY(selector.isCurveVisible());
    QVERIFY(selector.isOverdriveVisible());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthSelector::dragsAMarker()
{
    Selector selector;
    selector.place(2, 500.0, 50);
    selector.place(5, 700.0, 50);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);

    hand.press(selector.at(500, 50));
    QCOMPARE(recorder.taken(), QStringList());

    hand.move(selector.at(537, 60));
    QCOMPARE(recorder.taken(), list({ "channelChanged(2, 537, 60)" }));

    hand.move(selector.at(537, 60)); // the mouse moved, if not the values
    hand.move(selector.at(536, 10));
    QCOMPARE(recorder.taken(),
             list({ "channelChanged(2, 537, 60)", "channelChanged(2, 536, 10)" }));

    hand.release(selector.at(410, 90)); // where nothing was told of
    QCOMPARE(recorder.taken(), list({ "channelSaved(2, 536, 10)" }));

    hand.move(selector.at(600, 60));
    hand.release(selector.at(600, 60));
    QCOMPARE(recorder.taken(), QStringList());
    selector.grab();
    QCOMPARE(selector.middle(2), selector.at(536, 10));
    QCOMPARE(selector.middle(5), selector.at(700, 50));
}

void tst_WavelengthSelector::tellsOfAClickThatItWasSaved()
{
    Selector selector;
    selector.place(7, 612.3, 33);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);

    hand.press(selector.middle(7) + QPoint(5, -3));
    hand.release(selector.middle(7) + QPoint(5, -3));

    QCOMPARE(recorder.taken(), list({ "channelSaved(7, 612.3, 33)" }));
}

void tst_WavelengthSelector::keepsTheMarkerUnderThePointer()
{
    Selector selector;
    selector.place(0, 500.0, 50);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);
    const QPoint grip = selector.at(500, 50) + QPoint(7, -4);

    hand.press(grip);
    hand.move(grip);
    hand.move(grip + QPoint(20, 10));

    QCOMPARE(recorder.taken(),
             list({ "channelChanged(0, 500, 50)", "channelChanged(0, 520, 45)" }));
}

void tst_WavelengthSelector::dividesByFractions()
{
    Selector selector;
    selector.setWavelengthRange(300, 950); // 1.625 nm a pixel
    selector.setPowerRange(0, 25);         // an eighth a pixel
    const int shift = labelWidth("000") - labelWidth("00");
    selector.resize(selector.width() - shift, selector.height());
    selector.place(0, 300.0, 0);
    QCOMPARE(selector.spectrumRect().size(), QSize(400, 200));
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);
    const QPoint start = selector.spectrumRect().bottomLeft();

    hand.press(start);
    hand.move(start + QPoint(1, -3));     // 0.375
    hand.move(start + QPoint(101, -4));   // 0.5
    hand.move(start + QPoint(399, -199)); // 24.875

    QCOMPARE(recorder.taken(),
             list({ "channelChanged(0, 301.625, 0)", "channelChanged(0, 464.125, 1)",
                    "channelChanged(0, 948.375, 25)" }));
}

void tst_WavelengthSelector::pinsTheValuesAtTheRange_data()
{
    QTest::addColumn<QPoint>("beyond"); // from a corner of the spectrum
    QTest::addColumn<bool>("atUpperEnd");
    QTest::addColumn<QString>("changed");

    QTest::newRow("left") << QPoint(-1, -100) << false << "channelChanged(0, 400, 50)";
    QTest::newRow("below") << QPoint(100, 1) << false << "channelChanged(0, 500, 0)";
    QTest::newRow("left and below") << QPoint(-15, 15) << false << "channelChanged(0, 400, 0)";
    QTest::newRow("right") << QPoint(2, 100) << true << "channelChanged(0, 800, 50)"; // 49.5
    QTest::newRow("above") << QPoint(-99, -2) << true << "channelChanged(0, 700, 100)";
    QTest::newRow("right and above") << QPoint(15, -15) << true << "channelChanged(0, 800, 100)";
}

void tst_WavelengthSelector::pinsTheValuesAtTheRange()
{
    QFETCH(QPoint, beyond);
    QFETCH(bool, atUpperEnd);
    QFETCH(QString, changed);
    Selector selector;
    selector.place(0, 600.0, 40);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);
    const QRect spectrum = selector.spectrumRect();
    const QPoint corner = atUpperEnd ? spectrum.topRight() : spectrum.bottomLeft();

    hand.press(selector.at(600, 40));
    hand.move(corner + beyond);

    QCOMPARE(recorder.taken(), QStringList(changed));
}

void tst_WavelengthSelector::freezesOutsideOfTheWidget()
{
    Selector selector;
    selector.place(0, 600.0, 40);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);

    hand.press(selector.at(600, 40));
    hand.move(selector.at(610, 40));
    QCOMPARE(recorder.taken(), list({ "channelChanged(0, 610, 40)" }));

    const QPoint inside = selector.at(650, 40);
    for (const QPoint &outside : { QPoint(-1, inside.y()), QPoint(selector.width(), inside.y()),
                                   QPoint(inside.x(), -1), QPoint(inside.x(), selector.height()) })
        hand.move(outside);
    QCOMPARE(recorder.taken(), QStringList());

    hand.move(inside);
    QCOMPARE(recorder.taken(), list({ "channelChanged(0, 650, 40)" }));

    hand.move(QPoint(-1000, -1000));
    hand.release(QPoint(-1000, -1000));
    QCOMPARE(recorder.taken(), list({ "channelSaved(0, 650, 40)" }));
}

void tst_WavelengthSelector::takesAMarkerStrictlyInside_data()
{
    QTest::addColumn<QPoint>("place"); // from the middle
    QTest::addColumn<bool>("inside");

    // a box of 20 pixels, 10 of them left of its middle and above
    QTest::newRow("left edge") << QPoint(-10, 0) << false;
    QTest::newRow("right of the left edge") << QPoint(-9, 0) << true;
    QTest::newRow("right edge") << QPoint(9, 0) << false;
    QTest::newRow("left of the right edge") << QPoint(8, 0) << true;
    QTest::newRow("upper edge") << QPoint(0, -10) << false;
    QTest::newRow("below the upper edge") << QPoint(0, -9) << true;
    QTest::newRow("lower edge") << QPoint(0, 9) << false;
    QTest::newRow("above the lower edge") << QPoint(0, 8) << true;
    QTest::newRow("on the stem") << QPoint(0, 30) << false;
}

void tst_WavelengthSelector::takesAMarkerStrictlyInside()
{
    QFETCH(QPoint, place);
    QFETCH(bool, inside);
    Selector selector;
    selector.place(4, 600.0, 50);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);
    const QPoint pointer = selector.at(600, 50) + place;

    hand.press(pointer);
    hand.release(pointer);

    QCOMPARE(selector.isAboveChannel(4, pointer), inside);
    QCOMPARE(recorder.taken(), inside ? list({ "channelSaved(4, 600, 50)" }) : QStringList());
}

void tst_WavelengthSelector::takesTheMarkerOnTop()
{
    Selector selector;
    for (const int channel : { 6, 1, 3 })
        selector.place(channel, 600.0, 50);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);

    hand.drag(selector.at(600, 50), selector.at(700, 50));
    QCOMPARE(recorder.taken(), list({ "channelChanged(6, 700, 50)", "channelSaved(6, 700, 50)" }));

    selector.grab();
    hand.drag(selector.at(600, 50), selector.at(500, 50));
    QCOMPARE(recorder.taken(), list({ "channelChanged(3, 500, 50)", "channelSaved(3, 500, 50)" }));
}

void tst_WavelengthSelector::takesNoDisabledMarker()
{
    Selector selector;
    selector.place(0, 600.0, 50);
    selector.enableChannel(0, false);
    selector.grab();
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);

    hand.drag(selector.at(600, 50), selector.at(700, 50));

    QVERIFY(selector.isAboveChannel(0, selector.at(600, 50))); // where it was
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthSelector::takesAnyButton()
{
    Selector selector;
    selector.place(0, 600.0, 50);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);

    hand.press(selector.at(600, 50), Qt::RightButton);
    hand.move(selector.at(610, 50));
    hand.release(selector.at(610, 50));

    QCOMPARE(recorder.taken(), list({ "channelChanged(0, 610, 50)", "channelSaved(0, 610, 50)" }));
}

/// A second button may be pressed while a marker is in the hand.
void tst_WavelengthSelector::movesNothingAfterAPressBeside()
{
    Selector selector;
    selector.place(0, 600.0, 50);
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);

    hand.press(selector.at(600, 50));
    hand.press(selector.at(700, 50), Qt::RightButton);
    hand.move(selector.at(710, 50));
    hand.release(selector.at(710, 50));

    QCOMPARE(recorder.taken(), QStringList());
}

void tst_WavelengthSelector::dragsWithoutASpan_data()
{
    QTest::addColumn<int>("minWavelength");
    QTest::addColumn<int>("maxWavelength");
    QTest::addColumn<int>("minPower");
    QTest::addColumn<int>("maxPower");
    QTest::addColumn<QString>("entries");

    QTest::newRow("no wavelengths")
        << 500 << 500 << 0 << 100 << "channelChanged(0, 500, 50) channelSaved(0, 500, 50)";
    QTest::newRow("no powers") << 400 << 800 << 30 << 30
                               << "channelChanged(0, 500, 30) channelSaved(0, 500, 30)";
    QTest::newRow("neither") << 500 << 500 << 30 << 30
                             << "channelChanged(0, 500, 30) channelSaved(0, 500, 30)";
}

void tst_WavelengthSelector::dragsWithoutASpan()
{
    QFETCH(int, minWavelength);
    QFETCH(int, maxWavelength);
    QFETCH(int, minPower);
    QFETCH(int, maxPower);
    QFETCH(QString, entries);
    Selector selector;
    selector.setWavelengthRange(minWavelength, maxWavelength);
    selector.setPowerRange(minPower, maxPower);
    const int shift = maxPower < 100 ? labelWidth("000") - labelWidth("00") : 0;
    selector.resize(selector.width() - shift, selector.height());
    selector.place(0, minWavelength, minPower);
    const QPoint start = selector.spectrumRect().bottomLeft();
    QCOMPARE(selector.middle(0), start); // at the lower ends
    SignalRecorder recorder(&selector);
    MouseHand hand(selector);

    hand.drag(start, start + QPoint(100, -100));

    QCOMPARE(recorder.taken().join(QLatin1Char(' ')), entries);
}

void tst_WavelengthSelector::dragsOnABarWithoutRoom_data()
{
    QTest::addColumn<QSize>("size");

    const int width = labelWidth("000") + 2 * gap + 2;
    const int height = labelHeight() + 2 * gap + 2;
    QTest::newRow("no columns") << QSize(width, 300);
    QTest::newRow("no rows") << QSize(300, height);
    QTest::newRow("neither") << QSize(width, height);
    QTest::newRow("fewer than none") << QSize(width - 30, height - 30);
}

/// What such a drag gives matters less than that it stays in range.
void tst_WavelengthSelector::dragsOnABarWithoutRoom()
{
    QFETCH(QSize, size);
    Selector selector;
    selector.resize(size);
    selector.setOverdriveVisibility(true);
    selector.place(0, 400.0, 0);
    QVERIFY(selector.spectrumRect().isEmpty());
    const QPoint start = selector.spectrumRect().bottomLeft();
    double wavelength = 0.0;
    int power = -1;
    connect(&selector, &WavelengthSelector::channelSaved, this, [&](int, double nm, int value) {
        wavelength = nm;
        power = value;
    });
    MouseHand hand(selector);

    hand.press(start);
    hand.move(start + QPoint(3, -3));
    hand.move(QPoint(0, 0));
    hand.release(start);

    QVERIFY(wavelength >= 400.0 && wavelength <= 800.0);
    QVERIFY(power >= 0 && power <= 100);
}

void tst_WavelengthSelector::mayBeDeletedWhileItReports_data()
{
    QTest::addColumn<bool>("atRelease");

    QTest::newRow("while dragging") << false;
    QTest::newRow("at the release") << true;
}

void tst_WavelengthSelector::mayBeDeletedWhileItReports()
{
    QFETCH(bool, atRelease);
    auto *selector = new Selector;
    const QPointer<Selector> alive(selector);
    selector->place(0, 600.0, 50);
    const auto destroy = [selector] { delete selector; };
    if (atRelease)
        connect(selector, &WavelengthSelector::channelSaved, this, destroy);
    else
        connect(selector, &WavelengthSelector::channelChanged, this, destroy);
    MouseHand hand(*selector);
    const QPoint place = selector->at(600, 50);

    hand.press(place);
    QVERIFY(alive);
    if (atRelease)
        hand.release(place);
    else
        hand.move(place);

    QVERIFY(!alive);
}

void tst_WavelengthSelector::drawsEnabledMarkers()
{
    Selector selector;
    const QString scales = labels(selector);
    for (int i = 0; i < 8; ++i)
        selector.setChannel(i, 420.0 + 50.0 * i, 50);
    QCOMPARE(labels(selector), scales);

    for (const int channel : { 7, 0, 4 })
        selector.enableChannel(channel, true);
    QCOMPARE(labels(selector), scales + QStringLiteral(" 1 5 8"));

    selector.enableChannel(4, false);
    QCOMPARE(labels(selector), scales + QStringLiteral(" 1 8"));
}

/// Also those whose values were stored before the range had lost its span.
void tst_WavelengthSelector::drawsMarkersAtTheLowerEndWithoutASpan()
{
    Selector selector;
    selector.place(0, 600.0, 50);

    selector.setWavelengthRange(500, 500);
    selector.setPowerRange(100, 100);
    selector.grab();

    QCOMPARE(selector.middle(0), selector.spectrumRect().bottomLeft());
}

void tst_WavelengthSelector::drawsABoxOnAStem()
{
    Selector selector;
    const QImage bare = picture(selector);
    selector.place(0, 600.0, 50);

    const QImage image = picture(selector);

    const QPoint middle = selector.at(600, 50);
    for (const int side : { -6, 6 }) {
        QCOMPARE(image.pixel(middle + QPoint(side, 0)), white);
        QCOMPARE(image.pixel(middle + QPoint(0, side)), white);
    }
    const auto changed = [&bare, &image](QPoint place) {
        return bare.pixel(place) != image.pixel(place);
    };
    // outlines of three pixels around the edges at -9 and 9
    for (const int inside : { -10, 8 }) {
        QVERIFY(changed(middle + QPoint(inside, 0)));
        QVERIFY(changed(middle + QPoint(0, inside)));
    }
    for (const int outside : { -12, 12 }) {
        QVERIFY(!changed(middle + QPoint(outside, 0)));
        QVERIFY(!changed(middle + QPoint(0, outside - 1) + QPoint(5, 0)));
    }
    for (const int corner : { -10, 9 })
        QVERIFY(!changed(middle + QPoint(corner, corner)));
    // from the floor to the box
    const int floor = selector.spectrumRect().bottom();
    for (int y = middle.y() + 10; y <= floor; ++y) {
        for (int x = -1; x <= 1; ++x)
            QCOMPARE(image.pixel(middle.x() + x, y), white);
        for (const int x : { -3, 3 }) {
            if (y > middle.y() + 12)
                QVERIFY(!changed(QPoint(middle.x() + x, y)));
        }
    }
    QVERIFY(!changed(QPoint(middle.x(), floor + 3)));
}

void tst_WavelengthSelector::drawsTheNumberInTheBox()
{
    Selector selector;
    selector.place(5, 600.0, 50);

    const PaintRecorder::Text text = PaintRecorder(selector).texts().last();

    QCOMPARE(text.text, QStringLiteral("6"));
    QCOMPARE(text.color.rgba(), 0xFF555555U);
    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pointSize(), 10);
    const QPoint middle = selector.at(600, 50);
    const double width = metrics().horizontalAdvance(QLatin1Char('6'));
    QVERIFY(qAbs(text.baseline.x() + width / 2.0 - middle.x()) <= 1.0);
    const double lineTop = text.baseline.y() - metrics().ascent();
    QVERIFY(qAbs(lineTop + metrics().height() / 2.0 - middle.y()) <= 1.0);
}

void tst_WavelengthSelector::drawsMarkersInTheirOrder()
{
    Selector selector;
    selector.place(1, 600.0, 50);
    const QImage lower = picture(selector);
    selector.enableChannel(1, false);
    selector.place(0, 606.0, 50);
    const QImage upper = picture(selector);

    selector.enableChannel(1, true);

    const QImage both = picture(selector);
    const QRect box(selector.at(600, 50) - QPoint(5, 7), QSize(12, 14));
    QCOMPARE(both.copy(box), lower.copy(box));
    QVERIFY(both.copy(box) != upper.copy(box));
}

void tst_WavelengthSelector::drawsTheWarningUnderTheMarkers()
{
    Selector selector;
    const QString advice =
        QStringLiteral("(Full power from RF driver. Please consult manual before use)");
    const QRect line = metrics().boundingRect(advice);
    const QRect spectrum = selector.spectrumRect();
    const int middle = (spectrum.left() + spectrum.right()) / 2;
    const QRect box(middle - line.width() / 2 - 10, spectrum.top() + 5, line.width() + 20,
                    2 * (line.height() - 1) + 12);
    const QImage bare = picture(selector);

    selector.setOverdriveVisibility(true);
    selector.place(0, 600.0, 95);
    selector.place(0, 405.0, 0);
    const QImage image = picture(selector);
    QStringList texts = PaintRecorder(selector).textList();
    QCOMPARE(texts.takeLast(), QStringLiteral("1")); // on top
    QVERIFY(texts.takeLast().contains(advice));
    QVERIFY(texts.takeLast().contains(QStringLiteral("RF Power, Overdrive setting.")));
    const int row = box.center().y();
    QCOMPARE(image.pixel(box.left() + 2, row), white);
    QCOMPARE(image.pixel(box.right() - 1, row), white);
    QCOMPARE(image.pixel(middle, box.top() + 2), white);
    QCOMPARE(image.pixel(middle, box.bottom() - 1), white);
    // the outline lies between two rows or columns, half on each
    const auto changed = [&bare, &image](int x, int y) {
        return bare.pixel(x, y) != image.pixel(x, y);
    };
    QVERIFY(changed(box.left() - 1, row) && !changed(box.left() - 2, row));
    QVERIFY(changed(box.right() + 1, row) && !changed(box.right() + 2, row));
    QVERIFY(changed(middle, box.top() - 1) && !changed(middle, box.top() - 2));
    QVERIFY(changed(middle, box.bottom() + 1) && !changed(middle, box.bottom() + 2));

    selector.place(0, 600.0, 95); // over the box
    QCOMPARE(picture(selector).copy(QRect(selector.at(600, 95) - QPoint(6, 6), QSize(3, 12))), [] {
        QImage plain(3, 12, QImage::Format_RGB32);
        plain.fill(Qt::white);
        return plain;
    }());
    QCOMPARE(selector.clicked(0), list({ "channelSaved(0, 600, 95)" }));

    selector.setOverdriveVisibility(false);
    selector.enableChannel(0, false);
    QCOMPARE(picture(selector), bare);
}

void tst_WavelengthSelector::drawsNoCurveByItself()
{
    Selector selector;
    const QImage bare = picture(selector);

    selector.setCurveData(375, repeated(50, 500));
    selector.setCurveVisibility(true);

    QCOMPARE(picture(selector), bare);
}

void tst_WavelengthSelector::drawsACurveForSubclasses()
{
    // 400 nm and 25 more at each end over 400 pixels: 1.125 nm each, from 375 on
    CurveSelector selector;
    const QRect spectrum = selector.spectrumRect();
    const QImage bare = picture(selector);

    selector.setCurveData(375, repeated(20, 226) + repeated(80, 300));

    const QImage image = picture(selector);
    // 180 pixels for a hundred, from 10 above the floor on
    const int low = spectrum.bottom() - 10 - 36;
    const int high = spectrum.bottom() - 10 - 144;
    // the entry 225 is at 225 / 1.125 = 200 pixels
    for (int x = 2; x <= 198; ++x)
        QCOMPARE(image.pixel(spectrum.left() + x, low), curveGrey);
    for (int x = 203; x <= 398; ++x)
        QCOMPARE(image.pixel(spectrum.left() + x, high), curveGrey);
    for (const int y : { low - 3, low + 3, high - 3, high + 3 }) {
        QCOMPARE(image.pixel(spectrum.left() + 100, y), bare.pixel(spectrum.left() + 100, y));
        QCOMPARE(image.pixel(spectrum.left() + 300, y), bare.pixel(spectrum.left() + 300, y));
    }
    for (int y = low - 2; y <= low + 2; ++y) // the first entry is left out
        QVERIFY(image.pixel(spectrum.left() - 1, y) != curveGrey);
    QVERIFY(image.pixel(spectrum.right() + 3, high) != curveGrey);
}

void tst_WavelengthSelector::leavesOutWhatTheCurveHasNot()
{
    CurveSelector selector;
    const QRect spectrum = selector.spectrumRect();
    const int low = spectrum.bottom() - 10 - 36;

    // from pixel 120 to pixel 280, with nothing between 160 and 240
    selector.setCurveData(375 + 135, repeated(20, 45) + repeated(0, 90) + repeated(20, 45));

    const QImage image = picture(selector);
    const QList<int> columns = columnsOf(image, low, curveGrey);
    QVERIFY(qAbs(columns.first() - (spectrum.left() + 120)) <= 3);
    QVERIFY(qAbs(columns.last() - (spectrum.left() + 280)) <= 3);
    QCOMPARE(columns, span(columns.first(), columns.last())); // bridged by a line
    QVERIFY(columnsOf(image, spectrum.bottom() - 10, curveGrey).isEmpty());
}

void tst_WavelengthSelector::addsToTheCurve()
{
    CurveSelector selector;
    const QRect spectrum = selector.spectrumRect();
    const int low = spectrum.bottom() - 10 - 36;

    selector.setCurveData(500, repeated(20, 200));
    selector.setCurveData(375, repeated(20, 250));

    // 450 entries from 375 on: all the way
    const QList<int> columns = columnsOf(picture(selector), low, curveGrey);
    QVERIFY(columns.first() <= spectrum.left() + 3);
    QVERIFY(columns.last() >= spectrum.right() - 3);
}

void tst_WavelengthSelector::livesThroughAbsurdNumbers()
{
    CurveSelector selector;
    selector.setOverdriveVisibility(true);
    for (int i = 0; i < 8; ++i) {
        selector.setChannel(i, 400.0 + 50.0 * i, 12 * i);
        selector.enableChannel(i, true);
    }
    selector.setCurveData(lowest, { highest, lowest, 3 });
    MouseHand hand(selector);

    for (const int start : { lowest, -1, highest }) {
        selector.setCurveData(start, { highest, lowest, highest, 50 });
        for (const int max : { lowest, 0, 1, highest }) {
            for (const int min : { lowest, 0, highest }) {
                selector.setWavelengthRange(min, max);
                selector.setPowerRange(min, max);
                selector.grab();
                selector.enableChannel(3, true);
                hand.drag(selector.spectrumRect().bottomLeft(), QPoint(5, 5));
                hand.drag(QPoint(highest, lowest), QPoint(lowest, highest));
                QCOMPARE(selector.grab().size(), selector.size());
            }
        }
    }
}

PELORIN_TEST_MAIN(tst_WavelengthSelector)
#include "tst_wavelengthselector.moc"
