#pragma once

#include <QPointer>
#include <QWidget>
#include <QXmlStreamWriter>

namespace Norvane { namespace UI {

class Dock;
class DockMainWindow;
class DockSplitter;
class DockWindow;

/// Writes the arrangement of a main window as a layout document.
class LayoutWriter
{
public:
    /// \a device must be open for writing. The pane that holds \a focusWidget (may be null) is marked.
    LayoutWriter(QIODevice* device, const QWidget* focusWidget);

    void write(const DockMainWindow* mainWindow);

private:
    void writeWindow(const DockWindow* window);
    void writeSplitter(const DockSplitter* splitter);
    void writeSplit(const QWidget* child, int size, Qt::Orientation orientation);
    void writeDock(const Dock* dock);
    void writePage(const QWidget* page);
    void writeNumber(const char* name, int value);
    void writeText(const char* name, const QString& text);

    QXmlStreamWriter m_xml;
    const QWidget* const m_focusWidget;
};

}} // namespace Norvane::UI
