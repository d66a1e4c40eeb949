#pragma once

#include <NorvaneCoreExport.h>

#include <QWidget>

namespace Norvane { namespace UI {

class Dock;

/// The dashed outline over a pane that shows where a dragged panel will land: the whole pane, or the half
/// that it will get. A translucent top-level window; at most one exists.
class NORVANE_CORE_EXPORT HoverWidget : public QWidget
{
    Q_OBJECT
public:
    /// A window without parent, not yet shown. \a dock must outlive it.
    explicit HoverWidget(Dock* dock);
    ~HoverWidget() override;

    /// The pane that the outline lies over.
    Dock* pane() const;

    /// The side on which the panel will land has changed.
    void updateOutline();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    Dock* const m_pane;
};

}} // namespace Norvane::UI
