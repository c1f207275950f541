#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/theme/SheetProbe.h"

#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QRadioButton>

namespace {

using namespace SheetColors;

const QString sample = QStringLiteral("Sample");

PaintRecorder::Text paintedText(QWidget &widget, const QString &text = sample)
{
    return PaintRecorder(widget).find(text);
}

} // namespace

/// Shows that the rules of the sheet reach labels, plain widgets, line edits, boxes and progress
/// bars.
class tst_StyleSheetRendering : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void writesLabelsByType_data();
    void writesLabelsByType();
    void putsAHighlightedLabelOnRed();
    void fillsWidgetsByColor_data();
    void fillsWidgetsByColor();
    void drawsFlatLineEdits_data();
    void drawsFlatLineEdits();
    void writesLineEditsByType();
    void drawsTheStateOfBoxes_data();
    void drawsTheStateOfBoxes();
    void writesBoxesByType_data();
    void writesBoxesByType();
    void drawsAFlatProgressBar();
};

void tst_StyleSheetRendering::initTestCase()
{
    SheetProbe::installSheet();
}

void tst_StyleSheetRendering::writesLabelsByType_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<bool>("bold");
    QTest::addColumn<QRgb>("color");

    const auto row = [](const char *type, const char *family, int pixels, bool bold, QRgb color) {
        QTest::newRow(type) << QString::fromLatin1(family) << pixels << bold
                            << (color | 0xFF000000);
    };
    row("title", "Arial Black", 34, false, 0xC5C6C6);
    row("wavelengthchart-title", "Arial Black", 14, false, 0x444444);
    row("heading", "Calibri", 30, false, 0x444444);
    row("heading-light", "Calibri", 30, false, 0x666666);
    row("label", "Calibri", 20, false, 0x666666);
    row("label-limit-low", "Calibri", 20, false, 0xE55830);
    row("label-limit-high", "Calibri", 20, false, 0xE55830);
    row("label-limit-ok", "Calibri", 20, false, 0x95D400);
    row("label-highlighted", "Calibri", 20, false, 0xFFFFFF);
    row("label-header", "Calibri", 20, true, 0x444444);
    row("text", "Calibri", 14, false, 0x444444);
    row("text-bold", "Calibri", 14, true, 0x444444);
    row("panel-label", "Calibri", 20, false, 0xFFFFFF);
    row("panel-text", "Calibri", 14, false, 0xFFFFFF);
    row("header", "Arial Black", 40, true, 0xDDDDDD);
    row("tiny-header", "Calibri", 20, true, 0xDDDDDD);
    row("wavelengthchart-totalpower-title", "Calibri Black", 14, true, 0x444444);
    row("wavelengthchart-totalpower-value", "Calibri Black", 14, true, 0x444444);
}

void tst_StyleSheetRendering::writesLabelsByType()
{
    QFETCH(QString, family);
    QFETCH(int, pixels);
    QFETCH(bool, bold);
    QFETCH(QRgb, color);
    QLabel label(sample);
    label.setProperty("type", QString::fromLatin1(QTest::currentDataTag()));
    SheetProbe probe(label);

    const PaintRecorder::Text text = paintedText(label);

    QCOMPARE(text.font.family(), family);
    QCOMPARE(text.font.pixelSize(), pixels);
    QCOMPARE(text.font.bold(), bold);
    QCOMPARE(text.color.rgb(), color);
}

void tst_StyleSheetRendering::putsAHighlightedLabelOnRed()
{
    QLabel label;
    label.setProperty("type", QStringLiteral("label-highlighted"));
    SheetProbe probe(label, QSize(60, 30));

    QCOMPARE(probe.middle(), red);
}

void tst_StyleSheetRendering::fillsWidgetsByColor_data()
{
    QTest::addColumn<QString>("property");
    QTest::addColumn<QString>("value");
    QTest::addColumn<QRgb>("color");

    const auto row = [](const char *property, const char *value, QRgb color) {
        QTest::newRow(value) << QString::fromLatin1(property) << QString::fromLatin1(value)
                             << (color | 0xFF000000);
    };
    row("widget-color", "red", 0x87212E);
    row("widget-color", "white", 0xFFFFFF);
    row("widget-color", "white-logo", 0xFFFFFF);
    row("widget-color", "light-grey", 0xF6F6F6);
    row("widget-color", "yellow", 0xFFFF00);
    row("widget-color", "green", 0x008000);
    row("widget-color", "blue, which the sheet does not know", ground);
    row("type", "wavelengthchart-backwidget", 0xF6F6F6);
    row("type", "wavelengthchart-totalpower-container", ground);
    row("type", "wavelengthchart-control-container", ground);
    row("type", "wavelengthchart-visibility-container", ground);
}

