#pragma once

#include <array>

class QPainter;
class QWidget;

namespace Norvane { namespace Designer {

/// A widget class that forms can have.
struct WidgetEntry {
    /// The class, in Norvane::UI, and its header without ".h".
    const char* name;
    /// The header's folder.
    const char* folder;
    /// To be translated in the context "WidgetTable".
    const char* toolTip;
    /// What a new one has in the form, as elements of a .ui file.
    const char* properties;
    QWidget* (*create)(QWidget* parent);
    /// Draws on a clear ground of 24 by 24 units.
    void (*drawIcon)(QPainter& painter);
};

const std::array<WidgetEntry, 8>& widgetTable();

}} // namespace Norvane::Designer
