#include <ui/progress/DialogProgressManager.h>

#include <ui/docking/WidgetUtils.h>
#include <ui/progress/ProgressDialog.h>
#include <ui/widgets/AppSettings.h>

namespace Norvane { namespace UI {

namespace {

/// The dialog's place in the settings: a QRect of the frame's corner and the size inside the frame.
const char kPlaceKey[] = "Progress/WindowLocations/Progress";

} // namespace

DialogProgressManager::DialogProgressManager(QWidget* parentWidget)
{
    DialogProgressManager::createProgressWidget(parentWidget);
}

DialogProgressManager::~DialogProgressManager()
{
    delete m_dialog;
}

QWidget* DialogProgressManager::progressWidget()
{
    return m_dialog;
}

void DialogProgressManager::saveState()
{
    if (m_dialog)
        AppSettings().setValue(QLatin1String(kPlaceKey), QRect(m_dialog->pos(), m_dialog->size()));
}

bool DialogProgressManager::restoreState()
{
    static bool wasCalled = false;
    if (wasCalled || !m_dialog)
        return false;
    wasCalled = true;

    const QVariant place = AppSettings().value(QLatin1String(kPlaceKey));
    if (!place.isValid())
        return false;
    m_dialog->resize(place.toRect().size());
    m_dialog->move(place.toRect().topLeft());
    WidgetUtils::MoveWidgetNotObscuringWidget(m_dialog, nullptr);
    if (m_dialog)
        m_dialog->setAttribute(Qt::WA_Moved, false);
    return true;
}

bool DialogProgressManager::createProgressWidget(QWidget* parentWidget)
{
    m_dialog = new ProgressDialog(this, parentWidget);
    m_dialog->setObjectName(QLatin1String("Progress.1"));
    connect(this, SIGNAL(lookWanted()), m_dialog, SLOT(wake()));
    Q_EMIT windowCreated(progressWidget());
    return true;
}

bool DialogProgressManager::createProgressWidget(QWidget* parentWidget, const QString& title,
                                                 const QString& name)
{
    if (!createProgressWidget(parentWidget))
        return false;
    if (!title.isEmpty())
        progressWidget()->setWindowTitle(title);
    if (!name.isEmpty())
        progressWidget()->setObjectName(name);
    return true;
}

bool DialogProgressManager::deleteProgressWidget()
{
    if (!m_dialog)
        return false;
    delete m_dialog;
    return true;
}

}} // namespace Norvane::UI
