#include "Pelorin/containers/FlowLayout.h"
#include "tests/containers/FlowReference.h"
#include "tests/support/TestCase.h"

#include <QHBoxLayout>
#include <QPointer>
#include <QProxyStyle>
#include <QPushButton>
#include <QRandomGenerator>
#include <QScrollArea>

#include <limits>

namespace {

constexpr int maxInt = std::numeric_limits<int>::max();
constexpr int minInt = std::numeric_limits<int>::min();

/// An item of a fixed hint that counts how many of its kind live.
class Box : public QLayoutItem
{
public:
    explicit Box(QSize hint, QSize minimum = QSize(0, 0))
        : m_hint(hint)
        , m_minimum(minimum)
    {
        ++alive;
    }
    ~Box() override { --alive; }

    QSize sizeHint() const override { return m_hint; }
    QSize minimumSize() const override { return m_minimum; }
    QSize maximumSize() const override { return QSize(QWIDGETSIZE_MAX, QWIDGETSIZE_MAX); }
    Qt::Orientations expandingDirections() const override { return Qt::Horizontal; }
    void setGeometry(const QRect &rect) override { m_place = rect; }
    QRect geometry() const override { return m_place; }
    bool isEmpty() const override { return false; }

    static int alive;

private:
    QSize m_hint;
    QSize m_minimum;
    QRect m_place;
};

int Box::alive = 0;

/// A style that answers for spacings with numbers of its own; -1 passes the question on to the
/// items.
class SpacingStyle : public QProxyStyle
{
public:
    SpacingStyle(int horizontal, int vertical, int between)
        : m_horizontal(horizontal)
        , m_vertical(vertical)
        , m_between(between)
    {}

    int pixelMetric(PixelMetric metric, const QStyleOption *option,
                    const QWidget *widget) const override
    {
        if (metric == PM_LayoutHorizontalSpacing)
            return m_horizontal;
        if (metric == PM_LayoutVerticalSpacing)
            return m_vertical;
        return QProxyStyle::pixelMetric(metric, option, widget);
    }
    int layoutSpacing(QSizePolicy::ControlType first, QSizePolicy::ControlType second,
                      Qt::Orientation orientation, const QStyleOption *,
                      const QWidget *) const override
    {
        if (first != QSizePolicy::PushButton || second != QSizePolicy::PushButton)
            return 99;
        return orientation == Qt::Horizontal ? m_between : m_between + 1;
    }

private:
    int m_horizontal;
    int m_vertical;
    int m_between;
};

QWidget *square(int side, QWidget *parent)
{
    auto *widget = new QWidget(parent);
    widget->setFixedSize(side, side);
    return widget;
}

QVector<QRect> places(const FlowLayout &layout)
{
    QVector<QRect> result;
    for (int i = 0; i < layout.count(); ++i)
        result << layout.itemAt(i)->geometry();
    return result;
}

QWidgetList widgets(const FlowLayout &layout)
{
    QWidgetList result;
    for (int i = 0; i < layout.count(); ++i)
        result << layout.itemAt(i)->widget();
    return result;
}

/// Counts how often a layout says that it is no longer valid.
class CountingLayout : public FlowLayout
{
public:
    using FlowLayout::FlowLayout;
    void invalidate() override
    {
        ++invalidations;
        FlowLayout::invalidate();
    }
    int invalidations = 0;
};

} // namespace

Q_DECLARE_METATYPE(QMargins)

class tst_FlowLayout : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void isAQLayout();
    void startsEmpty();
    void laysOutItsParent();

    void keepsThreeItemsInARow_data();
    void keepsThreeItemsInARow();
    void leavesAWideItemAloneInItsRow();
    void takesTheHighestItemOfARow();
    void doesNotWrapARowWithoutHeight();
    void startsAtTheCornerOfItsRectangle();
    void movesNothingWhenAskedForAHeight();
    void answersTheLargestMinimum_data();
    void answersTheLargestMinimum();

    void hasNoItemOutsideOfItsList_data();
    void hasNoItemOutsideOfItsList();
    void handsATakenItemOver();
    void deletesWhatItHolds();
    void insertsAtAPlace_data();
    void insertsAtAPlace();
    void ignoresANullItem();
    void swapsTwoWidgets();
    void swapsOnlyWhatItHolds();
    void forgetsADeletedWidget();

    void asksTheParentForItsSpacing_data();
    void asksTheParentForItsSpacing();
    void asksTheItemsForTheirSpacing();
    void spacesWithoutAWidgetToAsk();

    void survivesAbsurdNumbers_data();
    void survivesAbsurdNumbers();
    void growsInAScrollArea();
    void doesAsItsReference_data();
    void doesAsItsReference();
};

