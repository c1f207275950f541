#include "Pelorin/controls/DropDownNG.h"

#include "Pelorin/controls/FixedSize_p.h"

#include <QEvent>
#include <QFontMetrics>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include <algorithm>
#include <limits>

DropDownNG::DropDownNG(QWidget *parent)
    : QComboBox(parent)
{
    setSizeAdjustPolicy(QComboBox::AdjustToContents);
    // The delegate that a box has of its own makes the current row as high as a screen, when the
    // sheet writes it bold.
    setItemDelegate(new QStyledItemDelegate(this));
    connect(this, &QComboBox::textActivated, this, qOverload<QString>(&DropDownNG::slotActivated));
    connect(this, qOverload<int>(&QComboBox::activated), this,
            qOverload<int>(&DropDownNG::slotActivated));
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this,
            &DropDownNG::slotCurrentIndexChanged);
    connect(this, &QComboBox::currentTextChanged, this, &DropDownNG::slotCurrentTextChanged);
    connect(this, &QComboBox::editTextChanged, this, &DropDownNG::slotEditTextChanged);
    connect(this, &QComboBox::textHighlighted, this,
            qOverload<QString>(&DropDownNG::slotHighlighted));
    connect(this, qOverload<int>(&QComboBox::highlighted), this,
            qOverload<int>(&DropDownNG::slotHighlighted));
    refreshCombo();
}

void DropDownNG::addItem(const QString &text, const QVariant &userData)
{
    insertItem(count(), QIcon(), text, userData);
}

void DropDownNG::addItem(const QIcon &icon, const QString &text, const QVariant &userData)
{
    insertItem(count(), icon, text, userData);
}

void DropDownNG::addItems(const QStringList &texts)
{
    for (const QString &text : texts)
        m_items.insert(count(), { true, QIcon(), text, QVariant() });
    refreshCombo();
}

void DropDownNG::insertItem(int index, const QString &text, const QVariant &userData)
{
    insertItem(index, QIcon(), text, userData);
}

void DropDownNG::insertItem(int index, const QIcon &icon, const QString &text,
                            const QVariant &userData)
{
    m_items.insert(index, { true, icon, text, userData });
    refreshCombo();
}

void DropDownNG::insertItems(int index, const QStringList &texts)
{
    qint64 key = index;
    for (const QString &text : texts) {
        if (key > std::numeric_limits<int>::max())
            break;
        m_items.insert(int(key), { true, QIcon(), text, QVariant() });
        ++key;
    }
    refreshCombo();
}

void DropDownNG::removeItem(int index)
{
    if (index < 0 || index >= count())
        return;
    m_items.remove(index);
    refreshCombo();
}

void DropDownNG::setItemVisibility(int index, const bool &visible)
{
    if (tItem *const found = item(index)) {
        found->visible = visible;
        refreshCombo();
    }
}

void DropDownNG::setItemIcon(int index, const QIcon &icon)
{
    if (tItem *const found = item(index)) {
        found->icon = icon;
        refreshCombo();
    }
}

void DropDownNG::setItemText(int index, const QString &text)
{
    if (tItem *const found = item(index)) {
        found->text = text;
        refreshCombo();
    }
}

void DropDownNG::setItemUserData(int index, const QVariant &userData)
{
    if (tItem *const found = item(index)) {
        found->userData = userData;
        refreshCombo();
    }
}

bool DropDownNG::itemVisibility(int index) const
{
    const tItem *const found = item(index);
    return found && found->visible;
}

QIcon DropDownNG::itemIcon(int index) const
{
    const tItem *const found = item(index);
    return found ? found->icon : QIcon();
}

QString DropDownNG::itemText(int index) const
{
    const tItem *const found = item(index);
    return found ? found->text : QString();
}

QVariant DropDownNG::itemUserData(int index) const
{
    const tItem *const found = item(index);
    return found ? found->userData : QVariant();
}

int DropDownNG::count() const
{
    return m_items.size();
}

