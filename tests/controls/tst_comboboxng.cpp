#include "Pelorin/controls/ComboBoxNG.h"
#include "Pelorin/controls/ComboBoxNGItemModel.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QFrame>
#include <QHelpEvent>
#include <QListView>
#include <QPointer>
#include <QStringListModel>
#include <QStyledItemDelegate>
#include <QTableView>
#include <QToolTip>
#include <QWheelEvent>

#include <limits>

namespace {

constexpr int maxInt = std::numeric_limits<int>::max();
constexpr int minInt = std::numeric_limits<int>::min();

QStringList words(const char *text)
{
    return QString::fromUtf8(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

/// A shown box with four items, A to D, and the keyboard on it.
struct FourItems
{
    FourItems()
    {
        box.addItems(words("A B C D"));
        box.show();
        box.activateWindow();
        box.setFocus();
    }

    bool isReady() { return QTest::qWaitForWindowActive(&box) && box.hasFocus(); }
    /// Where the pointer would be over an item of the open list.
    void clickItem(int row)
    {
        const QPoint place = box.view()->visualRect(box.model()->index(row, 0)).center();
        QTest::mouseClick(box.view()->viewport(), Qt::LeftButton, Qt::NoModifier, place);
    }

    ComboBoxNG box;
};

bool turnWheel(QWidget &widget, int steps)
{
    QWheelEvent event(QPointF(5, 5), widget.mapToGlobal(QPoint(5, 5)), QPoint(),
                      QPoint(0, -120 * steps), Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase,
                      false);
    QApplication::sendEvent(&widget, &event);
    return event.isAccepted();
}

void askForToolTip(QWidget &widget)
{
    QHelpEvent event(QEvent::ToolTip, QPoint(5, 5), widget.mapToGlobal(QPoint(5, 5)));
    QApplication::sendEvent(&widget, &event);
}

} // namespace

class tst_ComboBoxNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsEmpty();
    void hidesAnItem();
    void knowsWhichItemsAreVisible_data();
    void knowsWhichItemsAreVisible();
    void hidesNothingInAnotherKindOfView();
    void disablesAnItem();
    void knowsWhichItemsAreEnabled_data();
    void knowsWhichItemsAreEnabled();
    void survivesAnotherModel();
    void survivesTheLossOfItsModel();
    void barsADisabledItemInTheOpenList();
    void barsADisabledItemInTheOpenListByKeys_data();
    void barsADisabledItemInTheOpenListByKeys();
    void letsTheApplicationChooseADisabledItem();
    void passesOverBarredItemsByKeys_data();
    void passesOverBarredItemsByKeys();
    void passesOverBarredItemsByTheWheel();
    void drawsADisabledItemAsEnabled();
    void survivesAnotherModelInAStep();
    void leavesTheWheelWithoutTheFocus();
    void takesNoFocusByTheWheel();
    void keepsTheToolTipsOfItems();
    void reportsTheTextAgainWithItsToolTip();
    void relaysTheToolTipOfTheCurrentItem();
    void keepsItsOwnToolTip();
    void takesAnIndexInSilence_data();
    void takesAnIndexInSilence();
    void leavesItsSignalsUnblocked();
    void framesItsListWithoutAShadow();
};

void tst_ComboBoxNG::declaresItsInterface()
{
    const QMetaObject &meta = ComboBoxNG::staticMetaObject;

    QCOMPARE(meta.className(), "ComboBoxNG");
    QCOMPARE(meta.superClass(), &QComboBox::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList());
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), words("setCurrentIndexWithoutEmits(int)"));
}

void tst_ComboBoxNG::startsEmpty()
{
    const ComboBoxNG box;

    QCOMPARE(box.objectName(), QStringLiteral("ComboBoxNG"));
    QCOMPARE(box.count(), 0);
    QCOMPARE(box.itemDelegate()->metaObject(), &QStyledItemDelegate::staticMetaObject);
    QCOMPARE(box.sizeAdjustPolicy(), QComboBox::AdjustToContents);
    QVERIFY(qobject_cast<ComboBoxNGItemModel *>(box.model()));
    QVERIFY(!box.hasReayItemTooltip());
    QVERIFY(!box.isItemVisible(0));
    QVERIFY(!box.isItemEnabled(0));
    QCOMPARE(box.itemTooltip(0), QString());
}

