#pragma once

#include <QPointer>
#include <QWidget>

class QHBoxLayout;
class QLabel;

namespace Norvane { namespace UI {

class LogSlider;
class Slider;

}} // namespace Norvane::UI

namespace Norvane { namespace Host {

class PictureList;
class PictureView;
class ViewerPanel;

/// A panel with sliders for the focused viewer: the exposure of its picture, which of the opened pictures it
/// shows, and its zoom.
class ControlsPanel : public QWidget
{
    Q_OBJECT
public:
    /// \a pictures is not owned.
    explicit ControlsPanel(PictureList* pictures, int number, QWidget* parent = nullptr);

public Q_SLOTS:
    /// The viewer to act on from now on; null for none.
    void setViewer(Norvane::Host::ViewerPanel* viewer);

protected:
    void changeEvent(QEvent* event) override;

private Q_SLOTS:
    void expose(double stops);
    void resetExposure();
    void showPictureNumber(double number);
    void zoomView();
    void showViewer();
    void showZoom();

private:
    QHBoxLayout* addSlider(const QString& name, QWidget* slider, QLabel* value);
    PictureView* view() const;
    void takeColours();

    PictureList* m_pictures;
    QPointer<ViewerPanel> m_viewer;
    UI::Slider* m_exposure;
    QLabel* m_exposureText;
    UI::Slider* m_frame;
    QLabel* m_frameText;
    UI::LogSlider* m_zoom;
    QLabel* m_zoomText;
};

}} // namespace Norvane::Host
