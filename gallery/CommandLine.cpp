#include "gallery/CommandLine.h"

#include "gallery/Pages.h"
#include "gallery/application/Devices.h"

#include <QCommandLineParser>
#include <QCoreApplication>

#include <algorithm>

namespace {

/// The parser asks the application object for the program's name.
QString helpText(const QCommandLineParser &parser)
{
    char name[] = "pelorin-gallery";
    char *argv[] = { name, nullptr };
    int argc = 1;
    const QCoreApplication app(argc, argv);
    return parser.helpText();
}

} // namespace

CommandLine CommandLine::parse(const QStringList &arguments)
{
    QCommandLineParser parser;
    parser.setApplicationDescription(QStringLiteral(
        "A control application for simulated lasers, and the widgets it is made of."));
    const QCommandLineOption page(QStringLiteral("page"),
                                  QStringLiteral("Show the device or topic NAME."),
                                  QStringLiteral("NAME"));
    const QCommandLineOption list(QStringLiteral("list"),
                                  QStringLiteral("Print the names of the devices and topics."));
    const QCommandLineOption snapshot(
        QStringLiteral("snapshot"),
        QStringLiteral(
            "Write a picture of each of them, or of NAME alone, to DIR; needs no display."),
        QStringLiteral("DIR"));
    const QCommandLineOption specimens(
        QStringLiteral("specimens"),
        QStringLiteral(
            "Write a picture of each widget, called as its class, to DIR; needs no display."),
        QStringLiteral("DIR"));
    const QCommandLineOption settings(
        QStringLiteral("settings"),
        QStringLiteral("Keep the state of the window in FILE, not among the user's settings."),
        QStringLiteral("FILE"));
    const QCommandLineOption help({ QStringLiteral("h"), QStringLiteral("help") },
                                  QStringLiteral("Print this text."));
    parser.addOptions({ page, list, snapshot, specimens, settings, help });

    CommandLine result;
    const bool understood = parser.parse(arguments);
    if (!understood || !parser.positionalArguments().isEmpty()) {
        result.action = Action::Complain;
        result.text = understood ? QStringLiteral("Unexpected argument '%1'.")
                                       .arg(parser.positionalArguments().first())
                                 : parser.errorText();
        return result;
    }
    result.page = parser.value(page);
    result.directory = parser.value(parser.isSet(specimens) ? specimens : snapshot);
    result.settings = parser.value(settings);
    if (parser.isSet(help)) {
        result.action = Action::PrintHelp;
        result.text = helpText(parser);
    } else if (parser.isSet(list)) {
        result.action = Action::PrintPages;
    } else if (parser.isSet(page) && !findPage(result.page) && findDevice(result.page) < 0) {
        result.action = Action::Complain;
        result.text = QStringLiteral("There is no device or topic '%1'; --list prints the names.")
                          .arg(result.page);
    } else if (parser.isSet(specimens) && parser.isSet(snapshot)) {
        result.action = Action::Complain;
        result.text = QStringLiteral("--specimens and --snapshot cannot be taken at once.");
    } else if (parser.isSet(specimens)) {
        result.action = Action::TakeSpecimens;
    } else if (parser.isSet(snapshot)) {
        result.action = Action::TakeSnapshots;
    }
    return result;
}

bool CommandLine::needsNoDisplay(const QStringList &arguments)
{
    static const QStringList options{ QStringLiteral("--snapshot"), QStringLiteral("--specimens"),
                                      QStringLiteral("--list"), QStringLiteral("--help"),
                                      QStringLiteral("-h") };
    return std::any_of(arguments.cbegin(), arguments.cend(), [](const QString &argument) {
        return options.contains(argument.section(QLatin1Char('='), 0, 0));
    });
}
