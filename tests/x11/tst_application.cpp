#include "tests/gallery/ApplicationProbe.h"
#include "tests/support/DialogHand.h"
#include "tests/support/RealMouse.h"
#include "tests/support/TestCase.h"

#include <Pelorin/Button>
#include <Pelorin/LineEditPowerNG>
#include <Pelorin/Pelorin>
#include <Pelorin/ScrollAreaNG>
#include <Pelorin/WavelengthChart>

#include <QFile>
#include <QImage>
#include <QTemporaryDir>
#include <QValueAxis>

using Simulation::Instrument;
using Simulation::Laser;

namespace {

constexpr QLatin1Char space(' ');
constexpr int answerMs = 100;
constexpr int startUpMs = 12000;

QPoint middle(const QWidget *widget)
{
    return widget->mapToGlobal(widget->rect().center());
}

} // namespace

/// The application from end to end: a real pointer and a real keyboard on a real server. The time of
/// the instruments is driven, so that no test waits for a laser.
class tst_Application : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void startsUpByClicks_data();
    void startsUpByClicks();
    void showsNothingOfThePast_data() { startsUpByClicks_data(); }
    void showsNothingOfThePast();
    void takesATypedPower();
    void abandonsATypedPower();
    void takesADraggedPower();
    void refusesAReportWhileTheHandleIsHeld();
    void zoomsAndExportsTheChart();
    void floatsADockAndResetsIt();
    void comesBackAsItWasLeft();

private:
    bool open(const char *device)
    {
        m_window = std::make_unique<ApplicationProbe>(file());
        m_window->resize(1560, 900); // all of it and its frame are on the screen
        m_window->show();
        m_window->activateWindow();
        return QTest::qWaitForWindowActive(m_window.get())
               && m_window->showDevice(QLatin1String(device));
    }
    QString file() const { return m_dir->filePath(QStringLiteral("layout.ini")); }
    Instrument &ostrel() { return m_window->instrument(0); }
    LineEditPowerNG *entry() const { return m_window->find<LineEditPowerNG>("powerEntry"); }
    ScaleSliderNG *powerSlider() const { return m_window->slider("power")->slider; }
    QPoint powerHandle() const
    {
        return powerSlider()->mapToGlobal(ApplicationProbe::handle(*powerSlider()));
    }
    /// In place of what the field shows.
    static bool typeAnew(const QString &number)
    {
        return RealMouse::key(QStringLiteral("End"))
               && RealMouse::xdotool(QStringLiteral("key --repeat 6 BackSpace").split(space))
               && RealMouse::xdotool({ QStringLiteral("type"), number });
    }

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<ApplicationProbe> m_window;
};

void tst_Application::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
}

void tst_Application::init()
{
    TestCase::init();
    tolerateMessages(QtDebugMsg, QString()); // what a signal graph writes of its points
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(RealMouse::moveTo(QPoint(5, 5)));
}

void tst_Application::cleanup()
{
    RealMouse::release();
    m_window.reset();
    TestCase::cleanup();
}

void tst_Application::startsUpByClicks_data()
{
    QTest::addColumn<QString>("device");
    QTest::addColumn<int>("row");
    QTest::addColumn<QStringList>("buttons");

    const QString emission = QStringLiteral("Emission ON / OFF");
    const QString standby = QStringLiteral("Standby");
    const QString laserOn = QStringLiteral("Laser On");
    const QString output = QStringLiteral("Output enable");
    QTest::newRow("first model") << QStringLiteral("ostrel") << 0
                                 << QStringList{ standby, laserOn };
    QTest::newRow("second model") << QStringLiteral("marquel") << 1 << QStringList{ emission };
    QTest::newRow("third model") << QStringLiteral("marquelx") << 2
                                 << QStringList{ standby, laserOn, output };
    QTest::newRow("plain panel") << QStringLiteral("lightsource") << 3 << QStringList{ emission };
}

void tst_Application::startsUpByClicks()
{
    QFETCH(QString, device);
    QFETCH(int, row);
    QFETCH(QStringList, buttons);
    QVERIFY(open(qPrintable(device)));
    m_window->advance(3000);
    Laser &laser = m_window->instrument(row).laser();
    QCOMPARE(laser.state(), uchar(Laser::Listening));

    for (const QString &text : buttons) {
        QPushButton *button = m_window->panelButton(text);
        QTRY_VERIFY2(button && button->isEnabled(), qPrintable(text));
        const int requests = m_window->requests().size();
        QVERIFY(RealMouse::click(middle(button)));
        QTRY_VERIFY(m_window->requests().size() > requests);
        m_window->advance(startUpMs);
    }

    QCOMPARE(laser.state(), uchar(Laser::Emitting));
    m_window->advance(5000);
    const double setpoint = m_window->instrument(row).powerSetpoint();
    QVERIFY(qAbs(m_window->instrument(row).power() - setpoint) < setpoint / 100.0);
}

