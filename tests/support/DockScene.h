#pragma once

#include <tests/support/DockLedger.h>

#include <ui/docking/DockWindow.h>

#include <QBuffer>

namespace NorvaneTest {

/// A host at work: two panes side by side in the main window, one with the panels A, B (current) and C, one
/// with D, and a floating window with E and F (current). All of them may die at any time.
class DockScene
{
public:
    explicit DockScene(bool deleteOnClose = false)
        : mainWindow(new DockHost(panels))
        , ledger(mainWindow)
    {
        mainWindow->setGeometry(40, 60, 640, 300);
        left = mainWindow->createDock();
        mainWindow->addWidget(left);
        for (const char* const name : {"A", "B", "C"})
            left->addWidget(panels.make(latin1(name), deleteOnClose), false, false);
        left->setCurrentTab(1);
        right = left->split(Qt::Horizontal, false);
        right->addWidget(panels.make(latin1("D"), deleteOnClose), true, false);
        floatingWindow = mainWindow->addNewFloatingDock(panels.make(latin1("E"), deleteOnClose));
        floating = mainWindow->docks().last();
        floating->addWidget(panels.make(latin1("F"), deleteOnClose), true, false);
        floatingWindow->setGeometry(40, 460, 300, 200);
        mainWindow->show();
        settle();
        firstLayout = save();
    }
    ~DockScene()
    {
        delete mainWindow;
        delete floatingWindow;
        delete left;
        delete right;
        delete floating;
    }

    /// What is wrong, after all that waits for the event loop has happened; empty if nothing is.
    QString problems()
    {
        settle();
        return ledger.problems(panels, &home).join(latin1("; "));
    }

    QByteArray save() const
    {
        QBuffer buffer;
        buffer.open(QIODevice::WriteOnly);
        mainWindow->saveLayout(&buffer, nullptr);
        return buffer.data();
    }

    bool restore(QByteArray layout) const
    {
        QBuffer buffer(&layout);
        buffer.open(QIODevice::ReadOnly);
        return mainWindow->restoreLayout(&buffer, false);
    }

    Panel* panel(const char* name) const { return panels.find(latin1(name)); }

    static QPoint middle(const Dock* pane)
    {
        return pane->stack()->mapToGlobal(pane->stack()->rect().center());
    }

    Panels panels;
    QWidget home;
    QPointer<DockHost> mainWindow;
    DockLedger ledger;
    QPointer<Dock> left;
    QPointer<Dock> right;
    QPointer<Dock> floating;
    QPointer<QWidget> floatingWindow;
    QByteArray firstLayout;
};

} // namespace NorvaneTest
