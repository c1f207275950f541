#include "Pelorin/controls/Button.h"
#include "Pelorin/theme/Pelorin.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QHelpEvent>
#include <QImage>
#include <QKeyEvent>
#include <QToolTip>

#include <limits>

namespace {

constexpr int maxInt = std::numeric_limits<int>::max();
constexpr int minInt = std::numeric_limits<int>::min();

const QString span = QStringLiteral(
    "<span style=\"font-style:italic; color:#00007f;\">Shortcut: Ctrl+Shift+E</span>");

QString styleProperty(const QObject &object, const char *name)
{
    return object.property(name).toString();
}

QSize fixedSize(const QWidget &widget)
{
    return widget.minimumSize() == widget.maximumSize() ? widget.maximumSize() : QSize();
}

/// A button whose keys can be pressed whatever Qt would do with them before.
class OpenButton : public Button
{
public:
    using Button::Button;
    bool acceptsKey(int key)
    {
        QKeyEvent press(QEvent::KeyPress, key, Qt::NoModifier);
        keyPressEvent(&press);
        QKeyEvent release(QEvent::KeyRelease, key, Qt::NoModifier);
        keyReleaseEvent(&release);
        return press.isAccepted();
    }
};

} // namespace

class tst_Button : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsAsANormalRedButton();
    void takesTheSizesOfItsTable_data();
    void takesTheSizesOfItsTable();
    void ignoresAnUnknownSize_data();
    void ignoresAnUnknownSize();
    void takesAnyOtherSize_data();
    void takesAnyOtherSize();
    void namesItsColor_data();
    void namesItsColor();
    void namesItsCheckedColor_data();
    void namesItsCheckedColor();
    void turnsRedItselfWhenCheckedRed();
    void reportsAClickWithItsText_data();
    void reportsAClickWithItsText();
    void reportsTheTextOfTheMoment();
    void obeysTheKeys_data();
    void obeysTheKeys();
    void hasAShortcutForTheEmission();
    void pressesItselfByTheShortcut();
    void explainsItself_data();
    void explainsItself();
    void fillsItselfWithAPicture_data();
    void fillsItselfWithAPicture();
    void wearsTheColorsOfTheSheet_data();
    void wearsTheColorsOfTheSheet();
};

void tst_Button::declaresItsInterface()
{
    const QMetaObject &meta = Button::staticMetaObject;

    QCOMPARE(meta.className(), "Button");
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             QStringList(QStringLiteral("clicked(bool,QString)")));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), QStringList(QStringLiteral("emitClicked(bool)")));
}

void tst_Button::startsAsANormalRedButton()
{
    const Button plain;
    const Button named(QStringLiteral("Start"));

    QCOMPARE(plain.text(), QString());
    QCOMPARE(named.text(), QStringLiteral("Start"));
    for (const Button *button : { &plain, &named }) {
        QCOMPARE(fixedSize(*button), QSize(95, 55));
        QCOMPARE(button->size(), QSize(95, 55));
        QCOMPARE(styleProperty(*button, "button-size"), QStringLiteral("normal"));
        QCOMPARE(styleProperty(*button, "button-color"), QStringLiteral("red"));
        QCOMPARE(styleProperty(*button, "button-checked-color"), QStringLiteral("orange"));
        QCOMPARE(button->color(), Button::Red);
        QCOMPARE(button->checkedColor(), Button::Orange);
        QVERIFY(!button->isEmissionButton());
        QVERIFY(button->shortcut().isEmpty());
    }
}

