#ifndef PELORIN_SHELL_MAINCONTROLPANEL_H
#define PELORIN_SHELL_MAINCONTROLPANEL_H

#include "Pelorin/PelorinGlobal.h"

#include <QByteArray>
#include <QList>
#include <QPointer>
#include <QWidget>

class QFrame;
class QGridLayout;
class QSplitter;

/// A control column of two panes, a main control above a child control. A pane shows one of the
/// controls that it was given at a time, and is hidden while it shows none.
///
/// The panel owns the controls. A control that is deleted elsewhere is passed over.
class PELORIN_EXPORT MainControlPanel : public QWidget
{
    Q_OBJECT

public:
    explicit MainControlPanel(QWidget *parent = nullptr);

public Q_SLOTS:
    /// Shows \a widget in the lower pane in place of what is there. With \a showState false the
    /// pane takes a new widget over, hidden, and nothing else changes. A null widget hides the pane
    /// and all that is in it, whatever \a showState says.
    void showChildControl(QWidget *widget, bool showState);

    /// The same in the upper pane.
    void showMainControl(QWidget *widget, bool showState);

    /// Divides the panes as \a state, which once came with splitterStateChanged(), tells. Emits
    /// nothing. Bytes that are no such state are ignored.
    void setSplitterState(QByteArray state);

Q_SIGNALS:
    /// The operator has moved the divider; \a state is for the application to keep.
    void splitterStateChanged(QByteArray state);

private Q_SLOTS:
    void onSplitterMoved(int pos, int index);

private:
    using Controls = QList<QPointer<QWidget>>;

    static QFrame *makePane(QGridLayout *&layout);
    static void showControl(QWidget *widget, bool showState, Controls &controls,
                            QGridLayout &layout, QFrame &pane);

    QGridLayout *m_childLayout = nullptr;
    QGridLayout *m_mainLayout = nullptr;
    QSplitter *m_splitter;
    QFrame *m_childFrame;
    QFrame *m_mainFrame;
    Controls m_childControls;
    Controls m_mainControls;
};

#endif
