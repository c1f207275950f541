#ifndef PELORIN_CONTAINERS_TABBAR_H
#define PELORIN_CONTAINERS_TABBAR_H

#include "Pelorin/PelorinGlobal.h"

#include <QTabBar>

/// A tab bar under a name of its own, so that application and style sheet can tell it from others.
class PELORIN_EXPORT TabBar : public QTabBar
{
    Q_OBJECT

public:
    explicit TabBar(QWidget *parent = nullptr);
    ~TabBar() override;
};

#endif
