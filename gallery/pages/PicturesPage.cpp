#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <QFrame>
#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QVBoxLayout>

namespace {

constexpr int columns = 6;
/// Of the longest name but one; the last column takes that.
constexpr int columnWidth = 133;
constexpr int lastColumnWidth = 141;

/// Six columns, so that families of two, three, four and six states stand in whole.
const char *const names[] = {
    "PlayNormal",
    "PlayHover",
    "PlayDisabled",
    "StopNormal",
    "StopHover",
    "StopDisabled",
    "PauseNormal",
    "PauseHover",
    "PauseDisabled",
    "ContinueNormal",
    "ContinueHover",
    "ContinueDisabled",
    "SaveNormal",
    "SaveHover",
    "SaveDisabled",
    "radio",
    "radioHover",
    "radioChecked",
    "checkbox",
    "checkboxHover",
    "checkboxChecked",
    "checkboxCheckedHover",
    "EditNormal",
    "EditHover",
    "checkbox18",
    "checkboxHover18",
    "checkboxChecked18",
    "checkboxCheckedHover18",
    "checkboxDisabled18",
    "checkboxCheckedDisabled18",
    "save18",
    "saveHover18",
    "saveDisabled18",
    "zoomreset18",
    "zoomresetHover18",
    "zoomresetDisabled18",
    "downArrow",
    "downArrowHover",
    "downArrowDark",
    "downArrowRed",
    "upArrow",
    "upArrowHover",
    "downArrow10",
    "downArrow10Hover",
    "downArrow10Dark",
    "downArrow10Red",
    "cross",
    "crossHover",
    "upArrowSmall1",
    "upArrowSmall1Hover",
    "dnArrowSmall1",
    "dnArrowSmall1Hover",
    "SetNormal",
    "SetHover",
    "upArrowBig1",
    "upArrowBig1Hover",
    "dnArrowBig1",
    "dnArrowBig1Hover",
    "TrashNormal",
    "TrashHover",
    "settings",
    "settingsHover",
    "warningGrey",
    "warningOrange",
    "PreRequisiteFulfilled",
    "PreRequisiteMissing",
    "SliderPopupButton16",
    "SliderPopupButtonHover16",
    "sine",
    "triangleSignal",
    "sawPosRamp",
    "sawNegRamp",
};

/// One picture twice: on light ground and, beside it or below it, on dark.
class Tile : public QWidget
{
public:
    Tile(const char *name, QSize size, Qt::Orientation orientation, double scale = 1.0)
        : m_picture(QStringLiteral(":/Pelorin/images/images/%1.png").arg(QLatin1String(name)))
        , m_orientation(orientation)
        , m_scale(scale)
    {
        setFixedSize(size);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        const bool beside = m_orientation == Qt::Horizontal;
        const QSize half = beside ? QSize(width() / 2, height()) : QSize(width(), height() / 2);
        const QPoint second = beside ? QPoint(half.width(), 0) : QPoint(0, half.height());
        drawOn(painter, QRect(QPoint(), half), QColor(0xF6, 0xF6, 0xF6));
        drawOn(painter, QRect(second, half), QColor(0x1E, 0x1E, 0x1E));
    }

private:
    void drawOn(QPainter &painter, const QRect &ground, const QColor &color)
    {
        painter.fillRect(ground, color);
        QRect place(QPoint(), m_picture.size() * m_scale);
        place.moveCenter(ground.center());
        painter.drawPixmap(place, m_picture);
    }

    QPixmap m_picture;
    Qt::Orientation m_orientation;
    double m_scale;
};

QLabel *nameLabel(const QString &name)
{
    auto *label = new QLabel(name);
    label->setObjectName(QStringLiteral("pictureName"));
    return label;
}

QLayout *named(const QString &name, QWidget *tile)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(1);
    layout->addWidget(tile);
    layout->addWidget(nameLabel(name));
    return layout;
}

QFrame *pictureCard()
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(5);
    grid->setVerticalSpacing(5);
    int index = 0;
    for (const char *name : names) {
        auto *tile = new Tile(name, QSize(columnWidth - 4, 40), Qt::Horizontal);
        grid->addLayout(named(QLatin1String(name), tile), index / columns, index % columns);
        ++index;
    }
    for (int column = 0; column < columns; ++column)
        grid->setColumnMinimumWidth(column, column < columns - 1 ? columnWidth : lastColumnWidth);
    grid->setRowStretch(index / columns, 1);
    return PageParts::card(QStringLiteral("Pictures"), QString(), grid);
}

QFrame *logoCard()
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(8);
    for (const char *name : { "tavrinLogo", "nonameLogo" })
        layout->addLayout(
            named(QLatin1String(name), new Tile(name, QSize(176, 2 * 44), Qt::Vertical)));
    layout->addLayout(named(QStringLiteral("triangle, at 40 %"),
                            new Tile("triangle", QSize(176, 96), Qt::Horizontal, 0.4)));
    return PageParts::card(QStringLiteral("Marks"), QString(), layout);
}

QLabel *faceLabel(const QString &family, int pixels, const QString &text)
{
    auto *label = new QLabel(text);
    label->setStyleSheet(QStringLiteral("font-family: \"%1\"; font-size: %2px; color: #444")
                             .arg(family)
                             .arg(pixels));
    return label;
}

void addFace(QVBoxLayout *layout, const QString &family, const QString &word)
{
    layout->addWidget(faceLabel(family, 32, word));
    layout->addWidget(
        faceLabel(family, 15, QStringLiteral("ABCDEFGHIJKLM\nNOPQRSTUVWXYZ\n0123456789 &.,:!?")));
}

QFrame *faceCard()
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(4);
    addFace(layout, QStringLiteral("Tavrin"), QStringLiteral("TAVRIN"));
    layout->addSpacing(12);
    addFace(layout, QStringLiteral("Dravik"), QStringLiteral("OSTREL 40"));
    layout->addStretch(1);
    return PageParts::card(QStringLiteral("Tavrin and Dravik"), QString(), layout);
}

} // namespace

QWidget *buildPicturesPage()
{
    auto *page = new QWidget;
    page->setStyleSheet(
        QStringLiteral("#pictureName { font-family: \"Calibri\"; font-size: 12px; color: #444; }"));
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    grid->addWidget(pictureCard(), 0, 0, 2, 1);
    grid->addWidget(logoCard(), 0, 1);
    grid->addWidget(faceCard(), 1, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(1, 1);
    return page;
}
