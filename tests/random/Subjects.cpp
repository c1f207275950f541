#include "tests/random/Subjects.h"

#include "Pelorin/containers/ScrollArea.h"
#include "Pelorin/containers/ScrollAreaNG.h"
#include "Pelorin/containers/TabBar.h"
#include "Pelorin/containers/TabWidget.h"
#include "Pelorin/containers/stackWidget.h"
#include "Pelorin/controls/Button.h"
#include "Pelorin/controls/ComboBox.h"
#include "Pelorin/controls/ComboBoxNG.h"
#include "Pelorin/controls/Display.h"
#include "Pelorin/controls/DropDown.h"
#include "Pelorin/controls/DropDownNG.h"
#include "Pelorin/controls/GridLineNG.h"
#include "Pelorin/controls/IconLabel.h"
#include "Pelorin/controls/Indicator.h"
#include "Pelorin/controls/IndicatorButton.h"
#include "Pelorin/controls/LineEdit.h"
#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/controls/LineEditNumberNG.h"
#include "Pelorin/controls/LineEditPowerNG.h"
#include "Pelorin/controls/Selector.h"
#include "Pelorin/controls/ShowHideButton.h"
#include "Pelorin/controls/VerticalLabel.h"
#include "Pelorin/remote/MarquelRemoteControl.h"
#include "Pelorin/remote/MarquelXRemoteControl.h"
#include "Pelorin/remote/OstrelRemoteControl.h"
#include "Pelorin/remote/RemoteControl.h"
#include "Pelorin/shell/CenterTabWidget.h"
#include "Pelorin/shell/ColHeader.h"
#include "Pelorin/shell/ContainerWidget.h"
#include "Pelorin/shell/DockWidget.h"
#include "Pelorin/shell/GUIOverlay.h"
#include "Pelorin/shell/GUIWidget.h"
#include "Pelorin/shell/MainControlPanel.h"
#include "Pelorin/shell/MainView.h"
#include "Pelorin/shell/OverlayImage.h"
#include "Pelorin/shell/QWidgetNG.h"
#include "Pelorin/shell/SplashImage.h"
#include "Pelorin/shell/TavrinMainWindow.h"
#include "Pelorin/signalviews/PulsesView.h"
#include "Pelorin/signalviews/QualityIndicator.h"
#include "Pelorin/signalviews/SignalGraph.h"
#include "Pelorin/signalviews/SubPulsesView.h"
#include "Pelorin/signalviews/TriggerActionView.h"
#include "Pelorin/sliders/ComboSlider.h"
#include "Pelorin/sliders/ComboSliderScale.h"
#include "Pelorin/sliders/ComboSliderUnit.h"
#include "Pelorin/sliders/HorizontalSlider.h"
#include "Pelorin/sliders/RangedInputSlider.h"
#include "Pelorin/sliders/RangedInputSliderNG.h"
#include "Pelorin/sliders/RangedScaleSlider.h"
#include "Pelorin/sliders/ScaleSlider.h"
#include "Pelorin/sliders/ScaleSliderNG.h"
#include "Pelorin/sliders/VerticalScaleSlider.h"
#include "Pelorin/sliders/VerticalSlider.h"
#include "Pelorin/spectral/Channel.h"
#include "Pelorin/spectral/ChannelGroup.h"
#include "Pelorin/spectral/ChannelSliders.h"
#include "Pelorin/spectral/WavelengthSelector.h"
#include "Pelorin/spectral/WavelengthSpectrum.h"
#include "Pelorin/spectral/WavelengthSpectrumNG.h"
#include "tests/spectral/ChartProbe.h"

namespace {

template<class List>
QWidget *filledList()
{
    auto *list = new List;
    list->addItems({ QStringLiteral("12.5"), QStringLiteral("Burst"), QString() });
    return list;
}

template<class List>
QWidget *withItems(List *list)
{
    for (const char *text : { "12.5", "Burst", "" })
        list->addItem(QLatin1String(text));
    return list;
}

template<class Field>
QWidget *withTimeout()
{
    auto *field = new Field;
    field->enableTimeout(true);
    return field;
}

/// Between its handles there is not much room, so that each pushes the other.
QWidget *doubleSlider()
{
    auto *slider = new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr);
    slider->setDoubleSlider(true);
    slider->setDoubleRange(5.0, 20.0, true);
    return slider;
}

