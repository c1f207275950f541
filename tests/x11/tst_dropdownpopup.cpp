#include "Pelorin/controls/ComboBoxNG.h"
#include "Pelorin/controls/DropDownNG.h"
#include "Pelorin/theme/Pelorin.h"
#include "tests/support/RealMouse.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QAbstractItemView>
#include <QElapsedTimer>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QToolTip>
#include <QVBoxLayout>

namespace {

/// A window with a list of A, B, C and D in a scroll area that is taller than its view.
template<class List>
class Panel : public QWidget
{
public:
    Panel()
        : list(new List)
        , area(new QScrollArea)
    {
        auto *page = new QWidget;
        auto *pageLayout = new QVBoxLayout(page);
        pageLayout->addSpacing(60);
        pageLayout->addWidget(list, 0, Qt::AlignHCenter);
        pageLayout->addStretch(1);
        page->setFixedSize(300, 1200);
        area->setWidget(page);
        auto *layout = new QVBoxLayout(this);
        other = new QPushButton(QStringLiteral("Other"));
        layout->addWidget(other);
        layout->addWidget(area);
        for (const char *text : { "Alpha", "Beta", "Gamma", "Delta" })
            list->addItem(QLatin1String(text));
        setGeometry(300, 200, 400, 500);
        show();
        activateWindow();
    }

    bool isReady()
    {
        if (!QTest::qWaitForWindowActive(this))
            return false;
        other->setFocus();
        return true;
    }

    bool click() { return RealMouse::click(list->mapToGlobal(list->rect().center())); }

    QPoint itemPlace(int row) const
    {
        const QAbstractItemView *view = list->view();
        const QRect item = view->visualRect(list->model()->index(row, 0));
        return view->viewport()->mapToGlobal(item.center());
    }
    bool clickItem(int row) { return RealMouse::click(itemPlace(row)); }

    /// Opens the list by a click. The list takes the next one when it can be no double click any
    /// more.
    bool open()
    {
        if (!click() || !QTest::qWaitFor([this] { return isOpen(); })
            || !QTest::qWaitForWindowExposed(list->view()->window()))
            return false;
        QElapsedTimer since;
        since.start();
        const int wait = 2 * QApplication::doubleClickInterval();
        return QTest::qWaitFor([&] { return since.hasExpired(wait); }) && isOpen();
    }
    bool isOpen() const { return list->view()->isVisible(); }

    List *list;
    QScrollArea *area;
    QPushButton *other;
};

/// Until the server has answered a question that was asked after all events on their way.
void letEventsPass()
{
    for (int i = 0; i < 3; ++i) {
        RealMouse::xdotool({ QStringLiteral("getmouselocation") });
        QCoreApplication::processEvents();
    }
}

} // namespace

/// The drop-down lists under a real pointer, keyboard and wheel.
class tst_DropDownPopup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void choosesAnItemBehindAHiddenOne();
    void fillsTheListAgainWhileItIsOpen();
    void choosesAnItemOfAComboBox();
    void leavesADisabledItem();
    void framesTheOpenList();
    void leavesTheWheelToTheScrollArea();
    void explainsTheItemUnderThePointer();
};

void tst_DropDownPopup::initTestCase()
{
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
    QApplication::setDoubleClickInterval(200);
}

void tst_DropDownPopup::choosesAnItemBehindAHiddenOne()
{
    Panel<DropDownNG> panel;
    QVERIFY(panel.isReady());
    panel.list->setItemVisibility(1, false);
    QVERIFY(panel.open());
    SignalRecorder recorder(panel.list, QString(), &QComboBox::staticMetaObject);

    QVERIFY(panel.clickItem(1));

    QTRY_VERIFY(!panel.isOpen());
    QTRY_COMPARE(panel.list->currentIndex(), 2);
    QCOMPARE(panel.list->currentText(), QStringLiteral("Gamma"));
    QCOMPARE(recorder.taken(),
             QStringList(
                 { QStringLiteral("sigHighlighted(1)"), QStringLiteral("sigHighlighted(\"Gamma\")"),
                   QStringLiteral("sigCurrentIndexChanged(1)"),
                   QStringLiteral("sigCurrentTextChanged(\"Gamma\")"),
                   QStringLiteral("sigActivated(2)"), QStringLiteral("sigActivated(\"Gamma\")") }));
}

