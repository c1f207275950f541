#ifndef PELORIN_TESTS_PULSEPICTURE_H
#define PELORIN_TESTS_PULSEPICTURE_H

#include "tests/support/PaintRecorder.h"
#include "tests/support/RepaintCounter.h"

#include <QFontMetrics>
#include <QImage>
#include <QWidget>
#include <QtTest>

/// What the pulse views share in their pictures.
namespace PulsePicture {

constexpr QRgb ground = 0xFFFFFFFF;
constexpr QRgb frame = 0xFF8C8A8C;
constexpr QRgb pulse = 0xFF842029;
constexpr QRgb label = 0xFFC6C7C6;

inline QImage of(QWidget &view)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor::fromRgb(ground));
    view.setPalette(palette);
    return view.grab().toImage();
}

inline QFont font(bool bold)
{
    return bold ? QFont(QStringLiteral("Calibri"), 10, 75) : QFont(QStringLiteral("Calibri"), 10);
}

inline QRect bounds(const QString &text, bool bold)
{
    return QFontMetrics(font(bold)).tightBoundingRect(text);
}

/// A black line that is antialiased covers a half of each of two pixels.
inline bool isDark(const QImage &image, QPoint place)
{
    return qGray(image.pixel(place)) < 160;
}

inline void checkText(QWidget &view, const QString &text, QPoint baseline, bool bold = false)
{
    const PaintRecorder::Text found = PaintRecorder(view).find(text);
    QCOMPARE(found.text, text);
    QCOMPARE(found.baseline.toPoint(), baseline);
    QCOMPARE(found.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(found.font.pointSize(), 10);
    QCOMPARE(found.font.bold(), bold);
    QCOMPARE(found.color.rgb(), 0xFF000000);
}

/// Size, frame, base line, title and caption.
inline void checkFrame(QWidget &view, const QString &title, const QString &caption, QPoint place)
{
    QCOMPARE(view.contentsMargins(), QMargins(10, 10, 10, 10));
    QCOMPARE(view.minimumSize(), QSize(300, 160));
    QCOMPARE(view.maximumSize(), QSize(300, 160));

    view.resize(300, 160);
    const QImage image = of(view);
    for (const QPoint corner : { QPoint(10, 10), QPoint(289, 10), QPoint(10, 149), QPoint(289, 149),
                                 QPoint(10, 80), QPoint(289, 80) })
        QCOMPARE(image.pixel(corner), frame);
    QCOMPARE(image.pixel(6, 80), ground);
    QCOMPARE(image.pixel(293, 80), ground);
    QCOMPARE(image.pixel(20, 122), pulse);
    QCOMPARE(image.pixel(280, 122), pulse);

    checkText(view, title, QPoint(14, bounds(title, true).height() - 1 + 13), true);
    checkText(view, caption, place);

    view.setStyleSheet(QStringLiteral("QWidget { background-color: #123456; }"));
    QCOMPARE(view.grab().toImage().pixel(5, 5), 0xFF123456);
}

/// The box under \a text, with its corner at \a place, and the text in it.
inline void checkLabel(QWidget &view, const QString &text, QPoint place)
{
    const QRect size = bounds(text, false);
    const QImage image = of(view);
    QCOMPARE(image.pixel(place), label);
    QCOMPARE(image.pixel(place + QPoint(size.width() + 10, size.height() + 6)), label);
    QVERIFY(image.pixel(place - QPoint(1, 1)) != label);
    QVERIFY(image.pixel(place + QPoint(size.width() + 11, size.height() + 7)) != label);
    checkText(view, text, place + QPoint(5, size.height() + 3));
}

} // namespace PulsePicture

#endif
