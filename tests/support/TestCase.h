#ifndef PELORIN_TESTS_TESTCASE_H
#define PELORIN_TESTS_TESTCASE_H

#include <QApplication>
#include <QObject>
#include <QStringList>
#include <QtTest>

/// The base of every test class. A message of Qt or of the library that the test did not announce
/// fails the test in which it came.
class TestCase : public QObject
{
    Q_OBJECT

public:
    /// Announces one message of \a type with exactly this \a text, of category "default" and
    /// without a place in the source.
    static void expectMessage(QtMsgType type, const QString &text);

    /// Lets pass all messages of \a type that begin with \a start, in the test that runs: for what
    /// is logged at every step of a way that is about something else.
    static void tolerateMessages(QtMsgType type, const QString &start);

    /// How many announced messages have not come yet.
    static int pendingMessages();

    /// Before the application object stands: the same resolution for widgets and for pixmaps, and
    /// no locale but the plain one.
    static void prepareEnvironment();

protected Q_SLOTS:
    void init();
    void cleanup();
};

#define PELORIN_TEST_MAIN(TestClass)            \
    int main(int argc, char *argv[])            \
    {                                           \
        TestCase::prepareEnvironment();         \
        QApplication app(argc, argv);           \
        TestClass test;                         \
        QTEST_SET_MAIN_SOURCE_PATH              \
        return QTest::qExec(&test, argc, argv); \
    }

#endif
