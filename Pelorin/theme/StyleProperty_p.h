#ifndef PELORIN_THEME_STYLEPROPERTY_P_H
#define PELORIN_THEME_STYLEPROPERTY_P_H

#include <QLatin1String>

/// The dynamic properties by which a widget asks the style sheet for its look, and the values that
/// the sheet knows:
///
/// \code
/// label->setProperty(StyleProperty::type, StyleType::heading);
/// edit->setProperty(StyleProperty::flat, true);
/// \endcode
///
/// A property is read when its widget is polished. Whoever sets one later repolishes by himself.
namespace StyleProperty {

constexpr char flat[] = "flat"; ///< boolean
constexpr char type[] = "type";
constexpr char style[] = "style";
constexpr char background[] = "background";
constexpr char widgetColor[] = "widget-color";
constexpr char buttonSize[] = "button-size";
constexpr char buttonColor[] = "button-color";
constexpr char buttonCheckedColor[] = "button-checked-color";
constexpr char singleMode[] = "single-mode"; ///< boolean

} // namespace StyleProperty

/// Makes the value of a style property, with its length known to the compiler.
template<int Size>
constexpr QLatin1String styleValue(const char (&text)[Size])
{
    return QLatin1String(text, Size - 1);
}

/// Values of StyleProperty::type. Which of them a class knows is up to the sheet's rules for it.
namespace StyleType {

// labels; some are known to fields and lists too
constexpr QLatin1String title = styleValue("title");
constexpr QLatin1String heading = styleValue("heading");
constexpr QLatin1String headingLight = styleValue("heading-light");
constexpr QLatin1String label = styleValue("label");
constexpr QLatin1String labelLimitLow = styleValue("label-limit-low");
constexpr QLatin1String labelLimitHigh = styleValue("label-limit-high");
constexpr QLatin1String labelLimitOk = styleValue("label-limit-ok");
constexpr QLatin1String labelHighlighted = styleValue("label-highlighted");
constexpr QLatin1String labelHeader = styleValue("label-header");
constexpr QLatin1String text = styleValue("text");
constexpr QLatin1String textBold = styleValue("text-bold");
constexpr QLatin1String panelLabel = styleValue("panel-label");
constexpr QLatin1String panelText = styleValue("panel-text");
constexpr QLatin1String header = styleValue("header");
constexpr QLatin1String tinyHeader = styleValue("tiny-header");

// the first-generation selector, check boxes, push buttons, tab bars, scroll bars
constexpr QLatin1String settings = styleValue("settings");
constexpr QLatin1String prerequisite = styleValue("prerequisite");
constexpr QLatin1String roundedRed = styleValue("rounded-red");
constexpr QLatin1String roundedGrey = styleValue("rounded-grey");
constexpr QLatin1String fluorophoreClearButton = styleValue("fluorophore-clearbutton");
constexpr QLatin1String mainViewTabBar = styleValue("mainview-tabbar");
/// Red is the sheet's default; no rule names it.
constexpr QLatin1String scrollBarRed = styleValue("scrollbar-flat-rounded-red");
constexpr QLatin1String scrollBarGrey = styleValue("scrollbar-flat-rounded-grey");

// the parts of the wavelength chart
constexpr QLatin1String chartTitle = styleValue("wavelengthchart-title");
constexpr QLatin1String chartBackWidget = styleValue("wavelengthchart-backwidget");
constexpr QLatin1String chartTotalPowerTitle = styleValue("wavelengthchart-totalpower-title");
constexpr QLatin1String chartTotalPowerValue = styleValue("wavelengthchart-totalpower-value");
constexpr QLatin1String chartTotalPowerContainer =
    styleValue("wavelengthchart-totalpower-container");
constexpr QLatin1String chartControlContainer = styleValue("wavelengthchart-control-container");
constexpr QLatin1String chartVisibilityContainer =
    styleValue("wavelengthchart-visibility-container");
constexpr QLatin1String chartZoomResetButton = styleValue("wavelengthchart-zoomreset-button");
constexpr QLatin1String chartSaveButton = styleValue("wavelengthchart-savechart-button");
constexpr QLatin1String chartVisibilityCheckBox = styleValue("wavelengthchart-visibility-checkbox");

} // namespace StyleType

/// Values of StyleProperty::style: what a push button is for.
namespace ButtonStyle {

constexpr QLatin1String close = styleValue("close");
constexpr QLatin1String warning = styleValue("warning");
constexpr QLatin1String toggle = styleValue("toggle");
constexpr QLatin1String play = styleValue("playbutton");
constexpr QLatin1String stop = styleValue("stopbutton");
constexpr QLatin1String edit = styleValue("editbutton");
constexpr QLatin1String save = styleValue("savebutton");
constexpr QLatin1String saveScaleable = styleValue("savebutton-scaleable");
constexpr QLatin1String set = styleValue("setbutton");

// of Button alone
constexpr QLatin1String smallUpArrow = styleValue("smalluparrow");
constexpr QLatin1String smallDownArrow = styleValue("smalldnarrow");
constexpr QLatin1String bigUpArrow = styleValue("biguparrow");
constexpr QLatin1String bigDownArrow = styleValue("bigdnarrow");

} // namespace ButtonStyle

/// Values of StyleProperty::background: the ground of an entry field, in contrast to what is round
/// it.
namespace FieldBackground {

constexpr QLatin1String dark = styleValue("dark");
constexpr QLatin1String white = styleValue("white");

} // namespace FieldBackground

/// Values of StyleProperty::widgetColor.
namespace WidgetColor {

constexpr QLatin1String red = styleValue("red");
constexpr QLatin1String white = styleValue("white");
constexpr QLatin1String whiteLogo = styleValue("white-logo");
constexpr QLatin1String lightGrey = styleValue("light-grey");
constexpr QLatin1String yellow = styleValue("yellow");
constexpr QLatin1String green = styleValue("green");

} // namespace WidgetColor

/// Values of StyleProperty::buttonSize.
namespace ButtonSize {

constexpr QLatin1String normal = styleValue("normal");
constexpr QLatin1String small = styleValue("small");
constexpr QLatin1String longSmall = styleValue("longsmall");
constexpr QLatin1String fat = styleValue("fat");

} // namespace ButtonSize

/// Values of StyleProperty::buttonColor and StyleProperty::buttonCheckedColor.
namespace ButtonColor {

constexpr QLatin1String red = styleValue("red");
constexpr QLatin1String grey = styleValue("grey");
constexpr QLatin1String darkGrey = styleValue("dark-grey");
constexpr QLatin1String green = styleValue("green");
constexpr QLatin1String orange = styleValue("orange");

} // namespace ButtonColor

#endif
