#include "PicturesPanel.h"

#include "Hint.h"
#include "PictureList.h"
#include "Pictures.h"

#include <ui/widgets/SearchField.h>

#include <QAction>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QListView>
#include <QSortFilterProxyModel>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

PicturesPanel::PicturesPanel(PictureList* pictures, int number, QWidget* parent)
    : QWidget(parent)
    , m_pictures(pictures)
    , m_shown(new QSortFilterProxyModel(this))
    , m_list(new QListView(this))
{
    setWindowTitle(number > 1 ? tr("Pictures %1").arg(number) : tr("Pictures"));
    UI::SearchField* const search = new UI::SearchField(this);
    search->setPrompt(tr("Search"));
    search->setHasCancelButton(true);
    search->setAccessibleName(tr("Search the opened pictures"));
    search->setWhatsThis(tr("Shows only the pictures whose name has what you type here."));
    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    QVBoxLayout* const searchLine = new QVBoxLayout;
    searchLine->setContentsMargins(4, 4, 4, 4);
    searchLine->addWidget(search);
    layout->addLayout(searchLine);
    layout->addWidget(m_list);

    m_shown->setSourceModel(pictures);
    m_shown->setFilterCaseSensitivity(Qt::CaseInsensitive);
    connect(search, SIGNAL(textChanged(QString)), m_shown, SLOT(setFilterFixedString(QString)));
    m_list->setModel(m_shown);
    m_list->setFrameShape(QFrame::NoFrame);
    m_list->setViewMode(QListView::IconMode);
    m_list->setMovement(QListView::Static);
    m_list->setResizeMode(QListView::Adjust);
    m_list->setTextElideMode(Qt::ElideMiddle);
    m_list->setIconSize(PictureList::thumbnailSize());
    m_list->setGridSize(PictureList::thumbnailSize() + QSize(20, fontMetrics().height() + 18));
    m_list->setAccessibleName(tr("Opened pictures"));
    m_list->setWhatsThis(
        tr("The pictures opened so far. A double click shows one, the Delete key takes it off "
           "the list."));
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
    Q_EMIT pictureChosen(pathAt(index));
}

void PicturesPanel::removeCurrent()
{
    m_pictures->removePicture(pathAt(m_list->currentIndex()));
}

QString PicturesPanel::pathAt(const QModelIndex& shownIndex) const
{
    return m_pictures->pathAt(m_shown->mapToSource(shownIndex));
}

bool PicturesPanel::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() != QEvent::Paint || m_shown->rowCount() > 0)
        return QWidget::eventFilter(watched, event);
    const bool isFiltered = m_pictures->rowCount() > 0;
    paintHint(m_list, isFiltered ? tr("No opened picture has this in its name.")
                                 : tr("Drop or open pictures: they are listed here."));
    return true;
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
