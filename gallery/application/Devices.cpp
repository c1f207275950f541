#include "gallery/application/Devices.h"

const QVector<Device> &devices()
{
    static const QVector<Device> list{
        { QStringLiteral("ostrel"),
          QStringLiteral("Ostrel"),
          QStringLiteral("Tunable pulsed laser"),
          Device::Family::Ostrel,
          { 400.0, 700.0 },
          520.0,
          { 0.0, 100.0 },
          { 350.0, 750.0 } },
        { QStringLiteral("marquel"),
          QStringLiteral("Marquel"),
          QStringLiteral("Pulsed laser with harmonics"),
          Device::Family::Marquel,
          { 343.0, 1030.0 },
          515.0,
          { 0.0, 2000.0 },
          { 250.0, 1100.0 } },
        { QStringLiteral("marquelx"),
          QStringLiteral("Marquel X"),
          QStringLiteral("Pulsed laser with a pulse stretcher"),
          Device::Family::MarquelX,
          { 680.0, 1080.0 },
          800.0,
          { 10.0, 1000.0 },
          { 550.0, 1200.0 } },
        { QStringLiteral("lightsource"),
          QStringLiteral("Light source"),
          QStringLiteral("Tunable line and eight channels"),
          Device::Family::Plain,
          { 400.0, 750.0 },
          540.0,
          { 0.0, 100.0 },
          { 350.0, 800.0 } },
    };
    return list;
}

int findDevice(const QString &name)
{
    for (int row = 0; row < devices().size(); ++row) {
        if (devices().at(row).name == name)
            return row;
    }
    return -1;
}
