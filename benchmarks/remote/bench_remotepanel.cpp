#include "Pelorin/remote/MarquelXRemoteControl.h"
#include "Pelorin/remote/OstrelRemoteControl.h"
#include "benchmarks/support/Comparison.h"
#include "benchmarks/support/Repaint.h"

#include <QGridLayout>
#include <QLabel>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>

#include <array>
#include <functional>

namespace {

constexpr int changes = 1000;
constexpr int states = 7;
constexpr int buttons = 4;

QPixmap disc(const QColor &color)
{
    QPixmap pixmap(20, 20);
    pixmap.fill(Qt::transparent);
    QPainter painter(&pixmap);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(color);
    painter.setBrush(color);
    painter.drawEllipse(1, 1, 18, 18);
    return pixmap;
}

/// A panel as one writes it with Qt's own widgets: labels with a picture for lamps, none of which
/// blinks.
class PlainPanel : public QWidget
{
public:
    PlainPanel()
        : m_off(disc(Qt::gray))
        , m_on(disc(Qt::red))
    {
        auto *grid = new QGridLayout(this);
        for (int i = 0; i < buttons; ++i) {
            m_lamps[i] = new QLabel;
            m_buttons[i] = new QPushButton(QStringLiteral("Standby"));
            m_buttons[i]->setFixedSize(95, 55);
            grid->addWidget(m_lamps[i], i, 0);
            grid->addWidget(m_buttons[i], i, 1);
        }
    }

    /// As many buttons are enabled, and one lamp is on, as in the library's panels.
    void setState(uchar state)
    {
        for (int i = 0; i < buttons; ++i) {
            m_buttons[i]->setEnabled(state > i);
            m_lamps[i]->setPixmap(state == i ? m_on : m_off);
        }
    }

private:
    QPixmap m_off;
    QPixmap m_on;
    std::array<QLabel *, buttons> m_lamps{};
    std::array<QPushButton *, buttons> m_buttons{};
};

template<class Panel>
void changeStates(benchmark::State &state, void (Panel::*setState)(uchar), bool painted)
{
    Panel panel;
    panel.resize(panel.sizeHint());
    showAndSettle(panel);
    for (auto _ : state) {
        for (int i = 0; i < changes; ++i) {
            (panel.*setState)(uchar(i % states));
            if (painted)
                paintNow(panel);
        }
        paintNow(panel);
    }
}

Comparison changeCase(bool painted)
{
    const auto plain = [painted](benchmark::State &state) {
        changeStates<PlainPanel>(state, &PlainPanel::setState, painted);
    };
    Comparison result;
    result.name =
        painted ? "1,000 state changes, each painted" : "1,000 state changes in one frame";
    result.ours = "OstrelRemoteControl";
    result.body = [painted](benchmark::State &state) {
        changeStates<OstrelRemoteControl>(state, &OstrelRemoteControl::slotFSMStateChanged,
                                          painted);
    };
    result.peers = { { "QPushButton and QLabel", plain },
                     { "MarquelXRemoteControl", [painted](benchmark::State &state) {
                          changeStates<MarquelXRemoteControl>(
                              state, &MarquelXRemoteControl::slotFSMStateChanged, painted);
                      } } };
    result.unit = benchmark::kMillisecond;
    return result;
}

} // namespace

int main(int argc, char **argv)
{
    return runComparisons(argc, argv, { changeCase(true), changeCase(false) });
}
