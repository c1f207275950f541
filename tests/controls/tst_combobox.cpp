#include "Pelorin/controls/ComboBox.h"
#include "tests/controls/ListRows.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QDynamicPropertyChangeEvent>

#include <limits>

namespace {

constexpr int largest = std::numeric_limits<int>::max();
constexpr int smallest = std::numeric_limits<int>::min();

/// A box of 200 by 30 pixels with Alpha, Beta and Gamma, on the screen.
class ShownBox : public ComboBox
{
public:
    ShownBox()
    {
        addItems(list({ "Alpha", "Beta", "Gamma" }));
        setGeometry(300, 200, 200, 30);
        show();
    }

    void press(Qt::MouseButton button = Qt::LeftButton)
    {
        MouseHand(*this).press(rect().center(), button);
        QApplication::processEvents();
    }

    using ComboBox::focusOutEvent;
};

void loseFocus(ComboBox &box)
{
    QFocusEvent event(QEvent::FocusOut, Qt::MouseFocusReason);
    QApplication::sendEvent(&box, &event);
}

/// Writes down which object had a dynamic property set, in order.
class PropertyLog : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::DynamicPropertyChange) {
            const QByteArray name =
                static_cast<QDynamicPropertyChangeEvent *>(event)->propertyName();
            entries << QStringLiteral("%1 of %2")
                           .arg(QString::fromLatin1(name),
                                QLatin1String(watched->metaObject()->className()));
        }
        return false;
    }

    QStringList entries;
};

} // namespace

class tst_ComboBox : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsEmpty();
    void takesTheFirstItemForTheCurrentOne();
    void addsItemsWithIcons();
    void addsManyItems();
    void makesAnItemCurrentInSilence_data();
    void makesAnItemCurrentInSilence();
    void reportsAChoice_data();
    void reportsAChoice();
    void changesTexts();
    void isEmptyAgain();
    void passesOnIndicesOutOfRange_data();
    void passesOnIndicesOutOfRange();
    void hidesItems();
    void showsTheIconsOfItsList();
    void setsAPropertyOfTheListFirst();
    void looksLikeALabelWithOneItem();
    void keepsItsLookWhenItIsCleared();
    void doesNotOpenAsALabel();
    void opensTheListUnderItself();
    void closesTheListByTheNextPress();
    void leavesOtherButtonsAlone();
    void choosesARow();
    void closesTheListWithTheFocus();
    void keepsTheListThatHasTheFocus();
    void heedsARealLossOfFocusOnly();
    void survivesAListenerThatDeletesIt_data();
    void survivesAListenerThatDeletesIt();
    void survivesAListenerThatClearsIt();
};

void tst_ComboBox::declaresItsInterface()
{
    const QMetaObject &meta = ComboBox::staticMetaObject;

    QCOMPARE(meta.className(), "ComboBox");
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             list({ "currentIndexChanged(int)", "activated(int)" }));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), list({ "clear()", "checkCurrentIndex(int)" }));
}

void tst_ComboBox::startsEmpty()
{
    const ComboBox box;

    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(box.currentText(), QString());
    QCOMPARE(box.text(), QString());
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
    QCOMPARE(box.sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
    QCOMPARE(box.indent(), 0);
    QVERIFY(!box.property("single-mode").isValid());
    QCOMPARE(listOf(box)->parentWidget(), &box);
    QVERIFY(listOf(box)->isWindow());
}

void tst_ComboBox::takesTheFirstItemForTheCurrentOne()
{
    ComboBox box;
    SignalRecorder recorder(&box);

    QCOMPARE(box.addItem(QStringLiteral("Alpha")), 0);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.text(), QStringLiteral("Alpha"));

    QCOMPARE(box.addItem(QStringLiteral("Beta")), 1);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.text(), QStringLiteral("Alpha"));
    QCOMPARE(box.currentText(), QStringLiteral("Alpha"));
    QCOMPARE(box.count(), 2);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboBox::addsItemsWithIcons()
{
    ComboBox box;
    const QString path = QStringLiteral(":/Pelorin/images/images/settings.png"); // 22 x 22

    QCOMPARE(box.addItem(QStringLiteral("Alpha"), path), 0);
    QCOMPARE(box.addItem(QStringLiteral("Beta"), path), 1);

    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.text(), QStringLiteral("Alpha"));
    QCOMPARE(box.property("single-mode"), QVariant(false));
    for (const IconLabel *row : rowsOf(*listOf(box))) {
        bool found = false;
        for (const QLabel *part : row->findChildren<QLabel *>()) {
            const QPixmap icon = part->pixmap(Qt::ReturnByValue);
            found = found || icon.size() == QSize(22, 22);
        }
        QVERIFY(found);
    }
}

