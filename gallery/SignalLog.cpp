#include "gallery/SignalLog.h"

#include <QFontDatabase>

namespace {

constexpr int keptLines = 500;
constexpr int smallest = 72;

} // namespace

SignalLog::SignalLog(QWidget *parent)
    : QPlainTextEdit(parent)
{
    setObjectName(QStringLiteral("signalLog"));
    setReadOnly(true);
    setFocusPolicy(Qt::NoFocus);
    setFrameShape(QFrame::NoFrame);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMinimumHeight(smallest);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored); // what a page leaves over
    setMaximumBlockCount(keptLines);
    setPlaceholderText(QStringLiteral("Move something"));
}

void SignalLog::note(const QString &sender, const QString &signal, const QString &value)
{
    appendPlainText(QStringLiteral("%1  %2(%3)").arg(sender, signal, value));
}
