#include <designer/FormWidget.h>

#include <designer/WidgetIcons.h>

#include <QCoreApplication>
#include <QIcon>

namespace Norvane { namespace Designer {

FormWidget::FormWidget(const WidgetEntry& entry, QObject* parent)
    : QObject(parent)
    , m_entry(entry)
{
}

QString FormWidget::name() const
{
    return QLatin1String("Norvane::UI::") + QLatin1String(m_entry.name);
}

QString FormWidget::group() const
{
    return tr("Norvane");
}

QString FormWidget::toolTip() const
{
    return QCoreApplication::translate("WidgetTable", m_entry.toolTip);
}

QString FormWidget::whatsThis() const
{
    return toolTip();
}

QString FormWidget::includeFile() const
{
    return QString::fromLatin1("<%1/%2.h>").arg(QLatin1String(m_entry.folder), QLatin1String(m_entry.name));
}

QIcon FormWidget::icon() const
{
    return widgetIcon(m_entry.drawIcon);
}

bool FormWidget::isContainer() const
{
    return false;
}

QWidget* FormWidget::createWidget(QWidget* parent)
{
    return m_entry.create(parent);
}

QString FormWidget::domXml() const
{
    QString objectName = QLatin1String(m_entry.name);
    objectName[0] = objectName[0].toLower();
    return QString::fromLatin1("<ui language=\"c++\"><widget class=\"%1\" name=\"%2\">%3</widget></ui>")
        .arg(name(), objectName, QLatin1String(m_entry.properties));
}

}} // namespace Norvane::Designer
