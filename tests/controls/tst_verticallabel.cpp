#include "Pelorin/controls/VerticalLabel.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/PaintRecorder.h"
#include "tests/support/RepaintCounter.h"
#include "tests/support/TestCase.h"

#include <QFontMetrics>
#include <QImage>

#include <limits>

namespace {

constexpr int maxInt = std::numeric_limits<int>::max();
constexpr int minInt = std::numeric_limits<int>::min();
const QString title = QStringLiteral("Power");

QFontMetrics metricsOf(int points)
{
    return QFontMetrics(QFont(QStringLiteral("Calibri"), points));
}

} // namespace

Q_DECLARE_METATYPE(Qt::Alignment)

class tst_VerticalLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsInLightGrey();
    void fitsItselfToItsText_data();
    void fitsItselfToItsText();
    void fitsItselfToAnotherText();
    void asksForAllTheHeight();
    void readsDownwards_data();
    void readsDownwards();
    void countsItsIndentInHalfLetters_data();
    void countsItsIndentInHalfLetters();
    void changesItsColor();
    void paintsTheGroundOfTheSheet();
    void survivesAbsurdSizes_data();
    void survivesAbsurdSizes();
};

void tst_VerticalLabel::declaresItsInterface()
{
    const QMetaObject &meta = VerticalLabel::staticMetaObject;

    QCOMPARE(meta.className(), "VerticalLabel");
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList());
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), QStringList());
}

void tst_VerticalLabel::startsInLightGrey()
{
    const VerticalLabel empty;
    const VerticalLabel named(title);

    QCOMPARE(empty.text(), QString());
    QCOMPARE(named.text(), title);
    for (const VerticalLabel *label : { &empty, &named }) {
        QCOMPARE(label->fontSize(), 18);
        QCOMPARE(label->fontColor().rgba(), 0xFFC5C6C6);
        QCOMPARE(label->minimumWidth(), metricsOf(18).height());
        QCOMPARE(label->maximumWidth(), metricsOf(18).height());
    }
    QCOMPARE(empty.minimumHeight(), 0);
    QCOMPARE(named.minimumHeight(), metricsOf(18).horizontalAdvance(title));
}

void tst_VerticalLabel::fitsItselfToItsText_data()
{
    QTest::addColumn<int>("points");

    QTest::newRow("small") << 8;
    QTest::newRow("large") << 48;
}

void tst_VerticalLabel::fitsItselfToItsText()
{
    QFETCH(int, points);
    VerticalLabel label(title);

    label.setFontSize(points);

    QCOMPARE(label.fontSize(), points);
    QCOMPARE(label.minimumWidth(), metricsOf(points).height());
    QCOMPARE(label.maximumWidth(), metricsOf(points).height());
    QCOMPARE(label.minimumHeight(), metricsOf(points).horizontalAdvance(title));
    QCOMPARE(label.maximumHeight(), QWIDGETSIZE_MAX);
}

void tst_VerticalLabel::fitsItselfToAnotherText()
{
    VerticalLabel label(title);

    label.setText(title + title);

    QCOMPARE(label.text(), title + title);
    QCOMPARE(label.minimumHeight(), metricsOf(18).horizontalAdvance(title + title));
}

void tst_VerticalLabel::asksForAllTheHeight()
{
    const VerticalLabel label(title);

    QCOMPARE(label.sizeHint(), QSize(metricsOf(18).height(), 16777215));
    QCOMPARE(label.minimumSizeHint(), label.minimumSize());
}

void tst_VerticalLabel::readsDownwards_data()
{
    QTest::addColumn<Qt::Alignment>("alignment");
    QTest::addColumn<QString>("place");

    QTest::newRow("left is at the top")
        << (Qt::AlignLeft | Qt::AlignVCenter) << QStringLiteral("top");
    QTest::newRow("right is at the bottom")
        << (Qt::AlignRight | Qt::AlignVCenter) << QStringLiteral("bottom");
    QTest::newRow("centre") << Qt::Alignment(Qt::AlignCenter) << QStringLiteral("middle");
}

