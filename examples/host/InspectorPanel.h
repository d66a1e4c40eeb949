#pragma once

#include "PictureFacts.h"

#include <QList>
#include <QScrollArea>
#include <QString>

class QVBoxLayout;

namespace Norvane { namespace UI {
class DisclosureButton;
}} // namespace Norvane::UI

namespace Norvane { namespace Host {

class FactsTable;
class FrameInspector;
class ViewerPanel;

/// A panel that tells about the picture in the viewer that was used last, in groups that can be closed. The
/// layout state is which of them are open: a 1 or a 0 for each.
class InspectorPanel : public QScrollArea
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    /// \a number tells several panels apart.
    explicit InspectorPanel(int number, QWidget* parent = nullptr);

    /// An empty path: there is no picture.
    void setPicture(const QString& path, const QImage& picture);

    QString layoutState() const;
    void setLayoutState(const QString& text);

public Q_SLOTS:
    /// Tells about the picture of \a viewer as it is now. Null for no viewer.
    void setViewer(Norvane::Host::ViewerPanel* viewer);

Q_SIGNALS:
    /// The user wants the frame \a path shown as \a other.
    void frameChanged(const QString& path, const QString& other);

protected:
    void showEvent(QShowEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    /// A button, with a title beside it, in the group of \a outer, if there is one.
    UI::DisclosureButton* addGroup(const QString& title, const QString& whatsThis,
                                   UI::DisclosureButton* outer);
    FactsTable* addTable(UI::DisclosureButton* group, int indent);
    void addToGroup(UI::DisclosureButton* group, QWidget* content, int indent);
    void showFrameGroup();
    void updateGroups();
    void colourTriangles();

    QVBoxLayout* m_layout;
    QList<UI::DisclosureButton*> m_groups;
    /// Beside the buttons.
    QList<QWidget*> m_titles;
    FactsTable* m_file;
    FactsTable* m_picture;
    FactsTable* m_transparency;
    FactsTable* m_colours;
    FrameInspector* m_frame;
};

}} // namespace Norvane::Host
