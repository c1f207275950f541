#ifndef PELORIN_GALLERY_APPEARANCE_H
#define PELORIN_GALLERY_APPEARANCE_H

#include <QString>

class QFrame;
class QVBoxLayout;
class TavrinMainWindow;

/// What the windows of this program have in common.
namespace Appearance {

/// Makes the pictures of this program known. The main window of the library looks for one of them
/// when it is built, so this comes before.
void loadResources();

/// The sheet of a window, in the colours of the library's own, which is installed on the application.
QString windowSheet();

/// A red column that begins with the name of the library; \a layout is given back, to be filled.
QFrame *sidebar(QVBoxLayout *&layout);

/// Makes \a window the one that the popups of fields follow which are built from now on.
void announce(TavrinMainWindow *window);
/// Takes that back, if \a window is still the one.
void withdraw(TavrinMainWindow *window);

} // namespace Appearance

#endif
