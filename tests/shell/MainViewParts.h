#ifndef PELORIN_TESTS_MAINVIEWPARTS_H
#define PELORIN_TESTS_MAINVIEWPARTS_H

#include "Pelorin/containers/ScrollArea.h"
#include "Pelorin/containers/stackWidget.h"
#include "Pelorin/controls/Selector.h"
#include "Pelorin/shell/MainView.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QTabBar>
#include <QVBoxLayout>

template<class Widget>
Widget *widgetIn(const QLayout *layout, int index)
{
    return qobject_cast<Widget *>(layout->itemAt(index)->widget());
}

/// The parts of a view, found by their places in the layouts.
struct MainViewParts
{
    explicit MainViewParts(const MainView &view)
        : columns(qobject_cast<QHBoxLayout *>(view.layout()))
        , white(widgetIn<QWidget>(columns, 0))
        , red(widgetIn<ScrollArea>(columns, 1))
        , whiteLayout(qobject_cast<QVBoxLayout *>(white->layout()))
        , headerRow(qobject_cast<QHBoxLayout *>(whiteLayout->itemAt(0)->layout()))
        , logo(widgetIn<QLabel>(headerRow, 0))
        , tinyHeader(widgetIn<QLabel>(headerRow, 2))
        , header(widgetIn<QLabel>(headerRow, 3))
        , settingsHeader(widgetIn<QWidget>(whiteLayout, 1))
        , settingsRow(qobject_cast<QHBoxLayout *>(settingsHeader->layout()))
        , title(widgetIn<QLabel>(settingsRow, 0))
        , close(widgetIn<QPushButton>(settingsRow, 2))
        , tabBar(widgetIn<QTabBar>(whiteLayout, 2))
        , pageArea(widgetIn<ScrollArea>(whiteLayout, 3))
        , pageLayout(qobject_cast<QVBoxLayout *>(pageArea->widget()->layout()))
        , stack(widgetIn<stackWidget>(pageLayout, 0))
        , redLayout(qobject_cast<QVBoxLayout *>(red->widget()->layout()))
        , topRow(qobject_cast<QHBoxLayout *>(redLayout->itemAt(0)->layout()))
        , warning(widgetIn<QPushButton>(topRow, 0))
        , selector(widgetIn<Selector>(topRow, 2))
        , sideExtra(widgetIn<QWidget>(redLayout, 1))
        , remoteFrame(widgetIn<QWidget>(redLayout, 2))
    {}

    QHBoxLayout *columns;
    QWidget *white;
    ScrollArea *red;
    QVBoxLayout *whiteLayout;
    QHBoxLayout *headerRow;
    QLabel *logo;
    QLabel *tinyHeader;
    QLabel *header;
    QWidget *settingsHeader;
    QHBoxLayout *settingsRow;
    QLabel *title;
    QPushButton *close;
    QTabBar *tabBar;
    ScrollArea *pageArea;
    QVBoxLayout *pageLayout;
    stackWidget *stack;
    QVBoxLayout *redLayout;
    QHBoxLayout *topRow;
    QPushButton *warning;
    Selector *selector;
    QWidget *sideExtra;
    QWidget *remoteFrame;
};

#endif