void tst_FlowLayout::isAQLayout()
{
    QCOMPARE(FlowLayout::staticMetaObject.className(), "FlowLayout");
    QCOMPARE(FlowLayout::staticMetaObject.superClass(), &QLayout::staticMetaObject);
}

void tst_FlowLayout::startsEmpty()
{
    const FlowLayout layout(7, 3, 4);

    QCOMPARE(layout.parent(), nullptr);
    QCOMPARE(layout.count(), 0);
    QCOMPARE(layout.contentsMargins(), QMargins(7, 7, 7, 7));
    QCOMPARE(layout.horizontalSpacing(), 3);
    QCOMPARE(layout.verticalSpacing(), 4);
    QCOMPARE(layout.expandingDirections(), Qt::Orientations());
    QVERIFY(layout.hasHeightForWidth());
    QCOMPARE(layout.heightForWidth(100), 14);
    QCOMPARE(layout.minimumSize(), QSize(13, 13));
    QCOMPARE(layout.sizeHint(), QSize(13, 13));
}

void tst_FlowLayout::laysOutItsParent()
{
    QWidget parent;
    auto *layout = new FlowLayout(&parent, 5, 2, 2);
    layout->addWidget(square(30, &parent));
    layout->addWidget(square(40, nullptr));

    parent.resize(200, 100);
    parent.show();

    QCOMPARE(parent.layout(), layout);
    QCOMPARE(widgets(*layout).at(1)->parentWidget(), &parent);
    QCOMPARE(places(*layout), QVector<QRect>({ QRect(5, 5, 30, 30), QRect(37, 5, 40, 40) }));
}

void tst_FlowLayout::keepsThreeItemsInARow_data()
{
    QTest::addColumn<int>("inner");
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("rows");

    QTest::newRow("room to spare") << 1000 << 0 << 1;
    QTest::newRow("exactly") << 320 << 0 << 1;
    QTest::newRow("exactly, within margins") << 320 << 9 << 1;
    QTest::newRow("a pixel short") << 319 << 0 << 2;
    QTest::newRow("a pixel short, within margins") << 319 << 9 << 2;
    QTest::newRow("two exactly") << 210 << 0 << 2;
    QTest::newRow("two, a pixel short") << 209 << 0 << 3;
    QTest::newRow("less than one") << 1 << 0 << 3;
    QTest::newRow("nothing") << 0 << 0 << 3;
    QTest::newRow("negative") << -50 << 0 << 3;
    QTest::newRow("smallest") << minInt << 0 << 3;
}

void tst_FlowLayout::keepsThreeItemsInARow()
{
    QFETCH(int, inner);
    QFETCH(int, margin);
    QFETCH(int, rows);
    FlowLayout layout(margin, 10, 6);
    for (int i = 0; i < 3; ++i)
        layout.addItem(new Box(QSize(100, 20)));

    const int height = layout.heightForWidth(inner + 2 * margin);

    QCOMPARE(height, 2 * margin + rows * 20 + (rows - 1) * 6);
}

void tst_FlowLayout::leavesAWideItemAloneInItsRow()
{
    FlowLayout layout(0, 10, 5);
    for (const int width : { 50, 500, 50, 40 })
        layout.addItem(new Box(QSize(width, 20)));

    layout.setGeometry(QRect(0, 0, 200, 100));

    QCOMPARE(places(layout), QVector<QRect>({ QRect(0, 0, 50, 20), QRect(0, 25, 500, 20),
                                              QRect(0, 50, 50, 20), QRect(60, 50, 40, 20) }));
}

void tst_FlowLayout::takesTheHighestItemOfARow()
{
    FlowLayout layout(0, 0, 5);
    for (const int height : { 10, 40, 20, 15 })
        layout.addItem(new Box(QSize(50, height)));

    layout.setGeometry(QRect(0, 0, 150, 100));

    QCOMPARE(places(layout), QVector<QRect>({ QRect(0, 0, 50, 10), QRect(50, 0, 50, 40),
                                              QRect(100, 0, 50, 20), QRect(0, 45, 50, 15) }));
    QCOMPARE(layout.heightForWidth(150), 60);
}

