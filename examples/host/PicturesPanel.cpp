#include "PicturesPanel.h"

#include "PictureList.h"
#include "Pictures.h"

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListView>
#include <QPainter>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

PicturesPanel::PicturesPanel(PictureList* pictures, int number, QWidget* parent)
    : QWidget(parent)
    , m_pictures(pictures)
    , m_list(new QListView(this))
{
    setWindowTitle(number > 1 ? tr("Pictures %1").arg(number) : tr("Pictures"));
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_list);

    m_list->setModel(pictures);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setViewMode(QListView::IconMode);
    m_list->setMovement(QListView::Static);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setIconSize(PictureList::thumbnailSize());
    m_list->setGridSize(PictureList::thumbnailSize() + QSize(20, fontMetrics().height() + 18));
    m_list->setAccessibleName(tr("Opened pictures"));
    m_list->viewport()->installEventFilter(this);

    QAction* const remove = new QAction(tr("&Remove from List"), m_list);
    remove->setShortcut(QKeySequence(Qt::Key_Delete));
    remove->setShortcutContext(Qt::WidgetShortcut);
    m_list->addAction(remove);
    m_list->setContextMenuPolicy(Qt::ActionsContextMenu);
    connect(remove, SIGNAL(triggered()), this, SLOT(removeCurrent()));
    connect(m_list, SIGNAL(activated(QModelIndex)), this, SLOT(choose(QModelIndex)));

    setFocusProxy(m_list);
    setAcceptDrops(true);
}

QString PicturesPanel::layoutState() const
{
    return m_pictures->paths().join(QLatin1String("\n"));
}

void PicturesPanel::setLayoutState(const QString& text)
{
    const QStringList paths = text.split(QLatin1Char('\n'));
    for (const QString& path : paths)
        m_pictures->addPicture(path);
}

void PicturesPanel::choose(const QModelIndex& index)
{
    Q_EMIT pictureChosen(m_pictures->pathAt(index));
}

void PicturesPanel::removeCurrent()
{
    m_pictures->removePicture(m_pictures->pathAt(m_list->currentIndex()));
}

bool PicturesPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint || m_pictures->rowCount() > 0)
        return QWidget::eventFilter(watched, event);
    paintHint();
    return true;
}

void PicturesPanel::paintHint()
{
    QWidget* const viewport = m_list->viewport();
    QPainter painter(viewport);
    painter.setPen(m_list->palette().color(QPalette::Disabled, QPalette::Text));
    painter.drawText(viewport->rect().adjusted(12, 12, -12, -12), Qt::AlignCenter | Qt::TextWordWrap,
                     tr("Drop or open pictures: they are listed here."));
}

void PicturesPanel::dragEnterEvent(QDragEnterEvent* event)
{
    if (!Pictures::draggedFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void PicturesPanel::dropEvent(QDropEvent* event)
{
    const QStringList paths = Pictures::draggedFiles(event->mimeData());
    for (const QString& path : paths)
        m_pictures->addPicture(path);
    event->acceptProposedAction();
}

}} // namespace Norvane::Host