void tst_StyleSheetRendering::fillsWidgetsByColor()
{
    QFETCH(QString, property);
    QFETCH(QString, value);
    QFETCH(QRgb, color);
    QWidget widget;
    widget.setProperty(property.toLatin1().constData(), value);

    SheetProbe probe(widget, QSize(40, 30));

    QCOMPARE(probe.pixel(QPoint(0, 0)), color);
    QCOMPARE(probe.middle(), color);
    QCOMPARE(probe.pixel(QPoint(39, 29)), color);
}

void tst_StyleSheetRendering::drawsFlatLineEdits_data()
{
    QTest::addColumn<QString>("background");
    QTest::addColumn<bool>("readOnly");
    QTest::addColumn<QRgb>("fill");

    QTest::newRow("plain") << QString() << false << white;
    QTest::newRow("plain, read-only") << QString() << true << white;
    QTest::newRow("dark") << QStringLiteral("dark") << false << lightGrey;
    QTest::newRow("dark, read-only") << QStringLiteral("dark") << true << lightGrey;
    QTest::newRow("white") << QStringLiteral("white") << false << white;
}

void tst_StyleSheetRendering::drawsFlatLineEdits()
{
    QFETCH(QString, background);
    QFETCH(bool, readOnly);
    QFETCH(QRgb, fill);
    QLineEdit edit(sample);
    edit.setProperty("flat", true);
    edit.setProperty("background", background);
    edit.setReadOnly(readOnly);
    QPalette palette;
    palette.setColor(QPalette::Text, Qt::darkBlue);
    edit.setPalette(palette);
    SheetProbe probe(edit, QSize(200, 30));

    const QRgb ink = paintedText(edit).color.rgb();

    for (const QPoint corner : { QPoint(0, 0), QPoint(199, 0), QPoint(0, 29), QPoint(199, 29) })
        QCOMPARE(probe.pixel(corner), fill); // no frame
    QCOMPARE(probe.pixel(QPoint(150, 15)), fill);
    QCOMPARE(ink, readOnly ? QRgb(0xFF999999) : QColor(Qt::darkBlue).rgb());
}

void tst_StyleSheetRendering::writesLineEditsByType()
{
    QLineEdit label(sample);
    label.setProperty("type", QStringLiteral("label"));
    QLineEdit text(sample);
    text.setProperty("type", QStringLiteral("text"));
    SheetProbe labelProbe(label);
    SheetProbe textProbe(text);

    QCOMPARE(paintedText(label).font.family(), QStringLiteral("Calibri"));
    QCOMPARE(paintedText(label).font.pixelSize(), 20);
    QCOMPARE(paintedText(text).font.family(), QStringLiteral("Calibri"));
    QCOMPARE(paintedText(text).font.pixelSize(), 14);
}

void tst_StyleSheetRendering::drawsTheStateOfBoxes_data()
{
    QTest::addColumn<QString>("kind");
    QTest::addColumn<bool>("checked");
    QTest::addColumn<bool>("hovered");
    QTest::addColumn<QString>("picture");

    const auto row = [](const char *kind, bool checked, bool hovered, const char *picture) {
        QTest::addRow("%s, %s%s", kind, checked ? "checked" : "unchecked",
                      hovered ? ", under the mouse" : "")
            << QString::fromLatin1(kind) << checked << hovered << QString::fromLatin1(picture);
    };
    row("radio", false, false, "radio.png");
    row("radio", false, true, "radioHover.png");
    row("radio", true, false, "radioChecked.png");
    row("radio", true, true, "radioChecked.png");
    row("flat", false, false, "checkbox.png");
    row("flat", false, true, "checkboxHover.png");
    row("flat", true, false, "checkboxChecked.png");
    row("flat", true, true, "checkboxCheckedHover.png");
    row("prerequisite", false, false, "PreRequisiteMissing.png");
    row("prerequisite", false, true, "PreRequisiteMissing.png");
    row("prerequisite", true, false, "PreRequisiteFulfilled.png");
    row("prerequisite", true, true, "PreRequisiteFulfilled.png");
    for (const char *kind : { "text", "wavelengthchart-visibility-checkbox" }) {
        row(kind, false, false, "checkbox18.png");
        row(kind, false, true, "checkboxHover18.png");
        row(kind, true, false, "checkboxChecked18.png");
        row(kind, true, true, "checkboxCheckedHover18.png");
    }
    row("wavelengthchart-zoomreset-button", false, false, "zoomreset18.png");
    row("wavelengthchart-zoomreset-button", false, true, "zoomresetHover18.png");
    row("wavelengthchart-zoomreset-button", true, false, "zoomreset18.png");
    row("wavelengthchart-zoomreset-button", true, true, "zoomresetHover18.png");
    row("wavelengthchart-savechart-button", false, false, "save18.png");
    row("wavelengthchart-savechart-button", false, true, "saveHover18.png");
    row("wavelengthchart-savechart-button", true, false, "save18.png");
    row("wavelengthchart-savechart-button", true, true, "saveHover18.png");
}

