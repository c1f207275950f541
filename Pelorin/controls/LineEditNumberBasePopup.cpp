#include "Pelorin/controls/LineEditNumberBase.h"
#include "Pelorin/shell/TavrinMainWindow.h"
#include "Pelorin/sliders/ScaleSliderNG.h"

#include <QAction>
#include <QApplication>
#include <QDebug>
#include <QIcon>
#include <QSignalBlocker>
#include <QVariant>

#include <algorithm>
#include <cmath>

namespace {

constexpr int popupWidth = 400;
constexpr int popupMargins = 5;
constexpr int popupGap = 2; ///< between field and popup

/// Decoded once for all fields, and given back before the application object goes.
QIcon popupButtonIcon()
{
    static QIcon icon;
    if (icon.isNull()) {
        const QString path = QStringLiteral(":/Pelorin/images/images/SliderPopupButton%1.png");
        icon.addFile(path.arg(QStringLiteral("16")), QSize(), QIcon::Normal, QIcon::Off);
        icon.addFile(path.arg(QStringLiteral("Hover16")), QSize(), QIcon::Active, QIcon::Off);
        qAddPostRoutine([] { icon = QIcon(); });
    }
    return icon;
}

/// The window that the application has stored; null for anything else, also for a window that is
/// gone.
TavrinMainWindow *applicationWindow()
{
    const QVariant stored = qApp->property("APPLICATIONWINDOWPTR");
    if (!QMetaType(stored.userType()).flags().testFlag(QMetaType::PointerToQObject))
        return nullptr;
    auto *object = *static_cast<QObject *const *>(stored.constData());
    const QWidgetList living = QApplication::allWidgets();
    const auto isObject = [object](const QObject *each) { return each == object; };
    if (std::none_of(living.cbegin(), living.cend(), isObject))
        return nullptr;
    return qobject_cast<TavrinMainWindow *>(object);
}

} // namespace

void LineEditNumberBase::createPopupSlider()
{
    m_popupSlider = new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleSqrt, this);
    m_popupSlider->setSliderSize(true, false, true);
    m_popupSlider->setSideMargins(popupMargins);
    m_popupSlider->setFixedWidth(popupWidth);
    m_popupSlider->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint
                                  | Qt::WindowDoesNotAcceptFocus);
    m_popupSlider->setAttribute(Qt::WA_TranslucentBackground);
    m_popupSlider->setValuePrecision(m_precision);
    connect(m_popupSlider, &ScaleSliderNG::valueChanging0, this,
            &LineEditNumberBase::priPopupSliderValueChanging);
    connect(m_popupSlider, &ScaleSliderNG::valueChanged0, this,
            &LineEditNumberBase::priPopupSliderValueChanged);
}

void LineEditNumberBase::followMainWindow()
{
    const TavrinMainWindow *window = applicationWindow();
    if (!window)
        return;
    connect(window, &TavrinMainWindow::sigMainWindowMoved, this,
            &LineEditNumberBase::slotMainWindowMoved);
    connect(window, &TavrinMainWindow::sigMainWindowResized, this,
            &LineEditNumberBase::slotMainWindowResized);
}

/// The action comes into the field when the popup slider is enabled.
void LineEditNumberBase::createPopupSliderButton()
{
    m_popupSliderAction = new QAction(popupButtonIcon(), QString(), this);
    connect(m_popupSliderAction, &QAction::triggered, this,
            &LineEditNumberBase::priPopupSliderVisibilityChange);
}

void LineEditNumberBase::popUpSliderEnable(bool enable, bool logarithmic)
{
    m_popupSliderEnabled = enable;
    if (!enable) {
        removeAction(m_popupSliderAction);
        return;
    }
    if (m_popupSlider) {
        m_popupSlider->setScaleType(logarithmic ? ScaleSliderNG::ScaleSqrt
                                                : ScaleSliderNG::ScaleLinear);
        // A new scale leaves the handle where it was, and the next drag would begin with a leap.
        adjustPopupSliderRange();
        setPopupSliderValue();
    }
    addAction(m_popupSliderAction, QLineEdit::TrailingPosition);
}

void LineEditNumberBase::popUpSliderHide()
{
    if (isPopupShown())
        hidePopupSlider();
}

/// The popup goes when its window moves; the next one is placed anew.
void LineEditNumberBase::slotMainWindowMoved(QPoint, QPoint newGlobalPos)
{
    m_mainWindowGeometry.setTopLeft(newGlobalPos);
    hidePopupSlider();
}

void LineEditNumberBase::slotMainWindowResized(QRect globalRect)
{
    m_mainWindowGeometry = globalRect;
    hidePopupSlider();
}

/// Opens the popup, or closes it.
void LineEditNumberBase::priPopupSliderVisibilityChange(bool)
{
    if (!m_popupSliderEnabled || !m_popupSlider || m_popupSlider->isVisible()) {
        hidePopupSlider();
        return;
    }
    m_popupSlider->show();
    adjustPopupSliderPosition();
}

void LineEditNumberBase::priPopupSliderValueChanging(double value)
{
    qDebug() << "priPopupSliderValueChanging" << value;
    setEditValue(value);
    showValue(m_editText);
    reportValueChanging(publicValue(m_editValue));
}

/// Commits the edit value, which the slider has set with its last valueChanging0().
void LineEditNumberBase::priPopupSliderValueChanged(double value)
{
    qDebug() << "priPopupSliderValueChanged" << value;
    if (acceptEditValue(m_editText))
        selectAll();
}

/// Whether there is a popup to be hidden by what the user does in the field.
bool LineEditNumberBase::isPopupShown() const
{
    return m_popupSliderEnabled && m_popupSlider && m_popupSlider->isVisible();
}

void LineEditNumberBase::hidePopupSlider()
{
    if (m_popupSlider)
        m_popupSlider->hide();
}

/// With infinity on, the far end of the slider lies a step above the maximum and means infinity.
void LineEditNumberBase::adjustPopupSliderRange()
{
    if (!m_popupSlider)
        return;
    const double step = m_precision < 1 ? 1.0 : 1.0 / std::pow(10.0, m_precision);
    const QSignalBlocker blocker(m_popupSlider);
    m_popupSlider->setRange(m_minimum, m_infinityEnabled ? m_maximum + step : m_maximum, false);
}

void LineEditNumberBase::setPopupSliderValue()
{
    if (!m_popupSlider)
        return;
    const QSignalBlocker blocker(m_popupSlider);
    m_popupSlider->setValue0(m_curValue);
}

/// Centred under the field. A hidden popup is placed when it is shown.
void LineEditNumberBase::adjustPopupSliderPosition()
{
    if (!m_popupSlider)
        return;
    const QPoint corner = mapToGlobal(QPoint(0, 0));
    const double x =
        corner.x() + width() * 0.5 - m_popupSlider->width() * 0.5 - m_mainWindowGeometry.left();
    const int y = corner.y() + height() + popupGap - m_mainWindowGeometry.top();
    m_popupRelativePos = QPoint(int(x), y);
    if (m_popupSlider->isVisible())
        m_popupSlider->move(m_popupRelativePos + m_mainWindowGeometry.topLeft());
}
