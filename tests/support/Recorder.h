#pragma once

#include <tests/support/DockLedger.h>

#include <algorithm>

namespace NorvaneTest {

/// Remembers what a main window reports of its panes: "+A" added, "-A" removed, "*A" activated; "*" for no
/// panel.
class Recorder
{
public:
    explicit Recorder(DockMainWindow* window)
        : m_ledger(window)
    {
        m_ledger.whenReported = [this](DockLedger::Report report, Dock*, QWidget* panel) {
            m_reports.append(QLatin1Char("+-*"[report]) + (panel ? panel->objectName() : QString()));
        };
    }

    /// What was reported since the last call.
    QString take()
    {
        QString all = m_reports.join(latin1(" "));
        m_reports.clear();
        return all;
    }

    /// The same without activations.
    QString takeMoves()
    {
        const auto isActivation = [](const QString& report) { return report.startsWith(QLatin1Char('*')); };
        m_reports.erase(std::remove_if(m_reports.begin(), m_reports.end(), isActivation), m_reports.end());
        return take();
    }

private:
    DockLedger m_ledger;
    QStringList m_reports;
};

} // namespace NorvaneTest
