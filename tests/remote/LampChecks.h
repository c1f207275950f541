#ifndef PELORIN_TESTS_LAMPCHECKS_H
#define PELORIN_TESTS_LAMPCHECKS_H

#include "tests/remote/PanelProbe.h"
#include "tests/support/SignalRecorder.h"

#include <QBoxLayout>
#include <QtTest>

#include <limits>

/// The column of buttons of a start-up panel, and the lamp states that an application gives as
/// numbers.
namespace LampChecks {

template<class Panel>
struct Button
{
    const char *text; ///< in one line
    void (Panel::*setLamp)(int);
    QRgb on;
    QRgb blinking;
};

/// The buttons of \a lamps from top to bottom, of which one is the emission button.
template<class Panel>
void buttonsAreBuilt(const Panel &panel, const QVector<Button<Panel>> &lamps, const char *emission)
{
    const QList<IndicatorButton *> buttons = PanelProbe::buttonsOf(panel);
    QCOMPARE(buttons.size(), lamps.size());
    for (int i = 0; i < lamps.size(); ++i) {
        const ::Button &button = *buttons.at(i)->button();
        const bool lets = qstrcmp(lamps.at(i).text, emission) == 0;
        QCOMPARE(PanelProbe::plain(button.text()), QLatin1String(lamps.at(i).text));
        QCOMPARE(button.color(), ::Button::DarkGrey);
        QCOMPARE(button.isEmissionButton(), lets);
        QCOMPARE(button.toolTip().isEmpty(), !lets);
        QCOMPARE(buttons.at(i)->onColor(), lamps.at(i).on);
        QCOMPARE(buttons.at(i)->offColor(), PanelProbe::grey);
    }
}

template<class Panel>
void standsInAColumn(Panel &panel)
{
    panel.resize(600, 500);
    panel.show();

    const auto *row = qobject_cast<QHBoxLayout *>(panel.layout());
    QVERIFY(row);
    QCOMPARE(row->contentsMargins(), QMargins(0, 0, 0, 0));
    QCOMPARE(row->count(), 2);
    QVERIFY(row->itemAt(0)->spacerItem());
    QCOMPARE(row->stretch(0), 0);
    const auto *column = qobject_cast<QVBoxLayout *>(row->itemAt(1)->layout());
    QVERIFY(column);
    QCOMPARE(column->contentsMargins(), QMargins(0, 0, 0, 0));
    const QList<IndicatorButton *> buttons = PanelProbe::buttonsOf(panel);
    QCOMPARE(column->count(), buttons.size());
    int bottom = -1;
    for (int i = 0; i < buttons.size(); ++i) {
        const IndicatorButton &each = *buttons.at(i);
        QCOMPARE(column->itemAt(i)->widget(), &each);
        QCOMPARE(each.geometry().right(), panel.rect().right());
        QVERIFY(each.geometry().top() > bottom);
        QVERIFY(PanelProbe::lampOf(each).geometry().right() < each.button()->geometry().left());
        bottom = each.geometry().bottom();
    }
}

template<class Panel>
void addRows(const QVector<Button<Panel>> &lamps)
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("number");
    QTest::addColumn<QString>("lamp");

    struct Number
    {
        int number;
        const char *lamp;
    };
    const Number numbers[] = {
        { 0, "off" },  { 1, "blinking" }, { 2, "on" },
        { 3, "on" },   { -1, "on" },      { std::numeric_limits<int>::max(), "on" },
        { 256, "on" }, { 257, "on" },     { std::numeric_limits<int>::min(), "on" },
    };
    for (int i = 0; i < lamps.size(); ++i) {
        for (const Number &each : numbers)
            QTest::addRow("%s, %d", lamps.at(i).text, each.number)
                << i << each.number << QString::fromLatin1(each.lamp);
    }
}

/// From each other lamp state, all buttons being enabled; nothing is emitted, no other lamp changes,
/// and the next press turns round what the lamp shows.
template<class Panel>
void setsASingleLamp(const QVector<Button<Panel>> &lamps)
{
    QFETCH(int, index);
    QFETCH(int, number);
    QFETCH(QString, lamp);
    const Button<Panel> &each = lamps.at(index);
    const bool on = lamp == QLatin1String("on");
    for (const int before : { 0, 1, 2 }) {
        Panel panel;
        panel.slotFSMStateChanged(6);
        QStringList expected = PanelProbe::looks(panel);
        expected[index] = QStringLiteral("enabled ") + lamp;
        IndicatorButton &button = *PanelProbe::buttonsOf(panel).at(index);
        SignalRecorder recorder(&panel);

        (panel.*each.setLamp)(before);
        (panel.*each.setLamp)(number);

        QCOMPARE(PanelProbe::looks(panel), expected);
        QCOMPARE(button.isActive(), on);
        const QRgb second = on ? each.on : PanelProbe::grey;
        const bool blinking = lamp == QLatin1String("blinking");
        QCOMPARE(PanelProbe::shownColor(button), blinking ? each.blinking : second);
        PanelProbe::lampOf(button).toggleBlink();
        QCOMPARE(PanelProbe::shownColor(button), second);
        QCOMPARE(recorder.taken(), QStringList());
    }
}

} // namespace LampChecks

#endif
