#pragma once

#include <QByteArray>
#include <QRect>
#include <QString>
#include <QStringList>

namespace Norvane { namespace Host {

/// Arrangements that come with the program. They are layout documents made for the panels there are, and are
/// restored like any other.
enum Arrangement : int {
    /// One pane with a tab for every viewer, pictures and notes on the left.
    kSingleArrangement,
    /// The viewers in two panes, pictures on the left, notes below.
    kSideBySideArrangement,
    /// Every viewer in a pane of its own, in a grid, pictures below and notes in a floating window.
    kReviewArrangement
};

/// Ids of the panels to arrange, and of those that go with them. There may be none of a kind.
struct ArrangedPanels {
    QStringList viewers;
    QStringList pictures;
    QStringList notes;
    /// The viewer to be in front, with the keyboard focus; may be empty.
    QString currentViewer;
};

/// The main window as it is to be, in global pixels.
struct MainWindowPlace {
    QRect frame;
    int screen = 0;
    bool maximized = false;
    bool fullscreen = false;
};

QByteArray arrangementDocument(Arrangement arrangement, const ArrangedPanels& panels,
                               const MainWindowPlace& place);

}} // namespace Norvane::Host
