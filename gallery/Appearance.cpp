#include "gallery/Appearance.h"

#include <Pelorin/TavrinMainWindow>

#include <QApplication>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

/// Resources of a static library have to be asked for, and from outside of any namespace.
static void initResources()
{
    Q_INIT_RESOURCE(gallery);
}

namespace {

constexpr int sidebarWidth = 216;
const char mainWindowProperty[] = "APPLICATIONWINDOWPTR";

} // namespace

void Appearance::loadResources()
{
    initResources();
}

QString Appearance::windowSheet()
{
    return QStringLiteral(R"(
DockWidget { font-family: "Calibri"; font-size: 14px; color: #444; }
DockWidget::title { background-color: #DDD; padding: 6px 16px; }
CenterTabWidget > QTabWidget > QTabBar::tab {
    font-family: "Calibri"; font-size: 15px; color: #666; background-color: #DDD;
    padding: 6px 16px; border: none; border-right: 1px solid #F6F6F6; border-top: 3px solid #DDD;
}
CenterTabWidget > QTabWidget > QTabBar::tab:hover { background-color: #ED6E00; color: #FFF; }
CenterTabWidget > QTabWidget > QTabBar::tab:selected {
    background-color: #F6F6F6; color: #444; border-top: 3px solid #87212E;
}
#sidebar { background-color: #87212E; }
#brand { font-family: "Tavrin"; font-size: 26px; color: #FFF; }
#sidebar QListWidget {
    background-color: transparent; border: none; outline: 0px;
    font-family: "Calibri"; font-size: 16px; color: #DDD;
}
#sidebar QListWidget::item { padding: 5px 16px; border: none; }
#sidebar QListWidget::item:hover { background-color: #ED6E00; color: #FFF; }
#sidebar QListWidget::item:selected { background-color: #FFF; color: #87212E; }
#sidebar ScrollAreaNG, #sidebar ScrollAreaNGContainer { background-color: #87212E; border: none; }
#ground, #page { background-color: #F6F6F6; }
#card { background-color: #FFF; border: 1px solid #DDD; border-radius: 6px; }
#signalLog { background-color: #F6F6F6; color: #444; font-family: "DejaVu Sans Mono", monospace;
    font-size: 12px; }
)");
}

QFrame *Appearance::sidebar(QVBoxLayout *&layout)
{
    auto *sidebar = new QFrame;
    sidebar->setObjectName(QStringLiteral("sidebar"));
    sidebar->setMinimumWidth(sidebarWidth);
    auto *brand = new QLabel(QStringLiteral("Pelorin"));
    brand->setObjectName(QStringLiteral("brand"));
    auto *row = new QHBoxLayout;
    row->setContentsMargins(16, 0, 16, 0);
    row->addWidget(brand);
    layout = new QVBoxLayout(sidebar);
    layout->setContentsMargins(0, 24, 0, 16);
    layout->setSpacing(0);
    layout->addLayout(row);
    layout->addSpacing(24);
    return sidebar;
}

void Appearance::announce(TavrinMainWindow *window)
{
    qApp->setProperty(mainWindowProperty, QVariant::fromValue(window));
}

void Appearance::withdraw(TavrinMainWindow *window)
{
    if (qApp->property(mainWindowProperty).value<TavrinMainWindow *>() == window)
        qApp->setProperty(mainWindowProperty, QVariant());
}
