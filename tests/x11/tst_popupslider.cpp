#include "Pelorin/controls/LineEditNumberNG.h"
#include "Pelorin/shell/TavrinMainWindow.h"
#include "Pelorin/sliders/ScaleSliderNG.h"
#include "Pelorin/theme/Pelorin.h"
#include "tests/support/RealMouse.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QLineEdit>
#include <QToolButton>
#include <QVBoxLayout>

namespace {

/// The main window of an application, with two number fields that have popup sliders, over 0 to
/// 100.
class Window : public TavrinMainWindow
{
public:
    Window()
        : TavrinMainWindow(nullptr)
    {
        qApp->setProperty("APPLICATIONWINDOWPTR",
                          QVariant::fromValue(static_cast<TavrinMainWindow *>(this)));
        auto *page = new QWidget;
        auto *layout = new QVBoxLayout(page);
        for (LineEditNumberNG **each : { &first, &second }) {
            *each = new LineEditNumberNG(page);
            (*each)->setRange(0.0, 100.0, true);
            (*each)->setValue(20.0);
            (*each)->popUpSliderEnable(true, false);
            layout->addWidget(*each);
        }
        layout->addStretch(1);
        createSystemWidget(page, QStringLiteral("Power"), false, true);
        setWindowTitle(QStringLiteral("Popup"));
        setGeometry(300, 200, 700, 400);
        show();
        activateWindow();
    }
    ~Window() override { qApp->setProperty("APPLICATIONWINDOWPTR", QVariant()); }
    Window(const Window &) = delete;
    Window &operator=(const Window &) = delete;

    bool isReady()
    {
        const bool active = QTest::qWaitForWindowActive(this);
        quiet();
        return active;
    }

    bool xdotool(const char *command, int a, int b)
    {
        return RealMouse::xdotool({ QLatin1String(command), QString::number(winId()),
                                    QString::number(a), QString::number(b) });
    }

    /// Lets all events pass that are on their way: the server has answered a question asked after
    /// them.
    static void quiet()
    {
        for (int i = 0; i < 3; ++i) {
            RealMouse::xdotool({ QStringLiteral("getmouselocation") });
            QCoreApplication::processEvents();
        }
    }

    LineEditNumberNG *first = nullptr;
    LineEditNumberNG *second = nullptr;
};

ScaleSliderNG *popupOf(const LineEditNumberNG &edit)
{
    return edit.findChild<ScaleSliderNG *>();
}

QPoint middle(const QWidget &widget)
{
    return widget.mapToGlobal(widget.rect().center());
}

bool clickButton(const LineEditNumberNG &edit)
{
    return RealMouse::click(middle(*edit.findChild<QToolButton *>()));
}

/// Opens the popup and waits until it stands.
bool openPopup(const LineEditNumberNG &edit)
{
    const ScaleSliderNG *popup = popupOf(edit);
    const bool open = clickButton(edit) && QTest::qWaitFor([popup] { return popup->isVisible(); })
                      && QTest::qWaitForWindowExposed(popupOf(edit));
    Window::quiet();
    return open;
}

/// A place in a field away from its button, and from a popup of the field above it.
bool clickText(const LineEditNumberNG &edit)
{
    return RealMouse::click(edit.mapToGlobal(QPoint(10, edit.height() / 2)));
}

/// Where the popup belongs: centred under the field, two pixels below it.
QPoint placeUnder(const LineEditNumberNG &edit)
{
    const QPoint corner = edit.mapToGlobal(QPoint());
    return QPoint(int(corner.x() + edit.width() * 0.5 - popupOf(edit)->width() * 0.5),
                  corner.y() + edit.height() + 2);
}

/// The middle of the handle of a popup over 0 to 100 that stands at \a value: a small handle
/// between two margins.
QPoint handleAt(const ScaleSliderNG &slider, double value)
{
    constexpr int margin = 5;
    constexpr int handle = 18;
    const double travel = slider.width() - 2 * margin - handle;
    return slider.mapToGlobal(
        QPoint(margin + handle / 2 + qRound(travel * value / 100.0), slider.height() / 2));
}

} // namespace

