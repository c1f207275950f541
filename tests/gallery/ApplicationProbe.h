#ifndef PELORIN_TESTS_APPLICATIONPROBE_H
#define PELORIN_TESTS_APPLICATIONPROBE_H

#include "gallery/SignalLog.h"
#include "gallery/application/InstrumentWindow.h"

#include <Pelorin/DockWidget>
#include <Pelorin/HorizontalSlider>
#include <Pelorin/IndicatorButton>
#include <Pelorin/MainView>
#include <Pelorin/WavelengthChart>

#include <QCheckBox>
#include <QGraphicsProxyWidget>
#include <QGraphicsScene>
#include <QImage>
#include <QPushButton>
#include <QScreen>
#include <QTabWidget>

#include <utility>

/// The window of the application with what a test looks at, found as it stands on the screen.
class ApplicationProbe : public InstrumentWindow
{
public:
    using InstrumentWindow::InstrumentWindow;

    template<class Widget>
    Widget *find(const char *name = "") const
    {
        return findChild<Widget *>(QLatin1String(name));
    }

    MainView *view(const char *device) const { return find<MainView>(device); }
    QTabWidget *tabs() const { return find<QTabWidget>(); }
    QString tabInFront() const { return tabs()->tabText(tabs()->currentIndex()); }
    QStringList requests() const
    {
        return find<SignalLog>("signalLog")
            ->toPlainText()
            .split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    }
    DockWidget *dock(const char *title) const { return find<DockWidget>(title); }

    /// A slider of the device that was built first.
    HorizontalSlider *slider(const char *name) const { return find<HorizontalSlider>(name); }
    QPushButton *warning() const
    {
        for (auto *button : findChildren<QPushButton *>()) {
            if (button->property("style") == QLatin1String("warning"))
                return button;
        }
        return nullptr;
    }

    /// The button of a remote control panel, by its text on one line.
    QPushButton *panelButton(const QString &text) const
    {
        for (const auto *panel : findChildren<IndicatorButton *>()) {
            for (auto *button : panel->findChildren<QPushButton *>()) {
                if (button->text().replace(QLatin1Char('\n'), QLatin1Char(' ')) == text)
                    return button;
            }
        }
        return nullptr;
    }

    /// The button of \a chart that saves it, and the item of the scene in which it stands.
    static std::pair<QCheckBox *, const QGraphicsProxyWidget *>
    saveButton(const WavelengthChart &chart)
    {
        for (const QGraphicsItem *item : chart.scene()->items()) {
            const auto *proxy = qgraphicsitem_cast<const QGraphicsProxyWidget *>(item);
            for (auto *box : proxy && proxy->widget() ? proxy->widget()->findChildren<QCheckBox *>()
                                                      : QList<QCheckBox *>()) {
                if (box->text().isEmpty())
                    return { box, proxy };
            }
        }
        return { nullptr, nullptr };
    }

    /// Where the screen shows something else than a fresh picture of the window would: empty, if all
    /// that has changed was repainted. The window must not be covered.
    QRect stalePart()
    {
        const auto image = [](const QPixmap &picture) {
            return picture.toImage().convertToFormat(QImage::Format_RGB32);
        };
        const QImage seen = image(screen()->grabWindow(winId()));
        const QImage fresh = image(grab());
        QRect result;
        for (int y = 0; y < fresh.height(); ++y) {
            for (int x = 0; x < fresh.width(); ++x) {
                if (seen.size() != fresh.size() || seen.pixel(x, y) != fresh.pixel(x, y))
                    result |= QRect(x, y, 1, 1);
            }
        }
        return result;
    }

    /// The middle of the handle, in coordinates of the slider.
    static QPoint handle(const ScaleSliderNG &slider)
    {
        constexpr int handleSize = 35;
        const double part =
            (slider.value0() - slider.minimum()) / (slider.maximum() - slider.minimum());
        return { qRound((slider.width() - handleSize) * part) + handleSize / 2, handleSize / 2 };
    }
};

#endif
