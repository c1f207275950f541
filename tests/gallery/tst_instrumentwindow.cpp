#include "tests/gallery/ApplicationProbe.h"
#include "tests/support/DialogHand.h"
#include "tests/support/MouseHand.h"
#include "tests/support/TestCase.h"

#include <Pelorin/Button>
#include <Pelorin/CenterTabWidget>
#include <Pelorin/DropDownNG>
#include <Pelorin/LineEditPowerNG>
#include <Pelorin/Pelorin>
#include <Pelorin/PulsesView>
#include <Pelorin/ScrollAreaNG>
#include <Pelorin/SubPulsesView>
#include <Pelorin/TriggerActionView>
#include <Pelorin/WavelengthChart>
#include <Pelorin/WavelengthSelector>

#include <QCheckBox>
#include <QDialog>
#include <QFile>
#include <QFileDialog>
#include <QRandomGenerator>
#include <QSignalSpy>
#include <QSplitter>
#include <QTemporaryDir>

using Simulation::Instrument;
using Simulation::Laser;

namespace {

constexpr int answerMs = 100;
constexpr int startUpMs = 12000;
const QString dataFilter = QStringLiteral("Data files (*.csv *.txt)");

QStringList tabTexts(const QTabWidget &tabs)
{
    QStringList result;
    for (int i = 0; i < tabs.count(); ++i)
        result << tabs.tabText(i);
    return result;
}

} // namespace

/// The application, offscreen, with the time of its instruments in the hands of the test.
class tst_InstrumentWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void cleanup();

    void opensWithTheWelcomePage();
    void opensADeviceInATab_data();
    void opensADeviceInATab();
    void comesBackToAnOpenDevice();
    void knowsNoOtherDevice();
    void opensADeviceByAClick();
    void followsTheTabs();
    void asksForWhatIsSettled();
    void asksForNothingInADrag();
    void showsAReportInAllPlaces();
    void keepsTheHandleInTheHand();
    void keepsWhatIsTyped();
    void takesBackWhatWasRefused();
    void warnsOfAFault();
    void drawsThePulsesAsTheyAre();
    void movesTheRangesWithTheLimits();
    void takesADyeOffTheChart();
    void asksBeforeEmissionWithoutAHarmonic();
    void keepsTheMarkerInTheHand();
    void keepsItsState();
    void keepsFolderAndFilterOfTheChart();
    void keepsNothingWithoutAFile();
    void keepsTheDivider();
    void resetsTheDividerOfEmptyPanes();
    void resetsItsLayout();
    void opensWithADamagedFile();

private:
    void show()
    {
        m_window->show();
        QCoreApplication::processEvents();
    }
    void openOstrel()
    {
        show();
        m_window->showDevice(QStringLiteral("ostrel"));
    }
    Instrument &ostrel() { return m_window->instrument(0); }
    QString file() const { return m_dir.filePath(QStringLiteral("layout.ini")); }
    std::unique_ptr<ApplicationProbe> reopened() const
    {
        auto window = std::make_unique<ApplicationProbe>(file());
        window->show();
        QCoreApplication::processEvents();
        return window;
    }

    QTemporaryDir m_dir;
    std::unique_ptr<ApplicationProbe> m_window;
};

void tst_InstrumentWindow::initTestCase()
{
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QFont::insertSubstitution(QStringLiteral("Consolas"), QStringLiteral("DejaVu Sans Mono"));
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
}

void tst_InstrumentWindow::init()
{
    TestCase::init();
    tolerateMessages(QtWarningMsg, QStringLiteral("This plugin does not support"));
    tolerateMessages(QtDebugMsg, QString()); // what a signal graph writes of its points
    QFile::remove(file());
    m_window = std::make_unique<ApplicationProbe>();
}

void tst_InstrumentWindow::cleanup()
{
    m_window.reset();
    TestCase::cleanup();
}

void tst_InstrumentWindow::opensWithTheWelcomePage()
{
    show();

    QCOMPARE(tabTexts(*m_window->tabs()), QStringList(QStringLiteral("Welcome")));
    QVERIFY(m_window->findChildren<MainView *>().isEmpty());
    for (const char *title : { "Devices", "Instrument", "Requests" })
        QVERIFY(m_window->dock(title)->isVisible());
}

