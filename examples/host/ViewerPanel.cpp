#include "ViewerPanel.h"

#include "PictureLoader.h"
#include "Pictures.h"
#include "PictureView.h"
#include "StatusLine.h"
#include "ViewerState.h"

#include <QDragEnterEvent>
#include <QDropEvent>
#include <QHBoxLayout>
#include <QToolButton>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

namespace {

QToolButton* createButton(const QString& text, const QString& toolTip, QWidget* parent)
{
    QToolButton* const button = new QToolButton(parent);
    button->setText(text);
    button->setToolTip(toolTip);
    button->setAccessibleName(toolTip);
    button->setAutoRaise(true);
    // A click leaves the keyboard with the picture.
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

ViewerPanel::ViewerPanel(int number, QWidget* parent)
    : QWidget(parent)
    , m_number(number)
    , m_loader(new PictureLoader(this))
    , m_view(new PictureView(this))
    , m_status(new StatusLine(this))
    , m_fitButton(createButton(tr("Fit"), tr("Fit the picture into the panel (F)"), this))
    , m_oneToOneButton(createButton(tr("1:1"), tr("One pixel of the picture to one of the screen (0)"), this))
{
    QHBoxLayout* const bar = new QHBoxLayout;
    bar->setContentsMargins(8, 1, 4, 1);
    bar->setSpacing(2);
    bar->addWidget(m_status, 1);
    bar->addSpacing(6);
    bar->addWidget(m_fitButton);
    bar->addWidget(m_oneToOneButton);

    QVBoxLayout* const layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(0);
    layout->addWidget(m_view, 1);
    layout->addLayout(bar);

    m_view->setWhatsThis(
        tr("The picture. The wheel zooms, dragging moves it; the keys + and - zoom, 0 shows one to "
           "one and F fits it."));
    m_fitButton->setWhatsThis(tr("Makes the picture as large as the panel and keeps it so."));
    m_oneToOneButton->setWhatsThis(tr("Shows every pixel of the picture as one of the screen."));
    m_status->setWhatsThis(tr("The name and size of the picture, the pixel under the mouse, and the zoom."));
    m_fitButton->setCheckable(true);
    setFocusProxy(m_view);
    setAcceptDrops(true);
    connect(m_loader, SIGNAL(loaded(QImage, QString)), this, SLOT(takePicture(QImage, QString)));
    connect(m_view, SIGNAL(viewChanged()), this, SLOT(showView()));
    connect(m_view, SIGNAL(pixelPointed(QPoint)), this, SLOT(showPixel(QPoint)));
    connect(m_view, SIGNAL(pixelLeft()), this, SLOT(clearPixel()));
    connect(m_view, SIGNAL(pictureWanted()), this, SIGNAL(pictureWanted()));
    connect(m_fitButton, SIGNAL(clicked()), m_view, SLOT(fitToView()));
    connect(m_oneToOneButton, SIGNAL(clicked()), m_view, SLOT(showOneToOne()));
    updateTexts();
}

PictureView* ViewerPanel::view() const
{
    return m_view;
}

QString ViewerPanel::picturePath() const
{
    return m_path;
}

const QImage& ViewerPanel::picture() const
{
    return m_view->picture();
}

void ViewerPanel::openPicture(const QString& path)
{
    const QString canonical = Pictures::canonicalPath(path);
    if (canonical == m_path && m_loader->isLoading())
        return;
    if (!m_view->isFitted())
        m_view->fitToView();
    setPicturePath(canonical);
}

void ViewerPanel::replacePicture(const QString& path)
{
    setPicturePath(Pictures::canonicalPath(path));
}

QString ViewerPanel::layoutState() const
{
    ViewerState state;
    state.fitted = m_view->isFitted();
    state.zoom = m_view->zoom();
    state.center = m_view->center();
    state.grade = m_view->grade();
    state.path = m_path;
    return state.toString();
}

void ViewerPanel::setLayoutState(const QString& text)
{
    const ViewerState state = ViewerState::fromString(text);
    if (state.fitted)
        m_view->fitToView();
    else
        m_view->setZoom(state.zoom, state.center);
    m_view->setGrade(state.grade);
    if (state.path != m_path)
        setPicturePath(state.path);
}

void ViewerPanel::setPicturePath(const QString& path)
{
    m_path = path;
    m_loader->cancel();
    m_isWaitingToBeSeen = true;
    if (isVisible())
        loadPicture();
    else
        showMessage(QString(), QString());
    Q_EMIT pictureChanged();
}

void ViewerPanel::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    if (m_isWaitingToBeSeen)
        loadPicture();
}

void ViewerPanel::loadPicture()
{
    m_isWaitingToBeSeen = false;
    if (m_path.isEmpty()) {
        showMessage(tr("Drop or open a picture"), tr("A double click here chooses a file."));
        return;
    }
    m_loader->load(m_path);
    showMessage(Pictures::nameOf(m_path), tr("Loading..."));
}

void ViewerPanel::takePicture(const QImage& picture, const QString& problem)
{
    if (picture.isNull()) {
        showMessage(tr("%1 cannot be shown").arg(Pictures::nameOf(m_path)), problem);
    } else {
        m_view->setPicture(m_loader->levels());
        updateTexts();
    }
    Q_EMIT pictureChanged();
}

void ViewerPanel::showMessage(const QString& title, const QString& detail)
{
    m_view->setMessage(title, detail);
    updateTexts();
}

void ViewerPanel::updateTexts()
{
    const QImage& picture = m_view->picture();
    const QString name = Pictures::nameOf(m_path);
    if (m_path.isEmpty())
        setWindowTitle(m_number > 1 ? tr("Viewer %1").arg(m_number) : tr("Viewer"));
    else
        setWindowTitle(name);
    if (m_loader->isLoading())
        m_status->setName(tr("%1, loading...").arg(name));
    else if (picture.isNull())
        m_status->setName(name);
    else
        m_status->setName(tr("%1, %2 x %3").arg(name).arg(picture.width()).arg(picture.height()));
    m_view->setAccessibleName(m_path.isEmpty() ? tr("Picture") : tr("Picture %1").arg(name));
    m_fitButton->setEnabled(!picture.isNull());
    m_oneToOneButton->setEnabled(!picture.isNull());
    showView();
    clearPixel();
}

void ViewerPanel::showView()
{
    const bool hasPicture = !m_view->picture().isNull();
    m_fitButton->setChecked(hasPicture && m_view->isFitted());
    m_status->setZoom(hasPicture ? tr("%1%").arg(m_view->zoom() * 100, 0, 'f', m_view->zoom() < 0.1 ? 1 : 0)
                                 : QString());
}

void ViewerPanel::showPixel(const QPoint& pixel)
{
    const QRgb value = m_view->picture().pixel(pixel);
    const QString place = tr("(%1, %2)").arg(pixel.x()).arg(pixel.y());
    const QString colour = tr("R %1  G %2  B %3").arg(qRed(value)).arg(qGreen(value)).arg(qBlue(value));
    if (m_view->picture().hasAlphaChannel())
        m_status->setPixel(tr("%1  %2  A %3").arg(place, colour).arg(qAlpha(value)));
    else
        m_status->setPixel(tr("%1  %2").arg(place, colour));
}

void ViewerPanel::clearPixel()
{
    m_status->setPixel(QString());
}

void ViewerPanel::dragEnterEvent(QDragEnterEvent* event)
{
    if (!Pictures::draggedFiles(event->mimeData()).isEmpty())
        event->acceptProposedAction();
}

void ViewerPanel::dropEvent(QDropEvent* event)
{
    QStringList paths = Pictures::draggedFiles(event->mimeData());
    if (paths.isEmpty())
        return;
    event->acceptProposedAction();
    openPicture(paths.takeFirst());
    if (!paths.isEmpty())
        Q_EMIT picturesDropped(paths);
}

}} // namespace Norvane::Host