void tst_StyleSheetRendering::drawsTheStateOfBoxes()
{
    QFETCH(QString, kind);
    QFETCH(bool, checked);
    QFETCH(bool, hovered);
    QFETCH(QString, picture);
    std::unique_ptr<QAbstractButton> box;
    if (kind == QLatin1String("radio"))
        box = std::make_unique<QRadioButton>(sample);
    else
        box = std::make_unique<QCheckBox>(sample);
    if (kind == QLatin1String("flat"))
        box->setProperty("flat", true);
    else
        box->setProperty("type", kind);
    box->setCheckable(true);
    box->setChecked(checked);
    const QByteArray name = picture.toLatin1();
    const QRect place(QPoint(0, 8), themePicture(name.constData()).size());
    QVERIFY(!place.isEmpty());
    SheetProbe probe(*box, QSize(150, place.height() + 16)); // the picture lies in the middle

    if (hovered)
        probe.hover(place.center());

    QVERIFY(probe.shows(name.constData(), place));
}

void tst_StyleSheetRendering::writesBoxesByType_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("pixels");
    QTest::addColumn<QRgb>("color");

    const QString own = QApplication::font().family();
    QTest::newRow("prerequisite") << QStringLiteral("Calibri") << 20 << QRgb(0xFF666666);
    QTest::newRow("text") << own << 14 << QRgb(0xFF444444);
    QTest::newRow("wavelengthchart-zoomreset-button") << own << 14 << QRgb(0xFF000000);
    QTest::newRow("wavelengthchart-savechart-button") << own << 14 << QRgb(0xFF000000);
    QTest::newRow("wavelengthchart-visibility-checkbox") << own << 14 << QRgb(0xFF000000);
}

void tst_StyleSheetRendering::writesBoxesByType()
{
    QFETCH(QString, family);
    QFETCH(int, pixels);
    QFETCH(QRgb, color);
    QCheckBox box(sample);
    box.setProperty("type", QString::fromLatin1(QTest::currentDataTag()));
    SheetProbe probe(box);

    const PaintRecorder::Text text = paintedText(box);

    QCOMPARE(text.font.family(), family);
    QCOMPARE(text.font.pixelSize(), pixels);
    QCOMPARE(text.color.rgb(), color);
}

void tst_StyleSheetRendering::drawsAFlatProgressBar()
{
    constexpr QRgb frame = 0xFFD3D3D3; // lightgrey
    constexpr QRgb body = 0xFF808080;
    QProgressBar bar;
    bar.setProperty("flat", true);
    bar.setValue(50);
    SheetProbe probe(bar, QSize(200, 24));

    QCOMPARE(probe.pixel(QPoint(0, 0)), ground); // round corners
    QCOMPARE(probe.pixel(QPoint(100, 0)), frame);
    QCOMPARE(probe.pixel(QPoint(100, 1)), frame);
    QCOMPARE(probe.pixel(QPoint(198, 12)), frame);
    QCOMPARE(probe.pixel(QPoint(150, 12)), body);
    QCOMPARE(probe.pixel(QPoint(60, 12)), red);
    QCOMPARE(probe.pixel(QPoint(60, 2)), body); // the chunk keeps a pixel off the frame
    QCOMPARE(probe.pixel(QPoint(60, 3)), red);
    QCOMPARE(paintedText(bar, QStringLiteral("50%")).color.rgb(), white);
}

PELORIN_TEST_MAIN(tst_StyleSheetRendering)
#include "tst_stylesheetrendering.moc"
