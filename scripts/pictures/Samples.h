#pragma once

class QImage;

namespace Norvane { namespace Pictures {

// The sample pictures of the host application. None has lettering, so that no font changes them.

/// Lit windows of a town at night behind discs of light out of focus.
QImage drawCityLights();
/// Hues by lightness, grey steps and a grey ramp.
QImage drawColourChart();
/// Dunes below an evening sky.
QImage drawDunes();
/// Glossy balls on a chequered table.
QImage drawStillLife();
/// A zone plate, wedges of converging lines and gratings, to see what scaling does to fine detail.
QImage drawTestChart();

}} // namespace Norvane::Pictures
