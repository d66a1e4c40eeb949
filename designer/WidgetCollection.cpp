#include <designer/WidgetCollection.h>

#include <designer/FormWidget.h>

namespace Norvane { namespace Designer {

WidgetCollection::WidgetCollection(QObject* parent)
    : QObject(parent)
{
    for (const WidgetEntry& entry : widgetTable())
        m_widgets.append(new FormWidget(entry, this));
}

QList<QDesignerCustomWidgetInterface*> WidgetCollection::customWidgets() const
{
    return m_widgets;
}

}} // namespace Norvane::Designer
