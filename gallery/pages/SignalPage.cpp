#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <Pelorin/HorizontalSlider>
#include <Pelorin/PulsesView>
#include <Pelorin/QualityIndicator>
#include <Pelorin/SignalGraph>
#include <Pelorin/SubPulsesView>
#include <Pelorin/TriggerActionView>
#include <Pelorin/VerticalLabel>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QRandomGenerator>
#include <QTimer>
#include <QVBoxLayout>

#include <cmath>
#include <memory>

namespace {

constexpr int blockSize = 400;
constexpr int blockMs = 250;

QFrame *viewCard(const QString &caption, QWidget *view, QWidget *control, QLayout *option = nullptr)
{
    auto *column = new QVBoxLayout;
    column->setSpacing(PageParts::gap / 2);
    column->addWidget(view, 0, Qt::AlignHCenter);
    column->addWidget(control);
    if (option)
        column->addLayout(option);
    column->addStretch(1);
    return PageParts::card(caption, QString(), column);
}

QFrame *makePulses()
{
    auto *view = new PulsesView;
    HorizontalSlider *const interval = PageParts::slider("Interval", "µs", 1.0, 100.0, 12.5, 1);
    QObject::connect(interval, &HorizontalSlider::valueChanging, view,
                     &PulsesView::setPulseInterval);
    return viewCard(QStringLiteral("PulsesView"), view, interval);
}

QFrame *makeSubPulses()
{
    auto *view = new SubPulsesView;
    HorizontalSlider *const count = PageParts::slider("Sub-pulses", "", 0.0, 20.0, 5.0, 0);
    QObject::connect(count, &HorizontalSlider::valueChanging, view,
                     [view](double value) { view->setSubPulseCount(qRound(value)); });
    return viewCard(QStringLiteral("SubPulsesView"), view, count);
}

QFrame *makeTrigger()
{
    auto *view = new TriggerActionView;
    HorizontalSlider *const count = PageParts::slider("Pulses", "", 0.0, 50.0, 14.0, 0);
    QObject::connect(count, &HorizontalSlider::valueChanging, view,
                     [view](double value) { view->setPulseCount(qRound(value)); });
    const auto follow = [view](bool on) {
        view->setView(on ? TriggerActionView::ViewFixedWindow : TriggerActionView::ViewPulseCount);
    };
    return viewCard(QStringLiteral("TriggerActionView"), view, count,
                    PageParts::option("As long as the trigger is high", false, follow));
}

/// A bar in each of its states, and one that follows a slider.
QFrame *makeQuality()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(PageParts::gap / 2);
    const double values[] = { 50.0, 67.0, 72.0, 77.0, 82.0, 95.0 };
    for (int i = 0; i < 6; ++i) {
        auto *bar = new QualityIndicator;
        bar->setQualityValue(values[i]);
        grid->addWidget(bar, i / 3 * 2, i % 3, Qt::AlignHCenter);
        grid->addWidget(PageParts::label(QString::number(values[i]), "text"), i / 3 * 2 + 1, i % 3,
                        Qt::AlignHCenter);
    }
    auto *live = new QualityIndicator;
    HorizontalSlider *const value = PageParts::slider("Quality", "%", 50.0, 100.0, 70.0, 1);
    QObject::connect(value, &HorizontalSlider::valueChanging, live,
                     &QualityIndicator::setQualityValue);
    grid->addWidget(live, 4, 0, Qt::AlignHCenter);
    grid->addWidget(value, 4, 1, 1, 2);
    return PageParts::card(QStringLiteral("QualityIndicator"), QString(), grid);
}

/// A block of a burst with noise; its phase tells one block from the next.
QVector<short> makeBlock(QRandomGenerator &random, int phase)
{
    QVector<short> block(blockSize);
    for (int i = 0; i < blockSize; ++i) {
        const double burst = std::exp(-std::pow((i - 200 - 40 * std::sin(phase / 7.0)) / 60.0, 2));
        const double noise = 600.0 * (random.generateDouble() - 0.5);
        block[i] = short(12000.0 * burst * std::sin(i / 4.0) + noise);
    }
    return block;
}

QFrame *makeGraph()
{
    auto *column = new QVBoxLayout;
    auto *graph = new SignalGraph;
    auto *timer = new QTimer(graph);
    column->addWidget(graph);
    column->addLayout(PageParts::option("Live blocks", false, [timer](bool on) {
        if (on)
            timer->start();
        else
            timer->stop();
    }));
    timer->setInterval(blockMs);
    auto random = std::make_shared<QRandomGenerator>(20);
    auto phase = std::make_shared<int>(0);
    const auto next = [graph, random, phase] {
        graph->clearData();
        graph->insertData(makeBlock(*random, ++*phase), 0, blockSize);
        graph->update();
    };
    QObject::connect(timer, &QTimer::timeout, graph, next);
    next();
    return PageParts::card(QStringLiteral("SignalGraph"), QString(), column);
}

} // namespace

QWidget *buildSignalPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    grid->addWidget(makePulses(), 0, 0);
    grid->addWidget(makeSubPulses(), 0, 1);
    grid->addWidget(makeTrigger(), 0, 2);
    grid->addWidget(makeGraph(), 1, 0, 1, 2);
    grid->addWidget(makeQuality(), 1, 2);
    for (int column = 0; column < 3; ++column)
        grid->setColumnStretch(column, 1);
    grid->setRowStretch(2, 1);
    return page;
}