/// The popup slider on a real server: focus between windows, and a window manager that moves them.
class tst_PopupSlider : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void opensUnderItsFieldAndLeavesTheFocusThere();
    void closesAtASecondClick();
    void closesWhenAKeyIsPressed();
    void commitsWhenItsHandleIsDragged();
    void commitsWhenAnotherFieldTakesTheFocus();
    void commitsWhenAnotherWindowTakesTheFocus();
    void closesWhenTheMainWindowIsMoved();
    void opensAtTheNewPlaceOfTheMainWindow();
    void closesWhenTheMainWindowIsResized();
    void outlivesTheMainWindowInAnEdit();
};

void tst_PopupSlider::init()
{
    TestCase::init();
    tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in"));
    tolerateMessages(QtDebugMsg, QStringLiteral("priPopupSliderValueChang"));
    Pelorin::loadApplicationFonts();
    qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
}

void tst_PopupSlider::opensUnderItsFieldAndLeavesTheFocusThere()
{
    Window window;
    QVERIFY(window.isReady());
    ScaleSliderNG *popup = popupOf(*window.first);

    QVERIFY(openPopup(*window.first));

    QCOMPARE(popup->mapToGlobal(QPoint()), placeUnder(*window.first));
    QTRY_COMPARE(QApplication::activeWindow(), &window);
    QVERIFY(window.first->hasFocus());
}

void tst_PopupSlider::closesAtASecondClick()
{
    Window window;
    QVERIFY(window.isReady());
    QVERIFY(openPopup(*window.first));

    QVERIFY(clickButton(*window.first));

    QTRY_VERIFY(!popupOf(*window.first)->isVisible());
}

