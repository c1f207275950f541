#include "Pelorin/controls/LineEditNumber.h"

#include "Pelorin/theme/Rounding_p.h"

#include <QDebug>
#include <QKeyEvent>

#include <algorithm>

namespace {

/// More than a double can tell apart.
constexpr int maxDigits = 400;

QString decimalText(double value, int decimals)
{
    return QString::number(value, 'f', std::min(decimals, maxDigits));
}

/// 0 for what is no number, the text "nan" included.
double numberIn(const QString &text)
{
    const double value = text.toDouble();
    return qIsNaN(value) ? 0.0 : value;
}

/// The decimals that a number needs to show a step, judged by the leading digit of the step alone.
int decimalsOf(double step)
{
    constexpr double tolerance = 1e-06;
    int decimals = 0;
    if (step >= 0.999999)
        return decimals;
    for (double power = 1.0; step < power - tolerance; power *= 0.1)
        ++decimals;
    return decimals;
}

} // namespace

QString toSignificantDigits(double value, int digits)
{
    if (digits < 1)
        return QStringLiteral("0");
    digits = std::min(digits, maxDigits);
    if (value == 0.0 || !qIsFinite(value))
        return decimalText(value, digits - 1);
    const int exponent = int(std::floor(std::log10(std::abs(value))));
    const int decimals = digits - exponent - 1;
    if (decimals >= 0)
        return decimalText(value, decimals);
    const double power = std::pow(10.0, -decimals);
    return decimalText(roundedToDecimals(value / power, 0) * power, 0);
}

LineEditNumber::LineEditNumber(QWidget *parent)
    : LineEdit(parent)
    , m_nudgeHold(this, QStringLiteral("nudgeHoldTimer"))
{
    setAlignment(Qt::AlignRight);
    connect(this, &QLineEdit::textChanged, this, &LineEditNumber::emitNumberChanged);
    connect(this, &LineEdit::textSaved, this, &LineEditNumber::emitNumberSaved);
    connect(m_nudgeHold.feedbackTimer(), &QTimer::timeout, this,
            &LineEditNumber::updateFeedbackValue);
}

double LineEditNumber::number() const
{
    return numberIn(text());
}

void LineEditNumber::allowNudge(double step)
{
    m_nudgeStep = qIsFinite(step) ? step : 0.0;
}

QChar LineEditNumber::processCharacter(QChar character)
{
    static const QString allowed = QStringLiteral("+-.0123456789Xx");
    if (character == QLatin1Char(','))
        return QLatin1Char('.');
    return allowed.contains(character) ? character : QChar(QLatin1Char(' '));
}

void LineEditNumber::setNumber(double value, int precision, bool significantDigitsEnabled)
{
    setText(significantDigitsEnabled ? toSignificantDigits(value, precision)
                                     : decimalText(value, precision));
}

void LineEditNumber::setNumber(double value, int precision)
{
    setNumber(value, precision, false);
}

void LineEditNumber::setText(QString text)
{
    if (m_nudgeHold.holdsBack()) {
        m_feedbackValue = text;
        return;
    }
    QString filtered;
    for (const QChar character : qAsConst(text)) {
        const QChar processed = processCharacter(character);
        if (processed != QLatin1Char(' '))
            filtered += processed;
    }
    LineEdit::setText(filtered);
}

void LineEditNumber::emitNumberChanged(QString string)
{
    Q_EMIT numberChanged(numberIn(string));
}

void LineEditNumber::emitNumberSaved()
{
    Q_EMIT numberSaved(number());
}

void LineEditNumber::nudge(int direction)
{
    if (!(m_nudgeStep > 0.0))
        return;
    const int decimals = decimalsOf(m_nudgeStep);
    const double value = number() + direction * m_nudgeStep;
    LineEdit::setText(decimalText(value, decimals));
    qDebug() << "LineEditNumber::nudge" << value << decimals;
    m_nudgeHold.begin();
    Q_EMIT returnPressed();
}

/// While the hold runs this goes round once more, so that the last text arrives after it.
void LineEditNumber::updateFeedbackValue()
{
    setText(m_feedbackValue);
}

void LineEditNumber::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    switch (key) {
    case Qt::Key_Plus:
    case Qt::Key_Minus:
    case Qt::Key_Period:
    case Qt::Key_X:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Left:
    case Qt::Key_Right:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        LineEdit::keyPressEvent(event);
        return;
    case Qt::Key_Comma: {
        QKeyEvent point(QEvent::KeyPress, Qt::Key_Period, event->modifiers(), QStringLiteral("."));
        LineEdit::keyPressEvent(&point);
        return;
    }
    case Qt::Key_Up:
        Q_EMIT arrowPressed(1);
        return;
    case Qt::Key_Down:
        Q_EMIT arrowPressed(-1);
        return;
    default:
        break;
    }
    if (key >= Qt::Key_0 && key <= Qt::Key_9)
        LineEdit::keyPressEvent(event);
}
