#ifndef PELORIN_TESTS_ASSEMBLYWIRING_H
#define PELORIN_TESTS_ASSEMBLYWIRING_H

#include "tests/support/MetaMethods.h"
#include "tests/support/MouseHand.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QLabel>
#include <QLayout>
#include <QLineEdit>

/// What holds for every assembly of slider and number field. Each operation shows and makes an
/// assembly, over 0 to 100 at 40, and fails the test that calls it.
template<typename Assembly>
class AssemblyWiring
{
public:
    explicit AssemblyWiring(Assembly *assembly)
        : m_assembly(assembly)
        , m_recorder(assembly)
    {
        m_assembly->resize(700, 500);
        m_assembly->show();
        m_assembly->setRange(0.0, 100.0, true);
        m_assembly->setValue(40.0);
        m_recorder.taken();
    }

    void setsInSilence()
    {
        m_assembly->setValue(12.5);
        QCOMPARE(m_assembly->slider->value0(), 12.5);
        QCOMPARE(m_assembly->lineEdit->value(), 12.5);

        m_assembly->setRange(0.0, 50.0, true);
        QCOMPARE(m_assembly->slider->maximum(), 50.0);
        QCOMPARE(m_assembly->lineEdit->maximum(), 50.0);
        QCOMPARE(m_assembly->slider->value0(),
                 6.3); // the handle has kept its place, rounded to a decimal
        QCOMPARE(m_recorder.taken(), QStringList());
    }

    void reportsAChangeAlways()
    {
        for (int i = 0; i < 2; ++i) {
            m_assembly->changeValue(60.0);
            QCOMPARE(m_recorder.taken(), signalPair(60));
            QCOMPARE(m_assembly->lineEdit->value(), 60.0);
        }
    }

    void followsADrag()
    {
        MouseHand hand(*m_assembly->slider);
        const QPoint from = handle(40.0);
        const QPoint to = handle(70.0);

        hand.press(from);
        hand.move(to);
        const double value = m_assembly->slider->value0();
        QVERIFY(qAbs(value - 70.0) < 1.0);
        QCOMPARE(m_recorder.taken(), signalPair(value).mid(0, 1));
        QCOMPARE(m_assembly->lineEdit->value(), value);

        m_assembly->setValue(5.0); // the reading does not move the handle, but the number
        QCOMPARE(m_assembly->slider->value0(), value);
        QCOMPARE(m_assembly->lineEdit->value(), 5.0);
        m_assembly->changeValue(6.0);
        QCOMPARE(m_recorder.taken(), QStringList());

        hand.release(to);
        QCOMPARE(m_recorder.taken(), signalPair(value).mid(1));
    }

    void takesATypedNumber()
    {
        type("62.5");
        QCOMPARE(m_recorder.taken(), signalPair(62.5));
        QCOMPARE(m_assembly->slider->value0(), 62.5);

        type("900");
        QCOMPARE(m_recorder.taken(), signalPair(100));
        QCOMPARE(m_assembly->lineEdit->value(), 100.0);
        QCOMPARE(m_assembly->lineEdit->text(), QStringLiteral("100.00"));
    }

    void forwardsItsDigits()
    {
        m_assembly->setValuePrecision(3);
        QCOMPARE(m_assembly->valuePrecision(), 3);
        QCOMPARE(m_assembly->slider->valuePrecision(), 3);
        QCOMPARE(m_assembly->lineEdit->valuePrecision(), 3);

        m_assembly->setLabelDecimalDigits(2);
        m_assembly->setLabelRoundingDigits(0);
        QCOMPARE(m_assembly->slider->labelDecimalDigits(), 2);
        QCOMPARE(m_assembly->labelDecimalDigits(), 2);
        QCOMPARE(m_assembly->slider->labelRoundingDigits(), 0);
        QCOMPARE(m_assembly->labelRoundingDigits(), 0);
    }

    void startsWithItsParts(ScaleSliderNG::ScaleType type)
    {
        QCOMPARE(m_assembly->titleLabel->text(), QStringLiteral("Title"));
        QCOMPARE(m_assembly->unitLabel->text(), QStringLiteral("?"));
        QCOMPARE(m_assembly->unitLabel->property("type").toString(), QStringLiteral("label"));
        QCOMPARE(m_assembly->slider->scaleType(), type);
        QCOMPARE(m_assembly->slider->labelDigits(), 5);
        QCOMPARE(m_assembly->slider->labelDecimalDigits(), 0);
        const QWidget *panel = m_assembly->slider->parentWidget();
        QCOMPARE(QByteArray(panel->metaObject()->className()), QByteArray("ContainerWidget"));
        QCOMPARE(panel->property("widget-color").toString(), QStringLiteral("light-grey"));
        QCOMPARE(Assembly::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    }

    /// \a more are the slots that only this class has.
    void declaresInOrder(const QStringList &more)
    {
        const QStringList own = ownMethods(Assembly::staticMetaObject);
        const QString common = QStringLiteral(
            "valueChanging(double) valueChanged(double) setValue(double) "
            "changeValue(double) setRange(double,double,bool) setRange(double,double)");
        QCOMPARE(own, common.split(QLatin1Char(' ')) + more);
    }

private:
    static QStringList signalPair(double value)
    {
        return { QStringLiteral("valueChanging(%1)").arg(value),
                 QStringLiteral("valueChanged(%1)").arg(value) };
    }

    /// The middle of the handle at \a value.
    QPoint handle(double value) const
    {
        const ScaleSliderNG &slider = *m_assembly->slider;
        constexpr int size = 35;
        if (slider.orientation() == Qt::Horizontal) {
            const int travel = slider.width() - 2 * slider.sideMargins() - size;
            return QPoint(slider.sideMargins() + qRound(travel * value / 100.0) + size / 2,
                          size / 2);
        }
        const int travel = slider.height() - size;
        return QPoint(slider.width() - 1 - size / 2,
                      qRound(travel * (100.0 - value) / 100.0) + size / 2);
    }

    void type(const char *number)
    {
        TestCase::tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in "));
        m_assembly->lineEdit->setFocus();
        m_assembly->lineEdit->selectAll();
        QTest::keyClicks(m_assembly->lineEdit, QLatin1String(number));
        QTest::keyClick(m_assembly->lineEdit, Qt::Key_Return);
    }

    Assembly *m_assembly;
    SignalRecorder m_recorder;
};

#endif
