#include "Pelorin/controls/LineEdit.h"
#include "tests/random/Subjects.h"
#include "tests/support/DialogHand.h"
#include "tests/support/MouseHand.h"
#include "tests/support/PlainCalls.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QKeyEvent>
#include <QLoggingCategory>
#include <QPointer>
#include <QTimer>
#include <QTimerEvent>
#include <QWheelEvent>

#include <algorithm>
#include <cstdio>
#include <memory>

namespace {

/// Something that an operator or an application does to a part of a widget, or to the widget itself
/// as part 0. The part may be gone before the action has ended.
struct Action
{
    using Act = std::function<void(const QPointer<QWidget> &)>;

    QString name;
    int part;
    Act act;
    Act prepare = nullptr; ///< what comes before, with nobody listening
};

QWidgetList partsOf(QWidget &widget)
{
    return QWidgetList{ &widget } + widget.findChildren<QWidget *>();
}

/// Hears the library's signals of a widget and of all that it is made of, and deletes the widget in
/// the middle of one of them.
class Listener : public QObject
{
public:
    /// Deletes \a widget at the signal with the number \a fatal, counted from 0; never for -1.
    Listener(QWidget &widget, int fatal);

    /// How many signals have come.
    int count() const { return m_count; }

    int qt_metacall(QMetaObject::Call call, int id, void **arguments) override;

private:
    void watch(const QObject &source);

