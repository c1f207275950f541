#include "tests/support/RandomEvents.h"

#include "tests/support/PlainCalls.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>

#include <cstdio>
#include <limits>

namespace {

constexpr int historyLength = 40;

/// A widget of this size costs time and memory, and tells no more than a smaller one.
constexpr int largestSide = 1500;

template<typename T, std::size_t size>
const T &pick(QRandomGenerator &random, const T (&choices)[size])
{
    return choices[random.bounded(int(size))];
}

} // namespace

RandomEvents::RandomEvents(QWidget *widget, quint32 seed)
    : m_widget(widget)
    , m_random(seed)
    , m_slots(PlainCalls::slotsOf(*widget->metaObject()))
    , m_properties(PlainCalls::propertiesOf(*widget->metaObject()))
{}

void RandomEvents::step()
{
    if (!m_widget)
        return;
    switch (m_random.bounded(10)) {
    case 0:
    case 1:
    case 2:
        callSlot();
        break;
    case 3:
        writeProperty();
        break;
    case 4:
    case 5:
    case 6:
        sendMouse();
        break;
    case 7:
    case 8:
        sendKey();
        break;
    default:
        resizeOrToggle();
        break;
    }
    keepOnScreen();
    if (m_random.bounded(8) == 0)
        QApplication::processEvents();
}

double RandomEvents::number()
{
    static const double absurd[] = { qInf(), -qInf(), qQNaN(), 1e300, -1e300, 5e-324,
                                     1e12,   -1e12,   0.0,     -0.0,  -1.0,   2147483648.0 };
    return m_random.bounded(3) == 0 ? pick(m_random, absurd) : m_random.bounded(240.0) - 60.0;
}

int RandomEvents::integer()
{
    static const int absurd[] = { std::numeric_limits<int>::max(), std::numeric_limits<int>::min(),
                                  -1, 0, 100000 };
    return m_random.bounded(3) == 0 ? pick(m_random, absurd) : m_random.bounded(-10, 40);
}

QVariant RandomEvents::value(int type)
{
    static const QString texts[] = { QString(),
                                     QStringLiteral("12.5"),
                                     QStringLiteral("-3"),
                                     QStringLiteral("nan"),
                                     QStringLiteral("inf"),
                                     QStringLiteral("%1%2 \n\t"),
                                     QString(300, QLatin1Char('W')),
                                     QString(QChar(0)) };
    switch (type) {
    case QMetaType::Bool:
        return m_random.bounded(2) == 1;
    case QMetaType::Int:
        return integer();
    case QMetaType::UInt:
        return uint(integer());
    case QMetaType::UShort:
        return QVariant::fromValue(ushort(m_random.bounded(65536)));
    case QMetaType::UChar:
        return QVariant::fromValue(uchar(m_random.bounded(256)));
    case QMetaType::Double:
        return number();
    case QMetaType::QString:
        return pick(m_random, texts);
    case QMetaType::QStringList:
        return QStringList{ pick(m_random, texts), pick(m_random, texts) };
    case QMetaType::QSize:
        return QSize(m_random.bounded(-2, 300), m_random.bounded(-2, 300));
    case QMetaType::QPoint:
        return QPoint(m_random.bounded(-50, 300), m_random.bounded(-50, 300));
    default:
        break;
    }
    QList<double> numbers;
    for (int i = m_random.bounded(6); i > 0; --i)
        numbers << number();
    return QVariant::fromValue(numbers);
}

void RandomEvents::callSlot()
{
    if (m_slots.isEmpty())
        return;
    const QMetaMethod &slot = m_slots.at(m_random.bounded(m_slots.size()));
    QVariantList values;
    QStringList texts;
    for (int i = 0; i < slot.parameterCount(); ++i) {
        values << value(slot.parameterType(i));
        texts << values.last().toString().left(30);
    }
    note(QStringLiteral("%1(%2)").arg(QString::fromLatin1(slot.name()),
                                      texts.join(QStringLiteral(", "))));
    PlainCalls::call(*m_widget, slot, values);
}

void RandomEvents::writeProperty()
{
    if (m_properties.isEmpty())
        return;
    const QMetaProperty &property = m_properties.at(m_random.bounded(m_properties.size()));
    // Other numbers than its own are no values of an enumeration.
    const QMetaEnum keys = property.enumerator();
    const QVariant wanted = property.isEnumType() ? keys.value(m_random.bounded(keys.keyCount()))
                                                  : value(property.userType());
    note(QStringLiteral("%1 = %2").arg(QLatin1String(property.name()), wanted.toString().left(30)));
    property.write(m_widget, wanted);
}

