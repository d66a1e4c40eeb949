#pragma once

#include <QByteArray>
#include <QList>

#include <memory>

class QWidget;

namespace Norvane { namespace Benchmarks {

using Pane = QList<QWidget*>;

/// A host's panels in the panes of a main window, made with one docking framework. The panels stay the same
/// ones when a layout is restored. They may or may not die with the arrangement.
class Arrangement
{
public:
    Arrangement() = default;
    Arrangement(const Arrangement&) = delete;
    Arrangement& operator=(const Arrangement&) = delete;
    virtual ~Arrangement();

    virtual QWidget* window() = 0;
    virtual QByteArray save() = 0;
    virtual bool restore(const QByteArray& layout) = 0;
    /// The panels as the framework reports them, by pane.
    virtual QList<Pane> panes() const = 0;
};

/// Puts each of \a panes (maybe none) into a pane of its own, and these into a binary tree of splitters,
/// columns first. The window is not shown yet.
using Arrange = std::unique_ptr<Arrangement> (*)(const QList<Pane>& panes);

struct Framework {
    const char* name;
    Arrange arrange;
};

std::unique_ptr<Arrangement> arrangeDockMainWindow(const QList<Pane>& panes);
std::unique_ptr<Arrangement> arrangeQDockWidgets(const QList<Pane>& panes);
std::unique_ptr<Arrangement> arrangeAdsDockManager(const QList<Pane>& panes);
/// The same without the style sheet that the framework brings along.
std::unique_ptr<Arrangement> arrangePlainAdsDockManager(const QList<Pane>& panes);

}} // namespace Norvane::Benchmarks
