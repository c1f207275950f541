#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/Button>
#include <Pelorin/ComboBox>
#include <Pelorin/DropDown>
#include <Pelorin/LineEdit>
#include <Pelorin/LineEditNumber>
#include <Pelorin/Selector>

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr int fieldHeight = 32;

struct Choice
{
    const char *text;
    const char *picture;
};

constexpr Choice choices[] = { { "Sine", "sine" },
                               { "Rising ramp", "sawPosRamp" },
                               { "Triangle", "triangleSignal" } };

QString picturePath(const char *name)
{
    return QStringLiteral(":/Pelorin/images/images/%1.png").arg(QLatin1String(name));
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

QLabel *note(const char *text)
{
    QLabel *result = PageParts::label(QString::fromUtf8(text), "text");
    result->setWordWrap(true);
    return result;
}

/// A card and its share of the width of its row.
struct Place
{
    QFrame *card;
    int share = 1;
};

QHBoxLayout *cardRow(const QVector<Place> &places)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(PageParts::gap);
    for (const Place &place : places) {
        place.card->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
        row->addWidget(place.card, place.share);
    }
    return row;
}

// Entry fields

/// Gives \a edit its look, and tells the log of all that an application would hear of it.
void setUp(LineEdit *edit, const char *name, SignalLog *log)
{
    edit->setProperty("type", QStringLiteral("label"));
    edit->setFixedHeight(fieldHeight);
    const QString sender = QLatin1String(name);
    QObject::connect(edit, &LineEdit::textEditing, log,
                     [log, sender] { log->note(sender, QStringLiteral("textEditing")); });
    QObject::connect(edit, &LineEdit::textReset, log,
                     [log, sender] { log->note(sender, QStringLiteral("textReset")); });
    QObject::connect(edit, &LineEdit::textSaved, log, [log, sender](const QString &text) {
        log->note(sender, QStringLiteral("textSaved"), quoted(text));
    });
}

/// What was saved last.
QLabel *savedText(LineEdit *edit)
{
    QLabel *result = PageParts::label(edit->text(), "label");
    QObject::connect(edit, &LineEdit::textSaved, result, &QLabel::setText);
    return result;
}

QFrame *fieldCard(const char *caption, QLabel *readout, const QVector<QWidget *> &line,
                  const char *text)
{
    auto *content = new QWidget;
    auto *rows = new QVBoxLayout(content);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(6);
    auto *fields = new QHBoxLayout;
    fields->setSpacing(8);
    for (QWidget *each : line)
        fields->addWidget(each, qobject_cast<QLineEdit *>(each) ? 1 : 0);
    rows->addLayout(fields);
    rows->addWidget(note(text));
    return PageParts::readoutCard(QLatin1String(caption), readout, content);
}

LineEdit *textField(const char *name, SignalLog *log)
{
    auto *edit = new LineEdit;
    edit->setText(QStringLiteral("Bench 3"));
    setUp(edit, name, log);
    return edit;
}

QFrame *textCard(SignalLog *log)
{
    LineEdit *edit = textField("LineEdit", log);
    return fieldCard("LineEdit", savedText(edit), { edit },
                     "Saved at Return. Without the timeout, leaving saves nothing.");
}

QFrame *darkCard(SignalLog *log)
{
    LineEdit *edit = textField("LineEdit, dark", log);
    edit->setDarkBackground();
    return fieldCard("LineEdit, dark ground", savedText(edit), { edit },
                     "The same on a ground that sets it off from a white panel.");
}

QFrame *timeoutCard(SignalLog *log)
{
    LineEdit *edit = textField("LineEdit, timeout", log);
    edit->setDarkBackground();
    edit->enableTimeout(true);
    return fieldCard("LineEdit with the timeout", savedText(edit), { edit },
                     "After five idle seconds the edit is given up; leaving it saves.");
}

LineEditNumber *numberField(const char *name, double value, int precision, bool significant,
                            SignalLog *log)
{
    auto *edit = new LineEditNumber;
    edit->setDarkBackground();
    edit->setNumber(value, precision, significant);
    setUp(edit, name, log);
    const QString sender = QLatin1String(name);
    const auto noted = [log, sender](const char *signal) {
        return [log, sender, signal](double number) {
            log->note(sender, QLatin1String(signal), QString::number(number, 'g', 8));
        };
    };
    QObject::connect(edit, &LineEditNumber::numberChanged, log, noted("numberChanged"));
    QObject::connect(edit, &LineEditNumber::numberSaved, log, noted("numberSaved"));
    return edit;
}

