#include "Pelorin/shell/QWidgetNG.h"
#include "tests/support/TestCase.h"

#include <QImage>

class tst_QWidgetNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAnEmptyQWidget();
    void showsTheGroundOfTheSheet();
};

void tst_QWidgetNG::isAnEmptyQWidget()
{
    const QMetaObject &meta = QWidgetNG::staticMetaObject;

    QCOMPARE(meta.className(), "QWidgetNG");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(meta.methodCount(), QWidget::staticMetaObject.methodCount());
    QCOMPARE(meta.propertyCount(), QWidget::staticMetaObject.propertyCount());
}

void tst_QWidgetNG::showsTheGroundOfTheSheet()
{
    QWidgetNG widget;
    widget.setStyleSheet(QStringLiteral("QWidgetNG { background-color: #87212E; }"));
    widget.resize(50, 50);

    QCOMPARE(widget.grab().toImage().pixel(25, 25), 0xFF87212E);
}

PELORIN_TEST_MAIN(tst_QWidgetNG)
#include "tst_qwidgetng.moc"
