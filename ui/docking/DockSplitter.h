#pragma once

#include <NorvaneCoreExport.h>

#include <QList>
#include <QSplitter>

namespace Norvane { namespace UI {

/// A node of the tree of panes: a splitter whose children are panes (Dock) or further splitters. A splitter
/// that runs empty removes and deletes itself, unless it is the root of a window. Owned by its Qt parent.
class NORVANE_CORE_EXPORT DockSplitter : public QSplitter
{
    Q_OBJECT
public:
    /// A splitter without parent.
    explicit DockSplitter(Qt::Orientation orientation);
    ~DockSplitter() override;

    /// Gives the whole extent to the child at \a index, keeping the former sizes; -1 gives them back.
    void expand(int index);

    /// The sizes that the user set, in pixels, also while a child is expanded.
    QList<int> realSizes() const;

    /// Removes the splitter if it has no children and is not the root of a window. Call it after panes were
    /// added or moved.
    void updateDocks();

    /// What the children need at least. Unlike Qt's, it asks none of them how large it would like to be.
    QSize minimumSizeHint() const override;

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;

private:
    QList<int> m_savedSizes;
};

}} // namespace Norvane::UI
