#include "Pelorin/shell/CenterTabWidget.h"
#include "Pelorin/shell/SplashImage.h"
#include "tests/support/TestCase.h"

#include <QGridLayout>
#include <QPointer>
#include <QRandomGenerator>
#include <QTabWidget>
#include <QVBoxLayout>

namespace {

class Center : public CenterTabWidget
{
public:
    Center()
        : CenterTabWidget(nullptr)
    {}

    QTabWidget *tabs() const { return findChild<QTabWidget *>(); }

    QStringList names() const
    {
        QStringList result;
        for (int i = 0; i < tabs()->count(); ++i)
            result << tabs()->tabText(i);
        return result;
    }

    QWidget *add(const char *name, bool persistent = false, bool select = false)
    {
        auto *widget = new QWidget;
        appendCenterWidget(widget, QLatin1String(name), persistent, select);
        return widget;
    }
};

void settle()
{
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
}

QStringList list(const char *names)
{
    return QString::fromLatin1(names).split(QLatin1Char(' '));
}

} // namespace

class tst_CenterTabWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void greetsWithTheSplashPicture();
    void addsAndSelectsTabs();
    void ignoresPersistentUnknownAndNullWidgets();
    void removesWhatStandsAtTheOldIndex();
    void removesAllByTheSameRule();
    void deletesLater();
    void selectsAWidget();
    void selectsAName_data();
    void selectsAName();
    void doesAsItsModel_data();
    void doesAsItsModel();
};

void tst_CenterTabWidget::greetsWithTheSplashPicture()
{
    Center center;
    QWidget *welcome = center.tabs()->widget(0);

    QCOMPARE(center.names(), list("Welcome"));
    QCOMPARE(center.layout()->contentsMargins(), QMargins(1, 1, 1, 1));
    const auto *grid = qobject_cast<QGridLayout *>(welcome->layout());
    QVERIFY(grid);
    QVERIFY(qobject_cast<SplashImage *>(grid->itemAtPosition(1, 1)->widget()));
    const QVector<int> stretches{ 1, 10, 1 };
    for (int i = 0; i < 3; ++i) {
        QCOMPARE(grid->columnStretch(i), stretches.at(i));
        QCOMPARE(grid->rowStretch(i), stretches.at(i));
    }
    QVERIFY(welcome->autoFillBackground());
    for (const auto group : { QPalette::Active, QPalette::Inactive, QPalette::Disabled }) {
        QCOMPARE(welcome->palette().brush(group, QPalette::Window).style(), Qt::SolidPattern);
        QCOMPARE(welcome->palette().color(group, QPalette::Window),
                 welcome->palette().color(QPalette::Active, QPalette::Window));
    }
}

void tst_CenterTabWidget::addsAndSelectsTabs()
{
    Center center;

    center.add("A");
    QCOMPARE(center.tabs()->currentIndex(), 0);
    center.add("B", false, true);
    QCOMPARE(center.tabs()->currentIndex(), 2);
    center.appendCenterWidget(nullptr, QStringLiteral("none"), false, true);

    QCOMPARE(center.names(), list("Welcome A B"));
    QCOMPARE(center.tabs()->currentIndex(), 2);
}

void tst_CenterTabWidget::ignoresPersistentUnknownAndNullWidgets()
{
    Center center;
    QWidget *kept = center.add("kept", true);
    QWidget stranger;

    center.removeCenterWidget(kept);
    center.removeCenterWidget(center.tabs()->widget(0));
    center.removeCenterWidget(&stranger);
    center.removeCenterWidget(nullptr);

    QCOMPARE(center.names(), list("Welcome kept"));

    QWidget *gone = center.add("gone");
    center.add("last");
    center.removeCenterWidget(gone); // leaves a gap in the records
    center.removeCenterWidget(nullptr);
    QCOMPARE(center.names(), list("Welcome kept last"));
}

void tst_CenterTabWidget::removesWhatStandsAtTheOldIndex()
{
    Center center;
    QWidget *a = center.add("A");
    QWidget *b = center.add("B");
    QPointer<QWidget> c = center.add("C");

    center.removeCenterWidget(a);
    QCOMPARE(center.names(), list("Welcome B C"));
    center.removeCenterWidget(b); // index 2, where C stands now
    QCOMPARE(center.names(), list("Welcome B"));
    settle();

    QVERIFY(!c);
    // C's record is left under 3, beyond the two records that there are, and is not found any more.
    center.removeCenterWidget(b);
    QCOMPARE(center.names(), list("Welcome B"));
}

