#ifndef PELORIN_TESTS_METAMETHODS_H
#define PELORIN_TESTS_METAMETHODS_H

#include <QMetaMethod>
#include <QStringList>

/// The signatures that \a meta declares itself, in their order: signals and slots with all their
/// arguments, not the shorter forms that default arguments make.
inline QStringList ownMethods(const QMetaObject &meta, QMetaMethod::MethodType type)
{
    QStringList result;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        if (method.methodType() == type && !(method.attributes() & QMetaMethod::Cloned))
            result << QString::fromLatin1(method.methodSignature());
    }
    return result;
}

/// All that \a meta declares itself, in order: signals and slots, with the shorter forms that default
/// arguments make.
inline QStringList ownMethods(const QMetaObject &meta)
{
    QStringList result;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        result << QString::fromLatin1(meta.method(i).methodSignature());
    return result;
}

#endif