void tst_PopupSlider::closesWhenAKeyIsPressed()
{
    Window window;
    QVERIFY(window.isReady());
    SignalRecorder recorder(window.first, QString(), &QLineEdit::staticMetaObject);
    QVERIFY(openPopup(*window.first));

    QVERIFY(RealMouse::key(QStringLiteral("Escape")));

    QTRY_VERIFY(!popupOf(*window.first)->isVisible());
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_PopupSlider::commitsWhenItsHandleIsDragged()
{
    Window window;
    QVERIFY(window.isReady());
    SignalRecorder recorder(window.first, QString(), &QLineEdit::staticMetaObject);
    ScaleSliderNG *popup = popupOf(*window.first);
    QVERIFY(openPopup(*window.first));

    QVERIFY(RealMouse::moveTo(handleAt(*popup, 20.0)));
    QVERIFY(RealMouse::press());
    QVERIFY(RealMouse::moveTo(handleAt(*popup, 40.0)));
    QTRY_VERIFY(qAbs(popup->value0() - 40.0) < 1.0);
    const QString moving = QString::number(popup->value0(), 'g', 12);
    QTRY_COMPARE(recorder.entries().last(), QStringLiteral("valueChanging(%1)").arg(moving));
    QCOMPARE(window.first->text(), QString::number(popup->value0(), 'f', 2));
    QCOMPARE(window.first->value(), 20.0);
    QVERIFY(window.first->hasFocus());
    recorder.taken();

    QVERIFY(RealMouse::release());
    QTRY_COMPARE(recorder.entries(), QStringList(QStringLiteral("valueChanged(%1)").arg(moving)));
    QCOMPARE(window.first->selectedText(), window.first->text());
    QVERIFY(popup->isVisible());
}

void tst_PopupSlider::commitsWhenAnotherFieldTakesTheFocus()
{
    Window window;
    QVERIFY(window.isReady());
    SignalRecorder recorder(window.first, QString(), &QLineEdit::staticMetaObject);
    QVERIFY(openPopup(*window.first));
    window.first->selectAll();
    QVERIFY(RealMouse::key(QStringLiteral("3")));
    QVERIFY(RealMouse::key(QStringLiteral("comma")));
    QVERIFY(RealMouse::key(QStringLiteral("5")));
    QTRY_COMPARE(window.first->text(), QStringLiteral("3.5"));
    QVERIFY(!popupOf(*window.first)->isVisible());
    recorder.taken();
    QVERIFY(openPopup(*window.first));

    QVERIFY(clickText(*window.second));

    QTRY_COMPARE(recorder.entries(), QStringList(QStringLiteral("valueChanged(3.5)")));
    QVERIFY(!popupOf(*window.first)->isVisible());
    QVERIFY(window.second->hasFocus());
    QCOMPARE(window.first->text(), QStringLiteral("3.50"));
}

void tst_PopupSlider::commitsWhenAnotherWindowTakesTheFocus()
{
    Window window;
    QLineEdit other;
    other.setGeometry(300, 700, 300, 60);
    other.show();
    QVERIFY(QTest::qWaitForWindowExposed(&other));
    window.activateWindow();
    QVERIFY(window.isReady());
    SignalRecorder recorder(window.first, QString(), &QLineEdit::staticMetaObject);
    QVERIFY(clickText(*window.first));
    QTRY_VERIFY(window.first->hasFocus());
    window.first->selectAll();
    QVERIFY(RealMouse::key(QStringLiteral("7")));
    QTRY_COMPARE(window.first->text(), QStringLiteral("7"));
    QVERIFY(openPopup(*window.first));
    recorder.taken();

    QVERIFY(RealMouse::click(middle(other)));

    QTRY_COMPARE(recorder.entries(), QStringList(QStringLiteral("valueChanged(7)")));
    QVERIFY(!popupOf(*window.first)->isVisible());
    QTRY_COMPARE(QApplication::activeWindow(), &other);
}

void tst_PopupSlider::closesWhenTheMainWindowIsMoved()
{
    Window window;
    QVERIFY(window.isReady());
    QVERIFY(openPopup(*window.first));

    QVERIFY(window.xdotool("windowmove", 420, 330));

    QTRY_VERIFY(!popupOf(*window.first)->isVisible());
}

void tst_PopupSlider::opensAtTheNewPlaceOfTheMainWindow()
{
    Window window;
    QVERIFY(window.isReady());
    const QPoint before = window.geometry().topLeft();
    QVERIFY(window.xdotool("windowmove", 420, 330));
    QTRY_VERIFY(window.geometry().topLeft() != before);
    Window::quiet();

    QVERIFY(openPopup(*window.second));

    QTRY_COMPARE(popupOf(*window.second)->mapToGlobal(QPoint()), placeUnder(*window.second));
    QVERIFY(!popupOf(*window.first)->isVisible());
}

void tst_PopupSlider::closesWhenTheMainWindowIsResized()
{
    Window window;
    QVERIFY(window.isReady());
    QVERIFY(openPopup(*window.first));

    QVERIFY(window.xdotool("windowsize", 800, 500));

    QTRY_VERIFY(!popupOf(*window.first)->isVisible());
}

void tst_PopupSlider::outlivesTheMainWindowInAnEdit()
{
    QWidget elsewhere;
    elsewhere.setGeometry(300, 650, 400, 80);
    auto window = std::make_unique<Window>();
    QVERIFY(window->isReady());
    LineEditNumberNG *edit = window->first;
    edit->setParent(&elsewhere);
    elsewhere.show();
    elsewhere.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&elsewhere));
    edit->setGeometry(20, 20, 300, 40);
    edit->show();
    edit->setFocus();
    edit->selectAll();
    QVERIFY(RealMouse::key(QStringLiteral("8")));
    QTRY_COMPARE(edit->text(), QStringLiteral("8"));

    window.reset();
    Window::quiet();
    QVERIFY(RealMouse::key(QStringLiteral("5")));
    QTRY_COMPARE(edit->text(), QStringLiteral("85"));
    QVERIFY(RealMouse::key(QStringLiteral("Return")));

    QTRY_COMPARE(edit->value(), 85.0);
    QVERIFY(openPopup(*edit));
    QTRY_COMPARE(popupOf(*edit)->mapToGlobal(QPoint()), placeUnder(*edit));
}

PELORIN_TEST_MAIN(tst_PopupSlider)
#include "tst_popupslider.moc"
