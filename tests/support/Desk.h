#pragma once

#include <ui/docking/Dock.h>
#include <ui/docking/DockMainWindow.h>
#include <ui/docking/DockSplitter.h>
#include <ui/docking/DockTabBar.h>

#include <tests/support/Waiting.h>

#include <QApplication>
#include <QBuffer>
#include <QCloseEvent>
#include <QCursor>
#include <QPointer>
#include <QProcess>

namespace NorvaneTest {

using Norvane::UI::Dock;
using Norvane::UI::DockMainWindow;
using Norvane::UI::DockSplitter;
using Norvane::UI::DockTabBar;
using Norvane::UI::DockWindow;

inline QString latin1(const char* text)
{
    return QString::fromLatin1(text);
}

/// A panel that takes the keyboard focus and may refuse to close. Its name is its title.
class Panel : public QWidget
{
public:
    explicit Panel(const QString& name)
    {
        setObjectName(name);
        setWindowTitle(name);
        setFocusPolicy(Qt::StrongFocus);
    }

    QSize sizeHint() const override { return QSize(200, 100); }

    bool refuses = false;

protected:
    void closeEvent(QCloseEvent* event) override { event->setAccepted(!refuses); }
};

/// Every panel that a host has made. Those that still exist in the end are the host's to delete.
class Panels : public QList<QPointer<Panel>>
{
public:
    Panels() = default;
    Panels(const Panels&) = delete;
    Panels& operator=(const Panels&) = delete;
    ~Panels()
    {
        for (const QPointer<Panel>& panel : *this)
            delete panel.data();
    }

    Panel* make(const QString& name, bool deleteOnClose = false)
    {
        Panel* const panel = new Panel(name);
        panel->setAttribute(Qt::WA_DeleteOnClose, deleteOnClose);
        append(panel);
        return panel;
    }

    Panel* find(const QString& name) const
    {
        for (const QPointer<Panel>& panel : *this) {
            if (panel && panel->objectName() == name)
                return panel;
        }
        return nullptr;
    }
};

/// The panels of \a dock in order, the current one with a star: "A *B C"; "-" for an empty pane. A tab that
/// is not that of its panel shows up as "TAB/PANEL", a current tab that is not that of the current panel as
/// "!".
inline QString tabs(const Dock* dock)
{
    if (!dock)
        return latin1("no pane");
    QStringList names;
    for (int i = 0; i < dock->count(); ++i) {
        const QString panel = dock->widget(i)->objectName();
        const QString tab = dock->tabBar()->tabText(i);
        names.append((i == dock->currentTab() ? latin1("*") : QString()) +
                     (tab == panel ? panel : tab + QLatin1Char('/') + panel));
    }
    if (dock->tabBar()->count() != dock->count() || dock->tabBar()->currentIndex() != dock->currentTab())
        names.append(latin1("!"));
    return names.isEmpty() ? latin1("-") : names.join(latin1(" "));
}

/// The panes below \a splitter: "V(*A, H(*B C, -))".
inline QString tree(const QSplitter* splitter)
{
    QStringList children;
    for (int i = 0; i < splitter->count(); ++i) {
        const QSplitter* const inner = qobject_cast<QSplitter*>(splitter->widget(i));
        children.append(inner ? tree(inner) : tabs(qobject_cast<Dock*>(splitter->widget(i))));
    }
    return latin1(splitter->orientation() == Qt::Horizontal ? "H(" : "V(") + children.join(latin1(", ")) +
           QLatin1Char(')');
}

inline QByteArray savedLayout(DockMainWindow* window, QWidget* focusWidget = nullptr)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    window->saveLayout(&buffer, focusWidget);
    return buffer.data();
}

inline bool restoreLayout(DockMainWindow* window, QByteArray document, bool fitMainWindowToScreen = false)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return window->restoreLayout(&buffer, fitMainWindowToScreen);
}

/// A main window with panels, which die with the desk. Restoring a layout makes new panels.
class Desk
{
public:
    Desk()
        : window(new Window(this))
    {
        window->setGeometry(40, 60, 640, 480);
    }
    virtual ~Desk() { delete window; }

    Panel* panel(const QString& name) { return m_panels.make(name); }

    /// Adds panels to \a dock; the last one that is new becomes current. \a names are separated by spaces.
    Dock* fill(Dock* dock, const char* names)
    {
        for (const QString& name : latin1(names).split(QLatin1Char(' ')))
            dock->addWidget(panel(name), true, false);
        return dock;
    }

    /// A new pane at the end of the main window's root.
    Dock* pane(const char* names)
    {
        Dock* const dock = window->createDock();
        window->addWidget(dock);
        return names[0] ? fill(dock, names) : dock;
    }

    /// A new pane in a new floating window, which has got the keyboard and will not take it later.
    Dock* floatingPane(const char* name)
    {
        DockWindow* const floating = window->addNewFloatingDock(panel(latin1(name)));
        activate(floating);
        return Dock::dockForWidget(floating->rootSplitter()->widget(0));
    }

    bool show() { return activate(window); }

    /// Shows \a widget's window and waits until it has the keyboard. The request is that of a task list,
    /// which a window manager follows whatever it thinks of the time of the last key; one that comes before
    /// the window does is lost, and a window that is shown at the same time may take the keyboard back.
    static bool activate(QWidget* widget)
    {
        QWidget* const window = widget->window();
        window->show();
        window->raise();
        const QStringList request = QStringList()
                                    << latin1("windowactivate")
                                    << QString::number(static_cast<qulonglong>(window->winId()));
        const auto isActive = [&] { return QApplication::activeWindow() == window; };
        for (int attempt = 0; attempt < 20 && !isActive(); ++attempt) {
            QProcess::execute(latin1("xdotool"), request);
            waitUntil(isActive, 250);
        }
        return isActive();
    }

    QByteArray save(QWidget* focusWidget = nullptr) const { return savedLayout(window, focusWidget); }

    bool restore(const QByteArray& document, bool fitMainWindowToScreen = false)
    {
        return restoreLayout(window, document, fitMainWindowToScreen);
    }

    const Panels& panels() const { return m_panels; }

    /// The main window's panes, then those of each floating window, as tree() has them.
    QString trees() const
    {
        QStringList all(tree(window->rootSplitter()));
        for (const DockWindow* const floating : window->floatingWindows())
            all.append(tree(floating->rootSplitter()));
        return all.join(latin1(" + "));
    }

    const QPointer<DockMainWindow> window;

protected:
    /// What the main window's createPage() gives.
    virtual QWidget* page(QString& id) { return panel(id); }

private:
    class Window : public DockMainWindow
    {
    public:
        explicit Window(Desk* desk)
            : m_desk(desk)
        {
        }
        QWidget* createPage(QString& id) override { return m_desk->page(id); }

    private:
        Desk* const m_desk;
    };

    Panels m_panels;
};

} // namespace NorvaneTest