void tst_ComboBoxNG::hidesAnItem()
{
    FourItems four;
    four.box.setCurrentIndex(1);
    SignalRecorder recorder(&four.box);

    four.box.setItemVisible(1, false);

    QVERIFY(!four.box.isItemVisible(1));
    QVERIFY(four.box.isItemVisible(0));
    QVERIFY(static_cast<QListView *>(four.box.view())->isRowHidden(1));
    QCOMPARE(four.box.count(), 4);
    QCOMPARE(four.box.currentIndex(), 1);
    QCOMPARE(four.box.itemText(2), QStringLiteral("C"));

    four.box.setItemVisible(1, true);
    QVERIFY(four.box.isItemVisible(1));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboBoxNG::knowsWhichItemsAreVisible_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("visible");

    QTest::newRow("hidden") << 1 << false;
    QTest::newRow("first") << 0 << true;
    QTest::newRow("last") << 3 << true;
    QTest::newRow("behind the last") << 4 << false;
    QTest::newRow("largest") << maxInt << false;
    QTest::newRow("below the first") << -1 << true; // no row that could be hidden
    QTest::newRow("smallest") << minInt << true;
}

void tst_ComboBoxNG::knowsWhichItemsAreVisible()
{
    QFETCH(int, index);
    QFETCH(bool, visible);
    FourItems four;
    four.box.setItemVisible(1, false);

    QCOMPARE(four.box.isItemVisible(index), visible);

    if (index < 0 || index > 3) {
        four.box.setItemVisible(index, false);
        four.box.setItemVisible(index, true);
        four.box.setItemVisible(index, false);
        QCOMPARE(four.box.isItemVisible(index), visible);
        QVERIFY(four.box.isItemVisible(0));
        QVERIFY(!four.box.isItemVisible(1));
    }
}

void tst_ComboBoxNG::hidesNothingInAnotherKindOfView()
{
    FourItems four;
    four.box.setView(new QTableView);

    four.box.setItemVisible(1, false);

    QVERIFY(!four.box.isItemVisible(0));
    QVERIFY(!four.box.isItemVisible(1));
}

void tst_ComboBoxNG::disablesAnItem()
{
    FourItems four;
    SignalRecorder recorder(&four.box);
    QVERIFY(four.box.isItemEnabled(0));

    four.box.setItemEnabled(0, false);
    QVERIFY(!four.box.isItemEnabled(0));
    QVERIFY(four.box.isItemEnabled(1));
    QCOMPARE(four.box.currentIndex(), 0);
    QCOMPARE(four.box.currentData(), QVariant(false));

    four.box.setItemEnabled(0, true);
    QVERIFY(four.box.isItemEnabled(0));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboBoxNG::knowsWhichItemsAreEnabled_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("disabled") << 1 << false;
    QTest::newRow("first") << 0 << true;
    QTest::newRow("last") << 3 << true;
    QTest::newRow("behind the last") << 4 << false;
    QTest::newRow("below the first") << -1 << false;
    QTest::newRow("largest") << maxInt << false;
    QTest::newRow("smallest") << minInt << false;
}

void tst_ComboBoxNG::knowsWhichItemsAreEnabled()
{
    QFETCH(int, index);
    QFETCH(bool, enabled);
    FourItems four;
    four.box.setItemEnabled(1, false);

    QCOMPARE(four.box.isItemEnabled(index), enabled);

    if (index < 0 || index > 3) {
        four.box.setItemEnabled(index, true);
        four.box.setItemToolTip(index, QStringLiteral("tip"));
        QVERIFY(!four.box.isItemEnabled(index));
        QCOMPARE(four.box.itemTooltip(index), QString());
        QCOMPARE(four.box.count(), 4);
    }
}

