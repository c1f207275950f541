#include "Pelorin/shell/ContainerWidget.h"
#include "tests/support/TestCase.h"

#include <QImage>

class tst_ContainerWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAQWidget();
    void namesItsGround_data();
    void namesItsGround();
    void showsTheGroundOfTheSheet_data();
    void showsTheGroundOfTheSheet();
};

void tst_ContainerWidget::isAQWidget()
{
    QCOMPARE(ContainerWidget::staticMetaObject.className(), "ContainerWidget");
    QCOMPARE(ContainerWidget::staticMetaObject.superClass(), &QWidget::staticMetaObject);
}

void tst_ContainerWidget::namesItsGround_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QString>("color");

    QTest::newRow("dark") << true << QStringLiteral("light-grey");
    QTest::newRow("light") << false << QStringLiteral("white");
}

void tst_ContainerWidget::namesItsGround()
{
    QFETCH(bool, dark);
    QFETCH(QString, color);
    ContainerWidget container;
    QVERIFY(!container.property("widget-color").isValid());

    container.setDarkBackground(dark);

    QCOMPARE(container.property("widget-color"), QVariant(color));
}

void tst_ContainerWidget::showsTheGroundOfTheSheet_data()
{
    QTest::addColumn<bool>("dark");
    QTest::addColumn<QRgb>("ground");

    QTest::newRow("dark") << true << 0xFFF6F6F6;
    QTest::newRow("light") << false << 0xFFFFFFFF;
}

void tst_ContainerWidget::showsTheGroundOfTheSheet()
{
    QFETCH(bool, dark);
    QFETCH(QRgb, ground);
    QWidget window;
    window.setStyleSheet(
        QStringLiteral("QWidget[widget-color=\"white\"] { background-color: #FFF; }"
                       "QWidget[widget-color=\"light-grey\"] { background-color: #F6F6F6; }"));
    auto *container = new ContainerWidget(&window);
    container->setDarkBackground(dark);
    container->setGeometry(0, 0, 100, 100);
    window.show();

    QCOMPARE(container->grab().toImage().pixel(50, 50), ground);
}

PELORIN_TEST_MAIN(tst_ContainerWidget)
#include "tst_containerwidget.moc"
