#pragma once

#include <QXmlStreamReader>

namespace Norvane { namespace UI {

class Dock;
class DockMainWindow;
class DockSplitter;
class DockWindow;

/// Builds the arrangement that a layout document describes into a main window whose root splitter is empty.
class LayoutReader
{
public:
    /// With \a fitMainWindow the main window fills its screen.
    LayoutReader(DockMainWindow* mainWindow, bool fitMainWindow);

    /// False on an error; what was built before it stays.
    bool read(QIODevice* device);

    qint64 errorLine() const;
    qint64 errorColumn() const;
    QString errorText() const;

private:
    void readLayout();
    DockWindow* nextWindow();
    void readWindow(DockWindow* window);
    void readSplitter(DockSplitter* splitter, int depth);
    Dock* readDock();
    QWidget* readPage();
    void skipElement();
    int number(const char* name, int minimum, int maximum) const;
    QString text(const char* name) const;

    QXmlStreamReader m_xml;
    DockMainWindow* const m_mainWindow;
    const bool m_fitMainWindow;
    int m_windowCount = 0;
};

}} // namespace Norvane::UI
