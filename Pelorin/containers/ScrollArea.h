#ifndef PELORIN_CONTAINERS_SCROLLAREA_H
#define PELORIN_CONTAINERS_SCROLLAREA_H

#include "Pelorin/PelorinGlobal.h"

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

    /// Lays out the page, not the area, and takes \a layout over. It hides the operation of QWidget.
    void setLayout(QLayout *layout);

    /// Sets a property of the page, as of the style sheet. Returns what QObject::setProperty()
    /// returns.
    bool setWidgetProperty(const char *name, const QVariant &value);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    bool m_noHorizontalScroll;
    QWidget *m_innerWidget;
};

#endif
