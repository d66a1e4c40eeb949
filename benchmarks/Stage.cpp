#include <benchmarks/Stage.h>

#include <benchmarks/HeapCounter.h>
#include <ui/toolkit/Screens.h>

#include <QApplication>
#include <QElapsedTimer>
#include <QPixmapCache>
#include <QStringList>

namespace Norvane { namespace Benchmarks {

namespace {

const int kPanelsPerPane = 4;

int visiblePanels(const Pane& pane)
{
    int visible = 0;
    for (const QWidget* const panel : pane)
        visible += panel->visibleRegion().isEmpty() ? 0 : 1;
    return visible;
}

QStringList names(const QList<Pane>& panes)
{
    QStringList result;
    for (const Pane& pane : panes) {
        QStringList paneNames;
        for (const QWidget* const panel : pane)
            paneNames.append(panel->objectName());
        paneNames.sort();
        result.append(paneNames.join(QLatin1String(" ")));
    }
    result.sort();
    return result;
}

} // namespace

Arrangement::~Arrangement() = default;

Panels::Panels(int count)
{
    for (int i = 1; i <= count; ++i) {
        QWidget* const panel = new QWidget;
        panel->setObjectName(QString::fromLatin1("panel.%1").arg(i));
        panel->setWindowTitle(QString::fromLatin1("Panel %1").arg(i));
        m_panels.append(panel);
    }
}

Panels::~Panels()
{
    for (const QPointer<QWidget>& panel : m_panels)
        delete panel.data();
}

QList<Pane> Panels::inOrder() const
{
    QList<Pane> result;
    for (int i = 0; i < m_panels.size(); ++i) {
        if (i % kPanelsPerPane == 0)
            result.append(Pane());
        result.last().append(m_panels[i]);
    }
    return result;
}

QList<Pane> Panels::dealt() const
{
    QList<Pane> result = inOrder();
    const int count = static_cast<int>(result.size());
    for (Pane& pane : result)
        pane.clear();
    for (int i = 0; i < m_panels.size(); ++i)
        result[i % count].append(m_panels[i]);
    return result;
}

void show(Arrangement& arrangement)
{
    const QSize decoration(40, 80);
    arrangement.window()->resize(UI::Screens::availableGeometry(0).size() - decoration);
    arrangement.window()->show();
    settle();
}

void awaitDecoration(Arrangement& arrangement)
{
    const QWidget* const window = arrangement.window();
    QElapsedTimer timer;
    timer.start();
    while (window->frameSize() == window->size() && timer.elapsed() < 1000)
        settle();
}

void settle()
{
    QApplication::processEvents();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

std::string problemOf(const Arrangement& arrangement, const QList<Pane>& panes)
{
    const QList<Pane> found = arrangement.panes();
    if (names(found) != names(panes))
        return "the panels are not in the panes where they belong";
    for (const Pane& pane : found) {
        if (visiblePanels(pane) != 1)
            return "a pane does not show one panel";
    }
    return std::string();
}

long settledHeap()
{
    settle();
    QPixmapCache::clear();
    return heapBytes();
}

}} // namespace Norvane::Benchmarks
