#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QImage;
class QPoint;
class QToolButton;

namespace Norvane { namespace Host {

class PictureLoader;
class PictureView;
class StatusLine;

/// A panel that shows one picture, with a status line below it. Pictures may be dropped onto it. The picture
/// is read on a thread, from when the panel is first to be seen. The layout state is a ViewerState. A picture
/// that cannot be read leaves a message; its path is kept, so that a layout is not spoilt by a disk that is
/// not there today.
class ViewerPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    /// \a number tells viewers apart as long as they have no picture.
    explicit ViewerPanel(int number, QWidget* parent = nullptr);

    QString picturePath() const;
    /// Null until it has been read, and if there is none that can be read.
    const QImage& picture() const;
    /// Fits the picture at \a path into the view. The one that was asked for last comes.
    void openPicture(const QString& path);

    /// Shows the picture at \a path in the place of the present one: zoomed and graded like that.
    void replacePicture(const QString& path);

    /// The view, which controls grade and zoom.
    PictureView* view() const;

    QString layoutState() const;
    void setLayoutState(const QString& text);

Q_SIGNALS:
    /// There is another picture, or none, or it has been read; the window title has changed with it.
    void pictureChanged();
    /// The user wants to choose a picture for this panel.
    void pictureWanted();
    /// Pictures were dropped that have no place here: a viewer shows one.
    void picturesDropped(const QStringList& paths);

protected:
    void showEvent(QShowEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private Q_SLOTS:
    void takePicture(const QImage& picture, const QString& problem);
    void showView();
    void showPixel(const QPoint& pixel);
    void clearPixel();

private:
    void setPicturePath(const QString& path);
    void loadPicture();
    void showMessage(const QString& title, const QString& detail);
    void updateTexts();

    int m_number;
    QString m_path;
    bool m_isWaitingToBeSeen = true;
    PictureLoader* m_loader;
    PictureView* m_view;
    StatusLine* m_status;
    QToolButton* m_fitButton;
    QToolButton* m_oneToOneButton;
};

}} // namespace Norvane::Host