void tst_InstrumentWindow::opensADeviceInATab_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("title");
    QTest::addColumn<QStringList>("pages");

    QTest::newRow("first model") << QStringLiteral("ostrel") << QStringLiteral("Ostrel")
                                 << QStringList{ QStringLiteral("Spectrum"),
                                                 QStringLiteral("Pulses") };
    QTest::newRow("second model") << QStringLiteral("marquel") << QStringLiteral("Marquel")
                                  << QStringList{ QStringLiteral("Spectrum"),
                                                  QStringLiteral("Pulses") };
    QTest::newRow("third model") << QStringLiteral("marquelx") << QStringLiteral("Marquel X")
                                 << QStringList{ QStringLiteral("Spectrum"),
                                                 QStringLiteral("Pulses") };
    QTest::newRow("plain panel") << QStringLiteral("lightsource") << QStringLiteral("Light source")
                                 << QStringList{ QStringLiteral("Spectrum"),
                                                 QStringLiteral("Channels") };
}

void tst_InstrumentWindow::opensADeviceInATab()
{
    QFETCH(QString, name);
    QFETCH(QString, title);
    QFETCH(QStringList, pages);
    show();

    QVERIFY(m_window->showDevice(name));

    QCOMPARE(m_window->tabInFront(), title);
    MainView *view = m_window->findChild<MainView *>(name);
    QVERIFY(view && view->isVisible());
    QTabBar *bar = view->controlPageTabBar();
    for (int i = 0; i < pages.size(); ++i) {
        QCOMPARE(bar->tabText(i), pages.at(i));
        bar->setCurrentIndex(i);
        QCOMPARE(view->findChild<WavelengthChart *>()->isVisible(), i == 0);
    }
    QCOMPARE(bar->count(), pages.size());
}

void tst_InstrumentWindow::comesBackToAnOpenDevice()
{
    openOstrel();
    m_window->showDevice(QStringLiteral("marquel"));
    const MainView *view = m_window->view("ostrel");

    m_window->showDevice(QStringLiteral("ostrel"));

    QCOMPARE(m_window->tabs()->count(), 3);
    QCOMPARE(m_window->tabInFront(), QStringLiteral("Ostrel"));
    QCOMPARE(m_window->view("ostrel"), view);
}

void tst_InstrumentWindow::knowsNoOtherDevice()
{
    QVERIFY(!m_window->showDevice(QStringLiteral("toaster")));
    QVERIFY(!m_window->showDevice(QString()));

    QCOMPARE(m_window->tabs()->count(), 1);
}

void tst_InstrumentWindow::opensADeviceByAClick()
{
    show();
    auto *list = m_window->find<ScrollAreaNG>("devices");
    QCOMPARE(list->listItemCount(), 4);

    QTest::mouseClick(list->listItemAt(3), Qt::LeftButton);
    QCOMPARE(m_window->tabInFront(), QStringLiteral("Light source"));
    QVERIFY(list->listItemAt(3)->selected());

    // The welcome page in front: the same device has to come back.
    m_window->tabs()->setCurrentIndex(0);
    QVERIFY(!list->listItemAt(3)->selected());
    QTest::mouseClick(list->listItemAt(3), Qt::LeftButton);
    QCOMPARE(m_window->tabInFront(), QStringLiteral("Light source"));

    list->listItemAt(1)->setFocus();
    QTest::keyClick(list->listItemAt(1), Qt::Key_Space);
    QCOMPARE(m_window->tabInFront(), QStringLiteral("Marquel"));
}

void tst_InstrumentWindow::followsTheTabs()
{
    openOstrel();
    m_window->showDevice(QStringLiteral("marquelx"));
    auto *list = m_window->find<ScrollAreaNG>("devices");

    m_window->tabs()->setCurrentIndex(1);

    QCOMPARE(list->listItemCurrentIndex(), 0);
    QCOMPARE(m_window->find<LineEditPowerNG>("powerEntry")->isVisible(), true);
    m_window->tabs()->setCurrentIndex(2);
    QCOMPARE(list->listItemCurrentIndex(), 2);
    QCOMPARE(m_window->find<LineEditPowerNG>("powerEntry")->isVisible(), false);
}

void tst_InstrumentWindow::asksForWhatIsSettled()
{
    openOstrel();

    m_window->slider("power")->changeValue(25.0);
    m_window->slider("wavelength")->changeValue(600.0);
    m_window->slider("bandwidth")->changeValue(20.0);

    QCOMPARE(m_window->requests(), QStringList({ QStringLiteral("Ostrel  power set point(25.0 mW)"),
                                                 QStringLiteral("Ostrel  wavelength(600.0 nm)"),
                                                 QStringLiteral("Ostrel  bandwidth(20.0 nm)") }));
    QCOMPARE(ostrel().powerSetpoint(), 40.0);
    m_window->advance(answerMs);
    QCOMPARE(ostrel().powerSetpoint(), 25.0);
    QCOMPARE(ostrel().bandwidth(), 20.0);
    m_window->advance(5000);
    QCOMPARE(ostrel().wavelength(), 600.0);
}

