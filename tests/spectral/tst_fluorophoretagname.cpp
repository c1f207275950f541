#include "Pelorin/spectral/FluorophoreTagName.h"
#include "tests/support/TestCase.h"

#include <QFontMetrics>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>

namespace {

QImage picture(FluorophoreTagName &tag)
{
    QImage image(200, 60, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::black);
    QPainter painter(&image);
    painter.translate(10.0, 10.0);
    tag.paint(&painter, nullptr, nullptr);
    return image;
}

} // namespace

class tst_FluorophoreTagName : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void keepsNameAndDescription();
    void isAsLargeAsItsName_data();
    void isAsLargeAsItsName();
    void isFoundByTheMouse();
    void drawsItsNameOnAGround();
};

void tst_FluorophoreTagName::keepsNameAndDescription()
{
    FluorophoreTagName tag(QStringLiteral("FITC"), QStringLiteral("Green"), nullptr);
    QCOMPARE(tag.name(), QStringLiteral("FITC"));
    QCOMPARE(tag.description(), QStringLiteral("Green"));
    QCOMPARE(tag.toolTip(), QStringLiteral("Green"));

    tag.setNameDesc(QStringLiteral("Cy3"), QStringLiteral("Orange"));
    QCOMPARE(tag.name(), QStringLiteral("Cy3"));
    QCOMPARE(tag.description(), QStringLiteral("Orange"));
    QCOMPARE(tag.toolTip(), QStringLiteral("Orange"));
}

void tst_FluorophoreTagName::isAsLargeAsItsName_data()
{
    QTest::addColumn<QString>("name");

    QTest::newRow("short") << "Cy3";
    QTest::newRow("long") << "A dye with a long name";
    QTest::newRow("empty") << "";
}

void tst_FluorophoreTagName::isAsLargeAsItsName()
{
    QFETCH(QString, name);
    FluorophoreTagName tag(QStringLiteral("other"), QString(), nullptr);
    QFont font(QStringLiteral("Calibri"), 14);
    tag.setFont(font);

    tag.setNameDesc(name, QString());

    const QFontMetrics metrics(font);
    QCOMPARE(tag.boundingRect(),
             QRectF(0, 0, metrics.horizontalAdvance(name) + 8, metrics.height() + 4));
}

void tst_FluorophoreTagName::isFoundByTheMouse()
{
    QGraphicsScene scene;
    auto *tag = new FluorophoreTagName(QStringLiteral("FITC"), QString(), nullptr);
    scene.addItem(tag);
    tag->setPos(100.0, 50.0);

    QCOMPARE(scene.itemAt(tag->sceneBoundingRect().center(), QTransform()), tag);
    QCOMPARE(scene.itemAt(QPointF(90.0, 55.0), QTransform()), nullptr);
}

void tst_FluorophoreTagName::drawsItsNameOnAGround()
{
    FluorophoreTagName tag(QStringLiteral("    "), QString(), nullptr);
    const QRect bounds = tag.boundingRect().toRect().translated(10, 10);

    const QImage image = picture(tag);

    // rgba(64, 64, 64, 180) upon black
    QCOMPARE(qRed(image.pixel(bounds.center())), 64 * 180 / 255);
    QCOMPARE(image.pixel(bounds.center().x(), bounds.top()), 0xFFFFFFFF); // the outline
    QCOMPARE(image.pixel(bounds.left(), bounds.center().y()), 0xFFFFFFFF);
    QCOMPARE(image.pixel(bounds.left(), bounds.top()), 0xFF000000); // rounded

    tag.setNameDesc(QStringLiteral("MMMM"), QString());
    const QRect wide = tag.boundingRect().toRect().translated(10, 10).adjusted(2, 2, -2, -2);
    const QImage named = picture(tag);
    QList<int> columns;
    for (int x = wide.left(); x <= wide.right(); ++x) {
        for (int y = wide.top(); y <= wide.bottom(); ++y) {
            if (qRed(named.pixel(x, y)) > 200) {
                columns << x;
                break;
            }
        }
    }
    QVERIFY(!columns.isEmpty());
    const int middle = (columns.first() + columns.last()) / 2;
    QVERIFY(qAbs(middle - wide.center().x()) <= 1);
}

PELORIN_TEST_MAIN(tst_FluorophoreTagName)
#include "tst_fluorophoretagname.moc"
