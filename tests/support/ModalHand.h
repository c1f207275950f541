#ifndef PELORIN_TESTS_MODALHAND_H
#define PELORIN_TESTS_MODALHAND_H

#include <QApplication>
#include <QDialog>
#include <QPointer>
#include <QTimer>

#include <functional>

/// A hand that serves the modal dialogs that come while the code under test waits for an answer:
/// each is given to \a act once. A dialog that nobody closes is closed after a while, so that a test
/// fails and never hangs; count() tells whether any has come.
class ModalHand : public QObject
{
public:
    explicit ModalHand(std::function<void(QDialog &)> act =
                           [](QDialog &dialog) { dialog.reject(); })
        : m_act(std::move(act))
    {
        connect(&m_timer, &QTimer::timeout, this, &ModalHand::poll);
        m_timer.start(pollMs);
    }

    int count() const { return m_count; }
    /// How many of them had to be closed.
    int leftOpen() const { return m_leftOpen; }

private:
    static constexpr int pollMs = 2;
    static constexpr int longestPolls = 1000; ///< some seconds

    void poll()
    {
        auto *const dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || (dialog == m_served && ++m_polls < longestPolls))
            return;
        if (dialog == m_served) {
            ++m_leftOpen;
            dialog->reject();
            return;
        }
        m_served = dialog;
        m_polls = 0;
        ++m_count;
        m_act(*dialog);
    }

    std::function<void(QDialog &)> m_act;
    QTimer m_timer;
    QPointer<QDialog> m_served;
    int m_polls = 0;
    int m_count = 0;
    int m_leftOpen = 0;
};

#endif
