#ifndef PELORIN_GALLERY_DEVICEVIEW_H
#define PELORIN_GALLERY_DEVICEVIEW_H

#include "gallery/application/Controls.h"

class MainView;

/// The view of one device: control pages under tabs, settings, the remote control panel of its family,
/// and the warning button. The caller owns the view; the instrument must outlive it.
MainView *makeDeviceView(const Controls::Desk &desk);

#endif
