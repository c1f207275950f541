#include "Pelorin/containers/TabBar.h"
#include "Pelorin/containers/TabWidget.h"
#include "Pelorin/containers/stackWidget.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QLabel>
#include <QPointer>
#include <QRandomGenerator>
#include <QVBoxLayout>

#include <functional>

namespace {

/// A stack of three shown pages that has a size of its own.
class Stack : public stackWidget
{
public:
    explicit Stack(int pages = 3)
    {
        for (int i = 0; i < pages; ++i)
            addWidget(makePage(20 + 30 * i));
        show();
    }

    static QWidget *makePage(int height)
    {
        auto *page = new QWidget;
        page->setFixedSize(50, height);
        return page;
    }

    /// The positions of the pages that are not hidden.
    QList<int> shown() const
    {
        QList<int> result;
        for (int i = 0; i < count(); ++i) {
            if (widgetAt(i) && !widgetAt(i)->isHidden())
                result << i;
        }
        return result;
    }
};

/// A page that does something when it is shown or hidden.
class Speaking : public QWidget
{
public:
    std::function<void()> whenShown = [] {};
    std::function<void()> whenHidden = [] {};

protected:
    void showEvent(QShowEvent *) override { whenShown(); }
    void hideEvent(QHideEvent *) override { whenHidden(); }
};

/// What a stack is, without a widget.
struct Model
{
    QList<QWidget *> pages;
    int current = -1;
    QStringList heard;

    int insert(int index, QWidget *page)
    {
        pages.insert(qBound(0, index, pages.size()), page);
        return pages.indexOf(page);
    }
    void select(int index)
    {
        if (index < 0 || index >= pages.size() || index == current)
            return;
        current = index;
        heard << QStringLiteral("currentChanged(%1)").arg(index);
    }
    void removeAt(int index)
    {
        pages.removeAt(index);
        heard << QStringLiteral("widgetRemoved(%1)").arg(index);
    }
};

} // namespace

class tst_StackWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void startsEmpty();
    void addsPagesAtTheEnd();
    void insertsPages_data();
    void insertsPages();
    void showsOnePage();
    void isAsHighAsItsPage();
    void selectsInSilenceWhatIsCurrent();
    void ignoresBadIndices_data();
    void ignoresBadIndices();
    void takesAPageOut();
    void keepsItsIndexWhenThePageIsTakenOut();
    void takesNothingOutByIndexBeforeAPageWasSelected();
    void takesAPageOutByIndex();
    void countsAPageThatWasDeleted();
    void ignoresNullAndStrangers();
    void addsAPageTwice();
    void findsNoDeletedPage();
    void mayBeDeletedWhileItReports_data();
    void mayBeDeletedWhileItReports();
    void mayBeDeletedByAPageThatIsShown();
    void mayBeChangedWhileItReports();
    void leavesTheLastWordToAPage_data();
    void leavesTheLastWordToAPage();
    void goesOnWhenAPageTakesItselfOut();
    void freesItsPages();
    void behavesLikeItsModel_data();
    void behavesLikeItsModel();
    void namesTabBarAndTabWidget();
};

void tst_StackWidget::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = stackWidget::staticMetaObject;

    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta), list({ "currentChanged(int)", "widgetRemoved(int)",
                                      "setCurrentIndex(int)", "setCurrentWidget(QWidget*)" }));
}