void tst_ComboBoxNG::survivesAnotherModel()
{
    FourItems four;
    QStandardItemModel other;
    other.appendRow(new QStandardItem(QStringLiteral("X")));
    other.item(0)->setData(5, Qt::UserRole);
    four.box.setModel(&other); // the box has deleted its own

    four.box.setItemEnabled(0, true);
    four.box.setItemToolTip(0, QStringLiteral("tip"));

    QVERIFY(!four.box.isItemEnabled(0));
    QCOMPARE(other.item(0)->data(Qt::UserRole), QVariant(5));
    QCOMPARE(four.box.itemTooltip(0), QStringLiteral("tip"));
    QTest::keyClick(&four.box, Qt::Key_Down);
    turnWheel(four.box, 1);
}

void tst_ComboBoxNG::survivesTheLossOfItsModel()
{
    FourItems four;
    delete four.box.model();

    four.box.setItemVisible(0, false);
    four.box.setItemEnabled(0, false);
    four.box.setItemToolTip(0, QStringLiteral("tip"));
    four.box.setCurrentIndexWithoutEmits(0);
    QTest::keyClick(&four.box, Qt::Key_Down);

    QVERIFY(!four.box.isItemVisible(0));
    QVERIFY(!four.box.isItemEnabled(0));
    QCOMPARE(four.box.itemTooltip(0), QString());
}

void tst_ComboBoxNG::barsADisabledItemInTheOpenList()
{
    FourItems four;
    QVERIFY(four.isReady());
    four.box.setItemEnabled(1, false);
    SignalRecorder recorder(&four.box);
    QApplication::setDoubleClickInterval(0); // a list just opened takes no click
    four.box.showPopup();
    QTest::qWait(1);

    four.clickItem(1);
    QCOMPARE(four.box.currentIndex(), 0);
    QVERIFY(four.box.view()->isVisible());
    four.clickItem(3);
    QCOMPARE(four.box.currentIndex(), 3);
    QTRY_VERIFY(!four.box.view()->isVisible());

    QApplication::setDoubleClickInterval(400);
    QVERIFY(!recorder.taken().contains(QStringLiteral("activated(1)")));
}

void tst_ComboBoxNG::barsADisabledItemInTheOpenListByKeys_data()
{
    QTest::addColumn<int>("key");

    QTest::newRow("return") << int(Qt::Key_Return);
    QTest::newRow("enter") << int(Qt::Key_Enter);
}

void tst_ComboBoxNG::barsADisabledItemInTheOpenListByKeys()
{
    QFETCH(int, key);
    FourItems four;
    QVERIFY(four.isReady());
    four.box.setItemEnabled(1, false);
    four.box.showPopup();

    QTest::keyClick(four.box.view(), Qt::Key_Down);
    QTest::keyClick(four.box.view(), Qt::Key(key));

    QCOMPARE(four.box.currentIndex(), 0);

    QTest::keyClick(four.box.view(), Qt::Key_Down);
    QTest::keyClick(four.box.view(), Qt::Key_Return);
    QCOMPARE(four.box.currentIndex(), 2);
    four.box.hidePopup();
}

void tst_ComboBoxNG::letsTheApplicationChooseADisabledItem()
{
    FourItems four;
    four.box.setItemEnabled(1, false);
    four.box.setItemVisible(2, false);

    four.box.setCurrentIndex(1);
    QCOMPARE(four.box.currentIndex(), 1);
    four.box.setCurrentIndex(2);
    QCOMPARE(four.box.currentIndex(), 2);
}

void tst_ComboBoxNG::passesOverBarredItemsByKeys_data()
{
    QTest::addColumn<int>("from");
    QTest::addColumn<int>("key");
    QTest::addColumn<int>("to");

    // A, then B disabled, C hidden, D
    QTest::newRow("down") << 0 << int(Qt::Key_Down) << 3;
    QTest::newRow("up") << 3 << int(Qt::Key_Up) << 0;
    QTest::newRow("down at the end") << 3 << int(Qt::Key_Down) << 3;
    QTest::newRow("end") << 0 << int(Qt::Key_End) << 3;
    QTest::newRow("home") << 3 << int(Qt::Key_Home) << 0;
    QTest::newRow("down from the disabled one") << 1 << int(Qt::Key_Down) << 3;
    QTest::newRow("up from the hidden one") << 2 << int(Qt::Key_Up) << 0;
    QTest::newRow("the letter of the disabled one") << 0 << int(Qt::Key_B) << 0;
    QTest::newRow("the letter of the hidden one") << 0 << int(Qt::Key_C) << 0;
    QTest::newRow("the letter of another") << 0 << int(Qt::Key_D) << 3;
}

