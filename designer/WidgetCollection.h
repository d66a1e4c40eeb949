#pragma once

#include <QtUiPlugin/QDesignerCustomWidgetCollectionInterface>

namespace Norvane { namespace Designer {

/// The plugin: all widgets of the table.
class WidgetCollection : public QObject, public QDesignerCustomWidgetCollectionInterface
{
    Q_OBJECT
    Q_INTERFACES(QDesignerCustomWidgetCollectionInterface)
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QDesignerCustomWidgetCollectionInterface")
public:
    explicit WidgetCollection(QObject* parent = nullptr);

    QList<QDesignerCustomWidgetInterface*> customWidgets() const override;

private:
    /// Children of this.
    QList<QDesignerCustomWidgetInterface*> m_widgets;
};

}} // namespace Norvane::Designer
