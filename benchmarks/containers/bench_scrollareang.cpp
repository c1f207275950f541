#include "Pelorin/containers/ScrollAreaNG.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Repaint.h"

#include <QApplication>
#include <QListWidget>

#include <functional>
#include <memory>
#include <string>

namespace {

constexpr int many = 1000;
constexpr int inserted = 200;
const QSize itemSize(120, 40);
const QSize areaSize(800, 600);

using Style = ScrollAreaNG::eLayoutStyle;

ScrollAreaNGItem *makeItem()
{
    auto *item = new ScrollAreaNGItem;
    item->setFixedSize(itemSize);
    return item;
}

std::unique_ptr<ScrollAreaNG> makeArea(Style style)
{
    auto area = std::make_unique<ScrollAreaNG>(style, ScrollAreaNG::ScrollBarGrey, 4, 4,
                                               Qt::ScrollBarAsNeeded);
    area->resize(areaSize);
    showAndSettle(*area);
    return area;
}

/// Qt's list, arranged alike.
std::unique_ptr<QListWidget> makePeer(Style style)
{
    auto list = std::make_unique<QListWidget>();
    const bool isColumn = style == ScrollAreaNG::LayoutVertical;
    list->setFlow(isColumn ? QListView::TopToBottom : QListView::LeftToRight);
    list->setWrapping(style == ScrollAreaNG::LayoutFlow);
    list->setResizeMode(QListView::Adjust);
    list->setSpacing(2);
    list->setVerticalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->setHorizontalScrollMode(QAbstractItemView::ScrollPerPixel);
    list->resize(areaSize);
    showAndSettle(*list);
    return list;
}

void insertIn(QListWidget &list, int row)
{
    auto *item = new QListWidgetItem;
    item->setSizeHint(itemSize);
    list.insertItem(row, item);
    auto *widget = new QWidget;
    widget->setFixedSize(itemSize);
    list.setItemWidget(item, widget);
}

/// Measures \a change on a fresh shown container, to the frame that shows it.
template<typename Container>
void measure(benchmark::State &state, const std::function<std::unique_ptr<Container>()> &make,
             const std::function<void(Container &)> &change)
{
    for (auto step : state) {
        Q_UNUSED(step)
        state.PauseTiming();
        std::unique_ptr<Container> container = make();
        state.ResumeTiming();
        change(*container);
        QApplication::processEvents();
        paintNow(*container);
        state.PauseTiming();
        container.reset();
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

void measureArea(benchmark::State &state, Style style,
                 const std::function<void(ScrollAreaNG &)> &change)
{
    measure<ScrollAreaNG>(
        state, [style] { return makeArea(style); }, change);
}

void measurePeer(benchmark::State &state, Style style, int count, int row)
{
    measure<QListWidget>(
        state, [style] { return makePeer(style); },
        [count, row](QListWidget &list) {
            for (int i = 0; i < count; ++i)
                insertIn(list, row < 0 ? list.count() : row);
        });
}

void appendEach(ScrollAreaNG &area)
{
    for (int i = 0; i < many; ++i)
        area.listItemAppend(makeItem());
}

void appendList(ScrollAreaNG &area)
{
    QList<ScrollAreaNGItem *> items;
    for (int i = 0; i < many; ++i)
        items << makeItem();
    area.listItemAppend(items);
}

void insertFirst(ScrollAreaNG &area)
{
    for (int i = 0; i < inserted; ++i)
        area.listItemInsert(0, makeItem());
}

Comparison adding(const std::string &name, Style style, void (*change)(ScrollAreaNG &), int count,
                  int row)
{
    Comparison result;
    result.name = name;
    result.ours = "ScrollAreaNG";
    result.body = [style, change](benchmark::State &state) { measureArea(state, style, change); };
    result.peers = { { "QListWidget, item widgets", [style, count, row](benchmark::State &state) {
                          measurePeer(state, style, count, row);
                      } } };
    result.unit = benchmark::kMillisecond;
    result.iterations = 1;
    return result;
}

/// Widths at which the rows hold another number of items.
template<typename Container>
void resizeBetween(benchmark::State &state, Container &container)
{
    int width = areaSize.width();
    for (auto step : state) {
        Q_UNUSED(step)
        width = width == areaSize.width() ? areaSize.width() - 150 : areaSize.width();
        container.resize(width, areaSize.height());
        QApplication::processEvents();
        paintNow(container);
    }
}

void resizeArea(benchmark::State &state)
{
    const std::unique_ptr<ScrollAreaNG> area = makeArea(ScrollAreaNG::LayoutFlow);
    appendList(*area);
    QApplication::processEvents();
    resizeBetween(state, *area);
}

void resizePeer(benchmark::State &state)
{
    const std::unique_ptr<QListWidget> list = makePeer(ScrollAreaNG::LayoutFlow);
    for (int i = 0; i < many; ++i)
        insertIn(*list, i);
    QApplication::processEvents();
    resizeBetween(state, *list);
}

} // namespace

int main(int argc, char **argv)
{
    std::vector<Comparison> comparisons;
    const std::pair<const char *, Style> styles[] = { { "row", ScrollAreaNG::LayoutHorizontal },
                                                      { "column", ScrollAreaNG::LayoutVertical },
                                                      { "flow", ScrollAreaNG::LayoutFlow } };
    for (const auto &style : styles) {
        const std::string in = std::string(", ") + style.first;
        comparisons.push_back(
            adding("Append 1,000 one by one" + in, style.second, appendEach, many, -1));
        comparisons.push_back(
            adding("Append 1,000 as a list" + in, style.second, appendList, many, -1));
        comparisons.push_back(
            adding("Insert 200 at the front" + in, style.second, insertFirst, inserted, 0));
    }
    Comparison resize;
    resize.name = "Resize, flow of 1,000";
    resize.ours = "ScrollAreaNG";
    resize.body = resizeArea;
    resize.peers = { { "QListWidget, item widgets", resizePeer } };
    resize.unit = benchmark::kMillisecond;
    comparisons.push_back(resize);
    return runComparisons(argc, argv, comparisons);
}
