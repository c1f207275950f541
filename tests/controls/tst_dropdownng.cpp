#include "Pelorin/controls/DropDownNG.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QAbstractItemView>
#include <QFontMetrics>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>

#include <limits>

namespace {

constexpr int maxInt = std::numeric_limits<int>::max();
constexpr int minInt = std::numeric_limits<int>::min();

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// The texts in the box, by position.
QStringList shown(const QComboBox &box)
{
    QStringList result;
    for (int i = 0; i < box.count(); ++i)
        result << box.itemText(i);
    return result;
}

int position(const QComboBox &box)
{
    return box.currentIndex();
}

QIcon plainIcon()
{
    QPixmap pixmap(8, 8);
    pixmap.fill(Qt::red);
    return QIcon(pixmap);
}

/// A list with three items, A, B and C, and what it reports.
struct ThreeItems
{
    ThreeItems()
        : recorder(&list, QString(), &QComboBox::staticMetaObject)
    {
        list.addItems(words("A B C"));
    }

    DropDownNG list;
    SignalRecorder recorder;
};

} // namespace

class tst_DropDownNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsEmpty();
    void keepsWhatAnItemWasGiven();
    void replacesAnItemOnInsertion();
    void insertsSeveralItemsInARow_data();
    void insertsSeveralItemsInARow();
    void showsAnItemBeyondTheRangeOnceTheRangeReachesIt();
    void keepsAnItemOfANegativeIndexOutOfSight();
    void leavesAGapWhereAnItemWas();
    void writesOverTheLastItemAfterARemoval();
    void changesTheFieldsOfAnItem();
    void hasNothingOutOfRange_data();
    void hasNothingOutOfRange();
    void hasNothingInAGap();
    void showsTheVisibleItemsOnly();
    void keepsTheCurrentItemByItsText();
    void fallsBackWhenTheCurrentItemIsHidden();
    void isEmptyAfterClear();
    void leavesItsSignalsUnblockedAfterAChange();
    void takesTheCurrentIndexInSilence_data();
    void takesTheCurrentIndexInSilence();
    void keepsBlockedSignalsBlockedWhenAnIndexIsSet();
    void reportsAChosenItem();
    void reportsAChosenItemBehindAHiddenOne();
    void reportsTheCurrentItemChosenAgain();
    void relaysWhatIsHighlighted();
    void reportsATextThatBecomesCurrent();
    void ignoresAnUnknownText();
    void relaysTheTextOfTheField();
    void activatesNoItemForATypedText();
    void showsItsDisabledItemWhileDisabled();
    void goesBackToTheLastChoiceOfTheUser();
    void takesThePositionOfTheLastChoiceForAnIndex();
    void staysWhereItIsWithoutAnItemToShow_data();
    void staysWhereItIsWithoutAnItemToShow();
    void keepsTheChoiceOfATimeWhenItWasDisabled();
    void staysSilentWhenItIsDisabled();
    void isAsWideAsItsWidestVisibleText_data();
    void isAsWideAsItsWidestVisibleText();
    void keepsItsWidth();
    void followsItsFont();
    void boundsItsWidth();
    void obeysTheWheel();
};

void tst_DropDownNG::declaresItsInterface()
{
    const QMetaObject &meta = DropDownNG::staticMetaObject;

    QCOMPARE(meta.className(), "DropDownNG");
    QCOMPARE(meta.superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             words("sigActivated(QString) sigActivated(int) sigCurrentIndexChanged(int) "
                   "sigCurrentTextChanged(QString) sigEditTextChanged(QString) "
                   "sigHighlighted(QString) sigHighlighted(int)"));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
             words("clear() clearEditText() setCurrentIndex(int) setCurrentText(QString) "
                   "setEditText(QString) setDisabledIndex(int) "
                   "slotActivated(QString) slotActivated(int) slotCurrentIndexChanged(int) "
                   "slotCurrentTextChanged(QString) slotEditTextChanged(QString) "
                   "slotHighlighted(QString) slotHighlighted(int)"));
}

