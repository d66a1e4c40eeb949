#pragma once

#include <QString>
#include <QStringList>
#include <QWidget>

class QListView;
class QModelIndex;
class QSortFilterProxyModel;

namespace Norvane { namespace Host {

class PictureList;

/// A panel with thumbnails of the opened pictures: all, or those whose name has what is typed above them. A
/// double click or Enter asks for one, Delete takes it off the list, dropped files are added. Its layout
/// state is the list, one path a line; a layout only adds pictures.
class PicturesPanel : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    /// \a pictures is shared by all such panels and not owned. \a number tells several panels apart.
    PicturesPanel(PictureList* pictures, int number, QWidget* parent = nullptr);

    QString layoutState() const;
    void setLayoutState(const QString& text);

Q_SIGNALS:
    void pictureChosen(const QString& path);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private Q_SLOTS:
    void choose(const QModelIndex& index);
    void removeCurrent();

private:
    QString pathAt(const QModelIndex& shownIndex) const;

    PictureList* m_pictures;
    QSortFilterProxyModel* m_shown;
    QListView* m_list;
};

}} // namespace Norvane::Host