void tst_CenterTabWidget::removesAllByTheSameRule()
{
    Center center;
    for (const char *name : { "A", "B", "C" })
        center.add(name, false, true);

    center.removeAllCenterWidgets();
    settle();
    QCOMPARE(center.names(), list("Welcome B"));
    QCOMPARE(center.tabs()->currentIndex(), 0);

    // The records that are left have the keys 0 and 3: a widget added now takes the key 2.
    QWidget *d = center.add("D");
    center.removeCenterWidget(d);
    QCOMPARE(center.names(), list("Welcome B"));
    center.selectCenterWidget(QStringLiteral("C")); // its pointer is dead
    QCOMPARE(center.tabs()->currentIndex(), 0);
    center.removeAllCenterWidgets();
}

void tst_CenterTabWidget::deletesLater()
{
    Center center;
    QPointer<QWidget> a = center.add("A");

    center.removeCenterWidget(a);
    QVERIFY(a);
    settle();
    QVERIFY(!a);
}

void tst_CenterTabWidget::selectsAWidget()
{
    Center center;
    QWidget *a = center.add("A");
    QWidget stranger;

    center.selectCenterWidget(a);
    QCOMPARE(center.tabs()->currentWidget(), a);
    center.selectCenterWidget(&stranger);
    center.selectCenterWidget(static_cast<QWidget *>(nullptr));
    QCOMPARE(center.tabs()->currentWidget(), a);
}

void tst_CenterTabWidget::selectsAName_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("index");

    QTest::newRow("as it is") << "Laser" << 1;
    QTest::newRow("welcome in upper case") << "WELCOME" << 0;
    QTest::newRow("lower case") << "laser" << 1;
    QTest::newRow("the first of two") << "twin" << 2;
    QTest::newRow("letters beyond ASCII") << QString::fromUtf8("f\u00fcnf") << 4;
    QTest::newRow("unknown, stays") << "nobody" << 5;
    QTest::newRow("empty, stays") << "" << 5;
}

void tst_CenterTabWidget::selectsAName()
{
    QFETCH(QString, name);
    Center center;
    center.add("Laser");
    center.add("Twin");
    center.add("TWIN");
    center.appendCenterWidget(new QWidget, QString::fromUtf8("F\u00dcNF"), false, false);
    center.add("here", false, true);

    center.selectCenterWidget(name);

    QTEST(center.tabs()->currentIndex(), "index");
}

void tst_CenterTabWidget::doesAsItsModel_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 20; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// Beside the widget: the names of the tabs, and for each key the name and the persistence of its
/// record.
void tst_CenterTabWidget::doesAsItsModel()
{
    QFETCH(quint32, seed);
    struct Record
    {
        QString name;
        bool persistent;
    };
    QRandomGenerator random(seed);
    Center center;
    QStringList tabs{ QStringLiteral("Welcome") };
    QMap<int, Record> records{ { 0, { QStringLiteral("Welcome"), true } } };
    QHash<QString, QWidget *> widgets;
    QStringList done;

    for (int step = 0; step < 120; ++step) {
        const QString name = QStringLiteral("w%1").arg(random.bounded(step + 1));
        if (random.bounded(2) == 0) {
            const QString fresh = QStringLiteral("w%1").arg(step);
            const bool persistent = random.bounded(5) == 0;
            auto *widget = new QWidget;
            widgets.insert(fresh, widget);
            center.appendCenterWidget(widget, fresh, persistent, false);
            tabs << fresh;
            records.insert(tabs.size() - 1, { fresh, persistent });
            done << QStringLiteral("add ") + fresh;
        } else if (widgets.contains(name)) {
            center.removeCenterWidget(widgets.value(name));
            done << QStringLiteral("remove ") + name;
            const int count = records.size();
            for (int key = 0; key < count; ++key) {
                if (!records.contains(key) || records[key].name != name || records[key].persistent)
                    continue;
                if (key < tabs.size())
                    tabs.removeAt(key);
                records.remove(key);
                break;
            }
        }
        QVERIFY2(center.names() == tabs, qPrintable(done.join(QStringLiteral("; "))));
    }
    // The widgets are not deleted before, so that none takes the address of another one.
    settle();
}

PELORIN_TEST_MAIN(tst_CenterTabWidget)
#include "tst_centertabwidget.moc"
