#include <benchmarks/Arrangement.h>

#include <qtadvanceddocking/DockAreaWidget.h>
#include <qtadvanceddocking/DockManager.h>
#include <qtadvanceddocking/DockWidget.h>

#include <QMainWindow>

namespace Norvane { namespace Benchmarks {

namespace {

class AdsArrangement : public Arrangement
{
public:
    AdsArrangement(const QList<Pane>& panes, bool withStyleSheet)
        : m_manager(new ads::CDockManager(&m_window))
        , m_panes(panes)
    {
        if (!withStyleSheet)
            m_manager->setStyleSheet(QString());
        if (panes.isEmpty())
            return;
        ads::CDockWidget* const first = dockWidget(panes.first().first());
        split(m_manager->addDockWidget(ads::LeftDockWidgetArea, first), 0, m_panes.size(), Qt::Horizontal);
    }

    QWidget* window() override { return &m_window; }
    QByteArray save() override { return m_manager->saveState(); }
    bool restore(const QByteArray& layout) override { return m_manager->restoreState(layout); }

    QList<Pane> panes() const override
    {
        QList<Pane> result;
        for (int i = 0; i < m_manager->dockAreaCount(); ++i) {
            Pane pane;
            for (ads::CDockWidget* const dock : m_manager->dockArea(i)->dockWidgets())
                pane.append(dock->widget());
            result.append(pane);
        }
        return result;
    }

private:
    ads::CDockWidget* dockWidget(QWidget* panel)
    {
        ads::CDockWidget* const dock = new ads::CDockWidget(panel->windowTitle());
        dock->setObjectName(panel->objectName());
        // The other frameworks put no scroll area around a panel.
        dock->setWidget(panel, ads::CDockWidget::ForceNoScrollArea);
        return dock;
    }

    /// Makes panes of the panels from \a first to \a end within \a area, which holds the first panel already.
    void split(ads::CDockAreaWidget* area, int first, int end, Qt::Orientation orientation)
    {
        if (end - first == 1) {
            addTabs(area, m_panes[first]);
            return;
        }
        const bool columns = orientation == Qt::Horizontal;
        const int middle = first + (end - first) / 2;
        ads::CDockAreaWidget* const newArea =
            m_manager->addDockWidget(columns ? ads::RightDockWidgetArea : ads::BottomDockWidgetArea,
                                     dockWidget(m_panes[middle].first()), area);
        const Qt::Orientation other = columns ? Qt::Vertical : Qt::Horizontal;
        split(area, first, middle, other);
        split(newArea, middle, end, other);
    }

    void addTabs(ads::CDockAreaWidget* area, const Pane& pane)
    {
        for (int i = 1; i < pane.size(); ++i)
            m_manager->addDockWidgetTabToArea(dockWidget(pane[i]), area);
        area->setCurrentIndex(0);
    }

    QMainWindow m_window;
    ads::CDockManager* const m_manager;
    const QList<Pane> m_panes;
};

} // namespace

std::unique_ptr<Arrangement> arrangeAdsDockManager(const QList<Pane>& panes)
{
    return std::make_unique<AdsArrangement>(panes, true);
}

std::unique_ptr<Arrangement> arrangePlainAdsDockManager(const QList<Pane>& panes)
{
    return std::make_unique<AdsArrangement>(panes, false);
}

}} // namespace Norvane::Benchmarks
