#ifndef PELORIN_TESTS_STYLESHEETTABLE_H
#define PELORIN_TESTS_STYLESHEETTABLE_H

/// Every rule of the style sheet, in its order: selectors, a bar, what they declare. A line that
/// begins with blanks goes on with the line before it. The declarations are written as a designer
/// says them:
///
///     Calibri 20px bold       font-family, font-size, font-weight; each may stand alone
///     26px by 26px            width, height
///     #F6F6F6, transparent    background-color
///     no border               border-style
///     image a.png             image; likewise "background image" and "border image"
///     no-repeat, at right     background-repeat, background-position
///     top corners 4px         the radius of two corners; likewise right, and all four
///
/// Anything with a colon stands for itself.
constexpr char styleSheetTable[] = R"(
QLineEdit[flat="true"] | background-color: #fff; border-style: none
QLineEdit[type="label"] | Calibri 20px
QLineEdit[type="text"] | Calibri 14px
QLineEdit[background="dark"] | background-color: #F6F6F6
QLineEdit[background="white"] | background-color: #FFF
QLineEdit:read-only[flat="true"] | color: #999

QRadioButton | Calibri 13px
QRadioButton::indicator | 16px by 16px
QRadioButton::indicator::unchecked | image radio.png
QRadioButton::indicator::unchecked:hover | image radioHover.png
QRadioButton::indicator::checked | image radioChecked.png
QCheckBox[flat="true"], QCheckBox[type="prerequisite"] | spacing: 10px; Calibri 20px; color: #666
QCheckBox[flat="true"]::indicator, QCheckBox[type="prerequisite"]::indicator | 25px by 25px
QCheckBox[flat="true"]::indicator:unchecked | image checkbox.png
QCheckBox[flat="true"]::indicator:unchecked:hover | image checkboxHover.png
QCheckBox[flat="true"]::indicator:checked | image checkboxChecked.png
QCheckBox[flat="true"]::indicator:checked:hover | image checkboxCheckedHover.png
QCheckBox[type="prerequisite"]::indicator:unchecked,
    QCheckBox[type="prerequisite"]::indicator:unchecked:hover | image PreRequisiteMissing.png
QCheckBox[type="prerequisite"]::indicator:checked,
    QCheckBox[type="prerequisite"]::indicator:checked:hover | image PreRequisiteFulfilled.png

Button | outline: 0px; border-style: none; color: #FFF; Calibri
Button[button-size="normal"] | 14px; border-radius: 12px
Button[button-size="small"] | 12px; border-radius: 8px
Button[button-size="longsmall"] | 12px; border-radius: 8px
Button[button-size="fat"] | 18px bold; border-radius: 8px
Button[button-color="red"], Button[button-checked-color="red"]:checked | #87212E
Button[button-color="red"]:disabled | #895A60
Button[button-color="grey"], Button[button-checked-color="grey"]:checked | #C6C6C6
Button[button-color="grey"]:disabled | #DDDDDD
Button[button-color="dark-grey"], Button[button-checked-color="dark-grey"]:checked | #555
Button[button-color="dark-grey"]:disabled | #DDDDDD
Button[button-color="green"], Button[button-checked-color="green"]:checked | #ABC217
Button[button-color="green"]:disabled | #DDDDDD
Button[button-color="orange"], Button[button-checked-color="orange"]:checked | #ED6E00
Button[button-color="orange"]:disabled | #DDDDDD
Button[button-color="red"]:hover, Button[button-color="grey"]:hover,
    Button[button-color="dark-grey"]:hover, Button[button-color="green"]:hover | #ED6E00
Button[button-color="red"]:pressed, Button[button-color="grey"]:pressed,
    Button[button-color="dark-grey"]:pressed, Button[button-color="green"]:pressed | #F58B2E

QWidget[widget-color="red"] | #87212E
QWidget[widget-color="white"] | #FFF
QWidget[widget-color="white-logo"] | #FFFFFF
QWidget[widget-color="light-grey"] | #F6F6F6
QWidget[widget-color="yellow"] | background-color: yellow
QWidget[widget-color="green"] | background-color: green

