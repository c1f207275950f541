#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QRadioButton>
#include <QVBoxLayout>
#include <QVariant>
#include <QVector>

namespace {

struct Color
{
    const char *role;
    const char *value;
};

constexpr int paletteColumns = 7;

constexpr Color palette[] = {
    { "Red", "#87212E" },
    { "Red, disabled", "#895A60" },
    { "Orange, hover", "#ED6E00" },
    { "Pressed", "#F58B2E" },
    { "Green", "#ABC217" },
    { "Grey", "#C6C6C6" },
    { "Title", "#C5C6C6" },
    { "Disabled, panel", "#DDDDDD" },
    { "Dark grey", "#555555" },
    { "Light grey", "#F6F6F6" },
    { "White", "#FFFFFF" },
    { "Text", "#444444" },
    { "Second text", "#666666" },
    { "Read-only text", "#999999" },
    { "At a limit", "#E55830" },
    { "Within limits", "#95D400" },
    { "Tab, selected", "#9B9B9B" },
    { "Tab", "#C4C4C3" },
    { "Tab pane", "#C2C7CB" },
    { "Grey handle", "#808080" },
    { "Its hover", "#404040" },
    { "Handle, disabled", "#C0C0C0" },
    { "List, disabled", "#D6D6D1" },
    { "List, open", "#1464A0" },
    { "List rows", "#19232D" },
    { "Chart text", "#000000" },
    { "Frame", "lightgrey" },
    { "Separator", "darkgray" },
};

/// A chip of one colour, with a thin edge that keeps white on white visible.
class Chip : public QWidget
{
public:
    explicit Chip(const QColor &color)
        : m_color(color)
    {
        setFixedSize(36, 36);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.setPen(QColor(0, 0, 0, 40));
        painter.setBrush(m_color);
        painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), 4, 4);
    }

private:
    QColor m_color;
};

QLayout *swatch(const Color &color)
{
    auto *layout = new QGridLayout;
    layout->setHorizontalSpacing(8);
    layout->setVerticalSpacing(0);
    layout->addWidget(new Chip(QColor(QLatin1String(color.value))), 0, 0, 2, 1);
    layout->addWidget(PageParts::label(QLatin1String(color.role), "text-bold"), 0, 1);
    layout->addWidget(PageParts::label(QLatin1String(color.value), "text"), 1, 1);
    layout->setColumnStretch(1, 1);
    return layout;
}

QFrame *paletteCard()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(6);
    int index = 0;
    for (const Color &color : palette) {
        grid->addLayout(swatch(color), index / paletteColumns, index % paletteColumns);
        ++index;
    }
    for (int column = 0; column < paletteColumns; ++column)
        grid->setColumnStretch(column, 1);
    return PageParts::card(QStringLiteral("Palette"), QString(), grid);
}

/// Labels of one face in a row, and what the row is called.
struct LabelRow
{
    QVector<QPair<const char *, const char *>> samples; ///< type and text
    const char *caption;
};

const QVector<LabelRow> &rowsOnWhite()
{
    static const QVector<LabelRow> rows{
        { { { "title", "Ostrel" } }, "title\nArial Black 34" },
        { { { "wavelengthchart-title", "Spectrum" } }, "wavelengthchart-title\nArial Black 14" },
        { { { "heading", "Emission" } }, "heading\nCalibri 30" },
        { { { "heading-light", "Emission" } }, "heading-light\nCalibri 30" },
        { { { "label-header", "Channel 1" } }, "label-header\nCalibri 20 bold" },
        { { { "label", "488 nm" } }, "label\nCalibri 20" },
        { { { "label-limit-low", "0.0" },
            { "label-limit-ok", "42.0" },
            { "label-limit-high", "99.9" } },
          "label-limit-low, -ok, -high\nCalibri 20" },
        { { { "label-highlighted", " Channel 2 " } }, "label-highlighted\nCalibri 20" },
        { { { "text", "Emission is off." } }, "text\nCalibri 14" },
        { { { "text-bold", "Emission is off." } }, "text-bold\nCalibri 14 bold" },
        { { { "wavelengthchart-totalpower-title", "Power" },
            { "wavelengthchart-totalpower-value", "42.0 mW" } },
          "wavelengthchart-totalpower-\ntitle, -value, Calibri Black 14" },
    };
    return rows;
}

const QVector<LabelRow> &rowsOnRed()
{
    static const QVector<LabelRow> rows{
        { { { "header", "Ostrel" } }, "header\nArial Black 40 bold" },
        { { { "tiny-header", "MarquelX" } }, "tiny-header\nCalibri 20 bold" },
        { { { "panel-label", "Standby" } }, "panel-label\nCalibri 20" },
        { { { "panel-text", "Interlock closed" } }, "panel-text\nCalibri 14" },
    };
    return rows;
}

QGridLayout *labelGrid(const QVector<LabelRow> &rows, const char *captionType)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(12);
    grid->setVerticalSpacing(8);
    for (int row = 0; row < rows.size(); ++row) {
        auto *samples = new QHBoxLayout;
        samples->setSpacing(10);
        for (const auto &sample : rows.at(row).samples)
            samples->addWidget(PageParts::label(QLatin1String(sample.second), sample.first));
        samples->addStretch(1);
        grid->addLayout(samples, row, 0);
        grid->addWidget(PageParts::label(QLatin1String(rows.at(row).caption), captionType), row, 1);
    }
    grid->setColumnStretch(0, 1);
    return grid;
}

