#pragma once

#include <ui/docking/DockMainWindow.h>

#include <QStringList>
#include <QWidget>

namespace NorvaneTest {

/// Remembers what a main window reports of its panes: "+A" added, "-A" removed, "*A" activated; "*" for no
/// panel.
class Recorder : public QObject
{
    Q_OBJECT
public:
    explicit Recorder(Norvane::UI::DockMainWindow* window)
    {
        connect(window, SIGNAL(widgetAdded(Norvane::UI::Dock*, QWidget*)), this,
                SLOT(added(Norvane::UI::Dock*, QWidget*)));
        connect(window, SIGNAL(widgetRemoved(Norvane::UI::Dock*, QWidget*)), this,
                SLOT(removed(Norvane::UI::Dock*, QWidget*)));
        connect(window, SIGNAL(widgetActivated(Norvane::UI::Dock*, QWidget*)), this,
                SLOT(activated(Norvane::UI::Dock*, QWidget*)));
    }

    /// What was reported since the last call.
    QString take()
    {
        QString all = m_reports.join(QString::fromLatin1(" "));
        m_reports.clear();
        return all;
    }

    /// The same without activations.
    QString takeMoves()
    {
        QStringList moves;
        for (const QString& report : m_reports) {
            if (!report.startsWith(QLatin1Char('*')))
                moves.append(report);
        }
        m_reports = moves;
        return take();
    }

private Q_SLOTS:
    void added(Norvane::UI::Dock*, QWidget* panel) { note('+', panel); }
    void removed(Norvane::UI::Dock*, QWidget* panel) { note('-', panel); }
    void activated(Norvane::UI::Dock*, QWidget* panel) { note('*', panel); }

private:
    void note(char mark, const QWidget* panel)
    {
        m_reports.append(QLatin1Char(mark) + (panel ? panel->objectName() : QString()));
    }

    QStringList m_reports;
};

} // namespace NorvaneTest