void tst_FlowLayout::doesNotWrapARowWithoutHeight()
{
    FlowLayout layout(0, 10, 5);
    for (const QSize size : { QSize(80, 0), QSize(80, 0), QSize(80, 20), QSize(80, 20) })
        layout.addItem(new Box(size));

    layout.setGeometry(QRect(0, 0, 100, 100));

    QCOMPARE(places(layout), QVector<QRect>({ QRect(0, 0, 80, 0), QRect(90, 0, 80, 0),
                                              QRect(180, 0, 80, 20), QRect(0, 25, 80, 20) }));
}

void tst_FlowLayout::startsAtTheCornerOfItsRectangle()
{
    FlowLayout layout(0, 10, 5);
    layout.setContentsMargins(1, 2, 3, 4);
    for (int i = 0; i < 2; ++i)
        layout.addItem(new Box(QSize(50, 20)));

    layout.setGeometry(QRect(-30, 70, 113, 10)); // 1 pixel less than both and the gap take
    QCOMPARE(places(layout), QVector<QRect>({ QRect(-29, 72, 50, 20), QRect(-29, 97, 50, 20) }));

    layout.setGeometry(QRect(-30, 70, 114, 10));
    QCOMPARE(places(layout), QVector<QRect>({ QRect(-29, 72, 50, 20), QRect(31, 72, 50, 20) }));
    QCOMPARE(layout.geometry(), QRect(-30, 70, 114, 10));
    QCOMPARE(layout.heightForWidth(114), 26);
}

void tst_FlowLayout::movesNothingWhenAskedForAHeight()
{
    FlowLayout layout(0, 10, 5);
    layout.addItem(new Box(QSize(50, 20)));
    layout.setGeometry(QRect(3, 4, 100, 100));

    QCOMPARE(layout.heightForWidth(20), 20);

    QCOMPARE(places(layout), QVector<QRect>({ QRect(3, 4, 50, 20) }));
}

void tst_FlowLayout::answersTheLargestMinimum_data()
{
    QTest::addColumn<QVector<QSize>>("minima");
    QTest::addColumn<QMargins>("margins");
    QTest::addColumn<QSize>("minimum");

    using Sizes = QVector<QSize>;
    const QMargins even(4, 4, 4, 4);
    QTest::newRow("no item") << Sizes() << even << QSize(7, 7);
    QTest::newRow("no item, no margin") << Sizes() << QMargins(0, 0, 0, 0) << QSize(-1, -1);
    QTest::newRow("one item") << Sizes({ { 30, 20 } }) << even << QSize(38, 28);
    QTest::newRow("widest and highest apart")
        << Sizes({ { 30, 20 }, { 10, 50 }, { 5, 5 } }) << even << QSize(38, 58);
    QTest::newRow("an item of no size") << Sizes({ { 0, 0 } }) << even << QSize(8, 8);
    // Four margins that differ are no one margin; Qt calls that -1.
    QTest::newRow("uneven margins")
        << Sizes({ { 30, 20 } }) << QMargins(4, 4, 4, 5) << QSize(28, 18);
}

void tst_FlowLayout::answersTheLargestMinimum()
{
    QFETCH(QVector<QSize>, minima);
    QFETCH(QMargins, margins);
    QFETCH(QSize, minimum);
    FlowLayout layout(0, 10, 10);
    layout.setContentsMargins(margins);
    for (const QSize size : minima)
        layout.addItem(new Box(QSize(100, 100), size));

    QCOMPARE(layout.minimumSize(), minimum);
    QCOMPARE(layout.sizeHint(), minimum);
}

void tst_FlowLayout::hasNoItemOutsideOfItsList_data()
{
    QTest::addColumn<int>("index");

    QTest::newRow("before the first") << -1;
    QTest::newRow("behind the last") << 2;
    QTest::newRow("largest") << maxInt;
    QTest::newRow("smallest") << minInt;
}

