#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/theme/SheetProbe.h"

#include <QLabel>
#include <QPushButton>

// The sheet chooses by class name. These stand in for the classes of the library that bear the
// name, and have the look alone.
class Button : public QPushButton
{
    Q_OBJECT

public:
    using QPushButton::QPushButton;
};

class ComboBox : public QLabel
{
    Q_OBJECT
};

namespace {

using namespace SheetColors;

const QString sample = QStringLiteral("Sample");

enum class State { Normal, Hovered, Disabled, Checked, CheckedHovered, CheckedDisabled, Pressed };

const char *nameOf(State state)
{
    switch (state) {
    case State::Normal:
        return "normal";
    case State::Hovered:
        return "under the mouse";
    case State::Disabled:
        return "disabled";
    case State::Checked:
        return "checked";
    case State::CheckedHovered:
        return "checked under the mouse";
    case State::CheckedDisabled:
        return "checked and disabled";
    case State::Pressed:
        return "pressed";
    }
    return "";
}

void bring(QAbstractButton &button, SheetProbe &probe, State state)
{
    const bool checked = state == State::Checked || state == State::CheckedHovered
                         || state == State::CheckedDisabled;
    button.setCheckable(checked);
    button.setChecked(checked);
    button.setEnabled(state != State::Disabled && state != State::CheckedDisabled);
    button.setDown(state == State::Pressed);
    if (state == State::Hovered || state == State::CheckedHovered)
        probe.hoverMiddle();
    else
        probe.leave();
}

bool holds(const QImage &image, QRgb color)
{
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            if (image.pixel(x, y) == color)
                return true;
        }
    }
    return false;
}

} // namespace

Q_DECLARE_METATYPE(State)

/// Shows that the rules of the sheet reach push buttons, and the library's own.
class tst_StyleSheetButtons : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void drawsThePictureOfAStyle_data();
    void drawsThePictureOfAStyle();
    void framesTheCloseButton();
    void paintsTheTrashInTheColorOfItsState();
    void asksForRoomByStyle_data();
    void asksForRoomByStyle();
    void stretchesOnlyTheScaleableSaveButton();
    void writesWhiteUponTransportButtons();
    void drawsRoundedButtons_data();
    void drawsRoundedButtons();
    void colorsButtonByState_data();
    void colorsButtonByState();
    void writesButtonBySize_data();
    void writesButtonBySize();
    void leavesAButtonWithoutAColorOnItsGround();
    void drawsArrowsUponButtonWithoutItsHoverColor_data();
    void drawsArrowsUponButtonWithoutItsHoverColor();
    void marksAComboBoxThatHasAChoice_data();
    void marksAComboBoxThatHasAChoice();
};

void tst_StyleSheetButtons::initTestCase()
{
    SheetProbe::installSheet();
}

void tst_StyleSheetButtons::drawsThePictureOfAStyle_data()
{
    QTest::addColumn<QString>("style");
    QTest::addColumn<State>("state");
    QTest::addColumn<QString>("picture");

    const auto row = [](const char *style, State state, const char *picture) {
        QTest::addRow("%s, %s", style, nameOf(state))
            << QString::fromLatin1(style) << state << QString::fromLatin1(picture);
    };
    row("warning", State::Normal, "warningGrey.png");
    row("warning", State::Hovered, "warningOrange.png");
    row("toggle", State::Normal, "downArrow.png");
    row("toggle", State::Hovered, "downArrowHover.png");
    row("toggle", State::Checked, "upArrow.png");
    row("toggle", State::CheckedHovered, "upArrow.png");
    row("playbutton", State::Normal, "PlayNormal.png");
    row("playbutton", State::Hovered, "PlayHover.png");
    row("playbutton", State::Disabled, "PlayDisabled.png");
    row("stopbutton", State::Normal, "StopNormal.png");
    row("stopbutton", State::Hovered, "StopHover.png");
    row("stopbutton", State::Disabled, "StopDisabled.png");
    row("editbutton", State::Normal, "EditNormal.png");
    row("editbutton", State::Hovered, "EditHover.png");
    row("savebutton", State::Normal, "SaveNormal.png");
    row("savebutton", State::Hovered, "SaveHover.png");
    row("savebutton", State::Disabled, "SaveDisabled.png");
    row("savebutton-scaleable", State::Normal, "SaveNormal.png");
    row("savebutton-scaleable", State::Hovered, "SaveHover.png");
    row("savebutton-scaleable", State::Disabled, "SaveDisabled.png");
    row("setbutton", State::Normal, "SetNormal.png");
    row("setbutton", State::Hovered, "SetHover.png");
}

