#include "Pelorin/controls/Button.h"
#include "Pelorin/controls/LineEditNumber.h"
#include "Pelorin/spectral/Channel.h"
#include "Pelorin/spectral/ChannelGroup.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <QGridLayout>

namespace {

Channel *cellAt(const ChannelGroup &group, int row, int column)
{
    auto *grid = qobject_cast<QGridLayout *>(group.layout());
    QLayoutItem *const item = grid->itemAtPosition(row, column);
    return item ? qobject_cast<Channel *>(item->widget()) : nullptr;
}

/// Channel \a number by its place.
Channel *cellOf(const ChannelGroup &group, int number)
{
    return cellAt(group, number / 4, number % 4);
}

} // namespace

class tst_ChannelGroup : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresSignalsAndSlotsInOrder();
    void laysEightCellsOut();
    void forwardsReportsToTheirCell_data();
    void forwardsReportsToTheirCell();
    void writesTheFourthCellOfTheFirstRow();
    void reportsWhatACellReports_data();
    void reportsWhatACellReports();
    void ignoresOtherChannels_data();
    void ignoresOtherChannels();
};

void tst_ChannelGroup::declaresSignalsAndSlotsInOrder()
{
    const QMetaObject &meta = ChannelGroup::staticMetaObject;

    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);
    QCOMPARE(ownMethods(meta),
             list({ "enableChanged(int,bool)", "setClicked(int,bool)",
                    "channelChanged(int,double,int)", "setChannel(int,double,int)",
                    "enableChannel(int,bool)", "setChannelChecked(int,bool)",
                    "setChannelPower(int,int)", "setChannelWavelength(int,double)" }));
}

void tst_ChannelGroup::laysEightCellsOut()
{
    const ChannelGroup group;
    const auto *grid = qobject_cast<QGridLayout *>(group.layout());

    QCOMPARE(grid->contentsMargins(), QMargins());
    QCOMPARE(grid->spacing(), 15);
    QCOMPARE(grid->count(), 8);
    QCOMPARE(grid->rowCount(), 2);
    for (int i = 0; i < 8; ++i) {
        const Channel *const cell = cellOf(group, i);
        QVERIFY(cell);
        QCOMPARE(cell->findChild<Button *>()->text(), QString::number(i + 1));
    }
}

void tst_ChannelGroup::forwardsReportsToTheirCell_data()
{
    QTest::addColumn<int>("channel");

    for (int i = 0; i < 8; ++i)
        QTest::addRow("channel %d", i) << i;
}

void tst_ChannelGroup::forwardsReportsToTheirCell()
{
    QFETCH(int, channel);
    ChannelGroup group;
    SignalRecorder recorder(&group);

    group.setChannel(channel, 500.0, 10);
    group.enableChannel(channel, true);
    QCOMPARE(group.channelWavelength(channel), 500.0);
    QCOMPARE(group.channelPower(channel), 10);
    QVERIFY(group.channelEnabled(channel));

    group.setChannelPower(channel, 20);
    group.setChannelWavelength(channel, 600.0);
    group.setChannelChecked(channel, true);
    const Channel *const cell = cellOf(group, channel);
    QCOMPARE(cell->power(), 20);
    QCOMPARE(cell->wavelength(), 600.0);
    QVERIFY(cell->enabled());

    for (int other = 0; other < 8; ++other) {
        if (other == channel)
            continue;
        QCOMPARE(group.channelPower(other), 0);
        QVERIFY(!group.channelEnabled(other));
    }
    QCOMPARE(recorder.taken(), QStringList());
}

void tst_ChannelGroup::writesTheFourthCellOfTheFirstRow()
{
    ChannelGroup group;

    group.setChannel(3, 500.25, 10);

    const Channel *const cell = cellAt(group, 0, 3);
    QStringList texts;
    for (const LineEditNumber *edit : cell->findChildren<LineEditNumber *>())
        texts << edit->text();
    texts.sort();
    QCOMPARE(texts, (QStringList{ QStringLiteral("10"), QString::number(500.25, 'f', 1) }));
}

void tst_ChannelGroup::reportsWhatACellReports_data()
{
    forwardsReportsToTheirCell_data();
}

void tst_ChannelGroup::reportsWhatACellReports()
{
    QFETCH(int, channel);
    ChannelGroup group;
    group.show();
    group.setChannel(channel, 500.0, 10);
    const Channel *const cell = cellOf(group, channel);
    const QList<Button *> buttons = cell->findChildren<Button *>();
    SignalRecorder recorder(&group);

    for (Button *button : buttons)
        QTest::mouseClick(button, Qt::LeftButton);
    QTest::keyClick(cell->findChild<LineEditNumber *>(), Qt::Key_Return);

    QStringList taken = recorder.taken();
    taken.sort();
    const QString number = QString::number(channel);
    QCOMPARE(taken, (QStringList{ QStringLiteral("channelChanged(%1, 500, 10)").arg(number),
                                  QStringLiteral("enableChanged(%1, true)").arg(number),
                                  QStringLiteral("setClicked(%1, false)").arg(number) }));
}

void tst_ChannelGroup::ignoresOtherChannels_data()
{
    QTest::addColumn<int>("channel");

    QTest::newRow("minus one") << -1;
    QTest::newRow("eight") << 8;
    QTest::newRow("far out") << 100000;
}

void tst_ChannelGroup::ignoresOtherChannels()
{
    QFETCH(int, channel);
    ChannelGroup group;

    group.setChannel(channel, 500.0, 10);
    group.enableChannel(channel, true);
    group.setChannelChecked(channel, true);
    group.setChannelPower(channel, 10);
    group.setChannelWavelength(channel, 500.0);

    QVERIFY(!group.channelEnabled(channel));
    QCOMPARE(group.channelPower(channel), 0);
    QCOMPARE(group.channelWavelength(channel), 0.0);
    for (int i = 0; i < 8; ++i)
        QCOMPARE(group.channelPower(i), 0);
}

PELORIN_TEST_MAIN(tst_ChannelGroup)
#include "tst_channelgroup.moc"