QLabel[type="title"] | Arial Black 34px; color: #C5C6C6
QLabel[type="wavelengthchart-title"] | Arial Black 14px; color: #444
QLabel[type="heading"] | Calibri 30px; color: #444
QLabel[type="heading-light"] | Calibri 30px; color: #666
QLabel[type="label"] | Calibri 20px; color: #666
QLabel[type="label-limit-low"] | Calibri 20px; color: #e55830
QLabel[type="label-limit-high"] | Calibri 20px; color: #e55830
QLabel[type="label-limit-ok"] | Calibri 20px; color: #95d400
QLabel[type="label-highlighted"] | Calibri 20px; color: #FFF; background-color: #87212E
QLabel[type="label-header"] | Calibri 20px bold; color: #444
QLabel[type="text"] | Calibri 14px; color: #444
QLabel[type="text-bold"] | Calibri 14px bold; color: #444
QLabel[type="panel-label"] | Calibri 20px; color: #FFF
QLabel[type="panel-text"] | Calibri 14px; color: #FFF
QLabel[type="header"] | Arial Black 40px bold; color: #DDD; margin: 0px; padding: 0px
QLabel[type="tiny-header"] | Calibri 20px bold; color: #DDD; margin: 0px; padding: 0px

Selector | Calibri 16px; color: #C6C6C6; padding-bottom: 3px
Selector[type="settings"] | background image settings.png; no-repeat; at right; padding-right: 25px
Selector[type="settings"]:hover | background image settingsHover.png
ComboBox[single-mode="false"] |
    background image downArrow.png; at right center; no-repeat; padding-right: 20px
DropDown QFrame | background-color: #DDD; border-radius: 6px; padding-top: 8px; padding-bottom: 8px;
    padding-left: 0px; padding-right: 0px
DropDown IconLabel | border-radius: 4px; padding-left: 8px; padding-right: 8px
DropDown QLabel | Calibri 14px; padding-top: 0px; padding-bottom: 0px; transparent
DropDown[type="heading"] QLabel | 24px
DropDown[type="label"] QLabel | 18px
DropDown IconLabel | color: #444
DropDown IconLabel:hover | background-color: #ED6E00; color: #FFF

QPushButton[style="close"] | 26px by 26px; border: 2px solid #444; #FFF; background image cross.png;
    no-repeat; border-radius: 6px
QPushButton[style="close"]:hover | background image crossHover.png
QPushButton[style="warning"] | no border; background image warningGrey.png; no-repeat
QPushButton[style="warning"]:hover | background image warningOrange.png
QPushButton[style="toggle"] | 16px by 16px; no border; transparent; background image downArrow.png
QPushButton[style="toggle"]:hover | background image downArrowHover.png
QPushButton[style="toggle"]:checked | background image upArrow.png
QPushButton[style="playbutton"] | 34px by 34px; no border; transparent;
    background image PlayNormal.png; Calibri 18px bold; color: white; padding-left: -8px
QPushButton[style="playbutton"]:hover | background image PlayHover.png
QPushButton[style="playbutton"]:disabled | background image PlayDisabled.png; padding-left: 0px
QPushButton[style="stopbutton"] | 34px by 34px; no border; transparent;
    background image StopNormal.png; Calibri 18px bold; color: white; padding-left: -8px
QPushButton[style="stopbutton"]:hover | background image StopHover.png
QPushButton[style="stopbutton"]:disabled | background image StopDisabled.png; padding-left: 0px
QPushButton[style="editbutton"] | 24px by 24px; no border; transparent;
    background image EditNormal.png
QPushButton[style="editbutton"]:hover | background image EditHover.png
QPushButton[style="savebutton"] | 32px by 32px; no border; transparent; border image SaveNormal.png
QPushButton[style="savebutton-scaleable"] | no border; transparent; border image SaveNormal.png
QPushButton[style="savebutton"]:hover, QPushButton[style="savebutton-scaleable"]:hover |
    border image SaveHover.png