void tst_StyleSheetButtons::drawsThePictureOfAStyle()
{
    QFETCH(QString, style);
    QFETCH(State, state);
    QFETCH(QString, picture);
    const QByteArray name = picture.toLatin1();
    const QSize size = themePicture(name.constData()).size();
    QVERIFY(!size.isEmpty());
    QPushButton button;
    button.setProperty("style", style);
    SheetProbe probe(button, size);

    bring(button, probe, state);

    QVERIFY(probe.showsAtCorner(name.constData()));
}

void tst_StyleSheetButtons::framesTheCloseButton()
{
    QPushButton button;
    button.setProperty("style", QStringLiteral("close"));
    SheetProbe probe(button);

    QCOMPARE(button.size(), QSize(30, 30)); // 26 and a border of 2
    QCOMPARE(probe.pixel(QPoint(0, 0)), ground);
    QCOMPARE(probe.pixel(QPoint(15, 0)), QRgb(0xFF444444));
    QCOMPARE(probe.pixel(QPoint(15, 1)), QRgb(0xFF444444));
    QCOMPARE(probe.pixel(QPoint(15, 2)), white);
    // The round corners of the border reach into those of the picture.
    const QRect inner(5, 5, 15, 15);
    const QSize size(25, 25);
    QCOMPARE(probe.image().copy(inner.translated(2, 2)),
             pictureUpon(white, "cross.png", size).copy(inner));

    probe.hoverMiddle();
    QCOMPARE(probe.image().copy(inner.translated(2, 2)),
             pictureUpon(white, "crossHover.png", size).copy(inner));
}

void tst_StyleSheetButtons::paintsTheTrashInTheColorOfItsState()
{
    constexpr QRgb dark = 0xFF555555;
    QPushButton button;
    button.setProperty("type", QStringLiteral("fluorophore-clearbutton"));
    SheetProbe probe(button, QSize(26, 26));

    QCOMPARE(probe.pixel(QPoint(0, 0)), ground);
    QVERIFY(holds(probe.image(), dark));
    QVERIFY(!holds(probe.image(), orange));

    probe.hoverMiddle();
    QVERIFY(holds(probe.image(), orange));
    QVERIFY(!holds(probe.image(), dark));
}

void tst_StyleSheetButtons::asksForRoomByStyle_data()
{
    QTest::addColumn<QSize>("size");

    QTest::newRow("toggle") << QSize(16, 16);
    QTest::newRow("editbutton") << QSize(24, 24);
    QTest::newRow("savebutton") << QSize(32, 32);
    QTest::newRow("setbutton") << QSize(32, 32);
    // The padding of -8 counts.
    QTest::newRow("playbutton") << QSize(34 - 8, 34);
    QTest::newRow("stopbutton") << QSize(34 - 8, 34);
}

void tst_StyleSheetButtons::asksForRoomByStyle()
{
    QFETCH(QSize, size);
    QPushButton button;
    button.setProperty("style", QString::fromLatin1(QTest::currentDataTag()));

    button.ensurePolished();

    QCOMPARE(button.sizeHint(), size);
}

void tst_StyleSheetButtons::stretchesOnlyTheScaleableSaveButton()
{
    QPushButton save;
    save.setProperty("style", QStringLiteral("savebutton-scaleable"));
    SheetProbe saveProbe(save, QSize(64, 64));
    QPushButton play;
    play.setProperty("style", QStringLiteral("playbutton"));
    SheetProbe playProbe(play, QSize(68, 68));

    QVERIFY(saveProbe.shows("SaveNormal.png", QRect(0, 0, 64, 64)));
    QVERIFY(playProbe.showsAtCorner("PlayNormal.png"));
}

void tst_StyleSheetButtons::writesWhiteUponTransportButtons()
{
    for (const char *style : { "playbutton", "stopbutton" }) {
        QPushButton button(sample);
        button.setProperty("style", QString::fromLatin1(style));
        SheetProbe probe(button, QSize(100, 34));

        const PaintRecorder::Text text = PaintRecorder(button).find(sample);

        QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
        QCOMPARE(text.font.pixelSize(), 18);
        QVERIFY(text.font.bold());
        QCOMPARE(text.color.rgb(), white);
    }
}

