#pragma once

#include <NorvaneCoreExport.h>

#include <QList>
#include <QObject>

class QWidget;

namespace Norvane { namespace UI {

/// The application's floating windows, in the order in which they were added and without duplicates. The
/// registry owns none of them and forgets a window that is destroyed. GUI thread only.
class NORVANE_CORE_EXPORT FloatingWindowRegistry : public QObject
{
    Q_OBJECT
public:
    FloatingWindowRegistry();
    ~FloatingWindowRegistry() override;

    /// Does nothing for null and for a window that is registered already.
    void addWindow(QWidget* window);

    /// Does nothing for a window that is not registered.
    void removeWindow(QWidget* window);

    /// In the order in which they were added.
    const QList<QWidget*>& windows() const;

private Q_SLOTS:
    void windowDestroyed(QObject* window);

private:
    QList<QWidget*> m_windows;
};

}} // namespace Norvane::UI
