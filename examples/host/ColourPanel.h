#pragma once

#include "PictureGrade.h"

#include <ui/colour/ColorControl.h>
#include <ui/colour/IColorControlClient.h>

#include <QPointer>
#include <QWidget>

class QBoxLayout;
class QComboBox;
class QGridLayout;

namespace Norvane { namespace Host {

class ViewerPanel;

/// A panel that grades the picture of the focused viewer while its controls are dragged. The colour is the
/// gain of the picture's light, white changes nothing; alpha is how much of it is applied. The layout state
/// is what the wheel looks like: "ring", or nothing for a disc.
class ColourPanel : public QWidget, private UI::IColorControlClient
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    /// \a number tells several panels apart.
    explicit ColourPanel(int number, QWidget* parent = nullptr);

    QString layoutState() const;
    void setLayoutState(const QString& text);

public Q_SLOTS:
    /// Shows the gain of \a viewer and acts on it from now on. Null for no viewer.
    void setViewer(Norvane::Host::ViewerPanel* viewer);
    void resetToDefault();

private Q_SLOTS:
    void showWheel(int look);

private:
    void colorChanged(float red, float green, float blue, float alpha) override;
    void dragStarted() override;
    UI::ColorWheel* createWheel();
    void addLying(QGridLayout* grid, UI::ColorSlider* slider);
    void addStanding(QBoxLayout* row, UI::ColorSlider* slider, const QString& letter);

    UI::ColorControl m_control;
    UI::ColorWheel* m_wheel;
    /// Disc, ring.
    QComboBox* m_look;
    QPointer<ViewerPanel> m_viewer;
    /// Its grade as it is shown here.
    PictureGrade m_grade;
};

}} // namespace Norvane::Host
