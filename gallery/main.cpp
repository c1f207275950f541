#include "gallery/CommandLine.h"
#include "gallery/GalleryWindow.h"
#include "gallery/Pages.h"
#include "gallery/Snapshot.h"
#include "gallery/Specimens.h"
#include "gallery/application/InstrumentWindow.h"

#include <Pelorin/Pelorin>

#include <QApplication>
#include <QLoggingCategory>
#include <QStandardPaths>

#include <cstdio>
#include <memory>

namespace {

QStringList argumentsOf(int argc, char *argv[])
{
    QStringList result;
    for (int i = 0; i < argc; ++i)
        result << QString::fromLocal8Bit(argv[i]);
    return result;
}

int complain(const QString &text)
{
    std::fprintf(stderr, "pelorin-gallery: %s\n", qPrintable(text));
    return 1;
}

void print(const QString &text)
{
    std::printf("%s\n", qPrintable(text.trimmed()));
}

/// The offscreen platform complains of what a picture does not need, and the library of the
/// reversed range that a page shows on purpose.
void dropKnownNoise(QtMsgType, const QMessageLogContext &, const QString &text)
{
    if (!text.startsWith(QLatin1String("This plugin does not support"))
        && !text.startsWith(QLatin1String("LineEditNumberNG::setRange - min:")))
        std::fprintf(stderr, "%s\n", qPrintable(text));
}

/// The order in which every application starts that uses the library.
void prepare(QApplication &app)
{
    // A signal graph writes down each of its points; QT_LOGGING_RULES brings them back.
    QLoggingCategory::setFilterRules(QStringLiteral("default.debug=false"));
    QApplication::setApplicationName(QStringLiteral("pelorin-gallery"));
    // The face of the displays is rarely at hand; one of the same build stands in.
    QFont::insertSubstitution(QStringLiteral("Consolas"), QStringLiteral("DejaVu Sans Mono"));
    Pelorin::loadApplicationFonts();
    app.setStyleSheet(Pelorin::getApplicationStylesheet());
}

/// Everything but the window. A picture is the same on every machine, with or without a display.
int runWithoutDisplay(int argc, char *argv[])
{
    const CommandLine command = CommandLine::parse(argumentsOf(argc, argv));
    switch (command.action) {
    case CommandLine::Action::PrintHelp:
        print(command.text);
        return 0;
    case CommandLine::Action::PrintPages:
        for (const Device &device : devices())
            print(device.name);
        for (const Page &page : pages())
            print(page.name);
        return 0;
    case CommandLine::Action::TakeSnapshots:
    case CommandLine::Action::TakeSpecimens: {
        qputenv("QT_QPA_PLATFORM", "offscreen");
        qputenv("QT_FONT_DPI", "96");
        qunsetenv("QT_SCALE_FACTOR");
        qInstallMessageHandler(dropKnownNoise);
        QApplication app(argc, argv);
        prepare(app);
        const QString trouble = command.action == CommandLine::Action::TakeSpecimens
                                    ? takeSpecimens(command.directory)
                                    : takeSnapshots(command.directory, command.page);
        return trouble.isEmpty() ? 0 : complain(trouble);
    }
    default:
        return complain(command.text);
    }
}

/// Where the window keeps its state.
QString settingsFile(const CommandLine &command)
{
    if (!command.settings.isEmpty())
        return command.settings;
    return QStandardPaths::writableLocation(QStandardPaths::AppConfigLocation)
           + QStringLiteral("/layout.ini");
}

/// The application; the reference opens beside it when it is asked for.
int runApplication(const CommandLine &command)
{
    InstrumentWindow window(settingsFile(command));
    std::unique_ptr<GalleryWindow> reference;
    QObject::connect(&window, &InstrumentWindow::referenceRequested, &window, [&reference] {
        if (!reference)
            reference = std::make_unique<GalleryWindow>();
        reference->show();
        reference->raise();
        reference->activateWindow();
    });
    if (!command.page.isEmpty())
        window.showDevice(command.page);
    window.run();
    window.show();
    return QApplication::exec();
}

int runReference(const CommandLine &command)
{
    GalleryWindow window;
    window.showPage(command.page);
    window.show();
    return QApplication::exec();
}

int showWindow(int argc, char *argv[])
{
    QApplication app(argc, argv); // takes Qt's own options out of the arguments
    const CommandLine command = CommandLine::parse(QApplication::arguments());
    if (command.action == CommandLine::Action::Complain)
        return complain(command.text);
    prepare(app);
    return findPage(command.page) ? runReference(command) : runApplication(command);
}

} // namespace

int main(int argc, char *argv[])
{
    if (CommandLine::needsNoDisplay(argumentsOf(argc, argv)))
        return runWithoutDisplay(argc, argv);
    return showWindow(argc, argv);
}
