#ifndef PELORIN_GALLERY_PAGES_H
#define PELORIN_GALLERY_PAGES_H

#include <QString>
#include <QVector>

class QWidget;

/// One topic of the gallery.
struct Page
{
    QString name;    ///< for the command line and for file names
    QString title;   ///< for people
    QString summary; ///< what is to be seen and tried, in a sentence or two
    QWidget *(*build)();
};

/// All pages, in the order in which they are shown.
const QVector<Page> &pages();

/// The page called \a name, or null.
const Page *findPage(const QString &name);

// Each page is a function in a file of its own; the caller owns what it builds.
QWidget *buildMainViewPage();
QWidget *buildShellPage();
QWidget *buildSliderPage();
QWidget *buildScaleSliderPage();
QWidget *buildAssemblyPage();
QWidget *buildComboSliderPage();
QWidget *buildRangedSliderPage();
QWidget *buildBareChartPage();
QWidget *buildChartPage();
QWidget *buildSpectrumBarsPage();
QWidget *buildChannelPage();
QWidget *buildSignalPage();
QWidget *buildNumberEntryPage();
QWidget *buildButtonPage();
QWidget *buildIndicatorPage();
QWidget *buildLabelPage();
QWidget *buildListPage();
QWidget *buildFirstEntryPage();
QWidget *buildRemotePage();
QWidget *buildOverlayPage();
QWidget *buildFlowPage();
QWidget *buildItemListPage();
QWidget *buildStackPage();
QWidget *buildThemePage();
QWidget *buildControlsPage();
QWidget *buildPicturesPage();

#endif
