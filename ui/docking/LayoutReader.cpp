#include <ui/docking/LayoutReader.h>

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindowPrivate.h>
#include <ui/docking/DockSplitter.h>
#include <ui/docking/LayoutFormat.h>
#include <ui/docking/WidgetUtils.h>
#include <ui/docking/WindowFrame.h>
#include <ui/docking/WindowPlacement.h>
#include <ui/toolkit/Screens.h>

#include <QCoreApplication>
#include <QMetaObject>
#include <QPointer>
#include <QStackedWidget>
#include <QVariant>

namespace Norvane { namespace UI {

namespace {

// Wide enough for every desk, narrow enough that sums of them stay numbers.
const int kFarthest = QWIDGETSIZE_MAX;

bool declaresLayoutState(const QObject* object)
{
    return object->metaObject()->indexOfProperty("layoutState") >= 0;
}

void place(DockWindow* window, const SavedWindow& saved, bool fill, QMainWindow* mainWindow)
{
    const int screenCount = Screens::count();
    const QRect available = Screens::availableGeometry(qMin(saved.screen, screenCount - 1));
    const QRect frame = fill ? available : placeSavedWindow(saved, available, screenCount);
    const bool fullscreen = saved.fullscreen && saved.screen < screenCount;
    // A window manager ignores the new size of a full-screen window, and Qt 6 may never learn that it did.
    const bool staysFullscreen =
        fullscreen && WidgetUtils::GetFullscreen(window) && Screens::numberOf(window) == saved.screen;
    // First of all: a full-screen window given another size may stay so, while Qt thinks that it does not.
    if (!fullscreen)
        WidgetUtils::SetFullscreen(window, false, mainWindow);
    if (!staysFullscreen)
        setFrameGeometry(window, frame);
    WidgetUtils::SetFullscreen(window, fullscreen, mainWindow);
    if (saved.maximized)
        window->setWindowState(window->windowState() | Qt::WindowMaximized);
    window->show();
    if (!fullscreen && !saved.maximized)
        holdFrameGeometry(window, frame);
}

} // namespace

LayoutReader::LayoutReader(DockMainWindow* mainWindow, bool fitMainWindow)
    : m_mainWindow(mainWindow)
    , m_fitMainWindow(fitMainWindow)
{
}

bool LayoutReader::read(QIODevice* device)
{
    if (device && device->isReadable())
        m_xml.setDevice(device);
    while (!m_xml.atEnd()) {
        if (m_xml.readNext() != QXmlStreamReader::StartElement)
            continue;
        if (LayoutFormat::isLayout(m_xml))
            readLayout();
        else
            m_xml.raiseError(QObject::tr("The file is not a Norvane panel layout version 1.0 file."));
    }
    return !m_xml.hasError();
}

qint64 LayoutReader::errorLine() const
{
    return m_xml.lineNumber();
}

qint64 LayoutReader::errorColumn() const
{
    return m_xml.columnNumber();
}

QString LayoutReader::errorText() const
{
    return m_xml.errorString();
}

void LayoutReader::readLayout()
{
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("window")) {
            if (DockWindow* const window = nextWindow())
                readWindow(window);
            else
                skipElement();
        } else if (m_xml.name() == QLatin1String("dock")) {
            m_mainWindow->d->leftovers.append(readDock());
        } else {
            skipElement();
        }
    }
}

DockWindow* LayoutReader::nextWindow()
{
    if (m_windowCount++ == 0)
        return m_mainWindow;
    DockWindow* const window = m_mainWindow->createWindow();
    if (window)
        m_mainWindow->addFloatingDock(window);
    return window;
}

void LayoutReader::readWindow(DockWindow* window)
{
    window->setWindowState(window->windowState() & ~Qt::WindowMaximized);
    SavedWindow saved;
    saved.frame = QRect(number("x", -kFarthest, kFarthest), number("y", -kFarthest, kFarthest),
                        number("w", 0, kFarthest), number("h", 0, kFarthest));
    saved.screen = number("screen", 0, kFarthest);
    saved.maximized = number("maximized", -1, 1) != 0;
    saved.fullscreen = number("fullscreen", -1, 1) != 0;

    while (m_xml.readNextStartElement()) {
        DockSplitter* const root = qobject_cast<DockSplitter*>(window->centralWidget());
        if (root && m_xml.name() == QLatin1String("splitter"))
            readSplitter(root, 1);
        else
            skipElement();
    }
    if (m_xml.hasError())
        return;
    // A window that is visible shows a new central widget only later; a layout saved before that would have
    // the sizes of a tree that was never laid out.
    if (window->isVisible() && window->centralWidget())
        window->centralWidget()->show();
    place(window, saved, m_fitMainWindow && window == m_mainWindow, m_mainWindow);
}