    QPointer<QWidget> m_widget;
    int m_fatal;
    int m_count = 0;
    QVector<QMetaMethod> m_signals;
};

/// Whether Qt is still at work when \a signal comes: it is one of Qt's, passes one on, or tells of a
/// change of focus. As with Qt's own ones, a listener has to leave the deletion to deleteLater().
bool comesFromInsideQt(const QMetaMethod &signal)
{
    const QByteArray from = signal.enclosingMetaObject()->className();
    const bool isOfQt = from.size() > 1 && from[0] == 'Q' && from[1] >= 'A' && from[1] <= 'Z';
    return isOfQt || from == "DropDownNG"
           || (from == "LineEditNumber" && signal.name() == "numberChanged")
           || (from == "LineEdit" && signal.name() == "gotFocus");
}

Listener::Listener(QWidget &widget, int fatal)
    : m_widget(&widget)
    , m_fatal(fatal)
{
    watch(widget);
    for (const QObject *part : widget.findChildren<QObject *>())
        watch(*part);
}

void Listener::watch(const QObject &source)
{
    const QMetaObject &meta = *source.metaObject();
    const int ownMethods = QObject::staticMetaObject.methodCount();
    for (int i = ownMethods; i < meta.methodCount(); ++i) {
        const QMetaMethod method = meta.method(i);
        const bool isDefaulted = method.attributes() & QMetaMethod::Cloned;
        if (method.methodType() != QMetaMethod::Signal || isDefaulted || comesFromInsideQt(method))
            continue;
        QMetaObject::connect(&source, i, this, ownMethods + m_signals.size(), Qt::DirectConnection);
        m_signals << method;
    }
}

int Listener::qt_metacall(QMetaObject::Call call, int id, void **arguments)
{
    id = QObject::qt_metacall(call, id, arguments);
    if (id < 0 || call != QMetaObject::InvokeMetaMethod || id >= m_signals.size())
        return id;
    if (m_count++ == m_fatal) {
        const QMetaMethod &signal = m_signals.at(id);
        if (qEnvironmentVariableIsSet("PELORIN_TEST_TRACE"))
            std::fprintf(stderr, "    deleted in %s::%s\n",
                         signal.enclosingMetaObject()->className(),
                         signal.methodSignature().constData());
        delete m_widget;
    }
    return -1;
}

/// A value of \a type, another one for each place in the call and for each \a variant.
QVariant plainValue(int type, int place, int variant)
{
    static const double numbers[] = { 30.0, 520.0, -40.0 };
    const double number = numbers[variant % 3] + 10.0 * place;
    switch (type) {
    case QMetaType::Bool:
        return place == 0 ? variant == 0 : false; // what silences a change is off
    case QMetaType::UChar:
        return QVariant::fromValue(uchar(variant + 4));
    case QMetaType::UShort:
        return QVariant::fromValue(ushort(variant + 1));
    case QMetaType::Int:
        return variant < 2 ? variant + place : int(1000 * number);
    case QMetaType::UInt:
        return uint(variant + 5);
    case QMetaType::Double:
        return number;
    case QMetaType::QString:
        return QString::number(number);
    case QMetaType::QStringList:
        return QStringList{ QStringLiteral("12.5"), QString::number(number) };
    case QMetaType::QSize:
        return QSize(200 + variant, 100);
    case QMetaType::QPoint:
        return QPoint(10 * variant, 10);
    default:
        return QVariant::fromValue(QList<double>{ number, number + 7.0, number + 40.0 });
    }
}

/// How many different values plainValue() has for a place.
constexpr int variants = 3;

QVector<Action> callsOf(const QMetaObject &meta)
{
    QVector<Action> result;
    for (const QMetaMethod &slot : PlainCalls::slotsOf(meta)) {
        for (int variant = 0; variant < variants; ++variant) {
            QVariantList values;
            for (int i = 0; i < slot.parameterCount(); ++i)
                values << plainValue(slot.parameterType(i), i, variant);
            const auto call = [slot, values](const QPointer<QWidget> &widget) {
                PlainCalls::call(*widget, slot, values);
            };
            const QString name = QString::fromLatin1(slot.methodSignature());
            result.append({ QStringLiteral("%1, values %2").arg(name).arg(variant), 0, call });
        }
    }
    return result;
}

QVector<Action> writesOf(const QMetaObject &meta)
{
    QVector<Action> result;
    for (const QMetaProperty &property : PlainCalls::propertiesOf(meta)) {
        for (int variant = 0; variant < variants; ++variant) {
            const QMetaEnum keys = property.enumerator();
            const QVariant value = property.isEnumType()
                                       ? keys.value(variant % keys.keyCount())
                                       : plainValue(property.userType(), 0, variant);
            const auto write = [property, value](const QPointer<QWidget> &widget) {
                property.write(widget, value);
            };
            const QString name = QLatin1String(property.name());
            result.append({ QStringLiteral("%1 = %2").arg(name, value.toString()), 0, write });
        }
    }
    return result;
}

template<typename Event>
void send(const QPointer<QWidget> &part, Event &&event)
{
    if (part)
        QApplication::sendEvent(part, &event);
}

void strike(const QPointer<QWidget> &part, int key)
{
    const QString text = key < 0x80 ? QString(QChar(key)) : QString();
    send(part, QKeyEvent(QEvent::KeyPress, key, Qt::NoModifier, text));
    send(part, QKeyEvent(QEvent::KeyRelease, key, Qt::NoModifier, text));
}

/// Lets all that waits for its time in \a part come at once.
void passTime(const QPointer<QWidget> &part)
{
    QVector<QPointer<QTimer>> timers;
    if (part) {
        for (QTimer *const timer : part->findChildren<QTimer *>())
            timers << timer;
    }
    for (const QPointer<QTimer> &timer : qAsConst(timers)) {
        if (!timer || !timer->isActive())
            continue;
        QTimerEvent event(timer->timerId());
        QApplication::sendEvent(timer, &event);
    }
}

/// The place at \a share of the longer side, in the middle of the other one.
QPoint placeAlong(const QWidget &part, double share)
{
    const QPoint middle = part.rect().center();
    if (part.height() > part.width())
        return QPoint(middle.x(), int(part.height() * share));
    return QPoint(int(part.width() * share), middle.y());
}

void drag(const QPointer<QWidget> &part, QPoint from, QPoint to)
{
    MouseHand hand(*part);
    hand.press(from);
    for (int i = 1; i <= 3 && part; ++i)
        hand.move(from + (to - from) * i / 3);
    if (part)
        hand.release(to);
}

void giveFocus(const QPointer<QWidget> &part)
{
    part->setFocus(Qt::TabFocusReason);
}

void typeDigit(const QPointer<QWidget> &field)
{
    giveFocus(field);
    strike(field, Qt::Key_9);
}

/// What a hand does to \a part, which is a LineEdit or not.
QVector<Action> gesturesOn(int part, bool isPlainField)
{
    using Part = const QPointer<QWidget> &;
    QVector<Action> result;
    for (const double start : { 0.02, 0.08, 0.5, 0.92, 0.98 }) {
        const auto dragToMiddle = [start](Part each) {
            drag(each, placeAlong(*each, start), placeAlong(*each, start < 0.5 ? 0.6 : 0.4));
        };
        result.append({ QStringLiteral("drag from %1").arg(start), part, dragToMiddle });
        // The handle of a scale, or an entry of a list, may lie beside the middle.
        const auto dragAtEdge = [start](Part each) {
            const bool isUpright = each->height() > each->width();
            const QPoint offset =
                isUpright ? QPoint(12 - each->width() / 2, 0) : QPoint(0, 12 - each->height() / 2);
            drag(each, placeAlong(*each, start) + offset,
                 placeAlong(*each, start < 0.5 ? 0.6 : 0.4) + offset);
        };
        result.append({ QStringLiteral("drag at the edge from %1").arg(start), part, dragAtEdge });
    }
    for (const int key : { Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right, Qt::Key_Space }) {
        if (key == Qt::Key_Space && isPlainField)
            continue; // a character like others
        const auto press = [key](Part each) {
            strike(each, key);
            passTime(each);
        };
        result.append({ QStringLiteral("key %1").arg(key, 0, 16), part, press, giveFocus });
    }
    const auto turnWheel = [](Part each) {
        send(each,
             QWheelEvent(QPointF(5, 5), each->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, 120),
                         Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false));
    };
    result.append({ QStringLiteral("wheel"), part, turnWheel });
    const auto leave = [](Part each) {
        send(each, QFocusEvent(QEvent::FocusOut, Qt::TabFocusReason));
    };
    result.append({ QStringLiteral("digit and time"), part, passTime, typeDigit });
    result.append({ QStringLiteral("digit and loss of focus"), part, leave, typeDigit });
    // A plain line edit has its Return from Qt, which goes on with it after the signal.
    if (!isPlainField) {
        const auto pressReturn = [](Part each) { strike(each, Qt::Key_Return); };
        result.append({ QStringLiteral("digit and Return"), part, pressReturn, typeDigit });
    }
    return result;
}

