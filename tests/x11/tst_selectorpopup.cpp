#include "Pelorin/controls/ComboBox.h"
#include "Pelorin/controls/Selector.h"
#include "Pelorin/theme/Pelorin.h"
#include "tests/controls/ListRows.h"
#include "tests/support/RealMouse.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QPushButton>
#include <QVBoxLayout>

namespace {

void fill(ComboBox &box)
{
    box.addItems(list({ "Alpha", "Beta", "Gamma" }));
}

void fill(Selector &selector)
{
    for (const char *text : { "Alpha", "Beta", "Gamma" })
        selector.addItem(QLatin1String(text));
}

/// A window with a box of Alpha, Beta and Gamma, and another thing to click at.
template<class Box>
class Panel : public QWidget
{
public:
    explicit Panel(Box *shown)
        : box(shown)
        , other(new QPushButton(QStringLiteral("Other")))
    {
        fill(*box);
        box->setMinimumWidth(160);
        auto *layout = new QVBoxLayout(this);
        layout->addWidget(box, 0, Qt::AlignHCenter);
        layout->addStretch(1);
        layout->addWidget(other);
        setGeometry(500, 200, 400, 400);
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

    DropDown &dropDown() const { return *listOf(*box); }

    bool clickBox() { return RealMouse::click(box->mapToGlobal(box->rect().center())); }
    bool clickOther() { return RealMouse::click(other->mapToGlobal(other->rect().center())); }
    bool clickRow(int row)
    {
        const IconLabel *const label = rowsOf(dropDown()).at(row);
        return RealMouse::click(label->mapToGlobal(label->rect().center()));
    }

    /// Opens the list by a click, and waits until the window manager has given it the focus.
    bool open()
    {
        return clickBox() && QTest::qWaitFor([this] { return dropDown().isVisible(); })
               && QTest::qWaitForWindowExposed(&dropDown())
               && QTest::qWaitForWindowActive(&dropDown())
               && QTest::qWaitFor([this] { return dropDown().hasFocus(); })
               && QTest::qWaitFor([this] { return isPlaced(); });
    }

    /// Whether the window manager has put the list where it belongs: under the box.
    bool isPlaced() const
    {
        return dropDown().y() == box->mapToGlobal(QPoint(0, box->height())).y();
    }

    Box *box;
    QPushButton *other;
};

} // namespace

/// The lists of the first-generation selectors, which are windows, under a real pointer and a window
/// manager.
class tst_SelectorPopup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void init();
    void choosesAnItemOfAComboBox();
    void placesTheListOfAComboBox();
    void closesTheListOfAComboBoxWithTheFocus();
    void closesTheListOfAComboBoxByTheNextClick();
    void choosesAnItemOfASelector();
    void placesTheListOfASelector();
    void closesTheListOfASelectorWithTheFocus();
    void closesTheListOfASelectorByTheNextClick();

private:
    template<class Box>
    void closesWithTheFocus(Box *box);
    template<class Box>
    void closesByTheNextClick(Box *box);
};

void tst_SelectorPopup::initTestCase()
{
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
}

void tst_SelectorPopup::init()
{
    TestCase::init();
    QVERIFY(RealMouse::moveTo(QPoint(10, 10)));
}

template<class Box>
void tst_SelectorPopup::closesWithTheFocus(Box *box)
{
    Panel<Box> panel(box);
    QVERIFY(panel.isReady());
    SignalRecorder recorder(box);

    for (int times = 0; times < 2; ++times) {
        QVERIFY(panel.open());
        QVERIFY(panel.clickOther());

        QTRY_VERIFY(!panel.dropDown().isVisible());
        QTRY_VERIFY(panel.other->hasFocus());
    }
    QCOMPARE(recorder.taken(), QStringList());
}

template<class Box>
void tst_SelectorPopup::closesByTheNextClick(Box *box)
{
    Panel<Box> panel(box);
    QVERIFY(panel.isReady());
    QVERIFY(panel.open());

    QVERIFY(panel.clickBox());
    QTRY_VERIFY(!panel.dropDown().isVisible());

    QVERIFY(panel.open());
}

void tst_SelectorPopup::choosesAnItemOfAComboBox()
{
    auto *box = new ComboBox;
    Panel<ComboBox> panel(box);
    QVERIFY(panel.isReady());
    SignalRecorder recorder(box);

    QVERIFY(panel.open());
    QCOMPARE(shownTexts(panel.dropDown()), list({ "Alpha", "Beta", "Gamma" }));
    QVERIFY(panel.clickRow(1));

    QTRY_VERIFY(!panel.dropDown().isVisible());
    QCOMPARE(recorder.taken(), list({ "currentIndexChanged(1)", "activated(1)" }));
    QCOMPARE(box->text(), QStringLiteral("Beta"));

    QVERIFY(panel.open());
    QVERIFY(panel.clickRow(1));
    QTRY_VERIFY(!panel.dropDown().isVisible());
    QCOMPARE(recorder.taken(), list({ "activated(1)" }));
}

void tst_SelectorPopup::placesTheListOfAComboBox()
{
    auto *box = new ComboBox;
    Panel<ComboBox> panel(box);
    QVERIFY(panel.isReady());

    QVERIFY(panel.open());

    const DropDown &list = panel.dropDown();
    const QPoint corner = box->mapToGlobal(QPoint(box->width() - 20, box->height()));
    QTRY_COMPARE(list.pos() + QPoint(list.width(), 0), corner);
    QCOMPARE(list.frameGeometry(), list.geometry()); // the window manager adds nothing
}

void tst_SelectorPopup::closesTheListOfAComboBoxWithTheFocus()
{
    closesWithTheFocus(new ComboBox);
}

void tst_SelectorPopup::closesTheListOfAComboBoxByTheNextClick()
{
    closesByTheNextClick(new ComboBox);
}

void tst_SelectorPopup::choosesAnItemOfASelector()
{
    auto *selector = new Selector(QStringLiteral("Settings"));
    Panel<Selector> panel(selector);
    QVERIFY(panel.isReady());
    SignalRecorder recorder(selector);

    QVERIFY(panel.open());
    QCOMPARE(shownTexts(panel.dropDown()), list({ "Beta", "Gamma" }));
    QVERIFY(panel.clickRow(1));

    QTRY_VERIFY(!panel.dropDown().isVisible());
    QCOMPARE(recorder.taken(), list({ "itemSelected(1)" }));
}

void tst_SelectorPopup::placesTheListOfASelector()
{
    auto *selector = new Selector(QStringLiteral("Settings"));
    Panel<Selector> panel(selector);
    QVERIFY(panel.isReady());

    QVERIFY(panel.open());

    QTRY_COMPARE(panel.dropDown().pos(), selector->mapToGlobal(QPoint(0, selector->height())));
}

void tst_SelectorPopup::closesTheListOfASelectorWithTheFocus()
{
    closesWithTheFocus(new Selector(QStringLiteral("Settings")));
}

void tst_SelectorPopup::closesTheListOfASelectorByTheNextClick()
{
    closesByTheNextClick(new Selector(QStringLiteral("Settings")));
}

PELORIN_TEST_MAIN(tst_SelectorPopup)
#include "tst_selectorpopup.moc"
