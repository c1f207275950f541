#ifndef PELORIN_CONTAINERS_SCROLLAREANGCONTAINER_H
#define PELORIN_CONTAINERS_SCROLLAREANGCONTAINER_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/shell/QWidgetNG.h"

/// The ground of a ScrollAreaNG, which holds its items; under a name of its own for style sheet and
/// application.
class PELORIN_EXPORT ScrollAreaNGContainer : public QWidgetNG
{
    Q_OBJECT

public:
    explicit ScrollAreaNGContainer(QWidget *parent = nullptr);
};

#endif