QFrame *decimalsCard(SignalLog *log)
{
    LineEditNumber *edit = numberField("decimals", 1234.5, 2, false, log);
    return fieldCard("LineEditNumber, two decimals", savedText(edit), { edit },
                     "Takes what may stand in a number; a comma becomes a point.");
}

QFrame *digitsCard(SignalLog *log)
{
    QVector<QWidget *> fields;
    for (double value : { 1234.5, 1.2345, 0.012345 })
        fields << numberField("digits", value, 3, true, log);
    return fieldCard("LineEditNumber, three significant digits", new QLabel, fields,
                     "1234.5, 1.2345 and 0.012345, as they were set.");
}

/// A button that does not take the focus, which would end an edit.
template<class Pressed>
Button *smallButton(const char *text, Pressed pressed)
{
    auto *button = new Button(QLatin1String(text));
    button->setSize(Button::WideSmall);
    button->setColor(Button::DarkGrey);
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QPushButton::clicked, button, pressed);
    return button;
}

QFrame *nudgeCard(SignalLog *log)
{
    LineEditNumber *edit = numberField("nudged", 20.0, 1, false, log);
    edit->allowNudge(0.5);
    QObject::connect(edit, &LineEditNumber::arrowPressed, edit, &LineEditNumber::nudge);
    Button *button = smallButton("Reading", [edit, log] {
        edit->nudge(1);
        edit->setText(QStringLiteral("20.0")); // as the instrument still has it
        log->note(QStringLiteral("instrument"), QStringLiteral("setText"),
                  QStringLiteral("\"20.0\""));
    });
    return fieldCard("LineEditNumber, nudged", savedText(edit), { edit, button },
                     "Up and Down move it by 0.5. The button does so too, with an old reading on "
                     "its heels, which waits a quarter of a second.");
}

// Selectors

void watch(ComboBox *box, const char *name, SignalLog *log)
{
    const QString sender = QLatin1String(name);
    const auto noted = [log, sender](const char *signal) {
        return [log, sender, signal](int index) {
            log->note(sender, QLatin1String(signal), QString::number(index));
        };
    };
    QObject::connect(box, &ComboBox::currentIndexChanged, log, noted("currentIndexChanged"));
    QObject::connect(box, &ComboBox::activated, log, noted("activated"));
}

/// A box in the sheet's \a type with the first \a count choices.
ComboBox *comboBox(const char *name, const char *type, int count, SignalLog *log)
{
    auto *box = new ComboBox;
    box->setProperty("type", QLatin1String(type));
    for (int i = 0; i < count; ++i)
        box->addItem(QLatin1String(choices[i].text), picturePath(choices[i].picture));
    watch(box, name, log);
    return box;
}

QFrame *comboBoxCard(SignalLog *log)
{
    ComboBox *single = comboBox("single mode", "label", 1, log);
    single->setSingleMode(true);
    auto *empty = comboBox("empty", "label", 0, log);
    empty->setSingleMode(false); // so that it has the arrow
    empty->setMinimumWidth(30);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(28);
    grid->setVerticalSpacing(12);
    grid->addLayout(PageParts::named("three items", comboBox("three items", "label", 3, log)), 0,
                    0);
    grid->addLayout(PageParts::named("one item", comboBox("one item", "label", 1, log)), 0, 1);
    grid->addLayout(PageParts::named("one item, single mode", single), 0, 2);
    grid->addLayout(PageParts::named("heading", comboBox("heading", "heading", 3, log)), 1, 0, 1,
                    2);
    grid->addLayout(PageParts::named("empty", empty), 1, 2);
    grid->setColumnStretch(2, 1);
    return PageParts::card(QStringLiteral("ComboBox"), QString(), grid);
}

