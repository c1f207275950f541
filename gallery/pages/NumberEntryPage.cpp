#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/Button>
#include <Pelorin/LineEditNumberNG>
#include <Pelorin/LineEditPowerNG>
#include <Pelorin/ScaleSliderNG>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>
#include <QVariant>
#include <QVector>

namespace {

constexpr int fieldHeight = 36;

/// As a field writes it.
QString numberText(double value, int decimals)
{
    return qIsInf(value) ? QString(QChar(0x221E)) : QString::number(value, 'f', decimals);
}

/// Gives a field its ground and its height, which an application does in its own layout.
template<typename Edit>
Edit *makeField(const char *name)
{
    auto *edit = new Edit(nullptr);
    edit->setObjectName(QLatin1String(name));
    edit->setProperty("background", QStringLiteral("dark"));
    edit->setFixedHeight(fieldHeight);
    return edit;
}

LineEditNumberNG *makeNumber(const char *name, double min, double max, double value)
{
    auto *edit = makeField<LineEditNumberNG>(name);
    edit->setRange(min, max);
    edit->setValue(value);
    return edit;
}

/// The committed value beside a caption. It follows the signals alone, so it shows what an
/// application would see.
template<typename Edit>
QLabel *makeReadout(Edit *edit, SignalLog *log)
{
    QLabel *readout = PageParts::label(numberText(edit->value(), edit->valuePrecision()), "label");
    readout->setObjectName(edit->objectName() + QStringLiteral("Readout"));
    QObject::connect(edit, &Edit::valueChanging, log, [edit, log](double value) {
        log->note(edit->objectName(), QStringLiteral("valueChanging"),
                  QString::number(value, 'g', 8));
    });
    QObject::connect(edit, &Edit::valueChanged, readout, [edit, log, readout](double value) {
        readout->setText(numberText(value, edit->valuePrecision()));
        log->note(edit->objectName(), QStringLiteral("valueChanged"),
                  QString::number(value, 'g', 8));
    });
    return readout;
}

/// The field with its unit, and what is to be known of it.
QVBoxLayout *fieldRows(QWidget *edit, const char *unit, const char *note)
{
    auto *line = new QHBoxLayout;
    line->setSpacing(10);
    line->addWidget(edit, 1);
    QLabel *unitLabel = PageParts::label(QString::fromUtf8(unit), "label");
    unitLabel->setMinimumWidth(32);
    line->addWidget(unitLabel);
    QLabel *text = PageParts::label(QString::fromUtf8(note), "text");
    text->setWordWrap(true);
    auto *rows = new QVBoxLayout;
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(8);
    rows->addLayout(line);
    rows->addWidget(text);
    return rows;
}

template<typename Edit>
QFrame *fieldCard(const char *caption, Edit *edit, SignalLog *log, QLayout *rows)
{
    auto *content = new QWidget;
    content->setLayout(rows);
    QFrame *card = PageParts::readoutCard(QLatin1String(caption), makeReadout(edit, log), content);
    card->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // columns of equal width
    return card;
}

QFrame *plainCard(SignalLog *log)
{
    LineEditNumberNG *edit = makeNumber("plain", 0.0, 250.0, 125.0);
    return fieldCard("Plain", edit, log,
                     fieldRows(edit, "mW",
                               "0 to 250. What is typed counts at Return, or when the "
                               "field is left; after three idle seconds it is taken "
                               "back."));
}

QFrame *infinityCard(SignalLog *log)
{
    LineEditNumberNG *edit = makeNumber("infinity", 1.0, 1000.0, 1.0);
    edit->setValuePrecision(0);
    edit->enableInfinity(true);
    edit->setValue(qInf());
    return fieldCard("With infinity", edit, log,
                     fieldRows(edit, "pulses",
                               "1 to 1000, or as many as come: type \"inf\", or any "
                               "number above the range."));
}

QFrame *reversedCard(SignalLog *log)
{
    LineEditNumberNG *edit = makeNumber("reversed", 700.0, 400.0, 561.4);
    edit->setValuePrecision(1);
    edit->setValue(561.4);
    return fieldCard("Reversed range", edit, log,
                     fieldRows(edit, "nm",
                               "700 down to 400, as it was given. A number beyond an "
                               "end counts as that end."));
}

QFrame *readOnlyCard(SignalLog *log)
{
    LineEditNumberNG *edit = makeNumber("readOnly", 0.0, 100.0, 36.6);
    edit->setReadOnly(true);
    edit->setFocusPolicy(Qt::NoFocus);
    return fieldCard("Read-only", edit, log,
                     fieldRows(edit, "\u00B0C",
                               "Shows a value that comes from elsewhere, and "
                               "does not take the keyboard."));
}

QFrame *disabledCard(SignalLog *log)
{
    LineEditNumberNG *edit = makeNumber("disabled", 0.0, 100.0, 80.0);
    edit->setDisabledContent(QStringLiteral("\u2013 \u2013 \u2013"));
    edit->setEnabled(false);
    auto *button = new Button(QStringLiteral("Enable"));
    button->setSize(Button::WideSmall);
    button->setColor(Button::DarkGrey);
    QObject::connect(button, &QPushButton::clicked, edit, [edit, button] {
        edit->setEnabled(!edit->isEnabled());
        button->setText(edit->isEnabled() ? QStringLiteral("Disable") : QStringLiteral("Enable"));
    });
    QVBoxLayout *rows =
        fieldRows(edit, "%", "While it is disabled, a content of its own stands for the number.");
    auto *line = static_cast<QHBoxLayout *>(rows->itemAt(0)->layout());
    line->addWidget(button);
    return fieldCard("Disabled content", edit, log, rows);
}

QFrame *iconCard(SignalLog *log)
{
    LineEditNumberNG *edit = makeNumber("icon", 0.0, 5000.0, 1064.0);
    edit->setIndicatorIcon(QPixmap(QStringLiteral(":/Pelorin/images/images/warningOrange.png")));
    return fieldCard("Indicator icon", edit, log,
                     fieldRows(edit, "ms",
                               "A picture before the number says that something is to "
                               "be known of it."));
}

/// What a popup looks like when it is open, standing still.
QWidget *popupSpecimen(ScaleSliderNG::ScaleType type, double max, double value)
{
    auto *slider = new ScaleSliderNG(Qt::Horizontal, type, nullptr);
    slider->setSliderSize(true, false, true);
    slider->setSideMargins(5);
    slider->setFixedWidth(400);
    slider->setRange(0.0, max);
    slider->setValue0(value);
    PageParts::freeze(slider);
    return slider;
}

QFrame *popupCard(SignalLog *log)
{
    LineEditNumberNG *edit = makeNumber("popup", 0.0, 100.0, 35.0);
    edit->popUpSliderEnable(true, false);
    QVBoxLayout *rows = fieldRows(edit, "%", "The button opens a slider below the field:");
    rows->addWidget(popupSpecimen(ScaleSliderNG::ScaleLinear, 100.0, 35.0), 0, Qt::AlignHCenter);
    return fieldCard("With popup slider", edit, log, rows);
}

QFrame *powerCard(SignalLog *log)
{
    auto *edit = makeField<LineEditPowerNG>("power");
    edit->setBasePowerType(Converter::ePwrMW1);
    edit->setValuePrecision(1);
    edit->setRange(0.0, 1500.0);
    edit->setValue(60.0);
    edit->popUpSliderEnable(true, true);
    QVBoxLayout *rows = fieldRows(edit, "mW",
                                  "Its popup slider has a square-root scale, which "
                                  "spreads the low end:");
    rows->addWidget(popupSpecimen(ScaleSliderNG::ScaleSqrt, 1500.0, 60.0), 0, Qt::AlignHCenter);
    return fieldCard("Power edit", edit, log, rows);
}

/// A button that plays the instrument. It does not take the focus, which would end an edit.
QFrame *readingCard(SignalLog *log)
{
    LineEditNumberNG *edit = makeNumber("reading", 0.0, 100.0, 20.0);
    auto *button = new Button(QStringLiteral("Reading"));
    button->setSize(Button::LongSmall);
    button->setColor(Button::Green);
    button->setFocusPolicy(Qt::NoFocus);
    QObject::connect(button, &QPushButton::clicked, edit, [edit, log] {
        edit->setValue(edit->value() < 50.0 ? 80.0 : 20.0);
        log->note(edit->objectName(), QStringLiteral("setValue"), QString::number(edit->value()));
    });
    QVBoxLayout *rows = fieldRows(edit, "\u00B0C",
                                  "Type, and let the instrument send a reading: the field keeps "
                                  "what you type. Without an edit it follows.");
    auto *line = static_cast<QHBoxLayout *>(rows->itemAt(0)->layout());
    line->addWidget(button);
    return fieldCard("A reading while you type", edit, log, rows);
}

QFrame *keyCard()
{
    static const struct
    {
        const char *key;
        const char *effect;
    } keys[] = {
        { "Return, Enter", "commit, and select all" },
        { "Up, Down", "step the digit left of the cursor, and commit" },
        { "Comma", "types a point" },
        { "i, n, f", "for \"inf\"; all other letters have no effect" },
    };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(4);
    int row = 0;
    for (const auto &each : keys) {
        grid->addWidget(PageParts::label(QLatin1String(each.key), "text"), row, 0);
        grid->addWidget(PageParts::label(QLatin1String(each.effect), "text"), row++, 1);
    }
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(row, 1);
    return PageParts::card(QStringLiteral("Keys"), QString(), grid);
}

/// Cards of equal width side by side.
QHBoxLayout *cardRow(const QVector<QWidget *> &cards)
{
    auto *row = new QHBoxLayout;
    row->setSpacing(PageParts::gap);
    for (QWidget *card : cards)
        row->addWidget(card, 1);
    return row;
}

} // namespace

QWidget *buildNumberEntryPage()
{
    auto *page = new QWidget;
    auto *rows = new QVBoxLayout(page);
    rows->setContentsMargins(0, 0, 0, 0);
    rows->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Type something"));
    rows->addLayout(cardRow({ plainCard(log), infinityCard(log), reversedCard(log) }));
    rows->addLayout(cardRow({ readOnlyCard(log), disabledCard(log), iconCard(log) }));
    rows->addLayout(cardRow({ popupCard(log), powerCard(log) }));
    QFrame *logCard = PageParts::card(QStringLiteral("Signals"), QString(), log);
    logCard->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    auto *column = new QVBoxLayout;
    column->setSpacing(PageParts::gap);
    column->addWidget(readingCard(log));
    column->addWidget(keyCard(), 1);
    QHBoxLayout *last = cardRow({ logCard });
    last->insertLayout(0, column, 1);
    rows->addLayout(last, 1);
    return page;
}