void tst_ComboBox::addsManyItems()
{
    ComboBox box;

    box.addItems(QStringList());
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), -1);

    box.addItems(list({ "Alpha", "Beta", "Alpha" }));
    QCOMPARE(box.count(), 3);
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.itemText(1), QStringLiteral("Beta"));
    QCOMPARE(box.itemText(2), QStringLiteral("Alpha"));
}

void tst_ComboBox::makesAnItemCurrentInSilence_data()
{
    QTest::addColumn<int>("items");
    QTest::addColumn<int>("request");
    QTest::addColumn<int>("stored");
    QTest::addColumn<QString>("text");

    QTest::newRow("inside") << 3 << 1 << 1 << QStringLiteral("Item 1");
    QTest::newRow("the last") << 3 << 2 << 2 << QStringLiteral("Item 2");
    QTest::newRow("the same") << 3 << 0 << 0 << QStringLiteral("Item 0");
    QTest::newRow("one past the last") << 3 << 3 << 3 << QString();
    QTest::newRow("far above") << 3 << 99 << 3 << QString();
    QTest::newRow("the largest") << 3 << largest << 3 << QString();
    QTest::newRow("below") << 3 << -1 << 0 << QStringLiteral("Item 0");
    QTest::newRow("the smallest") << 3 << smallest << 0 << QStringLiteral("Item 0");
    QTest::newRow("below without items") << 0 << -1 << 0 << QString();
    QTest::newRow("above without items") << 0 << 5 << 0 << QString();
}

void tst_ComboBox::makesAnItemCurrentInSilence()
{
    QFETCH(int, items);
    QFETCH(int, request);
    QFETCH(int, stored);
    QFETCH(QString, text);
    ComboBox box;
    for (int i = 0; i < items; ++i)
        box.addItem(QStringLiteral("Item %1").arg(i));
    SignalRecorder recorder(&box);

    box.setCurrentIndex(request);

    QCOMPARE(box.currentIndex(), stored);
    QCOMPARE(box.text(), text);
    QCOMPARE(box.currentText(), text);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboBox::reportsAChoice_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("signalsSent");
    QTest::addColumn<QString>("text");

    QTest::newRow("another item") << 2 << list({ "currentIndexChanged(2)", "activated(2)" })
                                  << QStringLiteral("Gamma");
    QTest::newRow("the current item") << 1 << list({ "activated(1)" }) << QStringLiteral("Beta");
    QTest::newRow("behind the last")
        << 3 << list({ "currentIndexChanged(3)", "activated(3)" }) << QString();
    QTest::newRow("before the first")
        << -1 << list({ "currentIndexChanged(-1)", "activated(-1)" }) << QString();
}

void tst_ComboBox::reportsAChoice()
{
    QFETCH(int, index);
    QFETCH(QStringList, signalsSent);
    QFETCH(QString, text);
    ComboBox box;
    box.addItems(list({ "Alpha", "Beta", "Gamma" }));
    box.setCurrentIndex(1);
    SignalRecorder recorder(&box);
    QString textAtChange = text;
    connect(&box, &ComboBox::currentIndexChanged, this, [&] { textAtChange = box.text(); });

    box.checkCurrentIndex(index);

    QCOMPARE(recorder.taken(), signalsSent);
    QCOMPARE(box.currentIndex(), index);
    QCOMPARE(box.text(), text);
    QCOMPARE(textAtChange, text); // a listener finds the new item already
}