QFrame *hiddenItemsCard(SignalLog *log)
{
    ComboBox *box = comboBox("hidden items", "label", 3, log);
    box->showIcons(IconLabel::IconLeft);
    box->setItemVisibility(1, false);
    auto *checks = new QGridLayout;
    checks->setHorizontalSpacing(12);
    checks->setVerticalSpacing(4);
    for (int i = 0; i < box->count(); ++i) {
        auto *check = new QCheckBox;
        check->setProperty("type", QStringLiteral("text"));
        check->setChecked(box->hasItemVisibility(i));
        QObject::connect(check, &QCheckBox::toggled, box,
                         [box, i](bool visible) { box->setItemVisibility(i, visible); });
        checks->addWidget(check, i, 0);
        checks->addWidget(PageParts::label(box->itemText(i), "text"), i, 1);
    }
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addLayout(PageParts::named("with icons", box));
    row->addStretch(1);
    row->addLayout(checks);
    return PageParts::card(QStringLiteral("ComboBox, hidden items"), QString(), row);
}

Selector *selector(const char *type, SignalLog *log)
{
    auto *result = new Selector(QStringLiteral("Settings"));
    result->setProperty("type", QLatin1String(type));
    for (const char *text : { "Control", "Network", "Calibration", "Service" })
        result->addItem(QLatin1String(text));
    QObject::connect(result, &Selector::itemSelected, log, [log](int index) {
        log->note(QStringLiteral("Selector"), QStringLiteral("itemSelected"),
                  QString::number(index));
    });
    return result;
}

QFrame *selectorCard(SignalLog *log)
{
    auto *panel = new QFrame;
    panel->setProperty("widget-color", QStringLiteral("red"));
    auto *row = new QHBoxLayout(panel);
    row->setContentsMargins(16, 12, 16, 12);
    row->addWidget(selector("", log));
    row->addStretch(1);
    row->addWidget(selector("settings", log));
    auto *column = new QVBoxLayout;
    column->addWidget(panel);
    column->addStretch(1);
    return PageParts::card(QStringLiteral("Selector"),
                           QStringLiteral("Its first item, Control, is never shown."), column);
}

/// An open list as a part of the page, for a real one closes when one looks elsewhere. The row \a
/// hovered is under the mouse.
DropDown *openList(const char *type, IconLabel::IconDisplay display, int hovered)
{
    auto *list = new DropDown;
    list->setWindowFlags(Qt::Widget);
    list->setProperty("type", QLatin1String(type));
    for (const Choice &choice : choices)
        list->addItem(QLatin1String(choice.text), picturePath(choice.picture));
    list->showIcons(display);
    list->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    PageParts::freeze(list);
    if (hovered >= 0)
        PageParts::freezeHovered(list->findChildren<IconLabel *>().at(hovered));
    return list;
}

QFrame *openListsCard()
{
    DropDown *hidden = openList("", IconLabel::NoIcon, -1);
    hidden->setItemVisibility(1, false);
    auto *row = new QHBoxLayout;
    row->setSpacing(20);
    row->addLayout(PageParts::named("plain", openList("", IconLabel::NoIcon, 1)));
    row->addLayout(PageParts::named("an item hidden", hidden));
    row->addLayout(PageParts::named("label", openList("label", IconLabel::NoIcon, -1)));
    row->addLayout(PageParts::named("heading", openList("heading", IconLabel::NoIcon, -1)));
    row->addLayout(PageParts::named("icon left", openList("", IconLabel::IconLeft, -1)));
    row->addLayout(PageParts::named("icon right", openList("", IconLabel::IconRight, -1)));
    row->addStretch(1);
    return PageParts::card(QStringLiteral("DropDown, open"), QString(), row);
}

} // namespace

QWidget *buildFirstEntryPage()
{
    auto *page = new QWidget;
    auto *rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Type or choose something"));
    rows->addLayout(cardRow({ { textCard(log) }, { darkCard(log) }, { timeoutCard(log) } }));
    rows->addLayout(cardRow({ { decimalsCard(log) }, { digitsCard(log) }, { nudgeCard(log) } }));
    rows->addLayout(cardRow(
        { { comboBoxCard(log), 9 }, { hiddenItemsCard(log), 7 }, { selectorCard(log), 6 } }));
    QFrame *logCard = PageParts::card(QStringLiteral("Signals"), QString(), log);
    rows->addLayout(cardRow({ { openListsCard(), 8 }, { logCard, 3 } }), 1);
    return page;
}