void tst_InstrumentWindow::asksForNothingInADrag()
{
    openOstrel();
    ScaleSliderNG *slider = m_window->slider("power")->slider;
    MouseHand hand(*slider);
    const QPoint start = ApplicationProbe::handle(*slider);

    hand.press(start);
    for (int x = 1; x <= 20; ++x)
        hand.move(start + QPoint(x, 0));
    QCOMPARE(m_window->requests(), QStringList());
    hand.release(start + QPoint(20, 0));

    QCOMPARE(m_window->requests().size(), 1);
}

void tst_InstrumentWindow::showsAReportInAllPlaces()
{
    openOstrel();

    ostrel().requestPower(70.0); // as another operator may do
    m_window->advance(answerMs);

    QCOMPARE(m_window->slider("power")->slider->value0(), 70.0);
    QCOMPARE(m_window->find<LineEditPowerNG>("powerEntry")->value(), 70.0);
    QCOMPARE(m_window->requests(), QStringList()); // shown, and not asked for anew
}

void tst_InstrumentWindow::keepsTheHandleInTheHand()
{
    openOstrel();
    ScaleSliderNG *slider = m_window->slider("power")->slider;
    MouseHand hand(*slider);
    const QPoint start = ApplicationProbe::handle(*slider);
    hand.press(start);
    hand.move(start + QPoint(30, 0));
    const double held = slider->value0();
    QVERIFY(held > 40.0);

    ostrel().requestPower(10.0);
    m_window->advance(3000);
    QCOMPARE(slider->value0(), held);
    QCOMPARE(m_window->find<LineEditPowerNG>("powerEntry")->value(), 10.0);
    hand.release(start + QPoint(30, 0));
    m_window->advance(answerMs);

    QVERIFY(qAbs(ostrel().powerSetpoint() - held) < 0.1);
}

void tst_InstrumentWindow::keepsWhatIsTyped()
{
    openOstrel();
    auto *entry = m_window->find<LineEditPowerNG>("powerEntry");
    entry->setFocus();
    entry->selectAll();

    QTest::keyClicks(entry, QStringLiteral("55"));
    m_window->advance(3000); // three reports
    QCOMPARE(entry->text(), QStringLiteral("55"));
    QCOMPARE(m_window->requests(), QStringList());
    QTest::keyClick(entry, Qt::Key_Return);
    m_window->advance(answerMs);

    QCOMPARE(ostrel().powerSetpoint(), 55.0);
    QCOMPARE(m_window->slider("power")->slider->value0(), 55.0);
}

void tst_InstrumentWindow::takesBackWhatWasRefused()
{
    openOstrel();
    ostrel().raiseFault(QStringLiteral("Door open"));

    m_window->slider("power")->changeValue(80.0);
    QCOMPARE(m_window->slider("power")->slider->value0(), 80.0);
    m_window->advance(answerMs);

    QCOMPARE(m_window->slider("power")->slider->value0(), 40.0);
    QCOMPARE(m_window->find<LineEditPowerNG>("powerEntry")->value(), 40.0);
}

void tst_InstrumentWindow::warnsOfAFault()
{
    openOstrel();
    QPushButton *warning = m_window->warning();
    QVERIFY(!warning->isVisible());

    ostrel().raiseFault(QStringLiteral("Door open"));
    QVERIFY(warning->isVisible());
    QCOMPARE(warning->toolTip(), QStringLiteral("Door open"));
    warning->click();

    auto *allWell = m_window->find<Button>("All well");
    QVERIFY(allWell->isVisible()); // the service page
    QTest::mouseClick(allWell, Qt::LeftButton);
    QVERIFY(!warning->isVisible());
    QCOMPARE(ostrel().fault(), QString());
}

/// Each drawing names the interval, or shows one of the other two settings.
void tst_InstrumentWindow::drawsThePulsesAsTheyAre()
{
    openOstrel();
    const auto pictures = [this] {
        return QList<QImage>{ m_window->find<PulsesView>()->grab().toImage(),
                              m_window->find<SubPulsesView>()->grab().toImage(),
                              m_window->find<TriggerActionView>()->grab().toImage() };
    };
    const QList<QImage> before = pictures();

    ostrel().requestPulses({ 50.0, 5, 14 });
    m_window->advance(answerMs);
    const QList<QImage> interval = pictures();
    QVERIFY(interval.at(0) != before.at(0));
    QCOMPARE(interval.at(1), before.at(1));
    QVERIFY(interval.at(2) != before.at(2));
    ostrel().requestPulses({ 50.0, 9, 30 });
    m_window->advance(answerMs);

    QCOMPARE(pictures().at(0), interval.at(0));
    QVERIFY(pictures().at(1) != interval.at(1));
    QVERIFY(pictures().at(2) != interval.at(2));
}

