#ifndef PELORIN_GALLERY_DEVICELIST_H
#define PELORIN_GALLERY_DEVICELIST_H

#include <Pelorin/ScrollAreaNG>
#include <Pelorin/ScrollAreaNGItem>

#include <QColor>
#include <QString>

class DeviceItem;
class QLabel;

/// The devices of the lab, each with its lamp and what it is doing. A click, or the arrows and the space
/// bar, choose one.
class DeviceList : public ScrollAreaNG
{
    Q_OBJECT

public:
    explicit DeviceList(QWidget *parent = nullptr);

    void add(const QString &title);

    /// What the device at \a row is doing, by its state byte; a \a fault goes before it.
    void showState(int row, uchar state, const QString &fault);

    QSize sizeHint() const override;

private:
    DeviceItem *item(int row) const;
};

/// A row of the list. It paints itself from what the list says of it.
class DeviceItem : public ScrollAreaNGItem
{
    Q_OBJECT

public:
    explicit DeviceItem(const QString &title);

    void show(const QString &state, const QColor &lamp);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void enterEvent(QEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QString m_title;
    QString m_state;
    QColor m_lamp;
};

#endif
