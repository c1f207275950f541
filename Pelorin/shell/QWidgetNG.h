#ifndef PELORIN_SHELL_QWIDGETNG_H
#define PELORIN_SHELL_QWIDGETNG_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

/// A plain widget with a name of its own, the base of the items and the container of an item list.
/// Backgrounds and borders of the style sheet reach it and what derives from it, as they do a
/// QWidget itself.
class PELORIN_EXPORT QWidgetNG : public QWidget
{
    Q_OBJECT

public:
    explicit QWidgetNG(QWidget *parent = nullptr);
};

#endif
