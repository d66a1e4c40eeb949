#pragma once

#include <QColor>

class QPalette;

namespace Norvane { namespace UI {

/// The colours of ticks and of numbers: those of QPalette::Mid and QPalette::Shadow or, where a dark palette
/// hides these on the window, one between window and text.
QColor tickColor(const QPalette& palette);
QColor numberColor(const QPalette& palette);

}} // namespace Norvane::UI
