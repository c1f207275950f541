#include "tests/shell/MainViewParts.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QPointer>

#include <functional>

// The remote control panel of a MainView: who owns it, and when it ends.

namespace {

using Parts = MainViewParts;
using CandidateOf = std::function<QWidget *(MainView &, QWidget *)>;

/// Whether \a panel and nothing else stands in the frame of \a view, in a layout of its own.
bool standsAlone(const MainView &view, const QWidget *panel)
{
    const QWidget *frame = Parts(view).remoteFrame;
    const QLayout *layout = frame->layout();
    return panel && panel->parentWidget() == frame && layout && layout->count() == 1
           && layout->itemAt(0)->widget() == panel && frame->children().size() == 2
           && layout->contentsMargins() == QMargins(25, 0, 25, 25);
}

} // namespace

Q_DECLARE_METATYPE(CandidateOf)

class tst_MainViewRemote : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void takesARemoteControlOver();
    void showsTheRemoteControlInAnOpenView();
    void deletesTheRemoteControlThatItReplaces();
    void keepsTheRemoteControl_data();
    void keepsTheRemoteControl();
    void replacesARemoteControlThatWasDeleted();
    void letsGoOfARemoteControlThatWasTakenAway();
    void takesARemoteControlBack();
    void savesAPieceOfTheOldRemoteControl();
    void replacesARemoteControlAtItsEnd();
    void keepsTheLastRemoteControlWhenTheOldOneIsSucceeded_data();
    void keepsTheLastRemoteControlWhenTheOldOneIsSucceeded();
    void forgetsARemoteControlThatDiesWithTheOldOne();
};

void tst_MainViewRemote::takesARemoteControlOver()
{
    MainView view;
    const SignalRecorder recorder(&view);
    auto *panel = new QWidget;

    view.setRemoteControlWidget(panel);

    const QWidget *frame = Parts(view).remoteFrame;
    QCOMPARE(panel->parentWidget(), frame);
    const auto *layout = qobject_cast<QVBoxLayout *>(frame->layout());
    QVERIFY(layout);
    QCOMPARE(layout->contentsMargins(), QMargins(25, 0, 25, 25));
    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->itemAt(0)->widget(), panel);
    QCOMPARE(recorder.entries(), QStringList());
}

void tst_MainViewRemote::showsTheRemoteControlInAnOpenView()
{
    MainView view;
    view.show();
    QPointer<QWidget> panels[] = { new QWidget, new QWidget };

    for (const QPointer<QWidget> &panel : panels) {
        view.setRemoteControlWidget(panel);
        QTRY_VERIFY(panel->isVisible());
    }

    const QRect inner = Parts(view).remoteFrame->rect().adjusted(25, 0, -25, -25);
    QTRY_COMPARE(panels[1]->geometry(), inner);
}

void tst_MainViewRemote::deletesTheRemoteControlThatItReplaces()
{
    MainView view;
    const QPointer<QWidget> first(new QWidget);
    view.setRemoteControlWidget(first);
    const QPointer<QLayout> layout(Parts(view).remoteFrame->layout());
    auto *second = new QWidget;

    view.setRemoteControlWidget(second);

    QVERIFY(!first);
    QVERIFY(!layout);
    QVERIFY(standsAlone(view, second));
}

void tst_MainViewRemote::keepsTheRemoteControl_data()
{
    QTest::addColumn<CandidateOf>("candidate");
    const auto add = [](const char *name, const CandidateOf &candidate) {
        QTest::newRow(name) << candidate;
    };

    add("null", [](MainView &, QWidget *) { return nullptr; });
    add("the same", [](MainView &, QWidget *panel) { return panel; });
    add("its frame", [](MainView &, QWidget *panel) { return panel->parentWidget(); });
    add("its column", [](MainView &view, QWidget *) { return Parts(view).red; });
    add("the view", [](MainView &view, QWidget *) { return &view; });
    add("the window round the view", [](MainView &view, QWidget *) { return view.window(); });
}

