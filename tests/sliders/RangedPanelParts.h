#ifndef PELORIN_TESTS_RANGEDPANELPARTS_H
#define PELORIN_TESTS_RANGEDPANELPARTS_H

#include <QBoxLayout>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QtTest>

/// A panel with two rows and a slider, RangedInputSlider or RangedInputSliderNG, taken apart by its
/// layout; and what is to be checked of both alike.
template<typename Panel, typename Field, typename Slider>
class RangedPanelParts
{
public:
    explicit RangedPanelParts(Panel &owner)
        : panel(owner)
        , startLabel(part<QLabel>(0, 0))
        , startInput(part<Field>(0, 2))
        , startUnit(part<QLabel>(0, 3))
        , stopLabel(part<QLabel>(1, 0))
        , stopInput(part<Field>(1, 2))
        , stopUnit(part<QLabel>(1, 3))
        , slider(qobject_cast<Slider *>(panel.layout()->itemAt(2)->widget()))
    {}

    Panel &panel;
    QLabel *startLabel;
    Field *startInput;
    QLabel *startUnit;
    QLabel *stopLabel;
    Field *stopInput;
    QLabel *stopUnit;
    Slider *slider;

    QLayout *row(int index) const { return panel.layout()->itemAt(index)->layout(); }

    static void type(QLineEdit *field, const char *number)
    {
        field->setFocus();
        field->selectAll();
        QTest::keyClicks(field, QLatin1String(number));
        QTest::keyClick(field, Qt::Key_Return);
    }

    void haveTheirLook(int sideMargin)
    {
        QCOMPARE(startLabel->text(), QStringLiteral("Start"));
        QCOMPARE(stopLabel->text(), QStringLiteral("Stop"));
        for (const QLabel *unit : { startUnit, stopUnit })
            QCOMPARE(unit->text(), QString());
        for (const QLabel *label : { startLabel, startUnit, stopLabel, stopUnit })
            QCOMPARE(label->property("type").toString(), QStringLiteral("label"));
        for (const Field *field : { startInput, stopInput }) {
            QCOMPARE(field->property("flat"), QVariant(true));
            QCOMPARE(field->property("type").toString(), QStringLiteral("label"));
            QCOMPARE(field->maximumWidth(), 120);
        }
        QCOMPARE(panel.layout()->contentsMargins(), QMargins(0, 6, 0, 6));
        QCOMPARE(panel.layout()->count(), 3);
        for (const int i : { 0, 1 }) {
            QCOMPARE(row(i)->contentsMargins(), QMargins(sideMargin, 0, sideMargin, 0));
            QCOMPARE(row(i)->spacing(), 4);
            QVERIFY(row(i)->itemAt(1)->spacerItem());
            QCOMPARE(qobject_cast<QBoxLayout *>(row(i))->stretch(1), 25);
        }
        QCOMPARE(slider->sideMargins(), sideMargin);
        QCOMPARE(Panel::staticMetaObject.superClass(), &QWidget::staticMetaObject);
    }

    void takeTexts()
    {
        panel.setStartText(QStringLiteral("From"));
        panel.setStopText(QStringLiteral("To"));
        panel.setUnitText(QStringLiteral("nm"));

        QCOMPARE(startLabel->text(), QStringLiteral("From"));
        QCOMPARE(stopLabel->text(), QStringLiteral("To"));
        QCOMPARE(startUnit->text(), QStringLiteral("nm"));
        QCOMPARE(stopUnit->text(), QStringLiteral("nm"));
    }

    void takeAGround()
    {
        haveGrounds("light-grey", "white");

        panel.setDarkBackground(false);
        haveGrounds("white", "dark");

        panel.setDarkBackground(true);
        haveGrounds("light-grey", "white");
    }

    void drawTheGroundOfTheSheet()
    {
        QWidget host; // Qt itself fills a window
        host.resize(400, 160);
        panel.setParent(&host);
        panel.setStyleSheet(QStringLiteral("%1 { background-color: #123456; }")
                                .arg(QLatin1String(Panel::staticMetaObject.className())));
        panel.resize(400, 160);

        const QImage image = host.grab().toImage();

        panel.setParent(nullptr);
        QCOMPARE(image.pixel(1, 1), 0xFF123456u);
        QCOMPARE(image.pixel(398, 158), 0xFF123456u);
    }

private:
    template<typename Part>
    Part *part(int rowIndex, int place) const
    {
        return qobject_cast<Part *>(row(rowIndex)->itemAt(place)->widget());
    }

    void haveGrounds(const char *ground, const char *field) const
    {
        QCOMPARE(panel.property("widget-color").toString(), QLatin1String(ground));
        QCOMPARE(startInput->property("background").toString(), QLatin1String(field));
        QCOMPARE(stopInput->property("background").toString(), QLatin1String(field));
    }
};

#endif
