#include "Pelorin/controls/LineEditNumberNG.h"
#include "Pelorin/sliders/ScaleSliderNG.h"
#include "tests/controls/LineEditModel.h"
#include "tests/support/ModelWalk.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QFocusEvent>
#include <QRandomGenerator>
#include <QTimer>

namespace {

constexpr int longTimeMs = 600000; ///< an edit timeout that never comes by itself

/// The field and its model, taken through the same operations.
class Pair
{
public:
    explicit Pair(quint32 seed)
        : m_random(seed)
        , m_recorder(&m_edit, QString(), &QLineEdit::staticMetaObject)
    {
        m_edit.setEditTimeout(longTimeMs);
    }

    void setInfinity(bool on)
    {
        m_edit.enableInfinity(on);
        m_model.infinity = on;
    }
    void setTimed(bool on)
    {
        m_edit.enableEditTimeout(on);
        m_model.timed = on;
    }

    /// One random operation on both; its description.
    QString step();
    /// What is not alike; empty if all is.
    QString difference();

private:
    QString type();
    QString editLine();
    QString setNumber();
    QString setLimits();
    QString usePopup();
    QString leave();
    double number();
    void press(Qt::Key key, const QString &text = QString())
    {
        QTest::sendKeyEvent(QTest::Press, &m_edit, key, text, Qt::NoModifier);
    }
    bool timerRuns() const { return m_edit.findChild<QTimer *>()->isActive(); }

    QRandomGenerator m_random;
    LineEditNumberNG m_edit{ nullptr };
    LineEditModel m_model;
    SignalRecorder m_recorder;
};

double Pair::number()
{
    switch (m_random.bounded(6)) {
    case 0:
        return m_model.low;
    case 1:
        return m_model.high;
    case 2:
        return m_random.bounded(2) ? qInf() : -qInf();
    default:
        return m_model.low + (m_model.high - m_model.low) * (m_random.bounded(1.4) - 0.2);
    }
}

QString Pair::type()
{
    static const struct
    {
        Qt::Key key;
        char sign;
        char shown;
    } keys[] = { { Qt::Key_0, '0', '0' },     { Qt::Key_1, '1', '1' },
                 { Qt::Key_2, '2', '2' },     { Qt::Key_5, '5', '5' },
                 { Qt::Key_9, '9', '9' },     { Qt::Key_Plus, '+', '+' },
                 { Qt::Key_Minus, '-', '-' }, { Qt::Key_Period, '.', '.' },
                 { Qt::Key_Comma, ',', '.' }, { Qt::Key_I, 'i', 'i' },
                 { Qt::Key_N, 'n', 'n' },     { Qt::Key_F, 'f', 'f' } };
    const auto &key = keys[m_random.bounded(int(std::size(keys)))];
    press(key.key, QString(QLatin1Char(key.sign)));
    m_model.typed(QLatin1Char(key.shown));
    return QStringLiteral("type %1").arg(QLatin1Char(key.sign));
}

QString Pair::editLine()
{
    static const struct
    {
        Qt::Key key;
        void (LineEditModel::*act)();
        const char *name;
    } keys[] = { { Qt::Key_Backspace, &LineEditModel::backspace, "Backspace" },
                 { Qt::Key_Delete, &LineEditModel::del, "Delete" },
                 { Qt::Key_Home, &LineEditModel::home, "Home" },
                 { Qt::Key_End, &LineEditModel::end, "End" },
                 { Qt::Key_Left, &LineEditModel::left, "Left" },
                 { Qt::Key_Right, &LineEditModel::right, "Right" },
                 { Qt::Key_Escape, &LineEditModel::key, "Escape" } };
    const auto &key = keys[m_random.bounded(int(std::size(keys)))];
    press(key.key);
    (m_model.*key.act)();
    return QLatin1String(key.name);
}

QString Pair::setNumber()
{
    const double value = number();
    if (m_random.bounded(2)) {
        m_edit.setValue(value);
        m_model.setValue(value);
        return QStringLiteral("setValue(%1)").arg(value, 0, 'g', 17);
    }
    m_edit.changeValue(value);
    m_model.changeValue(value);
    return QStringLiteral("changeValue(%1)").arg(value, 0, 'g', 17);
}

QString Pair::setLimits()
{
    if (m_random.bounded(3) == 0) {
        const int decimals = m_random.bounded(4);
        m_edit.setValuePrecision(decimals);
        m_model.setDecimals(decimals);
        return QStringLiteral("setValuePrecision(%1)").arg(decimals);
    }
    const double a = m_random.bounded(-4, 9) * (m_random.bounded(2) ? 25.0 : 33.3);
    const double b = m_random.bounded(4) ? a + m_random.bounded(300.0)
                                         : m_random.bounded(-4, 9) * 12.5; // often the wrong way
    const bool silent = m_random.bounded(2);
    m_edit.setRange(a, b, silent);
    m_model.setRange(a, b, silent);
    return QStringLiteral("setRange(%1, %2, %3)").arg(a).arg(b).arg(silent);
}

QString Pair::usePopup()
{
    auto *slider = m_edit.findChild<ScaleSliderNG *>();
    const double value = number();
    if (m_random.bounded(2)) {
        Q_EMIT slider->valueChanging0(value);
        m_model.popupMoves(value);
        return QStringLiteral("drag the popup to %1").arg(value, 0, 'g', 17);
    }
    Q_EMIT slider->valueChanged0(value);
    m_model.popupSettles();
    return QStringLiteral("let the popup go");
}

QString Pair::leave()
{
    if (m_random.bounded(2)) {
        QFocusEvent out(QEvent::FocusOut, Qt::TabFocusReason);
        QApplication::sendEvent(&m_edit, &out);
        m_model.loseFocus();
        return QStringLiteral("lose the focus");
    }
    m_edit.setEditTimeout(0);
    while (timerRuns())
        QApplication::processEvents(QEventLoop::WaitForMoreEvents);
    m_edit.setEditTimeout(longTimeMs);
    m_model.timeout();
    return QStringLiteral("time out");
}

QString Pair::step()
{
    const int kind = m_random.bounded(24);
    if (kind < 8)
        return type();
    if (kind < 12)
        return editLine();
    if (kind < 14)
        return setNumber();
    if (kind < 15)
        return setLimits();
    if (kind < 17)
        return usePopup();
    if (kind < 19)
        return leave();
    if (kind < 21) {
        press(m_random.bounded(2) ? Qt::Key_Return : Qt::Key_Enter);
        m_model.enter();
        return QStringLiteral("Return");
    }
    const bool up = m_random.bounded(2);
    press(up ? Qt::Key_Up : Qt::Key_Down);
    m_model.step(up ? 1 : -1);
    return up ? QStringLiteral("Up") : QStringLiteral("Down");
}

QString Pair::difference()
{
    QStringList expected;
    expected.swap(m_model.log);
    const auto told = [](const QStringList &list) { return list.join(QStringLiteral("; ")); };
    const auto state = [](const QString &text, int cursor, bool selected, bool running,
                          double value) {
        return QStringLiteral("'%1', cursor %2, all selected %3, editing %4, value %5")
            .arg(text)
            .arg(cursor)
            .arg(selected)
            .arg(running)
            .arg(value, 0, 'g', 17);
    };
    const QString is = state(m_edit.text(), m_edit.cursorPosition(), m_edit.hasSelectedText(),
                             timerRuns(), m_edit.value())
                       + QStringLiteral(", signals ") + told(m_recorder.taken());
    const QString shouldBe =
        state(m_model.line, m_model.cursor, m_model.allSelected, m_model.running, m_model.current)
        + QStringLiteral(", signals ") + told(expected);
    return is == shouldBe ? QString() : is + QStringLiteral("\nexpected\n") + shouldBe;
}

} // namespace