void tst_VerticalLabel::readsDownwards()
{
    QFETCH(Qt::Alignment, alignment);
    QFETCH(QString, place);
    VerticalLabel label(title);
    label.setAlignment(alignment);
    label.resize(label.width(), 300);

    const PaintRecorder::Text text = PaintRecorder(label).find(title);

    const QFontMetrics metrics = metricsOf(18);
    const int space = 300 - metrics.horizontalAdvance(title);
    const qreal top = place == QLatin1String("top")      ? 0.0
                      : place == QLatin1String("bottom") ? space
                                                         : space / 2.0;
    QCOMPARE(text.font.family(), QStringLiteral("Calibri"));
    QCOMPARE(text.font.pointSize(), 18);
    QCOMPARE(text.color.rgba(), 0xFFC5C6C6);
    // The base line runs down, with the letters' feet at the left.
    QVERIFY2(qAbs(text.baseline.y() - top) <= 1.0, qPrintable(QString::number(text.baseline.y())));
    QVERIFY2(qAbs(text.baseline.x() - (label.width() - metrics.ascent())) <= 1.0,
             qPrintable(QString::number(text.baseline.x())));
}

void tst_VerticalLabel::countsItsIndentInHalfLetters_data()
{
    QTest::addColumn<int>("indent");
    QTest::addColumn<int>("halves");

    QTest::newRow("by itself") << -1 << 0;
    QTest::newRow("none") << 0 << 0;
    QTest::newRow("one") << 1 << 1;
    QTest::newRow("four") << 4 << 4;
    QTest::newRow("smallest") << minInt << 0;
}

void tst_VerticalLabel::countsItsIndentInHalfLetters()
{
    QFETCH(int, indent);
    QFETCH(int, halves);
    VerticalLabel label(title);
    label.resize(label.width(), 300);

    label.setIndent(indent);
    QCOMPARE(PaintRecorder(label).find(title).baseline.y(), 0.0); // not before the next text

    label.setText(title);
    const int half = metricsOf(18).horizontalAdvance(QLatin1Char('X')) / 2;
    QCOMPARE(PaintRecorder(label).find(title).baseline.y(), qreal(halves * half));
}

void tst_VerticalLabel::changesItsColor()
{
    VerticalLabel label(title);
    label.show();
    RepaintCounter repaints(label);

    label.setFontColor(QColor(1, 2, 3));

    QCOMPARE(repaints.taken(), 1);
    QCOMPARE(label.fontColor(), QColor(1, 2, 3));
    QCOMPARE(PaintRecorder(label).find(title).color.rgb(), qRgb(1, 2, 3));
}

void tst_VerticalLabel::paintsTheGroundOfTheSheet()
{
    VerticalLabel label;
    label.setStyleSheet(QStringLiteral("VerticalLabel { background-color: #87212E; }"));
    label.resize(label.width(), 100);

    QCOMPARE(label.grab().toImage().pixel(5, 50), 0xFF87212E);
}

void tst_VerticalLabel::survivesAbsurdSizes_data()
{
    QTest::addColumn<int>("points");

    QTest::newRow("none") << 0;
    QTest::newRow("negative") << -18;
    QTest::newRow("smallest") << minInt;
    QTest::newRow("huge") << 100000;
    QTest::newRow("largest") << maxInt;
}

void tst_VerticalLabel::survivesAbsurdSizes()
{
    QFETCH(int, points);
    VerticalLabel label(title);
    label.setIndent(maxInt);

    label.setFontSize(points);

    QCOMPARE(label.fontSize(), points);
    label.setFixedSize(50, 200);
    QCOMPARE(label.grab().size(), QSize(50, 200));
}

PELORIN_TEST_MAIN(tst_VerticalLabel)
#include "tst_verticallabel.moc"
