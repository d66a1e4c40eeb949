#pragma once

#include <QList>

class QSplitter;

namespace Norvane { namespace UI {

class Dock;

/// Appends the panes below \a splitter to \a docks, depth first in child order.
void collectDocks(const QSplitter* splitter, QList<Dock*>& docks);

}} // namespace Norvane::UI
