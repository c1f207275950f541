#include "Pelorin/shell/MainControlPanel.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QGridLayout>
#include <QPointer>
#include <QSplitter>

namespace {

using Show = void (MainControlPanel::*)(QWidget *, bool);

class Panel : public MainControlPanel
{
public:
    Panel()
        : MainControlPanel(nullptr)
    {
        resize(200, 400);
        show();
    }

    QSplitter *splitter() const { return findChild<QSplitter *>(); }
    QWidget *pane(bool main) const { return splitter()->widget(main ? 0 : 1); }
};

Show showOf(bool main)
{
    return main ? &MainControlPanel::showMainControl : &MainControlPanel::showChildControl;
}

} // namespace

class tst_MainControlPanel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void laysOutTwoHiddenPanes();
    void showsOneControlAtATime_data();
    void showsOneControlAtATime();
    void onlyTakesOverWhatItShallNotShow_data();
    void onlyTakesOverWhatItShallNotShow();
    void hidesThePaneForNull_data();
    void hidesThePaneForNull();
    void passesOverDeletedControls();
    void keepsThePanesApart();
    void stretchesTheUpperPane();
    void reportsTheDivider();
    void ignoresBytesThatAreNoState();

private:
    void addPanes()
    {
        QTest::addColumn<bool>("main");
        QTest::newRow("upper pane") << true;
        QTest::newRow("lower pane") << false;
    }
};

void tst_MainControlPanel::laysOutTwoHiddenPanes()
{
    const Panel panel;
    const QSplitter *splitter = panel.splitter();

    QCOMPARE(splitter->orientation(), Qt::Vertical);
    QCOMPARE(splitter->handleWidth(), 10);
    QVERIFY(!splitter->childrenCollapsible());
    QCOMPARE(splitter->count(), 2);
    QCOMPARE(panel.layout()->contentsMargins(), QMargins());
    QCOMPARE(panel.layout()->spacing(), 2);
    for (const bool main : { true, false }) {
        const auto *pane = qobject_cast<QFrame *>(panel.pane(main));
        QVERIFY(!pane->isVisible());
        QCOMPARE(pane->frameStyle(), int(QFrame::NoFrame));
        QCOMPARE(pane->layout()->contentsMargins(), QMargins());
        QCOMPARE(pane->layout()->alignment(), Qt::AlignTop | Qt::AlignLeft);
    }
}

void tst_MainControlPanel::showsOneControlAtATime_data()
{
    addPanes();
}

void tst_MainControlPanel::showsOneControlAtATime()
{
    QFETCH(bool, main);
    const Show show = showOf(main);
    Panel panel;
    auto *first = new QWidget;
    auto *second = new QWidget;

    (panel.*show)(first, true);
    QVERIFY(panel.pane(main)->isVisible());
    QVERIFY(first->isVisible());
    QCOMPARE(first->parentWidget(), panel.pane(main));

    (panel.*show)(second, true);
    QVERIFY(!first->isVisible());
    QVERIFY(second->isVisible());

    (panel.*show)(first, true);
    QVERIFY(first->isVisible());
    QVERIFY(!second->isVisible());
    QCOMPARE(panel.pane(main)->layout()->count(), 2);
}

void tst_MainControlPanel::onlyTakesOverWhatItShallNotShow_data()
{
    addPanes();
}

void tst_MainControlPanel::onlyTakesOverWhatItShallNotShow()
{
    QFETCH(bool, main);
    const Show show = showOf(main);
    Panel panel;
    auto *first = new QWidget;
    auto *second = new QWidget;

    (panel.*show)(first, false);
    QCOMPARE(first->parentWidget(), panel.pane(main));
    QVERIFY(first->isHidden());
    QVERIFY(panel.pane(main)->isHidden());

    (panel.*show)(first, true);
    QVERIFY(first->isVisible());
    QVERIFY(panel.pane(main)->isVisible());

    (panel.*show)(second, false);
    (panel.*show)(first, false); // hides nothing
    QVERIFY(first->isVisible());
    QVERIFY(second->isHidden());
    QVERIFY(panel.pane(main)->isVisible());
}

