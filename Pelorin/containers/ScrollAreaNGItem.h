#ifndef PELORIN_CONTAINERS_SCROLLAREANGITEM_H
#define PELORIN_CONTAINERS_SCROLLAREANGITEM_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/shell/QWidgetNG.h"

/// An item of a ScrollAreaNG. An application derives its own from it and paints them by what the area
/// says of them; this class paints nothing.
///
/// The area alone changes selected(), checked() and index(). An item asks for a change by emitting
/// listItemSetCurrent() or listItemSetChecked() with itself, when it is clicked for one.
class PELORIN_EXPORT ScrollAreaNGItem : public QWidgetNG
{
    Q_OBJECT

public:
    explicit ScrollAreaNGItem(QWidget *parent = nullptr);

    /// Whether it is the current item.
    bool selected() const { return m_selected; }
    /// Whether it is the checked item.
    bool checked() const { return m_checked; }
    /// Its place in the list; -1 before it stands in one.
    int index() const { return m_index; }

Q_SIGNALS:
    // From the area, one for each value that has changed; the item has been asked to repaint.
    void selectionChanged(bool selected);
    void checkedChanged(bool checked);
    void indexChanged(int index);
    /// The list was scrolled.
    void contentScrolled();

    // From the item, to the area.
    void listItemSetCurrent(ScrollAreaNGItem *item, bool forced = false);
    void listItemSetChecked(ScrollAreaNGItem *item);

private:
    friend class ScrollAreaNG;

    bool m_selected = false;
    bool m_checked = false;
    int m_index = -1;
};

#endif
