#pragma once

#include <QPalette>

/// The two looks of the program.
namespace Norvane { namespace Host { namespace Palettes {

QPalette light();
QPalette dark();

/// Gives the whole application one of them.
void apply(bool isDark);

}}} // namespace Norvane::Host::Palettes
