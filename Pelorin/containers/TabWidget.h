#ifndef PELORIN_CONTAINERS_TABWIDGET_H
#define PELORIN_CONTAINERS_TABWIDGET_H

#include "Pelorin/PelorinGlobal.h"

#include <QTabWidget>

/// A tab widget under a name of its own, so that application and style sheet can tell it from others.
class PELORIN_EXPORT TabWidget : public QTabWidget
{
    Q_OBJECT

public:
    explicit TabWidget(QWidget *parent = nullptr);
    ~TabWidget() override;
};

#endif
