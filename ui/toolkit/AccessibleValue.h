#pragma once

#include <QString>

class QWidget;

namespace Norvane { namespace UI {

/// What a widget that paints its value tells assistive technology about it, and takes from it.
class AccessibleValue
{
public:
    virtual ~AccessibleValue();

    virtual double value() const = 0;
    virtual double minimum() const = 0;
    virtual double maximum() const = 0;
    virtual double step() const = 0;
    /// The user's wish, to be reported as any other; never called with a number that is not finite.
    virtual void setValue(double value) = 0;
    /// The value as a person reads it.
    virtual QString text() const = 0;
};

/// Makes what \a widget says of itself. The toolkit keeps it and deletes it when the widget is gone, so that
/// its destructor must not use the widget.
typedef AccessibleValue* (*CreateAccessibleValue)(QWidget* widget);

/// Tells the toolkit's accessibility layer that widgets of the class \a className, and of those derived from
/// it, are sliders. Call it before the first such widget is used, as often as wanted: calls after the first
/// do nothing. Where the toolkit offers no such hook (Qt 4), the widgets keep their default roles.
void installAccessibleValue(const char* className, CreateAccessibleValue create);

/// Tells assistive technology that the value of \a widget has become \a value.
void reportAccessibleValue(QWidget* widget, double value);

}} // namespace Norvane::UI