void tst_StackWidget::startsEmpty()
{
    stackWidget stack;
    SignalRecorder recorder(&stack);

    stack.setCurrentIndex(0);

    QCOMPARE(stack.count(), 0);
    QCOMPARE(stack.currentIndex(), -1);
    QCOMPARE(stack.currentWidget(), nullptr);
    QVERIFY(qobject_cast<QVBoxLayout *>(stack.layout()));
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_StackWidget::addsPagesAtTheEnd()
{
    stackWidget stack;
    SignalRecorder recorder(&stack);
    QWidget *const first = Stack::makePage(20);
    QWidget *const second = Stack::makePage(20);
    second->hide();

    QCOMPARE(stack.addWidget(first), 0);
    QCOMPARE(stack.addWidget(second), 1);

    QCOMPARE(stack.count(), 2);
    QCOMPARE(stack.widgetAt(1), second);
    QCOMPARE(stack.indexOf(second), 1);
    QCOMPARE(stack.currentIndex(), -1);
    QCOMPARE(stack.currentWidget(), nullptr);
    QCOMPARE(first->parentWidget(), &stack);
    QVERIFY(!first->isHidden()); // each keeps the visibility it had
    QVERIFY(second->isHidden());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_StackWidget::insertsPages_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("position");

    QTest::newRow("before all") << 0 << 0;
    QTest::newRow("between") << 2 << 2;
    QTest::newRow("at the end") << 3 << 3;
    QTest::newRow("below the first") << -5 << 0;
    QTest::newRow("behind the end") << 99 << 3;
}

void tst_StackWidget::insertsPages()
{
    QFETCH(int, index);
    QFETCH(int, position);
    Stack stack;
    stack.setCurrentIndex(1);
    QWidget *const page = Stack::makePage(20);
    SignalRecorder recorder(&stack);

    QCOMPARE(stack.insertWidget(index, page), position);

    QCOMPARE(stack.widgetAt(position), page);
    QCOMPARE(stack.count(), 4);
    QCOMPARE(stack.currentIndex(), 1);          // not corrected
    QCOMPARE(stack.layout()->indexOf(page), 3); // the last one there
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_StackWidget::showsOnePage()
{
    Stack stack;
    QStringList seen;
    connect(&stack, &stackWidget::currentChanged, this, [&](int index) {
        seen << QStringLiteral("%1 %2 %3")
                    .arg(index)
                    .arg(stack.currentIndex())
                    .arg(stack.shown().value(0, -1));
    });
    QCOMPARE(stack.shown(), (QList<int>{ 0, 1, 2 }));

    stack.setCurrentIndex(1);
    QCOMPARE(stack.shown(), QList<int>{ 1 });
    QCOMPARE(stack.currentWidget(), stack.widgetAt(1));

    stack.setCurrentWidget(stack.widgetAt(2));
    QCOMPARE(stack.shown(), QList<int>{ 2 });
    QCOMPARE(stack.currentIndex(), 2);
    QCOMPARE(seen, list({ "1 1 1", "2 2 2" })); // it is shown when the signal comes
}

void tst_StackWidget::isAsHighAsItsPage()
{
    Stack stack;

    stack.setCurrentIndex(0);
    const int low = stack.sizeHint().height();
    stack.setCurrentIndex(2);

    QCOMPARE(stack.sizeHint().height() - low, 60);
}

void tst_StackWidget::selectsInSilenceWhatIsCurrent()
{
    Stack stack;
    stack.setCurrentIndex(1);
    stack.widgetAt(0)->show(); // by somebody else
    SignalRecorder recorder(&stack);

    stack.setCurrentIndex(1);
    stack.setCurrentWidget(stack.widgetAt(1));

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(stack.shown(), (QList<int>{ 0, 1 }));
}

void tst_StackWidget::ignoresBadIndices_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("minus two") << -2;
    QTest::newRow("minus one") << -1;
    QTest::newRow("at the end") << 3;
    QTest::newRow("behind the end") << 4;
}

void tst_StackWidget::ignoresBadIndices()
{
    QFETCH(int, index);
    Stack stack;
    stack.setCurrentIndex(1);
    SignalRecorder recorder(&stack);

    stack.setCurrentIndex(index);
    stack.removeWidgetAt(index);

    QCOMPARE(stack.widgetAt(index), nullptr);
    QCOMPARE(stack.currentIndex(), 1);
    QCOMPARE(stack.count(), 3);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_StackWidget::takesAPageOut()
{
    Stack stack;
    stack.setCurrentIndex(0);
    QWidget *const page = stack.widgetAt(0);
    SignalRecorder recorder(&stack);

    stack.removeWidget(page);

    QCOMPARE(recorder.taken(), list({ "widgetRemoved(0)" }));
    QCOMPARE(stack.count(), 2);
    QCOMPARE(stack.indexOf(page), -1);
    QCOMPARE(stack.layout()->indexOf(page), -1);
    QCOMPARE(page->parentWidget(), &stack);
    QVERIFY(!page->isHidden());
    QCOMPARE(stack.currentIndex(), 0);
    QVERIFY(stack.currentWidget()->isHidden()); // no other page is selected
}

void tst_StackWidget::keepsItsIndexWhenThePageIsTakenOut()
{
    Stack stack;
    stack.setCurrentIndex(1);
    stack.removeWidget(stack.widgetAt(1));
    SignalRecorder recorder(&stack);

    stack.setCurrentIndex(1); // another page stands there now

    QCOMPARE(recorder.taken(), QStringList());
    QCOMPARE(stack.shown(), QList<int>());
    stack.removeWidget(stack.widgetAt(1));
    QCOMPARE(stack.currentIndex(), 1);
    QCOMPARE(stack.currentWidget(), nullptr);
}

void tst_StackWidget::takesNothingOutByIndexBeforeAPageWasSelected()
{
    Stack stack;
    SignalRecorder recorder(&stack);

    stack.removeWidgetAt(0);

    QCOMPARE(stack.count(), 3);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_StackWidget::takesAPageOutByIndex()
{
    Stack stack;
    stack.setCurrentIndex(0);
    QWidget *const last = stack.widgetAt(2);
    SignalRecorder recorder(&stack);

    stack.removeWidgetAt(1);

    QCOMPARE(recorder.taken(), list({ "widgetRemoved(1)" }));
    QCOMPARE(stack.widgetAt(1), last);
}

void tst_StackWidget::countsAPageThatWasDeleted()
{
    Stack stack;
    stack.setCurrentIndex(1);
    delete stack.widgetAt(1);
    SignalRecorder recorder(&stack);

    QCOMPARE(stack.count(), 3);
    QCOMPARE(stack.currentWidget(), nullptr);
    QCOMPARE(stack.widgetAt(1), nullptr);
    stack.setCurrentIndex(2);
    stack.setCurrentIndex(1);
    QCOMPARE(stack.shown(), QList<int>());
    QCOMPARE(recorder.taken(), list({ "currentChanged(2)", "currentChanged(1)" }));

    stack.removeWidgetAt(1);
    QCOMPARE(stack.count(), 2);
    QCOMPARE(recorder.taken(), list({ "widgetRemoved(1)" }));
}

void tst_StackWidget::ignoresNullAndStrangers()
{
    Stack stack;
    stack.setCurrentIndex(1);
    delete stack.widgetAt(0); // leaves a null entry, which null is not
    QWidget stranger;
    SignalRecorder recorder(&stack);

    QCOMPARE(stack.addWidget(nullptr), -1);
    QCOMPARE(stack.insertWidget(0, nullptr), -1);
    QCOMPARE(stack.indexOf(nullptr), -1);
    QCOMPARE(stack.indexOf(&stranger), -1);
    stack.removeWidget(nullptr);
    stack.removeWidget(&stranger);
    stack.setCurrentWidget(nullptr);
    stack.setCurrentWidget(&stranger);

    QCOMPARE(stack.count(), 3);
    QCOMPARE(stack.currentIndex(), 1);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_StackWidget::addsAPageTwice()
{
    Stack stack;
    QWidget *const page = stack.widgetAt(1);

    QCOMPARE(stack.addWidget(page), 1);
    QCOMPARE(stack.count(), 4);
    QCOMPARE(stack.widgetAt(3), page);

    stack.removeWidget(page); // its first entry
    QCOMPARE(stack.count(), 3);
    QCOMPARE(stack.indexOf(page), 2);
}

void tst_StackWidget::findsNoDeletedPage()
{
    Stack stack;
    stack.setCurrentIndex(0);
    QWidget *const page = stack.widgetAt(1);
    delete page;
    SignalRecorder recorder(&stack);

    QCOMPARE(stack.indexOf(page), -1);
    stack.setCurrentWidget(page);
    stack.removeWidget(page);

    QCOMPARE(stack.count(), 3);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_StackWidget::mayBeDeletedWhileItReports_data()
{
    QTest::addColumn<bool>("isRemoval");

    QTest::newRow("a selection") << false;
    QTest::newRow("a removal") << true;
}

void tst_StackWidget::mayBeDeletedWhileItReports()
{
    QFETCH(bool, isRemoval);
    QPointer<Stack> stack = new Stack;
    stack->setCurrentIndex(0);
    const auto vanish = [stack] { delete stack; };
    connect(stack.data(), isRemoval ? &stackWidget::widgetRemoved : &stackWidget::currentChanged,
            this, vanish);

    if (isRemoval)
        stack->removeWidgetAt(2);
    else
        stack->setCurrentIndex(1);

    QVERIFY(stack.isNull());
}

void tst_StackWidget::mayBeDeletedByAPageThatIsShown()
{
    QPointer<Stack> stack = new Stack;
    stack->setCurrentIndex(0);
    Speaking page;
    stack->insertWidget(1, &page);
    page.setParent(nullptr); // outlives the stack
    page.setVisible(false);
    page.whenShown = [stack] { delete stack; };
    TestCase::tolerateMessages(QtWarningMsg, QStringLiteral("This plugin does not support"));

    stack->setCurrentIndex(1);

    QVERIFY(stack.isNull());
}

void tst_StackWidget::mayBeChangedWhileItReports()
{
    Stack stack;
    QWidget *const last = stack.widgetAt(2);
    stack.setCurrentIndex(0);
    SignalRecorder recorder(&stack);
    connect(&stack, &stackWidget::widgetRemoved, this, [&stack] { stack.setCurrentIndex(1); });
    connect(&stack, &stackWidget::currentChanged, this,
            [&stack, last] { stack.removeWidget(last); });

    stack.removeWidgetAt(0);

    QCOMPARE(stack.count(), 1);
    QCOMPARE(stack.currentIndex(), 1); // where no page is left
    QCOMPARE(recorder.taken(),
             list({ "widgetRemoved(0)", "currentChanged(1)", "widgetRemoved(1)" }));
}

void tst_StackWidget::leavesTheLastWordToAPage_data()
{
    QTest::addColumn<int>("choice");

    QTest::newRow("one before") << 0;
    QTest::newRow("itself") << 1;
    QTest::newRow("one behind") << 3;
}

void tst_StackWidget::leavesTheLastWordToAPage()
{
    QFETCH(int, choice);
    Stack stack;
    stack.setCurrentIndex(2);
    auto *const page = new Speaking;
    page->hide();
    stack.insertWidget(1, page); // the index stays 2, and the page that was there is 3 now
    page->whenShown = [&stack, choice] { stack.setCurrentIndex(choice); };
    SignalRecorder recorder(&stack);

    stack.setCurrentIndex(1);

    QCOMPARE(stack.currentIndex(), choice);
    QCOMPARE(stack.shown(), QList<int>{ choice });
    QCOMPARE(recorder.taken(), QStringList{ QStringLiteral("currentChanged(%1)").arg(choice) });
}

void tst_StackWidget::goesOnWhenAPageTakesItselfOut()
{
    Stack stack(0);
    auto *const shy = new Speaking;
    stack.addWidget(shy);
    stack.addWidget(Stack::makePage(20));
    stack.addWidget(Stack::makePage(20));
    stack.setCurrentIndex(0);
    shy->whenHidden = [&stack, shy] { stack.removeWidget(shy); };

    stack.setCurrentIndex(1);

    QCOMPARE(stack.count(), 2);
    QCOMPARE(stack.currentIndex(), 1);
    QVERIFY(!stack.currentWidget()->isHidden());
}

void tst_StackWidget::freesItsPages()
{
    auto *stack = new Stack;
    const QPointer<QWidget> page = stack->widgetAt(1);

    delete stack;

    QVERIFY(page.isNull());
}

void tst_StackWidget::behavesLikeItsModel_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 6; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_StackWidget::behavesLikeItsModel()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    Stack stack(0);
    Model model;
    SignalRecorder recorder(&stack);
    QStringList history;

    for (int step = 0; step < 2000; ++step) {
        const int index = random.bounded(-2, model.pages.size() + 2);
        QWidget *const page = model.pages.value(index);
        switch (random.bounded(6)) {
        case 0: {
            QWidget *const added = Stack::makePage(10);
            history << QStringLiteral("insert %1").arg(index);
            QCOMPARE(stack.insertWidget(index, added), model.insert(index, added));
            break;
        }
        case 1: {
            QWidget *const added = Stack::makePage(10);
            history << QStringLiteral("add");
            QCOMPARE(stack.addWidget(added), model.insert(model.pages.size(), added));
            break;
        }
        case 2:
            history << QStringLiteral("remove at %1").arg(index);
            stack.removeWidgetAt(index);
            if (page && model.current >= 0)
                model.removeAt(index);
            break;
        case 3:
            history << QStringLiteral("remove the page at %1").arg(index);
            stack.removeWidget(page);
            if (page)
                model.removeAt(index);
            break;
        case 4:
            history << QStringLiteral("select the page at %1").arg(index);
            stack.setCurrentWidget(page);
            if (page)
                model.select(index);
            break;
        default:
            history << QStringLiteral("select %1").arg(index);
            stack.setCurrentIndex(index);
            model.select(index);
        }
        const QByteArray prefix = history.join(QLatin1Char('\n')).toUtf8();
        QVERIFY2(stack.count() == model.pages.size(), prefix.constData());
        QVERIFY2(stack.currentIndex() == model.current, prefix.constData());
        QVERIFY2(stack.currentWidget() == model.pages.value(model.current), prefix.constData());
        QVERIFY2(recorder.taken() == model.heard, prefix.constData());
        model.heard.clear();
        for (int i = 0; i < model.pages.size(); ++i)
            QVERIFY2(stack.widgetAt(i) == model.pages.at(i), prefix.constData());
    }
}

void tst_StackWidget::namesTabBarAndTabWidget()
{
    TabBar bar;
    TabWidget tabs;

    QCOMPARE(TabBar::staticMetaObject.superClass(), &QTabBar::staticMetaObject);
    QCOMPARE(TabWidget::staticMetaObject.superClass(), &QTabWidget::staticMetaObject);
    QCOMPARE(ownMethods(TabBar::staticMetaObject), QStringList());
    QCOMPARE(ownMethods(TabWidget::staticMetaObject), QStringList());
    QVERIFY(bar.inherits("TabBar"));
    QVERIFY(tabs.inherits("TabWidget"));
}

PELORIN_TEST_MAIN(tst_StackWidget)
#include "tst_stackwidget.moc"
