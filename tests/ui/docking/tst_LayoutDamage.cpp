// Layout documents damaged in thousands of ways: reading them neither crashes nor hangs, the inspector
// foretells the result, and the host's good layout comes back afterwards.

#include <tests/support/DockHost.h>
#include <tests/support/LayoutDamage.h>
#include <tests/support/LayoutProblems.h>
#include <tests/support/MessageBoxCloser.h>

#include <QCursor>
#include <QtTest>

#include <memory>

using namespace NorvaneTest;

namespace {

typedef LayoutDamage::Documents (*Damage)(const QByteArray& good);

/// A desk with three panels that layouts speak of.
class GoodDesk : public Desk
{
public:
    GoodDesk()
    {
        for (const char* const name : {"Properties.1", "Viewer.1", "Curves.1"})
            panel(latin1(name));
        window->show();
    }

    /// By the window manager; until then windows and what is in them are larger.
    bool isDecorated() const
    {
        for (const DockWindow* const floating : window->floatingWindows()) {
            if (floating->frameSize() == floating->size())
                return false;
        }
        return window->frameSize() != window->size();
    }

protected:
    QWidget* page(QString& id) override
    {
        Panel* const known = panels().find(id);
        return known ? known : window->DockMainWindow::createPage(id);
    }
};

} // namespace

Q_DECLARE_METATYPE(Damage)

class tst_LayoutDamage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void goodLayoutComesBack_data();
    void goodLayoutComesBack();
};

void tst_LayoutDamage::goodLayoutComesBack_data()
{
    using namespace LayoutDamage;
    QTest::addColumn<Damage>("damage");
    QTest::newRow("cut off anywhere") << Damage(cutAnywhere);
    QTest::newRow("bits flipped") << Damage(bitsFlipped);
    QTest::newRow("elements doubled or removed") << Damage(elementsDoubledOrRemoved);
    QTest::newRow("elements moved") << Damage(elementsMoved);
    QTest::newRow("values replaced") << Damage(valuesReplaced);
    QTest::newRow("nested 20,000 deep") << Damage(deepNesting);
}

void tst_LayoutDamage::goodLayoutComesBack()
{
    QFETCH(Damage, damage);
    std::unique_ptr<GoodDesk> desk(new GoodDesk);
    // Fixed, so that a saved layout does not depend on who has the keyboard.
    QWidget focus;
    QVERIFY(desk->restore(LayoutDocuments::twoWindows()));
    // The sizes inside the windows are those of a layout that was never laid out before.
    WAIT_FOR(desk->isDecorated() && desk->save(&focus).count("x=\"10\" y=\"20\" w=\"640\" h=\"480\"") == 2);
    const QByteArray good = desk->save(&focus);

    QByteArray compact;
    for (const QByteArray& line : good.split('\n'))
        compact += line.trimmed();
    const LayoutDamage::Documents documents = damage(compact);
    for (int i = 0; i < documents.size(); ++i) {
        const QByteArray place = QByteArray::number(i) + ": " + documents[i].left(2000);
        const MessageBoxCloser closer;
        const bool restored = desk->restore(documents[i]);
        QVERIFY2(restored == inspect(documents[i]).isRestorable(), place.constData());
        QVERIFY2(closer.count() == (restored ? 0 : 1), place.constData());
        if (i % 25 != 24 && i + 1 < documents.size())
            continue;
        QVERIFY2(desk->restore(good), place.constData());
        waitUntil([&] { return desk->save(&focus) == good; });
        QCOMPARE(desk->save(&focus).split('\n'), good.split('\n'));
        waitUntil([&] { return desk->isDecorated(); });
        // A failed restore leaves the arrangement before it until the main window goes.
        desk.reset();
        settle();
        desk.reset(new GoodDesk);
    }
}

QTEST_MAIN(tst_LayoutDamage)
#include "tst_LayoutDamage.moc"
