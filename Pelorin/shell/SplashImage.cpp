#include "Pelorin/shell/SplashImage.h"

#include "Pelorin/shell/ScaledImage_p.h"

namespace {

QPixmap splashPicture()
{
    return QPixmap(QStringLiteral(":/MainControlPanel/Images/Morvane_software_splash_screen.png"));
}

} // namespace

SplashImage::SplashImage(QWidget *parent)
    : QWidget(parent)
    , m_image(std::make_unique<ScaledImage>())
{
    m_image->setImage(*this, splashPicture());
}

SplashImage::~SplashImage() = default;

int SplashImage::heightForWidth(int width) const
{
    return m_image->heightForWidth(width);
}

void SplashImage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_image->paint(painter, width());
}
