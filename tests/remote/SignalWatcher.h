#ifndef PELORIN_TESTS_SIGNALWATCHER_H
#define PELORIN_TESTS_SIGNALWATCHER_H

#include <QMetaMethod>
#include <QObject>
#include <QWidget>

#include <functional>

/// A receiver of every signal that a panel declares; it does what it was given at each of them.
class SignalWatcher : public QObject
{
public:
    SignalWatcher(const QWidget &panel, std::function<void()> act)
        : m_act(std::move(act))
    {
        const int own = QObject::staticMetaObject.methodCount();
        const QMetaObject *meta = panel.metaObject();
        for (int i = meta->methodOffset(); i < meta->methodCount(); ++i) {
            if (meta->method(i).methodType() == QMetaMethod::Signal)
                QMetaObject::connect(&panel, i, this, own, Qt::DirectConnection);
        }
    }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override
    {
        id = QObject::qt_metacall(call, id, arguments);
        if (id != 0 || call != QMetaObject::InvokeMetaMethod)
            return id;
        m_act();
        return -1;
    }

private:
    std::function<void()> m_act;
};

#endif
