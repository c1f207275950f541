#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/Button>
#include <Pelorin/ShowHideButton>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <QVariant>

namespace {

/// A live button tells the log of its clicks.
Button *liveButton(const char *text, SignalLog *log)
{
    auto *button = new Button(QString::fromUtf8(text));
    QObject::connect(button, &Button::clicked, log, [log](bool checked, const QString &name) {
        log->note(QStringLiteral("Button"), QStringLiteral("clicked"),
                  QStringLiteral("%1, \"%2\"")
                      .arg(checked ? QStringLiteral("true") : QStringLiteral("false"),
                           QString(name).replace(QLatin1Char('\n'), QLatin1Char(' '))));
    });
    return button;
}

/// \a specimen over its name, both in the middle.
QLayout *named(QWidget *specimen, const QString &name)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(4);
    layout->addStretch(1);
    layout->addWidget(specimen, 0, Qt::AlignCenter);
    QLabel *label = PageParts::label(name, "text");
    label->setAlignment(Qt::AlignCenter);
    layout->addWidget(label, 0, Qt::AlignCenter);
    return layout;
}

struct SizeLook
{
    Button::Size size;
    const char *name;
    const char *text;
};

QFrame *sizeCard(SignalLog *log)
{
    static const SizeLook looks[] = { { Button::Normal, "Normal", "Start" },
                                      { Button::NormalFat, "NormalFat", "Start" },
                                      { Button::WideFat, "WideFat", "Set" },
                                      { Button::LongSmall, "LongSmall", "Calibrate" },
                                      { Button::WideSmall, "WideSmall", "Apply" },
                                      { Button::Small, "Small", "Read" },
                                      { Button::BigArrow, "BigArrow", "\u2212" },
                                      { Button::Square40, "Square40", "+" },
                                      { Button::Square32, "Square32", "\u2212" },
                                      { Button::Square30, "Square30", "+" },
                                      { Button::SmallArrow, "SmallArrow", "\u2212" } };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(12);
    constexpr int columns = 6;
    int place = 0;
    for (const SizeLook &look : looks) {
        Button *button = liveButton(look.text, log);
        button->setSize(look.size);
        const QString name = QStringLiteral("%1\n%2 \u00D7 %3")
                                 .arg(QLatin1String(look.name))
                                 .arg(button->width())
                                 .arg(button->height());
        grid->addLayout(named(button, name), place / columns, place % columns);
        ++place;
    }
    return PageParts::card(QStringLiteral("Sizes"), QString(), grid);
}

enum class Look { Plain, Hovered, Pressed, Disabled, Checked };

Button *colorSpecimen(Button::Color color, Look look, SignalLog *log)
{
    Button *button =
        look == Look::Plain ? liveButton("Laser", log) : new Button(QStringLiteral("Laser"));
    button->setSize(Button::LongSmall);
    // A checked colour shows on a button of another one.
    button->setColor(look == Look::Checked ? Button::DarkGrey : color);
    switch (look) {
    case Look::Plain:
        break;
    case Look::Hovered:
        PageParts::freezeHovered(button);
        break;
    case Look::Pressed:
        button->setDown(true);
        PageParts::freeze(button);
        break;
    case Look::Disabled:
        button->setEnabled(false);
        break;
    case Look::Checked:
        button->setCheckable(true);
        button->setCheckedColor(color);
        button->setChecked(true);
        PageParts::freeze(button);
        break;
    }
    return button;
}

QFrame *colorCard(SignalLog *log)
{
    static const char *const captions[] = {
        "", "normal", "hover", "pressed", "disabled", "checked"
    };
    static const char *const names[] = { "Red", "Grey", "DarkGrey", "Green", "Orange" };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    int column = 0;
    for (const char *caption : captions)
        grid->addWidget(PageParts::label(QLatin1String(caption), "text"), 0, column++,
                        Qt::AlignCenter);
    for (int color = Button::Red; color <= Button::Orange; ++color) {
        grid->addWidget(PageParts::label(QLatin1String(names[color]), "text"), color + 1, 0);
        for (int look = 0; look < 5; ++look)
            grid->addWidget(colorSpecimen(Button::Color(color), Look(look), log), color + 1,
                            look + 1, Qt::AlignCenter);
    }
    grid->setColumnStretch(6, 1);
    return PageParts::card(QStringLiteral("Colours"),
                           QStringLiteral("Asked to be red when checked, a button turns red "
                                          "itself and keeps its checked colour."),
                           grid);
}

