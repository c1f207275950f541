#ifndef PELORIN_TESTS_FLOWREFERENCE_H
#define PELORIN_TESTS_FLOWREFERENCE_H

#include <QMargins>
#include <QRect>
#include <QVector>

/// What a flow of items looks like, worked out row by row: first who stands in which row, then
/// where.
struct FlowReference
{
    QVector<QRect> places; ///< of the items, in their order
    int height = 0;        ///< of all rows and the margins

    FlowReference(const QVector<QSize> &items, const QRect &area, const QMargins &margins,
                  int hSpacing, int vSpacing)
    {
        const int inner = area.width() - margins.left() - margins.right();
        int y = area.y() + margins.top();
        for (int first = 0; first < items.size();) {
            const int end = endOfRow(items, first, inner, hSpacing);
            int x = area.x() + margins.left();
            int rowHeight = 0;
            for (int i = first; i < end; ++i) {
                places << QRect(x, y, items.at(i).width(), items.at(i).height());
                x += items.at(i).width() + hSpacing;
                rowHeight = qMax(rowHeight, items.at(i).height());
            }
            y += rowHeight;
            if (end < items.size())
                y += vSpacing;
            first = end;
        }
        height = y - area.y() + margins.bottom();
    }

private:
    /// As many items as fit into \a inner pixels, the gaps between them counted, but at least all
    /// those before and at the first one that has a height.
    static int endOfRow(const QVector<QSize> &items, int first, int inner, int hSpacing)
    {
        int used = 0;
        bool hasHeight = false;
        for (int i = first; i < items.size(); ++i) {
            used += items.at(i).width();
            if (used > inner && hasHeight)
                return i;
            hasHeight = hasHeight || items.at(i).height() > 0;
            used += hSpacing;
        }
        return items.size();
    }
};

#endif