QWidget *filledComboSlider()
{
    auto *control = new ComboSlider(10);
    for (const char *title : { "Power", "Rate" }) {
        auto *scale = new ComboSliderScale(QLatin1String(title), control);
        scale->addUnit(new ComboSliderUnit(QStringLiteral("mW"), 0.0, 250.0, 1));
        auto *decades = new ComboSliderUnit(QStringLiteral("Hz"), 1.0, 1000.0, 3);
        decades->setSignificantDigits(true);
        decades->setScaleType(ScaleSlider::LogarithmicScale);
        decades->setStepList({ 1.0, 2.0, 5.0, 1000.0 });
        scale->addUnit(decades);
        control->addScale(scale);
    }
    return control;
}

/// All channels on, and one of them at each end.
QWidget *filledSelector()
{
    auto *selector = new WavelengthSelector(10);
    for (int i = 0; i < 8; ++i) {
        selector->setChannel(i, 300.0 + 93.0 * i, 10 * i);
        selector->enableChannel(i, true);
    }
    return selector;
}

/// With two dyes, and without the dialog that its save button opens.
QWidget *filledChart()
{
    auto *chart = new ChartProbe;
    chart->addFluorophore(ChartProbe::dye(1));
    chart->addFluorophore(ChartProbe::dye(2, 600.0));
    chart->setFluorophoresVisible(true);
    QObject::disconnect(chart->saveButton(), &QCheckBox::toggled, chart, nullptr);
    return chart;
}

QWidget *filledItemList()
{
    auto *list = new ScrollAreaNG(ScrollAreaNG::LayoutFlow, ScrollAreaNG::ScrollBarGrey, 4, 6,
                                  Qt::ScrollBarAsNeeded);
    for (int i = 0; i < 8; ++i)
        list->listItemAppend(new ScrollAreaNGItem);
    return list;
}

template<typename Tabs>
QWidget *filledTabs(void (*fill)(Tabs &, const QString &))
{
    auto *tabs = new Tabs(nullptr);
    for (const char *const name : { "Output", "Trigger", "Service" })
        fill(*tabs, QString::fromLatin1(name));
    return tabs;
}

QWidget *filledStack()
{
    auto *stack = new stackWidget;
    for (int i = 0; i < 3; ++i)
        stack->addWidget(new QWidget);
    return stack;
}

/// With a tab, three pages of which one is out of reach, and a panel.
QWidget *filledView()
{
    auto *view = new MainView;
    view->controlPageTabBar()->addTab(QStringLiteral("Pulse"));
    for (const char *name : { "Control", "Trigger", "Service" })
        view->addControlPage(QLatin1String(name), new QWidget);
    view->setSettingsPageAccess(2, false);
    view->setRemoteControlWidget(new MarquelRemoteControl);
    return view;
}

} // namespace

