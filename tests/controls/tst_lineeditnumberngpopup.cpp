#include "tests/controls/PopupField.h"
#include "tests/support/MouseHand.h"
#include "tests/support/TestCase.h"

#include <QAction>
#include <QMoveEvent>
#include <QResizeEvent>

namespace {

constexpr int popupWidth = 400;

} // namespace

class tst_LineEditNumberNGPopup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void buildsASliderInAWindowOfItsOwn();
    void buildsASmallFramedSliderWithoutLabels();
    void addsAndRemovesTheButton();
    void choosesTheScale_data();
    void choosesTheScale();
    void keepsTheHandleAtTheValueOnANewScale();
    void givesTheSliderItsRange_data();
    void givesTheSliderItsRange();
    void givesTheSliderItsValueInSilence();
    void opensAndClosesAtTheButton();
    void staysClosedWhileDisabled();
    void closesWhenTheUserDoesSomethingElse_data();
    void closesWhenTheUserDoesSomethingElse();
    void closesTheOpenPopupOnRequest();
    void standsCentredUnderTheField_data();
    void standsCentredUnderTheField();
    void followsTheField();
    void followsADrag();
    void commitsAtTheEndOfADrag();
    void leavesTheEditTimerAloneInADrag();
    void takesInfinityAtTheFarEnd();
};

void tst_LineEditNumberNGPopup::buildsASliderInAWindowOfItsOwn()
{
    LineEditNumberNG edit(nullptr);
    auto *slider = edit.findChild<ScaleSliderNG *>();

    QVERIFY(slider);
    QCOMPARE(slider->parent(), &edit);
    QCOMPARE(slider->orientation(), Qt::Horizontal);
    QCOMPARE(slider->scaleType(), ScaleSliderNG::ScaleSqrt);
    QCOMPARE(slider->sideMargins(), 5);
    QCOMPARE(slider->valuePrecision(), 2);
    QCOMPARE(slider->minimumWidth(), popupWidth);
    QCOMPARE(slider->maximumWidth(), popupWidth);
    QVERIFY(slider->isWindow() && slider->isHidden());
    QCOMPARE(slider->windowFlags() & ~Qt::WindowFlags(Qt::WindowFullscreenButtonHint),
             Qt::Tool | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus);
    QVERIFY(slider->testAttribute(Qt::WA_TranslucentBackground));
    QCOMPARE(slider->minimum(), 100.0);
    QCOMPARE(slider->maximum(), 2000.0);
    QCOMPARE(slider->value0(), 100.0);

    edit.setValuePrecision(3);
    QCOMPARE(slider->valuePrecision(), 3);
}

void tst_LineEditNumberNGPopup::buildsASmallFramedSliderWithoutLabels()
{
    LineEditNumberNG edit(nullptr);
    ScaleSliderNG alike(Qt::Horizontal, ScaleSliderNG::ScaleSqrt, nullptr);
    alike.setSliderSize(true, false, true);
    alike.setSideMargins(5);
    alike.setFixedWidth(popupWidth);
    alike.setAttribute(Qt::WA_TranslucentBackground);
    alike.setRange(100.0, 2000.0);
    alike.setValue0(500.0);

    edit.setValue(500.0);

    QCOMPARE(edit.findChild<ScaleSliderNG *>()->grab().toImage(), alike.grab().toImage());
}

void tst_LineEditNumberNGPopup::addsAndRemovesTheButton()
{
    PopupField field;
    field.edit.popUpSliderEnable(true, true); // one is enough

    QCOMPARE(field.edit.findChildren<QToolButton *>().size(), 1);
    QCOMPARE(field.edit.actions().size(), 1);
    const QAction *action = field.edit.actions().first();
    QVERIFY(action->isEnabled());
    QCOMPARE(action->text(), QString());
    const QSize size(16, 16);
    const QString path = QStringLiteral(":/Pelorin/images/images/SliderPopupButton%1.png");
    QCOMPARE(action->icon().pixmap(size, QIcon::Normal).toImage(),
             QPixmap(path.arg(QStringLiteral("16"))).toImage());
    QCOMPARE(action->icon().pixmap(size, QIcon::Active).toImage(),
             QPixmap(path.arg(QStringLiteral("Hover16"))).toImage());
    QVERIFY(field.button()->x() > field.edit.width() / 2);

    field.edit.popUpSliderEnable(false, false);
    QVERIFY(field.edit.actions().isEmpty());
}

