#include "gallery/PageParts.h"
#include "gallery/Pages.h"
#include "gallery/SignalLog.h"

#include <Pelorin/ComboBoxNG>
#include <Pelorin/DropDownNG>

#include <QCheckBox>
#include <QFrame>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>
#include <QVariant>

namespace {

constexpr int openWidth = 176;

QStringList modes()
{
    return { QStringLiteral("Continuous"), QStringLiteral("Burst"), QStringLiteral("Gated"),
             QStringLiteral("External trigger") };
}

QString quoted(const QString &text)
{
    return QLatin1Char('"') + text + QLatin1Char('"');
}

/// A live list tells the log of all that an application would hear.
DropDownNG *liveDropDown(SignalLog *log)
{
    auto *list = new DropDownNG;
    list->addItems(modes());
    const QString name = QStringLiteral("DropDownNG");
    const auto noteText = [log, name](const char *signal) {
        return [log, name, signal](const QString &text) {
            log->note(name, QLatin1String(signal), quoted(text));
        };
    };
    const auto noteIndex = [log, name](const char *signal) {
        return [log, name, signal](int index) {
            log->note(name, QLatin1String(signal), QString::number(index));
        };
    };
    QObject::connect(list, qOverload<QString>(&DropDownNG::sigActivated), log,
                     noteText("sigActivated"));
    QObject::connect(list, qOverload<int>(&DropDownNG::sigActivated), log,
                     noteIndex("sigActivated"));
    QObject::connect(list, &DropDownNG::sigCurrentIndexChanged, log,
                     noteIndex("sigCurrentIndexChanged"));
    QObject::connect(list, &DropDownNG::sigCurrentTextChanged, log,
                     noteText("sigCurrentTextChanged"));
    return list;
}

ComboBoxNG *liveComboBox(SignalLog *log, const char *type = "")
{
    auto *box = new ComboBoxNG;
    box->setProperty("type", QString::fromLatin1(type));
    box->addItems(modes());
    const auto note = [log](const char *signal) {
        return [log, signal](int index) {
            log->note(QStringLiteral("ComboBoxNG"), QLatin1String(signal), QString::number(index));
        };
    };
    QObject::connect(box, qOverload<int>(&QComboBox::activated), log, note("activated"));
    QObject::connect(box, qOverload<int>(&QComboBox::currentIndexChanged), log,
                     note("currentIndexChanged"));
    return box;
}

template<class Follow>
QCheckBox *checkBox(bool checked, Follow follow)
{
    auto *box = new QCheckBox;
    box->setProperty("type", QStringLiteral("text"));
    box->setChecked(checked);
    QObject::connect(box, &QCheckBox::toggled, box, follow);
    return box;
}

/// The texts of \a modes below each other, with room for check boxes under \a captions.
QGridLayout *checkGrid(const QStringList &captions)
{
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(20);
    grid->setVerticalSpacing(6);
    for (int i = 0; i < captions.size(); ++i)
        grid->addWidget(PageParts::label(captions.at(i), "text"), 0, i + 1, Qt::AlignHCenter);
    const QStringList texts = modes();
    for (int i = 0; i < texts.size(); ++i)
        grid->addWidget(PageParts::label(texts.at(i), "text"), i + 1, 0);
    grid->setRowStretch(texts.size() + 1, 1);
    return grid;
}

QFrame *hiddenItemsCard(SignalLog *log)
{
    DropDownNG *list = liveDropDown(log);
    list->setItemVisibility(1, false);
    QGridLayout *const checks = checkGrid({ QStringLiteral("visible") });
    for (int i = 0; i < list->count(); ++i)
        checks->addWidget(
            checkBox(list->itemVisibility(i),
                     [list, i](bool visible) { list->setItemVisibility(i, visible); }),
            i + 1, 1, Qt::AlignHCenter);
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    row->addLayout(PageParts::named("Trigger", list));
    row->addStretch(1);
    row->addLayout(checks);
    return PageParts::card(QStringLiteral("DropDownNG, items hidden one by one"),
                           QStringLiteral("As wide as its widest visible text."), row);
}

QFrame *disabledCard(SignalLog *log)
{
    DropDownNG *list = liveDropDown(log);
    list->setDisabledIndex(3);
    list->setEnabled(false);
    auto *row = new QHBoxLayout;
    row->setSpacing(8);
    row->addLayout(PageParts::named("Trigger", list));
    row->addStretch(1);
    row->addWidget(PageParts::label(QStringLiteral("enabled"), "text"), 0, Qt::AlignTop);
    row->addWidget(checkBox(false, [list](bool enabled) { list->setEnabled(enabled); }), 0,
                   Qt::AlignTop);
    return PageParts::card(QStringLiteral("DropDownNG, a fixed item while disabled"),
                           QStringLiteral("Enabled, it shows the last choice again."), row);
}

QFrame *dropDownListCard()
{
    auto *list = new DropDownNG;
    list->addItems(modes());
    auto *column = new QVBoxLayout;
    column->addWidget(PageParts::openList(list, 2, openWidth));
    column->addStretch(1);
    return PageParts::card(QStringLiteral("DropDownNG, open"), QString(), column);
}

QFrame *sizesCard(SignalLog *log)
{
    ComboBoxNG *disabled = liveComboBox(log);
    disabled->setEnabled(false);
    ComboBoxNG *editable = liveComboBox(log);
    editable->setEditable(true);
    ComboBoxNG *compactEditable = liveComboBox(log, "text");
    compactEditable->setEditable(true);
    auto *grid = new QGridLayout;
    grid->setHorizontalSpacing(24);
    grid->setVerticalSpacing(12);
    grid->addLayout(PageParts::named("plain", liveComboBox(log)), 0, 0);
    grid->addLayout(PageParts::named("editable", editable), 0, 1);
    grid->addLayout(PageParts::named("compact", liveComboBox(log, "text")), 1, 0);
    grid->addLayout(PageParts::named("compact, editable", compactEditable), 1, 1);
    grid->addLayout(PageParts::named("disabled", disabled), 2, 0);
    grid->setColumnStretch(2, 1);
    return PageParts::card(QStringLiteral("ComboBoxNG"), QString(), grid);
}

QFrame *barredItemsCard(SignalLog *log)
{
    ComboBoxNG *box = liveComboBox(log);
    box->setItemVisible(1, false);
    box->setItemEnabled(2, false);
    QGridLayout *const grid = checkGrid({ QStringLiteral("visible"), QStringLiteral("enabled") });
    for (int i = 0; i < box->count(); ++i) {
        grid->addWidget(
            checkBox(box->isItemVisible(i), [box, i](bool on) { box->setItemVisible(i, on); }),
            i + 1, 1, Qt::AlignHCenter);
        grid->addWidget(
            checkBox(box->isItemEnabled(i), [box, i](bool on) { box->setItemEnabled(i, on); }),
            i + 1, 2, Qt::AlignHCenter);
    }
    auto *row = new QHBoxLayout;
    row->setSpacing(32);
    row->addLayout(PageParts::named("Trigger", box));
    row->addStretch(1);
    row->addLayout(grid);
    return PageParts::card(
        QStringLiteral("ComboBoxNG, items hidden and disabled"),
        QStringLiteral("A disabled item looks like the others, but cannot be chosen."), row);
}

QFrame *toolTipCard(SignalLog *log)
{
    static const char *const tips[] = { "The laser pulses without a pause", "So many pulses, once",
                                        "While the gate input is high",
                                        "One pulse for each edge at the input" };
    ComboBoxNG *box = liveComboBox(log, "text");
    box->setRelayItemToolTip(true);
    for (int i = 0; i < box->count(); ++i)
        box->setItemToolTip(i, QLatin1String(tips[i]));
    QLabel *const tip = PageParts::label(box->itemTooltip(0), "text");
    const auto follow = [box, tip](int index) { tip->setText(box->itemTooltip(index)); };
    QObject::connect(box, qOverload<int>(&QComboBox::currentIndexChanged), tip, follow);
    auto *row = new QHBoxLayout;
    row->setSpacing(24);
    row->addLayout(PageParts::named("Trigger", box));
    row->addLayout(PageParts::named("its tool tip", tip));
    row->addStretch(1);
    return PageParts::card(QStringLiteral("ComboBoxNG, the tool tip of its item"), QString(), row);
}

QFrame *comboBoxListCard()
{
    auto *column = new QVBoxLayout;
    column->setSpacing(16);
    for (const char *type : { "", "text" }) {
        auto *box = new ComboBoxNG;
        box->setProperty("type", QLatin1String(type));
        box->addItems(modes());
        column->addWidget(PageParts::openList(box, 2, openWidth));
    }
    column->addStretch(1);
    return PageParts::card(QStringLiteral("ComboBoxNG, open"), QString(), column);
}

} // namespace

QWidget *buildListPage()
{
    auto *page = new QWidget;
    auto *grid = new QGridLayout(page);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(PageParts::gap);
    auto *log = new SignalLog;
    log->setPlaceholderText(QStringLiteral("Choose something"));
    grid->addWidget(hiddenItemsCard(log), 0, 0);
    grid->addWidget(disabledCard(log), 0, 1);
    grid->addWidget(dropDownListCard(), 0, 2);
    grid->addWidget(sizesCard(log), 1, 0, 2, 1);
    grid->addWidget(barredItemsCard(log), 1, 1);
    grid->addWidget(comboBoxListCard(), 1, 2, 2, 1);
    grid->addWidget(toolTipCard(log), 2, 1);
    grid->addWidget(PageParts::card(QStringLiteral("Signals"), QString(), log), 3, 0, 1, 3);
    grid->setColumnStretch(0, 1);
    grid->setColumnStretch(1, 1);
    grid->setRowStretch(3, 1);
    return page;
}
