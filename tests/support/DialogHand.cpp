#include "tests/support/DialogHand.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialogButtonBox>
#include <QFileDialog>
#include <QLineEdit>
#include <QPushButton>

namespace {

constexpr int pollMs = 5;
constexpr int longestPolls = 600; ///< some three seconds

QString describe(QMessageBox &box)
{
    QStringList parts{ box.windowTitle(), box.text() };
    for (const QAbstractButton *button : box.buttons())
        parts << QStringLiteral("[%1]").arg(button->text().remove(QLatin1Char('&')));
    return parts.join(QLatin1Char('|'));
}

void choose(QFileDialog &dialog, const QString &fileName, const QString &filter)
{
    const auto *buttons = dialog.findChild<QDialogButtonBox *>();
    if (fileName.isEmpty()) {
        buttons->button(QDialogButtonBox::Cancel)->click();
        return;
    }
    if (!filter.isEmpty())
        dialog.selectNameFilter(filter);
    dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"))->setText(fileName);
    buttons->button(QDialogButtonBox::Save)->click();
}

} // namespace

DialogHand::DialogHand()
{
    connect(&m_timer, &QTimer::timeout, this, &DialogHand::poll);
    m_timer.start(pollMs);
}

void DialogHand::save(const QString &fileName, const QString &filter,
                      const std::function<void(QFileDialog &)> &look)
{
    m_actions << [this, fileName, filter, look](QWidget &widget) {
        auto *const dialog = qobject_cast<QFileDialog *>(&widget);
        if (!dialog)
            return false;
        m_shown << dialog->windowTitle();
        if (look)
            look(*dialog);
        choose(*dialog, fileName, filter);
        return true;
    };
}

void DialogHand::answer(QMessageBox::StandardButton answer)
{
    m_actions << [this, answer](QWidget &widget) {
        auto *const box = qobject_cast<QMessageBox *>(&widget);
        if (!box || !box->button(answer))
            return false;
        m_shown << describe(*box);
        box->button(answer)->click();
        return true;
    };
}

void DialogHand::serve(const std::function<void(QDialog &)> &act)
{
    m_actions << [this, act](QWidget &widget) {
        auto *const dialog = qobject_cast<QDialog *>(&widget);
        if (!dialog)
            return false;
        m_shown << dialog->windowTitle();
        act(*dialog);
        return true;
    };
}

QStringList DialogHand::problems() const
{
    QStringList result = m_problems;
    if (!m_actions.isEmpty())
        result << QStringLiteral("%1 dialogs have not come").arg(m_actions.size());
    return result;
}

void DialogHand::poll()
{
    QWidget *const dialog = QApplication::activeModalWidget();
    if (!dialog) {
        m_served = nullptr;
        return;
    }
    if (dialog == m_served) {
        if (++m_polls > longestPolls)
            close(*dialog, QStringLiteral("stays open"));
        return;
    }
    m_served = dialog;
    m_polls = 0;
    // Not from within the timer, which would stand still while the dialog opens another.
    const QPointer<QWidget> guarded(dialog);
    QMetaObject::invokeMethod(
        this, [this, guarded] { takeUp(guarded); }, Qt::QueuedConnection);
}

void DialogHand::takeUp(const QPointer<QWidget> &dialog)
{
    if (!dialog)
        return;
    if (m_actions.isEmpty())
        close(*dialog, QStringLiteral("was not announced"));
    else if (!m_actions.takeFirst()(*dialog))
        close(*dialog, QStringLiteral("is not the one announced"));
}

void DialogHand::close(QWidget &dialog, const QString &problem)
{
    auto *const box = qobject_cast<QMessageBox *>(&dialog);
    m_problems << QStringLiteral("%1 %2").arg(box ? describe(*box) : dialog.windowTitle(), problem);
    m_polls = 0;
    QMetaObject::invokeMethod(&dialog, "reject");
}
