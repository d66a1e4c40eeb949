#pragma once

#include <benchmarks/Arrangement.h>

#include <QPointer>
#include <QWidget>

#include <string>

namespace Norvane { namespace Benchmarks {

/// The panels of a host, and what is left of them when the frameworks are done with them.
class Panels
{
public:
    explicit Panels(int count);
    Panels(const Panels&) = delete;
    Panels& operator=(const Panels&) = delete;
    ~Panels();

    /// Four to a pane, in order.
    QList<Pane> inOrder() const;
    /// To as many panes, one to each in turn.
    QList<Pane> dealt() const;

private:
    QList<QPointer<QWidget>> m_panels;
};

/// Shows the window of \a arrangement, as large as fits on the screen with its decoration.
void show(Arrangement& arrangement);

/// Waits until the window manager has decorated the window, whose geometry is not final before. A second at
/// most: there may be no window manager.
void awaitDecoration(Arrangement& arrangement);

/// Lets happen what was put off: layout, painting, deletion.
void settle();

/// What is wrong with \a arrangement, or an empty text: its panes hold the panels (by name) that \a panes
/// hold, and of each pane one panel is to be seen.
std::string problemOf(const Arrangement& arrangement, const QList<Pane>& panes);

/// The bytes of heap in use once everything has happened that was put off, without the pictures that Qt
/// keeps.
long settledHeap();

}} // namespace Norvane::Benchmarks