int DropDownNG::currentIndex() const
{
    const int position = QComboBox::currentIndex();
    return position < 0 ? -1 : m_visibleItems.key(position, 0);
}

QString DropDownNG::currentText() const
{
    return QComboBox::currentIndex() < 0 ? QString() : QComboBox::currentText();
}

QVariant DropDownNG::currentData(int role) const
{
    return QComboBox::currentIndex() < 0 ? QVariant() : QComboBox::currentData(role);
}

void DropDownNG::clear()
{
    m_items.clear();
    refreshCombo();
}

void DropDownNG::clearEditText()
{
    QComboBox::clearEditText();
}

void DropDownNG::setCurrentIndex(int index)
{
    if (!m_visibleItems.contains(index))
        return;
    const QSignalBlocker blocker(this);
    QComboBox::setCurrentIndex(m_visibleItems.value(index));
}

void DropDownNG::setCurrentText(QString text)
{
    QComboBox::setCurrentText(text);
}

void DropDownNG::setEditText(QString text)
{
    QComboBox::setEditText(text);
}

void DropDownNG::setDisabledIndex(int index)
{
    m_disabledIndex = index;
}

void DropDownNG::resizeEvent(QResizeEvent *event)
{
    adjustSize();
    QComboBox::resizeEvent(event);
}

void DropDownNG::changeEvent(QEvent *event)
{
    if (event->type() == QEvent::EnabledChange) {
        const QSignalBlocker blocker(this);
        setCurrentIndex(isEnabled() ? m_enabledIndex : m_disabledIndex);
    }
    QComboBox::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        adjustSize();
}

void DropDownNG::slotActivated(QString text)
{
    Q_EMIT sigActivated(text);
}

void DropDownNG::slotActivated(int index)
{
    // What the user has typed into an editable list is in the box, but no item.
    const auto found = std::find(m_visibleItems.cbegin(), m_visibleItems.cend(), index);
    if (found != m_visibleItems.cend())
        Q_EMIT sigActivated(found.key());
}

void DropDownNG::slotCurrentIndexChanged(int index)
{
    if (!isEnabled())
        return;
    m_enabledIndex = index;
    Q_EMIT sigCurrentIndexChanged(index);
}

void DropDownNG::slotCurrentTextChanged(QString text)
{
    Q_EMIT sigCurrentTextChanged(text);
}

void DropDownNG::slotEditTextChanged(QString text)
{
    Q_EMIT sigEditTextChanged(text);
}

void DropDownNG::slotHighlighted(QString text)
{
    Q_EMIT sigHighlighted(text);
}

void DropDownNG::slotHighlighted(int index)
{
    Q_EMIT sigHighlighted(index);
}

const DropDownNG::tItem *DropDownNG::item(int index) const
{
    const auto found = m_items.constFind(index);
    return index >= 0 && index < count() && found != m_items.cend() ? &*found : nullptr;
}

DropDownNG::tItem *DropDownNG::item(int index)
{
    const auto found = m_items.find(index);
    return index >= 0 && index < count() && found != m_items.end() ? &*found : nullptr;
}

void DropDownNG::refreshCombo()
{
    blockSignals(true);
    const QString remembered = currentText();
    QComboBox::clear();
    m_visibleItems.clear();
    int position = 0;
    for (int i = 0; i < count(); ++i) {
        const tItem *const each = item(i);
        if (!each || !each->visible)
            continue;
        m_visibleItems.insert(i, position);
        QComboBox::insertItem(position, each->icon, each->text, each->userData);
        ++position;
    }
    QComboBox::setCurrentText(remembered);
    blockSignals(false);
    adjustSize();
}

void DropDownNG::adjustSize()
{
    constexpr int narrowest = 25;
    constexpr int arrow = 25;
    const QFontMetrics metrics(font());
    int widest = narrowest;
    for (auto visible = m_visibleItems.cbegin(); visible != m_visibleItems.cend(); ++visible)
        widest = std::max(widest, metrics.boundingRect(itemText(visible.key())).width());
    setFixedWidth(boundedLength(qint64(widest) + arrow));
}
