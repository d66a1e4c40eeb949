#pragma once

#include <designer/WidgetTable.h>

#include <QtUiPlugin/QDesignerCustomWidgetInterface>

namespace Norvane { namespace Designer {

/// What Qt Designer and QUiLoader ask about a widget class, answered from the table of widgets.
class FormWidget : public QObject, public QDesignerCustomWidgetInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetInterface)
public:
    /// \a entry lives as long as this.
    FormWidget(const WidgetEntry& entry, QObject* parent);

    QString name() const override;
    QString group() const override;
    QString toolTip() const override;
    QString whatsThis() const override;
    QString includeFile() const override;
    QIcon icon() const override;
    bool isContainer() const override;
    QWidget* createWidget(QWidget* parent) override;
    QString domXml() const override;

private:
    const WidgetEntry& m_entry;
};

}} // namespace Norvane::Designer
