#ifndef PELORIN_SHELL_SPLASHIMAGE_H
#define PELORIN_SHELL_SPLASHIMAGE_H

#include "Pelorin/PelorinGlobal.h"

#include <QWidget>

#include <memory>

class ScaledImage;

/// The picture on the welcome page. It fills the width of the widget and keeps its proportions;
/// what is left below it stays free.
///
/// The picture is the application's: its resources have to hold
/// `:/MainControlPanel/Images/Morvane_software_splash_screen.png`. Without it nothing is shown, and
/// the widget takes no room.
class PELORIN_EXPORT SplashImage : public QWidget
{
    Q_OBJECT

public:
    /// Loads the picture. The widget may grow up to its size and shrink to a width of 200 pixels.
    explicit SplashImage(QWidget *parent = nullptr);
    ~SplashImage() override;

    bool hasHeightForWidth() const override { return true; }
    /// The height of the picture scaled to \a width; 0 without a picture.
    int heightForWidth(int width) const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<ScaledImage> m_image;
};

#endif
