#include "Pelorin/controls/ComboBoxNGItemModel.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/SignalRecorder.h"
#include "tests/support/TestCase.h"

namespace {

constexpr Qt::ItemFlags plainFlags = Qt::ItemFlags(Qt::ItemIsSelectable) | Qt::ItemIsEnabled
                                     | Qt::ItemIsEditable | Qt::ItemIsDragEnabled
                                     | Qt::ItemIsDropEnabled;

/// Three rows, A, B and C.
struct ThreeRows
{
    ThreeRows()
    {
        for (const char *text : { "A", "B", "C" })
            model.appendRow(new QStandardItem(QLatin1String(text)));
    }

    bool disable(int row) { return model.setData(model.index(row, 0), false, Qt::UserRole); }
    bool isEnabled(int row) const { return isEnabled(model.index(row, 0)); }
    bool isEnabled(const QModelIndex &index) const
    {
        const QVariant value = model.data(index, Qt::UserRole);
        return value.type() == QVariant::Bool && value.toBool();
    }

    ComboBoxNGItemModel model;
};

} // namespace

class tst_ComboBoxNGItemModel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void derivesFromTheStandardModel();
    void holdsAnItemEnabledAtFirst();
    void disablesAnItem_data();
    void disablesAnItem();
    void takesOnlyTheChoiceFromADisabledItem();
    void isSilentAboutIt();
    void keepsTheOtherRolesApart();
    void hasNothingWhereNoItemIs();
    void makesAnItemInAnEmptyRow();
    void knowsTheItemsBelowAnItem();
    void keepsAnItemDisabledWhereverItGoes();
    void forgetsAnItemThatIsGone_data();
    void forgetsAnItemThatIsGone();
};

void tst_ComboBoxNGItemModel::derivesFromTheStandardModel()
{
    QObject parent;
    auto *model = new ComboBoxNGItemModel(&parent);

    QCOMPARE(model->metaObject()->className(), "ComboBoxNGItemModel");
    QCOMPARE(model->metaObject()->superClass(), &QStandardItemModel::staticMetaObject);
    QCOMPARE(model->parent(), &parent);
    QCOMPARE(model->rowCount(), 0);
}

void tst_ComboBoxNGItemModel::holdsAnItemEnabledAtFirst()
{
    const ThreeRows rows;

    for (int row = 0; row < 3; ++row) {
        QVERIFY(rows.isEnabled(row));
        QCOMPARE(rows.model.flags(rows.model.index(row, 0)), plainFlags);
    }
}

void tst_ComboBoxNGItemModel::disablesAnItem_data()
{
    QTest::addColumn<QVariant>("value");
    QTest::addColumn<bool>("enabled");

    QTest::newRow("false") << QVariant(false) << false;
    QTest::newRow("true") << QVariant(true) << true;
    QTest::newRow("no value") << QVariant() << false;
    QTest::newRow("zero") << QVariant(0) << false;
    QTest::newRow("a number") << QVariant(7) << true;
    QTest::newRow("a text") << QVariant(QStringLiteral("x")) << true;
    QTest::newRow("an empty text") << QVariant(QString()) << false;
}

void tst_ComboBoxNGItemModel::disablesAnItem()
{
    QFETCH(QVariant, value);
    QFETCH(bool, enabled);
    ThreeRows rows;
    rows.disable(1);

    QVERIFY(rows.model.setData(rows.model.index(1, 0), value, Qt::UserRole));

    QCOMPARE(rows.isEnabled(1), enabled);
    QVERIFY(rows.isEnabled(0));
    QVERIFY(rows.isEnabled(2));
}

void tst_ComboBoxNGItemModel::takesOnlyTheChoiceFromADisabledItem()
{
    ThreeRows rows;

    rows.disable(1);
    QCOMPARE(rows.model.flags(rows.model.index(1, 0)),
             plainFlags & ~Qt::ItemFlags(Qt::ItemIsSelectable));
    QCOMPARE(rows.model.flags(rows.model.index(0, 0)), plainFlags);

    rows.model.setData(rows.model.index(1, 0), true, Qt::UserRole);
    QCOMPARE(rows.model.flags(rows.model.index(1, 0)), plainFlags);
}

void tst_ComboBoxNGItemModel::isSilentAboutIt()
{
    ThreeRows rows;
    int reports = 0;
    connect(&rows.model, &QAbstractItemModel::dataChanged, this, [&reports] { ++reports; });
    connect(&rows.model, &QStandardItemModel::itemChanged, this, [&reports] { ++reports; });

    rows.disable(1);
    QCOMPARE(reports, 0);

    rows.model.setData(rows.model.index(1, 0), QStringLiteral("tip"), Qt::ToolTipRole);
    QCOMPARE(reports, 2);
}

