#include "Pelorin/controls/ShowHideButton.h"
#include "Pelorin/shell/ColHeader.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

QStringList one(const char *entry)
{
    return QStringList(QLatin1String(entry));
}

} // namespace

class tst_ColHeader : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsShownUnderTheCaptionModules();
    void keepsTheButtonAtTheRightEdge();
    void changesCaptionAndItsSheet();
    void reportsOnlyAChange();
    void followsItsButton();
    void tellsWhichHeaderWasAskedForAMenu();
};

void tst_ColHeader::startsShownUnderTheCaptionModules()
{
    const ColHeader header(nullptr);
    const auto *label = header.findChild<QLabel *>();

    QCOMPARE(header.text(), QStringLiteral("Modules"));
    QCOMPARE(header.textStyleSheet(),
             QStringLiteral("font: 87 14pt Arial Black; color: rgb(197, 198, 198);"));
    QCOMPARE(label->margin(), 2);
    QCOMPARE(header.layout()->contentsMargins(), QMargins());
    QCOMPARE(header.layout()->spacing(), 0);
    QVERIFY(header.autoFillBackground());
    for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled })
        QCOMPARE(header.palette().color(group, QPalette::Window).rgb(), 0xFFECECECu);
    QCOMPARE(header.contextMenuPolicy(), Qt::CustomContextMenu);
}

void tst_ColHeader::keepsTheButtonAtTheRightEdge()
{
    ColHeader header(nullptr);
    header.resize(400, 40);
    header.show();
    const auto *button = header.findChild<ShowHideButton *>();

    QCOMPARE(button->geometry().right(), header.rect().right());
    QCOMPARE(header.findChild<QLabel *>()->geometry().left(), 0);
}

void tst_ColHeader::changesCaptionAndItsSheet()
{
    ColHeader header(nullptr);

    header.setText(QStringLiteral("Channels"));
    header.setTextStyleSheet(QStringLiteral("color: red;"));

    QCOMPARE(header.text(), QStringLiteral("Channels"));
    QCOMPARE(header.findChild<QLabel *>()->text(), QStringLiteral("Channels"));
    QCOMPARE(header.textStyleSheet(), QStringLiteral("color: red;"));
    QCOMPARE(header.findChild<QLabel *>()->styleSheet(), QStringLiteral("color: red;"));
    QCOMPARE(header.styleSheet(), QString());
}

void tst_ColHeader::reportsOnlyAChange()
{
    ColHeader header(nullptr);
    SignalRecorder recorder(&header);

    header.setShowState(true);
    QCOMPARE(recorder.taken(), QStringList());
    header.setShowState(false);
    QCOMPARE(recorder.taken(), one("sigShowStateChanged(false)"));
    header.setShowState(false);
    QCOMPARE(recorder.taken(), QStringList());
    header.setShowState(true);
    QCOMPARE(recorder.taken(), one("sigShowStateChanged(true)"));
}

void tst_ColHeader::followsItsButton()
{
    ColHeader header(nullptr);
    header.resize(400, 40);
    header.show();
    auto *button = header.findChild<ShowHideButton *>();
    SignalRecorder recorder(&header);
    const QImage shown = button->grab().toImage();

    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(recorder.taken(), one("sigShowStateChanged(false)"));
    QVERIFY(button->grab().toImage() != shown);

    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(recorder.taken(), one("sigShowStateChanged(true)"));
    QCOMPARE(button->grab().toImage(), shown);
}

void tst_ColHeader::tellsWhichHeaderWasAskedForAMenu()
{
    ColHeader header(nullptr);
    QWidget *asked = nullptr;
    QPoint place;
    connect(&header, &ColHeader::sigCustomContextMenuRequested, this,
            [&asked, &place](QWidget *widget, QPoint pos) {
                asked = widget;
                place = pos;
            });
    QContextMenuEvent event(QContextMenuEvent::Mouse, QPoint(7, 9), QPoint(70, 90));

    QApplication::sendEvent(&header, &event);

    QCOMPARE(asked, &header);
    QCOMPARE(place, QPoint(7, 9));
}

PELORIN_TEST_MAIN(tst_ColHeader)
#include "tst_colheader.moc"