class tst_LineEditNumberNGModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void doesAsItsModel_data();
    void doesAsItsModel();
};

void tst_LineEditNumberNGModel::doesAsItsModel_data()
{
    QTest::addColumn<bool>("infinity");
    QTest::addColumn<bool>("timed");

    QTest::newRow("plain") << false << true;
    QTest::newRow("with infinity") << true << true;
    QTest::newRow("without the edit timeout") << false << false;
    QTest::newRow("with infinity, without the edit timeout") << true << false;
}

void tst_LineEditNumberNGModel::doesAsItsModel()
{
    QFETCH(bool, infinity);
    QFETCH(bool, timed);
    tolerateMessages(QtDebugMsg, QStringLiteral("LineEditNumberNG::textEdited-in"));
    tolerateMessages(QtDebugMsg, QStringLiteral("priPopupSliderValueChang"));
    tolerateMessages(QtWarningMsg, QStringLiteral("LineEditNumberNG::setRange - min:"));

    for (quint32 seed = 1; seed <= 5; ++seed) {
        Pair pair(seed);
        pair.setInfinity(infinity);
        pair.setTimed(timed);
        const QString difference = walkTogether(pair, 2000);
        QVERIFY2(difference.isEmpty(),
                 qPrintable(QStringLiteral("seed %1, ").arg(seed) + difference));
    }
}

PELORIN_TEST_MAIN(tst_LineEditNumberNGModel)
#include "tst_lineeditnumberngmodel.moc"
