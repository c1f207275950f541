#ifndef PELORIN_TESTS_RANDOMEVENTS_H
#define PELORIN_TESTS_RANDOMEVENTS_H

#include <QMetaMethod>
#include <QMetaProperty>
#include <QPoint>
#include <QPointer>
#include <QRandomGenerator>
#include <QStringList>
#include <QVariant>
#include <QWidget>

/// An operator and an application that have lost their minds: random calls of every public slot and
/// writable property of a widget, with good and absurd values, between random keys, mouse and
/// resize events. Nothing is expected of the widget but that it lives.
class RandomEvents
{
public:
    RandomEvents(QWidget *widget, quint32 seed);

    /// One random action. Stops to act when the widget is gone.
    void step();

    /// The last actions, the newest last.
    QStringList history() const { return m_history; }

private:
    void callSlot();
    void writeProperty();
    void sendMouse();
    void sendKey();
    void resizeOrToggle();
    void keepOnScreen();
    QVariant value(int type);
    double number();
    int integer();
    void note(const QString &action);

    QPointer<QWidget> m_widget;
    QRandomGenerator m_random;
    QVector<QMetaMethod> m_slots;
    QVector<QMetaProperty> m_properties;
    QStringList m_history;
};

#endif
