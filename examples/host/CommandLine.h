#pragma once

#include <QString>
#include <QStringList>

namespace Norvane { namespace Host {

/// What the user asked for on the command line.
struct CommandLine {
    /// Paths and frame addresses.
    QStringList pictures;
    /// Empty: the file of the last quit.
    QString layoutPath;
    /// The code of a language that texts are to be in; empty: the user's.
    QString language;
    /// A Python script to be run after the start.
    QString scriptPath;
    bool fresh = false;
    bool dark = false;
    bool help = false;
    bool version = false;
    /// A sentence about the first argument that makes no sense; empty if all do.
    QString problem;

    /// \a arguments begin with the program's name.
    static CommandLine parse(const QStringList& arguments);
    static QString helpText();
};

}} // namespace Norvane::Host
