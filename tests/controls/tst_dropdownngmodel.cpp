#include "Pelorin/controls/DropDownNG.h"
#include "tests/controls/DropDownModel.h"
#include "tests/support/ModelWalk.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

#include <QRandomGenerator>

namespace {

/// The widget and its model, taken through the same operations.
class Pair
{
public:
    explicit Pair(quint32 seed)
        : m_random(seed)
        , m_recorder(&m_list, QString(), &QComboBox::staticMetaObject)
    {
        m_list.show();
    }

    /// One random operation on both; its description.
    QString step();

    /// In what they differ, or nothing.
    QString difference();

private:
    QString changeItems();
    QString changeOneItem();
    QString changeCurrent();
    QString useKeys();
    QStringList shown() const;
    QString itemDifference(int index) const;

    /// Few, so that the same one comes up again.
    QString text() { return QString(1 + m_random.bounded(3), QChar('A' + m_random.bounded(4))); }
    QStringList texts()
    {
        QStringList result;
        for (int i = m_random.bounded(4); i > 0; --i)
            result << text();
        return result;
    }
    int index() { return m_random.bounded(-1, m_model.count() + 2); }

    QRandomGenerator m_random;
    DropDownNG m_list;
    DropDownModel m_model;
    SignalRecorder m_recorder;
};

QString Pair::step()
{
    switch (m_random.bounded(4)) {
    case 0:
        return changeItems();
    case 1:
        return changeOneItem();
    case 2:
        return changeCurrent();
    default:
        return useKeys();
    }
}

QString Pair::changeItems()
{
    const int at = index();
    const int data = 1 + m_random.bounded(9);
    const QString word = text();
    const QStringList words = texts();
    const bool grows = m_model.count() < 12;
    switch (m_random.bounded(grows ? 7 : 3)) {
    case 0:
    case 1:
        m_list.removeItem(at);
        m_model.remove(at);
        return QStringLiteral("removeItem(%1)").arg(at);
    case 2:
        if (m_random.bounded(5) == 0) {
            m_list.clear();
            m_model.clear();
        }
        return QStringLiteral("clear(), one time of five");
    case 3:
        m_list.addItem(word, data);
        m_model.insert(m_model.count(), { word }, data);
        return QStringLiteral("addItem(%1)").arg(word);
    case 4:
        m_list.addItems(words);
        m_model.add(words);
        return QStringLiteral("addItems(%1)").arg(words.join(QLatin1Char(' ')));
    case 5:
        m_list.insertItem(at, QIcon(), word, data);
        m_model.insert(at, { word }, data);
        return QStringLiteral("insertItem(%1, %2)").arg(at).arg(word);
    default:
        m_list.insertItems(at, words);
        m_model.insert(at, words);
        return QStringLiteral("insertItems(%1, %2)").arg(at).arg(words.join(QLatin1Char(' ')));
    }
}

QString Pair::changeOneItem()
{
    const int at = index();
    const bool visible = m_random.bounded(3) > 0;
    const int data = 1 + m_random.bounded(9);
    const QString word = text();
    switch (m_random.bounded(3)) {
    case 0:
        m_list.setItemVisibility(at, visible);
        m_model.change(at, [=](DropDownModel::Item &item) { item.visible = visible; });
        return QStringLiteral("setItemVisibility(%1, %2)").arg(at).arg(visible);
    case 1:
        m_list.setItemText(at, word);
        m_model.change(at, [=](DropDownModel::Item &item) { item.text = word; });
        return QStringLiteral("setItemText(%1, %2)").arg(at).arg(word);
    default:
        m_list.setItemUserData(at, data);
        m_model.change(at, [=](DropDownModel::Item &item) { item.userData = data; });
        return QStringLiteral("setItemUserData(%1, %2)").arg(at).arg(data);
    }
}

QString Pair::changeCurrent()
{
    const int at = index();
    const bool enabled = m_random.bounded(3) > 0;
    const QString word = text();
    switch (m_random.bounded(4)) {
    case 0:
        m_list.setCurrentIndex(at);
        m_model.setCurrentIndex(at);
        return QStringLiteral("setCurrentIndex(%1)").arg(at);
    case 1:
        m_list.setCurrentText(word);
        m_model.setCurrentText(word);
        return QStringLiteral("setCurrentText(%1)").arg(word);
    case 2:
        m_list.setDisabledIndex(at);
        m_model.disabledIndex = at;
        return QStringLiteral("setDisabledIndex(%1)").arg(at);
    default:
        m_list.setEnabled(enabled);
        m_model.setEnabled(enabled);
        return QStringLiteral("setEnabled(%1)").arg(enabled);
    }
}

QString Pair::useKeys()
{
    struct Move
    {
        Qt::Key key;
        int place;
    };
    const Move moves[] = { { Qt::Key_Down, m_model.position + 1 },
                           { Qt::Key_Up, m_model.position - 1 },
                           { Qt::Key_Home, 0 },
                           { Qt::Key_End, m_model.box.size() - 1 } };
    const Move &move = moves[m_random.bounded(4)];
    if (m_list.isEnabled())
        QTest::keyClick(&m_list, move.key);
    m_model.choose(move.place);
    return QStringLiteral("key to position %1").arg(move.place);
}

QStringList Pair::shown() const
{
    const QComboBox &box = m_list;
    QStringList result;
    for (int i = 0; i < box.count(); ++i)
        result << box.itemText(i);
    return result;
}

QString Pair::itemDifference(int index) const
{
    const bool has = m_model.has(index);
    const DropDownModel::Item item =
        has ? m_model.items.at(index) : DropDownModel::Item{ false, QString(), 0 };
    const bool isSame = m_list.itemVisibility(index) == item.visible
                        && m_list.itemText(index) == item.text
                        && m_list.itemUserData(index).toInt() == item.userData;
    return isSame ? QString() : QStringLiteral("item %1").arg(index);
}

QString Pair::difference()
{
    const QStringList reported = m_recorder.taken();
    if (reported != m_model.signalOrder)
        return QStringLiteral("signals: ") + reported.join(QLatin1Char(' '));
    m_model.signalOrder.clear();
    if (m_list.count() != m_model.count())
        return QStringLiteral("count %1").arg(m_list.count());
    for (int i = -2; i < m_model.count() + 3; ++i) {
        const QString found = itemDifference(i);
        if (!found.isEmpty())
            return found;
    }
    QStringList visible;
    int width = 25;
    for (int i = 0; i < m_model.box.size(); ++i) {
        visible << m_model.textAt(i);
        width = qMax(width, m_list.fontMetrics().boundingRect(visible.last()).width());
    }
    if (shown() != visible)
        return QStringLiteral("box: ") + shown().join(QLatin1Char(' '));
    if (m_list.currentIndex() != m_model.currentIndex()
        || m_list.currentText() != m_model.currentText()) {
        return QStringLiteral("current index %1").arg(m_list.currentIndex());
    }
    return m_list.width() == width + 25 ? QString()
                                        : QStringLiteral("width %1").arg(m_list.width());
}

} // namespace

/// Thousands of random operations on a DropDownNG and on its model.
class tst_DropDownNGModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void agreesWithItsModel_data();
    void agreesWithItsModel();
};

void tst_DropDownNGModel::agreesWithItsModel_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

void tst_DropDownNGModel::agreesWithItsModel()
{
    QFETCH(quint32, seed);
    Pair pair(seed);

    const QString difference = walkTogether(pair, 1500);

    QVERIFY2(difference.isEmpty(), qPrintable(difference));
}

PELORIN_TEST_MAIN(tst_DropDownNGModel)
#include "tst_dropdownngmodel.moc"
