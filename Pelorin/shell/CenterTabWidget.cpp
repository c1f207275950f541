#include "Pelorin/shell/CenterTabWidget.h"

#include "Pelorin/shell/SplashImage.h"

#include <QGridLayout>
#include <QTabWidget>
#include <QVBoxLayout>

CenterTabWidget::CenterTabWidget(QWidget *parent)
    : QWidget(parent)
    , m_tabWidget(new QTabWidget)
{
    auto *layout = new QVBoxLayout(this);
    layout->setContentsMargins(1, 1, 1, 1);
    layout->addWidget(m_tabWidget);

    QWidget *welcome = makeWelcomePage();
    appendCenterWidget(welcome, tr("Welcome"), true, true);
    QPalette palette = welcome->palette();
    palette.setBrush(QPalette::Window, palette.color(QPalette::Window));
    welcome->setPalette(palette);
    welcome->setAutoFillBackground(true);
}

void CenterTabWidget::appendCenterWidget(QWidget *widget, QString widgetName, bool persistent,
                                         bool selectWidget)
{
    if (!widget)
        return;
    m_tabWidget->addTab(widget, widgetName);
    const int index = m_tabWidget->count() - 1;
    if (selectWidget)
        m_tabWidget->setCurrentIndex(index);
    m_centerWidgets.insert(index, { widgetName, persistent, widget });
}

void CenterTabWidget::removeCenterWidget(QWidget *widget)
{
    if (!widget)
        return;
    const int records = m_centerWidgets.size();
    for (int i = 0; i < records; ++i) {
        const tCenterWidget record = m_centerWidgets.value(i);
        if (record.widget != widget || record.persistent)
            continue;
        QWidget *there = m_tabWidget->widget(i);
        m_tabWidget->removeTab(i);
        if (there)
            there->deleteLater();
        m_centerWidgets.remove(i);
        return;
    }
}

void CenterTabWidget::removeAllCenterWidgets()
{
    QList<QWidget *> widgets;
    for (const tCenterWidget &record : qAsConst(m_centerWidgets))
        widgets.append(record.widget);
    for (QWidget *widget : qAsConst(widgets))
        removeCenterWidget(widget);
    m_tabWidget->setCurrentIndex(0);
}

void CenterTabWidget::selectCenterWidget(QWidget *widget)
{
    const int index = m_tabWidget->indexOf(widget);
    if (index >= 0 && index != m_tabWidget->currentIndex())
        m_tabWidget->setCurrentIndex(index);
}

void CenterTabWidget::selectCenterWidget(QString widgetName)
{
    const QString wanted = widgetName.toUpper();
    for (const tCenterWidget &record : qAsConst(m_centerWidgets)) {
        if (record.widgetName.toUpper() == wanted) {
            selectCenterWidget(record.widget);
            return;
        }
    }
}

QWidget *CenterTabWidget::makeWelcomePage()
{
    auto *page = new QWidget;
    auto *layout = new QGridLayout(page);
    layout->addWidget(new SplashImage(page), 1, 1);
    constexpr int stretches[] = { 1, 10, 1 };
    for (int i = 0; i < 3; ++i) {
        layout->setColumnStretch(i, stretches[i]);
        layout->setRowStretch(i, stretches[i]);
    }
    return page;
}
