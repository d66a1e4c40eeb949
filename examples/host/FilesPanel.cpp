#include "FilesPanel.h"

#include "Hint.h"
#include "Pictures.h"

#include <ui/widgets/DropAcceptingListWidget.h>
#include <ui/widgets/FilenameField.h>

#include <QDir>
#include <QFileInfo>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

FilesPanel::FilesPanel(int number, QWidget* parent)
    : QWidget(parent)
    , m_field(new UI::FilenameField(this, QFileDialog::Directory, false))
    , m_list(new UI::DropAcceptingListWidget(this))
{
    setWindowTitle(number > 1 ? tr("Files %1").arg(number) : tr("Files"));
    m_field->setPrompt(tr("A folder or a picture"));
    m_field->setWhatsThis(
        tr("Type or choose a folder to see its pictures below, or type the name of a picture to "
           "open it."));
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setAcceptsDropsFlags(UI::AcceptUrls);
    m_list->viewport()->installEventFilter(this);
    m_list->setAccessibleName(tr("Pictures of the folder"));
    m_list->setWhatsThis(
        tr("The pictures of the folder. A double click opens one; pictures and folders can be "
           "dropped here from a file manager."));

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    QVBoxLayout* const fieldLine = new QVBoxLayout;
    fieldLine->setContentsMargins(4, 4, 4, 4);
    fieldLine->addWidget(m_field);
    layout->addLayout(fieldLine);
    layout->addWidget(m_list);
    setFocusProxy(m_field);

    connect(m_field, SIGNAL(fileDialogShown(QFileDialog*)), this, SLOT(prepareDialog(QFileDialog*)));
    connect(m_field, SIGNAL(filenameSet()), this, SLOT(openNamed()));
    connect(m_list, SIGNAL(itemActivated(QListWidgetItem*)), this, SLOT(openItem(QListWidgetItem*)));
    connect(m_list, SIGNAL(droppedUrls(QStringList)), this, SLOT(takeDropped(QStringList)));
}

QString FilesPanel::layoutState() const
{
    return m_openedName;
}

void FilesPanel::setLayoutState(const QString& text)
{
    m_openedName = text;
    m_field->setFilename(text);
    listFolder(text);
}

void FilesPanel::prepareDialog(QFileDialog* dialog)
{
    dialog->setWindowTitle(tr("Choose a Folder"));
    dialog->setNameFilter(Pictures::fileFilter());
    dialog->setOption(QFileDialog::ShowDirsOnly, false);
}

void FilesPanel::openNamed()
{
    const QString name = m_field->filename();
    if (name == m_openedName)
        return;
    m_openedName = name;
    if (QFileInfo(name).isFile())
        Q_EMIT pictureChosen(name);
    else
        listFolder(name);
}

void FilesPanel::openItem(QListWidgetItem* item)
{
    Q_EMIT pictureChosen(item->data(Qt::UserRole).toString());
}

void FilesPanel::takeDropped(const QStringList& paths)
{
    QStringList files;
    for (const QString& path : paths) {
        if (QFileInfo(path).isDir()) {
            m_field->setFilename(path);
        } else if (QFileInfo(path).isFile()) {
            if (!hasFile(path))
                addFile(path);
            files.append(path);
        }
    }
    if (!files.isEmpty())
        Q_EMIT picturesDropped(files);
}

void FilesPanel::listFolder(const QString& folder)
{
    m_list->clear();
    // No name is the folder that the program was started in, which nobody has asked for.
    if (folder.isEmpty())
        return;
    const QFileInfoList files = QDir(folder).entryInfoList(Pictures::namePatterns(), QDir::Files, QDir::Name);
    for (const QFileInfo& file : files)
        addFile(file.absoluteFilePath());
}

void FilesPanel::addFile(const QString& path)
{
    const QString canonical = Pictures::canonicalPath(path);
    QListWidgetItem* const item = new QListWidgetItem(Pictures::nameOf(canonical), m_list);
    item->setData(Qt::UserRole, canonical);
    item->setToolTip(QDir::toNativeSeparators(canonical));
}

bool FilesPanel::hasFile(const QString& path) const
{
    for (int row = 0; row < m_list->count(); ++row) {
        if (m_list->item(row)->data(Qt::UserRole).toString() == Pictures::canonicalPath(path))
            return true;
    }
    return false;
}

bool FilesPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint || m_list->count() > 0)
        return QWidget::eventFilter(watched, event);
    const bool hasFolder = QFileInfo(m_openedName).isDir();
    paintHint(m_list, hasFolder ? tr("There are no pictures in this folder.")
                                : tr("Choose a folder, or drop pictures here."));
    return true;
}

}} // namespace Norvane::Host