void RandomEvents::sendMouse()
{
    static const Qt::MouseButton buttons[] = { Qt::LeftButton, Qt::LeftButton, Qt::RightButton };
    static const QEvent::Type types[] = { QEvent::MouseButtonPress,
                                          QEvent::MouseMove,
                                          QEvent::MouseMove,
                                          QEvent::MouseButtonRelease,
                                          QEvent::MouseButtonDblClick,
                                          QEvent::Leave,
                                          QEvent::Wheel };
    const QEvent::Type type = pick(m_random, types);
    const QPoint place(m_random.bounded(-20, m_widget->width() + 20),
                       m_random.bounded(-20, m_widget->height() + 20));
    QWidget *child = m_widget->childAt(place);
    QWidget *target = child ? child : m_widget.data();
    const QPoint local = target->mapFrom(m_widget, place);
    note(QStringLiteral("mouse event %1 at %2, %3").arg(type).arg(place.x()).arg(place.y()));
    if (type == QEvent::Leave) {
        QEvent event(QEvent::Leave);
        QApplication::sendEvent(target, &event);
    } else if (type == QEvent::Wheel) {
        const QPoint turn(0, m_random.bounded(-3, 4) * 120);
        QWheelEvent event(local, target->mapToGlobal(local), QPoint(), turn, Qt::NoButton,
                          Qt::NoModifier, Qt::NoScrollPhase, false);
        QApplication::sendEvent(target, &event);
    } else {
        const Qt::MouseButton button = pick(m_random, buttons);
        QMouseEvent event(type, local, target->mapToGlobal(local), button, button, Qt::NoModifier);
        QApplication::sendEvent(target, &event);
    }
}

void RandomEvents::sendKey()
{
    static const int keys[] = { Qt::Key_Left,  Qt::Key_Right,     Qt::Key_Up,     Qt::Key_Down,
                                Qt::Key_Tab,   Qt::Key_Backtab,   Qt::Key_Return, Qt::Key_Escape,
                                Qt::Key_Space, Qt::Key_Backspace, Qt::Key_Delete, Qt::Key_Home,
                                Qt::Key_End,   Qt::Key_PageUp,    Qt::Key_5,      Qt::Key_Period,
                                Qt::Key_Minus, Qt::Key_E,         Qt::Key_A };
    static const Qt::KeyboardModifier modifiers[] = { Qt::NoModifier, Qt::NoModifier,
                                                      Qt::ShiftModifier, Qt::ControlModifier };
    const int key = pick(m_random, keys);
    const Qt::KeyboardModifier modifier = pick(m_random, modifiers);
    QWidget *focused = m_widget->focusWidget();
    QWidget *target = focused ? focused : m_widget.data();
    note(QStringLiteral("key %1 with %2").arg(key, 0, 16).arg(int(modifier), 0, 16));
    const QString text = key < 0x80 ? QString(QChar(key)).toLower() : QString();
    QKeyEvent press(QEvent::KeyPress, key, modifier, text);
    QApplication::sendEvent(target, &press);
    if (!m_widget)
        return;
    QKeyEvent release(QEvent::KeyRelease, key, modifier, text);
    focused = m_widget->focusWidget();
    QApplication::sendEvent(focused ? focused : m_widget.data(), &release);
}

void RandomEvents::resizeOrToggle()
{
    switch (m_random.bounded(5)) {
    case 0: {
        const QSize size(m_random.bounded(largestSide), m_random.bounded(largestSide));
        note(QStringLiteral("resize to %1 x %2").arg(size.width()).arg(size.height()));
        m_widget->setMinimumSize(0, 0);
        m_widget->resize(size.boundedTo(QSize(largestSide, largestSide)));
        break;
    }
    case 1:
        note(QStringLiteral("toggle enabled"));
        m_widget->setEnabled(!m_widget->isEnabled());
        break;
    case 2:
        note(QStringLiteral("toggle visible"));
        m_widget->setVisible(!m_widget->isVisible());
        break;
    case 3:
        note(QStringLiteral("focus"));
        m_widget->setFocus(m_random.bounded(2) ? Qt::TabFocusReason : Qt::BacktabFocusReason);
        break;
    default:
        if (m_widget->width() <= largestSide * 2 && m_widget->height() <= largestSide * 2) {
            note(QStringLiteral("grab"));
            m_widget->grab();
        }
        break;
    }
}

/// A size that was fixed far beyond any screen is taken back before it is painted.
void RandomEvents::keepOnScreen()
{
    if (!m_widget || (m_widget->width() <= largestSide && m_widget->height() <= largestSide))
        return;
    m_widget->setMinimumSize(0, 0);
    m_widget->setMaximumSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX);
    m_widget->resize(m_widget->size().boundedTo(QSize(largestSide, largestSide)));
}

void RandomEvents::note(const QString &action)
{
    if (qEnvironmentVariableIsSet("PELORIN_TEST_TRACE"))
        std::fprintf(stderr, "%s\n", qPrintable(action));
    m_history << action;
    if (m_history.size() > historyLength)
        m_history.removeFirst();
}
