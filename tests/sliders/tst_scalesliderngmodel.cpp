#include "Pelorin/sliders/ScaleSliderNG.h"
#include "tests/sliders/ScaleSliderModel.h"
#include "tests/support/ModelWalk.h"
#include "tests/support/MouseHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QRandomGenerator>

namespace {

constexpr int length = 435; // 400 pixels of travel

/// The widget and its model, taken through the same operations.
class Pair
{
public:
    Pair(int type, Qt::Orientation orientation, bool twoHandles, quint32 seed)
        : m_random(seed)
        , m_slider(orientation, ScaleSliderNG::ScaleType(type), nullptr)
        , m_model(type, orientation == Qt::Horizontal, length - 35)
        , m_hand(m_slider)
        , m_recorder(&m_slider)
    {
        if (orientation == Qt::Horizontal)
            m_slider.resize(length, m_slider.height());
        else
            m_slider.resize(m_slider.width(), length);
        m_slider.show();
        m_slider.activateWindow();
        m_slider.setDoubleSlider(twoHandles);
        m_model.setTwoHandles(twoHandles);
    }

    bool isReady() { return QTest::qWaitForWindowActive(&m_slider) && m_slider.hasFocus(); }

    /// One random operation on both; its description.
    QString step();

    QString difference();

private:
    double number();
    double range() { return m_random.bounded(-4, 9) * (m_random.bounded(2) ? 25.0 : 33.3); }
    QPoint point(int along) const
    {
        return m_model.horizontal ? QPoint(along, 17) : QPoint(m_slider.width() - 18, along);
    }
    QString setNumbers(int i);
    QString setLimits();
    QString useMouse();
    QString useKeys();

