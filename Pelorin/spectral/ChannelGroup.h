#ifndef PELORIN_SPECTRAL_CHANNELGROUP_H
#define PELORIN_SPECTRAL_CHANNELGROUP_H

#include "Pelorin/PelorinGlobal.h"

#include <QList>
#include <QWidget>

class Channel;

/// The eight channels of a tunable light source as cells of numbers, two rows of four. Channels are
/// numbered 0 to 7; another number is a mistake of the caller, changes nothing, and is answered with
/// false or 0.
class PELORIN_EXPORT ChannelGroup : public QWidget
{
    Q_OBJECT

public:
    explicit ChannelGroup(QWidget *parent = nullptr);
    ~ChannelGroup() override;

    bool channelEnabled(int channel) const;
    double channelWavelength(int channel) const; ///< nm
    int channelPower(int channel) const;         ///< percent

Q_SIGNALS:
    // The operator's requests, as the cells report them.
    void enableChanged(int channel, bool channelEnabled);
    void setClicked(int channel, bool ckecked);
    void channelChanged(int channel, double channelWavelength, int channelPower);

public Q_SLOTS:
    // What the instrument reports; silent.
    void setChannel(int channel, double channelWavelength, int channelPower);
    void enableChannel(int channel, bool enable);
    void setChannelChecked(int channel, bool checked);
    void setChannelPower(int channel, int channelPower);
    void setChannelWavelength(int channel, double channelWavelength);

private:
    QList<Channel *> m_channels;
};

#endif
