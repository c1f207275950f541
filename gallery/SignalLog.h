#ifndef PELORIN_GALLERY_SIGNALLOG_H
#define PELORIN_GALLERY_SIGNALLOG_H

#include <QPlainTextEdit>

/// The last signals of a page, as they come; the newest stands at the bottom.
class SignalLog : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit SignalLog(QWidget *parent = nullptr);

    /// Writes "sender  signal(value)".
    void note(const QString &sender, const QString &signal, const QString &value = QString());
};

#endif
