#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/RangedInputSlider>
#include <Pelorin/RangedInputSliderNG>
#include <Pelorin/RangedScaleSlider>

#include <QFrame>
#include <QGridLayout>
#include <QLabel>

#include <memory>

namespace {

constexpr int sideMargin = 12;

/// The two ends of a sweep as a text, and which of them a signal tells.
class SweepReadout
{
public:
    SweepReadout(const QString &name, double start, double stop, SignalLog *log)
        : m_name(name)
        , m_label(PageParts::label(QString(), "label"))
        , m_start(start)
        , m_stop(stop)
        , m_log(log)
    {
        show();
    }

    QLabel *label() const { return m_label; }

    void tell(const char *signal, bool isStart, double value)
    {
        (isStart ? m_start : m_stop) = value;
        show();
        m_log->note(m_name, QLatin1String(signal), QString::number(value, 'f', 1));
    }

private:
    void show()
    {
        m_label->setText(
            QStringLiteral("%1 \u2013 %2").arg(m_start, 0, 'f', 1).arg(m_stop, 0, 'f', 1));
    }

    QString m_name;
    QLabel *m_label;
    double m_start;
    double m_stop;
    SignalLog *m_log;
};

/// Connects \a signal to \a readout, which lives as long as its label.
template<typename Sender, typename Signal>
void follow(Sender *sender, Signal signal, const char *name, bool isStart,
            const std::shared_ptr<SweepReadout> &readout)
{
    QObject::connect(sender, signal, readout->label(), [readout, name, isStart](double value) {
        readout->tell(name, isStart, value);
    });
}

QFrame *card(const QString &caption, QLabel *readout, QWidget *content)
{
    QFrame *result = PageParts::readoutCard(caption, readout, content);
    result->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // columns of equal width
    return result;
}

/// 400 to 900 for both ends, turned by the wheel in steps of 5.
RangedScaleSlider *makeSlider(double start, double stop)
{
    auto *slider = new RangedScaleSlider;
    slider->setStartRange(400.0, 900.0);
    slider->setStopRange(400.0, 900.0);
    slider->setNudge(5.0);
    slider->setCurrentStartValue(start, false);
    slider->setCurrentStopValue(stop, false);
    return slider;
}

QFrame *sliderCard(const QString &caption, RangedScaleSlider *slider, SignalLog *log)
{
    using Slider = RangedScaleSlider;
    const auto readout = std::make_shared<SweepReadout>(caption, slider->currentValueMin(),
                                                        slider->currentValueMax(), log);
    follow(slider, &Slider::startHandleMoved, "startHandleMoved", true, readout);
    follow(slider, &Slider::stopHandleMoved, "stopHandleMoved", false, readout);
    follow(slider, &Slider::startHandleFinishedMoving, "startHandleFinishedMoving", true, readout);
    follow(slider, &Slider::stopHandleFinishedMoving, "stopHandleFinishedMoving", false, readout);
    const auto note = [log, caption](const char *signal) {
        return [log, caption, signal] { log->note(caption, QLatin1String(signal)); };
    };
    QObject::connect(slider, &Slider::startHandleGrapped, log, note("startHandleGrapped"));
    QObject::connect(slider, &Slider::stopHandleGrapped, log, note("stopHandleGrapped"));
    return card(caption, readout->label(), slider);
}

void addSliders(QGridLayout *grid, SignalLog *log)
{
    grid->addWidget(sliderCard(QStringLiteral("Two handles"), makeSlider(500.0, 700.0), log), 0, 0);

    RangedScaleSlider *fixed = makeSlider(500.0, 700.0);
    fixed->setFixedStart(true, 450.0);
    grid->addWidget(sliderCard(QStringLiteral("Start fixed"), fixed, log), 0, 1);

    RangedScaleSlider *disabled = makeSlider(500.0, 700.0);
    disabled->setEnabled(false);
    grid->addWidget(sliderCard(QStringLiteral("Disabled"), disabled, log), 0, 2);

    RangedScaleSlider *hovered = makeSlider(400.0, 700.0);
    PageParts::freezeHovered(hovered);
    grid->addWidget(sliderCard(QStringLiteral("Start under the mouse"), hovered, log), 1, 0);

    RangedScaleSlider *apart = makeSlider(520.0, 840.0);
    apart->setStartRange(410.0, 640.0);
    apart->setStopRange(660.0, 1290.0);
    apart->setCurrentStartValue(520.0, false);
    apart->setCurrentStopValue(1100.0, false);
    grid->addWidget(sliderCard(QStringLiteral("410 to 640 and 660 to 1290"), apart, log), 1, 1);

    RangedScaleSlider *narrow = makeSlider(450.0, 800.0);
    narrow->setSideMargins(sideMargin);
    narrow->setFixedWidth(200);
    grid->addWidget(sliderCard(QStringLiteral("Narrow"), narrow, log), 1, 2);
}

QFrame *panelCard(const QString &caption, RangedInputSlider *panel, bool dark, SignalLog *log)
{
    panel->setUnitText(QStringLiteral("nm"));
    panel->setDarkBackground(dark);
    panel->setPrecision(1);
    panel->setStartRange(400.0, 900.0);
    panel->setStopRange(400.0, 900.0);
    panel->setStopValue(700.0);
    panel->setStartValue(500.0);
    const auto readout = std::make_shared<SweepReadout>(caption, 500.0, 700.0, log);
    using Panel = RangedInputSlider;
    follow(panel, &Panel::startValueChanged, "startValueChanged", true, readout);
    follow(panel, &Panel::stopValueChanged, "stopValueChanged", false, readout);
    return card(caption, readout->label(), panel);
}

/// Over 400 to 900, 20 to 300 apart.
QFrame *panelCardNG(const QString &caption, bool dark, SignalLog *log)
{
    auto *panel = new RangedInputSliderNG(sideMargin);
    panel->setUnitText(QStringLiteral("nm"));
    panel->setDarkBackground(dark);
    panel->setPrecision(1);
    panel->setDoubleRange(20.0, 300.0, true);
    panel->setRange(400.0, 900.0, true);
    panel->setStopValue(700.0);
    panel->setStartValue(500.0);
    const auto readout = std::make_shared<SweepReadout>(caption, 500.0, 700.0, log);
    using Panel = RangedInputSliderNG;
    follow(panel, &Panel::startValueChanging, "startValueChanging", true, readout);
    follow(panel, &Panel::startValueChanged, "startValueChanged", true, readout);
    follow(panel, &Panel::stopValueChanging, "stopValueChanging", false, readout);
    follow(panel, &Panel::stopValueChanged, "stopValueChanged", false, readout);
    return card(caption, readout->label(), panel);
}

void addPanels(QGridLayout *grid, SignalLog *log)
{
    auto *grey = new RangedInputSlider(sideMargin);
    grid->addWidget(panelCard(QStringLiteral("First generation"), grey, true, log), 2, 0);

    auto *fixed = new RangedInputSlider(sideMargin);
    QWidget *fixedCard =
        panelCard(QStringLiteral("On white ground, stop fixed"), fixed, false, log);
    fixed->setFixedStop(true, 700.0);
    grid->addWidget(fixedCard, 2, 1);

    grid->addWidget(panelCardNG(QStringLiteral("Second generation"), true, log), 3, 0);
    grid->addWidget(panelCardNG(QStringLiteral("Second, on white ground"), false, log), 3, 1);
}

} // namespace

QWidget *buildRangedSliderPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    addSliders(grid, log);
    addPanels(grid, log);
    QFrame *logCard = PageParts::card(QStringLiteral("Signals"), QString(), log);
    logCard->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid->addWidget(logCard, 2, 2, 2, 1);
    for (int column = 0; column < 3; ++column)
        grid->setColumnStretch(column, 1);
    grid->setRowStretch(4, 1);
    return page;
}
