#include "gallery/PageParts.h"
#include "gallery/simulation/Laser.h"
#include "gallery/specimens/Specimens_p.h"

#include <Pelorin/Button>
#include <Pelorin/FlowLayout>
#include <Pelorin/MarquelRemoteControl>
#include <Pelorin/MarquelXRemoteControl>
#include <Pelorin/OstrelRemoteControl>
#include <Pelorin/RemoteControl>
#include <Pelorin/ScrollArea>
#include <Pelorin/ScrollAreaNG>
#include <Pelorin/TabBar>
#include <Pelorin/TabWidget>
#include <Pelorin/stackWidget>

#include <QFrame>
#include <QLabel>
#include <QPainter>
#include <QScrollBar>
#include <QVBoxLayout>
#include <QVariant>

using Simulation::Laser;
using Specimens::sized;

namespace {

// Remote control panels

QWidget *makeRemoteControl()
{
    auto *panel = new RemoteControl;
    panel->setEmission(true);
    return panel;
}

QWidget *makeMarquelRemoteControl()
{
    auto *panel = new MarquelRemoteControl;
    panel->slotEmissionChanged(true);
    return panel;
}

template<class Panel>
QWidget *remotePanel(uchar state)
{
    auto *panel = new Panel;
    panel->slotFSMStateChanged(state);
    return panel;
}

// Lists and layouts

/// An item as an application paints it: white on the current one, a check mark on the checked.
class SourceItem : public ScrollAreaNGItem
{
public:
    explicit SourceItem(const QString &name)
        : m_name(name)
    {
        setFixedHeight(34);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        painter.fillRect(rect(), selected() ? QColor(0x87, 0x21, 0x2E) : QColor(0xF6, 0xF6, 0xF6));
        painter.setPen(selected() ? QColor(Qt::white) : QColor(0x44, 0x44, 0x44));
        QFont font(QStringLiteral("Calibri"));
        font.setPixelSize(16);
        painter.setFont(font);
        painter.drawText(rect().adjusted(34, 0, 0, 0), Qt::AlignVCenter, m_name);
        painter.setBrush(checked() ? QColor(0x95, 0xD4, 0x00) : QColor(0x55, 0x55, 0x55));
        painter.drawEllipse(QPointF(17.0, height() / 2.0), 6.0, 6.0);
    }

private:
    QString m_name;
};

QWidget *makeScrollAreaNG()
{
    auto *list = new ScrollAreaNG(ScrollAreaNG::LayoutVertical, ScrollAreaNG::ScrollBarRed, 0, 2,
                                  Qt::ScrollBarAlwaysOn);
    for (const char *name :
         { "405 nm", "488 nm", "532 nm", "561 nm", "594 nm", "640 nm", "730 nm" })
        list->listItemAppend(new SourceItem(QLatin1String(name)));
    list->listItemSetCurrentIndex(1);
    list->listItemSetChecked(list->listItemAt(3));
    return sized(list, 220, 160);
}

QWidget *makeScrollArea()
{
    auto *area = new ScrollArea(true);
    auto *layout = new QVBoxLayout;
    for (const char *text : { "Crystal 41.3 °C", "Pump current 18.2 A", "Diode 24.6 °C",
                              "Humidity 12 %", "Shutter open", "Interlock closed" })
        layout->addWidget(PageParts::label(QString::fromUtf8(text), "label"));
    area->setLayout(layout);
    return sized(area, 220, 120);
}

QFrame *chip(const QString &name)
{
    auto *result = new QFrame;
    result->setProperty("widget-color", QStringLiteral("light-grey"));
    auto *layout = new QVBoxLayout(result);
    layout->setContentsMargins(12, 6, 12, 6);
    layout->addWidget(PageParts::label(name, "text"));
    return result;
}

QWidget *makeFlowLayout()
{
    auto *ground = new QFrame;
    auto *flow = new FlowLayout(ground, 0, 6, 6);
    for (const char *name : { "DAPI", "Alexa 405", "CFP", "FITC", "GFP", "Rhodamine 6G", "Cy3",
                              "mCherry", "Texas Red", "Cy5" })
        flow->addWidget(chip(QLatin1String(name)));
    return sized(ground, 300, flow->heightForWidth(300));
}

QWidget *makeTabBar()
{
    auto *tabs = new TabBar;
    for (const char *text : { "Setpoints", "Pulses", "Trigger" })
        tabs->addTab(QLatin1String(text));
    return tabs;
}

QWidget *makeTabWidget()
{
    auto *tabs = new TabWidget;
    for (const char *text : { "Setpoints", "Pulses", "Trigger" }) {
        QLabel *page = PageParts::label(QLatin1String(text), "label");
        page->setAlignment(Qt::AlignCenter);
        tabs->addTab(page, QLatin1String(text));
    }
    return sized(tabs, 260, 110);
}

QWidget *makeStackWidget()
{
    auto *stack = new stackWidget;
    for (const char *text : { "Page 1", "Page 2" })
        stack->addWidget(chip(QLatin1String(text)));
    stack->setCurrentIndex(1);
    stack->setFixedWidth(220);
    return stack;
}

} // namespace

QVector<Specimen> Specimens::panels()
{
    return {
        { "RemoteControl", makeRemoteControl },
        { "OstrelRemoteControl", [] { return remotePanel<OstrelRemoteControl>(Laser::Emitting); } },
        { "MarquelRemoteControl", makeMarquelRemoteControl },
        { "MarquelXRemoteControl",
          [] { return remotePanel<MarquelXRemoteControl>(Laser::Tuning); } },
        { "ScrollAreaNG", makeScrollAreaNG },
        { "ScrollArea", makeScrollArea },
        { "stackWidget", makeStackWidget },
        { "TabBar", makeTabBar },
        { "TabWidget", makeTabWidget },
        { "FlowLayout", makeFlowLayout },
    };
}