void tst_Button::takesTheSizesOfItsTable_data()
{
    QTest::addColumn<Button::Size>("size");
    QTest::addColumn<int>("number");
    QTest::addColumn<QSize>("pixels");
    QTest::addColumn<QString>("name");

    const QString normal = QStringLiteral("normal");
    const QString fat = QStringLiteral("fat");
    const QString small = QStringLiteral("small");
    const QString longSmall = QStringLiteral("longsmall");
    QTest::newRow("normal") << Button::Normal << 0 << QSize(95, 55) << normal;
    QTest::newRow("normal, fat") << Button::NormalFat << 1 << QSize(95, 55) << fat;
    QTest::newRow("small") << Button::Small << 2 << QSize(55, 35) << small;
    QTest::newRow("wide and small") << Button::WideSmall << 3 << QSize(65, 30) << small;
    QTest::newRow("square of 30") << Button::Square30 << 4 << QSize(30, 30) << fat;
    QTest::newRow("square of 40") << Button::Square40 << 5 << QSize(40, 40) << fat;
    QTest::newRow("square of 32") << Button::Square32 << 6 << QSize(32, 32) << fat;
    QTest::newRow("wide and fat") << Button::WideFat << 7 << QSize(65, 40) << fat;
    QTest::newRow("big arrow") << Button::BigArrow << 8 << QSize(46, 38) << fat;
    QTest::newRow("small arrow") << Button::SmallArrow << 9 << QSize(29, 24) << fat;
    QTest::newRow("long and small") << Button::LongSmall << 10 << QSize(85, 35) << longSmall;
}

void tst_Button::takesTheSizesOfItsTable()
{
    QFETCH(Button::Size, size);
    QFETCH(int, number);
    QFETCH(QSize, pixels);
    QFETCH(QString, name);
    Button button;
    button.setSize(Button::Small);
    button.setSize(Button::NormalFat);

    button.setSize(size);

    QCOMPARE(int(size), number);
    QCOMPARE(fixedSize(button), pixels);
    QCOMPARE(button.size(), pixels);
    QCOMPARE(styleProperty(button, "button-size"), name);
}

void tst_Button::ignoresAnUnknownSize_data()
{
    QTest::addColumn<int>("number");

    QTest::newRow("one too many") << 11;
    QTest::newRow("negative") << -1;
    QTest::newRow("largest") << maxInt;
    QTest::newRow("smallest") << minInt;
}

void tst_Button::ignoresAnUnknownSize()
{
    QFETCH(int, number);
    Button button;
    button.setSize(Button::LongSmall);

    button.setSize(Button::Size(number));

    QCOMPARE(fixedSize(button), QSize(85, 35));
    QCOMPARE(styleProperty(button, "button-size"), QStringLiteral("longsmall"));
}

void tst_Button::takesAnyOtherSize_data()
{
    QTest::addColumn<QSize>("wanted");
    QTest::addColumn<QSize>("pixels");

    QTest::newRow("plain") << QSize(123, 45) << QSize(123, 45);
    QTest::newRow("nothing") << QSize(0, 0) << QSize(0, 0);
    QTest::newRow("negative") << QSize(-7, minInt) << QSize(0, 0);
    QTest::newRow("beyond any widget")
        << QSize(maxInt, maxInt) << QSize(QWIDGETSIZE_MAX - 1, QWIDGETSIZE_MAX - 1);
}

void tst_Button::takesAnyOtherSize()
{
    QFETCH(QSize, wanted);
    QFETCH(QSize, pixels);
    Button button;
    button.setSize(Button::Square40);

    button.setSize(wanted.width(), wanted.height());
    QCOMPARE(fixedSize(button), pixels);
    QCOMPARE(styleProperty(button, "button-size"), QStringLiteral("fat"));

    button.setSize(Button::Square40);
    button.setWidth(wanted.width());
    QCOMPARE(fixedSize(button), QSize(pixels.width(), 40));
    QCOMPARE(styleProperty(button, "button-size"), QStringLiteral("fat"));
}

