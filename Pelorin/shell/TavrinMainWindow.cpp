#include "Pelorin/shell/TavrinMainWindow.h"

#include "Pelorin/shell/CenterTabWidget.h"

#include <QDebug>
#include <QMoveEvent>

namespace {

bool isOneSide(Qt::DockWidgetArea area)
{
    return area == Qt::LeftDockWidgetArea || area == Qt::RightDockWidgetArea
           || area == Qt::TopDockWidgetArea || area == Qt::BottomDockWidgetArea;
}

} // namespace

TavrinMainWindow::TavrinMainWindow(QWidget *parent)
    : QMainWindow(parent)
    , m_centerTabWidget(new CenterTabWidget(this))
{
    setCentralWidget(m_centerTabWidget);
}

void TavrinMainWindow::createSystemWidget(QWidget *widget, QString widgetName, bool persistent,
                                          bool selectWidget)
{
    m_centerTabWidget->appendCenterWidget(widget, widgetName, persistent, selectWidget);
}

void TavrinMainWindow::removeSystemWidget(QWidget *widget)
{
    m_centerTabWidget->removeCenterWidget(widget);
}

void TavrinMainWindow::removeAllSystemWidgets()
{
    m_centerTabWidget->removeAllCenterWidgets();
}

void TavrinMainWindow::createAccessoryWidget(QWidget *, uchar, ushort) {}

void TavrinMainWindow::removeAllAccessoryDocks()
{
    removeDocks(m_accessoryDocks);
}

void TavrinMainWindow::createGenericDockWidget(QWidget *widget, QString title,
                                               Qt::DockWidgetArea area, bool visible)
{
    if (!isOneSide(area))
        return;
    auto *dock = new DockWidget(title, area, visible, this, Qt::WindowFlags());
    dock->setObjectName(title);
    dock->setWidget(widget);
    dock->setVisible(visible);
    addDockWidget(dock->defaultArea(), dock);
    m_genericDocks.append(dock);
}

void TavrinMainWindow::removeAllGenericDocks()
{
    removeDocks(m_genericDocks);
}

void TavrinMainWindow::resetAllGenericDocks()
{
    Docks docks = m_genericDocks;
    docks.removeAll(nullptr);
    for (DockWidget *dock : qAsConst(docks)) {
        dock->setFloating(false);
        removeDockWidget(dock);
    }
    for (DockWidget *dock : qAsConst(docks)) {
        addDockWidget(dock->defaultArea(), dock);
        dock->setVisible(dock->defaultVisible());
        const QSize size = dock->defSize();
        qDebug() << "DockWidget::getDefSize" << dock << size;
        if (size.width() >= 0 && size.height() >= 0) {
            resizeDocks({ dock }, { size.width() }, Qt::Horizontal);
            resizeDocks({ dock }, { size.height() }, Qt::Vertical);
        }
    }
}

void TavrinMainWindow::moveEvent(QMoveEvent *event)
{
    QMainWindow::moveEvent(event);
    m_mainWindowRect = geometry();
    Q_EMIT sigMainWindowMoved(mapToGlobal(event->oldPos()), m_mainWindowRect.topLeft());
}

void TavrinMainWindow::resizeEvent(QResizeEvent *event)
{
    QMainWindow::resizeEvent(event);
    m_mainWindowRect = geometry();
    Q_EMIT sigMainWindowResized(m_mainWindowRect);
}

/// In reverse order of creation. Each dock takes its widget with it.
void TavrinMainWindow::removeDocks(Docks &docks)
{
    while (!docks.isEmpty()) {
        DockWidget *dock = docks.takeLast();
        if (!dock)
            continue;
        removeDockWidget(dock);
        dock->deleteLater();
    }
}
