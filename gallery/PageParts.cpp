#include "gallery/PageParts.h"

#include <Pelorin/HorizontalSlider>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFrame>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPixmap>
#include <QVBoxLayout>
#include <QVariant>

namespace PageParts {

namespace {

QFrame *emptyCard()
{
    auto *result = new QFrame;
    result->setObjectName(QStringLiteral("card"));
    auto *layout = new QVBoxLayout(result);
    layout->setContentsMargins(gap, gap - 4, gap, gap);
    layout->setSpacing(2);
    return result;
}

} // namespace

QLabel *label(const QString &text, const char *type)
{
    auto *result = new QLabel(text);
    result->setProperty("type", QString::fromLatin1(type));
    return result;
}

HorizontalSlider *slider(const char *title, const char *unit, double min, double max, double value,
                         int decimals)
{
    constexpr int sideMargin = 12;
    auto *slider = new HorizontalSlider(sideMargin, ScaleSliderNG::ScaleLinear, nullptr);
    slider->titleLabel->setText(QString::fromUtf8(title));
    slider->unitLabel->setText(QString::fromUtf8(unit));
    slider->setValuePrecision(decimals);
    slider->setRange(min, max, true);
    slider->setValue(value);
    return slider;
}

QVBoxLayout *named(const char *name, QWidget *widget)
{
    auto *layout = new QVBoxLayout;
    layout->setSpacing(4);
    layout->addWidget(label(QString::fromUtf8(name), "text"));
    layout->addWidget(widget, 0, Qt::AlignLeft);
    layout->addStretch(1);
    return layout;
}

QHBoxLayout *option(const char *name, bool checked, const std::function<void(bool)> &follow)
{
    auto *check = new QCheckBox;
    check->setProperty("type", QStringLiteral("text"));
    check->setChecked(checked);
    QObject::connect(check, &QCheckBox::toggled, check, follow);
    auto *row = new QHBoxLayout;
    row->addWidget(check);
    row->addWidget(label(QLatin1String(name), "text"));
    row->addStretch(1);
    return row;
}

QFrame *card(const QString &caption, const QString &note, QLayout *content)
{
    QFrame *result = emptyCard();
    auto *layout = static_cast<QVBoxLayout *>(result->layout());
    layout->addWidget(label(caption, "text-bold"));
    if (!note.isEmpty()) {
        QLabel *line = label(note, "text");
        line->setWordWrap(true);
        layout->addWidget(line);
    }
    layout->addSpacing(8);
    layout->addLayout(content, 1);
    return result;
}

QFrame *card(const QString &caption, const QString &note, QWidget *content)
{
    auto *layout = new QVBoxLayout;
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(content);
    return card(caption, note, layout);
}

QFrame *readoutCard(const QString &caption, QLabel *readout, QWidget *content)
{
    QFrame *result = emptyCard();
    auto *layout = static_cast<QVBoxLayout *>(result->layout());
    auto *head = new QHBoxLayout;
    head->addWidget(label(caption, "text-bold"));
    head->addStretch(1);
    head->addWidget(readout);
    layout->addLayout(head);
    layout->addSpacing(6);
    const bool upright = content->sizePolicy().horizontalPolicy() == QSizePolicy::Fixed;
    layout->addWidget(content, 0, upright ? Qt::AlignHCenter : Qt::Alignment());
    layout->addStretch(1);
    return result;
}

QLabel *openList(QComboBox *box, int current, int width)
{
    auto *result = new QLabel;
    box->setParent(result);
    box->hide();
    box->ensurePolished();
    QAbstractItemView *const view = box->view();
    view->ensurePolished();
    view->setCurrentIndex(box->model()->index(current, 0));
    view->resize(width, view->height());
    view->grab(); // so that the rows find their places
    const QRect last = view->visualRect(box->model()->index(box->count() - 1, 0));
    const int rim = view->viewport()->mapTo(view, QPoint(0, 0)).y();
    view->resize(width, last.bottom() + 1 + 2 * rim);
    QPixmap picture(view->size());
    picture.fill(Qt::transparent); // its corners are round
    view->render(&picture, QPoint(), QRegion(), QWidget::DrawChildren);
    result->setPixmap(picture);
    result->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    return result;
}

void freeze(QWidget *widget)
{
    widget->setAttribute(Qt::WA_TransparentForMouseEvents);
    widget->setFocusPolicy(Qt::NoFocus);
}

void freezeHovered(QWidget *widget)
{
    freeze(widget);
    widget->ensurePolished();
    widget->setAttribute(Qt::WA_UnderMouse);
    // Buttons believe it only when the mouse has moved on them.
    const QPointF onIt(8, widget->height() / 2);
    QMouseEvent move(QEvent::MouseMove, onIt, Qt::NoButton, Qt::NoButton, Qt::NoModifier);
    QApplication::sendEvent(widget, &move);
}

} // namespace PageParts
