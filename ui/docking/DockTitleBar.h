#pragma once

#include <NorvaneCoreExport.h>
#include <ui/toolkit/Events.h>

#include <QBasicTimer>
#include <QWidget>

namespace Norvane { namespace UI {

class Dock;

/// The title strip of a pane (its parent). While the title is hidden only a strip of three pixels is left; it
/// lights up under the mouse and brings the title back for as long as the mouse stays.
class NORVANE_CORE_EXPORT DockTitleBar : public QWidget
{
    Q_OBJECT
public:
    /// \a parent must be a Dock.
    explicit DockTitleBar(QWidget* parent);
    ~DockTitleBar() override;

    /// Whether the left mouse button is held on the pane's tab bar; the title is not hidden meanwhile.
    void setPressed(bool pressed);

    /// Hides a title that is shown only because the mouse rested on the strip, once the mouse is gone.
    void hideRevealedTitle();

protected:
    void enterEvent(EnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void paintEvent(QPaintEvent* event) override;

private:
    Dock* dock() const;

    bool m_pressed = false;
    QBasicTimer m_revealTimer;
    bool m_revealed = false;
};

}} // namespace Norvane::UI
