#pragma once

class QPainter;

namespace Norvane { namespace Pictures {

// The icons, each drawn on a clear ground of 16 by 16 units. Edges lie on whole units, so that they stay
// sharp at every whole scale.

/// A frame of two halves above each other.
void drawHSplit(QPainter& painter);
/// A frame of two halves beside each other.
void drawVSplit(QPainter& painter);
/// A list that opens downwards.
void drawPanelMenu(QPainter& painter);
/// A disc with a cross cut out of it.
void drawSearchFieldCancel(QPainter& painter);

}} // namespace Norvane::Pictures
