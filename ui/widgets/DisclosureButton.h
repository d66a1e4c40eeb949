#pragma once

#include <NorvaneCoreExport.h>

#include <QCheckBox>
#include <QColor>

#include <memory>

class QStyleOptionButton;

namespace Norvane { namespace UI {

class VisibilitySetter;

/// A small triangle that shows (checked) or hides (unchecked) a group of other widgets. A group may contain
/// further disclosure buttons, whose own groups follow them, but not the button itself, neither directly nor
/// through others. A widget may belong to several groups: a DisclosableWidget decides itself what that means,
/// any other is as the last button to be updated wants it.
///
/// The form connects toggled(bool) to showOrHideWidgets(). A button that is not visible hides its group, so a
/// form that was changed while it was hidden also calls that slot when it is shown.
class NORVANE_CORE_EXPORT DisclosureButton : public QCheckBox
{
    Q_OBJECT
    Q_PROPERTY(QColor triangleColor READ triangleColor WRITE setTriangleColor)
public:
    /// With \a showAddedWidgets, what is added while the button is checked is shown at once; otherwise it is
    /// hidden until the next update.
    explicit DisclosureButton(QWidget* parent, bool showAddedWidgets = true);
    ~DisclosureButton() override;

    /// Shows or hides \a widget at once and adds it to the group. Not owned.
    void addWidget(QWidget* widget);
    /// Leaves \a widget as visible as it is. Does nothing if it is not in the group.
    void removeWidget(QWidget* widget);

    /// The colour of the triangle while the button is enabled; invalid by default, which means black. For
    /// hosts with a dark palette.
    QColor triangleColor() const;
    void setTriangleColor(const QColor& color);

    /// Also updates the group: that of a hidden button is hidden.
    void setVisible(bool visible) override;

public Q_SLOTS:
    /// Updates the group to what the button shows. A hidden button hides it.
    void showOrHideWidgets();

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    void showOrHideWidgets(VisibilitySetter& setter) const;
    void showWidgets(VisibilitySetter& setter) const;
    void hideWidgets(VisibilitySetter& setter) const;
    void paintTriangle(QPainter& painter, const QStyleOptionButton& option) const;

    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
