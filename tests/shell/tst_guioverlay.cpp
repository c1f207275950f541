#include "Pelorin/shell/GUIOverlay.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/TestCase.h"

#include <QFontMetrics>
#include <QImage>
#include <QPushButton>
#include <QVBoxLayout>

namespace {

constexpr QRgb ink = 0xFF555555;
// White under 128 parts of 255 of grey 100, and that under 100 parts of white.
constexpr int dimmed = 177;
constexpr int paleBox = 208;

/// A white page of 700 x 301 with an overlay.
struct Page
{
    QWidget widget;
    GUIOverlay *overlay;

    Page()
        : overlay(new GUIOverlay(&widget))
    {
        QPalette palette;
        palette.setColor(QPalette::Window, Qt::white);
        widget.setPalette(palette);
        widget.setAutoFillBackground(true);
        widget.resize(700, 301);
        widget.show();
    }

    QImage picture() { return widget.grab().toImage(); }
};

bool isGrey(QRgb pixel, int level)
{
    return qAbs(qRed(pixel) - level) <= 1 && qAbs(qGreen(pixel) - level) <= 1
           && qAbs(qBlue(pixel) - level) <= 1;
}

/// The box around \a message in the middle of 700 x 301.
QRect boxAround(const QString &message)
{
    const QFontMetrics metrics(QFont(QStringLiteral("Calibri"), 48));
    const QRect text = metrics.boundingRect(message);
    const int width = text.width() + 40;
    const int height = text.height() + 40;
    return QRect(699 / 2 - width / 2, 300 / 2 - height / 2, width, height);
}

/// Remembers whose events it has seen.
class WatchfulOverlay : public GUIOverlay
{
public:
    using GUIOverlay::GUIOverlay;
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        seen << watched;
        return GUIOverlay::eventFilter(watched, event);
    }
    QObjectList seen;
};

} // namespace

class tst_GUIOverlay : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAQWidget();
    void startsWithTheDisabledMessageAlone();
    void choosesItsMessage_data();
    void choosesItsMessage();
    void paintsTheBoxInTheMiddle();
    void repaintsForANewMessage();
    void followsTheSizeOfItsParent();
    void staysOnTop();
    void letsTheMouseThrough();
    void swallowsNoEvent();
    void movesToAnotherParent();
    void watchesItsParentAlone();
    void showsNothingWithoutAParent();
};

