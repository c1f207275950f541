#ifndef PELORIN_GALLERY_CHANNELDESK_H
#define PELORIN_GALLERY_CHANNELDESK_H

#include <QObject>
#include <QString>

class ChannelGroup;
class QStackedWidget;
class WavelengthSelector;

/// The eight channels of a tunable light source in three views: markers on a rainbow bar, cells of
/// numbers, and one channel in detail. What the operator does in one of them is a request; all of
/// them show what is reported, but the marker that is in the hand.
///
/// The views are to be laid out by the page that owns the desk.
class ChannelDesk : public QObject
{
    Q_OBJECT

public:
    ChannelDesk(int minNm, int maxNm, QObject *parent = nullptr);

    WavelengthSelector *selector() const { return m_selector; }
    ChannelGroup *group() const { return m_group; }
    QStackedWidget *details() const { return m_details; }

    /// Shows \a channel in detail.
    void open(int channel);

public Q_SLOTS:
    // Reports; silent.
    void showChannel(int channel, double nm, int percent);
    void showEnabled(int channel, bool enabled);

Q_SIGNALS:
    void channelRequested(int channel, double nm, int percent);
    void enableRequested(int channel, bool enabled);
    /// For a log: a view has sent a signal.
    void noted(const QString &sender, const QString &signal, const QString &values);

private:
    void addDetail(int channel);
    void wireSelector();
    void wireGroup();
    void note(const char *sender, const char *signal, int channel, double nm, int percent);
    void note(const char *sender, const char *signal, int channel, bool on);

    WavelengthSelector *m_selector;
    ChannelGroup *m_group;
    QStackedWidget *m_details;
    int m_held = -1; ///< the channel whose marker is in the hand
};

#endif
