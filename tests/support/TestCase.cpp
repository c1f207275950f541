#include "tests/support/TestCase.h"

#include <QLocale>

#include <algorithm>

namespace {

QtMessageHandler previousHandler = nullptr;

struct Messages
{
    QStringList expected;
    QStringList tolerated;
    QStringList unexpected;
};

Messages &messages()
{
    static Messages messages;
    return messages;
}

QString line(QtMsgType type, const QString &text)
{
    static const QStringList names{ QStringLiteral("debug"), QStringLiteral("warning"),
                                    QStringLiteral("critical"), QStringLiteral("fatal"),
                                    QStringLiteral("info") };
    return names.at(type) + QStringLiteral(": ") + text;
}

/// What the offscreen platform says of itself.
bool isOfThePlatform(const QString &text)
{
    return text == QLatin1String("This plugin does not support propagateSizeHints()")
           || text == QLatin1String("This plugin does not support raise()")
           || text == QLatin1String("This plugin does not support grabbing the keyboard");
}

bool isTolerated(const QString &line)
{
    const QStringList &starts = messages().tolerated;
    return std::any_of(starts.cbegin(), starts.cend(),
                       [&line](const QString &start) { return line.startsWith(start); });
}

bool isPlain(const QMessageLogContext &context)
{
    return context.file == nullptr && context.function == nullptr && context.line == 0
           && qstrcmp(context.category, "default") == 0;
}

void guard(QtMsgType type, const QMessageLogContext &context, const QString &text)
{
    if (messages().expected.removeOne(line(type, text)) && isPlain(context))
        return;
    if (isOfThePlatform(text) || isTolerated(line(type, text)))
        return;
    messages().unexpected << line(type, text);
    if (previousHandler)
        previousHandler(type, context, text);
}

} // namespace

void TestCase::expectMessage(QtMsgType type, const QString &text)
{
    messages().expected << line(type, text);
}

void TestCase::tolerateMessages(QtMsgType type, const QString &start)
{
    messages().tolerated << line(type, start);
}

int TestCase::pendingMessages()
{
    return messages().expected.size();
}

void TestCase::prepareEnvironment()
{
    qputenv("QT_FONT_DPI", "96");
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    QLocale::setDefault(QLocale::c());
}

void TestCase::init()
{
    messages() = Messages();
    previousHandler = qInstallMessageHandler(guard);
}

void TestCase::cleanup()
{
    qInstallMessageHandler(previousHandler);
    QCOMPARE(messages().unexpected, QStringList());
    QCOMPARE(messages().expected, QStringList()); // announced, but never came
}
