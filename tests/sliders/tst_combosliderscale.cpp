#include "Pelorin/sliders/ComboSliderScale.h"
#include "Pelorin/sliders/ComboSliderUnit.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/TestCase.h"
#include "tests/support/TextList.h"

#include <memory>

namespace {

ComboSliderUnit *unitNamed(const char *text)
{
    return new ComboSliderUnit(QLatin1String(text), 0.0, 1.0, 0);
}

} // namespace

class tst_ComboSliderScale : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void startsEmpty();
    void givesItsUnitsItsOwnParent();
    void takesAwayTheParentWithoutOne();
    void listsItsUnits();
    void removesTheLastUnitWithoutDeletingIt();
    void answersBadIndicesWithNothing_data();
    void answersBadIndicesWithNothing();
    void setsTheRangeOfAUnit();
    void ignoresNull();
};

void tst_ComboSliderScale::startsEmpty()
{
    ComboSliderScale scale(QStringLiteral("Power"), nullptr);

    QCOMPARE(scale.title(), QStringLiteral("Power"));
    QCOMPARE(scale.unitCount(), 0);
    QCOMPARE(scale.unitTexts(), QStringList());
    QCOMPARE(scale.metaObject()->superClass(), &QObject::staticMetaObject);
    QCOMPARE(ownMethods(*scale.metaObject()), QStringList());

    scale.setTitle(QStringLiteral("Energy"));
    QCOMPARE(scale.title(), QStringLiteral("Energy"));
}

void tst_ComboSliderScale::givesItsUnitsItsOwnParent()
{
    QObject parent;
    auto *scale = new ComboSliderScale(QStringLiteral("Power"), &parent);
    ComboSliderUnit *const unit = unitNamed("mW");

    scale->addUnit(unit);

    QCOMPARE(unit->parent(), &parent);
}

void tst_ComboSliderScale::takesAwayTheParentWithoutOne()
{
    QObject parent;
    ComboSliderScale scale(QStringLiteral("Power"), nullptr);
    auto *unit = new ComboSliderUnit(QStringLiteral("mW"), 0.0, 1.0, 0, &parent);
    const std::unique_ptr<ComboSliderUnit> owned(unit);

    scale.addUnit(unit);

    QCOMPARE(unit->parent(), nullptr);
}

void tst_ComboSliderScale::listsItsUnits()
{
    QObject parent;
    auto *scale = new ComboSliderScale(QStringLiteral("Power"), &parent);
    ComboSliderUnit *const first = unitNamed("mW");
    ComboSliderUnit *const second = unitNamed("%");

    scale->addUnit(first);
    scale->addUnit(second);

    QCOMPARE(scale->unitCount(), 2);
    QCOMPARE(scale->unit(0), first);
    QCOMPARE(scale->unit(1), second);
    QCOMPARE(scale->unitTexts(), list({ "mW", "%" }));
}

void tst_ComboSliderScale::removesTheLastUnitWithoutDeletingIt()
{
    QObject parent;
    auto *scale = new ComboSliderScale(QStringLiteral("Power"), &parent);
    scale->addUnit(unitNamed("mW"));
    const QPointer<ComboSliderUnit> last = unitNamed("%");
    scale->addUnit(last);

    scale->removeLastUnit();
    QCOMPARE(scale->unitTexts(), list({ "mW" }));
    QVERIFY(last);
    QCOMPARE(last->parent(), &parent);

    scale->removeLastUnit();
    scale->removeLastUnit(); // of nothing
    QCOMPARE(scale->unitCount(), 0);
}

void tst_ComboSliderScale::answersBadIndicesWithNothing_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("minus one") << -1;
    QTest::newRow("at the end") << 1;
    QTest::newRow("far out") << 1000;
}

void tst_ComboSliderScale::answersBadIndicesWithNothing()
{
    QFETCH(int, index);
    QObject parent;
    auto *scale = new ComboSliderScale(QStringLiteral("Power"), &parent);
    ComboSliderUnit *const unit = unitNamed("mW");
    scale->addUnit(unit);

    scale->setUnitRange(index, 5.0, 6.0);

    QCOMPARE(scale->unit(index), nullptr);
    QCOMPARE(unit->minValue(), 0.0);
    QCOMPARE(unit->maxValue(), 1.0);
}

void tst_ComboSliderScale::setsTheRangeOfAUnit()
{
    QObject parent;
    auto *scale = new ComboSliderScale(QStringLiteral("Power"), &parent);
    scale->addUnit(unitNamed("mW"));

    scale->setUnitRange(0, 5.0, 6.0);

    QCOMPARE(scale->unit(0)->minValue(), 5.0);
    QCOMPARE(scale->unit(0)->maxValue(), 6.0);
}

void tst_ComboSliderScale::ignoresNull()
{
    ComboSliderScale scale(QStringLiteral("Power"), nullptr);

    scale.addUnit(nullptr);

    QCOMPARE(scale.unitCount(), 0);
}

PELORIN_TEST_MAIN(tst_ComboSliderScale)
#include "tst_combosliderscale.moc"
