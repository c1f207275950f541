#include "Pelorin/controls/LineEditPowerNG.h"
#include "Pelorin/shell/TavrinMainWindow.h"
#include "Pelorin/sliders/ScaleSliderNG.h"
#include "tests/controls/NumberField.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QTimer>
#include <QToolButton>

/// What the power field has of its own, and that each road through what it shares ends in its own
/// signals; the rest is tested in its twin.
class tst_LineEditPowerNG : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsLikeItsTwin();
    void onlyRemembersThePowerType_data();
    void onlyRemembersThePowerType();
    void reportsWithItsOwnSignals();
    void fallsBackAfterTheTimeout();
    void warnsUnderItsOwnName();
    void opensItsPopup();
    void followsTheMainWindow();
    void takesItsSettings();
};

void tst_LineEditPowerNG::declaresItsInterface()
{
    const QMetaObject &meta = LineEditPowerNG::staticMetaObject;

    QCOMPARE(meta.className(), "LineEditPowerNG");
    QCOMPARE(meta.superClass(), &QLineEdit::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal),
             list("valueChanging(double)", "valueChanged(double)"));
    QStringList slotOrder = numberFieldSlots();
    const int last = slotOrder.indexOf(QStringLiteral("setIndicatorIcon(QPixmap)"));
    slotOrder.insert(last + 1, QStringLiteral("setBasePowerType(Converter::ePwrType)"));
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), slotOrder);
    QVERIFY(meta.indexOfSlot("setRange(double,double)") > 0);
    QVERIFY(meta.indexOfSlot("setIntegerDigits(int)") > 0);
}

void tst_LineEditPowerNG::startsLikeItsTwin()
{
    const LineEditPowerNG edit(nullptr);

    QCOMPARE(edit.text(), QStringLiteral("100.00"));
    QCOMPARE(edit.value(), 100.0);
    QCOMPARE(edit.minimum(), 100.0);
    QCOMPARE(edit.maximum(), 2000.0);
    QCOMPARE(edit.valuePrecision(), 2);
    QCOMPARE(edit.integerDigits(), 4);
    QCOMPARE(edit.findChild<QTimer *>()->interval(), 3000);
    QCOMPARE(edit.property("type"), QVariant(QStringLiteral("label")));
}

void tst_LineEditPowerNG::onlyRemembersThePowerType_data()
{
    QTest::addColumn<int>("type");

    for (int type = Converter::ePwrW1; type <= Converter::ePwrNW3; ++type)
        QTest::addRow("power type %d", type) << type;
    QTest::newRow("one too many") << 12;
    QTest::newRow("negative") << -1;
}