void tst_ComboBox::changesTexts()
{
    ComboBox box;
    box.addItems(list({ "Alpha", "Beta" }));
    SignalRecorder recorder(&box);

    box.setItemText(1, QStringLiteral("Second"));
    QCOMPARE(box.text(), QStringLiteral("Alpha"));
    QCOMPARE(box.itemText(1), QStringLiteral("Second"));

    box.setItemText(0, QStringLiteral("First"));
    QCOMPARE(box.text(), QStringLiteral("First"));
    QCOMPARE(box.currentText(), QStringLiteral("First"));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboBox::isEmptyAgain()
{
    ComboBox box;
    box.addItems(list({ "Alpha", "Beta" }));
    SignalRecorder recorder(&box);

    box.clear();

    QCOMPARE(box.count(), 0);
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(box.text(), QString());
    QCOMPARE(recorder.taken(), QStringList());

    box.addItem(QStringLiteral("Gamma"));
    QCOMPARE(box.currentIndex(), 0);
    QCOMPARE(box.text(), QStringLiteral("Gamma"));
}

void tst_ComboBox::passesOnIndicesOutOfRange_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 3;
    QTest::newRow("the largest") << largest;
    QTest::newRow("the smallest") << smallest;
}

void tst_ComboBox::passesOnIndicesOutOfRange()
{
    QFETCH(int, index);
    ShownBox box;

    box.setItemText(index, QStringLiteral("None"));
    box.setItemVisibility(index, true);

    QCOMPARE(box.itemText(index), QString());
    QVERIFY(!box.hasItemVisibility(index));
    QVERIFY(!box.isItemVisible(index));
    QCOMPARE(box.text(), QStringLiteral("Alpha"));
    QCOMPARE(box.count(), 3);
}

void tst_ComboBox::hidesItems()
{
    ShownBox box;

    box.setItemVisibility(1, false);

    QVERIFY(!box.hasItemVisibility(1));
    QVERIFY(box.hasItemVisibility(2));
    QVERIFY(!box.isItemVisible(2)); // closed
    box.press();
    QCOMPARE(shownTexts(*listOf(box)), list({ "Alpha", "Gamma" }));
    QVERIFY(!box.isItemVisible(1));
    QVERIFY(box.isItemVisible(2));
}

void tst_ComboBox::showsTheIconsOfItsList()
{
    ComboBox box;
    box.addItem(QStringLiteral("Alpha"));

    box.showIcons(IconLabel::IconRight);

    QCOMPARE(rowsOf(*listOf(box)).first()->layout()->count(), 3); // text, stretch, icon
}

void tst_ComboBox::setsAPropertyOfTheListFirst()
{
    ComboBox box;
    PropertyLog log;
    box.installEventFilter(&log);
    listOf(box)->installEventFilter(&log);

    QVERIFY(!box.setProperty("type", QStringLiteral("heading"))); // a dynamic one, says QObject

    QCOMPARE(log.entries, list({ "type of DropDown", "type of ComboBox" }));
    QCOMPARE(box.property("type"), QVariant(QStringLiteral("heading")));
    QCOMPARE(listOf(box)->property("type"), QVariant(QStringLiteral("heading")));

    static_cast<QObject &>(box).setProperty("type", QStringLiteral("label"));
    QCOMPARE(listOf(box)->property("type"), QVariant(QStringLiteral("heading")));
}

void tst_ComboBox::looksLikeALabelWithOneItem()
{
    const auto singleMode = [](const ComboBox &box) { return box.property("single-mode"); };
    ComboBox box;

    box.setSingleMode(true);
    QCOMPARE(singleMode(box), QVariant(false)); // nothing in it

    box.addItem(QStringLiteral("Alpha"));
    QCOMPARE(singleMode(box), QVariant(true));
    QCOMPARE(listOf(box)->property("single-mode"), QVariant(true));

    box.addItem(QStringLiteral("Beta"));
    QCOMPARE(singleMode(box), QVariant(false));
    QCOMPARE(listOf(box)->property("single-mode"), QVariant(false));

    ComboBox plain;
    plain.addItem(QStringLiteral("Alpha"));
    QCOMPARE(singleMode(plain), QVariant(false));
    plain.setSingleMode(true);
    QCOMPARE(singleMode(plain), QVariant(true));
    plain.setSingleMode(false);
    QCOMPARE(singleMode(plain), QVariant(false));
}

void tst_ComboBox::keepsItsLookWhenItIsCleared()
{
    ComboBox box;
    box.setSingleMode(true);
    box.addItem(QStringLiteral("Alpha"));

    box.clear();

    QCOMPARE(box.property("single-mode"), QVariant(true));
}

