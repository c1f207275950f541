#include "Pelorin/theme/Pelorin.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Repaint.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QLineEdit>
#include <QProgressBar>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTabBar>
#include <QVariant>

#include <memory>

namespace {

constexpr int manyWidgets = 500;
constexpr int columns = 20;

QWidget *typed(QWidget *widget, const char *type)
{
    widget->setProperty("type", QString::fromLatin1(type));
    return widget;
}

QWidget *flat(QWidget *widget)
{
    widget->setProperty("flat", true);
    return widget;
}

QTabBar *makeTabs()
{
    auto *tabs = new QTabBar;
    tabs->addTab(QStringLiteral("Power"));
    return tabs;
}

/// The plain widgets of an instrument's window, ten kinds in turn, most of them named in the sheet.
QWidget *makeWidget(int index)
{
    const QString text = QStringLiteral("Power");
    switch (index % 10) {
    case 0:
        return typed(new QLabel(text), "label");
    case 1:
        return typed(new QLabel(text), "text");
    case 2:
        return flat(new QLineEdit(text));
    case 3:
        return flat(new QCheckBox(text));
    case 4:
        return new QRadioButton(text);
    case 5:
        return typed(new QPushButton(text), "rounded-red");
    case 6:
        return flat(new QProgressBar);
    case 7:
        return new QComboBox;
    case 8:
        return new QScrollBar(Qt::Horizontal);
    default:
        return flat(makeTabs());
    }
}

std::unique_ptr<QWidget> makeWindow()
{
    auto window = std::make_unique<QWidget>();
    auto *grid = new QGridLayout(window.get());
    for (int i = 0; i < manyWidgets; ++i)
        grid->addWidget(makeWidget(i), i / columns, i % columns);
    showAndSettle(*window);
    return window;
}

/// Installs \a sheet on the application while its widgets stand, and paints them.
void install(benchmark::State &state, const QString &sheet)
{
    const std::unique_ptr<QWidget> window = makeWindow();
    for (auto step : state) {
        Q_UNUSED(step)
        qApp->setStyleSheet(sheet);
        showAndSettle(*window);
        state.PauseTiming();
        qApp->setStyleSheet(QString());
        showAndSettle(*window);
        state.ResumeTiming();
    }
}

/// What any sheet costs: a rule for each kind of widget, and nothing to look for among others.
const QString smallSheet = QStringLiteral(
    "QLabel, QLineEdit, QCheckBox, QRadioButton, QPushButton, QProgressBar, QComboBox, QScrollBar, "
    "QTabBar { color: #444; background-color: #FFF }");

} // namespace

int main(int argc, char **argv)
{
    Comparison comparison;
    comparison.name = "Install on 500 plain widgets";
    comparison.ours = "The library's sheet";
    comparison.body = [](benchmark::State &state) {
        install(state, Pelorin::getApplicationStylesheet());
    };
    comparison.peers = { { "A sheet of one rule",
                           [](benchmark::State &state) { install(state, smallSheet); } } };
    comparison.unit = benchmark::kMillisecond;

    return runComparisons(argc, argv, { comparison });
}
