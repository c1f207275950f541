#include "Pelorin/controls/LineEditNumberBase.h"

#include "Pelorin/controls/FixedSize_p.h"
#include "Pelorin/sliders/ScaleSliderNG.h"
#include "Pelorin/theme/Rounding_p.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QAction>
#include <QDebug>
#include <QKeyEvent>
#include <QPointer>
#include <QTimer>
#include <QtMath>

#include <algorithm>
#include <cmath>

namespace {

/// More decimals than any double has; Qt would write as many as are asked for.
constexpr int mostDecimals = 400;
/// A field of more digits than this is wider than any screen.
constexpr int mostDigits = 10000;

constexpr QChar infinitySign(0x221E);

bool isInfinityText(const QString &text)
{
    return text.compare(QLatin1String("inf"), Qt::CaseInsensitive) == 0 || text == infinitySign;
}

} // namespace

LineEditNumberBase::LineEditNumberBase(QWidget *parent)
    : QLineEdit(parent)
{
    setAlignment(Qt::AlignRight);
    setProperty(StyleProperty::flat, true);
    setProperty(StyleProperty::type, StyleType::label);
    connect(this, &QLineEdit::textEdited, this, &LineEditNumberBase::textEdited);
    createEditTimer();
    createPopupSlider();
    followMainWindow();
    createIndicatorIcon();
    createPopupSliderButton();
    // Nobody can listen yet, so that there is nothing to report.
    setRange(100.0, 2000.0, true);
    setCurValue(0.0);
    setEditValue(0.0);
    showValue(m_editText);
}

LineEditNumberBase::~LineEditNumberBase() = default;

void LineEditNumberBase::createEditTimer()
{
    m_editTimer = new QTimer(this);
    m_editTimer->setSingleShot(true);
    m_editTimer->setInterval(m_editTimeoutMs);
    connect(m_editTimer, &QTimer::timeout, this, &LineEditNumberBase::editTimeout);
}

void LineEditNumberBase::createIndicatorIcon()
{
    m_indicatorAction = new QAction(QString(), this);
    m_indicatorAction->setEnabled(false);
}

void LineEditNumberBase::adjustSize()
{
    ensurePolished();
    const int digits = std::max({ m_integerDigits, QString::number(m_minimum, 'f', 0).length(),
                                  QString::number(m_maximum, 'f', 0).length() });
    QString model(std::min(digits, mostDigits) + 1, QLatin1Char('0'));
    if (m_precision > 0)
        model += QLatin1Char('.');
    model += QString(std::clamp(m_precision, -1, mostDigits) + 1, QLatin1Char('0'));
    if (m_popupSliderEnabled)
        model += QStringLiteral("00");
    setMinimumWidth(boundedLength(fontMetrics().horizontalAdvance(model)));
    if (m_allowShrink)
        setMaximumWidth(minimumSize().width());
}

void LineEditNumberBase::setValuePrecision(int digits)
{
    m_precision = digits;
    if (m_popupSlider)
        m_popupSlider->setValuePrecision(digits);
    setCurValue(m_curValue);
    adjustSize();
}

void LineEditNumberBase::setValue(double value)
{
    setCurValue(value);
    if (isEditing())
        return;
    setEditValue(value);
    showValue(m_editText);
}

void LineEditNumberBase::changeValue(double value)
{
    setValue(value);
    reportValueChanged(publicValue(m_curValue));
}

void LineEditNumberBase::setRange(double min, double max, bool ignoreValueChanges)
{
    if (qIsNaN(min) || qIsNaN(max))
        return;
    if (max < min) {
        const QByteArray place = QByteArray(metaObject()->className()) + "::setRange - min:";
        qWarning() << place.constData() << min << "max:" << max;
    }
    m_minimum = min;
    m_maximum = max;
    adjustPopupSliderRange();
    if (!validateValue(&m_curValue)) {
        setCurValue(m_curValue);
        if (!isEditing()) {
            setEditValue(m_curValue);
            showValue(m_editText);
        }
        const QPointer<LineEditNumberBase> self(this);
        if (!ignoreValueChanges)
            reportValueChanged(publicValue(m_curValue));
        if (!self)
            return;
    }
    setPopupSliderValue();
}