void tst_MainControlPanel::hidesThePaneForNull_data()
{
    QTest::addColumn<bool>("main");
    QTest::addColumn<bool>("showState");

    QTest::newRow("upper pane, true") << true << true;
    QTest::newRow("upper pane, false") << true << false;
    QTest::newRow("lower pane, true") << false << true;
    QTest::newRow("lower pane, false") << false << false;
}

void tst_MainControlPanel::hidesThePaneForNull()
{
    QFETCH(bool, main);
    QFETCH(bool, showState);
    const Show show = showOf(main);
    Panel panel;
    auto *control = new QWidget;
    (panel.*show)(control, true);

    (panel.*show)(nullptr, showState);

    QVERIFY(control->isHidden());
    QVERIFY(panel.pane(main)->isHidden());
}

void tst_MainControlPanel::passesOverDeletedControls()
{
    Panel panel;
    QPointer<QWidget> first(new QWidget);
    auto *second = new QWidget;
    panel.showMainControl(first, true);

    delete first.data();
    panel.showMainControl(second, true);
    QVERIFY(second->isVisible());

    panel.showMainControl(nullptr, false);
    QVERIFY(second->isHidden());
}

void tst_MainControlPanel::keepsThePanesApart()
{
    Panel panel;
    auto *upper = new QWidget;
    auto *lower = new QWidget;

    panel.showMainControl(upper, true);
    panel.showChildControl(lower, true);
    QVERIFY(upper->isVisible());
    QVERIFY(lower->isVisible());

    panel.showChildControl(nullptr, true);
    QVERIFY(upper->isVisible());
    QVERIFY(panel.pane(true)->isVisible());
}

void tst_MainControlPanel::stretchesTheUpperPane()
{
    Panel panel;
    for (const bool main : { true, false }) {
        auto *control = new QWidget;
        control->setMinimumSize(20, 20);
        (panel.*showOf(main))(control, true);
    }
    QCoreApplication::processEvents();
    const int upper = panel.pane(true)->height();
    const int lower = panel.pane(false)->height();

    panel.resize(200, 600);
    QCoreApplication::processEvents();

    QCOMPARE(panel.pane(false)->height(), lower);
    QCOMPARE(panel.pane(true)->height(), upper + 200);
}

void tst_MainControlPanel::reportsTheDivider()
{
    Panel panel;
    for (const bool main : { true, false }) {
        auto *control = new QWidget;
        control->setMinimumSize(20, 20);
        (panel.*showOf(main))(control, true);
    }
    QCoreApplication::processEvents();
    QList<QByteArray> states;
    connect(&panel, &MainControlPanel::splitterStateChanged, this,
            [&states](const QByteArray &state) { states << state; });
    const QByteArray before = panel.splitter()->saveState();
    QWidget *handle = panel.splitter()->handle(1);

    QTest::mousePress(handle, Qt::LeftButton, Qt::NoModifier, QPoint(50, 5));
    QMouseEvent move(QEvent::MouseMove, QPoint(50, -55), handle->mapToGlobal(QPoint(50, -55)),
                     Qt::NoButton, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(handle, &move);
    QTest::mouseRelease(handle, Qt::LeftButton, Qt::NoModifier, QPoint(50, 5));

    QCOMPARE(states.size(), 1);
    QCOMPARE(states.first(), panel.splitter()->saveState());
    QVERIFY(states.first() != before);

    const QList<int> moved = panel.splitter()->sizes();
    panel.setSplitterState(before);
    QVERIFY(panel.splitter()->sizes() != moved);
    panel.setSplitterState(states.first());
    QCOMPARE(panel.splitter()->sizes(), moved);
    QCOMPARE(states.size(), 1); // restoring is silent
}

void tst_MainControlPanel::ignoresBytesThatAreNoState()
{
    Panel panel;
    const QByteArray before = panel.splitter()->saveState();

    panel.setSplitterState(QByteArray());
    panel.setSplitterState("no state at all");

    QCOMPARE(panel.splitter()->saveState(), before);
}

PELORIN_TEST_MAIN(tst_MainControlPanel)
#include "tst_maincontrolpanel.moc"
