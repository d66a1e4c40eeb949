#include <ui/docking/FloatingWindowRegistry.h>

#include <QtTest>
#include <QWidget>

using Norvane::UI::FloatingWindowRegistry;

class tst_FloatingWindowRegistry : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void keepsLivingWindowsInOrder();
};

void tst_FloatingWindowRegistry::keepsLivingWindowsInOrder()
{
    QWidget first, third;
    FloatingWindowRegistry registry;
    {
        QWidget goes;
        registry.addWindow(&goes);
        registry.addWindow(&goes);
    }
    QVERIFY(registry.windows().isEmpty());
    QWidget second;
    registry.addWindow(&second);
    registry.addWindow(&first);
    registry.addWindow(&second);
    registry.addWindow(nullptr);
    QCOMPARE(registry.windows(), QList<QWidget*>() << &second << &first);
    registry.removeWindow(&third);
    registry.removeWindow(&second);
    registry.removeWindow(nullptr);
    QCOMPARE(registry.windows(), QList<QWidget*>() << &first);
}

QTEST_MAIN(tst_FloatingWindowRegistry)
#include "tst_FloatingWindowRegistry.moc"
