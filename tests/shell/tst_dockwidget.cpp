#include "Pelorin/shell/DockWidget.h"
#include "tests/support/TestCase.h"

#include <QMainWindow>
#include <QResizeEvent>

class tst_DockWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsWithItsDefaults();
    void keepsTheSizeOfTheFirstResizeEvent();
    void recordsTheAreaItSitsIn();
};

void tst_DockWidget::startsWithItsDefaults()
{
    QWidget parent;
    const DockWidget titled(QStringLiteral("Spectrum"), Qt::RightDockWidgetArea, false, &parent,
                            Qt::WindowFlags());
    const DockWidget plain(Qt::TopDockWidgetArea, true, nullptr);

    QCOMPARE(titled.windowTitle(), QStringLiteral("Spectrum"));
    QCOMPARE(titled.parentWidget(), &parent);
    QCOMPARE(titled.defaultArea(), Qt::RightDockWidgetArea);
    QCOMPARE(titled.currentArea(), Qt::RightDockWidgetArea);
    QVERIFY(!titled.defaultVisible());
    QCOMPARE(titled.defSize(), QSize(-1, -1));
    QCOMPARE(plain.windowTitle(), QString());
    QCOMPARE(plain.defaultArea(), Qt::TopDockWidgetArea);
    QVERIFY(plain.defaultVisible());
    QCOMPARE(plain.metaObject()->superClass(), &QDockWidget::staticMetaObject);
}

void tst_DockWidget::keepsTheSizeOfTheFirstResizeEvent()
{
    DockWidget dock(QStringLiteral("Spectrum"), Qt::LeftDockWidgetArea, true);
    for (const QSize size : { QSize(320, 200), QSize(500, 300), QSize(10, 10) }) {
        QResizeEvent event(size, QSize());
        QApplication::sendEvent(&dock, &event);
    }

    QCOMPARE(dock.defSize(), QSize(320, 200));
}

void tst_DockWidget::recordsTheAreaItSitsIn()
{
    QMainWindow window;
    auto *dock = new DockWidget(QStringLiteral("Spectrum"), Qt::LeftDockWidgetArea, true, &window);
    window.addDockWidget(Qt::LeftDockWidgetArea, dock);

    window.addDockWidget(Qt::BottomDockWidgetArea, dock);

    QCOMPARE(dock->currentArea(), Qt::BottomDockWidgetArea);
    QCOMPARE(dock->defaultArea(), Qt::LeftDockWidgetArea);
}

PELORIN_TEST_MAIN(tst_DockWidget)
#include "tst_dockwidget.moc"