void tst_FlowLayout::hasNoItemOutsideOfItsList()
{
    QFETCH(int, index);
    FlowLayout layout(0, 10, 10);
    layout.addItem(new Box(QSize(1, 1)));
    layout.addItem(new Box(QSize(2, 2)));

    QCOMPARE(layout.itemAt(index), nullptr);
    QCOMPARE(layout.takeAt(index), nullptr);
    QCOMPARE(layout.count(), 2);
}

void tst_FlowLayout::handsATakenItemOver()
{
    std::unique_ptr<QLayoutItem> taken;
    {
        FlowLayout layout(0, 10, 10);
        auto *box = new Box(QSize(1, 1));
        layout.addItem(new Box(QSize(2, 2)));
        layout.addItem(box);

        taken.reset(layout.takeAt(1));

        QCOMPARE(taken.get(), box);
        QCOMPARE(layout.count(), 1);
    }
    QCOMPARE(Box::alive, 1); // the layout has left what it gave away
}

void tst_FlowLayout::deletesWhatItHolds()
{
    QWidget parent;
    const QPointer<QWidget> child = square(10, &parent);
    auto *layout = new FlowLayout(&parent, 0, 10, 10);
    layout->addWidget(child);
    layout->addItem(new Box(QSize(1, 1)));
    layout->insertItem(0, new Box(QSize(1, 1)));

    delete layout;

    QCOMPARE(Box::alive, 0);
    QVERIFY(child);
}

void tst_FlowLayout::insertsAtAPlace_data()
{
    QTest::addColumn<int>("index");
    QTest::addColumn<int>("place");

    QTest::newRow("smallest") << minInt << 0;
    QTest::newRow("negative") << -3 << 0;
    QTest::newRow("first") << 0 << 0;
    QTest::newRow("second") << 1 << 1;
    QTest::newRow("third") << 2 << 2;
    QTest::newRow("last") << 3 << 3;
    QTest::newRow("beyond the last") << 4 << 3;
    QTest::newRow("far beyond") << 99 << 3;
    QTest::newRow("largest") << maxInt << 3;
}

void tst_FlowLayout::insertsAtAPlace()
{
    QFETCH(int, index);
    QFETCH(int, place);
    CountingLayout layout(0, 10, 10);
    for (int i = 0; i < 3; ++i)
        layout.addItem(new Box(QSize(1, 1)));
    auto *item = new Box(QSize(1, 1));
    layout.invalidations = 0;

    layout.insertItem(index, item);

    QCOMPARE(layout.count(), 4);
    QCOMPARE(layout.itemAt(place), item);
    QCOMPARE(layout.invalidations, 1);
}

void tst_FlowLayout::ignoresANullItem()
{
    FlowLayout layout(0, 10, 10);

    layout.addItem(nullptr);
    layout.insertItem(0, nullptr);
    layout.insertItem(9, nullptr);

    QCOMPARE(layout.count(), 0);
    QCOMPARE(layout.heightForWidth(100), 0);
}

void tst_FlowLayout::swapsTwoWidgets()
{
    QWidget parent;
    auto *layout = new CountingLayout(&parent, 0, 10, 10);
    QWidget *a = square(10, &parent);
    QWidget *b = square(20, &parent);
    QWidget *c = square(30, &parent);
    for (QWidget *widget : { a, b, c })
        layout->addWidget(widget);
    parent.resize(500, 100);
    parent.show();
    layout->invalidations = 0;

    layout->swap(a, c);
    QCOMPARE(widgets(*layout), QWidgetList({ c, b, a }));
    QCOMPARE(layout->invalidations, 1);

    layout->swap(a, b);
    QCOMPARE(widgets(*layout), QWidgetList({ c, a, b }));

    QTRY_COMPARE(b->pos(), QPoint(30 + 10 + 10 + 10, 0)); // the layout follows by itself
    QCOMPARE(a->pos(), QPoint(30 + 10, 0));
}

void tst_FlowLayout::swapsOnlyWhatItHolds()
{
    QWidget parent;
    auto *layout = new CountingLayout(&parent, 0, 10, 10);
    QWidget *a = square(10, &parent);
    QWidget *b = square(20, &parent);
    QWidget *stranger = square(20, &parent);
    layout->addWidget(a);
    layout->addItem(new Box(QSize(1, 1))); // its widget is null, and null is not looked for
    layout->addWidget(b);
    const QWidgetList before = widgets(*layout);
    layout->invalidations = 0;

    layout->swap(a, stranger);
    layout->swap(stranger, b);
    layout->swap(nullptr, b);
    layout->swap(a, nullptr);
    layout->swap(nullptr, nullptr);
    layout->swap(a, a);

    QCOMPARE(widgets(*layout), before);
    QCOMPARE(layout->invalidations, 0);
}

