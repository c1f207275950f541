#include "Pelorin/controls/LineEdit.h"

#include "Pelorin/theme/StyleProperty_p.h"

#include <QDebug>
#include <QFocusEvent>
#include <QPointer>

namespace {

constexpr int smallestWidth = 50;
constexpr int timeoutMs = 5000;

} // namespace

LineEdit::LineEdit(QWidget *parent)
    : QLineEdit(parent)
    , m_timeoutTimer(this)
{
    setMinimumWidth(smallestWidth);
    setProperty(StyleProperty::flat, true);
    m_timeoutTimer.setObjectName(QStringLiteral("timeoutTimer"));
    m_timeoutTimer.setSingleShot(true);
    m_timeoutTimer.setInterval(timeoutMs);
    connect(this, &QLineEdit::returnPressed, this, &LineEdit::saveText);
}

void LineEdit::enableTimeout(bool on)
{
    m_timeoutEnabled = on;
    const auto start = qOverload<>(&QTimer::start);
    if (on) {
        const auto once = Qt::UniqueConnection;
        connect(this, &QLineEdit::textEdited, &m_timeoutTimer, start, once);
        connect(&m_timeoutTimer, &QTimer::timeout, this, &LineEdit::resetText, once);
        connect(this, &QLineEdit::returnPressed, &m_timeoutTimer, &QTimer::stop, once);
        connect(this, &QLineEdit::textEdited, this, &LineEdit::checkForNewText, once);
    } else {
        disconnect(this, &QLineEdit::textEdited, &m_timeoutTimer, start);
        disconnect(&m_timeoutTimer, &QTimer::timeout, this, &LineEdit::resetText);
        disconnect(this, &QLineEdit::returnPressed, &m_timeoutTimer, &QTimer::stop);
        disconnect(this, &QLineEdit::textEdited, this, &LineEdit::checkForNewText);
    }
}

void LineEdit::setDarkBackground()
{
    setProperty(StyleProperty::background, FieldBackground::dark);
}

void LineEdit::setText(QString text)
{
    m_savedText = text;
    QLineEdit::setText(text);
}

void LineEdit::saveText()
{
    m_savedText = text();
    m_editing = false;
    Q_EMIT textSaved(m_savedText);
}

void LineEdit::resetText()
{
    setText(m_savedText);
    m_timeoutTimer.stop();
    m_editing = false;
    const QPointer<LineEdit> self(this); // who hears of it may delete the field
    Q_EMIT textReset();
    if (self)
        qDebug() << "Reset: " << m_savedText;
}

void LineEdit::checkForNewText()
{
    if (m_editing || text() == m_savedText)
        return;
    m_editing = true;
    Q_EMIT textEditing();
}

void LineEdit::focusInEvent(QFocusEvent *event)
{
    const QPointer<LineEdit> self(this);
    Q_EMIT gotFocus();
    if (self)
        QLineEdit::focusInEvent(event);
}

void LineEdit::focusOutEvent(QFocusEvent *event)
{
    const QPointer<LineEdit> self(this);
    if (m_editing)
        Q_EMIT returnPressed();
    if (self)
        QLineEdit::focusOutEvent(event);
}
