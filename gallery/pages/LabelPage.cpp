#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <Pelorin/Display>
#include <Pelorin/GridLineNG>
#include <Pelorin/IconLabel>
#include <Pelorin/VerticalLabel>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace {

QFrame *displayCard()
{
    // The instrument writes # for the degree sign and ~ for the micro sign.
    auto *large = new Display(2, 16);
    large->addReplacement(QLatin1Char('#'), QChar(0x00B0));
    large->addReplacement(QLatin1Char('~'), QChar(0x00B5));
    large->setFontSize(36);
    large->setText(QStringLiteral("T1 24.6#C  READYP 12.50 ~W   CW "));
    auto *small = new Display(4, 20);
    small->setFontSize(18);
    small->setText(QStringLiteral("405 nm      12.5 mW "
                                  "488 nm      30.0 mW "
                                  "561 nm       off    "
                                  "640 nm      80.0 mW and what does not fit"));
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(large, 0, Qt::AlignTop);
    row->addWidget(small, 0, Qt::AlignTop);
    row->addStretch(1);
    return PageParts::card(QStringLiteral("Displays"),
                           QStringLiteral("2 rows of 16 with # and ~ replaced, 4 rows of 20."),
                           row);
}

/// A row of a list; the width of an icon label is that of its parts, so the list fixes it.
IconLabel *listRow(const char *text, IconLabel::IconDisplay display)
{
    auto *label = new IconLabel(QLatin1String(text));
    label->setIcon(QStringLiteral(":/Pelorin/images/images/settings.png"));
    label->setIconDisplay(display);
    label->setFixedSize(190, 34);
    label->setStyleSheet(QStringLiteral("IconLabel { background-color: #F6F6F6; border-radius: "
                                        "4px; padding-left: 8px; padding-right: 8px; }"
                                        "QLabel { font-family: Calibri; font-size: 14px; "
                                        "color: #444; }"
                                        "IconLabel:hover { background-color: #ED6E00; }"));
    return label;
}

QFrame *iconCard()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(6);
    column->addWidget(listRow("Icon left", IconLabel::IconLeft));
    column->addWidget(listRow("Icon right", IconLabel::IconRight));
    column->addWidget(listRow("No icon", IconLabel::NoIcon));
    column->addStretch(1);
    return PageParts::card(QStringLiteral("Icon labels"), QString(), column);
}

VerticalLabel *upright(const char *text, int points, Qt::Alignment along)
{
    auto *label = new VerticalLabel(QLatin1String(text));
    label->setFontSize(points);
    label->setAlignment(along | Qt::AlignVCenter);
    label->setMaximumHeight(190); // it would take all that there is
    return label;
}

QFrame *verticalCard()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(16);
    row->addWidget(upright("Top", 18, Qt::AlignLeft));
    row->addWidget(upright("Middle", 18, Qt::AlignHCenter));
    row->addWidget(upright("Bottom", 18, Qt::AlignRight));
    VerticalLabel *small = upright("Red, 12 pt", 12, Qt::AlignLeft);
    small->setFontColor(QColor(0x87, 0x21, 0x2E));
    row->addWidget(small);
    VerticalLabel *large = upright("Large", 28, Qt::AlignLeft);
    large->setFontColor(QColor(0x44, 0x44, 0x44));
    row->addWidget(large);
    row->addStretch(1);
    return PageParts::card(QStringLiteral("Vertical labels"), QString(), row);
}

struct LineLook
{
    GridLineNG::tLineType type;
    const char *name;
};

QWidget *lineCell(const LineLook &look)
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("lineCell"));
    frame->setStyleSheet(QStringLiteral("#lineCell { border: 1px solid #DDD; }"));
    auto *inside = new QVBoxLayout(frame);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(new GridLineNG(look.type));
    frame->setFixedSize(66, 46);
    auto *name = PageParts::label(
        QStringLiteral("%1  %2").arg(int(look.type)).arg(QLatin1String(look.name)), "text");
    name->setWordWrap(true);
    name->setAlignment(Qt::AlignHCenter | Qt::AlignTop);
    name->setMinimumHeight(36);

    auto *cell = new QWidget;
    auto *layout = new QVBoxLayout(cell);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(frame, 0, Qt::AlignHCenter);
    layout->addWidget(name);
    return cell;
}

QFrame *lineCard()
{
    static const LineLook looks[] = {
        { GridLineNG::UpAndRight, "up, right" },
        { GridLineNG::RightAndDown, "right, down" },
        { GridLineNG::AcrossAndUp, "across, up" },
        { GridLineNG::AcrossAndDown, "across, down" },
        { GridLineNG::LeftAndUp, "left, up" },
        { GridLineNG::LeftAndDown, "left, down" },
        { GridLineNG::Across, "across" },
        { GridLineNG::Up, "up" },
        { GridLineNG::Down, "down" },
        { GridLineNG::AcrossAndUpAtLeftEdge, "up at left edge" },
        { GridLineNG::AcrossAndSlant, "slant" },
        { GridLineNG::AcrossAndUpAtRightEdge, "up at right edge" },
        { GridLineNG::AcrossAndDownAtRightEdge, "down at right edge" },
        { GridLineNG::LeftEdge, "left edge" },
        { GridLineNG::RightEdge, "right edge" },
        { GridLineNG::UpAndDown, "up, down" },
        { GridLineNG::UpDownAndLeft, "up, down, left" },
        { GridLineNG::UpDownAndRight, "up, down, right" },
        { GridLineNG::Cross, "cross" },
    };
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(8);
    grid->setVerticalSpacing(8);
    constexpr int columns = 10;
    int place = 0;
    for (const LineLook &look : looks) {
        grid->addWidget(lineCell(look), place / columns, place % columns);
        ++place;
    }
    for (int column = 0; column < columns; ++column)
        grid->setColumnStretch(column, 1);
    return PageParts::card(QStringLiteral("Grid lines, all 19 types"), QString(), grid);
}

/// Three lasers that share a fibre: lines in the cells between the labels.
QFrame *wiringCard()
{
    auto *grid = new QGridLayout;
    grid->setSpacing(0);
    static const GridLineNG::tLineType joints[] = { GridLineNG::LeftAndDown, GridLineNG::Cross,
                                                    GridLineNG::LeftAndUp };
    static const char *const lasers[] = { "405 nm", "488 nm", "561 nm" };
    for (int row = 0; row < 3; ++row) {
        grid->addWidget(PageParts::label(QLatin1String(lasers[row]), "label"), row, 0);
        grid->addWidget(new GridLineNG(GridLineNG::Across), row, 1);
        grid->addWidget(new GridLineNG(joints[row]), row, 2);
        grid->setRowMinimumHeight(row, 48);
    }
    grid->addWidget(new GridLineNG(GridLineNG::Across), 1, 3);
    grid->addWidget(PageParts::label(QStringLiteral("  Fibre"), "label"), 1, 4);
    for (const int column : { 1, 2, 3 })
        grid->setColumnMinimumWidth(column, 64);
    grid->setColumnMinimumWidth(0, 76);
    grid->setColumnStretch(5, 1);
    grid->setRowStretch(3, 1);
    return PageParts::card(QStringLiteral("Grid lines put together"), QString(), grid);
}

} // namespace

QWidget *buildLabelPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    grid->addWidget(displayCard(), 0, 0, 1, 3);
    grid->addWidget(iconCard(), 1, 0);
    grid->addWidget(verticalCard(), 1, 1);
    grid->addWidget(wiringCard(), 1, 2);
    grid->addWidget(lineCard(), 2, 0, 1, 3);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(2, 1);
    grid->setRowStretch(3, 1);
    return page;
}
