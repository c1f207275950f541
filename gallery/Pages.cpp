#include "gallery/Pages.h"

#include <algorithm>

const QVector<Page> &pages()
{
    static const QVector<Page> list{
        { QStringLiteral("theme"), QStringLiteral("Theme: colours and text"),
          QStringLiteral("What the style sheet makes of a label, a field or a box that carries the "
                         "property of its name."),
          buildThemePage },
        { QStringLiteral("controls"), QStringLiteral("Theme: controls"),
          QStringLiteral("Qt's own buttons, tabs, progress bars and scroll bars under the style "
                         "sheet, each state beside the others."),
          buildControlsPage },
        { QStringLiteral("pictures"), QStringLiteral("Theme: pictures"),
          QStringLiteral("Every picture of the library at its own size, on light and on dark "
                         "ground, and the two display faces."),
          buildPicturesPage },
        { QStringLiteral("sliders"), QStringLiteral("Scale sliders"),
          QStringLiteral(
              "Drag a handle, or give it the keyboard with Tab and use the arrows; Shift "
              "makes ten steps of one. The number beside a slider follows its signals."),
          buildSliderPage },
        { QStringLiteral("assemblies"), QStringLiteral("Slider assemblies"),
          QStringLiteral(
              "A slider and a number field that are kept in step. Drag the handle, or type a "
              "number and press Return; what is typed counts only then."),
          buildAssemblyPage },
        { QStringLiteral("scaleslider"), QStringLiteral("Scale slider, first generation"),
          QStringLiteral("One handle over a linear or logarithmic range or over steps, with labels "
                         "at round numbers. The mouse moves it; keys and wheel do not."),
          buildScaleSliderPage },
        { QStringLiteral("comboslider"), QStringLiteral("Combined slider"),
          QStringLiteral("One value on a slider and in a field. The selectors at the left and at "
                         "the right choose what is set, and in which unit."),
          buildComboSliderPage },
        { QStringLiteral("ranged"), QStringLiteral("Ranged sliders"),
          QStringLiteral(
              "The two ends of a sweep. Drag a handle, turn the wheel on a slider of the "
              "first generation, or type a number and press Return."),
          buildRangedSliderPage },
        { QStringLiteral("spectra"), QStringLiteral("Spectrum bars"),
          QStringLiteral("Every column has the colour of its wavelength. The scales span what lies "
                         "inside of the margin."),
          buildSpectrumBarsPage },
        { QStringLiteral("numbers"), QStringLiteral("Numeric entry"),
          QStringLiteral("Type, or step the digit left of the cursor with the arrows. The number "
                         "beside a caption is the committed value; the field shows the edit."),
          buildNumberEntryPage },
        { QStringLiteral("buttons"), QStringLiteral("Buttons"),
          QStringLiteral("The push button in every size, colour and state. Those that are not "
                         "specimens of a state can be pressed."),
          buildButtonPage },
        { QStringLiteral("indicators"), QStringLiteral("Indicators"),
          QStringLiteral("Lamps, steady, blinking or flashing once, and the buttons that carry "
                         "one. A press is a request; the lamp shows what is."),
          buildIndicatorPage },
        { QStringLiteral("labels"), QStringLiteral("Displays and labels"),
          QStringLiteral("Texts as an instrument writes them, labels with an icon or on their "
                         "side, and lines that connect the cells of a grid."),
          buildLabelPage },
        { QStringLiteral("lists"), QStringLiteral("Drop-down lists"),
          QStringLiteral("Lists whose items can be hidden, disabled and explained one by one. Open "
                         "them, or step with the arrows; the wheel needs the focus first."),
          buildListPage },
        { QStringLiteral("entry"), QStringLiteral("First-generation controls"),
          QStringLiteral("The older entry fields and selectors. What was saved last stands at the "
                         "right of a field's caption."),
          buildFirstEntryPage },
        { QStringLiteral("chart"), QStringLiteral("Wavelength chart"),
          QStringLiteral("A spectrometer at 20 Hz, the band of a laser, and eight dyes of which it "
                         "excites a part. Drag over the plot to zoom in."),
          buildChartPage },
        { QStringLiteral("barechart"), QStringLiteral("Chart, first generation"),
          QStringLiteral(
              "A plot area without a ground round it. Drag over the plot to zoom in; the "
              "right button leads back."),
          buildBareChartPage },
        { QStringLiteral("channels"), QStringLiteral("Channel controls"),
          QStringLiteral(
              "The eight channels of a tunable light source in three views that are kept "
              "in step. Drag a marker, type a number, or move a slider."),
          buildChannelPage },
        { QStringLiteral("signals"), QStringLiteral("Signal views"),
          QStringLiteral(
              "Drawings that explain a laser's timing, a block of samples as a curve, and "
              "a bar of lamps for a quality."),
          buildSignalPage },
        { QStringLiteral("remote"), QStringLiteral("Remote control panels"),
          QStringLiteral("One laser and four panels. A press is a request and changes no lamp; the "
                         "lamps follow when the laser reports its state."),
          buildRemotePage },
        { QStringLiteral("overlays"), QStringLiteral("Overlays"),
          QStringLiteral("What lies over the page of a module that is away, or that has something "
                         "to say."),
          buildOverlayPage },
        { QStringLiteral("flow"), QStringLiteral("Flow layout"),
          QStringLiteral("Items go on in a new row where the next one would pass the right edge. "
                         "Drag the handle and see them wrap."),
          buildFlowPage },
        { QStringLiteral("mainview"), QStringLiteral("Main view"),
          QStringLiteral("The pages of one device. Choose a settings page in the menu of the red "
                         "column, and leave it with the cross."),
          buildMainViewPage },
        { QStringLiteral("items"), QStringLiteral("Item lists"),
          QStringLiteral(
              "Steps that an application paints, in a column, a row and a flow. A click "
              "selects one; its mark is apart from that. Tab, Return and Space do it too."),
          buildItemListPage },
        { QStringLiteral("stack"), QStringLiteral("Stack and tabs"),
          QStringLiteral("A stack of pages beside the one of Qt, under the tabs of the main view, "
                         "and a tab widget."),
          buildStackPage },
        { QStringLiteral("shell"), QStringLiteral("Window and columns"),
          QStringLiteral(
              "The main window around this page with its docks and tabs, and the control "
              "columns that stand in them."),
          buildShellPage },
    };
    return list;
}

const Page *findPage(const QString &name)
{
    const auto page = std::find_if(pages().cbegin(), pages().cend(),
                                   [&name](const Page &each) { return each.name == name; });
    return page == pages().cend() ? nullptr : &*page;
}