/// All that can be done to a widget like \a sample; of parts that are alike, to one or two.
QVector<Action> actionsOn(QWidget &sample)
{
    QVector<Action> result = callsOf(*sample.metaObject()) + writesOf(*sample.metaObject());
    const QList<QByteArray> idle{ "QWidget", "QFrame", "QLabel", "ContainerWidget",
                                  "VerticalLabel" };
    QMap<QByteArray, int> alike;
    const QWidgetList parts = partsOf(sample);
    for (int i = 0; i < parts.size(); ++i) {
        const QByteArray name = parts.at(i)->metaObject()->className();
        const bool isIdle = i > 0 && idle.contains(name);
        if (!isIdle && ++alike[name] <= 2)
            result += gesturesOn(i, qobject_cast<LineEdit *>(parts.at(i)));
    }
    return result;
}

/// Without the active window nothing in it has the focus.
void showActive(QWidget &widget)
{
    widget.show();
    QApplication::setActiveWindow(&widget);
}

struct Outcome
{
    int signalCount;
    bool isGone;
};

/// A fresh widget, and \a action on it. A crash leaves no report behind, so that each can be told
/// before.
Outcome play(const Subject &subject, const Action &action, int fatal)
{
    if (qEnvironmentVariableIsSet("PELORIN_TEST_TRACE"))
        std::fprintf(stderr, "  %s on part %d, %d\n", qPrintable(action.name), action.part, fatal);
    const QPointer<QWidget> widget = subject.make();
    showActive(*widget);
    const QPointer<QWidget> part = partsOf(*widget).at(action.part);
    if (action.prepare)
        action.prepare(part);
    Listener listener(*widget, fatal);
    action.act(part);
    const Outcome outcome{ listener.count(), widget.isNull() };
    delete widget;
    return outcome;
}

void addSubjects()
{
    QTest::addColumn<int>("subject");

    for (int i = 0; i < subjects().size(); ++i)
        QTest::newRow(subjects().at(i).name) << i;
}

} // namespace

/// An application may take a widget away at any moment, also in answer to what the widget tells.
class tst_DeletionByListeners : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void livesThroughItsOwnSignals_data();
    void livesThroughItsOwnSignals();
    void keepsAnOpenEditToItselfAsItGoes_data();
    void keepsAnOpenEditToItselfAsItGoes();
};

void tst_DeletionByListeners::livesThroughItsOwnSignals_data()
{
    addSubjects();
}

void tst_DeletionByListeners::livesThroughItsOwnSignals()
{
    QFETCH(int, subject);
    constexpr int mostSignals = 12; // of one action
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    tolerateMessages(QtWarningMsg, QStringLiteral("QComboBox::setMax"));
    const Subject &tested = subjects().at(subject);
    const std::unique_ptr<QWidget> sample(tested.make());
    sample->show();
    const DialogHand hand; // says no to every question

    for (const Action &action : actionsOn(*sample)) {
        const int signalCount = play(tested, action, -1).signalCount;
        for (int fatal = 0; fatal < std::min(signalCount, mostSignals); ++fatal) {
            const Outcome outcome = play(tested, action, fatal);
            const QString told =
                QStringLiteral("%1, signal %2 of %3").arg(action.name).arg(fatal).arg(signalCount);
            QVERIFY2(outcome.isGone, qPrintable(told));
        }
    }
}

void tst_DeletionByListeners::keepsAnOpenEditToItselfAsItGoes_data()
{
    addSubjects();
}

/// The field loses the focus when all around it is half gone.
void tst_DeletionByListeners::keepsAnOpenEditToItselfAsItGoes()
{
    QFETCH(int, subject);
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    const auto make = subjects().at(subject).make;
    const std::unique_ptr<QWidget> sample(make());
    const QWidgetList parts = partsOf(*sample);

    for (int i = 0; i < parts.size(); ++i) {
        if (!qobject_cast<QLineEdit *>(parts.at(i)))
            continue;
        auto widget = std::unique_ptr<QWidget>(make());
        showActive(*widget);
        typeDigit(partsOf(*widget).at(i));
        const SignalRecorder recorder(widget.get());

        widget.reset();

        QCOMPARE(recorder.entries(), QStringList());
    }
}

PELORIN_TEST_MAIN(tst_DeletionByListeners)
#include "tst_deletionbylisteners.moc"
