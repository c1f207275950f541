#include "Pelorin/shell/TavrinMainWindow.h"
#include "tests/controls/PopupField.h"
#include "tests/support/TestCase.h"

#include <QLabel>

namespace {

/// Stores what a field is to find in the application, for as long as it lives.
class StoredWindow
{
public:
    explicit StoredWindow(const QVariant &stored)
    {
        qApp->setProperty("APPLICATIONWINDOWPTR", stored);
    }
    ~StoredWindow() { qApp->setProperty("APPLICATIONWINDOWPTR", QVariant()); }
    StoredWindow(const StoredWindow &) = delete;
    StoredWindow &operator=(const StoredWindow &) = delete;
};

} // namespace

class tst_LineEditNumberNGWindow : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void closesWhenTheMainWindowMoves_data();
    void closesWhenTheMainWindowMoves();
    void countsFromTheMainWindow_data();
    void countsFromTheMainWindow();
    void outlivesTheMainWindow();
    void worksWithoutAMainWindow_data();
    void worksWithoutAMainWindow();
    void passesByAWindowThatIsGone();
    void outlivesItsSlider();
};

void tst_LineEditNumberNGWindow::closesWhenTheMainWindowMoves_data()
{
    QTest::addColumn<bool>("moves");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("it moves") << true << true;
    QTest::newRow("its size changes") << false << true;
    QTest::newRow("it moves, and the popup is no longer enabled") << true << false;
}

void tst_LineEditNumberNGWindow::closesWhenTheMainWindowMoves()
{
    QFETCH(bool, moves);
    QFETCH(bool, enabled);
    TavrinMainWindow window(nullptr);
    const StoredWindow stored(QVariant::fromValue(&window));
    window.setGeometry(100, 100, 600, 400);
    window.show();
    PopupField field;
    field.clickButton();
    field.edit.popUpSliderEnable(enabled, false);
    QVERIFY(field.isOpen());

    if (moves)
        window.move(150, 120);
    else
        window.resize(500, 400);

    QTRY_VERIFY(!field.isOpen());
}

void tst_LineEditNumberNGWindow::countsFromTheMainWindow_data()
{
    QTest::addColumn<QPoint>("window");
    QTest::addColumn<QPoint>("popup");

    // 350.5 - 200 is 150.5; seen from a window right of it, truncation goes the other way.
    QTest::newRow("left of the popup") << QPoint(100, 40) << QPoint(150, 232);
    QTest::newRow("right of the popup") << QPoint(500, 300) << QPoint(151, 232);
}

void tst_LineEditNumberNGWindow::countsFromTheMainWindow()
{
    QFETCH(QPoint, window);
    QFETCH(QPoint, popup);
    TavrinMainWindow main(nullptr);
    const StoredWindow stored(QVariant::fromValue(&main));

    for (const bool moves : { true, false }) {
        PopupField field;
        field.edit.resize(101, 30);

        if (moves)
            Q_EMIT main.sigMainWindowMoved(QPoint(-7, -7), window);
        else
            Q_EMIT main.sigMainWindowResized(QRect(window, QSize(600, 400)));
        field.clickButton();

        QCOMPARE(field.slider()->pos(), popup);
    }
}

void tst_LineEditNumberNGWindow::outlivesTheMainWindow()
{
    auto window = std::make_unique<TavrinMainWindow>(nullptr);
    const StoredWindow stored(QVariant::fromValue(window.get()));
    PopupField field(5.0);
    tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in"));
    field.type(QStringLiteral("7"));
    field.recorder.taken();

    window.reset();
    field.clickButton();
    field.press(Qt::Key_Return);

    QVERIFY(!field.isOpen());
    QCOMPARE(field.recorder.taken(), list("valueChanged(7)"));
}

void tst_LineEditNumberNGWindow::worksWithoutAMainWindow_data()
{
    QTest::addColumn<QVariant>("stored");

    QTest::newRow("nothing") << QVariant();
    QTest::newRow("a null pointer")
        << QVariant::fromValue(static_cast<TavrinMainWindow *>(nullptr));
    QTest::newRow("a text") << QVariant(QStringLiteral("window"));
    QTest::newRow("a number") << QVariant(42);
    QTest::newRow("another object") << QVariant::fromValue<QObject *>(qApp);
}

void tst_LineEditNumberNGWindow::worksWithoutAMainWindow()
{
    QFETCH(QVariant, stored);
    const StoredWindow property(stored);

    PopupField field(5.0);
    field.clickButton();

    QVERIFY(field.isOpen());
    QLabel label;
    const StoredWindow widget(QVariant::fromValue<QWidget *>(&label));
    const LineEditNumberNG other(nullptr);
    QCOMPARE(other.value(), 100.0);
}

void tst_LineEditNumberNGWindow::passesByAWindowThatIsGone()
{
    auto window = std::make_unique<TavrinMainWindow>(nullptr);
    const StoredWindow stored(QVariant::fromValue(window.get()));
    window.reset();

    PopupField field(5.0);
    field.clickButton();

    QVERIFY(field.isOpen());
}

void tst_LineEditNumberNGWindow::outlivesItsSlider()
{
    TavrinMainWindow window(nullptr);
    const StoredWindow stored(QVariant::fromValue(&window));
    PopupField field(5.0);
    tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in"));
    field.clickButton();
    delete field.slider();

    field.edit.setValuePrecision(3);
    field.edit.setRange(0.0, 10.0);
    field.edit.enableInfinity(true);
    field.edit.popUpSliderEnable(true, true);
    field.edit.popUpSliderHide();
    field.clickButton();
    field.edit.move(10, 10);
    field.edit.resize(300, 40);
    Q_EMIT window.sigMainWindowMoved(QPoint(), QPoint(1, 1));
    Q_EMIT window.sigMainWindowResized(QRect(1, 1, 100, 100));
    field.edit.setValue(6.0);
    field.type(QStringLiteral("7"));
    field.press(Qt::Key_Return);
    field.press(Qt::Key_Up);
    field.loseFocus();
    field.edit.popUpSliderEnable(false, true);

    QCOMPARE(field.edit.text(), QStringLiteral("7.001"));
    QVERIFY(!field.slider());
}

PELORIN_TEST_MAIN(tst_LineEditNumberNGWindow)
#include "tst_lineeditnumberngwindow.moc"
