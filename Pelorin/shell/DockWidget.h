#ifndef PELORIN_SHELL_DOCKWIDGET_H
#define PELORIN_SHELL_DOCKWIDGET_H

#include "Pelorin/PelorinGlobal.h"

#include <QDockWidget>
#include <QSize>

/// A dock that remembers where it belongs, whether it was visible at first, and the size in which
/// it was first laid out. TavrinMainWindow::resetAllGenericDocks() brings it back to all three.
class PELORIN_EXPORT DockWidget : public QDockWidget
{
    Q_OBJECT

public:
    /// A dock that belongs to \a area and is to be \a visible after a reset. Neither is applied
    /// here; the main window does that.
    DockWidget(const QString &title, Qt::DockWidgetArea area, bool visible,
               QWidget *parent = nullptr, Qt::WindowFlags flags = Qt::WindowFlags());
    DockWidget(Qt::DockWidgetArea area, bool visible, QWidget *parent = nullptr,
               Qt::WindowFlags flags = Qt::WindowFlags());

    /// The area that the dock goes back to.
    Qt::DockWidgetArea defaultArea() const { return m_defaultArea; }
    /// Whether it is visible after a reset.
    bool defaultVisible() const { return m_defaultVisible; }
    /// The size of the first resize event, which stays for life; (-1, -1) before it came.
    QSize defSize() const { return m_defSize; }
    /// The area that the dock sits in.
    Qt::DockWidgetArea currentArea() const { return m_currentArea; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private Q_SLOTS:
    void onDockLocationChanged(Qt::DockWidgetArea area);

private:
    bool m_defSizeKnown = false;
    QSize m_defSize = QSize(-1, -1);
    Qt::DockWidgetArea m_currentArea;
    Qt::DockWidgetArea m_defaultArea;
    bool m_defaultVisible;
};

#endif
