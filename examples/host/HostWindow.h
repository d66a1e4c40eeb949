#pragma once

#include "BackgroundJob.h"
#include "PanelFocus.h"
#include "PanelPlacer.h"
#include "PanelRegistry.h"
#include "PictureAnalysis.h"
#include "PictureList.h"
#include "ScriptInterpreter.h"

#include <ui/docking/DockMainWindow.h>
#include <ui/progress/ProgressManager.h>

#include <QString>
#include <QStringList>

class QAction;
class QMenu;

namespace Norvane { namespace Host {

enum Arrangement : int;
struct ArrangedPanels;
struct CommandLine;
struct FrameLayout;
class ArrangementMenu;
class ArrangementRecorder;
class ControlHelp;
struct MainWindowPlace;
class ViewerPanel;

/// The main window: it makes the panels that layouts name, opens pictures in viewers, and keeps the
/// arrangement from one session to the next. Create it with new; it deletes itself when it is closed.
class HostWindow : public UI::DockMainWindow
{
    Q_OBJECT
public:
    /// \a progress, not owned, is the manager of all tasks and lives longer. The window makes its dialog
    /// anew.
    explicit HostWindow(UI::ProgressManager* progress);
    ~HostWindow() override;

    /// Shows the window with the arrangement of the last session, or the default one, and opens what the user
    /// named.
    void start(const CommandLine& commandLine);

    UI::DockWindow* createWindow() override;
    UI::Dock* createDock() override;
    QWidget* createPage(QString& id) override;

    /// The viewer that panels with controls act on. Null if there is none.
    ViewerPanel* focusedViewer() const;

protected:
    void closeEvent(QCloseEvent* event) override;
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void choosePictures();
    void openPicture(const QString& path);
    void openPictures(const QStringList& paths);
    void showTasks();
    void analysePictures();
    void chooseFrame();
    void saveFrame();
    void frameWritten();
    /// Shows the frame \a path as \a other wherever it is to be seen.
    void reinterpretFrame(const QString& path, const QString& other);
    void chooseLayoutToSave();
    void chooseLayoutToOpen();

    void newPanel(QAction* action);
    void fillNotesMenu();
    void reopenNotes(QAction* action);

    void showBuiltIn(int arrangement);
    void showOwn(const QString& name, const QByteArray& layout);
    void undoArrangement();
    void redoArrangement();
    void updateArrangementSteps();
    void changeOption(QAction* action);
    void toggleFullScreen();
    void choosePalette(QAction* action);
    void askAboutControl();
    void about();

    void connectPanel(QWidget* panel);
    void panelRemoved();
    void showViewer(Norvane::Host::ViewerPanel* viewer);
    void pictureChanged();
    void keepText(const QString& text);
    void tidyUp();
    void closeAfterScript(bool isRunning);

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
    /// Shows and hides the panes' titles as the display options have it.
    void showTitles();

    void saveFrameAs(const ViewerPanel& viewer, const FrameLayout& layout, const QString& path);

    /// \a pictures may be empty: there are samples.
    void showFirstArrangement(const QStringList& pictures);
    void runScript(const QString& path);
    bool restoreSession();
    bool saveSession(QString* problem);
    bool restoreFile(const QString& path);
    /// Refuses a layout that is broken; if restoring fails all the same, brings the former arrangement back.
    /// Tells the user about either; \a name is what to call the layout.
    bool restoreSafely(const QByteArray& layout, const QString& name);
    /// Empty for none.
    void showStep(const QByteArray& layout);
    QByteArray withoutStatesOfPanels(const QByteArray& layout) const;
    void rebuildPanes();
    void focusAfterRestore();
    void restoreKeptTexts();

    void arrange(Arrangement arrangement);
    /// Never empty: one is made if there is none.
    QStringList idsToArrange(PanelRegistry::Kind kind);
    QStringList openIds(PanelRegistry::Kind kind) const;
    MainWindowPlace place() const;

    /// Children of the window.
    ArrangementRecorder* m_recorder;
    ArrangementMenu* m_arrangementMenu = nullptr;
    UI::ProgressManager* const m_progress;
    /// The tasks of what follows are the manager's.
    struct ThreadsEnd {
        ~ThreadsEnd() { BackgroundJob::waitForAll(); }
    } m_threadsEnd;
    PictureList m_pictures;
    PictureAnalysis m_analysis;
    ScriptInterpreter m_scripts;
    PanelRegistry m_panels;
    PanelFocus m_focus;
    PanelPlacer m_placer;
    QString m_layoutPath;
    ControlHelp* m_controlHelp;
    QMenu* m_notesMenu = nullptr;
    QAction* m_fullScreenAction = nullptr;
    QAction* m_saveFrameAction = nullptr;
    /// Texts of notes that a layout replaced by others while it was restored.
    QStringList m_keptTexts;
    bool m_restoring = false;
    bool m_started = false;
};

}} // namespace Norvane::Host