void tst_Button::namesItsColor_data()
{
    QTest::addColumn<int>("color");
    QTest::addColumn<QString>("name");

    QTest::newRow("red") << 0 << QStringLiteral("red");
    QTest::newRow("grey") << 1 << QStringLiteral("grey");
    QTest::newRow("dark grey") << 2 << QStringLiteral("dark-grey");
    QTest::newRow("green") << 3 << QStringLiteral("green");
    QTest::newRow("orange") << 4 << QStringLiteral("orange");
    QTest::newRow("one too many") << 5 << QStringLiteral("red");
    QTest::newRow("largest") << maxInt << QStringLiteral("red");
    QTest::newRow("negative") << -1 << QStringLiteral("red");
}

void tst_Button::namesItsColor()
{
    QFETCH(int, color);
    QFETCH(QString, name);
    Button button;
    button.setColor(Button::Green);
    button.show();
    RepaintCounter repaints(button);

    button.setColor(Button::Color(color));

    QCOMPARE(int(button.color()), color);
    QCOMPARE(styleProperty(button, "button-color"), name);
    QCOMPARE(styleProperty(button, "button-checked-color"), QStringLiteral("orange"));
    QCOMPARE(repaints.taken(), 1);
}

void tst_Button::namesItsCheckedColor_data()
{
    QTest::addColumn<int>("color");
    QTest::addColumn<QString>("name");
    QTest::addColumn<QString>("checkedName");

    const QString grey = QStringLiteral("grey");
    const QString green = QStringLiteral("green");
    const QString orange = QStringLiteral("orange");
    QTest::newRow("red") << 0 << QStringLiteral("red") << green;
    QTest::newRow("grey") << 1 << grey << grey;
    QTest::newRow("dark grey") << 2 << grey << QStringLiteral("dark-grey");
    QTest::newRow("green") << 3 << grey << green;
    QTest::newRow("orange") << 4 << grey << orange;
    QTest::newRow("one too many") << 5 << grey << orange;
    QTest::newRow("largest") << maxInt << grey << orange;
    QTest::newRow("negative") << -1 << grey << orange;
}

void tst_Button::namesItsCheckedColor()
{
    QFETCH(int, color);
    QFETCH(QString, name);
    QFETCH(QString, checkedName);
    Button button;
    button.setColor(Button::Grey);
    button.setCheckedColor(Button::Green);

    button.setCheckedColor(Button::Color(color));

    QCOMPARE(int(button.checkedColor()), color);
    QCOMPARE(styleProperty(button, "button-color"), name);
    QCOMPARE(styleProperty(button, "button-checked-color"), checkedName);
}

void tst_Button::turnsRedItselfWhenCheckedRed()
{
    Button button;
    button.setColor(Button::DarkGrey);

    button.setCheckedColor(Button::Red);

    QCOMPARE(styleProperty(button, "button-color"), QStringLiteral("red"));
    QCOMPARE(styleProperty(button, "button-checked-color"), QStringLiteral("orange"));
    QCOMPARE(button.color(), Button::DarkGrey);
}

void tst_Button::reportsAClickWithItsText_data()
{
    QTest::addColumn<bool>("checkable");
    QTest::addColumn<QStringList>("signalOrder");

    QTest::newRow("plain") << false
                           << QStringList({ QStringLiteral("pressed()"),
                                            QStringLiteral("released()"),
                                            QStringLiteral("clicked(false, \"Start\")"),
                                            QStringLiteral("clicked(false)") });
    QTest::newRow("checkable") << true
                               << QStringList({ QStringLiteral("pressed()"),
                                                QStringLiteral("toggled(true)"),
                                                QStringLiteral("released()"),
                                                QStringLiteral("clicked(true, \"Start\")"),
                                                QStringLiteral("clicked(true)") });
}

void tst_Button::reportsAClickWithItsText()
{
    QFETCH(bool, checkable);
    QFETCH(QStringList, signalOrder);
    Button button(QStringLiteral("Start"));
    button.setCheckable(checkable);
    SignalRecorder recorder(&button);

    QTest::mouseClick(&button, Qt::LeftButton);

    QCOMPARE(recorder.taken(), signalOrder);
}

