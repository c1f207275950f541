#include "gallery/application/StateStore.h"
#include "tests/support/TestCase.h"

#include <QFile>
#include <QRandomGenerator>
#include <QTemporaryDir>

namespace {

const QString key = QStringLiteral("docks");

QByteArray allBytes()
{
    QByteArray bytes;
    for (int i = 0; i < 256; ++i)
        bytes.append(char(i));
    return bytes;
}

QByteArray read(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}

} // namespace

class tst_StateStore : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void givesBackWhatWasKept();
    void hasNothingAtFirst();
    void keepsStatesApart();
    void givesNothingOfAnotherVersion();
    void givesNothingOfAnotherKey();
    void dropsEveryDamagedState();
    void readsForeignFiles_data();
    void readsForeignFiles();
    void forgetsOneStateAlone();
    void survivesAFileThatCannotBeWritten();

private:
    QString path() const { return m_dir->filePath(QStringLiteral("layout.ini")); }
    void keep(const QByteArray &state) const
    {
        StateStore store(path());
        store.setState(key, state);
    }

    std::unique_ptr<QTemporaryDir> m_dir;
};

void tst_StateStore::init()
{
    TestCase::init();
    m_dir = std::make_unique<QTemporaryDir>();
    QVERIFY(m_dir->isValid());
}

void tst_StateStore::givesBackWhatWasKept()
{
    keep(allBytes());

    QCOMPARE(StateStore(path()).state(key), allBytes());
}

void tst_StateStore::hasNothingAtFirst()
{
    QCOMPARE(StateStore(path()).state(key), QByteArray());
    QCOMPARE(StateStore(path()).text(key), QString());
}

void tst_StateStore::keepsStatesApart()
{
    StateStore store(path());

    store.setText(QStringLiteral("folder"), QStringLiteral("/data/Größe"));
    store.setText(QStringLiteral("filter"), QStringLiteral("Table (*.csv)"));

    QCOMPARE(store.text(QStringLiteral("folder")), QStringLiteral("/data/Größe"));
    QCOMPARE(store.text(QStringLiteral("filter")), QStringLiteral("Table (*.csv)"));
}

void tst_StateStore::givesNothingOfAnotherVersion()
{
    keep(allBytes());
    const QByteArray version = "version=1/" + QByteArray(qVersion());
    QByteArray bytes = read(path());
    QVERIFY(bytes.contains(version));

    write(path(), bytes.replace(version, "version=1/4.8.7"));

    QCOMPARE(StateStore(path()).state(key), QByteArray());
}

/// What was kept of one thing says nothing of another.
void tst_StateStore::givesNothingOfAnotherKey()
{
    keep(allBytes());
    QByteArray bytes = read(path());

    write(path(), bytes.replace("docks", "divider"));

    QVERIFY(read(path()).contains("divider"));
    QCOMPARE(StateStore(path()).state(QStringLiteral("divider")), QByteArray());
}

/// One byte of the file is another one: the state is what it was, or is not there.
void tst_StateStore::dropsEveryDamagedState()
{
    keep(allBytes());
    const QByteArray good = read(path());
    QRandomGenerator random(11);
    int dropped = 0;

    for (int i = 0; i < good.size(); ++i) {
        QByteArray bytes = good;
        bytes[i] = char(bytes[i] ^ (1 << random.bounded(8)));
        write(path(), bytes);
        const QByteArray state = StateStore(path()).state(key);
        QVERIFY2(state.isEmpty() || state == allBytes(), bytes.constData());
        dropped += state.isEmpty();
    }

    QVERIFY(dropped > good.size() / 2);
}

void tst_StateStore::readsForeignFiles_data()
{
    QTest::addColumn<QByteArray>("bytes");

    QTest::newRow("empty") << QByteArray();
    QTest::newRow("zeros") << QByteArray(4096, '\0');
    QTest::newRow("a picture") << QByteArray("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
    QTest::newRow("text") << QByteArray("Dear operator,\n\nplease [call] = me\n");
    QTest::newRow("another program's settings")
        << QByteArray("[states]\ndocks\\data=@ByteArray(\\0\\0\\0\\xff)\n");
    QTest::newRow("a list where a text should be")
        << QByteArray("[states]\ndocks\\data=AA, BB\ndocks\\version=1, 2\ndocks\\checksum=, ,\n");
}

void tst_StateStore::readsForeignFiles()
{
    QFETCH(QByteArray, bytes);
    write(path(), bytes);

    StateStore store(path());
    QCOMPARE(store.state(key), QByteArray());
    store.setState(key, allBytes());
    store.sync();

    QCOMPARE(store.state(key), allBytes());
}

void tst_StateStore::forgetsOneStateAlone()
{
    write(path(), "[other]\nname=value\n");
    {
        StateStore store(path());
        store.setState(key, allBytes());
        store.setText(QStringLiteral("folder"), QStringLiteral("/data"));
        store.forget(key);
        QCOMPARE(store.state(key), QByteArray());
        QCOMPARE(store.text(QStringLiteral("folder")), QStringLiteral("/data"));
    }

    QVERIFY(read(path()).contains("name=value"));
    QVERIFY(!read(path()).contains("docks"));
}

void tst_StateStore::survivesAFileThatCannotBeWritten()
{
    StateStore store(QStringLiteral("/proc/layout.ini"));

    store.setState(key, allBytes());
    store.sync();

    QCOMPARE(store.state(key), allBytes()); // as long as the program runs
}

PELORIN_TEST_MAIN(tst_StateStore)
#include "tst_statestore.moc"