void tst_StyleSheetButtons::drawsRoundedButtons_data()
{
    QTest::addColumn<QString>("type");
    QTest::addColumn<State>("state");
    QTest::addColumn<QRgb>("color");

    const auto row = [](const char *type, State state, QRgb color) {
        QTest::addRow("%s, %s", type, nameOf(state)) << QString::fromLatin1(type) << state << color;
    };
    row("rounded-red", State::Normal, red);
    row("rounded-red", State::Hovered, orange);
    row("rounded-red", State::Disabled, disabledGrey);
    row("rounded-grey", State::Normal, 0xFF555555);
    row("rounded-grey", State::Hovered, orange);
    row("rounded-grey", State::Disabled, disabledGrey);
}

void tst_StyleSheetButtons::drawsRoundedButtons()
{
    QFETCH(QString, type);
    QFETCH(State, state);
    QFETCH(QRgb, color);
    QPushButton button(sample);
    button.setProperty("type", type);
    SheetProbe probe(button);

    bring(button, probe, state);

    const PaintRecorder::Text text = PaintRecorder(button).find(sample);
    QCOMPARE(probe.pixel(QPoint(0, 0)), ground);
    QCOMPARE(probe.pixel(QPoint(4, button.height() / 2)), color);
    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pixelSize(), 14);
    QVERIFY(text.font.bold());
    QCOMPARE(text.color.rgb(), white);
    QCOMPARE(button.width(),
             QFontMetrics(text.font).size(Qt::TextShowMnemonic, sample).width() + 16);
}

void tst_StyleSheetButtons::colorsButtonByState_data()
{
    QTest::addColumn<QString>("color");
    QTest::addColumn<QString>("checkedColor");
    QTest::addColumn<State>("state");
    QTest::addColumn<QRgb>("fill");

    const auto row = [](const char *color, const char *checkedColor, State state, QRgb fill) {
        QTest::addRow("%s, %s, %s", *color ? color : "no color",
                      *checkedColor ? checkedColor : "no checked color", nameOf(state))
            << QString::fromLatin1(color) << QString::fromLatin1(checkedColor) << state
            << (fill | 0xFF000000);
    };
    struct Color
    {
        const char *name;
        QRgb normal;
        QRgb disabled;
    };
    for (const Color color :
         { Color{ "red", 0x87212E, 0x895A60 }, Color{ "grey", 0xC6C6C6, 0xDDDDDD },
           Color{ "dark-grey", 0x555555, 0xDDDDDD }, Color{ "green", 0xABC217, 0xDDDDDD } }) {
        row(color.name, "", State::Normal, color.normal);
        row(color.name, "", State::Disabled, color.disabled);
        row(color.name, "", State::Hovered, orange);
        row(color.name, "", State::Pressed, pressedOrange);
        row(color.name, "", State::Checked, color.normal);
        row("", color.name, State::Checked, color.normal);
        row("", color.name, State::CheckedDisabled, color.normal);
    }
    row("orange", "", State::Normal, orange);
    row("orange", "", State::Disabled, disabledGrey);
    row("orange", "", State::Hovered, orange);
    row("orange", "", State::Pressed, orange);
    row("", "orange", State::Checked, orange);
    row("grey", "green", State::Normal, 0xC6C6C6);
    row("grey", "green", State::Checked, 0xABC217);
    row("grey", "green", State::CheckedHovered, orange);
    row("grey", "green", State::Disabled, disabledGrey);
    // A checked colour knows no disabled one; what stands later in the sheet wins.
    row("grey", "green", State::CheckedDisabled, 0xABC217);
    row("green", "grey", State::CheckedDisabled, disabledGrey);
    row("red", "green", State::Checked, 0xABC217);
}

void tst_StyleSheetButtons::colorsButtonByState()
{
    QFETCH(QString, color);
    QFETCH(QString, checkedColor);
    QFETCH(State, state);
    QFETCH(QRgb, fill);
    Button button;
    if (!color.isEmpty())
        button.setProperty("button-color", color);
    if (!checkedColor.isEmpty())
        button.setProperty("button-checked-color", checkedColor);
    SheetProbe probe(button, QSize(60, 30));

    bring(button, probe, state);

    QCOMPARE(probe.middle(), fill);
}