void tst_DropDownNG::startsEmpty()
{
    const DropDownNG list;

    QCOMPARE(list.count(), 0);
    QCOMPARE(list.currentIndex(), -1);
    QCOMPARE(list.currentText(), QString());
    QCOMPARE(list.currentData(), QVariant());
    QCOMPARE(list.disabledIndex(), 0);
    QCOMPARE(list.sizeAdjustPolicy(), QComboBox::AdjustToContents);
    QCOMPARE(list.width(), 50);
    QCOMPARE(list.minimumWidth(), 50);
    QCOMPARE(list.maximumWidth(), 50);
}

void tst_DropDownNG::keepsWhatAnItemWasGiven()
{
    DropDownNG list;
    SignalRecorder recorder(&list);
    const QIcon icon = plainIcon();

    list.addItem(QStringLiteral("Off"), 5);
    list.addItem(icon, QStringLiteral("Gated"), QStringLiteral("gate"));
    list.addItems(words("Burst Free"));
    list.insertItem(4, QStringLiteral("Sweep"), 1.5);
    list.insertItem(5, icon, QStringLiteral("Step"), true);

    QCOMPARE(list.count(), 6);
    QCOMPARE(shown(list), words("Off Gated Burst Free Sweep Step"));
    const QVariant data[] = { 5, QStringLiteral("gate"), QVariant(), QVariant(), 1.5, true };
    for (int i = 0; i < list.count(); ++i) {
        QVERIFY(list.itemVisibility(i));
        QCOMPARE(list.itemText(i), shown(list).at(i));
        QCOMPARE(list.itemUserData(i), data[i]);
        QCOMPARE(static_cast<const QComboBox &>(list).itemData(i), data[i]);
        const bool hasIcon = i == 1 || i == 5;
        QCOMPARE(list.itemIcon(i).cacheKey(), hasIcon ? icon.cacheKey() : QIcon().cacheKey());
        QCOMPARE(static_cast<const QComboBox &>(list).itemIcon(i).isNull(), !hasIcon);
    }
    QCOMPARE(list.currentIndex(), 0);
    QCOMPARE(list.currentText(), QStringLiteral("Off"));
    QCOMPARE(list.currentData(), QVariant(5));
    QCOMPARE(list.currentData(Qt::DisplayRole), QVariant(QStringLiteral("Off")));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_DropDownNG::replacesAnItemOnInsertion()
{
    ThreeItems three;
    three.list.setItemVisibility(0, false);

    three.list.insertItem(0, QStringLiteral("X"), 7);

    QCOMPARE(three.list.count(), 3);
    QCOMPARE(shown(three.list), words("X B C"));
    QCOMPARE(three.list.itemUserData(0), QVariant(7));
    QVERIFY(three.list.itemVisibility(0));
}

void tst_DropDownNG::insertsSeveralItemsInARow_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("count");
    QTest::addColumn<QStringList>("box");

    QTest::newRow("over the first two") << 0 << words("X Y") << 3 << words("X Y C");
    QTest::newRow("over the last and beyond") << 2 << words("X Y") << 4 << words("A B X Y");
    QTest::newRow("at the end") << 3 << words("X Y") << 5 << words("A B C X Y");
    QTest::newRow("none") << 0 << QStringList() << 3 << words("A B C");
    QTest::newRow("from below zero") << -1 << words("X Y") << 4 << words("Y B C");
    QTest::newRow("beyond a gap") << 5 << words("X Y") << 5 << words("A B C");
    QTest::newRow("into the largest index") << maxInt << words("X Y") << 4 << words("A B C");
}

