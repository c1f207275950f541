#ifndef PELORIN_SHELL_GUIWIDGET_H
#define PELORIN_SHELL_GUIWIDGET_H

#include "Pelorin/PelorinGlobal.h"

#include <QString>
#include <QWidget>

class GUIOverlay;

/// The base of a module's page. A disabled page lies under an overlay that says so; the application
/// can show a message of its own over an enabled one, whose controls stay usable.
class PELORIN_EXPORT GUIWidget : public QWidget
{
    Q_OBJECT

public:
    explicit GUIWidget(QWidget *parent = nullptr);

public Q_SLOTS:
    /// What the page shows while it is disabled; "Unavailable" at first.
    void setDisabledMessage(QString message);
    /// What the page shows in any case, before the disabled message; an empty text takes it away.
    void setOverlayMessage(QString message);

Q_SIGNALS:
    /// The page was shown or hidden, by the application or together with a parent or its window.
    void visibilityStateChanged(bool visible);

protected:
    void showEvent(QShowEvent *event) override;
    void hideEvent(QHideEvent *event) override;

private:
    GUIOverlay *m_overlay;
};

#endif
