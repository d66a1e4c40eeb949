#include <ui/widgets/VerticalLayout.h>

#include <QWidgetItem>

namespace Norvane { namespace UI {

namespace {

/// Spacers call themselves empty too.
bool isHidden(QLayoutItem* item)
{
    return item->widget() && item->isEmpty();
}

} // namespace

VerticalLayout::VerticalLayout(QWidget* parentWidget, int margin, int spacing)
    : QLayout(parentWidget)
{
    setContentsMargins(margin, margin, margin, margin);
    setSpacing(spacing);
}

VerticalLayout::VerticalLayout(int spacing)
{
    setContentsMargins(0, 0, 0, 0);
    setSpacing(spacing);
}

VerticalLayout::~VerticalLayout()
{
    while (QLayoutItem* const item = VerticalLayout::takeAt(0))
        delete item;
}

void VerticalLayout::expandSpace(bool on)
{
    m_expandSpace = on;
}

void VerticalLayout::addItem(QLayoutItem* item)
{
    insertItem(count(), item);
}

void VerticalLayout::insertItem(int index, QLayoutItem* item)
{
    m_items.insert(qBound(0, index, count()), item);
    invalidate();
}

void VerticalLayout::insertWidget(int index, QWidget* widget)
{
    addChildWidget(widget);
    insertItem(index, new QWidgetItem(widget));
}

int VerticalLayout::count() const
{
    return int(m_items.size());
}

QLayoutItem* VerticalLayout::itemAt(int index) const
{
    return m_items.value(index);
}

QLayoutItem* VerticalLayout::takeAt(int index)
{
    if (index < 0 || index >= count())
        return nullptr;
    QLayoutItem* const item = m_items.takeAt(index);
    invalidate();
    return item;
}

Qt::Orientations VerticalLayout::expandingDirections() const
{
    return Qt::Orientations();
}

QSize VerticalLayout::sizeHint() const
{
    return stackedSize(&QLayoutItem::sizeHint);
}

QSize VerticalLayout::minimumSize() const
{
    return stackedSize(&QLayoutItem::minimumSize);
}

void VerticalLayout::setGeometry(const QRect& rect)
{
    QLayout::setGeometry(rect);
    int left, top, right, bottom;
    getContentsMargins(&left, &top, &right, &bottom);
    const QRect area = rect.adjusted(left, top, -right, -bottom);
    if (!m_expandSpace)
        stack(area);
    else if (!m_items.isEmpty())
        m_items.first()->setGeometry(area);
}

QSize VerticalLayout::calculateSize(QLayoutItem* item)
{
    return item->sizeHint();
}

// A spacing follows each item once there is any height: the last one too, which leaves a gap below it.
QSize VerticalLayout::stackedSize(QSize (QLayoutItem::*itemSize)() const) const
{
    int width = 0;
    int height = 0;
    for (QLayoutItem* const item : m_items) {
        if (isHidden(item))
            continue;
        const QSize size = (item->*itemSize)();
        width = qMax(width, size.width());
        height += size.height();
        if (height != 0)
            height += spacing();
    }
    int left, top, right, bottom;
    getContentsMargins(&left, &top, &right, &bottom);
    return QSize(width + left + right, height + top + bottom);
}

void VerticalLayout::stack(const QRect& area)
{
    int y = area.y();
    for (QLayoutItem* const item : m_items) {
        if (isHidden(item))
            continue;
        const int height = calculateSize(item).height();
        item->setGeometry(QRect(area.x(), y, area.width(), height));
        y += height + spacing();
    }
}

}} // namespace Norvane::UI
