#pragma once

#include <QDialog>

class QListWidget;
class QPushButton;

namespace Norvane { namespace Host {

class ArrangementFolder;

/// A dialog in which the user's own arrangements are renamed and deleted.
class ArrangementManager : public QDialog
{
    Q_OBJECT
public:
    /// \a folder is not owned and must outlive the dialog.
    ArrangementManager(ArrangementFolder* folder, QWidget* parent);

private Q_SLOTS:
    void renameCurrent();
    void removeCurrent();
    void updateButtons();

private:
    /// Lists the folder again, with \a current as the current one.
    void list(const QString& current);
    QString currentName() const;

    ArrangementFolder* m_folder;
    QListWidget* m_list;
    QPushButton* m_rename;
    QPushButton* m_remove;
};

}} // namespace Norvane::Host
