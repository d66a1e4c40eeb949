#pragma once

namespace Norvane { namespace UI {

/// Teaches the toolkit's accessibility layer the roles of the docking widgets: a Dock is a pane and a
/// DockSplitter a splitter instead of nameless containers. Calls after the first do nothing. Where the
/// toolkit offers no such hook (Qt 4), the widgets keep their default roles.
void installAccessibleRoles();

}} // namespace Norvane::UI