void tst_StyleSheetButtons::writesButtonBySize_data()
{
    QTest::addColumn<int>("pixels");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<int>("radius");

    QTest::newRow("normal") << 14 << false << 12;
    QTest::newRow("small") << 12 << false << 8;
    QTest::newRow("longsmall") << 12 << false << 8;
    QTest::newRow("fat") << 18 << true << 8;
}

void tst_StyleSheetButtons::writesButtonBySize()
{
    QFETCH(int, pixels);
    QFETCH(bool, bold);
    QFETCH(int, radius);
    Button button(sample);
    button.setProperty("button-size", QString::fromLatin1(QTest::currentDataTag()));
    button.setProperty("button-color", QStringLiteral("red"));
    SheetProbe probe(button, QSize(120, 55));

    const PaintRecorder::Text text = PaintRecorder(button).find(sample);

    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pixelSize(), pixels);
    QCOMPARE(text.font.bold(), bold);
    QCOMPARE(text.color.rgb(), white);
    // The top edge is straight from the radius on.
    QVERIFY(probe.pixel(QPoint(radius - 6, 0)) != red);
    QCOMPARE(probe.pixel(QPoint(radius + 1, 0)), red);
}

void tst_StyleSheetButtons::leavesAButtonWithoutAColorOnItsGround()
{
    Button button(sample);
    SheetProbe probe(button, QSize(120, 40));
    const QRgb plain = probe.pixel(QPoint(6, 20));

    probe.hoverMiddle();

    QCOMPARE(PaintRecorder(button).find(sample).color.rgb(), white);
    QCOMPARE(probe.pixel(QPoint(6, 20)), plain);
    for (const QRgb color : { red, orange, disabledGrey })
        QVERIFY(plain != color);
}

void tst_StyleSheetButtons::drawsArrowsUponButtonWithoutItsHoverColor_data()
{
    QTest::addColumn<QString>("picture");
    QTest::addColumn<QString>("hoverPicture");

    const auto row = [](const char *style, const char *picture, const char *hoverPicture) {
        QTest::newRow(style) << QString::fromLatin1(picture) << QString::fromLatin1(hoverPicture);
    };
    row("smalluparrow", "upArrowSmall1.png", "upArrowSmall1Hover.png");
    row("smalldnarrow", "dnArrowSmall1.png", "dnArrowSmall1Hover.png");
    row("biguparrow", "upArrowBig1.png", "upArrowBig1Hover.png");
    row("bigdnarrow", "dnArrowBig1.png", "dnArrowBig1Hover.png");
}

void tst_StyleSheetButtons::drawsArrowsUponButtonWithoutItsHoverColor()
{
    QFETCH(QString, picture);
    QFETCH(QString, hoverPicture);
    Button button;
    button.setProperty("style", QString::fromLatin1(QTest::currentDataTag()));
    button.setProperty("button-color", QStringLiteral("grey"));
    SheetProbe probe(button, themePicture(picture.toLatin1().constData()).size());

    QVERIFY(probe.showsAtCorner(picture.toLatin1().constData()));

    probe.hoverMiddle();
    QVERIFY(probe.showsAtCorner(hoverPicture.toLatin1().constData()));
}

void tst_StyleSheetButtons::marksAComboBoxThatHasAChoice_data()
{
    QTest::addColumn<QVariant>("singleMode");
    QTest::addColumn<bool>("marked");

    QTest::newRow("several items") << QVariant(false) << true;
    QTest::newRow("one item") << QVariant(true) << false;
    QTest::newRow("never said") << QVariant() << false;
}

void tst_StyleSheetButtons::marksAComboBoxThatHasAChoice()
{
    QFETCH(QVariant, singleMode);
    QFETCH(bool, marked);
    ComboBox box;
    box.setText(sample);
    box.setProperty("single-mode", singleMode);
    SheetProbe probe(box, QSize(120, 26));

    QCOMPARE(probe.shows("downArrow.png", QRect(104, 5, 16, 16)), marked);
    if (!marked)
        QCOMPARE(probe.pixel(QPoint(112, 13)), ground);
}

PELORIN_TEST_MAIN(tst_StyleSheetButtons)
#include "tst_stylesheetbuttons.moc"