void tst_DropDownPopup::fillsTheListAgainWhileItIsOpen()
{
    Panel<DropDownNG> panel;
    QVERIFY(panel.isReady());
    QVERIFY(panel.open());

    panel.list->setItemVisibility(0, false); // the report of a device
    panel.list->setDisabledIndex(3);
    letEventsPass();
    panel.list->setEnabled(false);

    QTRY_VERIFY(!panel.isOpen());
    QCOMPARE(panel.list->currentIndex(), 3);
    panel.list->setEnabled(true);
    QVERIFY(panel.open());
    QVERIFY(panel.clickItem(1));
    QTRY_COMPARE(panel.list->currentText(), QStringLiteral("Gamma"));
}

void tst_DropDownPopup::choosesAnItemOfAComboBox()
{
    Panel<ComboBoxNG> panel;
    QVERIFY(panel.isReady());
    panel.list->setItemVisible(1, false);
    QVERIFY(panel.open());
    QVERIFY(panel.list->view()->visualRect(panel.list->model()->index(1, 0)).isEmpty());
    QStringList chosen;
    connect(panel.list, &QComboBox::textActivated, this,
            [&chosen](const QString &text) { chosen << text; });

    QVERIFY(panel.clickItem(2));

    QTRY_COMPARE(chosen, QStringList(QStringLiteral("Gamma")));
    QCOMPARE(panel.list->currentIndex(), 2);
    QTRY_VERIFY(!panel.isOpen());
}

void tst_DropDownPopup::leavesADisabledItem()
{
    Panel<ComboBoxNG> panel;
    QVERIFY(panel.isReady());
    panel.list->setItemEnabled(1, false);
    SignalRecorder recorder(panel.list, QString(), &QWidget::staticMetaObject);
    QVERIFY(panel.open());

    QVERIFY(panel.clickItem(1));
    QVERIFY(RealMouse::key(QStringLiteral("Return")));
    letEventsPass();
    QCOMPARE(panel.list->currentIndex(), 0);

    if (!panel.isOpen())
        QVERIFY(panel.open());
    QVERIFY(panel.clickItem(3));
    QTRY_COMPARE(panel.list->currentIndex(), 3);
    const QStringList reported = recorder.taken();
    QVERIFY(!reported.contains(QStringLiteral("activated(1)")));
    QVERIFY(reported.contains(QStringLiteral("activated(3)")));

    QTRY_VERIFY(!panel.isOpen());
    QVERIFY(RealMouse::key(QStringLiteral("Home")));
    QTRY_COMPARE(panel.list->currentIndex(), 0);
    QVERIFY(RealMouse::key(QStringLiteral("Down"))); // over it on the closed box
    QTRY_COMPARE(panel.list->currentIndex(), 2);
}

void tst_DropDownPopup::framesTheOpenList()
{
    Panel<ComboBoxNG> panel;
    QVERIFY(panel.isReady());
    QVERIFY(panel.open());
    panel.list->resize(panel.list->width() + 20, panel.list->height()); // as by a layout

    const QWidget *frame = panel.list->view()->window();
    QTRY_COMPARE(frame->windowFlags(),
                 Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    QVERIFY(frame->testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(panel.isOpen());
    panel.list->hidePopup();
}

void tst_DropDownPopup::leavesTheWheelToTheScrollArea()
{
    Panel<ComboBoxNG> panel;
    QVERIFY(panel.isReady());
    const QScrollBar &bar = *panel.area->verticalScrollBar();
    const QPoint place = panel.list->mapToGlobal(panel.list->rect().center());
    const int wheelDown = 5;

    QVERIFY(RealMouse::click(place, wheelDown));
    QTRY_VERIFY(bar.value() > 0);
    QCOMPARE(panel.list->currentIndex(), 0);
    QVERIFY(!panel.list->hasFocus());

    const int scrolled = bar.value();
    panel.list->setFocus();
    QVERIFY(RealMouse::click(panel.list->mapToGlobal(panel.list->rect().center()), wheelDown));
    QTRY_COMPARE(panel.list->currentIndex(), 1);
    QCOMPARE(bar.value(), scrolled);
}

void tst_DropDownPopup::explainsTheItemUnderThePointer()
{
    Panel<ComboBoxNG> panel;
    QVERIFY(panel.isReady());
    panel.list->setRelayItemToolTip(true);
    panel.list->setItemToolTip(2, QStringLiteral("Runs free"));
    panel.list->setCurrentIndexWithoutEmits(2);
    const QPoint place = panel.list->mapToGlobal(panel.list->rect().center());

    QVERIFY(RealMouse::moveTo(place - QPoint(0, 80)));
    QVERIFY(RealMouse::moveTo(place));

    QTRY_COMPARE(QToolTip::text(), QStringLiteral("Runs free"));
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

PELORIN_TEST_MAIN(tst_DropDownPopup)
#include "tst_dropdownpopup.moc"
