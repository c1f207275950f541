#include "Pelorin/controls/IconLabel.h"

#include <QHBoxLayout>

#include <algorithm>

IconLabel::IconLabel(QWidget *parent)
    : QLabel(parent)
    , m_textLabel(new QLabel(this))
    , m_iconLabel(new QLabel(this))
{
    setMargin(5);
    refresh();
}

IconLabel::IconLabel(const QString &text, QWidget *parent)
    : IconLabel(parent)
{
    setText(text);
}

void IconLabel::setText(const QString &text)
{
    m_textLabel->setText(text);
}

QString IconLabel::text() const
{
    return m_textLabel->text();
}

void IconLabel::setIcon(const QString &path)
{
    m_iconLabel->setPixmap(QPixmap(path));
}

void IconLabel::setIconDisplay(IconLabel::IconDisplay display)
{
    m_iconDisplay = display;
    refresh();
}

QSize IconLabel::sizeHint() const
{
    constexpr int gaps = 16;
    return QSize(m_textLabel->width() + m_iconLabel->width() + gaps,
                 std::max(m_textLabel->height(), m_iconLabel->height()));
}

void IconLabel::refresh()
{
    delete layout();
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    const bool hasIcon = m_iconDisplay == IconLeft || m_iconDisplay == IconRight;
    QLabel *const first = m_iconDisplay == IconLeft ? m_iconLabel : m_textLabel;
    QLabel *const second = m_iconDisplay == IconLeft ? m_textLabel : m_iconLabel;
    row->addWidget(first);
    if (hasIcon) {
        row->addStretch(0);
        row->addWidget(second);
    }
    // Outside of the layout it would lie over the text.
    m_iconLabel->setVisible(hasIcon);
}
