#include <benchmarks/Arrangement.h>

#include <QDockWidget>
#include <QMainWindow>
#include <QSet>

namespace Norvane { namespace Benchmarks {

namespace {

class QDockWidgetArrangement : public Arrangement
{
public:
    explicit QDockWidgetArrangement(const QList<Pane>& panes)
    {
        m_window.setDockNestingEnabled(true);
        for (const Pane& pane : panes) {
            m_panes.append(QList<QDockWidget*>());
            for (QWidget* const panel : pane)
                m_panes.last().append(dockWidget(panel));
        }
        if (m_panes.isEmpty())
            return;
        m_window.addDockWidget(Qt::LeftDockWidgetArea, m_panes.first().first(), Qt::Horizontal);
        split(0, m_panes.size(), Qt::Horizontal);
        // Only afterwards: what is split off a pane with tabs would become one more tab of it.
        for (const QList<QDockWidget*>& pane : m_panes)
            addTabs(pane);
    }

    QWidget* window() override { return &m_window; }
    QByteArray save() override { return m_window.saveState(); }
    bool restore(const QByteArray& layout) override { return m_window.restoreState(layout); }

    QList<Pane> panes() const override
    {
        QList<Pane> result;
        QSet<QDockWidget*> seen;
        for (const QList<QDockWidget*>& pane : m_panes) {
            for (QDockWidget* const dock : pane) {
                if (seen.contains(dock))
                    continue;
                Pane panels;
                const QList<QDockWidget*> tabs =
                    m_window.tabifiedDockWidgets(dock) + QList<QDockWidget*>{dock};
                for (QDockWidget* const tab : tabs) {
                    seen.insert(tab);
                    panels.append(tab->widget());
                }
                result.append(panels);
            }
        }
        return result;
    }

private:
    QDockWidget* dockWidget(QWidget* panel)
    {
        QDockWidget* const dock = new QDockWidget(panel->windowTitle(), &m_window);
        dock->setObjectName(panel->objectName());
        dock->setWidget(panel);
        return dock;
    }

    void split(int first, int end, Qt::Orientation orientation)
    {
        if (end - first == 1)
            return;
        const Qt::Orientation other = orientation == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
        const int middle = first + (end - first) / 2;
        m_window.splitDockWidget(m_panes[first].first(), m_panes[middle].first(), orientation);
        split(first, middle, other);
        split(middle, end, other);
    }

    void addTabs(const QList<QDockWidget*>& pane)
    {
        for (int i = 1; i < pane.size(); ++i)
            m_window.tabifyDockWidget(pane[i - 1], pane[i]);
        pane.first()->raise();
    }

    QMainWindow m_window;
    QList<QList<QDockWidget*>> m_panes;
};

} // namespace

std::unique_ptr<Arrangement> arrangeQDockWidgets(const QList<Pane>& panes)
{
    return std::make_unique<QDockWidgetArrangement>(panes);
}

}} // namespace Norvane::Benchmarks
