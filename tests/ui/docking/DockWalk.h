#pragma once

#include <tests/support/DockLedger.h>

#include <random>

namespace NorvaneTest {

const int kMostPanels = 16;
const int kMostPanes = 9;
const int kMostWindows = 4;

/// A random walk through everything that a user and a host may do with panes, the same for the same seed.
class DockWalk
{
public:
    /// A host that meddles closes and destroys panes, panels and windows in the middle of whatever reports to
    /// it.
    DockWalk(unsigned seed, bool meddles);
    ~DockWalk();

    /// What is wrong after this step.
    QStringList step();
    QString lastOperation() const { return m_operation; }

    /// Closes the main window: what is wrong after that.
    QStringList finish();

private:
    struct Operation {
        const char* name;
        int weight;
        void (*run)(DockWalk& walk);
    };
    static const Operation kOperations[];

    int random(int count) { return int(m_random() % unsigned(count)); }
    bool oneIn(int count) { return random(count) == 0; }
    Dock* anyPane();
    DockWindow* anyFloatingWindow();
    Panel* anyPanel();
    Panel* homelessPanel();
    QPoint anyPoint();
    bool chooseTabToDrag();
    void expect(bool holds, const char* problem);
    void meddle(DockLedger::Report report, Dock* pane, QWidget* panel);

    void makePanel();
    void insertPanel();
    void replacePlaceHolder();
    void newPane();
    void closeTab();
    void renamePanel();
    void chooseTab();
    void dragToPane();
    void dragToBorder();
    void dragNowhere();
    void dragAndEscape();
    void dragInTitle();
    void controlClick();
    void moveWindow();
    void toggleOption();
    void save();
    void restore();
    void saveAndRestore();

    std::mt19937 m_random;
    Panels m_panels;
    QWidget m_home;
    QPointer<DockHost> m_mainWindow;
    DockLedger m_ledger;
    QPointer<Dock> m_source;
    int m_tab = 0;
    QByteArray m_saved;
    int m_made = 0;
    bool m_isMeddling = false;
    /// In this step, whose operation need not come to its usual end then.
    bool m_hasMeddled = false;
    QString m_operation;
    QStringList m_problems;
};

} // namespace NorvaneTest