void tst_LineEditNumberNGPopup::choosesTheScale_data()
{
    QTest::addColumn<bool>("logarithmic");
    QTest::addColumn<int>("type");

    QTest::newRow("logarithmic, which is a square root") << true << int(ScaleSliderNG::ScaleSqrt);
    QTest::newRow("linear") << false << int(ScaleSliderNG::ScaleLinear);
}

void tst_LineEditNumberNGPopup::choosesTheScale()
{
    QFETCH(bool, logarithmic);
    QFETCH(int, type);
    PopupField field;

    field.edit.popUpSliderEnable(true, logarithmic);
    QCOMPARE(int(field.slider()->scaleType()), type);

    field.edit.popUpSliderEnable(false, !logarithmic);
    QCOMPARE(int(field.slider()->scaleType()), type);
}

void tst_LineEditNumberNGPopup::keepsTheHandleAtTheValueOnANewScale()
{
    PopupField field(25.0);
    SignalRecorder slider(field.slider());
    MouseHand hand(*field.slider());
    const auto handleAt = [](double part) { return QPoint(5 + 9 + qRound(372 * part), 9); };

    // A quarter of the range is half of the travel on a scale of square roots.
    for (const bool logarithmic : { true, false }) {
        field.edit.popUpSliderEnable(true, logarithmic);
        QCOMPARE(slider.taken(), QStringList());
        hand.press(handleAt(logarithmic ? 0.5 : 0.25));
        hand.release(handleAt(logarithmic ? 0.5 : 0.25));
        QCOMPARE(slider.taken(), list("handleGrapped()"));
    }

    QCOMPARE(field.slider()->value0(), 25.0);
    QCOMPARE(field.recorder.taken(), QStringList());
}

void tst_LineEditNumberNGPopup::givesTheSliderItsRange_data()
{
    QTest::addColumn<bool>("infinity");
    QTest::addColumn<int>("decimals");
    QTest::addColumn<double>("maximum");

    QTest::newRow("without infinity") << false << 2 << 10.0;
    QTest::newRow("with infinity, two decimals") << true << 2 << 10.0 + 1.0 / 100.0;
    QTest::newRow("with infinity, one decimal") << true << 1 << 10.0 + 1.0 / 10.0;
    QTest::newRow("with infinity, no decimals") << true << 0 << 11.0;
    QTest::newRow("with infinity, less than none") << true << -2 << 11.0;
}

void tst_LineEditNumberNGPopup::givesTheSliderItsRange()
{
    QFETCH(bool, infinity);
    QFETCH(int, decimals);
    QFETCH(double, maximum);
    PopupField field;
    SignalRecorder slider(field.slider());
    field.edit.setValuePrecision(decimals);

    field.edit.setRange(1.0, 10.0);
    field.edit.enableInfinity(infinity);

    QCOMPARE(field.slider()->minimum(), 1.0);
    QCOMPARE(field.slider()->maximum(), maximum);
    QCOMPARE(slider.taken(), QStringList());
}

void tst_LineEditNumberNGPopup::givesTheSliderItsValueInSilence()
{
    PopupField field;
    SignalRecorder slider(field.slider());

    field.edit.setValue(25.0);
    QCOMPARE(field.slider()->value0(), 25.0);
    field.edit.changeValue(75.0);
    QCOMPARE(field.slider()->value0(), 75.0);
    field.edit.setRange(0.0, 200.0); // the slider would keep the place of its handle
    QCOMPARE(field.slider()->value0(), 75.0);
    field.edit.setRange(100.0, 200.0);
    QCOMPARE(field.slider()->value0(), 100.0);
    field.press(Qt::Key_Up);
    QCOMPARE(field.slider()->value0(), 200.0); // by hundreds, the cursor stands at the start

    QCOMPARE(slider.taken(), QStringList());
}

