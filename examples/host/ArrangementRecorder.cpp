#include "ArrangementRecorder.h"

#include "LayoutStore.h"

#include <ui/docking/DockMainWindow.h>

#include <QApplication>
#include <QEvent>
#include <QVariant>
#include <QWidget>

namespace Norvane { namespace Host {

namespace {

const int kMomentMilliseconds = 400;

} // namespace

ArrangementRecorder::ArrangementRecorder(UI::DockMainWindow* window)
    : QObject(window)
    , m_window(window)
{
    m_moment.setSingleShot(true);
    m_moment.setInterval(kMomentMilliseconds);
    connect(&m_moment, SIGNAL(timeout()), this, SLOT(recordUnlessDragging()));
    connect(window, SIGNAL(widgetAdded(Norvane::UI::Dock*, QWidget*)), this,
            SLOT(arrangementMayHaveChanged()));
    connect(window, SIGNAL(widgetRemoved(Norvane::UI::Dock*, QWidget*)), this,
            SLOT(arrangementMayHaveChanged()));
    connect(window, SIGNAL(widgetActivated(Norvane::UI::Dock*, QWidget*)), this,
            SLOT(arrangementMayHaveChanged()));
    watch(window);
}

void ArrangementRecorder::start()
{
    m_isStarted = true;
    recordNow();
    // The window system may not have given the window its place yet.
    m_isSettling = true;
    arrangementMayHaveChanged();
}

void ArrangementRecorder::watch(QWidget* widget)
{
    if (widget)
        widget->installEventFilter(this);
}

bool ArrangementRecorder::eventFilter(QObject*, QEvent* event)
{
    switch (event->type()) {
    case QEvent::Move:
    case QEvent::Resize:
    case QEvent::WindowStateChange:
        arrangementMayHaveChanged();
        break;
    default:
        break;
    }
    return false;
}

void ArrangementRecorder::arrangementMayHaveChanged()
{
    if (m_isStarted)
        m_moment.start();
}

void ArrangementRecorder::recordUnlessDragging()
{
    if (QApplication::mouseButtons() == Qt::NoButton)
        recordNow();
    else
        m_moment.start();
}

void ArrangementRecorder::recordNow()
{
    if (!m_isStarted)
        return;
    m_moment.stop();
    const QByteArray layout = LayoutStore::layoutOf(m_window);
    if (m_isSettling)
        m_history.settle(layout);
    else
        m_history.record(layout);
    m_isSettling = false;
    Q_EMIT changed();
}

void ArrangementRecorder::keepStates(const QList<QWidget*>& panels)
{
    QMap<QString, QString> states;
    for (const QWidget* const panel : panels)
        states.insert(panel->objectName(), panel->property("layoutState").toString());
    m_history.keepStates(states);
}

bool ArrangementRecorder::canUndo() const
{
    return m_history.canUndo();
}

bool ArrangementRecorder::canRedo() const
{
    return m_history.canRedo();
}

QByteArray ArrangementRecorder::undo()
{
    return walk(&LayoutHistory::undo);
}

QByteArray ArrangementRecorder::redo()
{
    return walk(&LayoutHistory::redo);
}

QByteArray ArrangementRecorder::walk(QByteArray (LayoutHistory::*step)())
{
    recordNow();
    const QByteArray layout = (m_history.*step)();
    m_isSettling = !layout.isEmpty();
    Q_EMIT changed();
    return layout;
}

}} // namespace Norvane::Host
