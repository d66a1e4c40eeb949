#pragma once

namespace Norvane { namespace UI {

/// What the colour controls share. The numbers are fixed: hosts store them.
namespace ColorUIConstants {

/// The component of a colour that a ColorSlider edits.
enum Component {
    kRed = 0,
    kGreen = 1,
    kBlue = 2,
    kHue = 3,
    kSaturation = 4,
    kValue = 5,
    kTemperature = 6,
    kMagentaGreen = 7,
    kIntensity = 8,
    kAlpha = 9
};

/// Object names of the views. ColorControl gives the first to its wheels; the others are for hosts' own
/// views.
const char* const kEmbeddedWheelName = "ColorWheelEmbedded";
const char* const kSliderName = "CSlider";
const char* const kPanelName = "RBGAPanel";

} // namespace ColorUIConstants

}} // namespace Norvane::UI
