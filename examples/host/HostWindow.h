#pragma once

#include "PanelRegistry.h"
#include "PictureAnalysis.h"
#include "PictureList.h"

#include <ui/docking/DockMainWindow.h>
#include <ui/progress/DialogProgressManager.h>

#include <QPointer>
#include <QString>
#include <QStringList>

class QAction;
class QMenu;

namespace Norvane { namespace Host {

enum Arrangement : int;
struct ArrangedPanels;
struct CommandLine;
struct MainWindowPlace;
class ViewerPanel;

/// The main window: it makes the panels that layouts name, opens pictures in viewers, and keeps the
/// arrangement from one session to the next. Create it with new; it deletes itself when it is closed.
class HostWindow : public UI::DockMainWindow
{
    Q_OBJECT
public:
    HostWindow();
    ~HostWindow() override;

    /// Shows the window with the arrangement of the last session, or the default one, and opens what the user
    /// named.
    void start(const CommandLine& commandLine);

    QWidget* createPage(QString& id) override;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void choosePictures();
    void openPicture(const QString& path);
    void openPictures(const QStringList& paths);
    void analysePictures();
    void chooseLayoutToSave();
    void chooseLayoutToOpen();

    void newViewer();
    void newPictures();
    void newNotes();
    void fillNotesMenu();
    void reopenNotes(QAction* action);

    void chooseArrangement(QAction* action);
    void changeOption(QAction* action);
    void toggleFullScreen();
    void choosePalette(QAction* action);
    void about();

    void connectPanel(QWidget* panel);
    void panelRemoved();
    void panelActivated(Norvane::UI::Dock* pane, QWidget* panel);
    void focusMoved(QWidget* from, QWidget* to);
    void pictureChanged();
    void keepText(const QString& text);
    void tidyUp();

private:
    void buildMenus();
    void buildFileMenu();
    void buildPanelsMenu();
    void buildArrangementMenu();
    void buildTasksMenu();
    void buildViewMenu();
    QAction* addEntry(QMenu* menu, const QString& text, const char* slot,
                      const QString& shortcut = QString());
    void applyOptions();

    bool restoreSession();
    bool saveSession(QString* problem);
    bool restoreFile(const QString& path);
    /// Refuses a layout that is broken; if restoring fails all the same, brings the former arrangement back.
    /// Tells the user about either; \a name is what to call the layout.
    bool restoreSafely(const QByteArray& layout, const QString& name);
    void rebuildPanes();
    void focusAfterRestore();
    void restoreKeptTexts();

    void arrange(Arrangement arrangement);
    QStringList idsToArrange(PanelRegistry::Kind kind);
    MainWindowPlace place() const;

    void addPanel(QWidget* panel, UI::Dock* pane);
    void showPanel(QWidget* panel);
    UI::Dock* paneForPanels();
    UI::Dock* paneForViewers();
    void updateTitle();

    PictureList m_pictures;
    UI::DialogProgressManager m_progress;
    /// Its tasks are the manager's.
    PictureAnalysis m_analysis;
    PanelRegistry m_panels;
    QString m_layoutPath;
    QMenu* m_notesMenu = nullptr;
    QAction* m_fullScreenAction = nullptr;
    /// The pane that last had the keyboard focus, which a menu may have by now.
    QPointer<UI::Dock> m_activePane;
    QPointer<ViewerPanel> m_activeViewer;
    /// Texts of notes that a layout replaced by others while it was restored.
    QStringList m_keptTexts;
    bool m_restoring = false;
    bool m_started = false;
};

}} // namespace Norvane::Host
