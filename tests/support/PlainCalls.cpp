#include "tests/support/PlainCalls.h"

#include <QMetaType>
#include <QWidget>

namespace {

constexpr int mostArguments = 4;

/// Whether a value of \a type can be made up.
bool isPlainType(int type)
{
    switch (type) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::UShort:
    case QMetaType::UChar:
    case QMetaType::Double:
    case QMetaType::QString:
    case QMetaType::QStringList:
    case QMetaType::QSize:
    case QMetaType::QPoint:
        return true;
    default:
        return type == qMetaTypeId<QList<double>>();
    }
}

/// What Qt itself does not take without complaint.
bool isTouchy(const char *name)
{
    static const QList<QByteArray> names{ "autoRepeatDelay", "autoRepeatInterval", "animateClick",
                                          "lineWidth", "midLineWidth" };
    return names.contains(name);
}

bool isCallable(const QMetaMethod &method)
{
    if (isTouchy(method.name()))
        return false;
    if (method.methodType() != QMetaMethod::Slot || method.access() != QMetaMethod::Public)
        return false;
    for (int i = 0; i < method.parameterCount(); ++i) {
        if (!isPlainType(method.parameterType(i)))
            return false;
    }
    return method.parameterCount() <= mostArguments;
}

} // namespace

QVector<QMetaMethod> PlainCalls::slotsOf(const QMetaObject &meta)
{
    QVector<QMetaMethod> result;
    for (int i = QWidget::staticMetaObject.methodCount(); i < meta.methodCount(); ++i) {
        if (isCallable(meta.method(i)))
            result << meta.method(i);
    }
    return result;
}

QVector<QMetaProperty> PlainCalls::propertiesOf(const QMetaObject &meta)
{
    QVector<QMetaProperty> result;
    for (int i = QWidget::staticMetaObject.propertyCount(); i < meta.propertyCount(); ++i) {
        const QMetaProperty property = meta.property(i);
        if (property.isWritable() && !isTouchy(property.name())
            && (property.isEnumType() || isPlainType(property.userType())))
            result << property;
    }
    return result;
}

void PlainCalls::call(QObject &object, const QMetaMethod &slot, const QVariantList &values)
{
    QGenericArgument arguments[mostArguments];
    const QList<QByteArray> types = slot.parameterTypes();
    for (int i = 0; i < slot.parameterCount(); ++i)
        arguments[i] = QGenericArgument(types.at(i).constData(), values.at(i).constData());
    slot.invoke(&object, Qt::DirectConnection, arguments[0], arguments[1], arguments[2],
                arguments[3]);
}
