#ifndef PELORIN_TESTS_ITEMLIST_H
#define PELORIN_TESTS_ITEMLIST_H

#include "Pelorin/containers/ScrollAreaNG.h"

#include <QLayout>
#include <QList>
#include <QString>
#include <QtTest>

Q_DECLARE_METATYPE(ScrollAreaNG::eLayoutStyle)

/// What the tests of item lists have in common.
namespace ItemList {

using Items = QList<ScrollAreaNGItem *>;

constexpr auto row = ScrollAreaNG::LayoutHorizontal;
constexpr auto column = ScrollAreaNG::LayoutVertical;
constexpr auto flow = ScrollAreaNG::LayoutFlow;

inline const char *styleName(ScrollAreaNG::eLayoutStyle style)
{
    static constexpr const char *names[] = { "row", "column", "flow" };
    return names[style];
}

inline void addStyles()
{
    QTest::addColumn<ScrollAreaNG::eLayoutStyle>("style");

    for (const auto style : { row, column, flow })
        QTest::newRow(styleName(style)) << style;
}

inline ScrollAreaNGItem *makeItem(ScrollAreaNGItem *item = new ScrollAreaNGItem)
{
    item->setFixedSize(80, 40);
    return item;
}

/// A shown list with room for about two items each way.
class List : public ScrollAreaNG
{
public:
    explicit List(eLayoutStyle style = column, int count = 0)
        : ScrollAreaNG(style, ScrollBarGrey, 4, 6, Qt::ScrollBarAsNeeded)
    {
        resize(200, 110);
        for (int i = 0; i < count; ++i)
            listItemAppend(makeItem());
        show();
    }

    QLayout *itemLayout() const
    {
        QLayout *const outer = widget()->layout();
        QLayout *const inner = outer->count() > 0 ? outer->itemAt(0)->layout() : nullptr;
        return inner ? inner : outer;
    }

    Items inLayout() const
    {
        Items result;
        for (int i = 0; i < itemLayout()->count(); ++i)
            result << qobject_cast<ScrollAreaNGItem *>(itemLayout()->itemAt(i)->widget());
        return result;
    }

    Items inList() const
    {
        Items result;
        for (int i = 0; i < listItemCount(); ++i)
            result << listItemAt(i);
        return result;
    }

    bool isInView(ScrollAreaNGItem *item) const
    {
        const QRect place(item->mapTo(viewport(), QPoint()), item->size());
        return viewport()->rect().contains(place);
    }
};

} // namespace ItemList

#endif