/// What stands on the screen is what a fresh picture of the window would show.
void tst_Application::showsNothingOfThePast()
{
    QFETCH(QString, device);
    QFETCH(int, row);
    QVERIFY(open(qPrintable(device)));
    Instrument &instrument = m_window->instrument(row);

    for (const int pageIndex : { 0, 1 }) {
        m_window->view(qPrintable(device))->controlPageTabBar()->setCurrentIndex(pageIndex);
        instrument.laser().emitLight(true);
        instrument.requestPower(instrument.powerLimits().max / 2.0);
        instrument.requestWavelength(instrument.wavelengths().max);
        for (int i = 0; i < 100; ++i) {
            m_window->advance(200);
            QCoreApplication::processEvents();
        }
        QTRY_COMPARE(m_window->stalePart(), QRect());
        instrument.laser().emitLight(false);
        instrument.requestPower(instrument.powerLimits().max / 5.0);
        m_window->advance(3000);
        QTRY_COMPARE(m_window->stalePart(), QRect());
    }
}

void tst_Application::takesATypedPower()
{
    QVERIFY(open("ostrel"));

    QVERIFY(RealMouse::click(middle(entry())));
    QTRY_VERIFY(entry()->hasFocus());
    QVERIFY(typeAnew(QStringLiteral("55.5")));
    QTRY_COMPARE(entry()->text(), QStringLiteral("55.5"));
    QCOMPARE(m_window->requests(), QStringList());
    QVERIFY(RealMouse::key(QStringLiteral("Return")));
    QTRY_COMPARE(m_window->requests().size(), 1);
    m_window->advance(answerMs);

    QCOMPARE(ostrel().powerSetpoint(), 55.5);
    QCOMPARE(powerSlider()->value0(), 55.5);
}

void tst_Application::abandonsATypedPower()
{
    QVERIFY(open("ostrel"));
    entry()->setEditTimeout(1000);

    QVERIFY(RealMouse::click(middle(entry())));
    QTRY_VERIFY(entry()->hasFocus());
    QVERIFY(typeAnew(QStringLiteral("99")));
    QTRY_COMPARE(entry()->text(), QStringLiteral("99"));
    QTRY_COMPARE(entry()->text(), QStringLiteral("40.0"));
    m_window->advance(answerMs);

    QCOMPARE(m_window->requests(), QStringList());
    QCOMPARE(ostrel().powerSetpoint(), 40.0);
}

void tst_Application::takesADraggedPower()
{
    QVERIFY(open("ostrel"));
    QTRY_VERIFY(powerSlider()->isVisible());
    const QPoint start = powerHandle();

    QVERIFY(RealMouse::drag(start, start + QPoint(60, 0)));
    QTRY_COMPARE(m_window->requests().size(), 1);
    const double asked = powerSlider()->value0();
    QVERIFY(asked > 50.0);
    m_window->advance(answerMs);

    QVERIFY(qAbs(ostrel().powerSetpoint() - asked) < 0.051); // the slider tells one decimal
    QCOMPARE(entry()->value(), ostrel().powerSetpoint());
}

void tst_Application::refusesAReportWhileTheHandleIsHeld()
{
    QVERIFY(open("ostrel"));
    QTRY_VERIFY(powerSlider()->isVisible());
    const QPoint start = powerHandle();
    QVERIFY(RealMouse::moveTo(start));
    QVERIFY(RealMouse::press());
    QVERIFY(RealMouse::moveTo(start + QPoint(40, 0)));
    QTRY_VERIFY(powerSlider()->value0() > 45.0);
    const double held = powerSlider()->value0();

    ostrel().requestPower(5.0);
    m_window->advance(3000);
    QCOMPARE(powerSlider()->value0(), held);
    QCOMPARE(entry()->value(), 5.0);
    QVERIFY(RealMouse::release());
    QTRY_COMPARE(m_window->requests().size(), 1);
    m_window->advance(answerMs);

    QVERIFY(qAbs(ostrel().powerSetpoint() - held) < 0.051);
}

