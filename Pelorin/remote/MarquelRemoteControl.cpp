#include "Pelorin/remote/MarquelRemoteControl.h"

#include "Pelorin/controls/Button.h"
#include "Pelorin/remote/PanelParts_p.h"
#include "Pelorin/theme/StyleProperty_p.h"

#include <QDialog>
#include <QLabel>
#include <QVariant>

namespace {

QLabel *makeLabel(const QString &text, QLatin1String type)
{
    auto *label = new QLabel(text);
    label->setProperty(StyleProperty::type, type);
    label->setAlignment(Qt::AlignHCenter);
    return label;
}

Button *makeAnswer(const QString &text)
{
    auto *button = new Button(text);
    button->setSize(Button::Small);
    button->setColor(Button::DarkGrey);
    return button;
}

/// The first button that a dialog meets is the one that Return presses, and it is Cancel that stands
/// first: nobody switches a laser on by a key too many.
QWidget *makeAnswerRow(Button *accept, Button *cancel)
{
    auto *row = new QWidget;
    auto *layout = new QHBoxLayout(row);
    layout->addStretch(1);
    layout->addWidget(cancel);
    layout->addWidget(accept);
    return row;
}

} // namespace

MarquelRemoteControl::MarquelRemoteControl(QWidget *parent)
    : QWidget(parent)
    , m_emissionButton(PanelParts::makeEmissionButton(tr("Emission\nON / OFF"),
                                                      QStringLiteral("Toggle Emission"), this))
{
    connect(m_emissionButton, &IndicatorButton::toggled, this,
            &MarquelRemoteControl::slotWriteEmissionState);
    PanelParts::makeRow(this)->addWidget(m_emissionButton);
}

void MarquelRemoteControl::slotEmissionChanged(bool on)
{
    m_emission = on;
    m_emissionButton->setColors(Indicator::Red, Indicator::Grey);
    m_emissionButton->setActive(on);
    Q_EMIT sigEmissionStateChanged(on);
}

void MarquelRemoteControl::slotDWLSFeatureChanged(bool enabled)
{
    m_dwlsFeature = enabled;
    Q_EMIT sigDWLSFeatureChanged(enabled);
}

void MarquelRemoteControl::slotDWLSSetpointsChanged(double setpointIR, double setpointSHG,
                                                    double setpointTHG, double setpointFHG)
{
    storeDWLSSetpoints(setpointIR, setpointSHG, setpointTHG, setpointFHG);
    Q_EMIT sigDWLSSetpointsChanged(setpointIR, setpointSHG, setpointTHG, setpointFHG);
}

void MarquelRemoteControl::slotDynamicWavelengthChanged(uchar wavelength)
{
    m_dynamicWavelength = wavelength;
    Q_EMIT sigDynamicWavelengthChanged(wavelength);
}

void MarquelRemoteControl::slotMeasuredPowerChanged(double measuredPower, double maximumPower)
{
    storeMeasuredPower(measuredPower, maximumPower);
    Q_EMIT sigMeasuredLaserPowerChanged(measuredPower, maximumPower);
}

void MarquelRemoteControl::slotSetpointLaserPowerChanged(double setpoint)
{
    m_setpointLaserPower = setpoint;
    Q_EMIT sigSetpointLaserPowerChanged(setpoint);
}

void MarquelRemoteControl::slotSetpointLaserPowerRangeChanged(double min, double max, int dec,
                                                              QString unit)
{
    storeSetpointRange(min, max, dec, unit);
    Q_EMIT sigSetpointLaserPowerRangeChanged(min, max, dec, unit);
}

void MarquelRemoteControl::slotSetNoHarmonicWavelengthWarning(bool enable)
{
    m_noHarmonicWavelengthWarning = enable;
}

void MarquelRemoteControl::slotWriteEmissionState(bool on)
{
    if (on && m_noHarmonicWavelengthWarning && !warningNoHarmonicWavelength())
        return; // the panel itself may be gone: a dialog that is deleted counts as cancelled
    Q_EMIT sigWriteEmissionState(on);
}

void MarquelRemoteControl::slotWriteDWLSFeature(bool enabled)
{
    m_dwlsFeature = enabled;
    Q_EMIT sigWriteDWLSFeature(enabled);
}

void MarquelRemoteControl::slotWriteDWLSSetpoints()
{
    Q_EMIT sigWriteDWLSSetpoints();
}

void MarquelRemoteControl::slotWriteDynamicWavelength(uchar wavelength)
{
    m_dynamicWavelength = wavelength;
    Q_EMIT sigWriteDynamicWavelength(wavelength);
}

void MarquelRemoteControl::slotWriteLaserPowerSetpoint(double setpoint)
{
    m_setpointLaserPower = setpoint;
    Q_EMIT sigWriteLaserPowerSetpoint(setpoint);
}

bool MarquelRemoteControl::warningNoHarmonicWavelength()
{
    auto *dialog = new QDialog(this);
    dialog->setModal(true);
    dialog->setWindowFlags(dialog->windowFlags() & ~Qt::WindowContextHelpButtonHint);
    Button *accept = makeAnswer(tr("OK"));
    Button *cancel = makeAnswer(tr("Cancel"));
    connect(accept, &QAbstractButton::clicked, dialog, &QDialog::accept);
    connect(cancel, &QAbstractButton::clicked, dialog, &QDialog::reject);

    auto *layout = new QVBoxLayout(dialog);
    layout->addWidget(makeLabel(QStringLiteral("** Attention **"), StyleType::labelHeader), 0,
                      Qt::AlignHCenter);
    layout->addWidget(makeLabel(QStringLiteral("No wavelength selected.\nClick OK to continue."),
                                StyleType::label),
                      0, Qt::AlignHCenter);
    layout->addStretch(1);
    layout->addWidget(makeAnswerRow(accept, cancel), 0, Qt::AlignRight);
    return dialog->exec() == QDialog::Accepted;
}
