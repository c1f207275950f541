#ifndef PELORIN_SHELL_TAVRINMAINWINDOW_H
#define PELORIN_SHELL_TAVRINMAINWINDOW_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/shell/DockWidget.h"

#include <QList>
#include <QMainWindow>
#include <QPointer>
#include <QRect>

class CenterTabWidget;

/// The window of the application. Its centre is a CenterTabWidget, whose tabs are the system
/// widgets; around it stand docks, which can be put back where and as large as they were first
/// shown.
///
/// Popup sliders of the line edits follow this window once the application has stored it as a
/// `TavrinMainWindow *` in the dynamic property `APPLICATIONWINDOWPTR` of the application object,
/// before the first line edit is built:
///
/// \code
/// TavrinMainWindow window(nullptr);
/// qApp->setProperty("APPLICATIONWINDOWPTR", QVariant::fromValue(&window));
/// \endcode
///
/// The window owns what it is given: a system widget through the tabs, the widget of a dock through
/// the dock. What is removed is deleted by the event loop.
class PELORIN_EXPORT TavrinMainWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// The window has Qt's default geometry, and a persistent tab "Welcome".
    explicit TavrinMainWindow(QWidget *parent = nullptr);

    /// The centre, owned by the window.
    CenterTabWidget *centerTabWidget() const { return m_centerTabWidget; }

public Q_SLOTS:
    /// Adds a tab; see CenterTabWidget::appendCenterWidget().
    void createSystemWidget(QWidget *widget, QString widgetName, bool persistent,
                            bool selectWidget);
    /// Removes a tab; see CenterTabWidget::removeCenterWidget().
    void removeSystemWidget(QWidget *widget);
    /// Removes all tabs that are not persistent.
    void removeAllSystemWidgets();

    /// Does nothing; the widget stays with its caller. A derived window may have a use for it.
    void createAccessoryWidget(QWidget *deviceWidget, uchar deviceId, ushort deviceType);
    /// Removes the docks that a derived window has added to its accessory docks, the last one
    /// first.
    void removeAllAccessoryDocks();

    /// Puts \a widget into a new dock at \a area. The dock takes the widget over, and its \a title
    /// is also the name under which QMainWindow::saveState() keeps it. A reset makes it \a visible
    /// again, or hides it. Ignored if \a area is not one of the four sides.
    void createGenericDockWidget(QWidget *widget, QString title, Qt::DockWidgetArea area,
                                 bool visible);
    /// Removes all docks made by createGenericDockWidget(), with their widgets, the last one first.
    void removeAllGenericDocks();
    /// Brings all docks made by createGenericDockWidget() back to their areas, to their first
    /// visibility, and to the sizes in which they were first laid out.
    void resetAllGenericDocks();

Q_SIGNALS:
    /// The window has moved to \a newGlobalPos. \a oldGlobalPos is the old position mapped as if it
    /// were one inside of the window: an offset from the new position, not the place where the
    /// window was.
    void sigMainWindowMoved(QPoint oldGlobalPos, QPoint newGlobalPos);
    /// The window has a new size; its geometry without the frame, in global coordinates.
    void sigMainWindowResized(QRect globalRect);

protected:
    /// In order of creation. A dock that was deleted elsewhere reads null and is passed over.
    using Docks = QList<QPointer<DockWidget>>;

    void moveEvent(QMoveEvent *event) override;
    void resizeEvent(QResizeEvent *event) override;

    /// For derived windows; nothing here fills it.
    Docks &accessoryDocks() { return m_accessoryDocks; }
    /// For derived windows; not used here.
    Docks &deviceDocks() { return m_deviceDocks; }

private:
    void removeDocks(Docks &docks);

    QRect m_mainWindowRect;
    CenterTabWidget *m_centerTabWidget;
    Docks m_genericDocks;
    Docks m_accessoryDocks;
    Docks m_deviceDocks;
};

Q_DECLARE_METATYPE(TavrinMainWindow *)

#endif