QPushButton[style="savebutton"]:disabled, QPushButton[style="savebutton-scaleable"]:disabled |
    border image SaveDisabled.png
QPushButton[style="setbutton"] | 32px by 32px; no border; transparent;
    background image SetNormal.png
QPushButton[style="setbutton"]:hover | background image SetHover.png
QPushButton[type="rounded-red"] | Calibri 14px bold; color: white; border-radius: 6px;
    border-style: none; background-color: #87212E;
    padding-left: 8px; padding-right: 8px; padding-top: 4px; padding-bottom: 4px
QPushButton[type="rounded-grey"] | Calibri 14px bold; color: white; border-radius: 6px;
    border-style: none; background-color: #555555;
    padding-left: 8px; padding-right: 8px; padding-top: 4px; padding-bottom: 4px
QPushButton[type="rounded-red"]:hover, QPushButton[type="rounded-grey"]:hover | #ED6E00
QPushButton[type="rounded-red"]:disabled, QPushButton[type="rounded-grey"]:disabled | #DDDDDD
Button[style="smalluparrow"] | no border; transparent; background image upArrowSmall1.png
Button[style="smalluparrow"]:hover | no border; transparent; background image upArrowSmall1Hover.png
Button[style="smalldnarrow"] | no border; transparent; background image dnArrowSmall1.png
Button[style="smalldnarrow"]:hover | no border; transparent; background image dnArrowSmall1Hover.png
Button[style="biguparrow"] | no border; transparent; background image upArrowBig1.png
Button[style="biguparrow"]:hover | no border; transparent; background image upArrowBig1Hover.png
Button[style="bigdnarrow"] | no border; transparent; background image dnArrowBig1.png
Button[style="bigdnarrow"]:hover | no border; transparent; background image dnArrowBig1Hover.png

ScrollArea[flat="true"] | border-style: none
QProgressBar[flat="true"] | border: 2px solid lightgrey; background: rgba(128,128,128,255);
    color: white; border-radius: 5px
QProgressBar[flat="true"]::chunk | background-color: #87212E; margin: 1px
Display | background-color: #C6C6C6; border-radius: 10px; Courier New; color: #FFF
Channel | background-color: #DDD; border-radius: 8px

DropDownNG | Calibri 20px; border: none; color: #666; padding-left: 0px; padding-right: 0px;
    min-height: 1.5em
DropDownNG:hover |
DropDownNG:focus |
DropDownNG QAbstractItemView | background-color: #DDD; selection-background-color: #ED6E00;
    border-radius: 6px; padding-top: 8px; padding-bottom: 8px; padding-left: 0px; padding-right: 0px
DropDownNG QAbstractItemView:hover |
DropDownNG QAbstractItemView:selected |
DropDownNG QAbstractItemView:alternate |
DropDownNG:disabled | color: #d6d6d1
DropDownNG:on | selection-background-color: #1464A0
DropDownNG::indicator | border: none; border-radius: 0; background-color: transparent;
    selection-background-color: transparent; color: transparent; selection-color: transparent
DropDownNG::indicator:alternate, DropDownNG::item:alternate | background: #19232D
DropDownNG::item:checked | bold
DropDownNG::item:selected | border: 0px solid transparent
DropDownNG::drop-down | subcontrol-origin: padding; subcontrol-position: top right; width: 20px;
    border-left: 0px
DropDownNG::down-arrow, DropDownNG::down-arrow:on, DropDownNG::down-arrow:hover,
    DropDownNG::down-arrow:focus | image downArrow.png

QTabWidget[flat="true"]::pane | border: 1px solid #C2C7CB; all corners 4px
QTabWidget[flat="true"]::tab-bar | left: 5px
QTabBar[flat="true"]::tab | Calibri 20px; color: #666; border: 1px solid #C4C4C3;
    border-bottom-color: #C2C7CB; top corners 4px; min-width: 30ex; min-height: 4ex; padding: 2px