void tst_Button::reportsTheTextOfTheMoment()
{
    Button button(QStringLiteral("Start"));
    SignalRecorder recorder(&button, QString(), &QPushButton::staticMetaObject);
    button.setText(QStringLiteral("Stop"));

    button.click();
    button.emitClicked(true);

    QCOMPARE(recorder.taken(), QStringList({ QStringLiteral("clicked(false, \"Stop\")"),
                                             QStringLiteral("clicked(true, \"Stop\")") }));
}

void tst_Button::obeysTheKeys_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<bool>("emission");
    QTest::addColumn<int>("key");
    QTest::addColumn<bool>("accepted");
    QTest::addColumn<int>("clicks");

    const int space = Qt::Key_Space;
    const int select = Qt::Key_Select;
    const int letter = Qt::Key_A;
    QTest::newRow("space") << true << false << space << true << 1;
    QTest::newRow("select") << true << false << select << true << 1;
    QTest::newRow("a letter") << true << false << letter << false << 0;
    QTest::newRow("space on emission") << true << true << space << false << 0;
    QTest::newRow("select on emission") << true << true << select << true << 1;
    QTest::newRow("a letter on emission") << true << true << letter << false << 0;
    QTest::newRow("space when disabled") << false << false << space << false << 0;
    QTest::newRow("select when disabled") << false << true << select << false << 0;
}

void tst_Button::obeysTheKeys()
{
    QFETCH(bool, enabled);
    QFETCH(bool, emission);
    QFETCH(int, key);
    QFETCH(bool, accepted);
    QFETCH(int, clicks);
    OpenButton button(QStringLiteral("Emission"));
    button.setEmissionButtonStatus(emission);
    button.setEnabled(enabled);
    SignalRecorder recorder(&button, QString(), &QPushButton::staticMetaObject);

    QCOMPARE(button.acceptsKey(key), accepted);
    QCOMPARE(recorder.taken().size(), clicks);
}

void tst_Button::hasAShortcutForTheEmission()
{
    Button button(QStringLiteral("Emission"));

    button.setEmissionButtonStatus(true);
    QVERIFY(button.isEmissionButton());
    QCOMPARE(button.shortcut(), QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_E));

    button.setEmissionButtonStatus(false);
    QVERIFY(!button.isEmissionButton());
    QVERIFY(button.shortcut().isEmpty());
}

void tst_Button::pressesItselfByTheShortcut()
{
    QWidget window;
    Button button(QStringLiteral("Emission"), &window);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));
    QStringList clicks;
    connect(&button, &Button::clicked, this, [&](bool, QString text) { clicks << text; });
    const auto pressShortcut = [&window] {
        QTest::keyClick(window.windowHandle(), Qt::Key_E, Qt::ControlModifier | Qt::ShiftModifier);
    };

    pressShortcut();
    QVERIFY(!button.isDown());

    button.setEmissionButtonStatus(true);
    pressShortcut();
    QTRY_COMPARE(clicks, QStringList(QStringLiteral("Emission"))); // a moment later

    button.setEnabled(false);
    pressShortcut();
    QVERIFY(!button.isDown());
    QCOMPARE(clicks.size(), 1);
}

void tst_Button::explainsItself_data()
{
    QTest::addColumn<bool>("emission");
    QTest::addColumn<QString>("toolTip");
    QTest::addColumn<QString>("shown");

    const QString own = QStringLiteral("Toggle Emission");
    QTest::newRow("a plain button") << false << own << own;
    QTest::newRow("emission, without a tool tip") << true << QString() << span;
    QTest::newRow("emission, with a tool tip")
        << true << own << own + QStringLiteral("<br>") + span;
    QTest::newRow("emission, with a place marker in the tool tip")
        << true << QStringLiteral("%1 of %2") << QStringLiteral("%1 of %2<br>") + span;
}

