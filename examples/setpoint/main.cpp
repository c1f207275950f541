#include <Pelorin/HorizontalSlider>
#include <Pelorin/MainView>
#include <Pelorin/Pelorin>
#include <Pelorin/RemoteControl>
#include <Pelorin/TavrinMainWindow>

#include <QApplication>
#include <QLabel>
#include <QTimer>

int main(int argc, char *argv[])
{
    // Fonts, sheet, window: in this order, and before the first widget.
    QApplication app(argc, argv);
    Pelorin::loadApplicationFonts();
    app.setStyleSheet(Pelorin::getApplicationStylesheet());
    TavrinMainWindow window;
    app.setProperty("APPLICATIONWINDOWPTR", QVariant::fromValue(&window));

    auto *power = new HorizontalSlider(12, ScaleSliderNG::ScaleSqrt, nullptr);
    power->titleLabel->setText("Power");
    power->unitLabel->setText("mW");
    power->setRange(0.0, 400.0, true);
    auto *panel = new RemoteControl;
    auto *view = new MainView;
    view->setHeader("Laser 1");
    view->showSettings(false);
    view->setControlPage(view->addControlPage("Control", power));
    view->setRemoteControlWidget(panel);
    window.createSystemWidget(view, "Laser 1", false, true);

    // What the operator does is a request. These two stand for the instrument.
    double setpoint = 40.0;
    bool emits = false;
    QObject::connect(power, &HorizontalSlider::valueChanged, [&](double mW) { setpoint = mW; });
    QObject::connect(panel, &RemoteControl::emissionChangedByRC, [&](bool on) { emits = on; });

    // Its reports come back by setters: they close no loop, and a handle in the hand stays there.
    QTimer reports;
    QObject::connect(&reports, &QTimer::timeout, [&] {
        power->setValue(setpoint);
        panel->setEmissionLS(emits);
    });
    reports.start(100);

    window.resize(900, 500);
    window.show();
    return app.exec();
}