QTabBar[flat="true"]::tab:selected | #DDD
QTabBar[flat="true"]::tab:hover | #ED6E00
QTabBar[flat="true"]::tab:selected | border-color: #9B9B9B; border-bottom-color: #C2C7CB
QTabBar[flat="true"]::tab:!selected | margin-top: 2px
QTabBar[type="mainview-tabbar"] | border-bottom: 3px solid #9B9B9B
QTabBar[type="mainview-tabbar"]::tab | Calibri 20px; color: #666; border: 3px solid #C4C4C3;
    border-bottom-color: #FFF; top corners 4px; min-width: 30ex; min-height: 5ex; padding: 0px;
    margin-left: 8px
QTabBar[type="mainview-tabbar"]::tab:selected | border-color: #9B9B9B; border-top-color: #87212E;
    border-bottom-color: #FFF
QTabBar[type="mainview-tabbar"]::tab:!selected | #DDDDDD; border: 1px solid #9B9B9B;
    border-bottom: 3px solid #9B9B9B; margin-top: 4px
QTabBar[type="mainview-tabbar"]::tab:!selected:hover | #ED6E00

LineEditNumberNG[flat="true"] | background-color: #fff; border-style: none
LineEditNumberNG[type="heading"] | Calibri 30px
LineEditNumberNG[type="label"] | Calibri 20px
LineEditNumberNG[type="text"] | Calibri 14px
LineEditNumberNG[background="dark"] | #F6F6F6
LineEditNumberNG[background="white"] | #FFF
LineEditNumberNG:read-only[flat="true"] | color: #999
QPushButton[type="fluorophore-clearbutton"] | transparent; background image TrashNormal.png
QPushButton[type="fluorophore-clearbutton"]:hover | transparent; background image TrashHover.png

QChartView[type="wavelengthchart-backwidget"], QWidget[type="wavelengthchart-backwidget"] |
    background: #F6F6F6
QCheckBox[type="wavelengthchart-zoomreset-button"] | 14px; color: #000000; background: transparent
QCheckBox[type="wavelengthchart-zoomreset-button"]::indicator,
    QCheckBox[type="wavelengthchart-zoomreset-button"]::indicator:checked | image zoomreset18.png
QCheckBox[type="wavelengthchart-zoomreset-button"]::indicator:hover,
    QCheckBox[type="wavelengthchart-zoomreset-button"]::indicator:checked:hover,
    QCheckBox[type="wavelengthchart-zoomreset-button"]::indicator:unchecked:hover |
    image zoomresetHover18.png
QCheckBox[type="wavelengthchart-savechart-button"] | 14px; color: #000000; background: transparent
QCheckBox[type="wavelengthchart-savechart-button"]::indicator | image save18.png
QCheckBox[type="wavelengthchart-savechart-button"]::indicator:hover | image saveHover18.png
QLabel[type="wavelengthchart-totalpower-title"], QLabel[type="wavelengthchart-totalpower-value"] |
    Calibri Black; bold; 14px; color: #444; background: transparent
QWidget[type="wavelengthchart-totalpower-container"],
    QWidget[type="wavelengthchart-control-container"],
    QWidget[type="wavelengthchart-visibility-container"] | background: transparent
QCheckBox[type="wavelengthchart-visibility-checkbox"] | 14px; color: #000000;
    background: transparent
QCheckBox[type="text"] | 14px; color: #444; background: transparent
QCheckBox[type="wavelengthchart-visibility-checkbox"]::indicator:unchecked,
    QCheckBox[type="text"]::indicator:unchecked | image checkbox18.png
QCheckBox[type="wavelengthchart-visibility-checkbox"]::indicator:unchecked:hover,
    QCheckBox[type="text"]::indicator:unchecked:hover | image checkboxHover18.png
QCheckBox[type="wavelengthchart-visibility-checkbox"]::indicator:checked,
    QCheckBox[type="text"]::indicator:checked | image checkboxChecked18.png
