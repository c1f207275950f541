#ifndef PELORIN_SHELL_MAINVIEW_H
#define PELORIN_SHELL_MAINVIEW_H

#include "Pelorin/PelorinGlobal.h"

#include <QString>
#include <QWidget>

class QHBoxLayout;
class QLabel;
class QPushButton;
class QTabBar;
class ScrollArea;
class Selector;
class stackWidget;

/// What the application shows for one device: a wide white column of control pages under a header,
/// and a narrow red one with the menu of settings, a warning button and a remote control panel.
///
/// Page 0 is the ordinary page. The pages above it are settings: the user chooses one in the menu,
/// and the close button above it leads back. Call setControlPage(0) when all pages are in; until
/// then the title of the settings stands there, and no page is selected.
class PELORIN_EXPORT MainView : public QWidget
{
    Q_OBJECT

public:
    explicit MainView(QWidget *parent = nullptr);

    /// Adds \a page at the end, and to the menu under \a name; that of page 0 is never seen there.
    /// The view takes the page over, shows and hides nothing, and returns the index, by which all
    /// others below know the page. Add a page once.
    ///
    /// Null, and a widget in which this view stands, is ignored and gives -1.
    ///
    /// A page that is deleted elsewhere leaves its name and its index behind, and an empty page.
    int addControlPage(const QString &name, QWidget *page);

    /// Puts \a widget at the foot of the red column. The view takes it over and deletes the panel
    /// that stood there, at once: before this returns, its address is no longer good.
    ///
    /// Null, the panel that stands there already, and a widget in which this view stands, are
    /// ignored. A panel that was deleted or has got another parent meanwhile is let go. Who hears of
    /// a panel's end and sets the next one then, connects to destroyed() when the panel was set.
    void setRemoteControlWidget(QWidget *widget);

    /// The bar above the ordinary page, for the application to add tabs to and to listen to. It is
    /// hidden, also when tabs come, until setControlPage() looks at it.
    QTabBar *controlPageTabBar() const { return m_tabBar; }

    /// Shows or hides the menu of settings.
    void showSettings(bool show);

    /// Lets the settings page at \a index be reached or not: by the menu, and by setControlPage(). A
    /// page that is shown stays so. Nothing if out of range.
    void setSettingsPageAccess(int index, bool visible);
    /// Whether the menu offers the page; false for page 0 and out of range. True for a page that
    /// setSettingsPageAccess() was not called for.
    bool getSettingsPageAccess(int index) const;

    /// A line for a log: "Stack height: 480, Front height: 462", in pixels, of all that the pages
    /// take up and of the current page; 0 for the latter while there is none.
    QString currentWidgetInfo() const;

Q_SIGNALS:
    /// For the application's connections. The view itself never sends it.
    void closeClicked();
    /// The warning button was clicked.
    void warningClicked();
    /// The user chose a settings page, or closed it, and by now the page at \a index is shown.
    /// Closing tells of page 0 also if that was current before; setControlPage() tells nothing.
    void controlPageChanged(int index);

public Q_SLOTS:
    /// The text left of the header. Its label is there also when empty.
    void setTinyHeader(QString text);
    /// The text at the right of the header row. Its label is hidden while empty, as at first.
    void setHeader(QString text);

    /// Shows the page at \a index, and above it the title of the settings or, for page 0, the tab
    /// bar if it has tabs. Emits nothing. Ignored if \a index is not 0 and the menu does not offer
    /// the page, as for all that is out of range.
    void setControlPage(int index);
    /// Goes back to page 0, and emits controlPageChanged(0) in any case.
    void closeSettings();

    /// Shows or hides the warning button; it is hidden at first.
    void showWarning(bool show);
    /// What the warning button says under the mouse.
    void setWarningTooltip(QString text);

private:
    QHBoxLayout *makeHeaderRow();
    QWidget *makeSettingsHeader();
    ScrollArea *makePageArea();
    QWidget *makeWhiteColumn();
    ScrollArea *makeRedColumn();

    QWidget *m_remoteControlFrame;
    QTabBar *m_tabBar;
    stackWidget *m_stack;
    QWidget *m_settingsHeader;
    QLabel *m_headerLabel;
    QLabel *m_tinyHeaderLabel;
    Selector *m_settingsSelector;
    QPushButton *m_warningButton;
};

#endif