void tst_ComboBoxNG::passesOverBarredItemsByKeys()
{
    QFETCH(int, from);
    QFETCH(int, key);
    QFETCH(int, to);
    FourItems four;
    QVERIFY(four.isReady());
    four.box.setItemEnabled(1, false);
    four.box.setItemVisible(2, false);
    four.box.setCurrentIndex(from);
    SignalRecorder recorder(&four.box);

    QTest::keyClick(&four.box, Qt::Key(key));

    QCOMPARE(four.box.currentIndex(), to);
    QCOMPARE(recorder.taken().contains(QStringLiteral("currentIndexChanged(%1)").arg(to)),
             to != from);
}

void tst_ComboBoxNG::passesOverBarredItemsByTheWheel()
{
    FourItems four;
    QVERIFY(four.isReady());
    four.box.setItemEnabled(1, false);
    four.box.setItemVisible(2, false);

    QVERIFY(turnWheel(four.box, 1));
    QCOMPARE(four.box.currentIndex(), 3);

    QVERIFY(turnWheel(four.box, -1));
    QCOMPARE(four.box.currentIndex(), 0);
}

void tst_ComboBoxNG::drawsADisabledItemAsEnabled()
{
    FourItems four;
    QVERIFY(four.isReady());
    const auto flags = [&four](int row) {
        return four.box.model()->flags(four.box.model()->index(row, 0));
    };
    four.box.setItemEnabled(1, false);
    Qt::ItemFlags inOpenList;
    connect(&four.box, qOverload<int>(&QComboBox::currentIndexChanged), this, [&](int) {
        four.box.showPopup();
        inOpenList = flags(1);
        four.box.hidePopup();
    });

    QTest::keyClick(&four.box, Qt::Key_Down);

    QCOMPARE(four.box.currentIndex(), 2);
    QVERIFY(inOpenList & Qt::ItemIsEnabled);
    QVERIFY(!(inOpenList & Qt::ItemIsSelectable));
    QVERIFY(flags(1) & Qt::ItemIsEnabled);
}

void tst_ComboBoxNG::survivesAnotherModelInAStep()
{
    auto *box = new ComboBoxNG;
    const QPointer<ComboBoxNG> guard(box);
    box->addItems(words("A B C"));
    box->setItemEnabled(1, false);
    QStandardItemModel other;
    connect(box, qOverload<int>(&QComboBox::currentIndexChanged), this,
            [&](int) { box->setModel(&other); });

    QTest::keyClick(box, Qt::Key_Down);

    QCOMPARE(guard->count(), 0);
    delete box;
}

void tst_ComboBoxNG::leavesTheWheelWithoutTheFocus()
{
    FourItems four;
    QVERIFY(four.isReady());

    four.box.clearFocus();
    QVERIFY(!turnWheel(four.box, 1));
    QCOMPARE(four.box.currentIndex(), 0);

    four.box.setFocus();
    QVERIFY(turnWheel(four.box, 1));
    QCOMPARE(four.box.currentIndex(), 1);
}

void tst_ComboBoxNG::takesNoFocusByTheWheel()
{
    ComboBoxNG box;
    QCOMPARE(box.focusPolicy(), Qt::StrongFocus);

    box.setEditable(true);
    QCOMPARE(box.focusPolicy(), Qt::StrongFocus);
}

void tst_ComboBoxNG::keepsTheToolTipsOfItems()
{
    FourItems four;

    four.box.setItemToolTip(2, QStringLiteral("Runs free"));

    QCOMPARE(four.box.itemTooltip(2), QStringLiteral("Runs free"));
    QCOMPARE(four.box.itemTooltip(1), QString());
    QCOMPARE(four.box.itemData(2, Qt::ToolTipRole), QVariant(QStringLiteral("Runs free")));
    QCOMPARE(four.box.toolTip(), QString());
}