void tst_ComboBoxNGItemModel::keepsTheOtherRolesApart()
{
    ThreeRows rows;
    const QModelIndex index = rows.model.index(1, 0);

    rows.disable(1);
    QVERIFY(rows.model.setData(index, QStringLiteral("tip"), Qt::ToolTipRole));
    QVERIFY(rows.model.setData(index, 42, Qt::UserRole + 1));
    QVERIFY(rows.model.setData(index, QStringLiteral("D")));

    QCOMPARE(rows.model.data(index), QVariant(QStringLiteral("D")));
    QCOMPARE(rows.model.data(index, Qt::ToolTipRole), QVariant(QStringLiteral("tip")));
    QCOMPARE(rows.model.data(index, Qt::UserRole + 1), QVariant(42));
    QVERIFY(!rows.isEnabled(1));
    QVERIFY(!rows.model.item(1)->data(Qt::UserRole).isValid()); // it is no data of the item
}

void tst_ComboBoxNGItemModel::hasNothingWhereNoItemIs()
{
    ThreeRows rows;
    ThreeRows others;
    others.disable(0);

    QVERIFY(!rows.model.setData(QModelIndex(), false, Qt::UserRole));
    QVERIFY(!rows.model.data(QModelIndex(), Qt::UserRole).isValid());
    QVERIFY(!rows.model.data(rows.model.index(3, 0), Qt::UserRole).isValid());
    QCOMPARE(rows.model.flags(QModelIndex()), QStandardItemModel().flags(QModelIndex()));
    QVERIFY(rows.isEnabled(0));
}

void tst_ComboBoxNGItemModel::makesAnItemInAnEmptyRow()
{
    ThreeRows rows;
    rows.model.insertRow(1);
    QVERIFY(rows.isEnabled(1));

    QVERIFY(rows.disable(1));

    QVERIFY(!rows.isEnabled(1));
    QVERIFY(rows.isEnabled(2));
}

void tst_ComboBoxNGItemModel::knowsTheItemsBelowAnItem()
{
    ThreeRows rows;
    auto *child = new QStandardItem(QStringLiteral("child"));
    rows.model.item(0)->appendRow(child);

    QVERIFY(rows.model.setData(child->index(), false, Qt::UserRole));
    rows.model.removeRow(2); // lets go of what is gone only

    QVERIFY(!rows.isEnabled(child->index()));
    QVERIFY(rows.isEnabled(0));
}

void tst_ComboBoxNGItemModel::keepsAnItemDisabledWhereverItGoes()
{
    ThreeRows rows;
    rows.disable(1);

    rows.model.sort(0, Qt::DescendingOrder);
    rows.model.insertRow(0, new QStandardItem(QStringLiteral("D")));
    rows.model.removeRow(1);

    QVERIFY(rows.isEnabled(0));
    QCOMPARE(rows.model.item(1)->text(), QStringLiteral("B"));
    QVERIFY(!rows.isEnabled(1));
    QVERIFY(rows.isEnabled(2));
}

void tst_ComboBoxNGItemModel::forgetsAnItemThatIsGone_data()
{
    QTest::addColumn<QString>("way");

    for (const char *way : { "row taken", "column taken", "replaced", "reset" })
        QTest::newRow(way) << QString::fromLatin1(way);
}

void tst_ComboBoxNGItemModel::forgetsAnItemThatIsGone()
{
    QFETCH(QString, way);
    ThreeRows rows;
    rows.model.setHorizontalHeaderLabels({ QString(), QString() });
    rows.disable(1);
    // The same object comes back, as an address that is used again.
    QStandardItem *item = rows.model.item(1);
    const auto replacement = [] { return new QStandardItem(QStringLiteral("X")); };

    if (way == QLatin1String("row taken")) {
        QCOMPARE(rows.model.takeRow(1).first(), item);
        rows.model.insertRow(1, item);
    } else if (way == QLatin1String("column taken")) {
        const QList<QStandardItem *> column = rows.model.takeColumn(0);
        QCOMPARE(column.at(1), item);
        rows.model.insertColumn(0, column);
    } else if (way == QLatin1String("replaced")) {
        QCOMPARE(rows.model.takeItem(1, 0), item);
        rows.model.setItem(1, 0, replacement());
        rows.model.setItem(1, 0, item);
    } else {
        rows.model.takeRow(1);
        rows.model.clear();
        rows.model.appendRow(replacement());
        rows.model.appendRow(item);
    }

    QVERIFY(rows.isEnabled(item->index()));
}

PELORIN_TEST_MAIN(tst_ComboBoxNGItemModel)
#include "tst_comboboxngitemmodel.moc"