void tst_LineEditNumberNGPopup::opensAndClosesAtTheButton()
{
    PopupField field(40.0);

    field.clickButton();
    QVERIFY(field.isOpen());
    field.clickButton();
    QVERIFY(!field.isOpen());

    QCOMPARE(field.recorder.taken(), QStringList());
    QVERIFY(!field.isEditing());
}

void tst_LineEditNumberNGPopup::staysClosedWhileDisabled()
{
    PopupField field;
    field.edit.popUpSliderEnable(false, false);

    QVERIFY(QMetaObject::invokeMethod(&field.edit, "priPopupSliderVisibilityChange",
                                      Q_ARG(bool, false)));
    QVERIFY(!field.isOpen());

    field.slider()->show();
    field.edit.popUpSliderHide(); // only if enabled
    QVERIFY(field.isOpen());
    QMetaObject::invokeMethod(&field.edit, "priPopupSliderVisibilityChange", Q_ARG(bool, true));
    QVERIFY(!field.isOpen());
}

void tst_LineEditNumberNGPopup::closesWhenTheUserDoesSomethingElse_data()
{
    QTest::addColumn<int>("key"); // 0 for the loss of focus

    QTest::newRow("a digit") << int(Qt::Key_5);
    QTest::newRow("Escape") << int(Qt::Key_Escape);
    QTest::newRow("Return") << int(Qt::Key_Return);
    QTest::newRow("a step") << int(Qt::Key_Up);
    QTest::newRow("the loss of focus") << 0;
}

void tst_LineEditNumberNGPopup::closesWhenTheUserDoesSomethingElse()
{
    QFETCH(int, key);
    PopupField field;
    field.clickButton();
    QVERIFY(field.isOpen());

    if (key == 0)
        field.loseFocus();
    else
        field.press(Qt::Key(key));

    QVERIFY(!field.isOpen());
}

void tst_LineEditNumberNGPopup::closesTheOpenPopupOnRequest()
{
    PopupField field;
    field.clickButton();

    field.edit.popUpSliderHide();
    QVERIFY(!field.isOpen());
    field.edit.popUpSliderHide();

    QVERIFY(!field.isOpen());
}

void tst_LineEditNumberNGPopup::standsCentredUnderTheField_data()
{
    QTest::addColumn<QRect>("field");
    QTest::addColumn<QPoint>("popup");

    QTest::newRow("narrower than the popup") << QRect(300, 200, 200, 30) << QPoint(200, 232);
    QTest::newRow("odd width, truncated") << QRect(300, 200, 101, 25) << QPoint(150, 227);
    QTest::newRow("left of the screen, towards zero") << QRect(100, 50, 101, 25) << QPoint(-49, 77);
    QTest::newRow("wider than the popup") << QRect(10, 20, 500, 40) << QPoint(60, 62);
}

void tst_LineEditNumberNGPopup::standsCentredUnderTheField()
{
    QFETCH(QRect, field);
    QFETCH(QPoint, popup);
    PopupField shown;
    shown.edit.setGeometry(field);

    shown.clickButton();

    QCOMPARE(shown.slider()->pos(), popup);
}

void tst_LineEditNumberNGPopup::followsTheField()
{
    PopupField field;
    field.clickButton();
    QCOMPARE(field.slider()->pos(), QPoint(200, 232));

    field.edit.setGeometry(400, 250, 200, 30);
    QTRY_COMPARE(field.slider()->pos(), QPoint(300, 282));
    field.edit.setGeometry(400, 250, 300, 40);
    QTRY_COMPARE(field.slider()->pos(), QPoint(350, 292));
    QResizeEvent resized(QSize(300, 40), QSize(300, 40)); // each of the two events is enough
    field.slider()->move(0, 0);
    QApplication::sendEvent(&field.edit, &resized);
    QCOMPARE(field.slider()->pos(), QPoint(350, 292));
    QMoveEvent moved(QPoint(400, 250), QPoint(400, 250));
    field.slider()->move(0, 0);
    QApplication::sendEvent(&field.edit, &moved);
    QCOMPARE(field.slider()->pos(), QPoint(350, 292));

    field.clickButton();
    field.edit.setGeometry(100, 100, 300, 40);
    QTRY_COMPARE(field.edit.mapToGlobal(QPoint()), QPoint(100, 100));
    QCOMPARE(field.slider()->pos(), QPoint(350, 292)); // hidden, it stays
}

