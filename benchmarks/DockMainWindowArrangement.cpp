#include <benchmarks/Arrangement.h>

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>
#include <ui/docking/DockSplitter.h>

#include <QBuffer>
#include <QHash>

namespace Norvane { namespace Benchmarks {

namespace {

class Host : public UI::DockMainWindow
{
public:
    explicit Host(const QList<Pane>& panes)
    {
        setAttribute(Qt::WA_DeleteOnClose, false);
        for (const Pane& pane : panes) {
            for (QWidget* const panel : pane)
                m_panels.insert(panel->objectName(), panel);
        }
        if (!panes.isEmpty())
            rootSplitter()->addWidget(tree(panes, Qt::Horizontal));
    }

    QWidget* createPage(QString& id) override { return m_panels.value(id); }

private:
    QWidget* tree(const QList<Pane>& panes, Qt::Orientation orientation)
    {
        if (panes.size() == 1)
            return dock(panes.first());
        const Qt::Orientation other = orientation == Qt::Horizontal ? Qt::Vertical : Qt::Horizontal;
        UI::DockSplitter* const splitter = new UI::DockSplitter(orientation);
        splitter->addWidget(tree(panes.mid(0, panes.size() / 2), other));
        splitter->addWidget(tree(panes.mid(panes.size() / 2), other));
        return splitter;
    }

    UI::Dock* dock(const Pane& pane)
    {
        UI::Dock* const dock = createDock();
        for (QWidget* const panel : pane)
            dock->addWidget(panel, false, false);
        return dock;
    }

    QHash<QString, QWidget*> m_panels;
};

class DockMainWindowArrangement : public Arrangement
{
public:
    explicit DockMainWindowArrangement(const QList<Pane>& panes)
        : m_window(panes)
    {
    }

    QWidget* window() override { return &m_window; }

    QByteArray save() override
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        // The window stands for no pane: the layout is to be the same wherever the focus is.
        m_window.saveLayout(&buffer, &m_window);
        return buffer.data();
    }

    bool restore(const QByteArray& layout) override
    {
        QBuffer buffer;
        buffer.setData(layout);
        buffer.open(QIODevice::ReadOnly);
        return m_window.restoreLayout(&buffer, false);
    }

    QList<Pane> panes() const override
    {
        QList<Pane> result;
        for (const UI::Dock* const dock : m_window.docks()) {
            Pane pane;
            for (int i = 0; i < dock->count(); ++i)
                pane.append(dock->widget(i));
            result.append(pane);
        }
        return result;
    }

private:
    Host m_window;
};

} // namespace

std::unique_ptr<Arrangement> arrangeDockMainWindow(const QList<Pane>& panes)
{
    return std::make_unique<DockMainWindowArrangement>(panes);
}

}} // namespace Norvane::Benchmarks
