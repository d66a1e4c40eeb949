#pragma once

#include <NorvaneCoreExport.h>

namespace Norvane { namespace UI {

/// Whoever wants to know of a ColorControl's edits. Both calls may delete the control, any of its views, or
/// give the control another colour.
class NORVANE_CORE_EXPORT IColorControlClient
{
public:
    virtual ~IColorControlClient();
    /// The user edited the colour in a view. Called once for each edit, after all views show it. Components
    /// are nominally 0..1, but not limited to that.
    virtual void colorChanged(float red, float green, float blue, float alpha) = 0;
    /// The user begins to drag in a view. There is no call for the end.
    virtual void dragStarted() = 0;
};

}} // namespace Norvane::UI
