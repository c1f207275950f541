#ifndef PELORIN_TESTS_SHEETPROBE_H
#define PELORIN_TESTS_SHEETPROBE_H

#include <QImage>
#include <QWidget>

namespace SheetColors {

constexpr QRgb red = 0xFF87212E;
constexpr QRgb orange = 0xFFED6E00; ///< under the mouse
constexpr QRgb pressedOrange = 0xFFF58B2E;
constexpr QRgb disabledGrey = 0xFFDDDDDD;
constexpr QRgb lightGrey = 0xFFF6F6F6;
constexpr QRgb white = 0xFFFFFFFF;
/// What lies under a probed widget: a colour that no rule knows.
constexpr QRgb ground = 0xFF20C0E0;

} // namespace SheetColors

/// Shows one widget under the library's sheet, on a ground in a colour that no rule knows, and
/// looks at its pixels.
class SheetProbe
{
public:
    /// Installs faces and sheet in the application, over a base style that draws alike everywhere.
    static void installSheet();

    /// The widget stays the caller's. It gets \a size, or what it asks for itself.
    explicit SheetProbe(QWidget &widget, QSize size = QSize());
    ~SheetProbe();

    /// Moves the mouse to a place of the widget, or away from it.
    void hover(QPoint position);
    void hoverMiddle() { hover(m_widget.rect().center()); }
    void leave() { hover(QPoint(-10, -10)); }

    QImage image() const;
    QRgb pixel(QPoint position) const { return image().pixel(position); }
    QRgb middle() const { return pixel(m_widget.rect().center()); }

    /// Whether the picture \a name, stretched to \a place, lies there upon the ground.
    bool shows(const char *name, const QRect &place) const;
    /// Likewise at its own size, from the widget's left upper corner.
    bool showsAtCorner(const char *name) const;

private:
    QWidget m_window;
    QWidget &m_widget;
};

/// A picture of the library by its file name.
QImage themePicture(const char *name);

/// That picture, stretched to \a size and laid upon a plain ground.
QImage pictureUpon(QRgb ground, const char *name, QSize size);

#endif
