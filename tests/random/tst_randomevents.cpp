#include "tests/random/Subjects.h"
#include "tests/support/DialogHand.h"
#include "tests/support/RandomEvents.h"
#include "tests/support/TestCase.h"

#include <QLoggingCategory>

#include <cstdio>
#include <memory>

class tst_RandomEvents : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void livesThroughNonsense_data();
    void livesThroughNonsense();
};

void tst_RandomEvents::livesThroughNonsense_data()
{
    QTest::addColumn<int>("subject");
    QTest::addColumn<quint32>("seed");

    for (int i = 0; i < subjects().size(); ++i) {
        for (quint32 seed = 1; seed <= 4; ++seed)
            QTest::addRow("%s, seed %u", subjects().at(i).name, seed) << i << seed;
    }
}

void tst_RandomEvents::livesThroughNonsense()
{
    QFETCH(int, subject);
    QFETCH(quint32, seed);
    // A crash leaves no report of the test behind, so the seed is told before.
    std::fprintf(stderr, "%s, seed %u\n", subjects().at(subject).name, seed);
    // What is logged at every step of the way is not looked at, nor put into words.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    // of properties that are Qt's own
    tolerateMessages(QtWarningMsg, QStringLiteral("QComboBox::setMax"));
    for (const char *name : { "LineEditNumberNG", "LineEditPowerNG" }) {
        tolerateMessages(QtWarningMsg, QLatin1String(name) + QStringLiteral("::setRange - min:"));
    }
    const std::unique_ptr<QWidget> widget(subjects().at(subject).make());
    widget->show();
    const DialogHand hand; // says no to every question
    RandomEvents events(widget.get(), seed);

    for (int i = 0; i < 1500; ++i) {
        events.step();
        if (QTest::currentTestFailed())
            QFAIL(qPrintable(events.history().join(QLatin1Char('\n'))));
    }
    QApplication::processEvents();
}

PELORIN_TEST_MAIN(tst_RandomEvents)
#include "tst_randomevents.moc"
