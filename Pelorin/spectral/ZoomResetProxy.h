#ifndef PELORIN_SPECTRAL_ZOOMRESETPROXY_H
#define PELORIN_SPECTRAL_ZOOMRESETPROXY_H

#include "Pelorin/PelorinGlobal.h"

#include <QGraphicsProxyWidget>

/// Holds the button of a WavelengthChart that ends a zoom. The button disappears under the mouse
/// that has pressed it; when it comes back, it does not look hovered any more.
class PELORIN_EXPORT ZoomResetProxy : public QGraphicsProxyWidget
{
    Q_OBJECT

public:
    explicit ZoomResetProxy(QGraphicsItem *parent = nullptr);

protected:
    void showEvent(QShowEvent *event) override;
};

#endif