void tst_LineEditPowerNG::onlyRemembersThePowerType()
{
    QFETCH(int, type);
    LineEditPowerNG edit(nullptr);
    edit.setValue(123.456);
    SignalRecorder recorder(&edit);

    edit.setBasePowerType(Converter::ePwrType(type));

    QCOMPARE(edit.text(), QStringLiteral("123.46"));
    QCOMPARE(edit.value(), 123.456);
    QCOMPARE(edit.minimum(), 100.0);
    QCOMPARE(edit.maximum(), 2000.0);
    QCOMPARE(edit.valuePrecision(), 2);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_LineEditPowerNG::reportsWithItsOwnSignals()
{
    LineEditPowerNG edit(nullptr);
    edit.setEditTimeout(600000);
    SignalRecorder recorder(&edit, QString(), &QLineEdit::staticMetaObject);
    edit.selectAll();

    expectMessage(QtDebugMsg, QStringLiteral("LineEditPowerNG::textEdited-in \"7\""));
    QTest::keyClick(&edit, Qt::Key_7);
    expectMessage(QtDebugMsg, QStringLiteral("LineEditPowerNG::textEdited-in \"7.\""));
    QTest::keyClick(&edit, Qt::Key_Comma);
    expectMessage(QtDebugMsg, QStringLiteral("LineEditPowerNG::textEdited-in \"7.1\""));
    QTest::keyClick(&edit, Qt::Key_1);
    QTest::keyClick(&edit, Qt::Key_Return);
    QTest::keyClick(&edit, Qt::Key_Up);
    edit.changeValue(250.004);

    QCOMPARE(recorder.taken(),
             QStringList(
                 { QStringLiteral("valueChanging(100)"), QStringLiteral("valueChanging(100)"),
                   QStringLiteral("valueChanging(100)"), QStringLiteral("valueChanging(100.01)"),
                   QStringLiteral("valueChanged(100.01)"), QStringLiteral("valueChanged(250)") }));
    QCOMPARE(edit.text(), QStringLiteral("100.01")); // the step has begun an edit
}

void tst_LineEditPowerNG::fallsBackAfterTheTimeout()
{
    LineEditPowerNG edit(nullptr);
    SignalRecorder recorder(&edit, QString(), &QLineEdit::staticMetaObject);
    edit.setEditTimeout(1);
    QTest::keyClick(&edit, Qt::Key_Escape);

    QTRY_COMPARE(recorder.entries(), QStringList(QStringLiteral("valueChanging(100)")));

    QCOMPARE(edit.selectedText(), QStringLiteral("100.00"));
}

void tst_LineEditPowerNG::warnsUnderItsOwnName()
{
    LineEditPowerNG edit(nullptr);

    expectMessage(QtWarningMsg, QStringLiteral("LineEditPowerNG::setRange - min: 10 max: 5"));
    edit.setRange(10.0, 5.0);

    QCOMPARE(edit.value(), 10.0);
}

void tst_LineEditPowerNG::opensItsPopup()
{
    LineEditPowerNG edit(nullptr);
    SignalRecorder recorder(&edit, QString(), &QLineEdit::staticMetaObject);
    edit.setGeometry(300, 200, 200, 30);
    edit.popUpSliderEnable(true, true);
    edit.show();
    auto *slider = edit.findChild<ScaleSliderNG *>();

    QTest::mouseClick(edit.findChild<QToolButton *>(), Qt::LeftButton);
    QVERIFY(slider->isVisible());
    QCOMPARE(slider->pos(), QPoint(200, 232));

    expectMessage(QtDebugMsg, QStringLiteral("priPopupSliderValueChanging 500"));
    expectMessage(QtDebugMsg, QStringLiteral("priPopupSliderValueChanged 500"));
    slider->changeValue0(500.0);
    QCOMPARE(recorder.taken(), QStringList({ QStringLiteral("valueChanging(500)"),
                                             QStringLiteral("valueChanged(500)") }));
    edit.popUpSliderHide();
    QVERIFY(!slider->isVisible());
}

void tst_LineEditPowerNG::followsTheMainWindow()
{
    TavrinMainWindow window(nullptr);
    qApp->setProperty("APPLICATIONWINDOWPTR", QVariant::fromValue(&window));
    LineEditPowerNG edit(nullptr);
    qApp->setProperty("APPLICATIONWINDOWPTR", QVariant());
    auto *slider = edit.findChild<ScaleSliderNG *>();

    slider->show();
    Q_EMIT window.sigMainWindowMoved(QPoint(), QPoint(5, 5));
    QVERIFY(!slider->isVisible());
    slider->show();
    Q_EMIT window.sigMainWindowResized(QRect(5, 5, 100, 100));

    QVERIFY(!slider->isVisible());
}

void tst_LineEditPowerNG::takesItsSettings()
{
    LineEditPowerNG edit(nullptr);

    edit.setValuePrecision(1);
    edit.setIntegerDigits(6, true);
    edit.setDisabledContent(QStringLiteral("---"));
    edit.enableInfinity(true);
    edit.setValue(qInf());
    QCOMPARE(edit.text(), QString(QChar(0x221E)));
    edit.enableEditTimeout(false);
    QTest::keyClick(&edit, Qt::Key_Escape);
    QVERIFY(!edit.findChild<QTimer *>()->isActive());
    QPixmap lamp(16, 16);
    lamp.fill(Qt::green);
    edit.setIndicatorIcon(lamp);
    edit.setEnabled(false);

    QCOMPARE(edit.valuePrecision(), 1);
    QCOMPARE(edit.integerDigits(), 6);
    QCOMPARE(edit.minimumWidth(), edit.maximumWidth());
    QCOMPARE(edit.actions().size(), 1);
    QCOMPARE(edit.text(), QStringLiteral("---"));
}

PELORIN_TEST_MAIN(tst_LineEditPowerNG)
#include "tst_lineeditpowerng.moc"
