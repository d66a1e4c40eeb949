#pragma once

#include <colour/Color4.h>
#include <ui/colour/ColorControl.h>
#include <ui/colour/ColorSlider.h>
#include <ui/colour/ColorWheel.h>
#include <ui/colour/IColorControlClient.h>

#include <functional>

namespace NorvaneTest {

/// Counts what it is told, and may react to it.
class Client : public Norvane::UI::IColorControlClient
{
public:
    void colorChanged(float red, float green, float blue, float alpha) override
    {
        ++changes;
        color = Norvane::Colour::Color4(red, green, blue, alpha);
        if (onChange)
            onChange();
    }
    void dragStarted() override
    {
        ++drags;
        if (onDrag)
            onDrag();
    }

    int changes = 0;
    int drags = 0;
    Norvane::Colour::Color4 color;
    std::function<void()> onChange;
    std::function<void()> onDrag;
};

} // namespace NorvaneTest
