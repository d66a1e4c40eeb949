#pragma once

#include <colour/Color4.h>
#include <ui/colour/ColorControl.h>
#include <ui/colour/ColorControlWidget.h>

#include <QPointer>
#include <QVector>

namespace Norvane { namespace UI {

struct ColorControl::Private {
    /// Calls \a tell with every view. False if the control died of it: a view may do anything when it is
    /// told, such as deleting other views.
    template <typename Tell>
    bool tellViews(ColorControl* control, Tell tell) const
    {
        const QPointer<ColorControl> alive(control);
        const QVector<ColorControlWidget*> views = widgets;
        for (ColorControlWidget* const view : views) {
            if (!widgets.contains(view))
                continue;
            tell(view);
            if (!alive)
                return false;
        }
        return true;
    }

    IColorControlClient* client;
    QVector<ColorControlWidget*> widgets;
    Colour::Color4 color;
    Colour::Color4 defaultColor;
    double rangeMin = 0;
    double rangeMax = 4;
    bool alphaEnabled = true;
};

}} // namespace Norvane::UI
