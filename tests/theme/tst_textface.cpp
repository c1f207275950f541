#include "Pelorin/theme/Pelorin.h"
#include "tests/support/TestCase.h"

#include <QFontDatabase>
#include <QPainterPath>
#include <QRawFont>

namespace {

const QString sample = QStringLiteral("Power 12.5 mW, 488 nm");

QFont asked()
{
    QFont font(QStringLiteral("Calibri"));
    font.setPixelSize(40);
    return font;
}

/// The text as the compiled-in face draws it, without any matching of families.
QRawFont compiledIn()
{
    return QRawFont(QStringLiteral(":/Pelorin/fonts/fonts/calibri.ttf"), 40);
}

QVector<quint32> glyphs(const QRawFont &font)
{
    return font.glyphIndexesForString(sample);
}

} // namespace

/// Runs with a font configuration that knows one other face only.
class tst_TextFace : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void drawsTheCompiledInFaceWhereNoneIsInstalled();
};

void tst_TextFace::drawsTheCompiledInFaceWhereNoneIsInstalled()
{
    const QString family = compiledIn().familyName();
    QVERIFY(!QFontDatabase().families().contains(QStringLiteral("Calibri")));
    QVERIFY(!QFontDatabase().families().contains(family));
    QVERIFY(!QFontDatabase().families().isEmpty());
    if (qEnvironmentVariableIsSet("PELORIN_TEST_ASK_BEFORE"))
        QVERIFY(QRawFont::fromFont(asked()).familyName() != family);

    Pelorin::loadApplicationFonts();

    const QRawFont drawn = QRawFont::fromFont(asked());
    QCOMPARE(drawn.familyName().toLower(), family.toLower()); // substitutions know no case
    QCOMPARE(glyphs(drawn), glyphs(compiledIn()));
    QCOMPARE(drawn.advancesForGlyphIndexes(glyphs(drawn)),
             compiledIn().advancesForGlyphIndexes(glyphs(compiledIn())));
    for (const quint32 glyph : glyphs(drawn))
        QCOMPARE(drawn.pathForGlyph(glyph), compiledIn().pathForGlyph(glyph));
}

PELORIN_TEST_MAIN(tst_TextFace)
#include "tst_textface.moc"
