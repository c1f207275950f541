#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/Button>
#include <Pelorin/ScrollAreaNG>
#include <Pelorin/ScrollAreaNGItem>

#include <QButtonGroup>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QVBoxLayout>
#include <QVector>

#include <array>
#include <functional>

namespace {

struct Line
{
    int wavelength; ///< in nm
    int power;      ///< in mW
    QRgb color;
};

/// The lines of a laser combiner, each a step of a sequence.
constexpr Line lines[] = {
    { 405, 20, 0xFF7A1FD0 }, { 445, 60, 0xFF1F3FE0 }, { 473, 40, 0xFF1583E8 },
    { 488, 80, 0xFF12B4D8 }, { 515, 35, 0xFF18B86A }, { 532, 90, 0xFF4FC41C },
    { 561, 50, 0xFFA9C80E }, { 594, 25, 0xFFF0B400 }, { 640, 75, 0xFFE03A1C },
};

constexpr int itemWidth = 152;
constexpr int itemHeight = 58;
constexpr int stripWidth = 6;
constexpr int markSize = 20;
constexpr int inset = 12;

QFont calibri(int pixels, bool bold)
{
    QFont font(QStringLiteral("Calibri"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

/// A step as an application writes it: painted by what the list says of it. A click asks to become
/// the current one, a click on the mark to be the checked one, and so do Return and Space.
class StepItem : public ScrollAreaNGItem
{
public:
    explicit StepItem(const Line &line)
        : m_line(line)
    {
        setFixedHeight(itemHeight);
        setMinimumWidth(itemWidth);
        setFocusPolicy(Qt::StrongFocus);
        setAttribute(Qt::WA_Hover);
        setCursor(Qt::PointingHandCursor);
    }

    QString name() const { return QStringLiteral("%1 nm").arg(m_line.wavelength); }

    QSize sizeHint() const override { return QSize(itemWidth, itemHeight); }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        painter.setRenderHint(QPainter::Antialiasing);
        drawGround(painter);
        drawTexts(painter);
        drawMark(painter);
    }

    void mousePressEvent(QMouseEvent *event) override
    {
        if (event->button() != Qt::LeftButton)
            return;
        if (markRect().adjusted(-8, -8, 8, 8).contains(event->pos()))
            askForCheck();
        else
            Q_EMIT listItemSetCurrent(this);
    }

    void keyPressEvent(QKeyEvent *event) override
    {
        if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
            Q_EMIT listItemSetCurrent(this);
        else if (event->key() == Qt::Key_Space)
            askForCheck();
        else
            ScrollAreaNGItem::keyPressEvent(event);
    }

private:
    /// The checked one gives its mark back.
    void askForCheck() { Q_EMIT listItemSetChecked(checked() ? nullptr : this); }

    QRect markRect() const
    {
        return QRect(width() - inset - markSize, (height() - markSize) / 2, markSize, markSize);
    }

    void drawGround(QPainter &painter) const
    {
        QPainterPath path;
        path.addRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), 6, 6);
        painter.fillPath(path, selected() ? QColor(0xFB, 0xF1, 0xF2) : QColor(Qt::white));
        painter.save();
        painter.setClipPath(path);
        painter.fillRect(0, 0, stripWidth, height(), QColor::fromRgb(m_line.color));
        painter.restore();
        const QColor border = selected()                   ? QColor(0x87, 0x21, 0x2E)
                              : underMouse() || hasFocus() ? QColor(0xED, 0x6E, 0x00)
                                                           : QColor(0xC5, 0xC6, 0xC6);
        painter.strokePath(path, QPen(border, selected() || hasFocus() ? 2.0 : 1.0));
    }

    void drawTexts(QPainter &painter) const
    {
        const QRect texts = rect().adjusted(stripWidth + inset, 9, -2 * inset - markSize, -9);
        painter.setFont(calibri(18, true));
        painter.setPen(QColor(0x44, 0x44, 0x44));
        painter.drawText(texts, Qt::AlignLeft | Qt::AlignTop, name());
        painter.setFont(calibri(13, false));
        painter.setPen(QColor(0x66, 0x66, 0x66));
        painter.drawText(texts, Qt::AlignLeft | Qt::AlignBottom,
                         QStringLiteral("Step %1, %2 mW").arg(index() + 1).arg(m_line.power));
    }

    void drawMark(QPainter &painter) const
    {
        const QRectF mark(markRect());
        if (!checked()) {
            painter.setPen(QPen(QColor(0xC5, 0xC6, 0xC6), 1.5));
            painter.setBrush(Qt::NoBrush);
            painter.drawEllipse(mark.adjusted(1, 1, -1, -1));
            return;
        }
        painter.setPen(Qt::NoPen);
        painter.setBrush(QColor(0x95, 0xD4, 0x00));
        painter.drawEllipse(mark);
        QPainterPath tick(mark.topLeft() + QPointF(5.5, 10.5));
        tick.lineTo(mark.topLeft() + QPointF(8.8, 13.8));
        tick.lineTo(mark.topLeft() + QPointF(14.5, 7.0));
        painter.strokePath(tick, QPen(Qt::white, 2.2, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
    }

    Line m_line;
};

/// A list with a line over it that says what is current and what is checked, and the operations that
/// the buttons of the page call.
class StepList : public QWidget
{
public:
    StepList(const char *name, ScrollAreaNG::eLayoutStyle style, SignalLog *log)
        : m_name(QLatin1String(name))
        , m_log(log)
        , m_readout(PageParts::label(QString(), "text"))
        , m_list(new ScrollAreaNG(style, ScrollAreaNG::ScrollBarGrey, 8, 8, Qt::ScrollBarAsNeeded))
    {
        m_list->setFrameShape(QFrame::NoFrame);
        m_list->setFocusPolicy(Qt::NoFocus); // its items have it
        m_list->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
        m_list->setObjectName(QStringLiteral("steps"));
        auto *layout = new QVBoxLayout(this);
        layout->setContentsMargins(0, 0, 0, 0);
        layout->setSpacing(8);
        layout->addWidget(m_readout);
        layout->addWidget(m_list, 1);
    }

    /// Steps to begin with; the log hears only of what comes afterwards.
    void fill(int count, int current, int checked)
    {
        QList<ScrollAreaNGItem *> items;
        for (int i = 0; i < count; ++i)
            items << make();
        m_list->listItemAppend(items);
        m_list->listItemSetCurrentIndex(current);
        m_list->listItemSetChecked(m_list->listItemAt(checked));
        listenToList();
        for (ScrollAreaNGItem *item : qAsConst(items))
            listenToItem(static_cast<StepItem *>(item));
        showState();
    }

    QString name() const { return m_name; }
    ScrollAreaNG &list() { return *m_list; }

    void append() { m_list->listItemAppend(makeHeard()); }
    void insert() { m_list->listItemInsert(m_list->listItemCurrentIndex(), makeHeard()); }
    void moveBack() { m_list->listItemMoveBackward(m_list->listItemCurrent()); }
    void moveForward() { m_list->listItemMoveForward(m_list->listItemCurrent()); }
    void remove() { m_list->listItemDelete(m_list->listItemCurrent()); }
    void clear() { m_list->listItemDeleteAll(); }

    void take()
    {
        if (ScrollAreaNGItem *item = m_list->listItemTake(m_list->listItemCurrent())) {
            item->hide(); // it is still a child of the list
            m_taken.append(item);
        }
    }

    void putBack()
    {
        if (!m_taken.isEmpty())
            m_list->listItemAppend(m_taken.takeLast());
    }

    void showState()
    {
        const auto place = [](int index) {
            return index < 0 ? QStringLiteral("none") : QString::number(index + 1);
        };
        m_readout->setText(QStringLiteral("%1 steps, current %2, checked %3")
                               .arg(m_list->listItemCount())
                               .arg(place(m_list->listItemCurrentIndex()), place(checkedIndex())));
    }

private:
    int checkedIndex() const
    {
        for (int i = 0; i < m_list->listItemCount(); ++i) {
            if (m_list->listItemAt(i)->checked())
                return i;
        }
        return -1;
    }

    StepItem *make() { return new StepItem(lines[m_made++ % std::size(lines)]); }

    StepItem *makeHeard()
    {
        StepItem *item = make();
        listenToItem(item);
        return item;
    }

    void note(const QString &sender, const char *signal, const QString &value)
    {
        m_hasNotedScrolling = false;
        m_log->note(sender, QLatin1String(signal), value);
        showState();
    }

    void listenToList()
    {
        connect(m_list, &ScrollAreaNG::currentIndexChanged, this,
                [this](int index) { note(m_name, "currentIndexChanged", QString::number(index)); });
        connect(m_list, &ScrollAreaNG::currentItemChanged, this, [this](ScrollAreaNGItem *item) {
            note(m_name, "currentItemChanged",
                 item ? static_cast<StepItem *>(item)->name() : QStringLiteral("none"));
        });
        connect(m_list, &ScrollAreaNG::contentScrolled, this, [this] {
            if (!m_hasNotedScrolling) // once for a whole turn of the wheel
                note(m_name, "contentScrolled", QString());
            m_hasNotedScrolling = true;
        });
    }

    void listenToItem(StepItem *item)
    {
        const QString sender = m_name + QStringLiteral(", ") + item->name();
        const auto truth = [](bool on) {
            return on ? QStringLiteral("true") : QStringLiteral("false");
        };
        connect(item, &ScrollAreaNGItem::selectionChanged, this,
                [this, sender, truth](bool on) { note(sender, "selectionChanged", truth(on)); });
        connect(item, &ScrollAreaNGItem::checkedChanged, this,
                [this, sender, truth](bool on) { note(sender, "checkedChanged", truth(on)); });
        connect(item, &ScrollAreaNGItem::indexChanged, this, [this, sender](int index) {
            note(sender, "indexChanged", QString::number(index));
        });
    }

    QString m_name;
    SignalLog *m_log;
    QLabel *m_readout;
    ScrollAreaNG *m_list;
    QList<ScrollAreaNGItem *> m_taken;
    std::size_t m_made = 0;
    bool m_hasNotedScrolling = false;
};

/// The buttons, and the list on which they act.
class Actions : public QWidget
{
public:
    explicit Actions(const QVector<StepList *> &lists)
        : m_list(lists.first())
        , m_choice(new QButtonGroup(this))
    {
        auto *row = new QHBoxLayout(this);
        row->setContentsMargins(0, 0, 0, 0);
        row->setSpacing(8);
        for (StepList *list : lists)
            row->addWidget(choiceOf(list));
        row->addSpacing(24);
        addAction(row, "Append", Button::Green, &StepList::append);
        addAction(row, "Insert", Button::Green, &StepList::insert);
        addAction(row, "Back", Button::DarkGrey, &StepList::moveBack);
        addAction(row, "Forward", Button::DarkGrey, &StepList::moveForward);
        addAction(row, "Take", Button::DarkGrey, &StepList::take);
        addAction(row, "Put back", Button::DarkGrey, &StepList::putBack);
        addAction(row, "Delete", Button::Red, &StepList::remove);
        addAction(row, "Clear", Button::Red, &StepList::clear);
        row->addStretch(1);
    }

private:
    static Button *makeButton(const QString &text)
    {
        auto *button = new Button(text);
        button->setSize(Button::LongSmall);
        button->setWidth(88);
        return button;
    }

    Button *choiceOf(StepList *list)
    {
        Button *button = makeButton(list->name());
        button->setColor(Button::DarkGrey);
        button->setCheckedColor(Button::Orange);
        button->setCheckable(true);
        button->setChecked(list == m_list);
        m_choice->addButton(button);
        connect(button, &Button::clicked, this, [this, list] { m_list = list; });
        // Who works in a list goes on with it.
        connect(&list->list(), &ScrollAreaNG::currentItemChanged, this, [this, list, button] {
            m_list = list;
            button->setChecked(true);
        });
        return button;
    }

    void addAction(QHBoxLayout *row, const char *text, Button::Color color,
                   const std::function<void(StepList &)> &operation)
    {
        Button *button = makeButton(QLatin1String(text));
        button->setColor(color);
        connect(button, &Button::clicked, this, [this, operation] {
            operation(*m_list);
            m_list->showState();
        });
        row->addWidget(button);
    }

    StepList *m_list = nullptr;
    QButtonGroup *m_choice = nullptr;
};

} // namespace

QWidget *buildItemListPage()
{
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Click a step, or its mark"));
    auto *row = new StepList("Row", ScrollAreaNG::LayoutHorizontal, log);
    auto *column = new StepList("Column", ScrollAreaNG::LayoutVertical, log);
    auto *flow = new StepList("Flow", ScrollAreaNG::LayoutFlow, log);
    column->setMinimumHeight(436);
    row->setFixedHeight(126);
    column->fill(7, 1, 3);
    row->fill(9, 2, 0);
    flow->fill(9, 4, 4);

    auto *page = new QWidget;
    page->setStyleSheet(QStringLiteral("#steps, #steps ScrollAreaNGContainer { "
                                       "background-color: #F6F6F6; border-radius: 6px; }"));
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    grid->addWidget(PageParts::card(QStringLiteral("Column"), QString(), column), 0, 0, 2, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Row"), QString(), row), 0, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Flow"), QString(), flow), 1, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Change the list"), QString(),
                                    new Actions({ column, row, flow })),
                    2, 0, 1, 2);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 3, 0, 1, 2);
    grid->setColumnStretch(0, 2);
    grid->setColumnStretch(1, 5);
    grid->setRowStretch(1, 3);
    grid->setRowStretch(3, 2);
    return page;
}
