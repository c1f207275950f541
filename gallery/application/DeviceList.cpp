#include "gallery/application/DeviceList.h"

#include "gallery/simulation/Laser.h"

#include <QKeyEvent>
#include <QPainter>

#include <array>

using Simulation::Laser;

namespace {

constexpr int itemHeight = 50;
constexpr int textLeft = 40;
constexpr QRgb red = 0xFF87212E;
constexpr QRgb orange = 0xFFED6E00;
constexpr QRgb lightGrey = 0xFFDDDDDD;

constexpr QRgb lampOff = 0xFF555555;
constexpr QRgb lampBusy = 0xFFF58B2E;
constexpr QRgb lampEmits = 0xFF95D400;
constexpr QRgb lampFault = 0xFFFF0000;

struct Look
{
    const char *text;
    QRgb lamp;
};

constexpr std::array<Look, Laser::Tuning + 1> looks{ {
    { "Off", lampOff },
    { "Listening", lampOff },
    { "Warming up", lampBusy },
    { "Standby", lampBusy },
    { "Starting", lampBusy },
    { "Ready", lampBusy },
    { "Emission", lampEmits },
    { "Busy", lampBusy },
    { "Emission, tuning", lampEmits },
} };

QFont textFont(int pixels)
{
    QFont result(QStringLiteral("Calibri"));
    result.setPixelSize(pixels);
    return result;
}

} // namespace

DeviceList::DeviceList(QWidget *parent)
    : ScrollAreaNG(LayoutVertical, ScrollBarRed, 0, 0, Qt::ScrollBarAsNeeded, parent)
{
    setFrameShape(QFrame::NoFrame);
}

void DeviceList::add(const QString &title)
{
    listItemAppend(new DeviceItem(title));
    updateGeometry();
}

void DeviceList::showState(int row, uchar state, const QString &fault)
{
    if (!fault.isEmpty())
        item(row)->show(fault, QColor(lampFault));
    else if (state < looks.size())
        item(row)->show(QLatin1String(looks[state].text), QColor(looks[state].lamp));
}

QSize DeviceList::sizeHint() const
{
    return { ScrollAreaNG::sizeHint().width(), itemHeight * listItemCount() };
}

DeviceItem *DeviceList::item(int row) const
{
    return static_cast<DeviceItem *>(listItemAt(row));
}

DeviceItem::DeviceItem(const QString &title)
    : m_title(title)
    , m_lamp(lampOff)
{
    setFixedHeight(itemHeight);
    setFocusPolicy(Qt::StrongFocus);
    setAccessibleName(title);
}

void DeviceItem::show(const QString &state, const QColor &lamp)
{
    if (state == m_state && lamp == m_lamp)
        return;
    m_state = state;
    m_lamp = lamp;
    update();
}

void DeviceItem::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const bool bright = selected() && !underMouse();
    if (selected() || underMouse())
        painter.fillRect(rect(), bright ? QColor(Qt::white) : QColor(orange));

    painter.setPen(QPen(bright ? QColor(lightGrey) : QColor(Qt::white), 1.5));
    painter.setBrush(m_lamp);
    painter.drawEllipse(QPointF(22.0, height() / 2.0), 6.5, 6.5);

    const QRect text = rect().adjusted(textLeft, 6, -8, -6);
    painter.setPen(bright ? QColor(red) : QColor(Qt::white));
    painter.setFont(textFont(18));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignTop, m_title);
    painter.setPen(bright ? QColor(red) : QColor(lightGrey));
    painter.setFont(textFont(13));
    painter.drawText(text, Qt::AlignLeft | Qt::AlignBottom, m_state);

    if (hasFocus()) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(bright ? QColor(red) : QColor(lightGrey), 1.0, Qt::DotLine));
        painter.drawRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5));
    }
}

void DeviceItem::enterEvent(QEvent *event)
{
    ScrollAreaNGItem::enterEvent(event);
    update();
}

void DeviceItem::leaveEvent(QEvent *event)
{
    ScrollAreaNGItem::leaveEvent(event);
    update();
}

void DeviceItem::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton)
        Q_EMIT listItemSetCurrent(this, true);
}

void DeviceItem::keyPressEvent(QKeyEvent *event)
{
    switch (event->key()) {
    case Qt::Key_Space:
    case Qt::Key_Return:
    case Qt::Key_Enter:
        Q_EMIT listItemSetCurrent(this, true);
        return;
    case Qt::Key_Up:
        focusNextPrevChild(false);
        return;
    case Qt::Key_Down:
        focusNextPrevChild(true);
        return;
    default:
        ScrollAreaNGItem::keyPressEvent(event);
    }
}
