#include "gallery/PageParts.h"
#include "gallery/Pages.h"

#include <Pelorin/Button>
#include <Pelorin/FlowLayout>
#include <Pelorin/ScaleSliderNG>

#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include <memory>

namespace {

constexpr int spacing = 10;
constexpr int margin = 10;

/// A dozen and a half fluorophores, for names of different lengths.
const QStringList &names()
{
    static const QStringList list =
        QString::fromLatin1("DAPI,Hoechst,Alexa 405,mTurquoise,CFP,FITC,GFP,YFP,"
                            "Rhodamine 6G,Cy3,TRITC,mCherry,Texas Red,Cy5,"
                            "Alexa 647,Cy7,ICG,Nile Red")
            .split(QLatin1Char(','));
    return list;
}

QLabel *chip(const QString &name)
{
    QLabel *label = PageParts::label(name, "text");
    label->setObjectName(QStringLiteral("chip"));
    return label;
}

/// A frame whose items flow, and that can be made narrower.
class FlowFrame : public QFrame
{
public:
    FlowFrame()
        : m_flow(new FlowLayout(this, margin, spacing, spacing))
    {
        setObjectName(QStringLiteral("flow"));
        setStyleSheet(QStringLiteral(
            "#flow { background-color: #F6F6F6; border: 1px solid #DDD; border-radius: 6px; }"
            "#chip { background-color: #FFF; border: 1px solid #C5C6C6; border-radius: 6px; "
            "padding: 8px 14px; }"));
        for (const QString &name : names())
            m_flow->addWidget(chip(name));
    }

    FlowLayout &flow() { return *m_flow; }

    void insertSecond()
    {
        auto *label = chip(names().at(m_flow->count() % names().size()));
        label->setParent(this);
        m_flow->insertItem(1, new QWidgetItem(label));
        label->show();
    }

    void removeSecond()
    {
        const std::unique_ptr<QLayoutItem> item(m_flow->takeAt(1));
        if (item)
            delete item->widget();
        m_flow->invalidate();
    }

    void swapEnds()
    {
        if (m_flow->count() > 1)
            m_flow->swap(m_flow->itemAt(0)->widget(),
                         m_flow->itemAt(m_flow->count() - 1)->widget());
    }

private:
    FlowLayout *m_flow;
};

Button *action(const char *text, Button::Color color)
{
    auto *button = new Button(QLatin1String(text));
    button->setSize(Button::LongSmall);
    button->setWidth(130);
    button->setColor(color);
    return button;
}

/// Items of all kinds in one flow that is as wide as the page.
QFrame *mixedCard()
{
    auto *ground = new QWidget;
    auto *flow = new FlowLayout(ground, 0, 14, 14);
    for (int i = 0; i < 24; ++i) {
        auto *button = new Button(QString::number(i + 1));
        static constexpr Button::Size sizes[] = { Button::Normal, Button::Square40,
                                                  Button::LongSmall, Button::WideFat,
                                                  Button::Square32 };
        button->setSize(sizes[i % 5]);
        button->setColor(Button::Color(i % 5));
        flow->addWidget(button);
    }
    QSizePolicy policy(QSizePolicy::Preferred, QSizePolicy::Preferred);
    policy.setHeightForWidth(true);
    ground->setSizePolicy(policy);
    return PageParts::card(QStringLiteral("As wide as the window"),
                           QStringLiteral("A row is as high as its highest item, and its items "
                                          "stand at its top. Make the window narrower."),
                           ground);
}

/// How high the frame is to be, followed at every change.
void follow(FlowFrame *frame, QLabel *readout)
{
    const int height = frame->flow().heightForWidth(frame->width() - 2) + 2; // and the border
    frame->setFixedHeight(height);
    readout->setText(QStringLiteral("%1 items, %2 wide: %3 high")
                         .arg(frame->flow().count())
                         .arg(frame->width())
                         .arg(height));
}

} // namespace

QWidget *buildFlowPage()
{
    auto *frame = new FlowFrame;
    QLabel *readout = PageParts::label(QString(), "label");
    auto *width = new ScaleSliderNG(Qt::Horizontal, ScaleSliderNG::ScaleLinear, nullptr);
    width->setRange(200.0, 1000.0, true);
    width->setValuePrecision(0);
    width->setLabelRoundingDigits(0);
    width->setMaxLabels(8);
    width->setValue0(820.0);
    const auto resizeTo = [frame, readout](double value) {
        frame->setFixedWidth(int(value));
        follow(frame, readout);
    };
    QObject::connect(width, &ScaleSliderNG::valueChanging0, frame, resizeTo);

    Button *insert = action("Insert second", Button::Green);
    Button *remove = action("Remove second", Button::Red);
    Button *swap = action("Swap first and last", Button::DarkGrey);
    QObject::connect(insert, &Button::clicked, frame, [frame, readout] {
        frame->insertSecond();
        follow(frame, readout);
    });
    QObject::connect(remove, &Button::clicked, frame, [frame, readout] {
        frame->removeSecond();
        follow(frame, readout);
    });
    QObject::connect(swap, &Button::clicked, frame, [frame, readout] {
        frame->swapEnds();
        follow(frame, readout);
    });

    auto *buttons = new QHBoxLayout;
    buttons->setSpacing(12);
    buttons->addWidget(insert);
    buttons->addWidget(remove);
    buttons->addWidget(swap);
    buttons->addStretch(1);
    auto *content = new QVBoxLayout;
    content->setSpacing(12);
    content->addWidget(frame);
    content->addLayout(buttons);

    auto *page = new QWidget;
    auto *layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(PageParts::gap);
    layout->addWidget(
        PageParts::readoutCard(QStringLiteral("Width of the frame, in pixels"), readout, width));
    layout->addWidget(PageParts::card(QStringLiteral("Items in rows"), QString(), content));
    layout->addWidget(mixedCard());
    layout->addStretch(1);
    resizeTo(width->value0());
    return page;
}
