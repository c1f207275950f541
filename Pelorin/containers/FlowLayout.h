#ifndef PELORIN_CONTAINERS_FLOWLAYOUT_H
#define PELORIN_CONTAINERS_FLOWLAYOUT_H

#include "Pelorin/PelorinGlobal.h"

#include <QLayout>
#include <QList>
#include <QStyle>

/// Places its items from left to right, each at its size hint, and goes on in a new row when the
/// next one would pass the right edge. Its height follows from its width, so that a scroll area
/// around it grows with the rows.
///
/// An item fits while its last pixel column does; the spacing behind it does not count. An item
/// wider than the layout stands alone in its row and passes the right edge.
///
/// All lengths are in pixels. The layout owns its items.
class PELORIN_EXPORT FlowLayout : public QLayout
{
    Q_OBJECT

public:
    /// Lays out \a parent, with \a margin on all four sides. A negative spacing is taken from the
    /// style of the parent or, where that leaves it to the controls, from the style of each item's
    /// widget; in a layout without parent it is that of each item's widget.
    FlowLayout(QWidget *parent, int margin, int hSpacing, int vSpacing);
    /// Without a parent, to be put into another layout or handed to QWidget::setLayout().
    FlowLayout(int margin, int hSpacing, int vSpacing);
    /// Deletes the items that it still holds; their widgets belong to their parent.
    ~FlowLayout() override;

    /// Appends \a item. A null item is ignored, as by insertItem().
    void addItem(QLayoutItem *item) override;

    /// Puts \a item before the one at \a index; below 1 it becomes the first, at or beyond count()
    /// the last. Takes over the item, but not its widget: that has to be a child of parentWidget()
    /// already, or to become one.
    void insertItem(int index, QLayoutItem *item);

    /// Exchanges the places of two widgets. Nothing happens when one of them is null or not in the
    /// layout.
    void swap(QWidget *first, QWidget *second);

    int count() const override { return m_itemList.size(); }
    /// Null outside of 0 to count() - 1.
    QLayoutItem *itemAt(int index) const override;
    /// Hands the item over to the caller; null outside of 0 to count() - 1.
    QLayoutItem *takeAt(int index) override;

    /// The spacing between the items of a row; -1 where it is left to the items.
    int horizontalSpacing() const;
    /// The spacing between two rows; -1 where it is left to the items.
    int verticalSpacing() const;

    /// None.
    Qt::Orientations expandingDirections() const override;
    bool hasHeightForWidth() const override { return true; }
    /// The height of all rows at a width of \a width, both with the margins.
    int heightForWidth(int width) const override;
    /// Room for the widest and for the highest of the items' minimum sizes. An empty layout answers
    /// one pixel less than its margins.
    QSize minimumSize() const override;
    /// The same as minimumSize(): more than one item in a row comes only from the width at hand.
    QSize sizeHint() const override;
    void setGeometry(const QRect &rect) override;

private:
    int doLayout(const QRect &rect, bool testOnly) const;
    int smartSpacing(QStyle::PixelMetric metric) const;

    QList<QLayoutItem *> m_itemList;
    int m_hSpace;
    int m_vSpace;
};

#endif
