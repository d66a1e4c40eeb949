#pragma once

#include <QAbstractListModel>
#include <QIcon>
#include <QImage>
#include <QList>
#include <QString>
#include <QStringList>

class QPixmap;

namespace Norvane { namespace Host {

class PictureLoader;

/// The pictures opened so far, each once, with thumbnails that are made one by one on a thread.
class PictureList : public QAbstractListModel
{
    Q_OBJECT
public:
    explicit PictureList(QObject* parent = nullptr);

    /// In the order in which they came.
    QStringList paths() const;
    void addPicture(const QString& path);
    void removePicture(const QString& path);
    /// Lists \a other in the place of \a path, unless it is listed already.
    void replacePicture(const QString& path, const QString& other);

    QString pathAt(const QModelIndex& index) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role) const override;

    /// Thumbnails are shown at this size, on screens of any density.
    static QSize thumbnailSize();

public Q_SLOTS:
    /// Shows a picture's waveform below its thumbnail; both are in physical pixels.
    void setAnalysis(const QString& path, const QImage& thumbnail, const QImage& waveform);

private Q_SLOTS:
    /// Of the picture that was read last.
    void setThumbnail(const QImage& picture);

private:
    struct Entry {
        QString path;
        QIcon thumbnail;
        bool hasThumbnail = false;
    };
    int rowOf(const QString& path) const;
    void loadNextThumbnail();
    void showThumbnail(const QString& path, const QPixmap& thumbnail);

    QList<Entry> m_entries;
    PictureLoader* m_loader;
    /// The path that it reads.
    QString m_loading;
};

}} // namespace Norvane::Host
