#include <ui/docking/LayoutWriter.h>

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>
#include <ui/docking/DockSplitter.h>
#include <ui/docking/LayoutFormat.h>
#include <ui/docking/WidgetUtils.h>
#include <ui/toolkit/Screens.h>

#include <QVariant>

#include <algorithm>

namespace Norvane { namespace UI {

namespace {

bool isXmlCharacter(QChar character)
{
    const ushort code = character.unicode();
    return code >= 0x20 ? code < 0xfffe : code == '\t' || code == '\n' || code == '\r';
}

bool isAlwaysXml(QChar character)
{
    return isXmlCharacter(character) && !character.isHighSurrogate() && !character.isLowSurrogate();
}

/// \a text without what XML 1.0 cannot hold: a document with it could be written but never read again.
QString xmlText(const QString& text)
{
    if (std::all_of(text.begin(), text.end(), isAlwaysXml))
        return text;
    QString result;
    result.reserve(text.size());
    for (int i = 0; i < text.size(); ++i) {
        const QChar character = text.at(i);
        const bool startsPair =
            character.isHighSurrogate() && i + 1 < text.size() && text.at(i + 1).isLowSurrogate();
        if (startsPair)
            result.append(character).append(text.at(++i));
        else if (isAlwaysXml(character))
            result.append(character);
    }
    return result;
}

} // namespace

LayoutWriter::LayoutWriter(QIODevice* device, const QWidget* focusWidget)
    : m_xml(device)
    , m_focusWidget(focusWidget)
{
    m_xml.setAutoFormatting(true);
}

void LayoutWriter::write(const DockMainWindow* mainWindow)
{
    m_xml.writeStartDocument(QLatin1String("1.0"));
    m_xml.writeStartElement(QLatin1String("layout"));
    writeText("version", QLatin1String(LayoutFormat::kVersion));
    writeWindow(mainWindow);
    for (const DockWindow* const window : mainWindow->floatingWindows())
        writeWindow(window);
    m_xml.writeEndElement();
    m_xml.writeEndDocument();
}

void LayoutWriter::writeWindow(const DockWindow* window)
{
    m_xml.writeStartElement(QLatin1String("window"));
    writeNumber("x", window->pos().x());
    writeNumber("y", window->pos().y());
    writeNumber("w", window->frameSize().width());
    writeNumber("h", window->frameSize().height());
    if (window->isMaximized())
        writeNumber("maximized", 1);
    if (WidgetUtils::GetFullscreen(window))
        writeNumber("fullscreen", 1);
    writeNumber("screen", Screens::numberOf(window));
    if (const DockSplitter* const splitter = qobject_cast<DockSplitter*>(window->centralWidget()))
        writeSplitter(splitter);
    m_xml.writeEndElement();
}

void LayoutWriter::writeSplitter(const DockSplitter* splitter)
{
    // A chain of splitters with one child each says no more than its last one.
    if (splitter->count() == 1) {
        if (const DockSplitter* const only = qobject_cast<DockSplitter*>(splitter->widget(0))) {
            writeSplitter(only);
            return;
        }
    }
    m_xml.writeStartElement(QLatin1String("splitter"));
    writeNumber("orientation", splitter->orientation());
    const QList<int> sizes = splitter->realSizes();
    for (int i = 0; i < splitter->count(); ++i) {
        const QWidget* const child = splitter->widget(i);
        writeSplit(child, sizes.value(i), splitter->orientation());
        if (const DockSplitter* const inner = qobject_cast<const DockSplitter*>(child))
            writeSplitter(inner);
        else if (const Dock* const dock = qobject_cast<const Dock*>(child))
            writeDock(dock);
    }
    m_xml.writeEndElement();
}

void LayoutWriter::writeSplit(const QWidget* child, int size, Qt::Orientation orientation)
{
    m_xml.writeEmptyElement(QLatin1String("split"));
    writeNumber("size", size);
    const QSizePolicy policy = child->sizePolicy();
    const int stretch = orientation == Qt::Horizontal ? policy.horizontalStretch() : policy.verticalStretch();
    if (stretch != 0)
        writeNumber("stretch", stretch);
}

void LayoutWriter::writeDock(const Dock* dock)
{
    m_xml.writeStartElement(QLatin1String("dock"));
    writeText("id", dock->objectName());
    if (!dock->titleVisible())
        writeNumber("hideTitles", 1);
    if (const QWidget* const active = dock->currentWidget()) {
        writeText("activePageId", active->objectName());
        if (m_focusWidget && dock->isAncestorOf(m_focusWidget))
            writeText("focus", QLatin1String("true"));
    }
    for (int i = 0; i < dock->count(); ++i)
        writePage(dock->widget(i));
    m_xml.writeEndElement();
}

void LayoutWriter::writePage(const QWidget* page)
{
    m_xml.writeEmptyElement(QLatin1String("page"));
    writeText("id", page->objectName());
    const QString state = page->property("layoutState").toString();
    if (!state.isEmpty())
        writeText("layout", state);
}

void LayoutWriter::writeNumber(const char* name, int value)
{
    m_xml.writeAttribute(QLatin1String(name), QString::number(value));
}

void LayoutWriter::writeText(const char* name, const QString& text)
{
    m_xml.writeAttribute(QLatin1String(name), xmlText(text));
}

}} // namespace Norvane::UI
