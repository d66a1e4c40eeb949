#pragma once

#include <QIcon>
#include <QPointer>
#include <QStyle>

namespace Norvane { namespace UI {

/// The icons of panes. The panes of a main window share one set: Qt reads the file of an icon, and keeps its
/// pictures, for each icon that is made and not copied.
struct PaneIcons {
    /// The icons as the style of \a pane has them.
    explicit PaneIcons(const QWidget* pane);

    QIcon splitVertical;
    QIcon splitHorizontal;
    QIcon menu;
    QIcon floating;
    QIcon close;
    QPointer<QStyle> style;
};

}} // namespace Norvane::UI