void tst_FlowLayout::forgetsADeletedWidget()
{
    QWidget parent;
    auto *layout = new FlowLayout(&parent, 0, 10, 10);
    QWidget *a = square(10, &parent);
    layout->addWidget(a);
    layout->insertItem(0, new QWidgetItem(square(20, &parent)));

    delete a;

    QCOMPARE(layout->count(), 1);
    QCOMPARE(layout->heightForWidth(100), 20);
}

void tst_FlowLayout::asksTheParentForItsSpacing_data()
{
    QTest::addColumn<int>("hSpacing");
    QTest::addColumn<int>("vSpacing");
    QTest::addColumn<QSize>("spacing");
    QTest::addColumn<int>("widthOfTwo");

    QTest::newRow("both given") << 1 << 2 << QSize(1, 2) << 21;
    QTest::newRow("none at all is given too") << 0 << 0 << QSize(0, 0) << 20;
    QTest::newRow("horizontal from the style") << -1 << 2 << QSize(12, 2) << 32;
    QTest::newRow("vertical from the style") << 1 << -1 << QSize(1, 14) << 21;
    QTest::newRow("both from the style") << -7 << minInt << QSize(12, 14) << 32;
}

void tst_FlowLayout::asksTheParentForItsSpacing()
{
    QFETCH(int, hSpacing);
    QFETCH(int, vSpacing);
    QFETCH(QSize, spacing);
    QFETCH(int, widthOfTwo);
    SpacingStyle style(12, 14, 50);
    QWidget parent;
    parent.setStyle(&style);
    auto *layout = new FlowLayout(&parent, 0, hSpacing, vSpacing);
    for (int i = 0; i < 2; ++i)
        layout->addWidget(square(10, &parent));

    QCOMPARE(layout->horizontalSpacing(), spacing.width());
    QCOMPARE(layout->verticalSpacing(), spacing.height());
    QCOMPARE(layout->heightForWidth(widthOfTwo), 10);
    QCOMPARE(layout->heightForWidth(widthOfTwo - 1), 20 + spacing.height());
}

void tst_FlowLayout::asksTheItemsForTheirSpacing()
{
    SpacingStyle style(-1, -1, 8);
    QWidget parent;
    auto *layout = new FlowLayout(&parent, 0, -1, -1);
    parent.setStyle(&style);
    for (int i = 0; i < 3; ++i) {
        QWidget *child = square(10, &parent);
        child->setStyle(&style);
        layout->addWidget(child);
    }

    QCOMPARE(layout->horizontalSpacing(), -1);
    QCOMPARE(layout->verticalSpacing(), -1);
    QCOMPARE(layout->heightForWidth(10 + 8 + 10), 10 + 9 + 10);

    layout->setGeometry(QRect(0, 0, 28, 30));
    QCOMPARE(places(*layout),
             QVector<QRect>({ QRect(0, 0, 10, 10), QRect(18, 0, 10, 10), QRect(0, 19, 10, 10) }));
}

void tst_FlowLayout::spacesWithoutAWidgetToAsk()
{
    QWidget parent;
    QHBoxLayout outer(&parent);
    outer.setSpacing(23);
    auto *inner = new FlowLayout(0, -1, -1);
    outer.addLayout(inner);
    QCOMPARE(inner->horizontalSpacing(), 23);
    QCOMPARE(inner->verticalSpacing(), 23);

    FlowLayout lonely(0, -1, -1);
    QCOMPARE(lonely.horizontalSpacing(), -1);
    QCOMPARE(lonely.verticalSpacing(), -1);
    lonely.addItem(new Box(QSize(10, 10)));
    lonely.addItem(new Box(QSize(10, 10)));
    const int gap = QApplication::style()->layoutSpacing(QSizePolicy::PushButton,
                                                         QSizePolicy::PushButton, Qt::Horizontal);
    QCOMPARE(lonely.heightForWidth(20 + gap), 10);
    QVERIFY(lonely.heightForWidth(20 + gap - 1) > 10);
}

