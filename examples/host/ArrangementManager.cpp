#include "ArrangementManager.h"

#include "ArrangementFolder.h"
#include "ArrangementName.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

ArrangementManager::ArrangementManager(ArrangementFolder* folder, QWidget* parent)
    : QDialog(parent)
    , m_folder(folder)
    , m_list(new QListWidget)
{
    setWindowTitle(tr("Manage Arrangements"));
    m_list->setAccessibleName(tr("Arrangements"));
    m_list->setTextElideMode(Qt::ElideRight);
    m_list->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    QDialogButtonBox* const buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    m_rename = buttons->addButton(tr("&Rename..."), QDialogButtonBox::ActionRole);
    m_remove = buttons->addButton(tr("&Delete"), QDialogButtonBox::ActionRole);
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->addWidget(m_list);
    layout->addWidget(buttons);

    connect(buttons, SIGNAL(rejected()), this, SLOT(reject()));
    connect(m_rename, SIGNAL(clicked()), this, SLOT(renameCurrent()));
    connect(m_remove, SIGNAL(clicked()), this, SLOT(removeCurrent()));
    connect(m_list, SIGNAL(itemActivated(QListWidgetItem*)), this, SLOT(renameCurrent()));
    connect(m_list, SIGNAL(currentRowChanged(int)), this, SLOT(updateButtons()));
    list(QString());
}

void ArrangementManager::list(const QString& current)
{
    const int row = m_list->currentRow();
    const QStringList names = m_folder->names();
    m_list->clear();
    for (const QString& name : names) {
        QListWidgetItem* const item = new QListWidgetItem(name.simplified(), m_list);
        item->setData(Qt::UserRole, name);
    }
    const int wanted = int(names.indexOf(current));
    m_list->setCurrentRow(wanted >= 0 ? wanted : qBound(0, row, int(names.size()) - 1));
    updateButtons();
}

QString ArrangementManager::currentName() const
{
    const QListWidgetItem* const item = m_list->currentItem();
    return item ? item->data(Qt::UserRole).toString() : QString();
}

void ArrangementManager::updateButtons()
{
    m_rename->setEnabled(!currentName().isEmpty());
    m_remove->setEnabled(!currentName().isEmpty());
}

void ArrangementManager::renameCurrent()
{
    const QString from = currentName();
    const QString to = askForArrangementName(this, tr("Rename Arrangement"), from, QStringList());
    if (to.isEmpty())
        return;
    QString problem;
    if (m_folder->rename(from, to, &problem)) {
        list(to);
        return;
    }
    QMessageBox::warning(this, tr("Rename Arrangement"),
                         tr("\"%1\" cannot be renamed.\n\n%2").arg(from, problem));
    list(from);
}

void ArrangementManager::removeCurrent()
{
    const QString name = currentName();
    const QMessageBox::StandardButton answer =
        QMessageBox::question(this, tr("Delete Arrangement"), tr("Delete the arrangement \"%1\"?").arg(name),
                              QMessageBox::Yes | QMessageBox::No, QMessageBox::No);
    if (answer != QMessageBox::Yes)
        return;
    QString problem;
    if (!m_folder->remove(name, &problem)) {
        QMessageBox::warning(this, tr("Delete Arrangement"),
                             tr("\"%1\" cannot be deleted.\n\n%2").arg(name, problem));
    }
    list(QString());
}

}} // namespace Norvane::Host
