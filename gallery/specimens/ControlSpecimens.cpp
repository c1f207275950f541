#include "gallery/PageParts.h"
#include "gallery/specimens/Specimens_p.h"

#include <Pelorin/Button>
#include <Pelorin/ComboBox>
#include <Pelorin/ComboBoxNG>
#include <Pelorin/Display>
#include <Pelorin/DropDown>
#include <Pelorin/DropDownNG>
#include <Pelorin/GridLineNG>
#include <Pelorin/IconLabel>
#include <Pelorin/Indicator>
#include <Pelorin/IndicatorButton>
#include <Pelorin/LineEdit>
#include <Pelorin/LineEditNumber>
#include <Pelorin/LineEditNumberNG>
#include <Pelorin/LineEditPowerNG>
#include <Pelorin/Selector>
#include <Pelorin/ShowHideButton>
#include <Pelorin/VerticalLabel>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPixmap>
#include <QVBoxLayout>
#include <QVariant>

using Specimens::sized;

namespace {

constexpr int fieldWidth = 150;
constexpr int fieldHeight = 34;
constexpr int listWidth = 176;

/// The \a widgets one after the other in \a box, each at that \a side of it.
QWidget *lined(QBoxLayout *box, const QVector<QWidget *> &widgets, int spacing, Qt::Alignment side)
{
    auto *result = new QWidget;
    result->setLayout(box);
    box->setContentsMargins(0, 0, 0, 0);
    box->setSpacing(spacing);
    for (QWidget *each : widgets)
        box->addWidget(each, 0, side);
    return result;
}

QWidget *inRow(const QVector<QWidget *> &widgets, int spacing)
{
    return lined(new QHBoxLayout, widgets, spacing, Qt::AlignVCenter);
}

// Fields

template<class Edit>
QWidget *field(Edit *edit, const char *unit)
{
    edit->setProperty("background", QStringLiteral("dark"));
    return inRow(
        { sized(edit, fieldWidth, fieldHeight), PageParts::label(QLatin1String(unit), "label") },
        10);
}

QWidget *makeLineEditNumberNG()
{
    auto *edit = new LineEditNumberNG(nullptr);
    edit->setIndicatorIcon(QPixmap(QStringLiteral(":/Pelorin/images/images/warningOrange.png")));
    edit->popUpSliderEnable(true, false);
    edit->setRange(0.0, 100.0);
    edit->setValue(36.6);
    return field(edit, "%");
}

QWidget *makeLineEditPowerNG()
{
    auto *edit = new LineEditPowerNG(nullptr);
    edit->setBasePowerType(Converter::ePwrMW1);
    edit->setValuePrecision(1);
    edit->popUpSliderEnable(true, true);
    edit->setRange(0.0, 1500.0);
    edit->setValue(60.0);
    return field(edit, "mW");
}

template<class Edit>
QWidget *firstField(Edit *edit)
{
    edit->setProperty("type", QStringLiteral("label"));
    edit->setDarkBackground();
    return sized(edit, fieldWidth, fieldHeight);
}

QWidget *makeLineEdit()
{
    auto *edit = new LineEdit;
    edit->setText(QStringLiteral("Bench 3"));
    return firstField(edit);
}

QWidget *makeLineEditNumber()
{
    auto *edit = new LineEditNumber;
    edit->setNumber(1.2345, 3, true);
    return firstField(edit);
}

// Lists

/// The box with its list open below it.
template<class Box>
QWidget *openBox()
{
    const QStringList modes{ QStringLiteral("Continuous"), QStringLiteral("Burst"),
                             QStringLiteral("Gated"), QStringLiteral("External trigger") };
    auto *box = new Box;
    box->addItems(modes);
    auto *behind = new Box;
    behind->addItems(modes);
    return lined(new QVBoxLayout, { box, PageParts::openList(behind, 2, listWidth) }, 2,
                 Qt::AlignLeft);
}

QWidget *makeDropDownNG()
{
    return openBox<DropDownNG>();
}

QWidget *makeComboBoxNG()
{
    return openBox<ComboBoxNG>();
}

template<class List>
List *withSignals(List *list)
{
    static const struct
    {
        const char *text;
        const char *picture;
    } choices[] = { { "Sine", "sine" },
                    { "Rising ramp", "sawPosRamp" },
                    { "Triangle", "triangleSignal" } };
    for (const auto &each : choices)
        list->addItem(
            QLatin1String(each.text),
            QStringLiteral(":/Pelorin/images/images/%1.png").arg(QLatin1String(each.picture)));
    return list;
}

QWidget *makeComboBox()
{
    auto *box = new ComboBox;
    box->setProperty("type", QStringLiteral("label"));
    withSignals(box)->showIcons(IconLabel::IconLeft);
    return box;
}

QWidget *makeDropDown()
{
    auto *list = new DropDown;
    list->setWindowFlags(Qt::Widget);
    withSignals(list)->showIcons(IconLabel::IconLeft);
    PageParts::freezeHovered(list->findChildren<IconLabel *>().at(1));
    return list;
}

QWidget *makeSelector()
{
    auto *panel = new QFrame;
    panel->setProperty("widget-color", QStringLiteral("red"));
    auto *row = new QHBoxLayout(panel);
    row->setContentsMargins(24, 12, 24, 12);
    auto *selector = new Selector(QStringLiteral("Settings"));
    selector->setProperty("type", QStringLiteral("settings"));
    selector->addItem(QStringLiteral("Control"));
    selector->addItem(QStringLiteral("Network"));
    row->addWidget(selector);
    return panel;
}

// Buttons and lamps

Button *button(const char *text, Button::Color color)
{
    auto *result = new Button(QLatin1String(text));
    result->setSize(Button::LongSmall);
    result->setColor(color);
    return result;
}

QWidget *makeButton()
{
    return inRow({ button("Start", Button::Red), button("Stop", Button::DarkGrey),
                   button("Apply", Button::Green) },
                 8);
}

QWidget *makeShowHideButton()
{
    auto *shown = new ShowHideButton;
    auto *hidden = new ShowHideButton;
    hidden->setShowState(false);
    return inRow({ sized(shown, shown->sizeHint().width(), shown->sizeHint().height()),
                   sized(hidden, hidden->sizeHint().width(), hidden->sizeHint().height()) },
                 12);
}

QWidget *lamp(Indicator::Color color, Indicator::Form form)
{
    auto *result = new Indicator;
    result->setSize(32);
    result->setColor(color);
    result->setForm(form);
    return result;
}

QWidget *makeIndicator()
{
    return inRow({ lamp(Indicator::Green, Indicator::Round),
                   lamp(Indicator::Orange, Indicator::Round),
                   lamp(Indicator::Red, Indicator::TriangleUp),
                   lamp(Indicator::Grey, Indicator::TriangleDown) },
                 12);
}

QWidget *makeIndicatorButton()
{
    auto *result = new IndicatorButton(QStringLiteral("Emission\nON / OFF"), IndicatorButton::Left);
    result->setButtonColor(Button::DarkGrey);
    result->setActive(true);
    return result;
}

// Displays, labels, lines

QWidget *makeDisplay()
{
    auto *display = new Display(2, 16);
    display->addReplacement(QLatin1Char('#'), QChar(0x00B0)); // as the instrument writes it
    display->setFontSize(20);
    display->setText(QStringLiteral("T1 24.6#C  READYP 12.50 mW   CW "));
    return display;
}

QWidget *makeIconLabel()
{
    auto *label = new IconLabel(QStringLiteral("Settings"));
    label->setIcon(QStringLiteral(":/Pelorin/images/images/settings.png"));
    label->setIconDisplay(IconLabel::IconLeft);
    label->setStyleSheet(
        QStringLiteral("QLabel { font-family: Calibri; font-size: 16px; color: #444; }"));
    return sized(label, 104, 34);
}

QWidget *makeVerticalLabel()
{
    auto *label = new VerticalLabel(QStringLiteral("Wavelength"));
    label->setFontSize(18);
    label->setAlignment(Qt::AlignHCenter | Qt::AlignVCenter);
    label->setFixedHeight(110);
    return label;
}

/// Two lasers that share a fibre.
QWidget *makeGridLineNG()
{
    auto *result = new QWidget;
    auto *grid = new QGridLayout(result);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(0);
    const auto line = [](GridLineNG::tLineType type) {
        return sized(new GridLineNG(type), 40, 36);
    };
    grid->addWidget(PageParts::label(QStringLiteral("405 nm"), "label"), 0, 0);
    grid->addWidget(line(GridLineNG::LeftAndDown), 0, 1);
    grid->addWidget(PageParts::label(QStringLiteral("488 nm"), "label"), 1, 0);
    grid->addWidget(line(GridLineNG::AcrossAndUp), 1, 1);
    grid->addWidget(PageParts::label(QStringLiteral(" Fibre"), "label"), 1, 2);
    return result;
}

} // namespace

QVector<Specimen> Specimens::controls()
{
    return {
        { "LineEditNumberNG", makeLineEditNumberNG },
        { "LineEditPowerNG", makeLineEditPowerNG },
        { "LineEdit", makeLineEdit },
        { "LineEditNumber", makeLineEditNumber },
        { "DropDownNG", makeDropDownNG },
        { "ComboBoxNG", makeComboBoxNG },
        { "ComboBox", makeComboBox },
        { "DropDown", makeDropDown },
        { "Selector", makeSelector },
        { "Button", makeButton },
        { "ShowHideButton", makeShowHideButton },
        { "Indicator", makeIndicator },
        { "IndicatorButton", makeIndicatorButton },
        { "Display", makeDisplay },
        { "IconLabel", makeIconLabel },
        { "VerticalLabel", makeVerticalLabel },
        { "GridLineNG", makeGridLineNG },
    };
}
