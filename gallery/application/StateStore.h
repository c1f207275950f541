#ifndef PELORIN_GALLERY_STATESTORE_H
#define PELORIN_GALLERY_STATESTORE_H

#include <QByteArray>
#include <QSettings>
#include <QString>

/// Keeps states from one start to the next: of the window, its docks and dividers, and a few texts.
///
/// QMainWindow::restoreState() and its like trust the bytes that they are given, and one wrong byte
/// can bring the program down. So each state carries the version that wrote it and a checksum; what
/// does not match is as good as not there.
class StateStore
{
public:
    /// In the settings \a file, which need not be there, nor be one of ours.
    explicit StateStore(const QString &file);

    /// Empty if there is none, if another version wrote it, and if it was damaged.
    QByteArray state(const QString &key) const;
    void setState(const QString &key, const QByteArray &state);

    /// Text as a state.
    QString text(const QString &key) const { return QString::fromUtf8(state(key)); }
    void setText(const QString &key, const QString &text) { setState(key, text.toUtf8()); }

    void forget(const QString &key);

    /// Writes to the file now, not at the end.
    void sync() { m_settings.sync(); }

private:
    QSettings m_settings;
};

#endif