QFrame *labelCard()
{
    QGridLayout *grid = labelGrid(rowsOnWhite(), "text");
    grid->setRowStretch(grid->rowCount(), 1);
    return PageParts::card(QStringLiteral("Labels"), QString(), grid);
}

QFrame *redLabelCard()
{
    auto *panel = new QFrame;
    panel->setProperty("widget-color", QStringLiteral("red"));
    QGridLayout *grid = labelGrid(rowsOnRed(), "panel-text");
    grid->setContentsMargins(12, 8, 12, 12);
    panel->setLayout(grid);
    return PageParts::card(QStringLiteral("Labels on red"), QString(), panel);
}

QLineEdit *field(const char *background, const char *type, bool readOnly)
{
    auto *edit = new QLineEdit(QStringLiteral("42.0 mW"));
    edit->setProperty("flat", true);
    edit->setProperty("background", QString::fromLatin1(background));
    edit->setProperty("type", QString::fromLatin1(type));
    edit->setReadOnly(readOnly);
    edit->setMinimumHeight(28);
    return edit;
}

/// A column of fields on the ground from which their own background sets them off.
QFrame *fieldColumn(const char *ground, const char *background)
{
    auto *panel = new QFrame;
    panel->setProperty("widget-color", QString::fromLatin1(ground));
    auto *layout = new QVBoxLayout(panel);
    layout->setContentsMargins(10, 6, 10, 10);
    layout->setSpacing(8);
    layout->addWidget(PageParts::label(
        QStringLiteral("%1 on %2").arg(QLatin1String(background), QLatin1String(ground)), "text"));
    layout->addWidget(field(background, "label", false));
    layout->addWidget(field(background, "label", true));
    layout->addWidget(field(background, "text", false));
    layout->addWidget(field(background, "text", true));
    layout->addStretch(1);
    return panel;
}

QFrame *fieldCard()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addWidget(fieldColumn("white", "dark"));
    row->addWidget(fieldColumn("light-grey", "white"));
    return PageParts::card(QStringLiteral("Flat line edits"),
                           QStringLiteral("label and text, each editable and read-only"), row);
}

QAbstractButton *box(const char *kind, const QString &text)
{
    if (qstrcmp(kind, "radio") == 0)
        return new QRadioButton(text);
    auto *result = new QCheckBox(text);
    if (qstrcmp(kind, "flat") == 0)
        result->setProperty("flat", true);
    else
        result->setProperty("type", QString::fromLatin1(kind));
    return result;
}

QAbstractButton *specimen(const char *kind, bool checked, bool hovered)
{
    QAbstractButton *result = box(kind, QString());
    result->setAutoExclusive(false);
    result->setChecked(checked);
    if (hovered)
        PageParts::freezeHovered(result);
    else
        PageParts::freeze(result);
    return result;
}

struct Kind
{
    const char *kind;
    const char *text;
};

constexpr Kind kinds[] = {
    { "radio", "radio button" },
    { "flat", "flat" },
    { "prerequisite", "prerequisite" },
    { "text", "text" },
    { "wavelengthchart-visibility-checkbox", "chart visibility" },
    { "wavelengthchart-zoomreset-button", "chart zoom reset" },
    { "wavelengthchart-savechart-button", "chart save" },
};

QFrame *boxCard()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    const char *const captions[] = { "to try", "off", "hover", "on", "hover" };
    int column = 0;
    for (const char *caption : captions)
        grid->addWidget(PageParts::label(QLatin1String(caption), "text"), 0, column++);
    int row = 1;
    for (const Kind &kind : kinds) {
        grid->setRowMinimumHeight(row, 36);
        grid->addWidget(box(kind.kind, QLatin1String(kind.text)), row, 0);
        for (int state = 0; state < 4; ++state)
            grid->addWidget(specimen(kind.kind, state >= 2, state % 2 == 1), row, state + 1);
        ++row;
    }
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(row, 1);
    return PageParts::card(QStringLiteral("Check boxes and radio buttons"), QString(), grid);
}

QFrame *groundCard()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(8);
    int index = 0;
    for (const char *color : { "red", "white", "white-logo", "light-grey", "yellow", "green" }) {
        auto *ground = new QFrame;
        ground->setProperty("widget-color", QString::fromLatin1(color));
        const bool dark = index == 0 || index == 5;
        auto *layout = new QVBoxLayout(ground);
        layout->setContentsMargins(8, 6, 8, 6);
        layout->addWidget(PageParts::label(QLatin1String(color), dark ? "panel-text" : "text"));
        grid->addWidget(ground, index / 3, index % 3);
        ++index;
    }
    return PageParts::card(QStringLiteral("widget-color"), QString(), grid);
}

} // namespace

QWidget *buildThemePage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    grid->addWidget(paletteCard(), 0, 0, 1, 3);
    grid->addWidget(labelCard(), 1, 0, 2, 1);
    grid->addWidget(redLabelCard(), 1, 1);
    grid->addWidget(fieldCard(), 2, 1);
    auto *right = new QVBoxLayout;
    right->setSpacing(PageParts::gap);
    right->addWidget(boxCard(), 1);
    right->addWidget(groundCard());
    grid->addLayout(right, 1, 2, 2, 1);
    grid->setRowStretch(2, 1);
    for (int column = 0; column < 3; ++column)
        grid->setColumnStretch(column, 1);
    return page;
}
