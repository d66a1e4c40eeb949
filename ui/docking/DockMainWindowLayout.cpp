// Saving the arrangement to a layout document and building it again.

#include <ui/docking/Dock.h>
#include <ui/docking/DockDrag.h>
#include <ui/docking/DockMainWindowPrivate.h>
#include <ui/docking/DockSplitter.h>
#include <ui/docking/LayoutFormat.h>
#include <ui/docking/LayoutReader.h>
#include <ui/docking/LayoutWriter.h>

#include <QApplication>
#include <QMessageBox>

namespace Norvane { namespace UI {

namespace {

void showReadingError(const LayoutReader& reader)
{
    const QString title = QCoreApplication::tr("Dock Layout");
    const QString text = QCoreApplication::tr("Parse error at line %2, column %3:\n%4")
                             .arg(reader.errorLine())
                             .arg(reader.errorColumn())
                             .arg(reader.errorText());
    QMessageBox::warning(nullptr, title, text, QMessageBox::Ok);
}

/// Takes the tree in \a splitter apart, from the top, and appends its parts to \a parts.
void dismantle(QSplitter* splitter, QList<QPointer<QWidget>>& parts)
{
    while (splitter && splitter->count() > 0) {
        QWidget* const child = splitter->widget(0);
        child->setParent(nullptr);
        parts.append(child);
        dismantle(qobject_cast<DockSplitter*>(child), parts);
    }
}

} // namespace

void DockMainWindow::saveLayout(QIODevice* device, QWidget* focusWidget)
{
    if (device && device->isWritable()) {
        LayoutWriter writer(device, focusWidget ? focusWidget : QApplication::focusWidget());
        writer.write(this);
    }
    saveLayoutIDs();
}

bool DockMainWindow::restoreLayout(QIODevice* device, bool fitMainWindowToScreen)
{
    DockDrag::shared().cancel();
    QList<QPointer<DockWindow>> oldWindows;
    for (DockWindow* const window : d->floatingWindows)
        oldWindows.append(window);
    const QPointer<QWidget> oldCentral(centralWidget());
    if (oldCentral) {
        oldCentral->hide();
        oldCentral->setParent(nullptr);
    }
    QList<QPointer<QWidget>> oldParts;
    oldParts.append(oldCentral);
    // A widget that leaves its window costs Qt a walk along all widgets of that window: so panels had better
    // leave panes that stand alone.
    dismantle(qobject_cast<DockSplitter*>(oldCentral), oldParts);
    setCentralWidget(nullptr);
    replaceRootSplitter(new DockSplitter(Qt::Vertical));
    d->floatingWindows.clear();
    d->layoutIds.clear();

    LayoutReader reader(this, fitMainWindowToScreen);
    if (!reader.read(device)) {
        // The old arrangement is not guessed back: it stays as it is, out of sight.
        d->leftovers += oldParts;
        showReadingError(reader);
        return false;
    }
    for (const QPointer<QWidget>& part : oldParts) {
        if (part)
            part->deleteLater();
    }
    for (const QPointer<DockWindow>& window : oldWindows) {
        if (window)
            window->setParent(nullptr);
        delete window.data();
    }
    saveLayoutIDs();
    return true;
}

bool DockMainWindow::IsLayoutValid(QIODevice* device)
{
    if (!device || !device->isReadable())
        return false;
    QXmlStreamReader xml(device);
    return xml.readNextStartElement() && LayoutFormat::isLayout(xml);
}

}} // namespace Norvane::UI
