#ifndef PELORIN_TESTS_SIGNALRECORDER_H
#define PELORIN_TESTS_SIGNALRECORDER_H

#include <QList>
#include <QMetaMethod>
#include <QObject>
#include <QStringList>

/// Writes down every signal of the objects that it watches, in the order in which they came:
/// "valueChanged0(12.5)", or "slider.valueChanged0(12.5)" for an object that was given a name.
///
/// The signals of QWidget and QObject are not watched, nor those of any other class at or above \a
/// base.
class SignalRecorder : public QObject
{
public:
    explicit SignalRecorder(const QObject *watched, const QString &name = QString(),
                            const QMetaObject *base = nullptr);

    void watch(const QObject *watched, const QString &name, const QMetaObject *base = nullptr);

    /// What came since the last call of taken().
    QStringList entries() const { return m_entries; }

    /// The same, and forgets it.
    QStringList taken();

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    struct Source
    {
        QMetaMethod method;
        QString name;
    };
    QList<Source> m_sources;
    QStringList m_entries;
};

#endif
