#ifndef PELORIN_CONTAINERS_STACKWIDGET_H
#define PELORIN_CONTAINERS_STACKWIDGET_H

#include "Pelorin/PelorinGlobal.h"

#include <QList>
#include <QPointer>
#include <QWidget>

/// A stack of pages of which one is shown. It is as high as that page, where a QStackedWidget is as
/// high as the tallest one: so it can stand over a stretch in a scroll area.
///
/// The pages become children of the stack. One that is deleted from outside leaves an entry behind
/// that counts, and whose page is null; removeWidgetAt() takes the entry out. A listener may change
/// or delete the stack at any signal.
class PELORIN_EXPORT stackWidget : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int currentIndex READ currentIndex WRITE setCurrentIndex NOTIFY currentChanged)
    Q_PROPERTY(int count READ count)

public:
    explicit stackWidget(QWidget *parent = nullptr);

    int count() const { return m_pages.size(); }

    /// The index that was selected last, -1 before. Insertion and removal do not correct it.
    int currentIndex() const { return m_currentPageIndex; }
    /// The page at the current index; null if there is none.
    QWidget *currentWidget() const;
    /// Null out of range, and for a page that was deleted.
    QWidget *widgetAt(int index) const;
    /// The first position of \a widget, or -1; null is never found.
    int indexOf(QWidget *widget) const;

    /// Adds a page at the end and returns its position. It is neither shown nor hidden: select a page
    /// when all are there. Null is ignored, with -1 as the answer. A page that is there already gets a
    /// second entry, and its first position is returned.
    int addWidget(QWidget *widget);
    /// Adds a page before the one at \a index, which is limited to the entries that there are, and
    /// returns its position.
    int insertWidget(int index, QWidget *widget);

    /// Takes a page out and emits widgetRemoved(). It is not deleted, not hidden, and stays a child
    /// of the stack. Ignored for a widget that is no page.
    void removeWidget(QWidget *widget);
    /// The same for the page at \a index. Ignored out of range, and until a page has been selected
    /// for the first time.
    void removeWidgetAt(int index);

Q_SIGNALS:
    /// Another index was selected; its page is shown by now.
    void currentChanged(int index);
    /// The page at \a index was taken out.
    void widgetRemoved(int index);

public Q_SLOTS:
    /// Hides all pages but the one at \a index, and emits currentChanged(). Ignored out of range, and
    /// for the current index, also if another page stands there since. Where a page selects another
    /// one as it is shown or hidden, that later selection holds and is the only one that is told.
    void setCurrentIndex(int index);
    /// The same for a page; ignored for a widget that is none.
    void setCurrentWidget(QWidget *widget);

private:
    void takeOut(int index);

    int m_currentPageIndex = -1;
    QList<QPointer<QWidget>> m_pages;
};

#endif
