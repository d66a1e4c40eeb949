#pragma once

#include <cmath>

namespace Norvane { namespace UI {

/// Whether none of \a numbers is infinite or not a number.
template <typename... Number>
bool areFinite(Number... numbers)
{
    return (std::isfinite(numbers) && ...);
}

}} // namespace Norvane::UI
