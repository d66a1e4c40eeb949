#pragma once

#include <QImage>
#include <QPointer>
#include <QString>
#include <QWidget>

class QBoxLayout;
class QToolButton;

namespace Norvane { namespace Host {

class HistogramView;
class ViewerPanel;
class WaveformView;

/// A panel with a waveform and a histogram of what the focused viewer shows, graded as it is seen. They
/// follow at once: a part of the pixels is measured, which is enough for the eye. The layout state is "luma"
/// or "rgb".
class ScopesPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    explicit ScopesPanel(int number, QWidget* parent = nullptr);

    QString layoutState() const;
    void setLayoutState(const QString& text);

public Q_SLOTS:
    /// The viewer to measure from now on; null for none.
    void setViewer(Norvane::Host::ViewerPanel* viewer);

protected:
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private Q_SLOTS:
    void measureSoon();
    void measure();
    void chooseComponents();

private:
    QImage seenPicture() const;

    QPointer<ViewerPanel> m_viewer;
    QBoxLayout* m_scopes;
    WaveformView* m_waveform;
    HistogramView* m_histogram;
    QToolButton* m_rgbButton;
    bool m_isStale = false;
};

}} // namespace Norvane::Host
