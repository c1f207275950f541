#ifndef PELORIN_CONTROLS_LINEEDIT_H
#define PELORIN_CONTROLS_LINEEDIT_H

#include "Pelorin/PelorinGlobal.h"

#include <QLineEdit>
#include <QString>
#include <QTimer>

/// An entry field of the first generation. It remembers the text that was saved last, and can fall back on it
/// when an edit is left alone for five seconds. New dialogs take LineEditNumberNG.
class PELORIN_EXPORT LineEdit : public QLineEdit
{
    Q_OBJECT

public:
    /// An empty field, at least 50 pixels wide, without the timeout.
    explicit LineEdit(QWidget *parent = nullptr);

    /// With the timeout an edit is a state: it begins with textEditing(), is saved by Return or when the field
    /// loses the focus, and is given up by resetText() five seconds after the last key. Without it, losing the
    /// focus saves nothing.
    void enableTimeout(bool on);

    /// Gives the field the dark ground of the sheet. Has to be called before it is shown.
    void setDarkBackground();

Q_SIGNALS:
    /// The text was saved, by Return, by the loss of the focus, or by saveText().
    void textSaved(QString text);
    /// The field got the focus, for whatever reason.
    void gotFocus();
    /// An edit was given up, and the saved text is back.
    void textReset();
    /// The first key of an edit has changed the text. Comes once an edit, and only with the timeout.
    void textEditing();

public Q_SLOTS:
    /// Shows \a text, and falls back on it from now on. Emits nothing but QLineEdit::textChanged().
    void setText(QString text);
    /// Takes the text for saved, ends an edit, and emits textSaved().
    void saveText();
    /// Goes back to the saved text, ends an edit, emits textReset(), and writes a line to the log.
    void resetText();
    /// Begins an edit if none is under way and the text is not the saved one.
    void checkForNewText();

protected:
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;

private:
    QString m_savedText;
    QTimer m_timeoutTimer;
    bool m_timeoutEnabled = false;
    bool m_editing = false;
};

#endif
