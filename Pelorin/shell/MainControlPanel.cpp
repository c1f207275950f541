#include "Pelorin/shell/MainControlPanel.h"

#include <QFrame>
#include <QGridLayout>
#include <QSplitter>

namespace {

constexpr int handleWidth = 10;

} // namespace

MainControlPanel::MainControlPanel(QWidget *parent)
    : QWidget(parent)
    , m_splitter(new QSplitter(Qt::Vertical))
    , m_childFrame(makePane(m_childLayout))
    , m_mainFrame(makePane(m_mainLayout))
{
    auto *layout = new QGridLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(2);

    m_splitter->setHandleWidth(handleWidth);
    m_splitter->setChildrenCollapsible(false);
    connect(m_splitter, &QSplitter::splitterMoved, this, &MainControlPanel::onSplitterMoved);
    m_splitter->addWidget(m_mainFrame);
    m_splitter->addWidget(m_childFrame);
    // A splitter keeps stretch factors only for the panes that it has already.
    m_splitter->setStretchFactor(0, 1);
    m_splitter->setStretchFactor(1, 0);
    layout->addWidget(m_splitter);
}

void MainControlPanel::showChildControl(QWidget *widget, bool showState)
{
    showControl(widget, showState, m_childControls, *m_childLayout, *m_childFrame);
}

void MainControlPanel::showMainControl(QWidget *widget, bool showState)
{
    showControl(widget, showState, m_mainControls, *m_mainLayout, *m_mainFrame);
}

void MainControlPanel::setSplitterState(QByteArray state)
{
    m_splitter->restoreState(state);
}

void MainControlPanel::onSplitterMoved(int, int)
{
    Q_EMIT splitterStateChanged(m_splitter->saveState());
}

QFrame *MainControlPanel::makePane(QGridLayout *&layout)
{
    auto *pane = new QFrame;
    pane->setFrameStyle(QFrame::NoFrame);
    pane->setVisible(false);
    layout = new QGridLayout(pane);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setAlignment(Qt::AlignTop | Qt::AlignLeft);
    return pane;
}

void MainControlPanel::showControl(QWidget *widget, bool showState, Controls &controls,
                                   QGridLayout &layout, QFrame &pane)
{
    if (widget && !controls.contains(widget)) {
        widget->setVisible(false);
        controls.append(widget);
        layout.addWidget(widget);
    }
    if (widget && !showState)
        return;
    for (const QPointer<QWidget> &control : qAsConst(controls)) {
        if (control && control != widget)
            control->hide();
    }
    if (widget)
        widget->show();
    pane.setVisible(widget != nullptr);
}
