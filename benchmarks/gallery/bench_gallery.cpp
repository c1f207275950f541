#include "Pelorin/theme/Pelorin.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Memory.h"
#include "gallery/GalleryWindow.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QLabel>
#include <QProcess>
#include <QTimer>

#include <cstdio>
#include <functional>
#include <map>
#include <memory>

namespace {

const char *const gallery = "Gallery";
const char *const galleryWithoutTheme = "Gallery without the theme";
const char *const bareWindow = "Qt window with a label";

/// Tells when its window has been painted for the first time.
class FirstFrame : public QObject
{
public:
    FirstFrame(QWidget &window, std::function<void()> tell)
        : m_tell(std::move(tell))
    {
        window.installEventFilter(this);
    }

    bool eventFilter(QObject *window, QEvent *event) override
    {
        if (event->type() == QEvent::Paint) {
            window->removeEventFilter(this);
            QTimer::singleShot(0, this, m_tell); // once the frame is complete
        }
        return false;
    }

private:
    std::function<void()> m_tell;
};

std::unique_ptr<QWidget> makeWindow(const QString &kind)
{
    if (kind == QLatin1String(bareWindow)) {
        auto window = std::make_unique<QWidget>();
        new QLabel(kind, window.get());
        return window;
    }
    if (kind == QLatin1String(gallery)) {
        Pelorin::loadApplicationFonts();
        qApp->setStyleSheet(Pelorin::getApplicationStylesheet());
    }
    return std::make_unique<GalleryWindow>();
}

/// What the measured process does: it starts, shows its window, writes its memory at the first
/// frame and ends.
int start(int argc, char **argv)
{
    const QApplication app(argc, argv);
    const std::unique_ptr<QWidget> window = makeWindow(QString::fromLocal8Bit(argv[2]));
    const FirstFrame firstFrame(*window, [] {
        std::printf("%ld\n", memoryKiB("VmRSS:"));
        std::fflush(stdout);
        QApplication::quit();
    });
    window->show();
    return QApplication::exec();
}

std::map<std::string, long> &memory()
{
    static std::map<std::string, long> memory;
    return memory;
}

void measureStart(benchmark::State &state, const char *kind)
{
    for (auto step : state) {
        Q_UNUSED(step)
        QProcess process;
        QElapsedTimer timer;
        timer.start();
        process.start(QApplication::applicationFilePath(),
                      { QStringLiteral("--start"), QString::fromLatin1(kind) });
        const bool told = process.waitForReadyRead();
        state.SetIterationTime(double(timer.nsecsElapsed()) / 1e9);
        const long kib = process.readLine().trimmed().toLong();
        if (!told || !process.waitForFinished() || process.exitCode() != 0 || kib == 0)
            return state.SkipWithError("the window did not come");
        memory()[kind] = kib;
    }
    state.counters["resident_KiB"] = double(memory()[kind]);
}

Comparison::Body startOf(const char *kind)
{
    return [kind](benchmark::State &state) { measureStart(state, kind); };
}

} // namespace

int main(int argc, char **argv)
{
    if (argc > 2 && qstrcmp(argv[1], "--start") == 0)
        return start(argc, argv);

    Comparison comparison;
    comparison.name = "Start to the first painted frame";
    comparison.ours = gallery;
    comparison.body = startOf(gallery);
    comparison.peers = { { galleryWithoutTheme, startOf(galleryWithoutTheme) },
                         { bareWindow, startOf(bareWindow) } };
    comparison.unit = benchmark::kMillisecond;
    comparison.timesItself = true;

    const int code = runComparisons(argc, argv, { comparison });
    for (const auto &entry : memory())
        std::printf("%-34s  resident memory %6.1f MiB\n", entry.first.c_str(),
                    double(entry.second) / 1024);
    return code;
}