void tst_InstrumentWindow::movesTheRangesWithTheLimits()
{
    openOstrel();

    ostrel().requestPowerLimits(5.0, 30.0);
    m_window->advance(answerMs);

    const ScaleSliderNG *slider = m_window->slider("power")->slider;
    QCOMPARE(slider->maximum(), 30.0);
    QCOMPARE(slider->value0(), 30.0);
    QCOMPARE(m_window->find<LineEditPowerNG>("powerEntry")->maximum(), 30.0);
    QCOMPARE(ostrel().powerSetpoint(), 30.0);
    QCOMPARE(m_window->find<WavelengthChart>("chart")->maxFilterPower(), 30.0);
}

void tst_InstrumentWindow::takesADyeOffTheChart()
{
    openOstrel();
    const auto *chart = m_window->find<WavelengthChart>("chart");
    const auto names = [chart] {
        QList<tFluorophoreData> dyes;
        chart->getFluorophores(dyes);
        QStringList result;
        for (const tFluorophoreData &dye : dyes)
            result << dye.name;
        return result;
    };
    QVERIFY(names().contains(QStringLiteral("FITC")));
    QCheckBox *box = nullptr;
    for (auto *each : m_window->view("ostrel")->findChildren<QCheckBox *>()) {
        if (each->text() == QLatin1String("FITC"))
            box = each;
    }

    box->click();
    QVERIFY(!names().contains(QStringLiteral("FITC")));
    box->click();

    QVERIFY(names().contains(QStringLiteral("FITC")));
}

void tst_InstrumentWindow::asksBeforeEmissionWithoutAHarmonic()
{
    show();
    m_window->showDevice(QStringLiteral("marquel"));
    auto *list = m_window->find<DropDownNG>("harmonic");
    QCOMPARE(list->currentText(), QStringLiteral("SHG 515 nm"));
    list->setFocus();
    QTest::keyClick(list, Qt::Key_Home);
    QCOMPARE(list->currentText(), QStringLiteral("None"));
    DialogHand hand;
    hand.serve([](QDialog &dialog) { dialog.reject(); });

    m_window->panelButton(QStringLiteral("Emission ON / OFF"))->click();
    m_window->advance(startUpMs);

    QCOMPARE(hand.problems(), QStringList());
    QVERIFY(!m_window->instrument(1).laser().emits());
}

void tst_InstrumentWindow::keepsTheMarkerInTheHand()
{
    show();
    m_window->showDevice(QStringLiteral("lightsource"));
    m_window->view("lightsource")->controlPageTabBar()->setCurrentIndex(1);
    QCoreApplication::processEvents();
    auto *bar = m_window->findChild<WavelengthSelector *>();
    bar->grab(); // markers are found where they were painted
    QPoint marker;
    for (int y = 0; y < bar->height() && marker.isNull(); y += 3) {
        for (int x = 0; x < bar->width() && marker.isNull(); x += 3) {
            if (bar->isAboveChannel(2, { x, y }))
                marker = { x, y };
        }
    }
    QVERIFY(!marker.isNull());
    MouseHand hand(*bar);
    hand.press(marker);
    hand.move(marker + QPoint(20, 10));

    m_window->advance(3000); // three reports of where the channel was
    bar->grab();
    QVERIFY(bar->isAboveChannel(2, marker + QPoint(20, 10)));
    QCOMPARE(m_window->instrument(3).channel(2).percent, 66);
    hand.release(marker + QPoint(20, 10));
    m_window->advance(answerMs);

    QVERIFY(m_window->instrument(3).channel(2).percent < 66);
}

void tst_InstrumentWindow::keepsItsState()
{
    m_window = std::make_unique<ApplicationProbe>(file());
    show();
    m_window->showDevice(QStringLiteral("marquelx"));
    m_window->dock("Requests")->hide();
    m_window->removeDockWidget(m_window->dock("Instrument"));
    m_window->addDockWidget(Qt::LeftDockWidgetArea, m_window->dock("Instrument"));
    m_window->dock("Instrument")->show();
    m_window->resize(1700, 950);
    m_window->close();

    const auto again = reopened();

    QCOMPARE(again->tabInFront(), QStringLiteral("Marquel X"));
    QVERIFY(!again->dock("Requests")->isVisible());
    QCOMPARE(again->dockWidgetArea(again->dock("Instrument")), Qt::LeftDockWidgetArea);
    QCOMPARE(again->size(), QSize(1700, 950));
}

