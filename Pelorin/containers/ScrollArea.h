#ifndef PELORIN_CONTAINERS_SCROLLAREA_H
#define PELORIN_CONTAINERS_SCROLLAREA_H

#include "Pelorin/PelorinGlobal.h"

#include <QPointer>
#include <QScrollArea>

class QVariant;

/// A page that scrolls, of the first generation: a white widget in a flat scroll area. Lists of items
/// take ScrollAreaNG.
class PELORIN_EXPORT ScrollArea : public QScrollArea
{
    Q_OBJECT

public:
    /// With \a noHorizontalScroll the area is always as wide as its page needs to be, and has no
    /// horizontal bar.
    explicit ScrollArea(bool noHorizontalScroll, QWidget *parent = nullptr);

    /// Lays out the page, not the area, and takes \a layout over; null is ignored. It hides the
    /// operation of QWidget. After another widget was set on the area there is no page any more, and
    /// the layout stays with the caller.
    void setLayout(QLayout *layout);

    /// Sets a property of the page, as of the style sheet. Returns what QObject::setProperty()
    /// returns: false for one that the page does not declare, though it is set. Names of the style
    /// sheet are read when the page is polished.
    bool setWidgetProperty(const char *name, const QVariant &value);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_noHorizontalScroll;
    QPointer<QWidget> m_innerWidget; ///< goes if the application sets another widget
};

#endif
