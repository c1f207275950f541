#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/Indicator>
#include <Pelorin/IndicatorButton>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <functional>

namespace {

Indicator *lamp(int size, Indicator::Color color, Indicator::Form form = Indicator::Round)
{
    auto *result = new Indicator;
    result->setSize(size);
    result->setColor(color);
    result->setForm(form);
    return result;
}

QLabel *caption(const char *text)
{
    return PageParts::label(QString::fromUtf8(text), "text");
}

QFrame *formCard()
{
    static const char *const forms[] = { "Round", "TriangleUp", "TriangleDown" };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(10);
    const char *const captions[] = { "12", "20", "32", "48", "64 \u00D7 32", "disabled" };
    int column = 1;
    for (const char *text : captions)
        grid->addWidget(caption(text), 0, column++, Qt::AlignCenter);
    for (int form = 0; form < 3; ++form) {
        const auto shape = Indicator::Form(form);
        const auto add = [grid, form](Indicator *each, int place) {
            grid->addWidget(each, form + 1, place, Qt::AlignCenter);
        };
        grid->addWidget(caption(forms[form]), form + 1, 0);
        int place = 1;
        for (const int size : { 12, 20, 32, 48 })
            add(lamp(size, Indicator::Green, shape), place++);
        Indicator *wide = lamp(64, Indicator::Green, shape);
        wide->setSize(64, 32);
        add(wide, place++);
        Indicator *disabled = lamp(48, Indicator::Green, shape);
        disabled->setEnabled(false);
        add(disabled, place);
        grid->setRowMinimumHeight(form + 1, 60);
    }
    grid->setColumnStretch(7, 1);
    grid->setRowStretch(4, 1);
    return PageParts::card(QStringLiteral("Forms and sizes"),
                           QStringLiteral("A disc is as large as its width, whatever its height."),
                           grid);
}

QFrame *colorCard()
{
    struct Shade
    {
        const char *name;
        Indicator::Color color;
    };
    static const Shade shades[] = { { "Red", Indicator::Red },
                                    { "Orange", Indicator::Orange },
                                    { "Green", Indicator::Green },
                                    { "Grey", Indicator::Grey },
                                    { "any other", 0xFF3D7EBF } };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(10);
    grid->addWidget(caption("plain"), 1, 0);
    grid->addWidget(caption("border"), 2, 0);
    int column = 1;
    for (const Shade &shade : shades) {
        grid->addWidget(caption(shade.name), 0, column, Qt::AlignCenter);
        grid->addWidget(lamp(28, shade.color), 1, column, Qt::AlignCenter);
        Indicator *bordered = lamp(28, shade.color);
        bordered->setBorder(true);
        grid->addWidget(bordered, 2, column, Qt::AlignCenter);
        ++column;
    }
    grid->setColumnStretch(column, 1);
    grid->setRowStretch(3, 1);
    return PageParts::card(QStringLiteral("Colours"), QString(), grid);
}

/// A lamp with a small button that starts something on it.
QLayout *trial(const char *name, Indicator *indicator, const char *action,
               const std::function<void(Indicator *)> &run)
{
    auto *button = new Button(QLatin1String(action));
    button->setSize(Button::WideSmall);
    button->setColor(Button::DarkGrey);
    QObject::connect(button, &Button::clicked, indicator, [indicator, run] { run(indicator); });
    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addWidget(indicator);
    row->addWidget(caption(name), 1);
    row->addWidget(button);
    return row;
}

QFrame *timeCard()
{
    auto *rows = new QVBoxLayout;
    rows->setSpacing(8);
    Indicator *slow = lamp(28, Indicator::Grey);
    slow->setBlink(true, 500, Indicator::Orange);
    rows->addLayout(trial("Blinking, grey and orange", slow, "Stop",
                          [](Indicator *each) { each->setBlink(false); }));
    Indicator *fast = lamp(28, Indicator::Green, Indicator::TriangleUp);
    rows->addLayout(trial("Blinking fast", fast, "Start",
                          [](Indicator *each) { each->setBlink(true, 120, Indicator::Red); }));
    rows->addLayout(trial("One shot of 250 ms", lamp(28, Indicator::Green), "Flash",
                          [](Indicator *each) { each->setOneShoot(250, Indicator::Red); }));
    Indicator *idle = lamp(28, Indicator::Green);
    idle->setBlink(true, 500, Indicator::Orange);
    idle->setEnabled(false);
    rows->addLayout(trial("Disabled while it blinks", idle, "Enable",
                          [](Indicator *each) { each->setEnabled(!each->isEnabled()); }));
    rows->addStretch(1);
    return PageParts::card(QStringLiteral("Blinking and flashing"), QString(), rows);
}

IndicatorButton *indicatorButton(const char *text, IndicatorButton::Position position,
                                 SignalLog *log)
{
    auto *result = new IndicatorButton(QString::fromUtf8(text), position);
    result->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    result->setButtonColor(Button::DarkGrey);
    const QString name = QString::fromUtf8(text).replace(QLatin1Char('\n'), QLatin1Char(' '));
    QObject::connect(result, &IndicatorButton::toggled, log, [log, name](bool on) {
        log->note(name, QStringLiteral("toggled"),
                  on ? QStringLiteral("true") : QStringLiteral("false"));
    });
    return result;
}

QFrame *positionCard(SignalLog *log)
{
    static const char *const names[] = { "Above", "Left", "Right", "Below" };
    auto *row = new QHBoxLayout;
    row->setSpacing(28);
    for (int position = 0; position < 4; ++position) {
        IndicatorButton *each =
            indicatorButton(names[position], IndicatorButton::Position(position), log);
        each->enableToggle(true);
        each->setActive(position == IndicatorButton::Left);
        row->addWidget(each, 0, Qt::AlignVCenter);
    }
    row->addStretch(1);
    return PageParts::card(QStringLiteral("Indicator buttons, lamp in all four positions"),
                           QStringLiteral("The lamp follows a press at once."), row);
}

QFrame *answerCard(SignalLog *log)
{
    auto *emission = indicatorButton("Emission\nON / OFF", IndicatorButton::Left, log);
    emission->setColors(Indicator::Red, Indicator::Grey);
    emission->setEmissionButtonStatus(true);
    emission->button()->setToolTip(QStringLiteral("Toggle Emission"));
    auto *answer = new Button(QStringLiteral("Answer"));
    answer->setSize(Button::LongSmall);
    answer->setColor(Button::Green);
    QObject::connect(answer, &Button::clicked, emission,
                     [emission] { emission->setActive(emission->isActive()); });
    auto *disabled = indicatorButton("Standby", IndicatorButton::Left, log);
    disabled->setActive(true);
    disabled->setEnabled(false);

    auto *row = new QHBoxLayout;
    row->setSpacing(20);
    row->addWidget(emission, 0, Qt::AlignVCenter);
    row->addWidget(answer, 0, Qt::AlignVCenter);
    row->addWidget(disabled, 0, Qt::AlignVCenter);
    row->addStretch(1);
    return PageParts::card(
        QStringLiteral("Request and answer"),
        QStringLiteral("A press asks; the lamp waits until the instrument answers. At the right, "
                       "disabled while active."),
        row);
}

} // namespace

QWidget *buildIndicatorPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Press something"));
    grid->addWidget(formCard(), 0, 0, 2, 1);
    grid->addWidget(colorCard(), 2, 0);
    grid->addWidget(timeCard(), 0, 1);
    grid->addWidget(answerCard(log), 1, 1);
    grid->addWidget(positionCard(log), 2, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return page;
}
