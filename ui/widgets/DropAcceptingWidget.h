#pragma once

#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QList>
#include <QMimeData>
#include <QStringList>
#include <QUrl>

namespace Norvane { namespace UI {

/// What a widget lets the user drop onto it: bits. The others are free for hosts; a widget with none but
/// those accepts the drag and ignores the drop.
enum AcceptedDropFlag : int { AcceptNothing = 0, AcceptUrls = 1 };

/// A widget class T, such as QListWidget, onto which files can be dropped from elsewhere. The drag and drop
/// of T itself is switched off: items are neither moved nor reordered by dragging.
template <class T>
class DropAcceptingWidget : public T
{
public:
    /// Accepts nothing yet.
    explicit DropAcceptingWidget(QWidget* parent);

    /// What may be dropped.
    AcceptedDropFlag acceptsDropsFlags() const;
    void setAcceptsDropsFlags(AcceptedDropFlag flags);

protected:
    /// Accepts every drag once anything may be dropped.
    void dragEnterEvent(QDragEnterEvent* event) override;
    /// The same at every place.
    void dragMoveEvent(QDragMoveEvent* event) override;
    /// Hands files over to droppedUrls(); the sender keeps its own.
    void dropEvent(QDropEvent* event) override;

    /// URLs were dropped: their local paths in the order in which they came, empty for what is no local file.
    virtual void droppedUrls(const QStringList& paths) = 0;

private:
    AcceptedDropFlag m_acceptsDropsFlags = AcceptNothing;
};

template <class T>
DropAcceptingWidget<T>::DropAcceptingWidget(QWidget* parent)
    : T(parent)
{
}

template <class T>
AcceptedDropFlag DropAcceptingWidget<T>::acceptsDropsFlags() const
{
    return m_acceptsDropsFlags;
}

template <class T>
void DropAcceptingWidget<T>::setAcceptsDropsFlags(AcceptedDropFlag flags)
{
    m_acceptsDropsFlags = flags;
    this->setAcceptDrops(flags != AcceptNothing);
}

template <class T>
void DropAcceptingWidget<T>::dragEnterEvent(QDragEnterEvent* event)
{
    if (m_acceptsDropsFlags != AcceptNothing)
        event->acceptProposedAction();
}

template <class T>
void DropAcceptingWidget<T>::dragMoveEvent(QDragMoveEvent* event)
{
    if (m_acceptsDropsFlags != AcceptNothing)
        event->accept();
}

template <class T>
void DropAcceptingWidget<T>::dropEvent(QDropEvent* event)
{
    const QMimeData* const mimeData = event->mimeData();
    if (!(m_acceptsDropsFlags & AcceptUrls) || !mimeData || !mimeData->hasUrls())
        return;
    QStringList paths;
    const QList<QUrl> urls = mimeData->urls();
    for (const QUrl& url : urls)
        paths.append(url.toLocalFile());
    // The sender keeps its files: one that is told of a move deletes them.
    const bool mayCopy = event->possibleActions() & Qt::CopyAction;
    event->setDropAction(mayCopy ? Qt::CopyAction : Qt::IgnoreAction);
    event->accept();
    droppedUrls(paths);
}

}} // namespace Norvane::UI
