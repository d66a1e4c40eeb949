#pragma once

#include <QRect>
#include <QSize>

namespace Norvane { namespace UI {

/// The buttons of a row as they want to be; an empty size stands for no button.
struct RowParts {
    QSize cancelButton;
    QSize pauseButton;
    QSize progressBar;
};

/// Where the parts of a row lie, left to right.
struct RowGeometry {
    QRect cancelButton;
    QRect pauseButton;
    QRect progressBar;
};

/// For a row of \a width.
RowGeometry layOutRow(int width, const RowParts& parts);

/// Where a row's three texts go: beside the parts of \a sizes, which here are those that they have. A
/// sub-task is indented.
QRect rowTextArea(const QRect& row, const RowParts& sizes, bool isSubTask);

}} // namespace Norvane::UI
