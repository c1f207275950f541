#include "Pelorin/controls/IconLabel.h"
#include "tests/support/MetaMethods.h"
#include "tests/support/TestCase.h"

#include <QHBoxLayout>

namespace {

const QString iconPath = QStringLiteral(":/Pelorin/images/images/settings.png"); // 22 x 22

QList<QLabel *> childrenOf(const IconLabel &label)
{
    return label.findChildren<QLabel *>(QString(), Qt::FindDirectChildrenOnly);
}

/// The child label that has the text, and the other one.
QLabel *textPart(const IconLabel &label)
{
    const QList<QLabel *> children = childrenOf(label);
    return children.first()->text().isEmpty() ? children.last() : children.first();
}

QLabel *iconPart(const IconLabel &label)
{
    const QList<QLabel *> children = childrenOf(label);
    return textPart(label) == children.first() ? children.last() : children.first();
}

/// What stands in the layout: "text", "icon", "stretch".
QStringList order(const IconLabel &label)
{
    QStringList result;
    const QLayout *layout = label.layout();
    for (int i = 0; i < layout->count(); ++i) {
        const QWidget *widget = layout->itemAt(i)->widget();
        result << (!widget                     ? QStringLiteral("stretch")
                   : widget == textPart(label) ? QStringLiteral("text")
                                               : QStringLiteral("icon"));
    }
    return result;
}

} // namespace

class tst_IconLabel : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void declaresItsInterface();
    void startsWithTheTextAlone();
    void ordersTextAndIcon_data();
    void ordersTextAndIcon();
    void showsTheIconOnlyWhereItHasAPlace();
    void givesItsTextToTheChild();
    void loadsItsIcon_data();
    void loadsItsIcon();
    void addsUpItsParts();
    void notesItsVisibility();
};

void tst_IconLabel::declaresItsInterface()
{
    const QMetaObject &meta = IconLabel::staticMetaObject;

    QCOMPARE(meta.className(), "IconLabel");
    QCOMPARE(meta.superClass(), &QLabel::staticMetaObject);
    QCOMPARE(ownMethods(meta, QMetaMethod::Signal), QStringList());
    QCOMPARE(ownMethods(meta, QMetaMethod::Slot), QStringList());
}

void tst_IconLabel::startsWithTheTextAlone()
{
    const IconLabel empty;
    const IconLabel named(QStringLiteral("Laser"));

    QCOMPARE(empty.text(), QString());
    QCOMPARE(named.text(), QStringLiteral("Laser"));
    for (const IconLabel *label : { &empty, &named }) {
        QCOMPARE(label->margin(), 5);
        QCOMPARE(childrenOf(*label).size(), 2);
        QVERIFY(label->hasVisibility());
        QCOMPARE(label->layout()->count(), 1);
        QCOMPARE(label->layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    }
    QCOMPARE(order(named), QStringList(QStringLiteral("text")));
}

void tst_IconLabel::ordersTextAndIcon_data()
{
    QTest::addColumn<int>("display");
    QTest::addColumn<QStringList>("parts");

    const QString text = QStringLiteral("text");
    const QString icon = QStringLiteral("icon");
    const QString stretch = QStringLiteral("stretch");
    QTest::newRow("no icon") << 0 << QStringList(text);
    QTest::newRow("icon left") << 1 << QStringList({ icon, stretch, text });
    QTest::newRow("icon right") << 2 << QStringList({ text, stretch, icon });
    QTest::newRow("one too many") << 3 << QStringList(text);
    QTest::newRow("negative") << -1 << QStringList(text);
}

void tst_IconLabel::ordersTextAndIcon()
{
    QFETCH(int, display);
    QFETCH(QStringList, parts);
    IconLabel label(QStringLiteral("Laser"));
    label.setIconDisplay(IconLabel::IconRight);
    label.setIconDisplay(IconLabel::IconLeft);

    label.setIconDisplay(IconLabel::IconDisplay(display));

    QCOMPARE(order(label), parts);
    QVERIFY(qobject_cast<QHBoxLayout *>(label.layout()));
    QCOMPARE(label.layout()->contentsMargins(), QMargins(0, 0, 0, 0));
    for (int i = 0; i < parts.size(); ++i)
        QCOMPARE(static_cast<QHBoxLayout *>(label.layout())->stretch(i), 0);
    QCOMPARE(childrenOf(label).size(), 2);
}

void tst_IconLabel::showsTheIconOnlyWhereItHasAPlace()
{
    IconLabel label(QStringLiteral("Laser"));
    label.setIcon(iconPath);
    label.resize(200, 40);
    label.show();
    QVERIFY(!iconPart(label)->isVisible());

    label.setIconDisplay(IconLabel::IconRight);
    QApplication::processEvents();
    QVERIFY(iconPart(label)->isVisible());
    QVERIFY(iconPart(label)->x() > textPart(label)->x());

    label.setIconDisplay(IconLabel::IconLeft);
    QApplication::processEvents();
    QVERIFY(iconPart(label)->isVisible());
    QVERIFY(iconPart(label)->x() < textPart(label)->x());

    label.setIconDisplay(IconLabel::NoIcon);
    QVERIFY(!iconPart(label)->isVisible());
    QVERIFY(textPart(label)->isVisible());
}

void tst_IconLabel::givesItsTextToTheChild()
{
    IconLabel label;

    label.setText(QStringLiteral("Power"));

    QCOMPARE(label.text(), QStringLiteral("Power"));
    QCOMPARE(textPart(label)->text(), QStringLiteral("Power"));
    QCOMPARE(label.QLabel::text(), QString());
}

void tst_IconLabel::loadsItsIcon_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("size");

    QTest::newRow("a picture") << iconPath << QSize(22, 22);
    QTest::newRow("no path") << QString() << QSize(0, 0);
    QTest::newRow("a path to nothing") << QStringLiteral(":/nothing.png") << QSize(0, 0);
}

void tst_IconLabel::loadsItsIcon()
{
    QFETCH(QString, path);
    QFETCH(QSize, size);
    IconLabel label(QStringLiteral("Laser"));
    label.setIcon(iconPath);

    label.setIcon(path);

    const QPixmap shown = iconPart(label)->pixmap(Qt::ReturnByValue);
    QCOMPARE(shown.size(), size);
}

void tst_IconLabel::addsUpItsParts()
{
    IconLabel label(QStringLiteral("Laser"));

    textPart(label)->resize(70, 20);
    iconPart(label)->resize(22, 25);
    QCOMPARE(label.sizeHint(), QSize(70 + 22 + 16, 25));

    textPart(label)->resize(70, 31);
    QCOMPARE(label.sizeHint(), QSize(70 + 22 + 16, 31));
}

void tst_IconLabel::notesItsVisibility()
{
    IconLabel label(QStringLiteral("Laser"));
    label.show();

    label.setHasVisibility(false);

    QVERIFY(!label.hasVisibility());
    QVERIFY(label.isVisible()); // a note and no more
}

PELORIN_TEST_MAIN(tst_IconLabel)
#include "tst_iconlabel.moc"
