#pragma once

#include <vector>

class QWidget;

namespace Norvane { namespace Pictures {

/// A picture of widgets for the documentation.
struct Sheet {
    const char* name;
    QWidget* (*create)();
};

/// What main() is for a program that draws \a sheets in the light and the dark colours of the host
/// application, to name-light.png and name-dark.png in the folder that its only argument names.
int drawSheets(int argc, char* argv[], const std::vector<Sheet>& sheets);

}} // namespace Norvane::Pictures