void tst_Button::explainsItself()
{
    QFETCH(bool, emission);
    QFETCH(QString, toolTip);
    QFETCH(QString, shown);
    Button button(QStringLiteral("Emission"));
    button.setEmissionButtonStatus(emission);
    button.setToolTip(toolTip);
    button.show();
    QHelpEvent event(QEvent::ToolTip, QPoint(10, 10), button.mapToGlobal(QPoint(10, 10)));

    QVERIFY(QApplication::sendEvent(&button, &event));

    QCOMPARE(QToolTip::text(), shown);
    QVERIFY(event.isAccepted());
    QToolTip::hideText();
    QTRY_VERIFY(!QToolTip::isVisible());
}

void tst_Button::fillsItselfWithAPicture_data()
{
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QSize>("icon");

    QTest::newRow("square") << QSize(40, 40) << QSize(36, 36);
    QTest::newRow("wide") << QSize(120, 30) << QSize(116, 26);
    QTest::newRow("smaller than its rim") << QSize(3, 0) << QSize(0, 0);
}

void tst_Button::fillsItselfWithAPicture()
{
    QFETCH(QSize, size);
    QFETCH(QSize, icon);
    Button button;
    button.setSize(size.width(), size.height());
    QPixmap picture(200, 200);
    picture.fill(QColor(0x12, 0x34, 0x56));

    button.setBackgroundImage(picture);

    QCOMPARE(button.iconSize(), icon);
    QVERIFY(!button.icon().isNull());
    button.show();
    const QImage image = button.grab().toImage();
    if (!icon.isEmpty())
        QCOMPARE(image.pixel(size.width() / 2, size.height() / 2), 0xFF123456);
}

void tst_Button::wearsTheColorsOfTheSheet_data()
{
    QTest::addColumn<int>("color");
    QTest::addColumn<int>("checkedColor"); ///< of a checked button; -1 for none
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QRgb>("ground");

    QTest::newRow("red") << 0 << -1 << true << 0xFF87212E;
    QTest::newRow("grey") << 1 << -1 << true << 0xFFC6C6C6;
    QTest::newRow("dark grey") << 2 << -1 << true << 0xFF555555;
    QTest::newRow("green") << 3 << -1 << true << 0xFFABC217;
    QTest::newRow("orange") << 4 << -1 << true << 0xFFED6E00;
    QTest::newRow("red, disabled") << 0 << -1 << false << 0xFF895A60;
    QTest::newRow("green, disabled") << 3 << -1 << false << 0xFFDDDDDD;
    QTest::newRow("orange, disabled") << 4 << -1 << false << 0xFFDDDDDD;
    QTest::newRow("checked grey") << 0 << 1 << true << 0xFFC6C6C6;
    QTest::newRow("checked dark grey") << 0 << 2 << true << 0xFF555555;
    QTest::newRow("checked green") << 0 << 3 << true << 0xFFABC217;
    QTest::newRow("checked orange") << 0 << 4 << true << 0xFFED6E00;
    QTest::newRow("checked red keeps the orange") << 2 << 0 << true << 0xFFED6E00;
}

void tst_Button::wearsTheColorsOfTheSheet()
{
    QFETCH(int, color);
    QFETCH(int, checkedColor);
    QFETCH(bool, enabled);
    QFETCH(QRgb, ground);
    QWidget window;
    window.setStyleSheet(Pelorin::getApplicationStylesheet());
    Button button(&window);
    button.setColor(Button::Color(color));
    if (checkedColor >= 0) {
        button.setCheckedColor(Button::Color(checkedColor));
        button.setCheckable(true);
        button.setChecked(true);
    }
    button.setEnabled(enabled);

    window.show();

    QCOMPARE(button.grab().toImage().pixel(48, 28), ground);
}

PELORIN_TEST_MAIN(tst_Button)
#include "tst_button.moc"