void tst_LineEditNumberNGPopup::followsADrag()
{
    PopupField field(40.0);

    expectMessage(QtDebugMsg, QStringLiteral("priPopupSliderValueChanging 12.5"));
    Q_EMIT field.slider()->valueChanging0(12.5);

    QCOMPARE(field.recorder.taken(), list("valueChanging(12.5)"));
    QCOMPARE(field.edit.text(), QStringLiteral("12.50"));
    QCOMPARE(field.edit.value(), 40.0);

    expectMessage(QtDebugMsg, QStringLiteral("priPopupSliderValueChanged 99"));
    Q_EMIT field.slider()->valueChanged0(99.0); // what counts is the value that was shown

    QCOMPARE(field.recorder.taken(), list("valueChanged(12.5)"));
    QCOMPARE(field.edit.value(), 12.5);
    QCOMPARE(field.edit.selectedText(), QStringLiteral("12.50"));
}

void tst_LineEditNumberNGPopup::commitsAtTheEndOfADrag()
{
    PopupField field(0.0);
    tolerateMessages(QtDebugMsg, QStringLiteral("priPopupSliderValueChang"));
    field.clickButton();
    MouseHand hand(*field.slider());
    const QPoint handle(5 + 10, field.slider()->height() / 2); // the margin, half a small handle

    hand.press(handle);
    hand.move(handle + QPoint(100, 0));

    const QStringList moving = field.recorder.taken();
    QCOMPARE(moving.size(), 1);
    QVERIFY(moving.first().startsWith(QLatin1String("valueChanging(")));
    QCOMPARE(field.edit.value(), 0.0);
    const double reached = field.edit.text().toDouble();
    QVERIFY(reached > 20.0 && reached < 35.0); // a hundred of somewhat less than 400 pixels

    field.edit.setValue(80.0); // not in editing: the device still has its way, but the hand too
    QCOMPARE(field.edit.text(), QStringLiteral("80.00"));
    field.recorder.taken();
    hand.move(handle + QPoint(101, 0));
    hand.release(handle + QPoint(101, 0));

    QCOMPARE(field.recorder.taken().size(), 2); // moving, moved
    QVERIFY(field.edit.value() > reached && field.edit.value() < 35.0);
    QVERIFY(field.isOpen());
}

void tst_LineEditNumberNGPopup::leavesTheEditTimerAloneInADrag()
{
    PopupField field(40.0);
    tolerateMessages(QtDebugMsg, QStringLiteral("priPopupSliderValueChang"));

    Q_EMIT field.slider()->valueChanging0(12.5);
    QVERIFY(!field.isEditing());

    field.press(Qt::Key_Escape);
    Q_EMIT field.slider()->valueChanging0(13.0);
    QVERIFY(field.isEditing());
    Q_EMIT field.slider()->valueChanged0(13.0);
    QVERIFY(!field.isEditing());
}

void tst_LineEditNumberNGPopup::takesInfinityAtTheFarEnd()
{
    PopupField field(5.0, 10.0);
    tolerateMessages(QtDebugMsg, QStringLiteral("priPopupSliderValueChang"));
    field.edit.enableInfinity(true);

    field.slider()->changeHandlePosition0(100000);

    QCOMPARE(field.recorder.taken(), list("valueChanging(inf)", "valueChanged(inf)"));
    QCOMPARE(field.edit.text(), infinitySign());
    QCOMPARE(field.slider()->value0(), 10.01);
}

PELORIN_TEST_MAIN(tst_LineEditNumberNGPopup)
#include "tst_lineeditnumberngpopup.moc"
