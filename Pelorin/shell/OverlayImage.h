#ifndef PELORIN_SHELL_OVERLAYIMAGE_H
#define PELORIN_SHELL_OVERLAYIMAGE_H

#include "Pelorin/PelorinGlobal.h"

#include <QPixmap>
#include <QWidget>

#include <memory>

class ScaledImage;

/// A picture that fills the width of the widget and keeps its proportions; what is left below it
/// stays free. Give it to a layout that minds the height for a width.
///
/// SplashImage is the same with the picture of the application's start.
class PELORIN_EXPORT OverlayImage : public QWidget
{
    Q_OBJECT

public:
    /// Without a picture, and without limits to its size.
    explicit OverlayImage(QWidget *parent = nullptr);
    ~OverlayImage() override;

    bool hasHeightForWidth() const override { return true; }
    /// The height of the picture scaled to \a width; 0 without a picture.
    int heightForWidth(int width) const override;

public Q_SLOTS:
    /// Shows \a image. The widget may grow up to its size in pixels and shrink to a width of 200,
    /// which for a smaller picture is also what it takes at least. An empty image sets all limits
    /// to 0.
    void setImage(QPixmap image);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<ScaledImage> m_image;
};

#endif
