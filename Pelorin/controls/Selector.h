#ifndef PELORIN_CONTROLS_SELECTOR_H
#define PELORIN_CONTROLS_SELECTOR_H

#include "Pelorin/PelorinGlobal.h"
#include "Pelorin/controls/DropDownLabel.h"

/// A menu of the first generation: a label with a fixed text that opens a list below itself. It
/// keeps no current item.
///
/// The first item is never shown: it stands for the page from which one chooses, and the choices
/// begin with index 1.
class PELORIN_EXPORT Selector : public DropDownLabel
{
    Q_OBJECT
    Q_PROPERTY(int itemCount READ itemCount)

public:
    explicit Selector(const QString &text, QWidget *parent = nullptr);

    /// Adds an item at the end; the first one is hidden at once.
    void addItem(const QString &text);

    /// All items, the hidden ones too.
    int itemCount() const;

Q_SIGNALS:
    /// For the application's connections. The selector itself never sends it.
    void clicked(bool show);
    /// The user chose an item. The list closes after that.
    void itemSelected(int index);

protected:
    QPoint dropDownPosition() const override;
};

#endif