void LineEditNumberBase::setIntegerDigits(int digits, bool allowShrink)
{
    m_integerDigits = digits;
    m_allowShrink = allowShrink;
    adjustSize();
}

void LineEditNumberBase::setDisabledContent(const QString &content)
{
    m_disabledContent = content;
}

void LineEditNumberBase::setEditTimeout(int timeout)
{
    m_editTimeoutMs = timeout;
    // With a negative one Qt's timer would count as running for ever.
    m_editTimer->setInterval(std::max(timeout, 0));
}

void LineEditNumberBase::enableEditTimeout(bool enable)
{
    m_editTimeoutEnabled = enable;
}

void LineEditNumberBase::enableInfinity(bool enable)
{
    m_infinityEnabled = enable;
    adjustPopupSliderRange();
}

/// A null pixmap takes the icon away.
void LineEditNumberBase::setIndicatorIcon(const QPixmap &pixmap)
{
    if (pixmap.isNull()) {
        removeAction(m_indicatorAction);
        return;
    }
    QIcon icon;
    icon.addPixmap(pixmap);
    m_indicatorAction->setIcon(icon);
    addAction(m_indicatorAction, QLineEdit::LeadingPosition);
}

int LineEditNumberBase::decimals() const
{
    return std::min(m_precision, mostDecimals);
}

/// Clamps \a v in place; true if it was acceptable as it was. A range given the wrong way round is
/// a range too. With infinity on, all that lies above the top is infinity, which is thus never
/// acceptable, but stays.
bool LineEditNumberBase::validateValue(double *v) const
{
    const bool reversed = m_maximum <= m_minimum;
    const double bottom = reversed ? m_maximum : m_minimum;
    const double top = reversed ? m_minimum : m_maximum;
    if (*v >= bottom && *v <= top)
        return true;
    if (*v < bottom)
        *v = bottom;
    else
        *v = m_infinityEnabled ? qInf() : top;
    return false;
}

QString LineEditNumberBase::valueToText(double v) const
{
    if (m_infinityEnabled && qIsInf(v))
        return infinitySign;
    return QString::number(v, 'f', decimals());
}

/// Zero for what is no number.
double LineEditNumberBase::textToValue(const QString &text) const
{
    if (m_infinityEnabled && isInfinityText(text))
        return qInf();
    const double value = text.toDouble();
    return qIsNaN(value) ? 0.0 : value;
}

/// What the outside sees.
double LineEditNumberBase::publicValue(double v) const
{
    return roundedToDecimals(v, m_precision);
}

/// True if the text has changed, which is not the same as the number. Shows nothing. A value that
/// is not a number leaves all as it is.
bool LineEditNumberBase::setEditValue(double v)
{
    if (qIsNaN(v))
        return false;
    const QString before = m_editText;
    m_editValue = v;
    validateValue(&m_editValue);
    m_editText = valueToText(m_editValue);
    return m_editText != before;
}

/// As setEditValue(), for the committed value. The popup slider follows.
bool LineEditNumberBase::setCurValue(double v)
{
    if (qIsNaN(v))
        return false;
    const QString before = m_curText;
    m_curValue = v;
    validateValue(&m_curValue);
    if (m_popupSlider)
        m_popupSlider->setValue0(m_curValue);
    m_curText = valueToText(m_curValue);
    return m_curText != before;
}

/// The cursor stays where it is, as far as the text goes.
void LineEditNumberBase::showValue(const QString &text)
{
    const int cursor = cursorPosition();
    setText(!isEnabled() && !m_disabledContent.isEmpty() ? m_disabledContent : text);
    setCursorPosition(cursor);
}

/// The commit. The callers pass the text of the edit value, not what stands in the field. False if
/// a listener has deleted the field.
bool LineEditNumberBase::acceptEditValue(const QString &text)
{
    m_editTimer->stop();
    const double v = textToValue(text);
    const QPointer<LineEditNumberBase> self(this);
    if (setEditValue(v))
        reportValueChanging(publicValue(m_editValue));
    if (!self)
        return false;
    showValue(m_editText);
    if (setCurValue(v))
        reportValueChanged(publicValue(m_curValue));
    return !self.isNull();
}

