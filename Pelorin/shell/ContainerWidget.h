#ifndef PELORIN_SHELL_CONTAINERWIDGET_H
#define PELORIN_SHELL_CONTAINERWIDGET_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

/// A panel on which the controls of an assembly stand. Its ground comes from the style sheet.
class PELORIN_EXPORT ContainerWidget : public QWidget
{
    Q_OBJECT

public:
    /// Without a ground of its own.
    explicit ContainerWidget(QWidget *parent = nullptr);

    /// Gives the panel the light grey ground, or the white one. Style properties are read when a
    /// widget is polished, so this is to be called before the panel is shown.
    void setDarkBackground(bool dark);

protected:
    void paintEvent(QPaintEvent *event) override;
};

#endif
