#pragma once

#include <NorvaneCoreExport.h>

namespace Norvane { namespace UI {

/// Mix-in for top-level windows that can snap to their neighbours: it carries the switch, on at construction.
/// What snapping does is up to the window that derives from it.
class NORVANE_CORE_EXPORT SnappableWindow
{
public:
    SnappableWindow();
    /// A copy has the switch of the other.
    SnappableWindow(const SnappableWindow& other);
    SnappableWindow& operator=(const SnappableWindow& other);
    virtual ~SnappableWindow();

    /// Whether the window snaps; it does at first.
    bool snapEnabled() const;
    void setSnapEnabled(bool enabled);

private:
    bool m_snapEnabled;
};

}} // namespace Norvane::UI
