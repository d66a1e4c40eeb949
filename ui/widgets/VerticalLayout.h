#pragma once

#include <NorvaneCoreExport.h>

#include <QLayout>
#include <QList>

namespace Norvane { namespace UI {

/// Items from top to bottom, each as high as it asks for and as wide as the layout. Nothing is stretched or
/// squeezed: what does not fit lies below the layout. The size hint has a spacing below the last item too.
/// Hidden widgets take no room.
class NORVANE_CORE_EXPORT VerticalLayout : public QLayout
{
    Q_OBJECT
public:
    /// Lays out \a parent. For \a margin (all four) and \a spacing, -1 means the style's.
    VerticalLayout(QWidget* parent, int margin, int spacing);
    /// A layout without parent and margins.
    explicit VerticalLayout(int spacing);
    /// Deletes the items, but not their widgets.
    ~VerticalLayout() override;

    /// Whether the first item alone gets the whole area, and the others stay where they are. Off at first;
    /// takes effect with the next layout.
    void expandSpace(bool on);

    /// Takes ownership of \a item, as insertItem() does.
    void addItem(QLayoutItem* item) override;
    /// \a index is 0 for the top; out of range it means the nearer end.
    void insertItem(int index, QLayoutItem* item);
    void insertWidget(int index, QWidget* widget);

    int count() const override;
    /// Null for an index out of range.
    QLayoutItem* itemAt(int index) const override;
    /// The same, and the item is the caller's now.
    QLayoutItem* takeAt(int index) override;

    /// None.
    Qt::Orientations expandingDirections() const override;
    QSize sizeHint() const override;
    QSize minimumSize() const override;
    void setGeometry(const QRect& rect) override;

protected:
    /// The size of \a item in the stack, of which only the height counts; by default its size hint.
    virtual QSize calculateSize(QLayoutItem* item);

private:
    QSize stackedSize(QSize (QLayoutItem::*itemSize)() const) const;
    void stack(const QRect& area);

    bool m_expandSpace = false;
    QList<QLayoutItem*> m_items;
};

}} // namespace Norvane::UI
