#include "Pelorin/shell/OverlayImage.h"

#include "Pelorin/shell/ScaledImage_p.h"

OverlayImage::OverlayImage(QWidget *parent)
    : QWidget(parent)
    , m_image(std::make_unique<ScaledImage>())
{}

OverlayImage::~OverlayImage() = default;

int OverlayImage::heightForWidth(int width) const
{
    return m_image->heightForWidth(width);
}

void OverlayImage::setImage(QPixmap image)
{
    m_image->setImage(*this, image);
}

void OverlayImage::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    m_image->paint(painter, width());
}