/// What the tool tip of an emission button says, as it lies over the button.
QLabel *toolTipSpecimen()
{
    auto *label = new QLabel(
        QStringLiteral("Toggle Emission<br><span style=\"font-style:italic; color:#00007f;\">"
                       "Shortcut: Ctrl+Shift+E</span>"));
    label->setStyleSheet(QStringLiteral(
        "background-color: #FFFFDC; border: 1px solid #444; color: #000; padding: 3px;"));
    label->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return label;
}

QFrame *emissionCard(SignalLog *log)
{
    Button *button = liveButton("Emission\nON / OFF", log);
    button->setColor(Button::DarkGrey);
    button->setToolTip(QStringLiteral("Toggle Emission"));
    button->setEmissionButtonStatus(true);

    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(button);
    row->addWidget(toolTipSpecimen(), 0, Qt::AlignVCenter);
    row->addStretch(1);
    return PageParts::card(QStringLiteral("Emission button, with its tool tip"),
                           QStringLiteral("Ctrl+Shift+E presses it, the space bar does not."), row);
}

Button *arrowButton(const char *style, Button::Size size, SignalLog *log)
{
    Button *button = liveButton("", log);
    button->setProperty("style", QString::fromLatin1(style));
    button->setSize(size);
    return button;
}

/// A beam between two mirrors, to fill a button with.
QPixmap beamPicture()
{
    QPixmap pixmap(160, 80);
    pixmap.fill(QColor(0x44, 0x44, 0x44));
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(QColor(0xAB, 0xC2, 0x17), 5));
    painter.drawPolyline(
        QPolygon({ QPoint(0, 58), QPoint(60, 58), QPoint(100, 22), QPoint(160, 22) }));
    painter.setPen(QPen(QColor(0xDD, 0xDD, 0xDD), 6, Qt::SolidLine, Qt::RoundCap));
    painter.drawLine(50, 70, 76, 56);
    painter.drawLine(86, 24, 112, 10);
    return pixmap;
}

QFrame *pictureCard(SignalLog *log)
{
    Button *picture = liveButton("", log);
    picture->setBackgroundImage(beamPicture());
    auto *shown = new ShowHideButton;
    auto *hidden = new ShowHideButton;
    hidden->setShowState(false);
    for (ShowHideButton *button : { shown, hidden }) {
        button->setFixedSize(button->sizeHint());
        QObject::connect(button, &QPushButton::clicked, button, [button] {
            button->setProperty("hides", !button->property("hides").toBool());
            button->setShowState(!button->property("hides").toBool());
        });
    }
    hidden->setProperty("hides", true);

    auto *row = new QHBoxLayout;
    row->setSpacing(12);
    row->addLayout(
        named(arrowButton("biguparrow", Button::BigArrow, log), QStringLiteral("big up")));
    row->addLayout(
        named(arrowButton("bigdnarrow", Button::BigArrow, log), QStringLiteral("big down")));
    row->addLayout(
        named(arrowButton("smalluparrow", Button::SmallArrow, log), QStringLiteral("small up")));
    row->addLayout(
        named(arrowButton("smalldnarrow", Button::SmallArrow, log), QStringLiteral("small down")));
    row->addLayout(named(shown, QStringLiteral("shown")));
    row->addLayout(named(hidden, QStringLiteral("hidden")));
    row->addLayout(named(picture, QStringLiteral("picture")));
    row->addStretch(1);
    return PageParts::card(QStringLiteral("Arrows, show and hide, picture"), QString(), row);
}

} // namespace

QWidget *buildButtonPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Press something"));
    grid->addWidget(sizeCard(log), 0, 0, 1, 2);
    grid->addWidget(colorCard(log), 1, 0, 2, 1);
    grid->addWidget(emissionCard(log), 1, 1);
    grid->addWidget(pictureCard(log), 2, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 3, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return page;
}