    QRandomGenerator m_random;
    ScaleSliderNG m_slider;
    ScaleSliderModel m_model;
    MouseHand m_hand;
    SignalRecorder m_recorder;
};

double Pair::number()
{
    switch (m_random.bounded(6)) {
    case 0:
        return m_model.low;
    case 1:
        return m_model.high;
    case 2:
        return m_random.bounded(2) ? 1e9 : -1e9;
    default:
        return m_model.low + (m_model.high - m_model.low) * (m_random.bounded(1.2) - 0.1);
    }
}

QString Pair::setNumbers(int i)
{
    const double value = number();
    const int position = m_random.bounded(-2000, 102000);
    switch (m_random.bounded(4)) {
    case 0:
        i == 0 ? m_slider.setValue0(value) : m_slider.setValue1(value);
        m_model.setValue(i, value);
        return QStringLiteral("setValue%1(%2)").arg(i).arg(value);
    case 1:
        i == 0 ? m_slider.changeValue0(value) : m_slider.changeValue1(value);
        m_model.changeValue(i, value);
        return QStringLiteral("changeValue%1(%2)").arg(i).arg(value);
    case 2:
        i == 0 ? m_slider.setHandlePosition0(position) : m_slider.setHandlePosition1(position);
        m_model.setHandle(i, position);
        return QStringLiteral("setHandlePosition%1(%2)").arg(i).arg(position);
    default:
        i == 0 ? m_slider.changeHandlePosition0(position)
               : m_slider.changeHandlePosition1(position);
        m_model.changeHandle(i, position);
        return QStringLiteral("changeHandlePosition%1(%2)").arg(i).arg(position);
    }
}

QString Pair::setLimits()
{
    const bool silent = m_random.bounded(2);
    const double a = range();
    const double b = range();
    switch (m_random.bounded(5)) {
    case 0:
        m_slider.setRange(a, b, silent);
        m_model.setRange(a, b, silent);
        return QStringLiteral("setRange(%1, %2, %3)").arg(a).arg(b).arg(silent);
    case 1: {
        const double near = std::abs(a) / 10.0;
        const double far = std::abs(b) / 2.0;
        m_slider.setDoubleRange(near, far, silent);
        m_model.setDistances(near, far, silent);
        return QStringLiteral("setDoubleRange(%1, %2, %3)").arg(near).arg(far).arg(silent);
    }
    case 2: {
        QList<double> steps;
        double step = a;
        for (int i = m_random.bounded(7); i > 0; --i, step += 1.0 + m_random.bounded(30.0))
            steps << step;
        m_slider.setSteps(steps);
        m_model.setSteps(steps.toVector());
        return QStringLiteral("setSteps(%1 from %2)").arg(steps.size()).arg(a);
    }
    case 3: {
        const int decimals = m_random.bounded(-1, 4);
        m_slider.setValuePrecision(decimals);
        m_model.decimals = decimals;
        return QStringLiteral("setValuePrecision(%1)").arg(decimals);
    }
    default: {
        const bool on = m_random.bounded(2);
        m_slider.setDoubleSlider(on);
        m_model.setTwoHandles(on);
        return QStringLiteral("setDoubleSlider(%1)").arg(on);
    }
    }
}

QString Pair::useMouse()
{
    const int handle = m_random.bounded(2);
    const int along = m_random.bounded(3) ? m_model.edge(handle) + m_random.bounded(-2, 37)
                                          : m_random.bounded(length);
    switch (m_random.bounded(4)) {
    case 0:
        m_hand.press(point(along));
        m_model.press(along);
        return QStringLiteral("press at %1").arg(along);
    case 1:
        m_hand.release(point(along));
        m_model.release();
        return QStringLiteral("release at %1").arg(along);
    default:
        m_hand.move(point(along));
        m_model.move(along);
        return QStringLiteral("move to %1").arg(along);
    }
}

QString Pair::useKeys()
{
    const bool up = m_random.bounded(2);
    const bool shift = m_random.bounded(2);
    const Qt::Key key =
        m_model.horizontal ? (up ? Qt::Key_Right : Qt::Key_Left) : (up ? Qt::Key_Up : Qt::Key_Down);
    QTest::sendKeyEvent(QTest::Press, &m_slider, key, QString(),
                        shift ? Qt::ShiftModifier : Qt::NoModifier);
    m_model.arrow(up, shift ? 10 : 1);
    return QStringLiteral("%1%2").arg(shift ? QStringLiteral("Shift+") : QString(),
                                      up ? QStringLiteral("up") : QStringLiteral("down"));
}

QString Pair::step()
{
    const int kind = m_random.bounded(20);
    if (kind < 6)
        return setNumbers(m_random.bounded(2));
    if (kind < 8)
        return setLimits();
    return kind < 16 ? useMouse() : useKeys();
}

QString Pair::difference()
{
    const QStringList signalOrder = m_recorder.taken();
    QStringList expected;
    expected.swap(m_model.log);
    if (signalOrder != expected) {
        return QStringLiteral("signals [%1], expected [%2]")
            .arg(signalOrder.join(QStringLiteral("; ")), expected.join(QStringLiteral("; ")));
    }
    for (int i = 0; i < 2; ++i) {
        const double value = i == 0 ? m_slider.value0() : m_slider.value1();
        if (value != m_model.v[i]) {
            return QStringLiteral("value%1 is %2, expected %3")
                .arg(i)
                .arg(value, 0, 'g', 17)
                .arg(m_model.v[i], 0, 'g', 17);
        }
    }
    return QString();
}

} // namespace

class tst_ScaleSliderNGModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void doesAsItsModel_data();
    void doesAsItsModel();
};

void tst_ScaleSliderNGModel::doesAsItsModel_data()
{
    QTest::addColumn<int>("type");
    QTest::addColumn<int>("orientation");
    QTest::addColumn<bool>("twoHandles");

    const char *types[] = { "linear", "linear steps", "square root", "square root steps" };
    for (int type = 0; type < 4; ++type) {
        for (const auto orientation : { Qt::Horizontal, Qt::Vertical }) {
            for (const bool twoHandles : { false, true }) {
                QTest::addRow("%s, %s, %s", types[type],
                              orientation == Qt::Horizontal ? "horizontal" : "vertical",
                              twoHandles ? "double" : "single")
                    << type << int(orientation) << twoHandles;
            }
        }
    }
}

void tst_ScaleSliderNGModel::doesAsItsModel()
{
    QFETCH(int, type);
    QFETCH(int, orientation);
    QFETCH(bool, twoHandles);

    for (quint32 seed = 1; seed <= 3; ++seed) {
        Pair pair(type, Qt::Orientation(orientation), twoHandles, seed);
        QVERIFY(pair.isReady());
        const QString difference = walkTogether(pair, 1000);
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("seed %1, ").arg(seed) + difference));
    }
}

PELORIN_TEST_MAIN(tst_ScaleSliderNGModel)
#include "tst_scalesliderngmodel.moc"
