#ifndef PELORIN_GALLERY_PAGEPARTS_H
#define PELORIN_GALLERY_PAGEPARTS_H

#include <QString>

#include <functional>

class HorizontalSlider;
class QComboBox;
class QFrame;
class QHBoxLayout;
class QLabel;
class QLayout;
class QVBoxLayout;
class QWidget;

/// The few parts from which every page is laid out, in the theme's own labels and colours.
namespace PageParts {

/// Space between cards, and from the edge of a page.
constexpr int gap = 16;

/// A label in one of the theme's types: "heading", "label", "text", "text-bold", ...
QLabel *label(const QString &text, const char *type);

/// A horizontal slider from \a min to \a max that stands at \a value.
HorizontalSlider *slider(const char *title, const char *unit, double min, double max, double value,
                         int decimals);

/// \a widget at its own size under a \a name.
QVBoxLayout *named(const char *name, QWidget *widget);

/// A check box before its \a name; \a follow hears of every change.
QHBoxLayout *option(const char *name, bool checked, const std::function<void(bool)> &follow);

/// A white card with \a caption over \a content, and a fainter \a note under the caption where
/// there is something to add.
QFrame *card(const QString &caption, const QString &note, QLayout *content);

/// The same around a single widget.
QFrame *card(const QString &caption, const QString &note, QWidget *content);

/// A white card with \a readout at the right of \a caption, over \a content.
QFrame *readoutCard(const QString &caption, QLabel *readout, QWidget *content);

/// The open list of \a box as a picture of that width, for an open list closes when one looks
/// elsewhere. The item \a current is marked. The picture takes the box over.
QLabel *openList(QComboBox *box, int current, int width);

/// Makes \a widget a specimen: it keeps the state it is in, whatever mouse and keyboard do.
void freeze(QWidget *widget);

/// A specimen of what \a widget looks like under the mouse.
void freezeHovered(QWidget *widget);

} // namespace PageParts

#endif
