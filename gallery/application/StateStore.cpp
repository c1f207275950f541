#include "gallery/application/StateStore.h"

#include <QCryptographicHash>

namespace {

const QString group = QStringLiteral("states/");

/// Qt writes its states in a form of its own version.
QByteArray version()
{
    return QByteArrayLiteral("1/") + qVersion();
}

QByteArray checksum(const QString &key, const QByteArray &state)
{
    QCryptographicHash hash(QCryptographicHash::Sha256);
    hash.addData(version() + '\n' + key.toUtf8() + '\n');
    hash.addData(state);
    return hash.result().toHex();
}

} // namespace

StateStore::StateStore(const QString &file)
    : m_settings(file, QSettings::IniFormat)
{}

QByteArray StateStore::state(const QString &key) const
{
    const auto part = [this, &key](const char *name) {
        return m_settings.value(group + key + QLatin1String(name)).toString().toLatin1();
    };
    const QByteArray state = QByteArray::fromBase64(part("/data"));
    const bool ours = part("/version") == version() && part("/checksum") == checksum(key, state);
    return ours ? state : QByteArray();
}

void StateStore::setState(const QString &key, const QByteArray &state)
{
    const auto setPart = [this, &key](const char *name, const QByteArray &value) {
        m_settings.setValue(group + key + QLatin1String(name), QString::fromLatin1(value));
    };
    setPart("/version", version());
    setPart("/checksum", checksum(key, state));
    setPart("/data", state.toBase64());
}

void StateStore::forget(const QString &key)
{
    m_settings.remove(group + key);
}
