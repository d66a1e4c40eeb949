#include <ui/widgets/VerticalLayout.h>

#include <QtTest>

using namespace Norvane::UI;

namespace {

/// An item of a given height that remembers where it was put.
class Item : public QLayoutItem
{
public:
    explicit Item(int height)
        : m_size(70, height)
    {
    }

    QSize sizeHint() const override { return m_size; }
    QSize minimumSize() const override { return m_size / 2; }
    QSize maximumSize() const override { return m_size; }
    Qt::Orientations expandingDirections() const override { return Qt::Vertical; }
    void setGeometry(const QRect& rect) override { m_geometry = rect; }
    QRect geometry() const override { return m_geometry; }
    bool isEmpty() const override { return false; }

private:
    const QSize m_size;
    QRect m_geometry;
};

} // namespace

class tst_VerticalLayout : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void size_data();
    void size();
    void stacks_data();
    void stacks();
    void expandsFirstItem();
    void hiddenWidgetTakesNoRoom();
};

void tst_VerticalLayout::size_data()
{
    QTest::addColumn<QList<int>>("heights");
    QTest::addColumn<QSize>("hint");
    QTest::addColumn<QSize>("minimum");
    QTest::newRow("empty") << QList<int>() << QSize(4, 6) << QSize(4, 6);
    QTest::newRow("two") << (QList<int>() << 20 << 30) << QSize(74, 64) << QSize(39, 39);
    QTest::newRow("nothing on top") << (QList<int>() << 0 << 20) << QSize(74, 30) << QSize(39, 20);
    QTest::newRow("nothing below") << (QList<int>() << 20 << 0) << QSize(74, 34) << QSize(39, 24);
}

void tst_VerticalLayout::size()
{
    QFETCH(QList<int>, heights);
    VerticalLayout layout(4);
    layout.setContentsMargins(1, 2, 3, 4);
    for (const int height : heights)
        layout.addItem(new Item(height));
    QTEST(layout.sizeHint(), "hint");
    QTEST(layout.minimumSize(), "minimum");
}

void tst_VerticalLayout::stacks_data()
{
    QTest::addColumn<Qt::LayoutDirection>("direction");
    QTest::addColumn<int>("height");
    QTest::newRow("room") << Qt::LeftToRight << 200;
    QTest::newRow("too low") << Qt::LeftToRight << 10;
    QTest::newRow("right to left") << Qt::RightToLeft << 200;
}

void tst_VerticalLayout::stacks()
{
    QFETCH(Qt::LayoutDirection, direction);
    QFETCH(int, height);
    QWidget parent;
    parent.setLayoutDirection(direction);
    VerticalLayout* const layout = new VerticalLayout(&parent, 5, 4);
    layout->addItem(new Item(20));
    layout->insertItem(0, new Item(30));
    layout->setGeometry(QRect(10, 20, 100, height));
    QCOMPARE(layout->itemAt(0)->geometry(), QRect(15, 25, 90, 30));
    QCOMPARE(layout->itemAt(1)->geometry(), QRect(15, 59, 90, 20));
    QCOMPARE(int(layout->expandingDirections()), 0);
}

void tst_VerticalLayout::expandsFirstItem()
{
    VerticalLayout layout(4);
    layout.expandSpace(true);
    layout.setGeometry(QRect(0, 0, 100, 200));
    layout.setContentsMargins(1, 2, 3, 4);
    layout.addItem(new Item(20));
    layout.addItem(new Item(30));
    layout.setGeometry(QRect(0, 0, 100, 200));
    QCOMPARE(layout.itemAt(0)->geometry(), QRect(1, 2, 96, 194));
    QCOMPARE(layout.itemAt(1)->geometry(), QRect());
}

void tst_VerticalLayout::hiddenWidgetTakesNoRoom()
{
    QWidget parent;
    VerticalLayout* const layout = new VerticalLayout(&parent, 0, 4);
    for (int i = 0; i < 3; ++i) {
        QWidget* const child = new QWidget;
        child->setFixedHeight(20);
        layout->insertWidget(i, child);
        QCOMPARE(child->parentWidget(), &parent);
    }
    layout->itemAt(1)->widget()->hide();
    QCOMPARE(layout->sizeHint().height(), 48);
    layout->setGeometry(QRect(0, 0, 100, 100));
    QCOMPARE(layout->itemAt(2)->geometry().top(), 24);
}

QTEST_MAIN(tst_VerticalLayout)
#include "tst_VerticalLayout.moc"