void tst_GUIOverlay::isAQWidget()
{
    QCOMPARE(GUIOverlay::staticMetaObject.className(), "GUIOverlay");
    QCOMPARE(GUIOverlay::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    const QMetaObject &meta = GUIOverlay::staticMetaObject;
    QCOMPARE(meta.method(meta.methodOffset()).methodSignature(), "setDisabledMessage(QString)");
    QCOMPARE(meta.method(meta.methodOffset() + 1).methodSignature(), "setOverlayMessage(QString)");
}

void tst_GUIOverlay::startsWithTheDisabledMessageAlone()
{
    QWidget parent;
    const GUIOverlay overlay(&parent);

    QCOMPARE(overlay.disabledMessage(), QStringLiteral("Unavailable"));
    QCOMPARE(overlay.overlayMessage(), QString());
    QVERIFY(overlay.testAttribute(Qt::WA_TranslucentBackground));
    QVERIFY(overlay.testAttribute(Qt::WA_TransparentForMouseEvents));
}

void tst_GUIOverlay::choosesItsMessage_data()
{
    QTest::addColumn<bool>("enabled");
    QTest::addColumn<QString>("disabledMessage");
    QTest::addColumn<QString>("overlayMessage");
    QTest::addColumn<QString>("shown");

    const QString none;
    const QString unavailable = QStringLiteral("Unavailable");
    const QString warmUp = QStringLiteral("Warming up");
    QTest::newRow("enabled") << true << unavailable << none << none;
    QTest::newRow("disabled") << false << unavailable << none << unavailable;
    QTest::newRow("disabled, own text")
        << false << QStringLiteral("Away") << none << QStringLiteral("Away");
    QTest::newRow("enabled, with a message") << true << unavailable << warmUp << warmUp;
    QTest::newRow("disabled, with a message") << false << unavailable << warmUp << warmUp;
}

void tst_GUIOverlay::choosesItsMessage()
{
    QFETCH(bool, enabled);
    QFETCH(QString, disabledMessage);
    QFETCH(QString, overlayMessage);
    QFETCH(QString, shown);
    Page page;

    page.widget.setEnabled(enabled);
    page.overlay->setDisabledMessage(disabledMessage);
    page.overlay->setOverlayMessage(overlayMessage);

    QCOMPARE(page.overlay->disabledMessage(), disabledMessage);
    QCOMPARE(page.overlay->overlayMessage(), overlayMessage);
    const PaintRecorder paper(*page.overlay);
    QCOMPARE(paper.textList(), shown.isEmpty() ? QStringList() : QStringList(shown));
    const int expected = shown.isEmpty() ? 255 : dimmed;
    const QImage image = page.picture();
    for (const QPoint corner :
         { QPoint(0, 0), QPoint(699, 0), QPoint(0, 300), QPoint(699, 300), QPoint(350, 5) })
        QVERIFY(isGrey(image.pixel(corner), expected));
}

void tst_GUIOverlay::paintsTheBoxInTheMiddle()
{
    const QString message = QStringLiteral("Unavailable");
    Page page;
    page.widget.setEnabled(false);

    const QImage image = page.picture();

    const QRect box = boxAround(message);
    QCOMPARE(image.pixel(box.left(), box.center().y()), ink);
    QCOMPARE(image.pixel(box.center().x(), box.top()), ink);
    QVERIFY(isGrey(image.pixel(box.left() - 1, box.center().y()), dimmed));
    QVERIFY(isGrey(image.pixel(box.center().x(), box.top() - 1), dimmed));
    QVERIFY(isGrey(image.pixel(box.left() + 1, box.center().y()), paleBox));
    QVERIFY(isGrey(image.pixel(box.center().x(), box.top() + 1), paleBox));
    // The outline ends one pixel beyond the rectangle, and its corners are cut round.
    QCOMPARE(image.pixel(box.left() + box.width(), box.center().y()), ink);
    QCOMPARE(image.pixel(box.center().x(), box.top() + box.height()), ink);
    QVERIFY(isGrey(image.pixel(box.left() + 5, box.top() + 5), dimmed));
    QVERIFY(isGrey(image.pixel(box.left() + 10, box.top() + 10), paleBox));
    QCOMPARE(image.pixel(box.left() + 26, box.top()), ink);
    QVERIFY(isGrey(image.pixel(box.left() + 10, box.top()), dimmed));

    const PaintRecorder::Text text = PaintRecorder(*page.overlay).find(message);
    QCOMPARE(text.color.rgb(), ink);
    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pointSize(), 48);
    QVERIFY(box.contains(text.baseline.toPoint()));
}

void tst_GUIOverlay::repaintsForANewMessage()
{
    Page page;
    QVERIFY(isGrey(page.picture().pixel(5, 5), 255));

    page.overlay->setOverlayMessage(QStringLiteral("Aligning"));
    QVERIFY(isGrey(page.picture().pixel(5, 5), dimmed));

    page.overlay->setOverlayMessage(QString());
    QVERIFY(isGrey(page.picture().pixel(5, 5), 255));
}

void tst_GUIOverlay::followsTheSizeOfItsParent()
{
    Page page;
    QCOMPARE(page.overlay->geometry(), QRect(0, 0, 700, 301));

    page.widget.resize(320, 90);

    QCOMPARE(page.overlay->geometry(), QRect(0, 0, 320, 90));
}

void tst_GUIOverlay::staysOnTop()
{
    Page page;
    page.overlay->setOverlayMessage(QStringLiteral("Aligning"));

    auto *late = new QWidget(&page.widget);
    late->setGeometry(0, 0, 50, 50);
    late->setAutoFillBackground(true);
    late->show();

    QCOMPARE(page.widget.children().last(), page.overlay);
    QVERIFY(isGrey(page.picture().pixel(20, 20), dimmed));
}

