#include <Pelorin/Pelorin>
#include <Pelorin/ScaleSliderNG>

#include <QApplication>

#include <cstdio>

/// An application outside of the project: it starts the library and moves a slider.
int main(int argc, char *argv[])
{
    QApplication app(argc, argv);
    Pelorin::loadApplicationFonts();
    app.setStyleSheet(Pelorin::getApplicationStylesheet());

    ScaleSliderNG slider(Qt::Horizontal, ScaleSliderNG::ScaleSqrt, nullptr);
    double reported = 0.0;
    QObject::connect(&slider, &ScaleSliderNG::valueChanged0,
                     [&reported](double value) { reported = value; });
    slider.show();
    slider.changeHandlePosition0(50000);

    const bool works = reported == 25.0 && !app.styleSheet().isEmpty();
    std::puts(works ? "the consumer works" : "the consumer fails");
    return works ? 0 : 1;
}