void tst_FlowLayout::survivesAbsurdNumbers_data()
{
    QTest::addColumn<int>("margin");
    QTest::addColumn<int>("spacing");
    QTest::addColumn<int>("side");
    QTest::addColumn<int>("width");

    for (const int margin : { 0, maxInt }) {
        for (const int spacing : { 0, maxInt }) {
            for (const int side : { 0, maxInt }) {
                for (const int width : { minInt, 0, maxInt }) {
                    QTest::addRow("margin %d, spacing %d, items of %d, width %d", margin, spacing,
                                  side, width)
                        << margin << spacing << side << width;
                }
            }
        }
    }
}

void tst_FlowLayout::survivesAbsurdNumbers()
{
    QFETCH(int, margin);
    QFETCH(int, spacing);
    QFETCH(int, side);
    QFETCH(int, width);
    FlowLayout layout(margin, spacing, spacing);
    for (int i = 0; i < 300; ++i)
        layout.addItem(new Box(QSize(side, side), QSize(side, side)));

    QVERIFY(layout.heightForWidth(width) >= 0);
    QVERIFY(layout.minimumSize().width() >= 0);
    layout.setGeometry(QRect(QPoint(1000, 1000), QSize(500, 500)));
    for (const QRect &place : places(layout))
        QVERIFY(place.x() >= 1000 && place.y() >= 1000);
}

void tst_FlowLayout::growsInAScrollArea()
{
    QScrollArea area;
    auto *container = new QWidget;
    auto *layout = new FlowLayout(container, 0, 10, 10);
    for (int i = 0; i < 12; ++i)
        layout->addWidget(square(50, container));
    area.setFrameShape(QFrame::NoFrame);
    area.setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area.setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    area.setWidgetResizable(true);
    area.setWidget(container);

    area.resize(230, 100); // four in a row
    area.show();
    QTRY_COMPARE(container->height(), 170);

    area.resize(110, 100); // two in a row
    QTRY_COMPARE(container->height(), 350);
}

void tst_FlowLayout::doesAsItsReference_data()
{
    QTest::addColumn<quint32>("seed");

    for (quint32 seed = 1; seed <= 8; ++seed)
        QTest::addRow("seed %u", seed) << seed;
}

/// Items of random sizes come, go and change places; after each change the flow is laid out in a
/// random rectangle.
void tst_FlowLayout::doesAsItsReference()
{
    QFETCH(quint32, seed);
    QRandomGenerator random(seed);
    const int hSpacing = random.bounded(15);
    const int vSpacing = random.bounded(15);
    FlowLayout layout(0, hSpacing, vSpacing);
    QVector<QSize> items;
    QStringList done;

    for (int step = 0; step < 1500; ++step) {
        const bool growing = items.isEmpty() || random.bounded(100) < (items.size() < 60 ? 60 : 40);
        const int index = random.bounded(-3, items.size() + 4);
        if (growing) {
            const QSize size(random.bounded(120), random.bounded(3) ? random.bounded(60) : 0);
            items.insert(qBound(0, index, items.size()), size);
            layout.insertItem(index, new Box(size));
        } else {
            const std::unique_ptr<QLayoutItem> taken(layout.takeAt(index));
            QCOMPARE(taken != nullptr, index >= 0 && index < items.size());
            if (taken)
                items.removeAt(index);
        }
        const QMargins margins(random.bounded(20), random.bounded(20), random.bounded(20),
                               random.bounded(20));
        const QRect area(random.bounded(-50, 50), random.bounded(-50, 50), random.bounded(600),
                         random.bounded(600));
        done << QStringLiteral("%1 at %2 in %3 of %4")
                    .arg(growing ? QStringLiteral("insert") : QStringLiteral("take"))
                    .arg(index)
                    .arg(area.width())
                    .arg(items.size());

        layout.setContentsMargins(margins);
        layout.setGeometry(area);

        const FlowReference expected(items, area, margins, hSpacing, vSpacing);
        const QByteArray history = done.mid(done.size() - 20).join(QLatin1Char('\n')).toLatin1();
        QVERIFY2(places(layout) == expected.places, history.constData());
        const int height = layout.heightForWidth(area.width());
        QVERIFY2(height == expected.height, history.constData());
    }
}

PELORIN_TEST_MAIN(tst_FlowLayout)
#include "tst_flowlayout.moc"