QCheckBox[type="wavelengthchart-visibility-checkbox"]::indicator:checked:hover,
    QCheckBox[type="text"]::indicator:checked:hover | image checkboxCheckedHover18.png

ComboBoxNG | Calibri 20px; color: #FF444444; border: none; border-radius: 4px;
    padding: 2px 18px 2px 5px
ComboBoxNG[type="text"] | Calibri 14px; padding: 2px 10px 2px 5px
ComboBoxNG:editable | background: white
ComboBoxNG:!editable, ComboBoxNG::drop-down:editable | background: #FFC5C6C6
ComboBoxNG:!editable:on, ComboBoxNG::drop-down:editable:on | background: lightgray
ComboBoxNG::drop-down | subcontrol-origin: padding; subcontrol-position: top right; width: 15px;
    padding: 5px; border-left: 1px solid darkgray; right corners 4px
ComboBoxNG[type="text"]::drop-down | padding: 2px
ComboBoxNG::down-arrow | image downArrowDark.png
ComboBoxNG[type="text"]::down-arrow | image downArrow10Dark.png
ComboBoxNG::down-arrow:on | image downArrowHover.png
ComboBoxNG[type="text"]::down-arrow:on | image downArrow10Hover.png
ComboBoxNG::down-arrow:hover | image downArrowHover.png
ComboBoxNG[type="text"]::down-arrow:hover | image downArrow10Hover.png
ComboBoxNG QAbstractItemView | outline: 0px; border: none; border-radius: 4px;
    background-color: #DDD; padding: 5px 0px 5px 0px
ComboBoxNG[type="text"] QAbstractItemView | padding: 2px 0px 2px 0px
ComboBoxNG QAbstractItemView::item | color: #FF444444; border: none; border-radius: 4px;
    padding: 5px; margin: 0px 5px 0px 5px
ComboBoxNG[type="text"] QAbstractItemView::item | padding: 2px; margin: 0px 2px 0px 2px
ComboBoxNG QListView::item:selected | color: white; background-color: #ED6E00

ScrollAreaNG | border-style: none
QScrollArea QScrollBar:horizontal | height: 16px; margin: 2px; transparent
QScrollArea QScrollBar:vertical | width: 16px; margin: 2; transparent
QScrollArea QScrollBar::handle:horizontal | height: 16px; border-radius: 6px; min-width: 30px
QScrollArea QScrollBar::handle:vertical | width: 16px; border-radius: 6px; min-height: 30px
QScrollArea QScrollBar::handle:horizontal, QScrollArea QScrollBar::handle:vertical | #87212E
QScrollArea QScrollBar::handle:horizontal[type="scrollbar-flat-rounded-grey"],
    QScrollArea QScrollBar::handle:vertical[type="scrollbar-flat-rounded-grey"] | #808080
QScrollArea QScrollBar::handle:horizontal:hover, QScrollArea QScrollBar::handle:vertical:hover |
    #ED6E00
QScrollArea QScrollBar::handle:horizontal:hover[type="scrollbar-flat-rounded-grey"],
    QScrollArea QScrollBar::handle:vertical:hover[type="scrollbar-flat-rounded-grey"] | #404040
QScrollArea QScrollBar::handle:horizontal:disabled,
    QScrollArea QScrollBar::handle:vertical:disabled | #C0C0C0
QScrollArea QScrollBar::add-line:horizontal, QScrollArea QScrollBar::sub-line:horizontal,
    QScrollArea QScrollBar::add-page:horizontal, QScrollArea QScrollBar::sub-page:horizontal |
    width: 0px; transparent
QScrollArea QScrollBar::add-line:vertical, QScrollArea QScrollBar::sub-line:vertical,
    QScrollArea QScrollBar::add-page:vertical, QScrollArea QScrollBar::sub-page:vertical |
    height: 0px; transparent
QualityIndicator | border: 2px solid lightgrey; background: rgba(128,128,128,255);
    border-radius: 5px
)";

#endif