void tst_MainViewRemote::keepsTheRemoteControl()
{
    QFETCH(CandidateOf, candidate);
    QWidget window;
    auto *view = new MainView(&window);
    const QPointer<QWidget> panel(new QWidget);
    view->setRemoteControlWidget(panel);
    const QPointer<QLayout> layout(Parts(*view).remoteFrame->layout());

    view->setRemoteControlWidget(candidate(*view, panel));

    QVERIFY(panel);
    QVERIFY(layout); // not laid out anew
    QVERIFY(standsAlone(*view, panel));
    QCOMPARE(view->parentWidget(), &window);
}

void tst_MainViewRemote::replacesARemoteControlThatWasDeleted()
{
    MainView view;
    auto *first = new QWidget;
    view.setRemoteControlWidget(first);
    delete first;
    auto *second = new QWidget;

    view.setRemoteControlWidget(second);

    QVERIFY(standsAlone(view, second));
}

void tst_MainViewRemote::letsGoOfARemoteControlThatWasTakenAway()
{
    MainView view;
    QWidget elsewhere;
    const QPointer<QWidget> first(new QWidget);
    view.setRemoteControlWidget(first);
    first->setParent(&elsewhere);
    auto *second = new QWidget;

    view.setRemoteControlWidget(second);

    QVERIFY(first);
    QCOMPARE(first->parentWidget(), &elsewhere);
    QVERIFY(standsAlone(view, second));
}

void tst_MainViewRemote::takesARemoteControlBack()
{
    MainView view;
    QWidget elsewhere;
    const QPointer<QWidget> panel(new QWidget);
    view.setRemoteControlWidget(panel);
    panel->setParent(&elsewhere);

    view.setRemoteControlWidget(panel);

    QVERIFY(panel);
    QVERIFY(standsAlone(view, panel));
}

void tst_MainViewRemote::savesAPieceOfTheOldRemoteControl()
{
    MainView view;
    const QPointer<QWidget> panel(new QWidget);
    auto *column = new QVBoxLayout(panel);
    const QPointer<QWidget> piece(new QWidget);
    column->addWidget(piece);
    view.setRemoteControlWidget(panel);

    view.setRemoteControlWidget(piece);

    QVERIFY(!panel);
    QVERIFY(piece);
    QVERIFY(standsAlone(view, piece));
}

/// An application that puts something in the place of a panel as soon as that is gone.
void tst_MainViewRemote::replacesARemoteControlAtItsEnd()
{
    MainView view;
    auto *first = new QWidget;
    const QPointer<QWidget> second(new QWidget);
    view.setRemoteControlWidget(first);
    connect(first, &QObject::destroyed, &view, [&] { view.setRemoteControlWidget(second); });

    delete first;

    QVERIFY(second);
    QVERIFY(standsAlone(view, second));
}

void tst_MainViewRemote::keepsTheLastRemoteControlWhenTheOldOneIsSucceeded_data()
{
    QTest::addColumn<bool>("same");

    QTest::newRow("by another one") << false;
    QTest::newRow("by the same") << true;
}

void tst_MainViewRemote::keepsTheLastRemoteControlWhenTheOldOneIsSucceeded()
{
    QFETCH(bool, same);
    MainView view;
    auto *first = new QWidget;
    const QPointer<QWidget> second(new QWidget);
    const QPointer<QWidget> successor(same ? second.data() : new QWidget);
    view.setRemoteControlWidget(first);
    connect(first, &QObject::destroyed, &view, [&] { view.setRemoteControlWidget(successor); });

    view.setRemoteControlWidget(second);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

    QVERIFY(second);
    QCOMPARE(bool(successor), same);
    QVERIFY(standsAlone(view, second));
}

void tst_MainViewRemote::forgetsARemoteControlThatDiesWithTheOldOne()
{
    MainView view;
    auto *first = new QWidget;
    const QPointer<QWidget> second(new QWidget);
    view.setRemoteControlWidget(first);
    connect(first, &QObject::destroyed, &view, [&] { delete second; });

    view.setRemoteControlWidget(second);

    QVERIFY(!second);
    QVERIFY(Parts(view).remoteFrame->children().isEmpty());
}

PELORIN_TEST_MAIN(tst_MainViewRemote)
#include "tst_mainviewremote.moc"
