#ifndef PELORIN_SHELL_GUIOVERLAY_H
#define PELORIN_SHELL_GUIOVERLAY_H

#include "Pelorin/PelorinGlobal.h"

#include <QString>
#include <QWidget>

/// A pane over its parent that darkens it and shows a message in the middle: the overlay message
/// while there is one, else the disabled message while the parent is disabled. Otherwise it cannot
/// be seen.
///
/// It stays the topmost child, follows each resize of the parent and never takes the mouse: the
/// controls below an overlay message can be used on. Moved to another parent, it watches over that
/// one. Without a parent it shows nothing.
class PELORIN_EXPORT GUIOverlay : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString disabledMessage READ disabledMessage WRITE setDisabledMessage)
    Q_PROPERTY(QString overlayMessage READ overlayMessage WRITE setOverlayMessage)

public:
    /// The disabled message is "Unavailable", the overlay message empty. The overlay takes its size
    /// with the next resize of the parent.
    explicit GUIOverlay(QWidget *parent = nullptr);

    QString disabledMessage() const { return m_disabledMsg; }
    QString overlayMessage() const { return m_overlayMsg; }

    bool eventFilter(QObject *watched, QEvent *event) override;

public Q_SLOTS:
    /// What a disabled parent shows.
    void setDisabledMessage(QString message);
    /// Shown whether the parent is enabled or not; an empty text takes it away.
    void setOverlayMessage(QString message);

protected:
    bool event(QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void watchParent();
    void drawMessage(QPainter &painter, const QString &message) const;

    QString m_disabledMsg;
    QString m_overlayMsg;
};

#endif