void tst_GUIOverlay::letsTheMouseThrough()
{
    Page page;
    auto *button = new QPushButton(&page.widget);
    button->setGeometry(100, 100, 80, 40);
    button->show();
    page.overlay->setOverlayMessage(QStringLiteral("Aligning"));
    int clicks = 0;
    connect(button, &QPushButton::clicked, this, [&clicks] { ++clicks; });

    QCOMPARE(page.widget.childAt(120, 120), button);
    QTest::mouseClick(page.widget.windowHandle(), Qt::LeftButton, Qt::NoModifier, QPoint(120, 120));

    QCOMPARE(clicks, 1);
}

void tst_GUIOverlay::swallowsNoEvent()
{
    QWidget parent;
    GUIOverlay overlay(&parent);
    QResizeEvent resize(QSize(30, 40), QSize(10, 10));
    QChildEvent added(QEvent::ChildAdded, &overlay);
    QEvent other(QEvent::WindowActivate);

    QVERIFY(!overlay.eventFilter(&parent, &resize));
    QVERIFY(!overlay.eventFilter(&parent, &added));
    QVERIFY(!overlay.eventFilter(&parent, &other));
    QCOMPARE(overlay.size(), QSize(30, 40));

    QWidget stranger;
    QResizeEvent elsewhere(QSize(7, 8), QSize(10, 10));
    QVERIFY(!overlay.eventFilter(&stranger, &elsewhere));
    QCOMPARE(overlay.size(), QSize(30, 40));
}

void tst_GUIOverlay::movesToAnotherParent()
{
    Page from;
    QWidget to;
    to.resize(200, 200);
    auto *content = new QWidget(&to);
    to.show();
    GUIOverlay *overlay = from.overlay;

    overlay->setParent(&to);
    auto *late = new QWidget(&to);
    QCOMPARE(to.children(), QObjectList({ content, late, overlay }));

    to.resize(250, 260);
    QCOMPARE(overlay->size(), QSize(250, 260));

    from.widget.resize(100, 100);
    QCOMPARE(overlay->size(), QSize(250, 260));
}

void tst_GUIOverlay::watchesItsParentAlone()
{
    QWidget from;
    QWidget to;
    WatchfulOverlay overlay(&from);
    from.show(); // Qt announces the change only of a widget that was shown
    to.show();

    overlay.setParent(&to);
    overlay.show();
    overlay.seen.clear();
    from.setToolTip(QStringLiteral("left behind"));
    QCOMPARE(overlay.seen, QObjectList());
    to.setToolTip(QStringLiteral("watched"));
    QCOMPARE(overlay.seen, QObjectList({ &to }));

    overlay.setParent(nullptr);
    overlay.seen.clear();
    to.setToolTip(QStringLiteral("left behind"));
    QCOMPARE(overlay.seen, QObjectList());
}

void tst_GUIOverlay::showsNothingWithoutAParent()
{
    GUIOverlay overlay;
    overlay.setDisabledMessage(QStringLiteral("Away"));
    overlay.setOverlayMessage(QStringLiteral("Aligning"));
    overlay.setEnabled(false);
    overlay.resize(300, 200);

    QCOMPARE(overlay.grab().toImage().pixel(10, 10), qRgba(0, 0, 0, 0));
    QCOMPARE(PaintRecorder(overlay).textList(), QStringList());

    QWidget parent;
    overlay.setParent(&parent);
    parent.resize(300, 200);
    QCOMPARE(PaintRecorder(overlay).textList(), QStringList(QStringLiteral("Aligning")));
    overlay.setParent(nullptr);
    QCOMPARE(PaintRecorder(overlay).textList(), QStringList());
}

PELORIN_TEST_MAIN(tst_GUIOverlay)
#include "tst_guioverlay.moc"
