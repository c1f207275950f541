#include "Pelorin/shell/GUIOverlay.h"
#include "Pelorin/shell/GUIWidget.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QPushButton>

class tst_GUIWidget : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void liesUnderAnOverlay();
    void tellsWhenItIsShownAndHidden();
    void passesItsMessagesOn();
    void keepsTheOverlayOverLaterControls();
};

void tst_GUIWidget::declaresItsInterface()
{
    const QMetaObject &meta = GUIWidget::staticMetaObject;
    QCOMPARE(meta.className(), "GUIWidget");
    QCOMPARE(meta.superClass(), &QWidget::staticMetaObject);

    QStringList methods;
    for (int i = meta.methodOffset(); i < meta.methodCount(); ++i)
        methods << QString::fromLatin1(meta.method(i).methodSignature());
    QCOMPARE(methods, QStringList({ QStringLiteral("visibilityStateChanged(bool)"),
                                    QStringLiteral("setDisabledMessage(QString)"),
                                    QStringLiteral("setOverlayMessage(QString)") }));
}

void tst_GUIWidget::liesUnderAnOverlay()
{
    GUIWidget widget;
    widget.resize(300, 200);
    widget.show();

    auto *overlay = widget.findChild<GUIOverlay *>();

    QVERIFY(overlay);
    QCOMPARE(overlay->parentWidget(), &widget);
    QCOMPARE(overlay->geometry(), QRect(0, 0, 300, 200));
    QVERIFY(overlay->isVisible());
}

void tst_GUIWidget::tellsWhenItIsShownAndHidden()
{
    QWidget window;
    auto *widget = new GUIWidget(&window);
    SignalRecorder recorder(widget);
    const QStringList shown{ QStringLiteral("visibilityStateChanged(true)") };
    const QStringList hidden{ QStringLiteral("visibilityStateChanged(false)") };

    window.show();
    QCOMPARE(recorder.taken(), shown);
    widget->show(); // it is already
    QCOMPARE(recorder.taken(), QStringList());
    widget->hide();
    QCOMPARE(recorder.taken(), hidden);
    widget->setEnabled(false);
    QCOMPARE(recorder.taken(), QStringList());
    widget->show();
    QCOMPARE(recorder.taken(), shown);
    window.hide();
    QCOMPARE(recorder.taken(), hidden);
}

void tst_GUIWidget::passesItsMessagesOn()
{
    GUIWidget widget;
    auto *overlay = widget.findChild<GUIOverlay *>();

    widget.setDisabledMessage(QStringLiteral("Away"));
    widget.setOverlayMessage(QStringLiteral("Aligning"));

    QCOMPARE(overlay->disabledMessage(), QStringLiteral("Away"));
    QCOMPARE(overlay->overlayMessage(), QStringLiteral("Aligning"));
}

void tst_GUIWidget::keepsTheOverlayOverLaterControls()
{
    GUIWidget widget;
    auto *overlay = widget.findChild<GUIOverlay *>();
    auto *button = new QPushButton(&widget);

    QCOMPARE(widget.children(), QObjectList({ button, overlay }));
}

PELORIN_TEST_MAIN(tst_GUIWidget)
#include "tst_guiwidget.moc"
