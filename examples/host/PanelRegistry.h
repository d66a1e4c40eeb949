#pragma once

#include <QList>
#include <QMap>
#include <QObject>
#include <QPointer>
#include <QString>
#include <QStringList>
#include <QWidget>

namespace Norvane { namespace Host {

class NotesPanel;
class PictureList;
class ScriptInterpreter;
class ViewerPanel;

/// The panels of the program by their ids, such as "Viewer.1": the kind, a dot, a number from 1. An id is the
/// object name of its panel. Docking classes let panels go without deleting them; the registry knows them all
/// and deletes those that are left when it dies.
class PanelRegistry : public QObject
{
    Q_OBJECT
public:
    enum Kind {
        ViewerKind,
        PicturesKind,
        NotesKind,
        FilesKind,
        InspectorKind,
        ControlsKind,
        ColourKind,
        ScriptKind,
        ScopesKind
    };

    /// \a pictures is shown by all panels with pictures, \a scripts runs what is typed in panels for scripts;
    /// they are not owned.
    PanelRegistry(PictureList* pictures, ScriptInterpreter* scripts, QObject* parent = nullptr);
    ~PanelRegistry() override;

    /// The panel called \a id, made now if there is none; null if \a id is not the id of a panel of ours.
    QWidget* panel(const QString& id);
    /// A new panel with the smallest number that is free.
    QWidget* createPanel(Kind kind);
    /// The panel called \a id, or null.
    QWidget* find(const QString& id) const;

    /// The ids of all panels of a kind in the order of their numbers.
    QStringList ids(Kind kind) const;
    QList<ViewerPanel*> viewers() const;
    QList<NotesPanel*> notes() const;

    /// Panels that are in no pane and not being dragged.
    QList<QWidget*> closedPanels() const;
    /// Deletes the closed panels, but for notes with a text.
    void deleteClosedPanels();

Q_SIGNALS:
    void created(QWidget* panel);

private:
    struct Id {
        Kind kind;
        int number;
    };
    static bool readId(const QString& text, Id* id);
    static QString idText(Kind kind, int number);
    QWidget* create(Kind kind, int number);

    PictureList* m_pictures;
    ScriptInterpreter* m_scripts;
    /// By kind and number. Entries of panels that were deleted are null.
    QMap<int, QMap<int, QPointer<QWidget>>> m_panels;
};

}} // namespace Norvane::Host