void tst_Application::zoomsAndExportsTheChart()
{
    QVERIFY(open("ostrel"));
    ostrel().laser().emitLight(true);
    m_window->advance(startUpMs);
    auto *chart = m_window->find<WavelengthChart>("chart");
    QTRY_VERIFY(chart->isVisible() && chart->chart()->plotArea().width() > 300.0);
    m_window->advance(answerMs);
    auto *axis = qobject_cast<QtCharts::QValueAxis *>(chart->chart()->axes(Qt::Horizontal).first());
    const double whole = axis->max() - axis->min();
    const QRectF plot = chart->chart()->plotArea();
    const auto at = [&](double across) {
        const QPointF place(plot.left() + across * plot.width(), plot.center().y());
        return chart->viewport()->mapToGlobal(place.toPoint());
    };

    QVERIFY(RealMouse::drag(at(0.25), at(0.75)));
    QTRY_VERIFY(axis->max() - axis->min() < 0.6 * whole);

    const auto [save, proxy] = ApplicationProbe::saveButton(*chart);
    QVERIFY(save);
    const QPoint inside = save->mapTo(proxy->widget(), save->rect().center());
    const QPoint button =
        chart->viewport()->mapToGlobal(chart->mapFromScene(proxy->mapToScene(QPointF(inside))));
    const QString table = m_dir->filePath(QStringLiteral("spectrum.csv"));
    const QString picture = m_dir->filePath(QStringLiteral("spectrum.png"));
    {
        DialogHand hand;
        hand.save(table, QStringLiteral("Data files (*.csv *.txt)"));
        QVERIFY(RealMouse::click(button));
        QTRY_VERIFY(QFile::exists(table));
        QCOMPARE(hand.problems(), QStringList());
    }
    {
        DialogHand hand;
        hand.save(picture, QStringLiteral("Image files (*.png *.jpg *.jpeg *.bmp)"));
        QVERIFY(RealMouse::click(button));
        QTRY_VERIFY(QFile::exists(picture));
        QCOMPARE(hand.problems(), QStringList());
    }

    QFile csv(table);
    QVERIFY(csv.open(QIODevice::ReadOnly));
    const QList<QByteArray> lines = csv.readAll().split('\n');
    QCOMPARE(lines.first().trimmed(), QByteArray("sep=,"));
    QVERIFY(lines.at(1).contains("\"Spectrometer (mW)\""));
    QVERIFY(lines.at(1).contains("\"FITC Ex (%)\""));
    double top = 0.0;
    double topNm = 0.0;
    for (int i = 2; i < lines.size(); ++i) {
        const QList<QByteArray> cells = lines.at(i).split(',');
        if (cells.size() > 2 && cells.at(2).toDouble() > top) {
            top = cells.at(2).toDouble();
            topNm = cells.at(0).toDouble();
        }
    }
    QVERIFY(qAbs(topNm - ostrel().wavelength()) < 3.0); // the line of the laser
    QVERIFY(qAbs(top - ostrel().expectedPeak()) < 0.2);
    const QImage image(picture);
    QVERIFY(image.width() >= chart->width());
}

void tst_Application::floatsADockAndResetsIt()
{
    QVERIFY(open("ostrel"));
    DockWidget *dock = m_window->dock("Requests");
    const QRect before = dock->geometry();
    const QPoint title = dock->mapToGlobal(QPoint(60, 12));

    QVERIFY(RealMouse::moveTo(title));
    QVERIFY(RealMouse::xdotool(QStringLiteral("click --repeat 2 --delay 40 1").split(space)));
    QTRY_VERIFY(dock->isFloating());
    QTRY_VERIFY(RealMouse::click(middle(m_window->find<Button>("Reset layout")))
                && !dock->isFloating());

    QTRY_COMPARE(dock->geometry(), before);
    QCOMPARE(m_window->dockWidgetArea(dock), Qt::BottomDockWidgetArea);
}

void tst_Application::comesBackAsItWasLeft()
{
    QVERIFY(open("ostrel"));
    QVERIFY(RealMouse::click(middle(m_window->find<ScrollAreaNG>("devices")->listItemAt(2))));
    QTRY_COMPARE(m_window->tabInFront(), QStringLiteral("Marquel X"));
    const DockWidget *requests = m_window->dock("Requests");
    const int height = requests->height();
    const QPoint edge = requests->mapToGlobal(QPoint(requests->width() / 2, -3));
    QVERIFY(RealMouse::drag(edge, edge - QPoint(0, 60)));
    QTRY_VERIFY(requests->height() > height + 30);
    const int dragged = requests->height();
    QVERIFY(RealMouse::key(QStringLiteral("alt+F4")));
    QTRY_VERIFY(!m_window->isVisible());

    auto again = std::make_unique<ApplicationProbe>(file());
    again->show();
    QVERIFY(QTest::qWaitForWindowExposed(again.get()));

    QCOMPARE(again->tabInFront(), QStringLiteral("Marquel X"));
    QTRY_COMPARE(again->dock("Requests")->height(), dragged);
}

PELORIN_TEST_MAIN(tst_Application)
#include "tst_application.moc"
