#include "gallery/PageParts.h"
#include "gallery/application/Join.h"
#include "gallery/simulation/Dyes.h"

#include <Pelorin/Button>
#include <Pelorin/FlowLayout>
#include <Pelorin/RangedInputSliderNG>
#include <Pelorin/WavelengthChart>

#include <QCheckBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QPointer>
#include <QVBoxLayout>

#include <memory>

using Simulation::Instrument;

namespace {

constexpr int sideMargin = 12;
constexpr int pageMargin = 16; // lines up with the title of the view

QWidget *makePage(const QString &title, const QString &text, QLayout *content)
{
    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(pageMargin, PageParts::gap, pageMargin, pageMargin);
    layout->setSpacing(PageParts::gap / 2);
    layout->addWidget(PageParts::label(title, "label-header"));
    QLabel *lines = PageParts::label(text, "text");
    lines->setWordWrap(true);
    layout->addWidget(lines);
    layout->addSpacing(PageParts::gap);
    layout->addLayout(content);
    return page;
}

void showDye(WavelengthChart *chart, const tFluorophoreData &dye, bool shown)
{
    if (shown)
        chart->addFluorophore(dye);
    else
        chart->delFluorophore(dye.id);
}

} // namespace

QWidget *Controls::makeDyePage(WavelengthChart *chart)
{
    auto *flow = new FlowLayout(nullptr, 0, PageParts::gap, PageParts::gap);
    for (const tFluorophoreData &dye : Simulation::dyes()) {
        auto *box = new QCheckBox(dye.name);
        box->setProperty("type", QStringLiteral("text"));
        box->setChecked(true);
        box->setMinimumWidth(150);
        QObject::connect(box, &QCheckBox::toggled, chart,
                         [chart, dye](bool on) { showDye(chart, dye, on); });
        flow->addWidget(box);
    }
    return makePage(QStringLiteral("Dyes on the chart"),
                    QStringLiteral("The chart shows how each of them is excited by the laser, and "
                                   "what it emits then."),
                    flow);
}

QWidget *Controls::makeLimitPage(const Desk &desk)
{
    Instrument *const instrument = &desk.instrument;
    const Simulation::Span powers = instrument->powers();
    const double span = powers.max - powers.min;
    auto *limits = new RangedInputSliderNG(sideMargin);
    limits->setObjectName(QStringLiteral("limits"));
    limits->setStartText(QStringLiteral("Lowest"));
    limits->setStopText(QStringLiteral("Highest"));
    limits->setUnitText(QStringLiteral("mW"));
    limits->setPrecision(1);
    limits->setDoubleRange(span / 20.0, span, true);
    limits->setRange(powers.min, powers.max, true);
    limits->setStopValue(powers.max);
    limits->setStartValue(powers.min);

    // Both ends may settle in one movement, and go to the instrument in one request.
    auto asked = std::make_shared<Simulation::Span>(powers);
    const auto ask = [limits, instrument, asked, note = desk.note] {
        const Simulation::Span now{ limits->startValue(), limits->stopValue() };
        if (now.min == asked->min && now.max == asked->max)
            return;
        *asked = now;
        note(QStringLiteral("power limits"),
             QStringLiteral("%1 to %2 mW").arg(now.min, 0, 'f', 1).arg(now.max, 0, 'f', 1));
        instrument->requestPowerLimits(now.min, now.max);
    };
    QObject::connect(limits, &RangedInputSliderNG::startValueChanged, limits, ask);
    QObject::connect(limits, &RangedInputSliderNG::stopValueChanged, limits, ask);
    QObject::connect(instrument, &Instrument::powerLimitsChanged, limits,
                     [limits, asked](double min, double max) {
                         *asked = { min, max };
                         limits->setStopValue(max);
                         limits->setStartValue(min);
                     });
    auto *column = new QVBoxLayout;
    column->addWidget(limits);
    return makePage(QStringLiteral("Limits of the power"),
                    QStringLiteral("A set point outside of them is moved inside, and no other one "
                                   "is accepted."),
                    column);
}

QWidget *Controls::makeServicePage(const Desk &desk)
{
    struct Choice
    {
        const char *text;
        const char *fault;
        Button::Color color;
    };
    static const Choice choices[] = { { "Door open", "Interlock: door open", Button::Red },
                                      { "Overheated", "Laser head overheated", Button::Red },
                                      { "All well", "", Button::DarkGrey } };
    auto *row = new QHBoxLayout;
    row->setSpacing(PageParts::gap / 2);
    for (const Choice &choice : choices) {
        auto *button = new Button(QLatin1String(choice.text));
        button->setObjectName(QLatin1String(choice.text));
        button->setSize(Button::LongSmall);
        button->setColor(choice.color);
        row->addWidget(button);
        const QString fault = QLatin1String(choice.fault);
        QObject::connect(button, qOverload<bool, QString>(&Button::clicked), &desk.instrument,
                         [instrument = &desk.instrument, fault] { instrument->raiseFault(fault); });
    }
    row->addStretch(1);
    return makePage(QStringLiteral("Faults to try"),
                    QStringLiteral("While a fault stands the laser goes no further than to listen, "
                                   "and the instrument refuses every set point: what was asked for "
                                   "goes back to what holds."),
                    row);
}