void tst_DropDownNG::insertsSeveralItemsInARow()
{
    QFETCH(int, index);
    QFETCH(QStringList, texts);
    QFETCH(int, count);
    QFETCH(QStringList, box);
    ThreeItems three;

    three.list.insertItems(index, texts);

    QCOMPARE(three.list.count(), count);
    QCOMPARE(shown(three.list), box);
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::showsAnItemBeyondTheRangeOnceTheRangeReachesIt()
{
    DropDownNG list;

    list.insertItem(2, QStringLiteral("C"));
    QCOMPARE(list.count(), 1);
    QCOMPARE(shown(list), QStringList());
    QCOMPARE(list.itemText(2), QString());

    list.insertItem(0, QStringLiteral("A"));
    QCOMPARE(shown(list), words("A"));

    list.addItem(QStringLiteral("overwrites")); // under the index 2, which counts two items
    QCOMPARE(list.count(), 2);

    list.insertItem(1, QStringLiteral("B"));
    QCOMPARE(list.count(), 3);
    QCOMPARE(shown(list), words("A B overwrites"));
}

void tst_DropDownNG::keepsAnItemOfANegativeIndexOutOfSight()
{
    ThreeItems three;

    three.list.insertItem(-1, QStringLiteral("Z"));

    QCOMPARE(three.list.count(), 4);
    QCOMPARE(shown(three.list), words("A B C"));
    QCOMPARE(three.list.itemText(-1), QString());
    QCOMPARE(three.list.itemVisibility(-1), false);
}

void tst_DropDownNG::leavesAGapWhereAnItemWas()
{
    ThreeItems three;

    three.list.removeItem(1);

    QCOMPARE(three.list.count(), 2);
    QCOMPARE(shown(three.list), words("A"));
    QVERIFY(!three.list.itemVisibility(1));
    QCOMPARE(three.list.itemText(2), QString()); // out of range now

    three.list.insertItem(1, QStringLiteral("N"));
    QCOMPARE(three.list.count(), 3);
    QCOMPARE(shown(three.list), words("A N C"));
}

void tst_DropDownNG::writesOverTheLastItemAfterARemoval()
{
    ThreeItems three;
    three.list.removeItem(1);

    three.list.addItem(QStringLiteral("D")); // under the index 2, where C was

    QCOMPARE(three.list.count(), 2);
    QCOMPARE(shown(three.list), words("A"));
    three.list.insertItem(1, QStringLiteral("B"));
    QCOMPARE(shown(three.list), words("A B D"));
}

void tst_DropDownNG::changesTheFieldsOfAnItem()
{
    ThreeItems three;
    const QIcon icon = plainIcon();

    three.list.setItemIcon(2, icon);
    three.list.setItemText(2, QStringLiteral("Gate"));
    three.list.setItemUserData(2, 3.5);

    QCOMPARE(shown(three.list), words("A B Gate"));
    QCOMPARE(three.list.itemIcon(2).cacheKey(), icon.cacheKey());
    QCOMPARE(three.list.itemText(2), QStringLiteral("Gate"));
    QCOMPARE(three.list.itemUserData(2), QVariant(3.5));
    const QComboBox &box = three.list;
    QVERIFY(!box.itemIcon(2).isNull());
    QCOMPARE(box.itemData(2), QVariant(3.5));
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::hasNothingOutOfRange_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("behind the last") << 3;
    QTest::newRow("below the first") << -1;
    QTest::newRow("largest") << maxInt;
    QTest::newRow("smallest") << minInt;
}

void tst_DropDownNG::hasNothingOutOfRange()
{
    QFETCH(int, index);
    ThreeItems three;
    DropDownNG &list = three.list;
    list.setCurrentIndex(1);

    list.setItemVisibility(index, false);
    list.setItemIcon(index, plainIcon());
    list.setItemText(index, QStringLiteral("X"));
    list.setItemUserData(index, 1);
    list.removeItem(index);
    list.setCurrentIndex(index);

    QCOMPARE(list.count(), 3);
    QCOMPARE(shown(list), words("A B C"));
    QCOMPARE(list.currentIndex(), 1);
    QCOMPARE(list.itemVisibility(index), false);
    QVERIFY(list.itemIcon(index).isNull());
    QCOMPARE(list.itemText(index), QString());
    QVERIFY(!list.itemUserData(index).isValid());
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::hasNothingInAGap()
{
    ThreeItems three;
    DropDownNG &list = three.list;
    list.removeItem(1);

    list.setItemVisibility(1, true);
    list.setItemIcon(1, plainIcon());
    list.setItemText(1, QStringLiteral("X"));
    list.setItemUserData(1, 1);
    list.removeItem(1);
    list.setCurrentIndex(1);

    QCOMPARE(list.count(), 2);
    QCOMPARE(shown(list), words("A"));
    QCOMPARE(list.currentIndex(), 0);
    QCOMPARE(list.itemVisibility(1), false);
    QVERIFY(list.itemIcon(1).isNull());
    QCOMPARE(list.itemText(1), QString());
    QVERIFY(!list.itemUserData(1).isValid());
}

void tst_DropDownNG::showsTheVisibleItemsOnly()
{
    ThreeItems three;

    three.list.setItemVisibility(1, false);
    QCOMPARE(three.list.count(), 3);
    QCOMPARE(shown(three.list), words("A C"));
    QVERIFY(!three.list.itemVisibility(1));
    QCOMPARE(three.list.itemText(1), QStringLiteral("B"));

    three.list.setItemVisibility(1, true);
    QCOMPARE(shown(three.list), words("A B C"));
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::keepsTheCurrentItemByItsText()
{
    ThreeItems three;
    three.list.setCurrentIndex(2);

    three.list.setItemVisibility(0, false);
    QCOMPARE(three.list.currentIndex(), 2);
    QCOMPARE(position(three.list), 1);

    three.list.setItemText(1, QStringLiteral("C")); // the first of that text is as good
    QCOMPARE(three.list.currentIndex(), 1);
    QCOMPARE(three.list.currentText(), QStringLiteral("C"));
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::fallsBackWhenTheCurrentItemIsHidden()
{
    ThreeItems three;
    three.list.setCurrentIndex(1);

    three.list.setItemVisibility(1, false);
    QCOMPARE(three.list.currentIndex(), 0);

    three.list.setItemVisibility(0, false);
    QCOMPARE(three.list.currentIndex(), 2);

    three.list.setItemVisibility(2, false);
    QCOMPARE(three.list.currentIndex(), -1);
    QCOMPARE(three.list.currentText(), QString());
    QVERIFY(!three.list.currentData(Qt::DisplayRole).isValid());
    QCOMPARE(three.list.width(), 50);
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::isEmptyAfterClear()
{
    ThreeItems three;
    three.list.removeItem(0);

    three.list.clear();

    QCOMPARE(three.list.count(), 0);
    QCOMPARE(shown(three.list), QStringList());
    QCOMPARE(three.list.currentIndex(), -1);
    QCOMPARE(three.list.width(), 50);
    three.list.addItem(QStringLiteral("D"));
    QCOMPARE(shown(three.list), words("D"));
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::leavesItsSignalsUnblockedAfterAChange()
{
    DropDownNG list;
    list.blockSignals(true);

    list.addItem(QStringLiteral("A"));

    QVERIFY(!list.signalsBlocked());
}

void tst_DropDownNG::takesTheCurrentIndexInSilence_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("current");

    QTest::newRow("visible") << 2 << 2;
    QTest::newRow("the current one") << 0 << 0;
    QTest::newRow("hidden") << 1 << 0;
}

void tst_DropDownNG::takesTheCurrentIndexInSilence()
{
    QFETCH(int, index);
    QFETCH(int, current);
    ThreeItems three;
    three.list.setItemVisibility(1, false);
    SignalRecorder all(&three.list);

    three.list.setCurrentIndex(index);

    QCOMPARE(three.list.currentIndex(), current);
    QCOMPARE(all.taken(), QStringList());
}

void tst_DropDownNG::keepsBlockedSignalsBlockedWhenAnIndexIsSet()
{
    ThreeItems three;
    const QSignalBlocker blocker(&three.list);

    three.list.setCurrentIndex(2);
    three.list.setEnabled(false);

    QVERIFY(three.list.signalsBlocked());
}

void tst_DropDownNG::reportsAChosenItem()
{
    ThreeItems three;

    QTest::keyClick(&three.list, Qt::Key_Down);

    QCOMPARE(three.recorder.taken(), QStringList({ QStringLiteral("sigCurrentIndexChanged(1)"),
                                                   QStringLiteral("sigCurrentTextChanged(\"B\")"),
                                                   QStringLiteral("sigActivated(1)"),
                                                   QStringLiteral("sigActivated(\"B\")") }));
}

void tst_DropDownNG::reportsAChosenItemBehindAHiddenOne()
{
    ThreeItems three;
    three.list.setItemVisibility(1, false);

    QTest::keyClick(&three.list, Qt::Key_Down);

    QCOMPARE(three.list.currentIndex(), 2);
    QCOMPARE(three.recorder.taken(), QStringList({ QStringLiteral("sigCurrentIndexChanged(1)"),
                                                   QStringLiteral("sigCurrentTextChanged(\"C\")"),
                                                   QStringLiteral("sigActivated(2)"),
                                                   QStringLiteral("sigActivated(\"C\")") }));
}

void tst_DropDownNG::reportsTheCurrentItemChosenAgain()
{
    ThreeItems three;
    three.list.setItemVisibility(0, false);
    three.list.showPopup();
    three.recorder.taken();

    QTest::keyClick(three.list.view(), Qt::Key_Return);

    QTRY_VERIFY(!three.list.view()->isVisible());
    QCOMPARE(three.recorder.taken(), QStringList({ QStringLiteral("sigActivated(1)"),
                                                   QStringLiteral("sigActivated(\"B\")") }));
}

void tst_DropDownNG::relaysWhatIsHighlighted()
{
    ThreeItems three;
    three.list.setItemVisibility(0, false);
    three.list.showPopup();
    three.recorder.taken();

    QTest::keyClick(three.list.view(), Qt::Key_Down);

    QCOMPARE(three.recorder.taken(), QStringList({ QStringLiteral("sigHighlighted(1)"),
                                                   QStringLiteral("sigHighlighted(\"C\")") }));
    three.list.hidePopup();
}

void tst_DropDownNG::reportsATextThatBecomesCurrent()
{
    ThreeItems three;
    three.list.setItemVisibility(0, false);

    three.list.setCurrentText(QStringLiteral("C"));

    QCOMPARE(three.list.currentIndex(), 2);
    QCOMPARE(three.recorder.taken(),
             QStringList({ QStringLiteral("sigCurrentIndexChanged(1)"),
                           QStringLiteral("sigCurrentTextChanged(\"C\")") }));
}

void tst_DropDownNG::ignoresAnUnknownText()
{
    ThreeItems three;
    three.list.setItemVisibility(1, false);

    three.list.setCurrentText(QStringLiteral("B")); // hidden
    three.list.setCurrentText(QStringLiteral("a"));
    three.list.setCurrentText(QStringLiteral("A")); // as it is

    QCOMPARE(three.list.currentIndex(), 0);
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::relaysTheTextOfTheField()
{
    ThreeItems three;
    three.list.setEditable(true);

    three.list.setEditText(QStringLiteral("405"));
    QCOMPARE(three.list.currentText(), QStringLiteral("405"));
    three.list.clearEditText();
    QCOMPARE(three.list.currentText(), QString());

    QCOMPARE(three.recorder.taken(),
             QStringList({ QStringLiteral("sigEditTextChanged(\"405\")"),
                           QStringLiteral("sigCurrentTextChanged(\"405\")"),
                           QStringLiteral("sigEditTextChanged(\"\")"),
                           QStringLiteral("sigCurrentTextChanged(\"\")") }));
}

void tst_DropDownNG::activatesNoItemForATypedText()
{
    ThreeItems three;
    three.list.setEditable(true);
    three.list.setEditText(QStringLiteral("D"));
    three.recorder.taken();

    QTest::keyClick(three.list.lineEdit(), Qt::Key_Return); // the base puts D into its box

    QCOMPARE(shown(three.list), words("A B C D"));
    QCOMPARE(three.list.count(), 3);
    const QStringList reported = three.recorder.taken();
    QVERIFY(reported.contains(QStringLiteral("sigActivated(\"D\")")));
    QVERIFY(!reported.contains(QStringLiteral("sigActivated(3)")));
    QCOMPARE(three.list.currentIndex(), 0); // of no item
    three.list.setItemUserData(0, 1);
    QCOMPARE(shown(three.list), words("A B C"));
}

void tst_DropDownNG::showsItsDisabledItemWhileDisabled()
{
    ThreeItems three;
    QTest::keyClick(&three.list, Qt::Key_Down);
    three.list.setDisabledIndex(2);
    QCOMPARE(three.list.disabledIndex(), 2);
    QCOMPARE(three.list.currentIndex(), 1); // stored only
    three.recorder.taken();

    three.list.setEnabled(false);
    QCOMPARE(three.list.currentIndex(), 2);

    three.list.setDisabledIndex(0);
    QCOMPARE(three.list.currentIndex(), 2);

    three.list.setEnabled(true);
    QCOMPARE(three.list.currentIndex(), 1);
    QCOMPARE(three.recorder.taken(), QStringList());
}

void tst_DropDownNG::goesBackToTheLastChoiceOfTheUser()
{
    ThreeItems three;
    QTest::keyClick(&three.list, Qt::Key_Down);
    three.list.setCurrentIndex(2); // the application's, and no choice

    three.list.setEnabled(false);
    three.list.setEnabled(true);

    QCOMPARE(three.list.currentIndex(), 1);
}

void tst_DropDownNG::takesThePositionOfTheLastChoiceForAnIndex()
{
    ThreeItems three;
    three.list.addItem(QStringLiteral("D"));
    three.list.setItemVisibility(0, false);
    QTest::keyClick(&three.list, Qt::Key_Down);
    QTest::keyClick(&three.list, Qt::Key_Down);
    QCOMPARE(three.list.currentIndex(), 3); // D, at the position 2
    three.list.setDisabledIndex(1);

    three.list.setEnabled(false);
    QCOMPARE(three.list.currentIndex(), 1);
    three.list.setEnabled(true);

    QCOMPARE(three.list.currentIndex(), 2); // C
}

void tst_DropDownNG::staysWhereItIsWithoutAnItemToShow_data()
{
    QTest::addColumn<int>("disabledIndex");

    QTest::newRow("hidden") << 1;
    QTest::newRow("behind the last") << 3;
    QTest::newRow("below the first") << -1;
    QTest::newRow("largest") << maxInt;
}

void tst_DropDownNG::staysWhereItIsWithoutAnItemToShow()
{
    QFETCH(int, disabledIndex);
    ThreeItems three;
    three.list.setItemVisibility(1, false);
    three.list.setCurrentIndex(2);
    three.list.setDisabledIndex(disabledIndex);

    three.list.setEnabled(false);

    QCOMPARE(three.list.disabledIndex(), disabledIndex);
    QCOMPARE(three.list.currentIndex(), 2);
}

void tst_DropDownNG::keepsTheChoiceOfATimeWhenItWasDisabled()
{
    ThreeItems three;
    QTest::keyClick(&three.list, Qt::Key_Down);
    three.list.setEnabled(false);
    three.recorder.taken();

    three.list.setCurrentText(QStringLiteral("C")); // no choice now
    QCOMPARE(three.list.currentIndex(), 2);
    QCOMPARE(three.recorder.taken(), QStringList(QStringLiteral("sigCurrentTextChanged(\"C\")")));

    three.list.setEnabled(true);
    QCOMPARE(three.list.currentIndex(), 1);
}

void tst_DropDownNG::staysSilentWhenItIsDisabled()
{
    QWidget panel;
    auto *list = new DropDownNG(&panel);
    list->addItems(words("A B C"));
    list->setDisabledIndex(2);
    SignalRecorder all(list);

    panel.setEnabled(false);
    QCOMPARE(list->currentIndex(), 2);
    panel.setEnabled(true);
    QCOMPARE(list->currentIndex(), 0);

    QCOMPARE(all.taken(), QStringList());
}

void tst_DropDownNG::isAsWideAsItsWidestVisibleText_data()
{
    QTest::addColumn<QStringList>("texts");
    QTest::addColumn<int>("hidden");
    QTest::addColumn<QString>("widest");

    const QString external = QStringLiteral("External_trigger");
    QTest::newRow("one") << words("Continuous") << -1 << QStringLiteral("Continuous");
    QTest::newRow("the widest last") << words("i External_trigger") << -1 << external;
    QTest::newRow("the widest first") << words("External_trigger i") << -1 << external;
    QTest::newRow("the widest hidden")
        << words("External_trigger Continuous") << 0 << QStringLiteral("Continuous");
    QTest::newRow("narrower than the least") << words("i") << -1 << QString();
    QTest::newRow("all hidden") << words("External_trigger") << 0 << QString();
}

void tst_DropDownNG::isAsWideAsItsWidestVisibleText()
{
    QFETCH(QStringList, texts);
    QFETCH(int, hidden);
    QFETCH(QString, widest);
    DropDownNG list;

    list.addItems(texts);
    list.setItemVisibility(hidden, false);

    const int text = list.fontMetrics().boundingRect(widest).width();
    const int width = widest.isEmpty() ? 50 : text + 25;
    QVERIFY(widest.isEmpty() || text > 25);
    QCOMPARE(list.minimumWidth(), width);
    QCOMPARE(list.maximumWidth(), width);
    QCOMPARE(list.width(), width);
}

void tst_DropDownNG::keepsItsWidth()
{
    QWidget panel;
    auto *layout = new QHBoxLayout(&panel);
    auto *list = new DropDownNG;
    list->addItems(words("Continuous"));
    layout->addWidget(list);
    const int width = list->fontMetrics().boundingRect(QStringLiteral("Continuous")).width() + 25;

    panel.resize(600, 60);
    panel.show();
    QCOMPARE(list->width(), width);

    list->setMinimumWidth(0);
    list->setMaximumWidth(5000);
    list->resize(400, 40);
    QCOMPARE(list->size(), QSize(width, 40));
    QCOMPARE(list->minimumWidth(), width);
    QCOMPARE(list->maximumWidth(), width);
}

void tst_DropDownNG::followsItsFont()
{
    DropDownNG list;
    list.addItems(words("Continuous"));
    QFont font = list.font();
    font.setPixelSize(40);

    list.setFont(font);

    const int text = QFontMetrics(font).boundingRect(QStringLiteral("Continuous")).width();
    QCOMPARE(list.width(), text + 25);
}

void tst_DropDownNG::boundsItsWidth()
{
    DropDownNG list;
    QFont font = list.font();
    font.setPixelSize(2000);
    list.setFont(font);

    list.addItem(QString(20000, QLatin1Char('W')));

    QCOMPARE(list.maximumWidth(), QWIDGETSIZE_MAX - 1);
}

void tst_DropDownNG::obeysTheWheel()
{
    ThreeItems three;
    three.list.setItemVisibility(1, false);
    QWheelEvent event(QPointF(5, 5), three.list.mapToGlobal(QPoint(5, 5)), QPoint(),
                      QPoint(0, -120), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);

    QApplication::sendEvent(&three.list, &event);

    QVERIFY(event.isAccepted());
    QCOMPARE(three.list.currentIndex(), 2);
    QCOMPARE(three.recorder.taken(), QStringList({ QStringLiteral("sigCurrentIndexChanged(1)"),
                                                   QStringLiteral("sigCurrentTextChanged(\"C\")"),
                                                   QStringLiteral("sigActivated(2)"),
                                                   QStringLiteral("sigActivated(\"C\")") }));
}

PELORIN_TEST_MAIN(tst_DropDownNG)
#include "tst_dropdownng.moc"
