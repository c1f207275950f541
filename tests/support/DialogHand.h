#ifndef PELORIN_TESTS_DIALOGHAND_H
#define PELORIN_TESTS_DIALOGHAND_H

#include <QList>
#include <QMessageBox>
#include <QPointer>
#include <QStringList>
#include <QTimer>

#include <functional>

class QDialog;
class QFileDialog;

/// A hand that serves modal dialogs while the code under test waits for them. It is told beforehand
/// which ones come, in order, and what to do with each. A dialog that was not announced, and one
/// that stays open, is closed and told among the problems; so is one that has never come.
///
/// File dialogs have to be Qt's own: Qt::AA_DontUseNativeDialogs.
class DialogHand : public QObject
{
public:
    DialogHand();

    /// A file dialog is to come, in which \a fileName is typed and \a filter chosen; an empty name
    /// cancels it. \a look sees the dialog before.
    void save(const QString &fileName, const QString &filter = QString(),
              const std::function<void(QFileDialog &)> &look = nullptr);

    /// A message box is to come, which is answered with \a answer.
    void answer(QMessageBox::StandardButton answer);

    /// Any dialog is to come, which \a act answers.
    void serve(const std::function<void(QDialog &)> &act);

    /// What the dialogs said, in order: title, text and buttons.
    QStringList shown() const { return m_shown; }

    /// Empty if all went as announced.
    QStringList problems() const;

private:
    using Action = std::function<bool(QWidget &)>;

    void poll();
    void takeUp(const QPointer<QWidget> &dialog);
    void close(QWidget &dialog, const QString &problem);

    QTimer m_timer;
    QList<Action> m_actions;
    QPointer<QWidget> m_served;
    int m_polls = 0; ///< since the dialog was served
    QStringList m_shown;
    QStringList m_problems;
};

#endif
