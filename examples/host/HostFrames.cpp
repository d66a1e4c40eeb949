// What the main window does with frames of video.

#include "FrameDialog.h"
#include "FrameSaveDialog.h"
#include "FrameWriting.h"
#include "HostWindow.h"
#include "Pictures.h"
#include "PictureView.h"
#include "ViewerPanel.h"

#include <ui/docking/Dock.h>

#include <QDir>
#include <QFileInfo>
#include <QMessageBox>
#include <QSettings>

namespace Norvane { namespace Host {

namespace {

/// Without a layout if \a viewer shows a common picture.
FrameFormat formatOf(const ViewerPanel& viewer)
{
    FrameFormat format;
    QString problem;
    FrameFormat::parse(FrameAddress::fromString(viewer.picturePath()).format, &format, &problem);
    return format;
}

} // namespace

void HostWindow::chooseFrame()
{
    const QString folderKey = QLatin1String("Folders/Frames");
    FrameDialog dialog(QSettings().value(folderKey).toString(), this);
    if (dialog.exec() != QDialog::Accepted)
        return;
    const FrameAddress address = dialog.address();
    QSettings().setValue(folderKey, QFileInfo(address.path).path());
    openPicture(address.toString());
}

void HostWindow::reinterpretFrame(const QString& path, const QString& other)
{
    m_pictures.replacePicture(path, other);
    const QList<ViewerPanel*> viewers = m_panels.viewers();
    for (ViewerPanel* const viewer : viewers) {
        if (viewer->picturePath() == path)
            viewer->replacePicture(other);
    }
}

void HostWindow::saveFrame()
{
    const ViewerPanel* const viewer = focusedViewer();
    if (!viewer || viewer->picture().isNull())
        return;
    const QString source = Pictures::filePath(viewer->picturePath());
    // The samples are inside the program, where nothing can be saved.
    const bool isOurs = source.startsWith(QLatin1Char(':'));
    const QString folder = isOurs ? QDir::homePath() : QFileInfo(source).path();
    FrameSaveDialog dialog(folder, formatOf(*viewer).layout, this);
    if (dialog.exec() == QDialog::Accepted)
        saveFrameAs(*viewer, dialog.frameLayout(), dialog.selectedFiles().first());
}

void HostWindow::saveFrameAs(const ViewerPanel& viewer, const FrameLayout& layout, const QString& path)
{
    FrameFormat format = formatOf(viewer);
    // Back into the layout that it came in: with the matrix of the user's choice.
    if (format.layout != &layout)
        format.matrix = layout.usualMatrix(viewer.picture().height());
    format.layout = &layout;
    BackgroundJob* const writing = new FrameWriting(viewer.picture(), viewer.view()->grade(), format, path);
    connect(writing, SIGNAL(finished()), this, SLOT(frameWritten()));
    writing->start();
}

void HostWindow::frameWritten()
{
    const FrameWriting* const writing = static_cast<FrameWriting*>(sender());
    if (writing->problem().isEmpty())
        return;
    const QString file = QDir::toNativeSeparators(writing->path());
    QMessageBox::warning(this, tr("Save Frame"),
                         tr("\"%1\" cannot be written.\n\n%2").arg(file, writing->problem()));
}

}} // namespace Norvane::Host
