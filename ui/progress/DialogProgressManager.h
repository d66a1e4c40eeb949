#pragma once

#include <NorvaneCoreExport.h>
#include <ui/progress/ProgressManager.h>

#include <QPointer>

namespace Norvane { namespace UI {

class ProgressDialog;

/// The manager that a host makes, once and before any task: it shows the tasks in a dialog of its own. When
/// the dialog's place is kept with saveState() is up to the host, at the end of the session for example; it
/// comes back when the dialog is first shown.
class NORVANE_CORE_EXPORT DialogProgressManager : public ProgressManager
{
    Q_OBJECT
public:
    /// Makes the dialog, as a child of \a parent if there is one.
    explicit DialogProgressManager(QWidget* parent = nullptr);
    /// Deletes the dialog.
    ~DialogProgressManager() override;

    /// The dialog, or null.
    QWidget* progressWidget() override;

    /// Writes the dialog's place to AppSettings.
    void saveState() override;
    /// Puts the dialog where saveState() left it, but on the screen, and shows it. Only the first call in a
    /// process does so; false if it did not.
    bool restoreState() override;

    /// Makes a dialog and emits windowCreated(). One that was made before is not deleted.
    bool createProgressWidget(QWidget* parent) override;
    bool createProgressWidget(QWidget* parent, const QString& title, const QString& name) override;
    /// Running tasks go on and are shown in the next dialog.
    bool deleteProgressWidget() override;

private:
    QPointer<ProgressDialog> m_dialog;
};

}} // namespace Norvane::UI
