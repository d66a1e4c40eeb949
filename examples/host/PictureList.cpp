#include "PictureList.h"

#include "PictureLoader.h"
#include "Pictures.h"

#include <QApplication>
#include <QDir>
#include <QPainter>
#include <QPixmap>
#include <QStyle>

namespace Norvane { namespace Host {

namespace {

QPixmap emptyThumbnail()
{
    // Twice the size, for dense screens.
    QPixmap thumbnail(PictureList::thumbnailSize() * 2);
    thumbnail.fill(Qt::transparent);
    return thumbnail;
}

/// Null: a sign that there is no picture.
QPixmap thumbnailOf(const QImage& picture)
{
    QPixmap thumbnail = emptyThumbnail();
    // The picture is centred so that all names stand in line.
    QRect place(QPoint(0, 0), thumbnail.size() / 3);
    if (!picture.isNull()) {
        QSize size = picture.size();
        size.scale(thumbnail.size(), Qt::KeepAspectRatio);
        place.setSize(size);
    }
    place.moveCenter(thumbnail.rect().center());
    QPainter painter(&thumbnail);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (picture.isNull())
        QApplication::style()->standardIcon(QStyle::SP_MessageBoxWarning).paint(&painter, place);
    else
        painter.drawImage(place, picture);
    return thumbnail;
}

QPixmap withWaveform(const QImage& picture, const QImage& waveform)
{
    QPixmap thumbnail = emptyThumbnail();
    QRect place(QPoint(0, 0), picture.size());
    place.moveCenter(thumbnail.rect().center());
    QRect strip = thumbnail.rect();
    strip.setTop(strip.height() / 2);
    QPainter painter(&thumbnail);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    painter.drawImage(place, picture);
    painter.fillRect(strip, QColor(0, 0, 0, 160));
    painter.drawImage(strip, waveform);
    return thumbnail;
}

} // namespace

PictureList::PictureList(QObject* parent)
    : QAbstractListModel(parent)
    , m_loader(new PictureLoader(this))
{
    connect(m_loader, SIGNAL(loaded(QImage, QString)), this, SLOT(setThumbnail(QImage)));
}

QStringList PictureList::paths() const
{
    QStringList paths;
    for (const Entry& entry : m_entries)
        paths.append(entry.path);
    return paths;
}

void PictureList::addPicture(const QString& path)
{
    const QString canonical = Pictures::canonicalPath(path);
    if (path.isEmpty() || rowOf(canonical) >= 0)
        return;
    const int row = rowCount();
    beginInsertRows(QModelIndex(), row, row);
    Entry entry;
    entry.path = canonical;
    // Views reserve the place.
    entry.thumbnail = QIcon(emptyThumbnail());
    m_entries.append(entry);
    endInsertRows();
    loadNextThumbnail();
}

void PictureList::removePicture(const QString& path)
{
    const int row = rowOf(path);
    if (row < 0)
        return;
    beginRemoveRows(QModelIndex(), row, row);
    m_entries.removeAt(row);
    endRemoveRows();
}

void PictureList::replacePicture(const QString& path, const QString& other)
{
    const int row = rowOf(path);
    if (row < 0 || rowOf(other) >= 0)
        return;
    m_entries[row].path = other;
    m_entries[row].hasThumbnail = false;
    Q_EMIT dataChanged(index(row), index(row));
    loadNextThumbnail();
}

QString PictureList::pathAt(const QModelIndex& index) const
{
    return index.isValid() ? m_entries[index.row()].path : QString();
}

int PictureList::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : int(m_entries.size());
}

QVariant PictureList::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const Entry& entry = m_entries[index.row()];
    switch (role) {
    case Qt::DisplayRole:
    case Qt::AccessibleTextRole:
        return Pictures::nameOf(entry.path);
    case Qt::DecorationRole:
        return entry.thumbnail;
    case Qt::ToolTipRole:
        return QDir::toNativeSeparators(Pictures::filePath(entry.path));
    default:
        return QVariant();
    }
}

QSize PictureList::thumbnailSize()
{
    return QSize(96, 72);
}

void PictureList::loadNextThumbnail()
{
    for (int row = 0; row < rowCount() && !m_loader->isLoading(); ++row) {
        if (m_entries[row].hasThumbnail)
            continue;
        m_loading = m_entries[row].path;
        m_loader->load(m_loading, emptyThumbnail().size());
    }
}

void PictureList::setThumbnail(const QImage& picture)
{
    // It may have been taken off the list, or have been analysed, meanwhile.
    const int row = rowOf(m_loading);
    if (row >= 0 && !m_entries[row].hasThumbnail)
        showThumbnail(m_loading, thumbnailOf(picture));
    loadNextThumbnail();
}

void PictureList::setAnalysis(const QString& path, const QImage& thumbnail, const QImage& waveform)
{
    showThumbnail(path, withWaveform(thumbnail, waveform));
}

void PictureList::showThumbnail(const QString& path, const QPixmap& thumbnail)
{
    const int row = rowOf(path);
    if (row < 0)
        return;
    m_entries[row].thumbnail = QIcon(thumbnail);
    m_entries[row].hasThumbnail = true;
    Q_EMIT dataChanged(index(row), index(row));
}

int PictureList::rowOf(const QString& path) const
{
    return int(paths().indexOf(path));
}

}} // namespace Norvane::Host
