#include "gallery/PageParts.h"
#include "gallery/application/Join.h"

#include <Pelorin/GUIWidget>
#include <Pelorin/HorizontalSlider>
#include <Pelorin/PulsesView>
#include <Pelorin/SubPulsesView>
#include <Pelorin/TriggerActionView>

#include <QGridLayout>

using Simulation::Instrument;
using Simulation::PulseSettings;

namespace {

/// The three drawings with the slider of each. All three settings go to the instrument together.
class PulsePage : public GUIWidget
{
public:
    explicit PulsePage(const Controls::Desk &desk)
        : m_instrument(desk.instrument)
        , m_note(desk.note)
        , m_interval(PageParts::slider("Interval", "µs", 1.0, 100.0, 12.5, 1))
        , m_subPulses(PageParts::slider("Sub-pulses", "", 1.0, 20.0, 5.0, 0))
        , m_perTrigger(PageParts::slider("Pulses per trigger", "", 1.0, 50.0, 14.0, 0))
    {
        layOut();
        for (HorizontalSlider *slider : { m_interval, m_subPulses, m_perTrigger })
            connect(slider, &HorizontalSlider::valueChanged, this, &PulsePage::ask);
        connect(&m_instrument, &Instrument::pulsesChanged, this, &PulsePage::show);
        connect(&m_instrument, &Instrument::faultChanged, this, &GUIWidget::setOverlayMessage);
        show(m_instrument.pulses());
    }

private:
    void layOut()
    {
        auto *grid = new QGridLayout(this);
        grid->setContentsMargins(PageParts::gap, PageParts::gap, PageParts::gap, PageParts::gap);
        grid->setSpacing(PageParts::gap);
        int row = 0;
        const auto add = [grid, &row](QWidget *view, QWidget *slider) {
            grid->addWidget(view, row, 0);
            grid->addWidget(slider, row++, 1, Qt::AlignVCenter);
        };
        add(m_pulsesView, m_interval);
        add(m_subPulsesView, m_subPulses);
        add(m_triggerView, m_perTrigger);
        grid->setColumnStretch(1, 1);
        m_interval->setObjectName(QStringLiteral("interval"));
        m_subPulses->setObjectName(QStringLiteral("subPulses"));
        m_perTrigger->setObjectName(QStringLiteral("perTrigger"));
    }

    void ask()
    {
        const PulseSettings settings{ m_interval->slider->value0(),
                                      qRound(m_subPulses->slider->value0()),
                                      qRound(m_perTrigger->slider->value0()) };
        m_note(QStringLiteral("pulses"), QStringLiteral("%1 µs, %2, %3")
                                             .arg(settings.intervalUs, 0, 'f', 1)
                                             .arg(settings.subPulses)
                                             .arg(settings.perTrigger));
        m_instrument.requestPulses(settings);
    }

    void show(const PulseSettings &settings)
    {
        m_interval->setValue(settings.intervalUs);
        m_subPulses->setValue(settings.subPulses);
        m_perTrigger->setValue(settings.perTrigger);
        m_pulsesView->setPulseInterval(settings.intervalUs);
        m_subPulsesView->setSubPulseCount(settings.subPulses);
        m_triggerView->setPulseInterval(settings.intervalUs);
        m_triggerView->setPulseCount(settings.perTrigger);
    }

    Instrument &m_instrument;
    Controls::Note m_note;
    HorizontalSlider *m_interval;
    HorizontalSlider *m_subPulses;
    HorizontalSlider *m_perTrigger;
    PulsesView *m_pulsesView = new PulsesView;
    SubPulsesView *m_subPulsesView = new SubPulsesView;
    TriggerActionView *m_triggerView = new TriggerActionView;
};

} // namespace

QWidget *Controls::makePulsePage(const Desk &desk)
{
    return new PulsePage(desk);
}
