#include <ui/toolkit/Accessibility.h>

#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)

#include <QAccessible>
#include <QAccessibleWidget>
#include <QWidget>

namespace Norvane { namespace UI {

namespace {

QAccessibleInterface* createDockingInterface(const QString& className, QObject* object)
{
    QWidget* const widget = qobject_cast<QWidget*>(object);
    if (!widget)
        return nullptr;
    if (className == QLatin1String("Norvane::UI::Dock"))
        return new QAccessibleWidget(widget, QAccessible::Pane);
    if (className == QLatin1String("Norvane::UI::DockSplitter"))
        return new QAccessibleWidget(widget, QAccessible::Splitter);
    return nullptr;
}

} // namespace

void installAccessibleRoles()
{
    static const bool installed = (QAccessible::installFactory(createDockingInterface), true);
    Q_UNUSED(installed);
}

}} // namespace Norvane::UI

#else

namespace Norvane { namespace UI {

void installAccessibleRoles() {}

}} // namespace Norvane::UI

#endif
