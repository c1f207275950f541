#include "Pelorin/controls/Selector.h"
#include "tests/controls/ListRows.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <limits>
#include <memory>

namespace {

std::unique_ptr<Selector> makeSelector()
{
    auto selector = std::make_unique<Selector>(QStringLiteral("Settings"));
    for (const char *text : { "A", "B", "C" })
        selector->addItem(QLatin1String(text));
    selector->setGeometry(300, 200, 120, 25);
    selector->show();
    return selector;
}

/// Opens the list and lets its rows take their places.
DropDown &openedList(Selector &selector)
{
    MouseHand(selector).press(selector.rect().center());
    QApplication::processEvents();
    return *listOf(selector);
}

void loseFocus(Selector &selector)
{
    QFocusEvent event(QEvent::FocusOut, Qt::MouseFocusReason);
    QApplication::sendEvent(&selector, &event);
}

} // namespace

class tst_Selector : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsWithItsText();
    void neverShowsTheFirstItem();
    void hidesTheNextFirstItemToo();
    void hidesAndShowsItems();
    void ignoresIndicesOutOfRange_data();
    void ignoresIndicesOutOfRange();
    void opensTheListBelowItself();
    void closesTheListByTheNextPress();
    void leavesOtherButtonsAlone();
    void reportsTheChoice();
    void closesTheListWithTheFocus();
    void keepsTheListThatHasTheFocus();
    void losesTheFocusWithAClosedList();
    void survivesAListenerThatDeletesIt();
};

void tst_Selector::declaresItsInterface()
{
    const QMetaObject &meta = Selector::staticMetaObject;

    QCOMPARE(meta.className(), "Selector");
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), list({ "clicked(bool)", "itemSelected(int)" }));
    QCOMPARE(meta.method(meta.methodOffset()).parameterNames(), QList<QByteArray>{ "show" });
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), QStringList());
}

void tst_Selector::startsWithItsText()
{
    const Selector selector(QStringLiteral("Settings"));

    QCOMPARE(selector.text(), QStringLiteral("Settings"));
    QCOMPARE(selector.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(selector.itemCount(), 0);
    QCOMPARE(listOf(selector)->parentWidget(), &selector);
    QVERIFY(listOf(selector)->isWindow());
}

void tst_Selector::neverShowsTheFirstItem()
{
    const std::unique_ptr<Selector> selector = makeSelector();

    const DropDown &list = openedList(*selector);

    QCOMPARE(selector->itemCount(), 3);
    QCOMPARE(shownTexts(list), ::list({ "B", "C" }));
    QVERIFY(!selector->hasItemVisibility(0));
    QVERIFY(selector->hasItemVisibility(1));
    QVERIFY(selector->hasItemVisibility(2));
    QCOMPARE(selector->text(), QStringLiteral("Settings"));
}

void tst_Selector::hidesTheNextFirstItemToo()
{
    const std::unique_ptr<Selector> selector = makeSelector();
    listOf(*selector)->clear();

    selector->addItem(QStringLiteral("D"));
    selector->addItem(QStringLiteral("E"));

    QVERIFY(!selector->hasItemVisibility(0));
    QVERIFY(selector->hasItemVisibility(1));
}

void tst_Selector::hidesAndShowsItems()
{
    const std::unique_ptr<Selector> selector = makeSelector();

    selector->setItemVisibility(1, false);
    selector->setItemVisibility(0, true);

    QVERIFY(!selector->hasItemVisibility(1));
    QCOMPARE(shownTexts(openedList(*selector)), list({ "A", "C" }));
}

void tst_Selector::ignoresIndicesOutOfRange_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 3;
    QTest::newRow("the largest") << std::numeric_limits<int>::max();
    QTest::newRow("the smallest") << std::numeric_limits<int>::min();
}

void tst_Selector::ignoresIndicesOutOfRange()
{
    QFETCH(int, index);
    const std::unique_ptr<Selector> selector = makeSelector();

    selector->setItemVisibility(index, true);

    QVERIFY(!selector->hasItemVisibility(index));
    QCOMPARE(shownTexts(openedList(*selector)), list({ "B", "C" }));
}

void tst_Selector::opensTheListBelowItself()
{
    const std::unique_ptr<Selector> selector = makeSelector();
    SignalRecorder recorder(selector.get());

    const DropDown &list = openedList(*selector);

    QVERIFY(list.isVisible());
    QCOMPARE(list.pos(), selector->mapToGlobal(QPoint(0, 25)));
    QTRY_VERIFY(list.hasFocus());
    QCOMPARE(recorder.taken(), QStringList()); // not even clicked()
}

void tst_Selector::closesTheListByTheNextPress()
{
    const std::unique_ptr<Selector> selector = makeSelector();
    const DropDown &list = openedList(*selector);
    SignalRecorder recorder(selector.get());

    MouseHand(*selector).press(QPoint(1, 1));

    QVERIFY(!list.isVisible());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_Selector::leavesOtherButtonsAlone()
{
    const std::unique_ptr<Selector> selector = makeSelector();
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);

    QApplication::sendEvent(selector.get(), &press);

    QVERIFY(!press.isAccepted());
    QVERIFY(!listOf(*selector)->isVisible());
}

void tst_Selector::reportsTheChoice()
{
    const std::unique_ptr<Selector> selector = makeSelector();
    DropDown &list = openedList(*selector);
    SignalRecorder recorder(selector.get());

    pressRow(list, 1);

    QCOMPARE(recorder.taken(), ::list({ "itemSelected(1)" }));
    QVERIFY(!list.isVisible());
    QCOMPARE(selector->text(), QStringLiteral("Settings"));
}

void tst_Selector::closesTheListWithTheFocus()
{
    const std::unique_ptr<Selector> selector = makeSelector();
    DropDown &list = openedList(*selector);
    QTRY_VERIFY(list.hasFocus());
    list.clearFocus();

    loseFocus(*selector);

    QVERIFY(!list.isVisible());
}

void tst_Selector::keepsTheListThatHasTheFocus()
{
    const std::unique_ptr<Selector> selector = makeSelector();
    const DropDown &list = openedList(*selector);
    QTRY_VERIFY(list.hasFocus());

    loseFocus(*selector);

    QVERIFY(list.isVisible());
}

void tst_Selector::losesTheFocusWithAClosedList()
{
    const std::unique_ptr<Selector> selector = makeSelector();

    loseFocus(*selector);

    QVERIFY(!listOf(*selector)->isVisible());
}

void tst_Selector::survivesAListenerThatDeletesIt()
{
    QPointer<Selector> selector = makeSelector().release();
    DropDown &list = openedList(*selector);
    connect(selector, &Selector::itemSelected, this, [&] { delete selector; });

    pressRow(list, 2);

    QVERIFY(selector.isNull());
}

PELORIN_TEST_MAIN(tst_Selector)
#include "tst_selector.moc"