void tst_ComboBoxNG::reportsTheTextAgainWithItsToolTip()
{
    FourItems four;
    SignalRecorder recorder(&four.box);

    four.box.setItemToolTip(2, QStringLiteral("Runs free"));
    QCOMPARE(recorder.taken(), QStringList());

    four.box.setItemToolTip(0, QStringLiteral("Waits"));
    QCOMPARE(recorder.taken(), QStringList(QStringLiteral("currentTextChanged(\"A\")")));
}

void tst_ComboBoxNG::relaysTheToolTipOfTheCurrentItem()
{
    FourItems four;
    four.box.setItemToolTip(0, QStringLiteral("Waits"));
    four.box.setItemToolTip(1, QStringLiteral("Runs free"));

    four.box.setRelayItemToolTip(true);
    QVERIFY(four.box.hasReayItemTooltip());
    QCOMPARE(four.box.toolTip(), QString()); // when it is asked for

    askForToolTip(four.box);
    QCOMPARE(four.box.toolTip(), QStringLiteral("Waits"));
    QCOMPARE(QToolTip::text(), QStringLiteral("Waits"));

    four.box.setCurrentIndex(1);
    askForToolTip(four.box);
    QCOMPARE(QToolTip::text(), QStringLiteral("Runs free"));

    four.box.setCurrentIndex(2); // it has none
    askForToolTip(four.box);
    QCOMPARE(four.box.toolTip(), QString());

    four.box.setToolTip(QStringLiteral("old"));
    four.box.setCurrentIndex(-1);
    askForToolTip(four.box);
    QCOMPARE(four.box.toolTip(), QString());
    QToolTip::hideText();
}

void tst_ComboBoxNG::keepsItsOwnToolTip()
{
    FourItems four;
    four.box.setToolTip(QStringLiteral("Trigger"));
    four.box.setItemToolTip(0, QStringLiteral("Waits"));

    askForToolTip(four.box);
    QCOMPARE(QToolTip::text(), QStringLiteral("Trigger"));

    four.box.setRelayItemToolTip(true);
    four.box.setRelayItemToolTip(false);
    askForToolTip(four.box);
    QCOMPARE(four.box.toolTip(), QStringLiteral("Trigger"));
    QToolTip::hideText();
}

void tst_ComboBoxNG::takesAnIndexInSilence_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("current");

    QTest::newRow("another") << 2 << 2;
    QTest::newRow("the same") << 1 << 1;
    QTest::newRow("none") << -1 << -1;
    QTest::newRow("behind the last") << 4 << -1;
    QTest::newRow("smallest") << minInt << -1;
}

void tst_ComboBoxNG::takesAnIndexInSilence()
{
    QFETCH(int, index);
    QFETCH(int, current);
    FourItems four;
    four.box.setCurrentIndex(1);
    SignalRecorder recorder(&four.box);

    four.box.setCurrentIndexWithoutEmits(index);

    QCOMPARE(four.box.currentIndex(), current);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ComboBoxNG::leavesItsSignalsUnblocked()
{
    FourItems four;
    four.box.blockSignals(true);

    four.box.setCurrentIndexWithoutEmits(2);

    QVERIFY(!four.box.signalsBlocked());
}

void tst_ComboBoxNG::framesItsListWithoutAShadow()
{
    ComboBoxNG box;
    box.addItems(words("A B"));
    box.resize(100, 30); // without a list yet
    box.show();
    box.view();
    auto *frame = box.findChild<QFrame *>();
    QVERIFY(frame);
    frame->setWindowFlags(Qt::Popup);
    frame->setAttribute(Qt::WA_TranslucentBackground, false);

    box.resize(200, 30);

    QCOMPARE(frame->windowFlags(),
             Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    QVERIFY(frame->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(frame->parent(), &box);
}

PELORIN_TEST_MAIN(tst_ComboBoxNG)
#include "tst_comboboxng.moc"
