// Layout documents damaged in thousands of ways: reading them neither crashes nor hangs, the inspector
// foretells the result, and the host's good layout comes back afterwards.

#include <tests/support/DockHost.h>
#include <tests/support/LayoutDamage.h>
#include <tests/support/LayoutProblems.h>
#include <tests/support/MessageBoxCloser.h>

#include <QBuffer>
#include <QCursor>
#include <QtTest>

using namespace NorvaneTest;

namespace {

typedef LayoutDamage::Documents (*Damage)(const QByteArray& good);

/// Closes message boxes that nobody sees: a window manager would still be at work on them when they are gone.
class UnseenBoxCloser : public MessageBoxCloser
{
public:
    bool eventFilter(QObject* watched, QEvent* event) override
    {
        QMessageBox* const box =
            event->type() == QEvent::Polish ? qobject_cast<QMessageBox*>(watched) : nullptr;
        if (box)
            box->setAttribute(Qt::WA_DontShowOnScreen);
        return MessageBoxCloser::eventFilter(watched, event);
    }
};

} // namespace

Q_DECLARE_METATYPE(Damage)

class tst_LayoutDamage : public QObject
{
    Q_OBJECT
private Q_SLOTS:
    void initTestCase() { QCursor::setPos(5, 5); }
    void init();
    void cleanup();
    void goodLayoutComesBack_data();
    void goodLayoutComesBack();

private:
    void openHost();
    void closeHost();
    bool isDecorated() const;
    QByteArray save();
    bool restore(QByteArray document);

    Panels* m_panels = nullptr;
    QPointer<DockHost> m_host;
    /// Fixed, so that a saved layout does not depend on who has the keyboard.
    QWidget m_focus;
};

void tst_LayoutDamage::init()
{
    m_panels = new Panels;
    for (const char* const name : {"Properties.1", "Viewer.1", "Curves.1"})
        m_panels->make(latin1(name));
    openHost();
}

void tst_LayoutDamage::cleanup()
{
    closeHost();
    delete m_panels;
}

void tst_LayoutDamage::openHost()
{
    m_host = new DockHost(*m_panels);
    m_host->show();
}

// A failed restore leaves the arrangement before it until the main window goes.
void tst_LayoutDamage::closeHost()
{
    delete m_host;
    settle();
}

// By the window manager; until then windows and what is in them are larger.
bool tst_LayoutDamage::isDecorated() const
{
    for (const DockWindow* const window : m_host->floatingWindows()) {
        if (window->frameSize() == window->size())
            return false;
    }
    return m_host->frameSize() != m_host->size();
}

QByteArray tst_LayoutDamage::save()
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    m_host->saveLayout(&buffer, &m_focus);
    return buffer.data();
}

bool tst_LayoutDamage::restore(QByteArray document)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return m_host->restoreLayout(&buffer, false);
}

void tst_LayoutDamage::goodLayoutComesBack_data()
{
    using namespace LayoutDamage;
    QTest::addColumn<Damage>("damage");
    QTest::newRow("cut at every byte") << Damage(cutAtEveryByte);
    QTest::newRow("bytes lost") << Damage(bytesLost);
    QTest::newRow("bits flipped") << Damage(bitsFlipped);
    QTest::newRow("elements doubled") << Damage(elementsDoubled);
    QTest::newRow("elements removed") << Damage(elementsRemoved);
    QTest::newRow("elements moved") << Damage(elementsMoved);
    QTest::newRow("values replaced") << Damage(valuesReplaced);
    QTest::newRow("attributes removed") << Damage(attributesRemoved);
    QTest::newRow("window states") << Damage(windowStates);
    QTest::newRow("nested 20,000 deep") << Damage(deepNesting);
    QTest::newRow("ids doubled") << Damage(idsDoubled);
    QTest::newRow("other text") << Damage(otherText);
}

void tst_LayoutDamage::goodLayoutComesBack()
{
    QFETCH(Damage, damage);
    QVERIFY(restore(LayoutDocuments::twoWindows()));
    // The sizes inside the windows are those of a layout that was never laid out before.
    WAIT_FOR(isDecorated() && save().count("x=\"10\" y=\"20\" w=\"640\" h=\"480\"") == 2);
    const QByteArray good = save();

    QByteArray compact;
    for (const QByteArray& line : good.split('\n'))
        compact += line.trimmed();
    const LayoutDamage::Documents documents = damage(compact);
    for (int i = 0; i < documents.size(); ++i) {
        const QByteArray place = QByteArray::number(i) + ": " + documents[i].left(2000);
        const UnseenBoxCloser closer;
        const bool restored = restore(documents[i]);
        QVERIFY2(restored == inspect(documents[i]).isRestorable(), place.constData());
        QVERIFY2(closer.count() == (restored ? 0 : 1), place.constData());
        if (i % 25 != 24 && i + 1 < documents.size())
            continue;
        QVERIFY2(restore(good), place.constData());
        waitUntil([&] { return save() == good; });
        QCOMPARE(save().split('\n'), good.split('\n'));
        waitUntil([&] { return isDecorated(); });
        closeHost();
        openHost();
    }
}

QTEST_MAIN(tst_LayoutDamage)
#include "tst_LayoutDamage.moc"