void LayoutReader::readSplitter(DockSplitter* splitter, int depth)
{
    if (depth > LayoutFormat::kMaxSplitterDepth) {
        m_xml.raiseError(QObject::tr("The layout is nested too deeply."));
        return;
    }
    const bool horizontal = number("orientation", 0, Qt::Vertical) == Qt::Horizontal;
    splitter->setOrientation(horizontal ? Qt::Horizontal : Qt::Vertical);

    QList<int> sizes;
    QList<int> stretchFactors;
    while (m_xml.readNextStartElement()) {
        if (m_xml.name() == QLatin1String("splitter")) {
            DockSplitter* const inner = new DockSplitter(Qt::Vertical);
            splitter->addWidget(inner);
            readSplitter(inner, depth + 1);
        } else if (m_xml.name() == QLatin1String("dock")) {
            if (Dock* const dock = readDock())
                splitter->addWidget(dock);
        } else if (m_xml.name() == QLatin1String("split")) {
            sizes.append(number("size", 0, kFarthest));
            stretchFactors.append(number("stretch", 0, 255));
            skipElement();
        } else {
            skipElement();
        }
    }
    for (int i = 0; i < qMin(stretchFactors.size(), splitter->count()); ++i)
        splitter->setStretchFactor(i, stretchFactors[i]);
    splitter->setSizes(sizes);
    // Only now, when every size has found its child, may those that turned out empty go.
    for (int i = splitter->count() - 1; i >= 0; --i) {
        if (DockSplitter* const inner = qobject_cast<DockSplitter*>(splitter->widget(i)))
            inner->updateDocks();
    }
}

Dock* LayoutReader::readDock()
{
    Dock* const dock = m_mainWindow->createDock();
    if (!dock) {
        skipElement();
        return nullptr;
    }
    const QString activePageId = text("activePageId");
    if (m_xml.attributes().hasAttribute(QLatin1String("activePageId")) &&
        m_xml.attributes().hasAttribute(QLatin1String("focus")))
        m_mainWindow->setFocusPage(activePageId);
    dock->setTitleVisible(number("hideTitles", -1, 1) == 0);
    dock->setObjectName(text("id"));

    while (m_xml.readNextStartElement()) {
        const QPointer<QWidget> page(m_xml.name() == QLatin1String("page") ? readPage() : nullptr);
        skipElement();
        if (!page)
            continue;
        dock->addWidget(page, false, false);
        // The host hears of it and may take the page away or destroy it.
        if (!page || dock->stack()->indexOf(page) < 0)
            continue;
        dock->paneIDs().append(page->objectName());
        if (!activePageId.isEmpty() && activePageId == page->objectName()) {
            page->show();
            dock->setCurrentWidget(page);
        }
    }
    return dock;
}

QWidget* LayoutReader::readPage()
{
    QString id = text("id");
    const QString state = text("layout");
    QWidget* const page = m_mainWindow->createPage(id);
    if (page && !state.isEmpty() && declaresLayoutState(page))
        page->setProperty("layoutState", QVariant(state));
    return page;
}

// The reader's own skipping recurses in Qt 4.
void LayoutReader::skipElement()
{
    for (int depth = 1; depth > 0 && !m_xml.atEnd();) {
        const QXmlStreamReader::TokenType token = m_xml.readNext();
        if (token == QXmlStreamReader::StartElement)
            ++depth;
        else if (token == QXmlStreamReader::EndElement)
            --depth;
    }
}

int LayoutReader::number(const char* name, int minimum, int maximum) const
{
    return qBound(minimum, text(name).toInt(), maximum);
}

QString LayoutReader::text(const char* name) const
{
    return m_xml.attributes().value(QLatin1String(name)).toString();
}

}} // namespace Norvane::UI
