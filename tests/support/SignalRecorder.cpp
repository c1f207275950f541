#include "tests/support/SignalRecorder.h"

#include <QVariant>
#include <QWidget>

namespace {

QString argumentText(int type, const void *argument)
{
    switch (type) {
    case QMetaType::Double:
        return QString::number(*static_cast<const double *>(argument), 'g', 12);
    case QMetaType::UChar: // a number here, no letter
        return QString::number(*static_cast<const uchar *>(argument));
    case QMetaType::QString:
        return QLatin1Char('"') + *static_cast<const QString *>(argument) + QLatin1Char('"');
    default:
        return QVariant(type, argument).toString();
    }
}

/// The class down to which Qt's own signals go.
const QMetaObject *commonBase(const QObject *watched)
{
    return watched->isWidgetType() ? &QWidget::staticMetaObject : &QObject::staticMetaObject;
}

} // namespace

SignalRecorder::SignalRecorder(const QObject *watched, const QString &name, const QMetaObject *base)
{
    watch(watched, name, base);
}

void SignalRecorder::watch(const QObject *watched, const QString &name, const QMetaObject *base)
{
    const QMetaObject *meta = watched->metaObject();
    const int ownMethods = QObject::staticMetaObject.methodCount();
    for (int i = (base ? base : commonBase(watched))->methodCount(); i < meta->methodCount(); ++i) {
        const QMetaMethod method = meta->method(i);
        const bool isDefaulted = method.attributes() & QMetaMethod::Cloned;
        if (method.methodType() != QMetaMethod::Signal || isDefaulted)
            continue;
        QMetaObject::connect(watched, i, this, ownMethods + m_sources.size(), Qt::DirectConnection);
        m_sources.append({ method, name });
    }
}

QStringList SignalRecorder::taken()
{
    QStringList entries;
    entries.swap(m_entries);
    return entries;
}

int SignalRecorder::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod || id >= m_sources.size())
        return id;
    const Source &source = m_sources.at(id);
    QStringList texts;
    for (int i = 0; i < source.method.parameterCount(); ++i)
        texts << argumentText(source.method.parameterType(i), arguments[i + 1]);
    const QString prefix = source.name.isEmpty() ? QString() : source.name + QLatin1Char('.');
    m_entries << prefix + QString::fromLatin1(source.method.name()) + QLatin1Char('(')
                     + texts.join(QStringLiteral(", ")) + QLatin1Char(')');
    return -1;
}
