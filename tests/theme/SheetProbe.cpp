#include "tests/theme/SheetProbe.h"

#include "Pelorin/theme/Pelorin.h"

#include <QApplication>
#include <QPainter>
#include <QtTest>

void SheetProbe::installSheet()
{
    QApplication::setStyle(QStringLiteral("Fusion"));
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
}

SheetProbe::SheetProbe(QWidget &widget, QSize size)
    : m_widget(widget)
{
    QPalette palette = m_window.palette();
    palette.setColor(QPalette::Window, QColor::fromRgb(SheetColors::ground));
    m_window.setPalette(palette);

    m_widget.setParent(&m_window);
    m_widget.ensurePolished();
    m_widget.resize(size.isValid() ? size : m_widget.sizeHint());
    m_widget.move(20, 20);
    m_window.resize(m_widget.size() + QSize(40, 40));
    m_window.show();
    leave();
}

SheetProbe::~SheetProbe()
{
    m_widget.setParent(nullptr);
}

void SheetProbe::hover(QPoint position)
{
    // Along the way, for a widget that has just been entered takes only the next move.
    const QPoint target = m_widget.mapTo(&m_window, position);
    QTest::mouseMove(m_window.windowHandle(), target - QPoint(1, 0));
    QTest::mouseMove(m_window.windowHandle(), target);
    QApplication::processEvents();
}

QImage SheetProbe::image() const
{
    auto &window = const_cast<QWidget &>(m_window);
    return window.grab(m_widget.geometry()).toImage().convertToFormat(QImage::Format_RGB32);
}

bool SheetProbe::shows(const char *name, const QRect &place) const
{
    return image().copy(place) == pictureUpon(SheetColors::ground, name, place.size());
}

bool SheetProbe::showsAtCorner(const char *name) const
{
    return shows(name, QRect(QPoint(), themePicture(name).size()));
}

QImage themePicture(const char *name)
{
    return QImage(QStringLiteral(":/Pelorin/images/images/") + QLatin1String(name));
}

QImage pictureUpon(QRgb ground, const char *name, QSize size)
{
    QImage image(size, QImage::Format_RGB32);
    image.fill(ground);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(image.rect(), themePicture(name));
    return image;
}