const QVector<Subject> &subjects()
{
    static const QVector<Subject> list{
        { "Button", [] { return new Button(QStringLiteral("Start")); } },
        { "ComboBox", filledList<ComboBox> },
        { "ComboBoxNG", filledList<ComboBoxNG> },
        { "Display", [] { return new Display(2, 10); } },
        { "DropDown", [] { return withItems(new DropDown); } },
        { "DropDownNG", filledList<DropDownNG> },
        { "GridLineNG", [] { return new GridLineNG(GridLineNG::Cross); } },
        { "IconLabel", [] { return new IconLabel(QStringLiteral("Laser")); } },
        { "Indicator", [] { return new Indicator; } },
        { "IndicatorButton", [] { return new IndicatorButton(IndicatorButton::Above); } },
        { "LineEditNumberNG", [] { return new LineEditNumberNG; } },
        { "LineEditPowerNG", [] { return new LineEditPowerNG; } },
        { "Selector", [] { return withItems(new Selector(QStringLiteral("Settings"))); } },
        { "ShowHideButton", [] { return new ShowHideButton; } },
        { "VerticalLabel", [] { return new VerticalLabel(QStringLiteral("Power")); } },
        { "MarquelRemoteControl", [] { return new MarquelRemoteControl; } },
        { "MarquelXRemoteControl", [] { return new MarquelXRemoteControl; } },
        { "OstrelRemoteControl", [] { return new OstrelRemoteControl; } },
        { "RemoteControl", [] { return new RemoteControl; } },
        { "CenterTabWidget", [] { return new CenterTabWidget; } },
        { "ColHeader", [] { return new ColHeader; } },
        { "DockWidget",
          [] { return new DockWidget(QStringLiteral("Trigger"), Qt::LeftDockWidgetArea, true); } },
        { "MainControlPanel", [] { return new MainControlPanel; } },
        { "MainView", filledView },
        { "TavrinMainWindow", [] { return new TavrinMainWindow; } },
        { "ContainerWidget", [] { return new ContainerWidget; } },
        { "GUIOverlay", [] { return new GUIOverlay; } },
        { "GUIWidget", [] { return new GUIWidget; } },
        { "OverlayImage", [] { return new OverlayImage; } },
        { "QWidgetNG", [] { return new QWidgetNG; } },
        { "SplashImage", [] { return new SplashImage; } },
        { "LineEdit", withTimeout<LineEdit> },
        { "LineEditNumber", withTimeout<LineEditNumber> },
        { "ComboSlider", filledComboSlider },
        { "HorizontalSlider",
          [] { return new HorizontalSlider(10, ScaleSliderNG::ScaleSqrt, nullptr); } },
        { "RangedInputSlider", [] { return new RangedInputSlider(10); } },
        { "RangedInputSliderNG", [] { return new RangedInputSliderNG(10); } },
        { "RangedScaleSlider", [] { return new RangedScaleSlider; } },
        { "WavelengthChart", filledChart },
        { "VerticalSlider",
          [] { return new VerticalSlider(ScaleSliderNG::ScaleLinear, true, nullptr); } },
        { "VerticalScaleSlider",
          [] { return new VerticalScaleSlider(ScaleSliderNG::ScaleSqrtSteps, false, nullptr); } },
        { "ScaleSlider", [] { return new ScaleSlider; } },
        { "ScaleSliderNG, horizontal",
          [] { return new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr); } },
        { "ScaleSliderNG, two handles", doubleSlider },
        { "ScaleSliderNG, vertical steps",
          [] { return new ScaleSliderNG(Qt::Vertical, ScaleSliderNG::ScaleSqrtSteps, nullptr); } },
        { "ScrollArea", [] { return new ScrollArea(true); } },
        { "ScrollAreaNG", filledItemList },
        { "stackWidget", filledStack },
        { "TabBar",
          [] {
              return filledTabs<TabBar>([](TabBar &bar, const QString &name) { bar.addTab(name); });
          } },
        { "TabWidget",
          [] {
              return filledTabs<TabWidget>(
                  [](TabWidget &tabs, const QString &name) { tabs.addTab(new QWidget, name); });
          } },
        { "PulsesView", [] { return new PulsesView; } },
        { "QualityIndicator", [] { return new QualityIndicator; } },
        { "SignalGraph", [] { return new SignalGraph; } },
        { "SubPulsesView", [] { return new SubPulsesView; } },
        { "TriggerActionView", [] { return new TriggerActionView; } },
        { "Channel", [] { return new Channel(3); } },
        { "ChannelGroup", [] { return new ChannelGroup; } },
        { "ChannelSliders", [] { return new ChannelSliders(3); } },
        { "WavelengthSelector", filledSelector },
        { "WavelengthSpectrum", [] { return new WavelengthSpectrum(10); } },
        { "WavelengthSpectrumNG", [] { return new WavelengthSpectrumNG(10); } },
    };
    return list;
}
