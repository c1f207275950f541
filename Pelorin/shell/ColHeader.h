#ifndef PELORIN_SHELL_COLHEADER_H
#define PELORIN_SHELL_COLHEADER_H

#include "Pelorin/PelorinGlobal.h"

#include <QPoint>
#include <QString>
#include <QWidget>

class QLabel;
class ShowHideButton;

/// The header row of a control column: a caption, and a button at the right edge that shows and
/// hides the column. What is shown or hidden is up to who listens.
class PELORIN_EXPORT ColHeader : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString text READ text WRITE setText)

public:
    /// The caption reads "Modules", and the column counts as shown.
    explicit ColHeader(QWidget *parent = nullptr);

    void setText(QString text);
    QString text() const;

    /// The style sheet of the caption alone.
    void setTextStyleSheet(QString styleSheet);
    QString textStyleSheet() const;

public Q_SLOTS:
    /// Sets the button and emits sigShowStateChanged(); does neither if the state is the same.
    void setShowState(bool shown);

Q_SIGNALS:
    /// By the button or by setShowState().
    void sigShowStateChanged(bool shown);
    /// A context menu was asked for at \a pos, in coordinates of \a widget, which is this header.
    void sigCustomContextMenuRequested(QWidget *widget, QPoint pos);

private Q_SLOTS:
    void showHideClicked();
    void onCustomContextMenuRequested(QPoint pos);

private:
    QLabel *m_textLabel;
    bool m_showState = true;
    ShowHideButton *m_showHideButton;
};

#endif