void tst_ComboBox::doesNotOpenAsALabel()
{
    ShownBox box;
    box.clear();
    box.addItem(QStringLiteral("Alpha"));
    box.setSingleMode(true);

    box.press();
    QVERIFY(!listOf(box)->isVisible());

    box.setSingleMode(false);
    box.press();
    QVERIFY(listOf(box)->isVisible());

    box.press();
    box.setSingleMode(true);
    box.addItem(QStringLiteral("Beta"));
    box.press();
    QVERIFY(listOf(box)->isVisible());
}

void tst_ComboBox::opensTheListUnderItself()
{
    ShownBox box;
    SignalRecorder recorder(&box);
    const DropDown &list = *listOf(box);

    for (int times = 0; times < 3; ++times) {
        box.press();

        QVERIFY(list.isVisible());
        QCOMPARE(list.pos() + QPoint(list.width(), 0), box.mapToGlobal(QPoint(200 - 20, 30)));
        box.press();
    }
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboBox::closesTheListByTheNextPress()
{
    ShownBox box;
    box.press();
    SignalRecorder recorder(&box);

    box.press();

    QVERIFY(!listOf(box)->isVisible());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboBox::leavesOtherButtonsAlone()
{
    ShownBox box;
    QMouseEvent press(QEvent::MouseButtonPress, QPointF(5, 5), Qt::RightButton, Qt::RightButton,
                      Qt::NoModifier);

    QApplication::sendEvent(&box, &press);
    QVERIFY(!press.isAccepted());
    QVERIFY(!listOf(box)->isVisible());

    box.press();
    box.press(Qt::RightButton);
    QVERIFY(listOf(box)->isVisible());
}

void tst_ComboBox::choosesARow()
{
    ShownBox box;
    SignalRecorder recorder(&box);

    box.press();
    pressRow(*listOf(box), 2);
    QCOMPARE(recorder.taken(), list({ "currentIndexChanged(2)", "activated(2)" }));
    QCOMPARE(box.text(), QStringLiteral("Gamma"));
    QVERIFY(!listOf(box)->isVisible());

    box.press();
    pressRow(*listOf(box), 2);
    QCOMPARE(recorder.taken(), list({ "activated(2)" }));
}

void tst_ComboBox::closesTheListWithTheFocus()
{
    ShownBox box;
    box.press();
    QTRY_VERIFY(listOf(box)->hasFocus());
    listOf(box)->clearFocus();

    loseFocus(box);

    QVERIFY(!listOf(box)->isVisible());
}

void tst_ComboBox::keepsTheListThatHasTheFocus()
{
    ShownBox box;
    box.press();
    QTRY_VERIFY(listOf(box)->hasFocus());

    loseFocus(box);

    QVERIFY(listOf(box)->isVisible());
}

void tst_ComboBox::heedsARealLossOfFocusOnly()
{
    ShownBox box;
    box.press();
    QTRY_VERIFY(listOf(box)->hasFocus());
    listOf(box)->clearFocus();
    QFocusEvent other(QEvent::FocusIn, Qt::MouseFocusReason);

    box.focusOutEvent(&other);

    QVERIFY(listOf(box)->isVisible());
}

void tst_ComboBox::survivesAListenerThatDeletesIt_data()
{
    QTest::addColumn<bool>("atTheChange");

    QTest::newRow("at the change") << true;
    QTest::newRow("at the activation") << false;
}

void tst_ComboBox::survivesAListenerThatDeletesIt()
{
    QFETCH(bool, atTheChange);
    QPointer<ShownBox> box = new ShownBox;
    box->press();
    connect(box, atTheChange ? &ComboBox::currentIndexChanged : &ComboBox::activated, this,
            [&] { delete box; });

    pressRow(*listOf(*box), 1);

    QVERIFY(box.isNull());
}

void tst_ComboBox::survivesAListenerThatClearsIt()
{
    ShownBox box;
    box.press();
    connect(&box, &ComboBox::currentIndexChanged, &box, &ComboBox::clear);
    SignalRecorder recorder(&box);

    pressRow(*listOf(box), 1);

    QCOMPARE(recorder.taken(), list({ "currentIndexChanged(1)", "activated(1)" }));
    QCOMPARE(box.currentIndex(), -1);
    QCOMPARE(box.text(), QString());
    QVERIFY(!listOf(box)->isVisible());
}

PELORIN_TEST_MAIN(tst_ComboBox)
#include "tst_combobox.moc"
