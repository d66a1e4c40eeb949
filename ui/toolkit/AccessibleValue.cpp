#include <ui/toolkit/AccessibleValue.h>

#include <QtGlobal>

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)

#include <QAccessible>
#include <QAccessibleWidget>
#include <QHash>
#include <QWidget>

#include <cmath>
#include <memory>

#endif

namespace Norvane { namespace UI {

AccessibleValue::~AccessibleValue() = default;

#if QT_VERSION >= QT_VERSION_CHECK(5, 0, 0)

namespace {

class ValueInterface : public QAccessibleWidget, public QAccessibleValueInterface
{
public:
    ValueInterface(QWidget* widget, AccessibleValue* value)
        : QAccessibleWidget(widget, QAccessible::Slider)
        , m_value(value)
    {
    }

    void* interface_cast(QAccessible::InterfaceType type) override
    {
        if (type == QAccessible::ValueInterface)
            return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }

    QString text(QAccessible::Text kind) const override
    {
        return kind == QAccessible::Value ? m_value->text() : QAccessibleWidget::text(kind);
    }

    QVariant currentValue() const override { return m_value->value(); }
    QVariant minimumValue() const override { return m_value->minimum(); }
    QVariant maximumValue() const override { return m_value->maximum(); }
    QVariant minimumStepSize() const override { return m_value->step(); }

    void setCurrentValue(const QVariant& value) override
    {
        bool isNumber = false;
        const double number = value.toDouble(&isNumber);
        if (isNumber && std::isfinite(number) && widget()->isEnabled())
            m_value->setValue(number);
    }

private:
    const std::unique_ptr<AccessibleValue> m_value;
};

QHash<QString, CreateAccessibleValue>& creators()
{
    static QHash<QString, CreateAccessibleValue> all;
    return all;
}

// Asked for the class of an object and then for those that it derives from.
QAccessibleInterface* createValueInterface(const QString& className, QObject* object)
{
    const CreateAccessibleValue create = creators().value(className);
    QWidget* const widget = qobject_cast<QWidget*>(object);
    return create && widget ? new ValueInterface(widget, create(widget)) : nullptr;
}

} // namespace

void installAccessibleValue(const char* className, CreateAccessibleValue create)
{
    static const bool installed = (QAccessible::installFactory(createValueInterface), true);
    Q_UNUSED(installed);
    creators().insert(QString::fromLatin1(className), create);
}

void reportAccessibleValue(QWidget* widget, double value)
{
    QAccessibleValueChangeEvent event(widget, value);
    QAccessible::updateAccessibility(&event);
}

#else

void installAccessibleValue(const char*, CreateAccessibleValue) {}

void reportAccessibleValue(QWidget*, double) {}

#endif

}} // namespace Norvane::UI
