#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <Pelorin/Button>
#include <Pelorin/GUIWidget>
#include <Pelorin/Indicator>
#include <Pelorin/OverlayImage>

#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPainter>
#include <QVBoxLayout>
#include <QVariant>

#include <cmath>

namespace {

/// A module's page as the operator knows it: a name, a reading, a lamp and two buttons of which one
/// counts its clicks.
GUIWidget *modulePage()
{
    auto *module = new GUIWidget;
    module->setMinimumHeight(176);
    auto *lamp = new Indicator;
    lamp->setColor(Indicator::Green);
    QLabel *count = PageParts::label(QStringLiteral("0 clicks"), "text");
    auto *start = new Button(QStringLiteral("Start"));
    start->setSize(Button::LongSmall);
    QObject::connect(start, &Button::clicked, count, [count] {
        const int clicks = count->property("clicks").toInt() + 1;
        count->setProperty("clicks", clicks);
        count->setText(clicks == 1 ? QStringLiteral("1 click")
                                   : QStringLiteral("%1 clicks").arg(clicks));
    });
    auto *stop = new Button(QStringLiteral("Stop"));
    stop->setSize(Button::LongSmall);
    stop->setColor(Button::DarkGrey);

    auto *head = new QHBoxLayout;
    head->addWidget(PageParts::label(QStringLiteral("Shutter"), "label-header"));
    head->addStretch(1);
    head->addWidget(lamp);
    auto *foot = new QHBoxLayout;
    foot->setSpacing(12);
    foot->addWidget(start);
    foot->addWidget(stop);
    foot->addStretch(1);
    foot->addWidget(count);
    auto *layout = new QVBoxLayout(module);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addLayout(head);
    layout->addWidget(PageParts::label(QStringLiteral("Open for 12.5 ms"), "label"));
    layout->addStretch(1);
    layout->addLayout(foot);
    return module;
}

QFrame *moduleCard(const char *caption, const char *note, GUIWidget *module)
{
    auto *frame = new QFrame;
    frame->setObjectName(QStringLiteral("module"));
    frame->setStyleSheet(QStringLiteral("#module { border: 1px solid #DDD; }"));
    auto *inside = new QVBoxLayout(frame);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(module);
    return PageParts::card(QLatin1String(caption), QLatin1String(note), frame);
}

void addModules(QGridLayout *grid)
{
    grid->addWidget(moduleCard("Enabled", "No overlay.", modulePage()), 0, 0);

    GUIWidget *disabled = modulePage();
    disabled->setEnabled(false);
    grid->addWidget(moduleCard("Disabled", "The overlay says so.", disabled), 0, 1);

    GUIWidget *message = modulePage();
    message->setOverlayMessage(QStringLiteral("Warming up"));
    grid->addWidget(moduleCard("Enabled, with a message",
                               "The controls below keep the mouse: Start still counts.", message),
                    1, 0);

    GUIWidget *both = modulePage();
    both->setDisabledMessage(QStringLiteral("Not connected"));
    both->setOverlayMessage(QStringLiteral("Updating"));
    both->setEnabled(false);
    grid->addWidget(
        moduleCard("Disabled, with a message", "The message goes before \"Not connected\".", both),
        1, 1);
}

/// Interference rings, drawn once.
QPixmap rings()
{
    QPixmap pixmap(720, 180);
    pixmap.fill(QColor(0x33, 0x0C, 0x11));
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setBrush(Qt::NoBrush);
    for (int i = 0; i < 26; ++i) {
        const qreal radius = 22.0 * std::sqrt(i * 4.0);
        painter.setPen(QPen(QColor(0xED, 0x6E, 0x00, 230 - i * 8), 7.0 - i * 0.2));
        painter.drawEllipse(QPointF(360, 90), radius, radius);
    }
    return pixmap;
}

QFrame *imageCard()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(PageParts::gap);
    for (const int width : { 480, 280, 200 }) {
        auto *image = new OverlayImage;
        image->setImage(rings());
        image->setFixedSize(width, image->heightForWidth(width));
        row->addWidget(image, 0, Qt::AlignTop);
    }
    row->addStretch(1);
    return PageParts::card(QStringLiteral("Overlay image"),
                           QStringLiteral("One picture at a width of 480, 280 and 200, the least "
                                          "that it takes."),
                           row);
}

} // namespace

QWidget *buildOverlayPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    addModules(grid);
    grid->addWidget(imageCard(), 2, 0, 1, 2);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return page;
}
