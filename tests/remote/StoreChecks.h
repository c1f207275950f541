#ifndef PELORIN_TESTS_STORECHECKS_H
#define PELORIN_TESTS_STORECHECKS_H

#include "tests/remote/PanelProbe.h"
#include "tests/remote/SignalWatcher.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TextList.h"

#include <QPointer>
#include <QtTest>

#include <functional>
#include <limits>
#include <memory>

/// What the panels of the laser models promise alike of the values that they hold.
namespace StoreChecks {

/// One call of a slot that stores and emits.
template<class Panel>
struct Case
{
    const char *name;
    std::function<void(Panel &)> call;
    QString signal;
    QStringList stored; ///< the lines of store() that it makes
};

inline QString line(const char *name, double value)
{
    return QStringLiteral("%1: %2").arg(QLatin1String(name)).arg(value);
}

inline QString line(const char *name, const QString &value)
{
    return QLatin1String(name) + QStringLiteral(": ") + value;
}

/// Everything that the getters give, but the emission.
template<class Panel>
QStringList store(const Panel &panel)
{
    return { line("feature", panel.getDWLSFeature()),
             line("wavelength", panel.getDynamicWavelength()),
             line("IR", panel.getSetpointDWLS_IR()),
             line("SHG", panel.getSetpointDWLS_SHG()),
             line("THG", panel.getSetpointDWLS_THG()),
             line("FHG", panel.getSetpointDWLS_FHG()),
             line("measured", panel.getMeasuredLaserPower()),
             line("measured maximum", panel.getMeasuredLaserPowerMaximum()),
             line("setpoint", panel.getSetpointLaserPower()),
             line("minimum", panel.getSetpointLaserPowerMin()),
             line("maximum", panel.getSetpointLaserPowerMax()),
             line("decimals", QString::number(panel.getSetpointLaserPowerDec())),
             line("unit", panel.getSetpointLaserPowerUnit()) };
}

inline QStringList initialStore()
{
    return list({ "feature: 0", "wavelength: 0", "IR: 0", "SHG: 0", "THG: 0", "FHG: 0",
                  "measured: 0", "measured maximum: 0", "setpoint: 0", "minimum: 0", "maximum: 100",
                  "decimals: 0", "unit: " });
}

/// The store as it is at first, but for the lines \a changed.
inline QStringList storeWith(const QStringList &changed)
{
    QStringList result = initialStore();
    for (const QString &each : changed) {
        const QString start = each.left(each.indexOf(QLatin1Char(':')) + 1);
        for (QString &old : result) {
            if (old.startsWith(start))
                old = each;
        }
    }
    return result;
}

template<class Panel>
Case<Panel> rangeCase(const char *name, double min, double max, int dec, const QString &unit,
                      const char *numbers, const QStringList &stored)
{
    return { name,
             [=](Panel &panel) { panel.slotSetpointLaserPowerRangeChanged(min, max, dec, unit); },
             QStringLiteral("sigSetpointLaserPowerRangeChanged(%1, \"%2\")")
                 .arg(QLatin1String(numbers), unit),
             QStringList(stored) << QStringLiteral("unit: ") + unit };
}

/// The reports that all three models take.
template<class Panel>
QVector<Case<Panel>> commonReports()
{
    const double inf = qInf();
    const QString absurd = QString(QChar(0)) + QString(300, QLatin1Char('%'));
    const int least = std::numeric_limits<int>::min();
    return {
        { "feature", [](Panel &panel) { panel.slotDWLSFeatureChanged(true); },
          QStringLiteral("sigDWLSFeatureChanged(true)"), list({ "feature: 1" }) },
        { "feature off",
          [](Panel &panel) { panel.slotDWLSFeatureChanged(false); },
          QStringLiteral("sigDWLSFeatureChanged(false)"),
          {} },
        { "measured power", [](Panel &panel) { panel.slotMeasuredPowerChanged(12.5, 250.0); },
          QStringLiteral("sigMeasuredLaserPowerChanged(12.5, 250)"),
          list({ "measured: 12.5", "measured maximum: 250" }) },
        { "measured power that is no number",
          [inf](Panel &panel) { panel.slotMeasuredPowerChanged(qQNaN(), inf); },
          QStringLiteral("sigMeasuredLaserPowerChanged(nan, inf)"),
          list({ "measured: nan", "measured maximum: inf" }) },
        { "measured power without bounds",
          [inf](Panel &panel) { panel.slotMeasuredPowerChanged(-inf, qQNaN()); },
          QStringLiteral("sigMeasuredLaserPowerChanged(-inf, nan)"),
          list({ "measured: -inf", "measured maximum: nan" }) },
        { "setpoint beyond the range",
          [](Panel &panel) { panel.slotSetpointLaserPowerChanged(-1e300); },
          QStringLiteral("sigSetpointLaserPowerChanged(-1e+300)"), list({ "setpoint: -1e+300" }) },
        { "setpoint that is no number",
          [](Panel &panel) { panel.slotSetpointLaserPowerChanged(qQNaN()); },
          QStringLiteral("sigSetpointLaserPowerChanged(nan)"), list({ "setpoint: nan" }) },
        { "infinite setpoint", [inf](Panel &panel) { panel.slotSetpointLaserPowerChanged(inf); },
          QStringLiteral("sigSetpointLaserPowerChanged(inf)"), list({ "setpoint: inf" }) },
        rangeCase<Panel>("range", 0.5, 40.0, 2, QStringLiteral("mW"), "0.5, 40, 2",
                         list({ "minimum: 0.5", "maximum: 40", "decimals: 2" })),
        rangeCase<Panel>("range upside down", 40.0, -0.5, -3, QString(), "40, -0.5, -3",
                         list({ "minimum: 40", "maximum: -0.5", "decimals: -3" })),
        rangeCase<Panel>("range that is none", qQNaN(), inf, least, absurd, "nan, inf, -2147483648",
                         list({ "minimum: nan", "maximum: inf", "decimals: -2147483648" })),
        rangeCase<Panel>("range without bounds", -inf, qQNaN(), 2147483647,
                         QStringLiteral("\u00b5W \n<b>%1</b>"), "-inf, nan, 2147483647",
                         list({ "minimum: -inf", "maximum: nan", "decimals: 2147483647" })),
    };
}

/// The reports and requests of the models whose wavelength can be chosen.
template<class Panel>
QVector<Case<Panel>> wavelengthCases()
{
    const double inf = qInf();
    return {
        { "wavelength", [](Panel &panel) { panel.slotDynamicWavelengthChanged(3); },
          QStringLiteral("sigDynamicWavelengthChanged(3)"), list({ "wavelength: 3" }) },
        { "last wavelength", [](Panel &panel) { panel.slotDynamicWavelengthChanged(255); },
          QStringLiteral("sigDynamicWavelengthChanged(255)"), list({ "wavelength: 255" }) },
        { "harmonic setpoints",
          [](Panel &panel) { panel.slotDWLSSetpointsChanged(1.0, 2.0, 3.0, 4.0); },
          QStringLiteral("sigDWLSSetpointsChanged(1, 2, 3, 4)"),
          list({ "IR: 1", "SHG: 2", "THG: 3", "FHG: 4" }) },
        { "absurd harmonic setpoints",
          [inf](Panel &panel) { panel.slotDWLSSetpointsChanged(qQNaN(), inf, -inf, 1e300); },
          QStringLiteral("sigDWLSSetpointsChanged(nan, inf, -inf, 1e+300)"),
          list({ "IR: nan", "SHG: inf", "THG: -inf", "FHG: 1e+300" }) },
        { "last harmonic setpoint no number",
          [inf](Panel &panel) { panel.slotDWLSSetpointsChanged(-inf, qQNaN(), qQNaN(), qQNaN()); },
          QStringLiteral("sigDWLSSetpointsChanged(-inf, nan, nan, nan)"),
          list({ "IR: -inf", "SHG: nan", "THG: nan", "FHG: nan" }) },
        { "feature requested", [](Panel &panel) { panel.slotWriteDWLSFeature(true); },
          QStringLiteral("sigWriteDWLSFeature(true)"), list({ "feature: 1" }) },
        { "feature off requested",
          [](Panel &panel) { panel.slotWriteDWLSFeature(false); },
          QStringLiteral("sigWriteDWLSFeature(false)"),
          {} },
        { "harmonic setpoints requested",
          [](Panel &panel) { panel.slotWriteDWLSSetpoints(); },
          QStringLiteral("sigWriteDWLSSetpoints()"),
          {} },
        { "wavelength requested", [](Panel &panel) { panel.slotWriteDynamicWavelength(200); },
          QStringLiteral("sigWriteDynamicWavelength(200)"), list({ "wavelength: 200" }) },
        { "setpoint requested", [](Panel &panel) { panel.slotWriteLaserPowerSetpoint(5.0); },
          QStringLiteral("sigWriteLaserPowerSetpoint(5)"), list({ "setpoint: 5" }) },
        { "setpoint requested that is no number",
          [](Panel &panel) { panel.slotWriteLaserPowerSetpoint(qQNaN()); },
          QStringLiteral("sigWriteLaserPowerSetpoint(nan)"), list({ "setpoint: nan" }) },
        { "infinite setpoint requested",
          [inf](Panel &panel) { panel.slotWriteLaserPowerSetpoint(-inf); },
          QStringLiteral("sigWriteLaserPowerSetpoint(-inf)"), list({ "setpoint: -inf" }) },
    };
}

template<class Panel>
void addRows(const QVector<Case<Panel>> &cases)
{
    QTest::addColumn<int>("index");
    for (int i = 0; i < cases.size(); ++i)
        QTest::newRow(cases.at(i).name) << i;
}

/// Stores first and emits then, on every call, and touches neither button nor emission.
template<class Panel>
void storesAndEmits(const Case<Panel> &each)
{
    Panel panel;
    const QStringList looks = PanelProbe::looks(panel);
    SignalRecorder recorder(&panel);
    QList<QStringList> seen;
    const SignalWatcher watcher(panel, [&] { seen << store(panel); });

    each.call(panel);
    each.call(panel);

    const QStringList expected = storeWith(each.stored);
    QCOMPARE(recorder.taken(), QStringList({ each.signal, each.signal }));
    QCOMPARE(store(panel), expected);
    QCOMPARE(seen, QList<QStringList>({ expected, expected }));
    QCOMPARE(PanelProbe::looks(panel), looks);
    QVERIFY(!panel.getEmission());
}

/// \a act may end with the panel deleted by who hears of it.
template<class Panel>
void livesThroughItsDeletion(const std::function<void(Panel &)> &act)
{
    const QPointer<Panel> panel(new Panel);
    const SignalWatcher watcher(*panel, [panel] { delete panel; });

    act(*panel);

    QVERIFY(panel.isNull());
}

/// In the state that lets light out, and in a press of each of the \a count buttons.
template<class Panel>
void livesThroughItsDeletionByAStateOrAPress(int count)
{
    livesThroughItsDeletion<Panel>([](Panel &panel) { panel.slotFSMStateChanged(6); });
    for (int pressed = 0; pressed < count; ++pressed) {
        livesThroughItsDeletion<Panel>([pressed](Panel &panel) {
            IndicatorButton *button = PanelProbe::buttonsOf(panel).at(pressed);
            button->setEnabled(true);
            PanelProbe::press(*button);
        });
    }
}

} // namespace StoreChecks

#endif
