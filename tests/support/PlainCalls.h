#ifndef PELORIN_TESTS_PLAINCALLS_H
#define PELORIN_TESTS_PLAINCALLS_H

#include <QMetaMethod>
#include <QMetaProperty>
#include <QVariant>
#include <QVector>

class QObject;

/// What a test can call and write without knowing the widget: the public slots and the properties
/// of a class above QWidget that take nothing but numbers, texts and the like.
namespace PlainCalls {

/// The public slots of \a meta with four arguments at the most.
QVector<QMetaMethod> slotsOf(const QMetaObject &meta);

/// The writable properties of \a meta, enumerations among them.
QVector<QMetaProperty> propertiesOf(const QMetaObject &meta);

/// Calls \a slot of \a object at once; \a values are of the types that it has.
void call(QObject &object, const QMetaMethod &slot, const QVariantList &values);

} // namespace PlainCalls

#endif
