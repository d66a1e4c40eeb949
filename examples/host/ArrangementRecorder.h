#pragma once

#include "LayoutHistory.h"

#include <QObject>
#include <QTimer>

class QWidget;

namespace Norvane { namespace UI {

class DockMainWindow;

}} // namespace Norvane::UI

namespace Norvane { namespace Host {

/// Watches the arrangement of a window and records its steps. Changes that follow each other within a moment,
/// and all those of one drag, are one step.
class ArrangementRecorder : public QObject
{
    Q_OBJECT
public:
    /// \a window becomes the parent. Nothing is recorded before start().
    explicit ArrangementRecorder(UI::DockMainWindow* window);

    /// Records the present arrangement as the first step.
    void start();
    /// To be called with every pane and floating window that is made.
    void watch(QWidget* widget);
    /// Records now what would be recorded in a moment: the next change is another step.
    void recordNow();
    /// To be called before closed panels are deleted: if they come back, then as they are now.
    void keepStates(const QList<QWidget*>& panels);

    bool canUndo() const;
    bool canRedo() const;
    /// The layout of the step before, or after, which is for the caller to restore. Empty if there is none.
    QByteArray undo();
    QByteArray redo();

Q_SIGNALS:
    /// canUndo() or canRedo() may have changed.
    void changed();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private Q_SLOTS:
    void arrangementMayHaveChanged();
    void recordUnlessDragging();

private:
    QByteArray walk(QByteArray (LayoutHistory::*step)());

    UI::DockMainWindow* m_window;
    LayoutHistory m_history;
    QTimer m_moment;
    bool m_isStarted = false;
    /// The window system has yet to say what becomes of the layout restored last.
    bool m_isSettling = false;
};

}} // namespace Norvane::Host
