#include "gallery/Appearance.h"
#include "gallery/PageParts.h"
#include "gallery/simulation/Laser.h"
#include "gallery/specimens/Specimens_p.h"

#include <Pelorin/Button>
#include <Pelorin/CenterTabWidget>
#include <Pelorin/ColHeader>
#include <Pelorin/ContainerWidget>
#include <Pelorin/DockWidget>
#include <Pelorin/GUIOverlay>
#include <Pelorin/GUIWidget>
#include <Pelorin/HorizontalSlider>
#include <Pelorin/MainControlPanel>
#include <Pelorin/MainView>
#include <Pelorin/OstrelRemoteControl>
#include <Pelorin/OverlayImage>
#include <Pelorin/SplashImage>
#include <Pelorin/TavrinMainWindow>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

using Specimens::sized;

namespace {

/// The sheet of an application for what the library leaves to it.
template<class Widget>
Widget *dressed(Widget *widget)
{
    widget->setStyleSheet(Appearance::windowSheet());
    return widget;
}

/// A ground in a colour of the sheet with a name on it.
QFrame *block(const char *name, const char *color)
{
    auto *result = new QFrame;
    result->setProperty("widget-color", QLatin1String(color));
    result->setMinimumSize(150, 60);
    auto *layout = new QVBoxLayout(result);
    const bool red = qstrcmp(color, "red") == 0;
    layout->addWidget(PageParts::label(QLatin1String(name), red ? "panel-label" : "label"), 0,
                      Qt::AlignCenter);
    return result;
}

QWidget *setpoints()
{
    auto *result = new QWidget;
    auto *layout = new QVBoxLayout(result);
    layout->addWidget(PageParts::slider("Power", "mW", 0.0, 250.0, 90.0, 1));
    layout->addWidget(PageParts::slider("Wavelength", "nm", 680.0, 1080.0, 800.0, 1));
    return result;
}

QWidget *makeTavrinMainWindow()
{
    Appearance::loadResources();
    auto *window = dressed(new TavrinMainWindow);
    window->createSystemWidget(setpoints(), QStringLiteral("Laser 1"), false, true);
    window->createGenericDockWidget(block("Devices", "red"), QStringLiteral("Devices"),
                                    Qt::LeftDockWidgetArea, true);
    window->createGenericDockWidget(block("Messages", "white"), QStringLiteral("Messages"),
                                    Qt::BottomDockWidgetArea, true);
    return sized(window, 640, 400);
}

QWidget *makeDockWidget()
{
    auto *dock = dressed(new DockWidget(QStringLiteral("Devices"), Qt::LeftDockWidgetArea, true));
    dock->setWidget(block("Laser 1", "red"));
    return sized(dock, 220, 120);
}

QWidget *makeCenterTabWidget()
{
    Appearance::loadResources();
    auto *tabs = dressed(new CenterTabWidget);
    tabs->appendCenterWidget(block("Laser 1", "white"), QStringLiteral("Laser 1"), false, true);
    tabs->appendCenterWidget(block("Laser 2", "white"), QStringLiteral("Laser 2"), false, false);
    return sized(tabs, 320, 140);
}

QWidget *makeSplashImage()
{
    Appearance::loadResources();
    auto *image = new SplashImage;
    return sized(image, 320, image->heightForWidth(320));
}

QWidget *makeMainControlPanel()
{
    auto *panel = new MainControlPanel;
    panel->showMainControl(block("Main control", "red"), true);
    panel->showChildControl(block("Child control", "light-grey"), true);
    return sized(panel, 170, 200);
}

QWidget *makeColHeader()
{
    auto *header = new ColHeader;
    header->setText(QStringLiteral("Channels"));
    header->setTextStyleSheet(
        QStringLiteral("font-family: Calibri; font-size: 20px; color: #444; padding-left: 12px"));
    header->setFixedWidth(260);
    return header;
}

QWidget *makeMainView()
{
    auto *view = new MainView;
    view->setHeader(QStringLiteral("Ostrel"));
    view->setTinyHeader(QStringLiteral("Laser 1"));
    view->addControlPage(QStringLiteral("Control"), setpoints());
    view->addControlPage(QStringLiteral("Service"), new QWidget);
    auto *panel = new OstrelRemoteControl;
    panel->slotFSMStateChanged(Simulation::Laser::Emitting);
    view->setRemoteControlWidget(panel);
    view->showWarning(true);
    view->setControlPage(0);
    return sized(view, 760, 460);
}

QWidget *page(GUIWidget *module)
{
    auto *layout = new QVBoxLayout(module);
    layout->setContentsMargins(16, 12, 16, 12);
    layout->addWidget(PageParts::label(QStringLiteral("Shutter"), "label-header"));
    layout->addWidget(PageParts::label(QStringLiteral("Open for 12.5 ms"), "label"));
    auto *start = new Button(QStringLiteral("Start"));
    start->setSize(Button::LongSmall);
    layout->addWidget(start);
    return sized(module, 360, 160);
}

QWidget *makeGUIWidget()
{
    auto *module = new GUIWidget;
    module->setEnabled(false);
    return page(module);
}

QWidget *makeGUIOverlay()
{
    QWidget *ground = setpoints();
    auto *overlay = new GUIOverlay(ground);
    overlay->setOverlayMessage(QStringLiteral("Warming up"));
    ground->setFixedWidth(400);
    return ground;
}

QWidget *makeOverlayImage()
{
    auto *image = new OverlayImage;
    image->setImage(QPixmap(QStringLiteral(":/Pelorin/images/images/tavrinLogo.png")));
    return sized(image, 220, image->heightForWidth(220));
}

QWidget *makeContainerWidget()
{
    auto *panel = new ContainerWidget;
    panel->setDarkBackground(true);
    auto *layout = new QHBoxLayout(panel);
    layout->addWidget(PageParts::label(QStringLiteral("Delay"), "label"));
    layout->addStretch(1);
    layout->addWidget(PageParts::label(QStringLiteral("12.5 ns"), "label"));
    return sized(panel, 220, 56);
}

} // namespace

QVector<Specimen> Specimens::shell()
{
    return {
        { "TavrinMainWindow", makeTavrinMainWindow },
        { "DockWidget", makeDockWidget },
        { "CenterTabWidget", makeCenterTabWidget },
        { "SplashImage", makeSplashImage },
        { "MainControlPanel", makeMainControlPanel },
        { "ColHeader", makeColHeader },
        { "MainView", makeMainView },
        { "GUIWidget", makeGUIWidget },
        { "GUIOverlay", makeGUIOverlay },
        { "OverlayImage", makeOverlayImage },
        { "ContainerWidget", makeContainerWidget },
    };
}
