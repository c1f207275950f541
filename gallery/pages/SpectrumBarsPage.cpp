#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/Rainbow.h"

#include <Pelorin/WavelengthSpectrum>

#include <QFrame>
#include <QGridLayout>

namespace {

constexpr int gridColumns = 6; // three bars of the first generation over two of the second

struct Ranges
{
    int minPower;
    int maxPower;
    int minWavelength;
    int maxWavelength;
};

template<class Bar>
QFrame *barCard(const QString &caption, const QString &note, int margin, const Ranges &ranges)
{
    auto *bar = new Bar(margin);
    bar->setPowerRange(ranges.minPower, ranges.maxPower);
    bar->setWavelengthRange(ranges.minWavelength, ranges.maxWavelength);
    bar->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
    QFrame *card = PageParts::card(caption, note, bar);
    card->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred); // columns of equal width
    return card;
}

void addFirstGeneration(QGridLayout *grid)
{
    using Bar = WavelengthSpectrum;
    grid->addWidget(barCard<Bar>(QStringLiteral("First generation"),
                                 QStringLiteral("300 to 900 nm, margin 10"), 10,
                                 { 0, 100, 300, 900 }),
                    0, 0, 1, 2);
    grid->addWidget(barCard<Bar>(QStringLiteral("The visible band"),
                                 QStringLiteral("400 to 700 nm, margin 8"), 8, { 0, 60, 400, 700 }),
                    0, 2, 1, 2);
    grid->addWidget(barCard<Bar>(QStringLiteral("Far into the infrared"),
                                 QStringLiteral("300 to 1300 nm, margin 25"), 25,
                                 { 20, 45, 300, 1300 }),
                    0, 4, 1, 2);
}

void addSecondGeneration(QGridLayout *grid)
{
    grid->addWidget(barCard<WavelengthSpectrumNG>(
                        QStringLiteral("Second generation"),
                        QStringLiteral("300 to 950 nm, margin 20; the layout in flat colours"), 20,
                        { 0, 100, 300, 950 }),
                    1, 0, 1, 3);
    grid->addWidget(barCard<Rainbow>(QStringLiteral("A subclass with its rainbow"),
                                     QStringLiteral("360 to 760 nm, margin 10"), 10,
                                     { 0, 200, 360, 760 }),
                    1, 3, 1, 3);
}

} // namespace

QWidget *buildSpectrumBarsPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    addFirstGeneration(grid);
    addSecondGeneration(grid);
    for (int column = 0; column < gridColumns; ++column)
        grid->setColumnStretch(column, 1);
    return page;
}
