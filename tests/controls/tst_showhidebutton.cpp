#include "Pelorin/controls/ShowHideButton.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QImage>

namespace {

constexpr QRgb grey = 0xFFC5C6C6;
constexpr QRgb ground = 0xFF00FF00;

/// A button on the ground of a style sheet.
class OnGround : public ShowHideButton
{
public:
    explicit OnGround(QSize size)
    {
        setStyleSheet(QStringLiteral("ShowHideButton { background-color: #00FF00; }"));
        resize(size);
        show();
    }
    QImage picture() { return grab().toImage(); }
};

} // namespace

Q_DECLARE_METATYPE(QList<QPoint>)

class tst_ShowHideButton : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void isSmallAndSquare();
    void pointsToItsState_data();
    void pointsToItsState();
    void repaintsOnlyForAChange();
    void takesTheMouseAsAnyButton();
};

void tst_ShowHideButton::declaresItsInterface()
{
    const QMetaObject &meta = ShowHideButton::staticMetaObject;

    QCOMPARE(meta.className(), "ShowHideButton");
    QCOMPARE(meta.superClass(), &QPushButton::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList());
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot),
             QStringList(QStringLiteral("setShowState(bool)")));
}

void tst_ShowHideButton::isSmallAndSquare()
{
    const ShowHideButton button;

    QCOMPARE(button.minimumSize(), QSize(16, 16));
    QCOMPARE(button.sizeHint(), QSize(32, 32));
    QCOMPARE(button.heightForWidth(77), 77);
}

void tst_ShowHideButton::pointsToItsState_data()
{
    QTest::addColumn<bool>("shown");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QList<QPoint>>("inside");
    QTest::addColumn<QList<QPoint>>("outside");

    using Points = QList<QPoint>;
    // 32 wide: a side of 24 around 16, and 10.4 up and down of 16.
    const Points base{ { 6, 25 }, { 16, 25 }, { 26, 25 }, { 16, 9 } };
    const Points beyond{
        { 0, 0 }, { 16, 3 }, { 6, 9 }, { 26, 9 }, { 2, 26 }, { 30, 26 }, { 16, 29 }
    };
    QTest::newRow("up while shown") << true << QSize(32, 32) << base << beyond;
    QTest::newRow("up at the top of a high button") << true << QSize(32, 90) << base << beyond;
    QTest::newRow("down while hidden")
        << false << QSize(32, 32) << Points({ { 6, 6 }, { 16, 6 }, { 26, 6 }, { 16, 22 } })
        << Points({ { 16, 2 }, { 6, 22 }, { 26, 22 }, { 16, 29 }, { 2, 6 }, { 30, 6 } });
    // 65 wide: a side of 57 around 32, and 24.7 up and down of 32.
    QTest::newRow("up and large") << true << QSize(65, 65)
                                  << Points({ { 32, 11 }, { 7, 55 }, { 57, 55 } })
                                  << Points({ { 32, 4 }, { 2, 56 }, { 62, 56 }, { 32, 60 } });
}

void tst_ShowHideButton::pointsToItsState()
{
    QFETCH(bool, shown);
    QFETCH(QSize, size);
    QFETCH(QList<QPoint>, inside);
    QFETCH(QList<QPoint>, outside);
    OnGround button(size);

    button.setShowState(shown);

    const QImage image = button.picture();
    for (const QPoint point : inside)
        QCOMPARE(image.pixel(point), grey);
    for (const QPoint point : outside)
        QCOMPARE(image.pixel(point), ground);
}

void tst_ShowHideButton::repaintsOnlyForAChange()
{
    OnGround button(QSize(32, 32));
    SignalRecorder recorder(&button);
    RepaintCounter repaints(button);

    button.setShowState(true);
    QCOMPARE(repaints.taken(), 0);
    button.setShowState(false);
    QCOMPARE(repaints.taken(), 1);
    button.setShowState(false);
    QCOMPARE(repaints.taken(), 0);
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ShowHideButton::takesTheMouseAsAnyButton()
{
    OnGround button(QSize(32, 32));
    SignalRecorder recorder(&button);
    const QImage before = button.picture();

    QEvent enter(QEvent::Enter);
    QApplication::sendEvent(&button, &enter);
    QCOMPARE(button.picture(), before); // no look of its own under the mouse
    QTest::mouseClick(&button, Qt::LeftButton);
    QEvent leave(QEvent::Leave);
    QApplication::sendEvent(&button, &leave);

    QCOMPARE(recorder.taken(),
             QStringList({ QStringLiteral("pressed()"), QStringLiteral("released()"),
                           QStringLiteral("clicked(false)") }));
    QCOMPARE(button.picture(), before); // who reacts to the click sets the state
}

PELORIN_TEST_MAIN(tst_ShowHideButton)
#include "tst_showhidebutton.moc"
