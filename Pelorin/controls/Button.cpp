#include "Pelorin/controls/Button.h"

#include "Pelorin/controls/FixedSize_p.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QToolTip>

#include <array>

namespace {

struct SizeRow
{
    int width;
    int height;
    QLatin1String name;
};

constexpr std::array<SizeRow, 11> sizeRows{ {
    { 95, 55, ButtonSize::normal },
    { 95, 55, ButtonSize::fat },
    { 55, 35, ButtonSize::small },
    { 65, 30, ButtonSize::small },
    { 30, 30, ButtonSize::fat },
    { 40, 40, ButtonSize::fat },
    { 32, 32, ButtonSize::fat },
    { 65, 40, ButtonSize::fat },
    { 46, 38, ButtonSize::fat },
    { 29, 24, ButtonSize::fat },
    { 85, 35, ButtonSize::longSmall },
} };

constexpr std::array<QLatin1String, 5> colorNames{ ButtonColor::red, ButtonColor::grey,
                                                   ButtonColor::darkGrey, ButtonColor::green,
                                                   ButtonColor::orange };

/// The name of \a color, that of \a other for a number outside of the enumeration.
QLatin1String colorName(Button::Color color, Button::Color other)
{
    const bool isKnown = color >= Button::Red && color <= Button::Orange;
    return colorNames[std::size_t(isKnown ? color : other)];
}

/// What an emission button says, after its own tool tip.
QString emissionToolTip(const QString &toolTip)
{
    const QString text =
        QStringLiteral("%1<span style=\"font-style:italic; color:#00007f;\">Shortcut: "
                       "Ctrl+Shift+E</span>");
    return text.arg(toolTip.isEmpty() ? QString() : toolTip + QStringLiteral("<br>"));
}

} // namespace

Button::Button(QWidget *parent)
    : QPushButton(parent)
{
    setup();
}

Button::Button(const QString &text, QWidget *parent)
    : QPushButton(text, parent)
{
    setup();
}

void Button::setup()
{
    setSize(Normal);
    setColor(Red);
    setCheckedColor(Orange);
    connect(this, &QPushButton::clicked, this, &Button::emitClicked);
}

void Button::setSize(Button::Size size)
{
    if (size < Normal || size > LongSmall)
        return;
    const SizeRow &row = sizeRows[std::size_t(size)];
    setFixedSize(row.width, row.height);
    setProperty(StyleProperty::buttonSize, row.name);
}

void Button::setSize(int width, int height)
{
    setFixedSize(boundedLength(width), boundedLength(height));
}

void Button::setWidth(int width)
{
    setFixedWidth(boundedLength(width));
}

void Button::setColor(Button::Color color)
{
    m_color = color;
    setProperty(StyleProperty::buttonColor, colorName(color, Red));
    update();
}

void Button::setCheckedColor(Button::Color color)
{
    m_checkedColor = color;
    const char *property =
        color == Red ? StyleProperty::buttonColor : StyleProperty::buttonCheckedColor;
    setProperty(property, colorName(color, Orange));
}

void Button::setEmissionButtonStatus(bool on)
{
    m_emissionButton = on;
    setShortcut(on ? QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_E) : QKeySequence());
}

void Button::setBackgroundImage(QPixmap image)
{
    constexpr int rim = 2;
    setIconSize((size() - QSize(2 * rim, 2 * rim)).expandedTo(QSize(0, 0)));
    setIcon(image);
}

void Button::emitClicked(bool checked)
{
    Q_EMIT clicked(checked, text());
}

void Button::keyPressEvent(QKeyEvent *event)
{
    const bool isRefused = m_emissionButton && event->key() == Qt::Key_Space;
    if (!isEnabled() || isRefused) {
        event->ignore();
        return;
    }
    QPushButton::keyPressEvent(event);
}

bool Button::event(QEvent *event)
{
    if (event->type() == QEvent::ToolTip && m_emissionButton) {
        QToolTip::showText(static_cast<QHelpEvent *>(event)->globalPos(),
                           emissionToolTip(toolTip()), this);
        return true;
    }
    return QPushButton::event(event);
}
