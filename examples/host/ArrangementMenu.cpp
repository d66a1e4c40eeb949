#include "ArrangementMenu.h"

#include "ArrangementManager.h"
#include "ArrangementName.h"
#include "Arrangements.h"
#include "LayoutStore.h"

#include <ui/docking/DockMainWindow.h>

#include <QActionGroup>
#include <QFontMetrics>
#include <QMessageBox>

namespace Norvane { namespace Host {

namespace {

// Ctrl+1 to Ctrl+3 are the built-in ones.
const int kFirstDigit = 4;
const int kLastDigit = 9;
const int kWidestName = 280;

} // namespace

ArrangementMenu::ArrangementMenu(UI::DockMainWindow* window, const QString& folder)
    : QMenu(tr("&Arrangement"), window)
    , m_window(window)
    , m_folder(folder)
    , m_builtIn(new QActionGroup(this))
    , m_own(new QActionGroup(this))
{
    addBuiltIn();
    addSeparator();
    m_endOfOwn = addSeparator();
    connect(addEntry(tr("Sa&ve Arrangement...")), SIGNAL(triggered()), this, SLOT(save()));
    m_manage = addEntry(tr("&Manage Arrangements..."));
    connect(m_manage, SIGNAL(triggered()), this, SLOT(manage()));
    addSeparator();
    m_undo = addEntry(tr("&Undo"), tr("Ctrl+Alt+Z"));
    connect(m_undo, SIGNAL(triggered()), this, SIGNAL(undoChosen()));
    m_redo = addEntry(tr("Re&do"), tr("Ctrl+Alt+Shift+Z"));
    connect(m_redo, SIGNAL(triggered()), this, SIGNAL(redoChosen()));
    setCanUndo(false);
    setCanRedo(false);

    connect(m_builtIn, SIGNAL(triggered(QAction*)), this, SLOT(chooseBuiltIn(QAction*)));
    connect(m_own, SIGNAL(triggered(QAction*)), this, SLOT(chooseOwn(QAction*)));
    connect(this, SIGNAL(aboutToShow()), this, SLOT(refresh()));
    refresh();
}

void ArrangementMenu::addBuiltIn()
{
    addEntry(tr("&Single"), tr("Ctrl+1"))->setData(int(kSingleArrangement));
    addEntry(tr("Side &by Side"), tr("Ctrl+2"))->setData(int(kSideBySideArrangement));
    addEntry(tr("&Review"), tr("Ctrl+3"))->setData(int(kReviewArrangement));
    const QList<QAction*> entries = actions();
    for (QAction* const entry : entries)
        m_builtIn->addAction(entry);
}

QAction* ArrangementMenu::addEntry(const QString& text, const QString& shortcut)
{
    QAction* const action = addAction(text);
    action->setShortcut(QKeySequence(shortcut));
    // Floating windows have no menu bar; the keys work there as well.
    action->setShortcutContext(Qt::ApplicationShortcut);
    return action;
}

void ArrangementMenu::setCanUndo(bool canUndo)
{
    m_undo->setEnabled(canUndo);
}

void ArrangementMenu::setCanRedo(bool canRedo)
{
    m_redo->setEnabled(canRedo);
}

void ArrangementMenu::refresh()
{
    const QList<QAction*> former = m_own->actions();
    for (QAction* const action : former)
        delete action;
    const QStringList names = m_folder.names();
    int digit = kFirstDigit;
    for (const QString& name : names) {
        QString text = fontMetrics().elidedText(name.simplified(), Qt::ElideRight, kWidestName);
        QAction* const action = new QAction(text.replace(QLatin1Char('&'), QLatin1String("&&")), m_own);
        action->setData(name);
        if (digit <= kLastDigit)
            action->setShortcut(QKeySequence(tr("Ctrl+%1").arg(digit++)));
        action->setShortcutContext(Qt::ApplicationShortcut);
        insertAction(m_endOfOwn, action);
    }
    m_endOfOwn->setVisible(!names.isEmpty());
    m_manage->setEnabled(!names.isEmpty());
}

void ArrangementMenu::chooseBuiltIn(QAction* action)
{
    Q_EMIT builtInChosen(action->data().toInt());
}

void ArrangementMenu::chooseOwn(QAction* action)
{
    const QString name = action->data().toString();
    QByteArray layout;
    QString problem;
    if (m_folder.read(name, &layout, &problem)) {
        Q_EMIT ownChosen(name, layout);
        return;
    }
    QMessageBox::warning(m_window, tr("Arrangement"),
                         tr("The arrangement \"%1\" cannot be read.\n\n%2").arg(name, problem));
}

void ArrangementMenu::save()
{
    // None is preset: a new name is what is wanted most of the time.
    const QString name = askForArrangementName(m_window, tr("Save Arrangement"), QString(), m_folder.names());
    if (name.isEmpty() || !mayOverwrite(name))
        return;
    QString problem;
    if (!m_folder.write(name, LayoutStore::layoutOf(m_window), &problem)) {
        QMessageBox::warning(m_window, tr("Save Arrangement"),
                             tr("The arrangement \"%1\" cannot be saved.\n\n%2").arg(name, problem));
    }
    refresh();
}

bool ArrangementMenu::mayOverwrite(const QString& name)
{
    if (!m_folder.contains(name))
        return true;
    const QString question = tr("There is already an arrangement called \"%1\". Replace it?").arg(name);
    return QMessageBox::question(m_window, tr("Save Arrangement"), question,
                                 QMessageBox::Yes | QMessageBox::No, QMessageBox::No) == QMessageBox::Yes;
}

void ArrangementMenu::manage()
{
    ArrangementManager(&m_folder, m_window).exec();
    refresh();
}

}} // namespace Norvane::Host
