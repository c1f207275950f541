#include "gallery/GalleryWindow.h"
#include "tests/support/RealMouse.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <Pelorin/Pelorin>
#include <Pelorin/ScaleSliderNG>

#include <QLabel>

/// The whole way: a real pointer on a real server takes a handle in the gallery and drags it.
class tst_SliderDrag : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void dragsAHandleAndTheNumberFollows();
    void showsTheHandleUnderThePointer();
    void refusesAReadingWhileTheHandleIsHeld();
    void walksWithTheKeyboard();

private:
    ScaleSliderNG *slider(const char *name) const
    {
        return m_window->findChild<ScaleSliderNG *>(QLatin1String(name));
    }
    QLabel *readout(const char *name) const
    {
        return m_window->findChild<QLabel *>(QLatin1String(name) + QStringLiteral("Readout"));
    }

    std::unique_ptr<GalleryWindow> m_window;
};

namespace {

constexpr int handleSize = 35;

/// The middle of the handle of a horizontal slider over 0 to 100 that stands at \a value.
QPoint handleAt(const ScaleSliderNG &slider, double value)
{
    const int travel = slider.width() - handleSize;
    return slider.mapToGlobal(
        QPoint(qRound(travel * value / 100.0) + handleSize / 2, handleSize / 2));
}

} // namespace

void tst_SliderDrag::init()
{
    TestCase::init();
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
    m_window = std::make_unique<GalleryWindow>();
    QVERIFY(m_window->showPage(QStringLiteral("sliders")));
    m_window->show();
    m_window->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_window.get()));
}

void tst_SliderDrag::dragsAHandleAndTheNumberFollows()
{
    ScaleSliderNG *linear = slider("linear");
    SignalRecorder recorder(linear);
    const QPoint from = handleAt(*linear, 40.0);
    const QPoint to = handleAt(*linear, 70.0);
    QVERIFY(RealMouse::moveTo(from));
    QVERIFY(RealMouse::press());
    QTRY_COMPARE(recorder.entries(), QStringList(QStringLiteral("handleGrapped()")));

    QVERIFY(RealMouse::moveTo(from + QPoint(20, 0)));
    QTRY_VERIFY(linear->value0() > 40.0);
    QTRY_COMPARE(readout("linear")->text(), QString::number(linear->value0(), 'f', 1));
    QVERIFY(recorder.taken().last().startsWith(QLatin1String("valueChanging0(")));

    QVERIFY(RealMouse::moveTo(to));
    QTRY_VERIFY(qAbs(linear->value0() - 70.0) < 0.5);
    recorder.taken();
    QVERIFY(RealMouse::release());
    const QString settled = QStringLiteral("valueChanged0(%1)").arg(linear->value0());
    QTRY_COMPARE(recorder.entries(), QStringList(settled));
    QCOMPARE(readout("linear")->text(), QString::number(linear->value0(), 'f', 1));
}

void tst_SliderDrag::showsTheHandleUnderThePointer()
{
    ScaleSliderNG *linear = slider("linear");
    const QPoint probe = linear->mapFromGlobal(handleAt(*linear, 40.0)) - QPoint(10, 0);
    QVERIFY(RealMouse::moveTo(linear->mapToGlobal(QPoint(0, -30))));
    QTRY_COMPARE(linear->grab().toImage().pixel(probe), 0xFF87212Eu);

    QVERIFY(RealMouse::moveTo(handleAt(*linear, 40.0)));
    QTRY_COMPARE(linear->grab().toImage().pixel(probe), 0xFFED6E00u);
}

void tst_SliderDrag::refusesAReadingWhileTheHandleIsHeld()
{
    ScaleSliderNG *linear = slider("linear");
    QVERIFY(RealMouse::moveTo(handleAt(*linear, 40.0)));
    SignalRecorder recorder(linear);
    QVERIFY(RealMouse::press());
    QTRY_COMPARE(recorder.entries(), QStringList(QStringLiteral("handleGrapped()")));

    linear->setValue0(10.0);
    QCOMPARE(linear->value0(), 40.0);

    QVERIFY(RealMouse::release());
    QTRY_VERIFY((linear->setValue0(10.0), linear->value0() == 10.0));
}

void tst_SliderDrag::walksWithTheKeyboard()
{
    ScaleSliderNG *steps = slider("steps");
    QVERIFY(RealMouse::click(handleAt(*steps, 81.0)));
    QTRY_VERIFY(steps->hasFocus());

    QVERIFY(RealMouse::key(QStringLiteral("Left")));
    QTRY_COMPARE(steps->value0(), 25.0);
    QTRY_COMPARE(readout("steps")->text(), QStringLiteral("25.0"));
    QVERIFY(RealMouse::key(QStringLiteral("Right")));
    QTRY_COMPARE(steps->value0(), 81.0);
    QVERIFY(RealMouse::key(QStringLiteral("Tab")));
    QTRY_VERIFY(!steps->hasFocus());
}

PELORIN_TEST_MAIN(tst_SliderDrag)
#include "tst_sliderdrag.moc"