/// Moves the digit left of the cursor by one. A step is a commit, and tells so also at a limit.
void LineEditNumberBase::stepEditValue(int direction)
{
    const int rightOfCursor = m_editText.length() - cursorPosition();
    const int exponent = rightOfCursor > m_precision ? rightOfCursor - 1 : rightOfCursor;
    const double lastDigit = direction / std::pow(10.0, m_precision);
    setEditValue(m_editValue + lastDigit * std::pow(10.0, exponent));
    showValue(m_editText);
    const QPointer<LineEditNumberBase> self(this);
    reportValueChanging(publicValue(m_editValue));
    if (!self)
        return;
    setCurValue(m_editValue);
    reportValueChanged(m_curValue);
}

/// The user types. What is typed stays as it is; only the edit value follows.
void LineEditNumberBase::textEdited(const QString &newText)
{
    const QByteArray place = QByteArray(metaObject()->className()) + "::textEdited-in";
    qDebug() << place.constData() << newText;
    setEditValue(textToValue(newText));
    const QPointer<LineEditNumberBase> self(this);
    reportValueChanging(publicValue(m_editValue));
    if (self)
        restartEditTimer();
}

/// The user has left the edit alone. The edit value survives, and the next commit takes it.
void LineEditNumberBase::editTimeout()
{
    showValue(m_curText);
    const QPointer<LineEditNumberBase> self(this);
    reportValueChanging(publicValue(m_curValue));
    if (self)
        selectAll();
}

/// Whether the edit timer runs, which is all that there is of an edit state.
bool LineEditNumberBase::isEditing() const
{
    return m_editTimer->isActive();
}

void LineEditNumberBase::restartEditTimer()
{
    if (m_editTimeoutEnabled)
        m_editTimer->start();
}

void LineEditNumberBase::keyPressEvent(QKeyEvent *event)
{
    restartEditTimer();
    popUpSliderHide();
    event->accept(); // also what has no effect here, so that no parent sees it
    switch (event->key()) {
    case Qt::Key_0:
    case Qt::Key_1:
    case Qt::Key_2:
    case Qt::Key_3:
    case Qt::Key_4:
    case Qt::Key_5:
    case Qt::Key_6:
    case Qt::Key_7:
    case Qt::Key_8:
    case Qt::Key_9:
    case Qt::Key_Plus:
    case Qt::Key_Minus:
    case Qt::Key_Period:
    case Qt::Key_F: // the letters of "inf"
    case Qt::Key_I:
    case Qt::Key_N:
    case Qt::Key_Backspace:
    case Qt::Key_Delete:
    case Qt::Key_Home:
    case Qt::Key_End:
    case Qt::Key_Left:
    case Qt::Key_Right:
        QLineEdit::keyPressEvent(event);
        break;
    case Qt::Key_Comma: {
        QKeyEvent period(QEvent::KeyPress, Qt::Key_Period, event->modifiers(), QStringLiteral("."));
        QLineEdit::keyPressEvent(&period);
        break;
    }
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (acceptEditValue(m_editText))
            selectAll();
        break;
    case Qt::Key_Up:
        stepEditValue(1);
        break;
    case Qt::Key_Down:
        stepEditValue(-1);
        break;
    default:
        break;
    }
}

/// Only the base's; it stands here for derived classes, beside its counterpart.
void LineEditNumberBase::focusInEvent(QFocusEvent *event)
{
    QLineEdit::focusInEvent(event);
}

void LineEditNumberBase::focusOutEvent(QFocusEvent *event)
{
    popUpSliderHide();
    if (acceptEditValue(m_editText))
        QLineEdit::focusOutEvent(event);
}

void LineEditNumberBase::moveEvent(QMoveEvent *event)
{
    adjustPopupSliderPosition();
    QLineEdit::moveEvent(event);
}

void LineEditNumberBase::resizeEvent(QResizeEvent *event)
{
    adjustPopupSliderPosition();
    QLineEdit::resizeEvent(event);
}

void LineEditNumberBase::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange)
        setText(!isEnabled() && !m_disabledContent.isEmpty() ? m_disabledContent : m_curText);
    QLineEdit::changeEvent(event);
}