void tst_InstrumentWindow::keepsFolderAndFilterOfTheChart()
{
    m_window = std::make_unique<ApplicationProbe>(file());
    m_window->showDevice(QStringLiteral("ostrel"));
    auto *chart = m_window->find<WavelengthChart>("chart");
    Q_EMIT chart->sigChartSaveFoldernameChanged(m_dir.path());
    Q_EMIT chart->sigChartSaveFilterTypeChanged(dataFilter);
    m_window->close();

    const auto again = reopened();
    QTest::mouseClick(again->find<Button>("Reset layout"), Qt::LeftButton); // leaves them alone
    const auto reset = reopened();
    QStringList offered;
    DialogHand hand;
    hand.save(QString(), QString(), [&offered](QFileDialog &dialog) {
        offered << dialog.directory().path() << dialog.selectedNameFilter();
    });
    reset->showDevice(QStringLiteral("ostrel"));
    ApplicationProbe::saveButton(*reset->find<WavelengthChart>("chart")).first->click();

    QCOMPARE(hand.problems(), QStringList());
    QCOMPARE(offered, QStringList({ m_dir.path(), dataFilter }));
}

void tst_InstrumentWindow::keepsNothingWithoutAFile()
{
    openOstrel();
    m_window->resetLayout();
    m_window->close();

    QVERIFY(!QFile::exists(file()));
}

void tst_InstrumentWindow::keepsTheDivider()
{
    m_window = std::make_unique<ApplicationProbe>(file());
    openOstrel();
    const auto *splitter = m_window->find<QSplitter>();
    const QList<int> first = splitter->sizes();
    QVERIFY(first.at(0) > 100 && first.at(1) > 100);
    MouseHand hand(*splitter->handle(1));
    hand.drag(QPoint(20, 2), QPoint(20, -48));
    const QList<int> dragged = splitter->sizes();
    QVERIFY(qAbs(first.at(0) - 50 - dragged.at(0)) < 3);
    m_window->close();

    const auto again = reopened();
    QCOMPARE(again->find<QSplitter>()->sizes(), dragged);
    QTest::mouseClick(again->find<Button>("Reset layout"), Qt::LeftButton);

    QCOMPARE(again->find<QSplitter>()->sizes(), first);
}

/// At the first start no device is open, and the panes have nothing to show.
void tst_InstrumentWindow::resetsTheDividerOfEmptyPanes()
{
    openOstrel();
    QCoreApplication::processEvents();
    const auto *splitter = m_window->find<QSplitter>();
    const QList<int> first = splitter->sizes();
    MouseHand hand(*splitter->handle(1));
    hand.drag(QPoint(20, 2), QPoint(20, -48));
    QVERIFY(splitter->sizes() != first);

    QTest::mouseClick(m_window->find<Button>("Reset layout"), Qt::LeftButton);

    QCOMPARE(splitter->sizes(), first);
}

void tst_InstrumentWindow::resetsItsLayout()
{
    m_window = std::make_unique<ApplicationProbe>(file());
    show();
    m_window->close();
    m_window->show();
    m_window->dock("Requests")->hide();
    m_window->dock("Instrument")->setFloating(true);

    QTest::mouseClick(m_window->find<Button>("Reset layout"), Qt::LeftButton);

    QVERIFY(m_window->dock("Requests")->isVisible());
    QVERIFY(!m_window->dock("Instrument")->isFloating());
    QCOMPARE(StateStore(file()).state(QStringLiteral("docks")), QByteArray());
}

/// Any byte of the file may be another one: it costs the layout at most.
void tst_InstrumentWindow::opensWithADamagedFile()
{
    m_window = std::make_unique<ApplicationProbe>(file());
    openOstrel();
    m_window->close();
    m_window.reset();
    QFile good(file());
    QVERIFY(good.open(QIODevice::ReadOnly));
    const QByteArray bytes = good.readAll();
    good.close();
    QVERIFY(bytes.size() > 500);
    QRandomGenerator random(5);

    for (int run = 0; run < 12; ++run) {
        QByteArray damaged = bytes;
        for (int i = 0; i <= run / 3; ++i)
            damaged[random.bounded(damaged.size())] = char(random.bounded(256));
        QFile out(file());
        QVERIFY(out.open(QIODevice::WriteOnly));
        out.write(damaged);
        out.close();

        const auto window = reopened();
        QVERIFY(window->isVisible());
        QVERIFY(window->tabs()->count() <= 2);
    }
}

PELORIN_TEST_MAIN(tst_InstrumentWindow)
#include "tst_instrumentwindow.moc"
