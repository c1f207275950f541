#ifndef PELORIN_THEME_PELORIN_H
#define PELORIN_THEME_PELORIN_H

#include "Pelorin/PelorinGlobal.h"

#include <QString>

/// The entry to the library: its text faces and its style sheet.
///
/// An application calls both operations once, before it creates any widget of the library:
///
/// \code
/// QApplication app(argc, argv);
/// Pelorin::loadApplicationFonts();
/// app.setStyleSheet(Pelorin::getApplicationStylesheet());
/// \endcode
///
/// The resources under `:/Pelorin/` are registered when the library is loaded; nothing needs to be
/// called for that. Nothing in the library installs the sheet.
class PELORIN_EXPORT Pelorin
{
public:
    Pelorin() = delete;

    /// Removes every font that was added to the application's font database, the application's own
    /// included, and adds the three faces of the library: the text face "Calibri" and the two
    /// display faces. A face that cannot be loaded is reported by one warning and left out; Qt then
    /// falls back on a face of the system.
    ///
    /// Call it before the first text in "Calibri" is measured or drawn.
    static void loadApplicationFonts();

    /// The text of `:/Pelorin/css/stylesheet.qss`, up to its first NUL byte, ready for
    /// QApplication::setStyleSheet(). When the resource cannot be opened, the text is empty and one
    /// warning says so.
    static QString getApplicationStylesheet();
};

#endif
