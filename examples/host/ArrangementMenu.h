#pragma once

#include "ArrangementFolder.h"

#include <QMenu>

class QAction;
class QActionGroup;

namespace Norvane { namespace UI {

class DockMainWindow;

}} // namespace Norvane::UI

namespace Norvane { namespace Host {

/// The menu of arrangements: those that come with the program, those that the user saved under names, and the
/// steps back and forth. It saves and manages the user's own; to show one is for others.
class ArrangementMenu : public QMenu
{
    Q_OBJECT
public:
    /// Saves the arrangement of \a window, the parent, in the folder \a folder.
    ArrangementMenu(UI::DockMainWindow* window, const QString& folder);

    void setCanUndo(bool canUndo);
    void setCanRedo(bool canRedo);

Q_SIGNALS:
    /// \a arrangement is an Arrangement.
    void builtInChosen(int arrangement);
    /// \a layout has been read, but not checked.
    void ownChosen(const QString& name, const QByteArray& layout);
    void undoChosen();
    void redoChosen();

private Q_SLOTS:
    void chooseBuiltIn(QAction* action);
    void chooseOwn(QAction* action);
    void save();
    void manage();
    /// Shows what is in the folder.
    void refresh();

private:
    void addBuiltIn();
    QAction* addEntry(const QString& text, const QString& shortcut = QString());
    bool mayOverwrite(const QString& name);

    UI::DockMainWindow* m_window;
    ArrangementFolder m_folder;
    QActionGroup* m_builtIn;
    QActionGroup* m_own;
    /// The separator below the user's own.
    QAction* m_endOfOwn;
    QAction* m_manage;
    QAction* m_undo;
    QAction* m_redo;
};

}} // namespace Norvane::Host
