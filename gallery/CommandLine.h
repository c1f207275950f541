#ifndef PELORIN_GALLERY_COMMANDLINE_H
#define PELORIN_GALLERY_COMMANDLINE_H

#include <QString>
#include <QStringList>

/// What the words after the program's name ask for.
struct CommandLine
{
    enum class Action { ShowWindow, PrintPages, TakeSnapshots, TakeSpecimens, PrintHelp, Complain };

    Action action = Action::ShowWindow;
    QString page;      ///< the device or topic to show or to take; empty for the first, or for all
    QString settings;  ///< the file in which the window keeps its state; empty for the user's own
    QString directory; ///< for the pictures
    QString text;      ///< the help, or what is wrong, on one line

    /// Needs no application object; Qt's own options must have been taken out.
    static CommandLine parse(const QStringList &arguments);

    /// Whether the words ask for something that needs no display. Can be asked before an
    /// application object stands.
    static bool needsNoDisplay(const QStringList &arguments);
};

#endif
