#pragma once

#include <QByteArray>
#include <QList>
#include <QMap>
#include <QString>

namespace Norvane { namespace Host {

/// The steps of an arrangement, to go back and forth among: layout documents, of which one is the present
/// one. When there are too many, the oldest are forgotten.
class LayoutHistory
{
public:
    /// \a most: how many steps are kept, the present one among them; at least 2.
    explicit LayoutHistory(int most = 50);

    /// A layout with another arrangement than the present one becomes the present one, and those that were
    /// undone are forgotten. One with the same arrangement takes the place of the present one: its panels may
    /// show something else by now.
    void record(const QByteArray& layout);
    /// To be called with what has become of the present layout after it was restored. Places and sizes that
    /// the window system changed are no step; anything else is recorded.
    void settle(const QByteArray& layout);
    /// Gives panels of the present layout, by their ids, the states that they had when they were closed.
    void keepStates(const QMap<QString, QString>& states);

    bool canUndo() const;
    bool canRedo() const;
    /// Makes the step before, or after, the present one. Empty if there is none.
    QByteArray undo();
    QByteArray redo();

private:
    int m_most;
    int m_present = -1;
    QList<QByteArray> m_layouts;
};

}} // namespace Norvane::Host
