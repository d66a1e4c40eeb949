#include <ui/docking/DockSplitter.h>

#include <QEvent>
#include <QShowEvent>

namespace Norvane { namespace UI {

DockSplitter::DockSplitter(Qt::Orientation orientation)
    : QSplitter(orientation)
{
    setAttribute(Qt::WA_DeleteOnClose);
    // A splitter that removes itself closes as a parentless widget: that must not end the application.
    setAttribute(Qt::WA_QuitOnClose, false);
}

DockSplitter::~DockSplitter() = default;

void DockSplitter::expand(int index)
{
    if (index == -1) {
        setSizes(m_savedSizes);
        m_savedSizes.clear();
        return;
    }
    m_savedSizes = sizes();
    QList<int> expanded;
    for (int i = 0; i < m_savedSizes.size(); ++i)
        expanded.append(i == index ? 100 : 0);
    setSizes(expanded);
}

QList<int> DockSplitter::realSizes() const
{
    return m_savedSizes.isEmpty() ? sizes() : m_savedSizes;
}

void DockSplitter::updateDocks()
{
    const bool isInner = parentWidget() && parentWidget() != window();
    if (count() > 0 || !isInner)
        return;
    hide();
    setParent(nullptr);
    close();
}

// Each splitter asks its children for hints, so that in a tree of them Qt's own, which asks for both hints,
// costs the square of the depth for each pane.
QSize DockSplitter::minimumSizeHint() const
{
    const bool horizontal = orientation() == Qt::Horizontal;
    int along = 0;
    int across = 0;
    const auto add = [&](const QSize& size) {
        along += qMax(0, horizontal ? size.width() : size.height());
        across = qMax(across, horizontal ? size.height() : size.width());
    };
    for (int i = 0; i < count(); ++i) {
        const QWidget* const child = widget(i);
        if (child->isHidden())
            continue;
        add(child->minimumSizeHint().expandedTo(child->minimumSize()).boundedTo(child->maximumSize()));
        if (!handle(i)->isHidden())
            along += handleWidth();
    }
    return horizontal ? QSize(along, across) : QSize(across, along);
}

// The splitter's own handling, which lays the children out again whenever one of them changes its size hint,
// is left out: panes keep the sizes that the user gave them.
bool DockSplitter::event(QEvent* event)
{
    const bool handled = QWidget::event(event);
    if (event->type() == QEvent::LayoutRequest || event->type() == QEvent::ChildRemoved)
        updateDocks();
    return handled;
}

void DockSplitter::showEvent(QShowEvent* event)
{
    QSplitter::showEvent(event);
    // Children added while the splitter was hidden have no visible handles yet.
    refresh();
}

}} // namespace Norvane::UI
