#include "Pelorin/sliders/RangedScaleSlider.h"
#include "tests/sliders/RangedSliderModel.h"
#include "tests/support/ModelWalk.h"
#include "tests/support/MouseHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QRandomGenerator>
#include <QWheelEvent>

namespace {

constexpr int width = 435; // 400 pixels of travel, 4 labels at the least

/// The widget and its model, taken through the same operations.
class Pair
{
public:
    explicit Pair(quint32 seed)
        : m_random(seed)
        , m_slider(nullptr)
        , m_model(width)
        , m_hand(m_slider)
        , m_recorder(&m_slider)
    {
        m_slider.resize(width, m_slider.height());
        m_slider.show();
    }

    /// One random operation on both; its description.
    QString step();

    QString difference();

private:
    double end() { return m_random.bounded(-4, 13) * (m_random.bounded(2) ? 25.0 : 33.3); }
    double number();
    QString setRanges();
    QString setNumbers();
    QString setOptions();
    QString useMouse();

    QRandomGenerator m_random;
    RangedScaleSlider m_slider;
    RangedSliderModel m_model;
    MouseHand m_hand;
    SignalRecorder m_recorder;
};

double Pair::number()
{
    const double low = std::min(m_model.startMin, m_model.stopMin);
    const double high = std::max(m_model.startMax, m_model.stopMax);
    if (m_random.bounded(6) == 0)
        return m_random.bounded(2) ? 1e9 : -1e9;
    return low + (high - low) * (m_random.bounded(1.2) - 0.1);
}

QString Pair::setRanges()
{
    const double a = end();
    const double b = m_random.bounded(8) ? a + std::abs(end()) : end();
    if (m_random.bounded(2)) {
        m_slider.setStartRange(a, b);
        m_model.startMin = a;
        m_model.startMax = b;
        m_model.rescale();
        return QStringLiteral("setStartRange(%1, %2)").arg(a).arg(b);
    }
    m_slider.setStopRange(a, b);
    m_model.stopMin = a;
    m_model.stopMax = b;
    m_model.rescale();
    return QStringLiteral("setStopRange(%1, %2)").arg(a).arg(b);
}

QString Pair::setNumbers()
{
    const double value = number();
    const bool on = m_random.bounded(2);
    switch (m_random.bounded(10)) {
    case 0:
        m_slider.setFixedStart(on, value);
        m_model.fixStart(on, value);
        return QStringLiteral("setFixedStart(%1, %2)").arg(on).arg(value);
    case 1:
        m_slider.setFixedStop(on, value);
        m_model.fixStop(on, value);
        return QStringLiteral("setFixedStop(%1, %2)").arg(on).arg(value);
    case 2:
    case 3:
    case 4:
    case 5:
        m_slider.setCurrentStartValue(value, on);
        m_model.setStart(value, on);
        return QStringLiteral("setCurrentStartValue(%1, %2)").arg(value).arg(on);
    default:
        m_slider.setCurrentStopValue(value, on);
        m_model.setStop(value, on);
        return QStringLiteral("setCurrentStopValue(%1, %2)").arg(value).arg(on);
    }
}

QString Pair::setOptions()
{
    switch (m_random.bounded(4)) {
    case 0: {
        const int margins = m_random.bounded(-10, 40);
        m_slider.setSideMargins(margins);
        m_model.margins = margins;
        return QStringLiteral("setSideMargins(%1)").arg(margins);
    }
    case 1: {
        const double nudge = m_random.bounded(-1, 12) * 2.5;
        m_slider.setNudge(nudge);
        m_model.nudge = nudge;
        return QStringLiteral("setNudge(%1)").arg(nudge);
    }
    case 2: {
        const int length = m_random.bounded(150, 700);
        if (length != m_model.width) {
            m_slider.resize(length, m_slider.height());
            m_model.resize(length);
        }
        return QStringLiteral("resize to %1").arg(length);
    }
    default: {
        const int notches = m_random.bounded(-3, 4);
        QWheelEvent turn(QPointF(), QPointF(), QPoint(), QPoint(0, notches * 120), Qt::NoButton,
                         Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(&m_slider, &turn);
        m_model.wheel(notches);
        return QStringLiteral("wheel by %1").arg(notches);
    }
    }
}

QString Pair::useMouse()
{
    const double near = m_random.bounded(2) ? m_model.startLeft : m_model.stopLeft;
    const int x = m_random.bounded(3) ? int(near) + m_random.bounded(-2, 38)
                                      : m_random.bounded(m_model.width);
    const QPoint place(x, 17);
    switch (m_random.bounded(5)) {
    case 0:
        m_hand.press(place);
        m_model.press(x);
        return QStringLiteral("press at %1").arg(x);
    case 1:
        m_hand.release(place);
        m_model.release();
        return QStringLiteral("release at %1").arg(x);
    default:
        m_hand.move(place);
        m_model.move(x);
        return QStringLiteral("move to %1").arg(x);
    }
}

QString Pair::step()
{
    const int kind = m_random.bounded(30);
    if (kind < 2)
        return setRanges();
    if (kind < 8)
        return setNumbers();
    return kind < 12 ? setOptions() : useMouse();
}

QString Pair::difference()
{
    const QStringList reported = m_recorder.taken();
    QStringList expected;
    expected.swap(m_model.log);
    if (reported != expected) {
        return QStringLiteral("signals %1 instead of %2")
            .arg(reported.join(QLatin1Char(' ')), expected.join(QLatin1Char(' ')));
    }
    const double shown[] = { m_slider.currentValueMin(), m_slider.currentValueMax(),
                             m_slider.accordingValue(100) };
    const double meant[] = { m_model.start, m_model.stop, m_model.valueAt(100.0) };
    for (int i = 0; i < 3; ++i) {
        if (std::abs(shown[i] - meant[i]) > 1e-9)
            return QStringLiteral("%1 instead of %2").arg(shown[i]).arg(meant[i]);
    }
    return QString();
}

} // namespace

class tst_RangedScaleSliderModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void behavesLikeTheModel_data();
    void behavesLikeTheModel();
};

void tst_RangedScaleSliderModel::behavesLikeTheModel_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 12; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_RangedScaleSliderModel::behavesLikeTheModel()
{
    QFETCH(quint32, seed);
    Pair pair(seed);

    const QString failure = walkTogether(pair, 3000);

    QVERIFY2(failure.isEmpty(), qPrintable(failure));
}

PELORIN_TEST_MAIN(tst_RangedScaleSliderModel)
#include "tst_rangedscaleslidermodel.moc"
