/// Feeds arbitrary bytes to LayoutInspector and to DockMainWindow::restoreLayout(): both must survive them
/// and be of one opinion, and the window must stay usable.

#include <ui/docking/DockMainWindow.h>
#include <ui/docking/LayoutInspector.h>

#include <tests/support/LayoutDocuments.h>
#include <tests/support/MessageBoxCloser.h>

#include <QApplication>
#include <QBuffer>

#include <cstdint>
#include <cstdio>
#include <cstdlib>

using namespace NorvaneTest;
using Norvane::UI::DockMainWindow;
using Norvane::UI::LayoutInspector;

namespace {

/// A panel that takes the state kept in the document.
class Panel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    QString layoutState() const { return m_state; }
    void setLayoutState(const QString& state) { m_state = state; }

private:
    QString m_state;
};

/// A host with panels of its own, placeholders, and panels that it refuses.
class Host : public DockMainWindow
{
public:
    QWidget* createPage(QString& id) override
    {
        if (id.startsWith(QLatin1String("none")))
            return nullptr;
        if (!id.startsWith(QLatin1String("panel")))
            return DockMainWindow::createPage(id);
        QWidget* const panel = new Panel;
        panel->setObjectName(id);
        return panel;
    }
};

void check(bool holds, const char* what)
{
    if (!holds) {
        std::fprintf(stderr, "Does not hold: %s\n", what);
        std::abort();
    }
}

bool isRestorable(QByteArray document)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return LayoutInspector(&buffer).isRestorable();
}

bool restore(DockMainWindow* window, QByteArray document)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    const bool restored = window->restoreLayout(&buffer, false);
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
    return restored;
}

QByteArray save(DockMainWindow* window)
{
    QByteArray document;
    QBuffer buffer(&document);
    buffer.open(QIODevice::WriteOnly);
    window->saveLayout(&buffer, nullptr);
    return document;
}

} // namespace

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // That platform complains of what it cannot do, like raising windows.
    qputenv("QT_LOGGING_RULES", "default.warning=false");
    // Never deleted: the fuzzer leaves by way of exit().
    static QApplication* const application = new QApplication(*argc, *argv);
    application->setQuitOnLastWindowClosed(false);
    return 0;
}

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    const QByteArray document(reinterpret_cast<const char*>(data), int(size));
    const bool restorable = isRestorable(document);

    MessageBoxCloser boxes;
    Host* const window = new Host;
    check(restore(window, document) == restorable, "the inspector foretells whether a document is restored");
    check(boxes.count() == (restorable ? 0 : 1), "one message for a document that is not restored");
    check(isRestorable(save(window)), "what is saved can be restored");

    check(restore(window, LayoutDocuments::twoWindows()), "a good document is restored afterwards");
    check(window->docks().size() == 4, "a good document has all its panes afterwards");
    delete window;
    return 0;
}

#include "fuzz_layout.moc"
