#ifndef PELORIN_SHELL_CENTERTABWIDGET_H
#define PELORIN_SHELL_CENTERTABWIDGET_H

#include "Pelorin/PelorinGlobal.h"

#include <QMap>
#include <QString>
#include <QWidget>

class QTabWidget;

/// The tabbed centre of the main window. Each tab is a system widget with a name; a persistent one
/// cannot be removed. The first tab is the persistent page "Welcome" with the application's splash
/// picture.
///
/// A system widget is known by the index that its tab had when it was added, and keeps that index
/// for life. After a tab was removed, the index of a later one tells the tab that stands there now,
/// and that is the one which removeCenterWidget() takes away. Applications are written for this.
class PELORIN_EXPORT CenterTabWidget : public QWidget
{
    Q_OBJECT

public:
    explicit CenterTabWidget(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Adds \a widget in a tab called \a widgetName, and shows it if \a selectWidget is true. The
    /// tabs take the widget over. A null widget is ignored.
    void appendCenterWidget(QWidget *widget, QString widgetName, bool persistent,
                            bool selectWidget);

    /// Removes the tab at the index that \a widget had when it was added, and deletes the widget
    /// that stands there, later. Ignores a persistent, unknown or null widget.
    void removeCenterWidget(QWidget *widget);

    /// Removes every widget that is not persistent, by the rule of removeCenterWidget(), and shows
    /// the first tab.
    void removeAllCenterWidgets();

    /// Shows the tab of \a widget; an unknown widget is ignored.
    void selectCenterWidget(QWidget *widget);

    /// Shows the first widget that was added under \a widgetName, in upper or lower case.
    void selectCenterWidget(QString widgetName);

private:
    struct tCenterWidget
    {
        QString widgetName;
        bool persistent = false;
        QWidget *widget = nullptr; ///< may be dead; compared, and never followed
    };

    QWidget *makeWelcomePage();

    QTabWidget *m_tabWidget;
    QMap<int, tCenterWidget> m_centerWidgets;
};

#endif
