#include "Pelorin/shell/ColHeader.h"

#include "Pelorin/controls/ShowHideButton.h"

#include <QHBoxLayout>
#include <QLabel>

namespace {

constexpr QRgb ground = 0xFFECECEC;

} // namespace

ColHeader::ColHeader(QWidget *parent)
    : QWidget(parent)
    , m_textLabel(new QLabel(QStringLiteral("Modules")))
    , m_showHideButton(new ShowHideButton(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);

    m_textLabel->setMargin(2);
    m_textLabel->setStyleSheet(
        QStringLiteral("font: 87 14pt Arial Black; color: rgb(197, 198, 198);"));
    layout->addWidget(m_textLabel, 1);
    layout->addWidget(m_showHideButton);
    connect(m_showHideButton, &ShowHideButton::clicked, this, &ColHeader::showHideClicked);

    QPalette colours = palette();
    colours.setBrush(QPalette::Window, QColor::fromRgb(ground));
    setPalette(colours);
    setAutoFillBackground(true);

    setContextMenuPolicy(Qt::CustomContextMenu);
    connect(this, &QWidget::customContextMenuRequested, this,
            &ColHeader::onCustomContextMenuRequested);
}

void ColHeader::setText(QString text)
{
    m_textLabel->setText(text);
}

QString ColHeader::text() const
{
    return m_textLabel->text();
}

void ColHeader::setTextStyleSheet(QString styleSheet)
{
    m_textLabel->setStyleSheet(styleSheet);
}

QString ColHeader::textStyleSheet() const
{
    return m_textLabel->styleSheet();
}

void ColHeader::setShowState(bool shown)
{
    if (shown == m_showState)
        return;
    m_showState = shown;
    m_showHideButton->setShowState(shown);
    Q_EMIT sigShowStateChanged(shown);
}

void ColHeader::showHideClicked()
{
    setShowState(!m_showState);
}

void ColHeader::onCustomContextMenuRequested(QPoint pos)
{
    Q_EMIT sigCustomContextMenuRequested(this, pos);
}
