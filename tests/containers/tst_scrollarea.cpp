#include "Pelorin/containers/ScrollArea.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/TestCase.h"

#include <QLabel>
#include <QScrollBar>
#include <QVBoxLayout>

class tst_ScrollArea : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void setsUpAWhitePage_data();
    void setsUpAWhitePage();
    void laysOutThePage();
    void setsPropertiesOfThePage();
    void isAsWideAsItsPageNeeds_data();
    void isAsWideAsItsPageNeeds();
    void keepsItsWidthAtOtherEvents();
    void livesWithoutItsPage();
};

void tst_ScrollArea::setsUpAWhitePage_data()
{
    QTest::addColumn<bool>("noHorizontalScroll");
    QTest::addColumn<int>("horizontalPolicy");

    QTest::newRow("both ways") << false << int(Qt::ScrollBarAsNeeded);
    QTest::newRow("up and down only") << true << int(Qt::ScrollBarAlwaysOff);
}

void tst_ScrollArea::setsUpAWhitePage()
{
    QFETCH(bool, noHorizontalScroll);
    const ScrollArea area(noHorizontalScroll);

    QCOMPARE(ScrollArea::staticMetaObject.superClass(), &QScrollArea::staticMetaObject);
    QCOMPARE(ownMethods(ScrollArea::staticMetaObject), QStringList());
    QTEST(int(area.horizontalScrollBarPolicy()), "horizontalPolicy");
    QCOMPARE(area.verticalScrollBarPolicy(), Qt::ScrollBarAsNeeded);
    QVERIFY(area.widgetResizable());
    QCOMPARE(area.sizeAdjustPolicy(), QAbstractScrollArea::AdjustToContents);
    QCOMPARE(area.property("flat").toBool(), true);
    QCOMPARE(area.widget()->property("widget-color").toString(), QStringLiteral("white"));
    QCOMPARE(area.widget()->sizePolicy().horizontalPolicy(), QSizePolicy::Expanding);
    QCOMPARE(area.widget()->sizePolicy().verticalPolicy(), QSizePolicy::Expanding);
}

void tst_ScrollArea::laysOutThePage()
{
    ScrollArea area(false);
    QLayout *const own = area.layout();
    auto *column = new QVBoxLayout;

    area.setLayout(column);

    QCOMPARE(area.widget()->layout(), column);
    QCOMPARE(area.layout(), own);
}

void tst_ScrollArea::setsPropertiesOfThePage()
{
    ScrollArea area(false);

    QVERIFY(!area.setWidgetProperty("widget-color", QStringLiteral("red"))); // a dynamic one
    QVERIFY(area.setWidgetProperty("toolTip", QStringLiteral("page")));

    QCOMPARE(area.widget()->property("widget-color").toString(), QStringLiteral("red"));
    QCOMPARE(area.widget()->toolTip(), QStringLiteral("page"));
    QVERIFY(!area.property("widget-color").isValid());
}

void tst_ScrollArea::isAsWideAsItsPageNeeds_data()
{
    QTest::addColumn<bool>("noHorizontalScroll");

    QTest::newRow("both ways") << false;
    QTest::newRow("up and down only") << true;
}

void tst_ScrollArea::isAsWideAsItsPageNeeds()
{
    QFETCH(bool, noHorizontalScroll);
    ScrollArea area(noHorizontalScroll);
    auto *column = new QVBoxLayout;
    auto *content = new QWidget;
    content->setMinimumSize(400, 900);
    column->addWidget(content);
    area.setLayout(column);

    area.resize(100, 100);
    area.show();
    QApplication::processEvents();
    area.widget()->resize(area.widget()->size() + QSize(1, 1)); // as by a new content

    const int needed = area.widget()->minimumSizeHint().width() + area.verticalScrollBar()->width();
    QCOMPARE(area.minimumWidth(), noHorizontalScroll ? needed : 0);
}

void tst_ScrollArea::keepsItsWidthAtOtherEvents()
{
    ScrollArea area(true);
    QWidget other;
    other.installEventFilter(&area);
    area.setMinimumWidth(7);

    QResizeEvent resize(QSize(10, 10), QSize(20, 20));
    QApplication::sendEvent(&other, &resize);
    QEvent move(QEvent::Move);
    QApplication::sendEvent(area.widget(), &move);
    QCOMPARE(area.minimumWidth(), 7);

    QApplication::sendEvent(area.widget(), &resize);
    QVERIFY(area.minimumWidth() != 7);
}

void tst_ScrollArea::livesWithoutItsPage()
{
    ScrollArea area(true);
    QWidget other;
    auto *const column = new QVBoxLayout;
    area.setLayout(nullptr); // in silence

    area.setWidget(new QLabel); // deletes the page
    area.setLayout(column);
    area.resize(300, 200);

    QVERIFY(!area.setWidgetProperty("toolTip", QStringLiteral("page")));
    QCOMPARE(column->parent(), nullptr);
    other.setLayout(column); // it was left to the caller
}

PELORIN_TEST_MAIN(tst_ScrollArea)
#include "tst_scrollarea.moc"
