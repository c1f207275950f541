#include "gallery/Pages.h"

#include <algorithm>

const QVector<Page> &pages()
{
    static const QVector<Page> list{
        { QStringLiteral("theme"), QStringLiteral("Theme: colours and text"),
          QStringLiteral("What the style sheet makes of a label, a field or a box that carries the "
                         "property of its name."),
          buildThemePage },
        { QStringLiteral("controls"), QStringLiteral("Theme: controls"),
          QStringLiteral("Qt's own buttons, tabs, progress bars and scroll bars under the style "
                         "sheet, each state beside the others."),
          buildControlsPage },
        { QStringLiteral("pictures"), QStringLiteral("Theme: pictures"),
          QStringLiteral("Every picture of the library at its own size, on light and on dark "
                         "ground, and the two display faces."),
          buildPicturesPage },
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
