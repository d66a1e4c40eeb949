#pragma once

#include <tests/support/DockLedger.h>

#include <ui/docking/DockWindow.h>

namespace NorvaneTest {

/// A host at work: two panes side by side in the main window, one with the panels A, B (current) and C, one
/// with D, and a floating window with E and F (current). All of them may die at any time. A restored layout
/// gets the panels that there are.
class DockScene : public Desk
{
public:
    explicit DockScene(bool deleteOnClose = false)
        : ledger(window)
    {
        window->setGeometry(40, 60, 640, 300);
        left = pane("A B C");
        left->setCurrentTab(1);
        right = fill(left->split(Qt::Horizontal, false), "D");
        floatingWindow = window->addNewFloatingDock(panel(latin1("E")));
        floating = fill(window->docks().last(), "F");
        floatingWindow->setGeometry(40, 460, 300, 200);
        for (const QPointer<Panel>& panel : panels())
            panel->setAttribute(Qt::WA_DeleteOnClose, deleteOnClose);
        window->show();
        settle();
        firstLayout = save();
    }
    ~DockScene() override
    {
        delete window;
        delete floatingWindow;
        delete left;
        delete right;
        delete floating;
    }

    /// What is wrong, after all that waits for the event loop has happened; empty if nothing is.
    QString problems()
    {
        settle();
        return ledger.problems(panels(), &home).join(latin1("; "));
    }

    Panel* find(const char* name) const { return panels().find(latin1(name)); }

    static QPoint middle(const Dock* pane)
    {
        return pane->stack()->mapToGlobal(pane->stack()->rect().center());
    }

    QWidget home;
    DockLedger ledger;
    QPointer<Dock> left;
    QPointer<Dock> right;
    QPointer<Dock> floating;
    QPointer<QWidget> floatingWindow;
    QByteArray firstLayout;

protected:
    QWidget* page(QString& id) override { return panels().find(id); }
};

} // namespace NorvaneTest
