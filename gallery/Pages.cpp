#include "gallery/Pages.h"

#include <algorithm>

const QVector<Page> &pages()
{
    static const QVector<Page> list{
        { QStringLiteral("sliders"), QStringLiteral("Scale sliders"),
          QStringLiteral(
              "Drag a handle, or give it the keyboard with Tab and use the arrows; Shift "
              "makes ten steps of one. The number beside a slider follows its signals."),
          buildSliderPage },
    };
    return list;
}

const Page *findPage(const QString &name)
{
    const auto page = std::find_if(pages().cbegin(), pages().cend(),
                                   [&name](const Page &each) { return each.name == name; });
    return page == pages().cend() ? nullptr : &*page;
}
