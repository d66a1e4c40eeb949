#include <ui/progress/RowGeometry.h>

namespace Norvane { namespace UI {

namespace {

const int kIndent = 24;
/// What a row without buttons leaves free for them, so that all progress bars stand below each other.
const int kButtonWidth = 75;

} // namespace

RowGeometry layOutRow(int width, const RowParts& parts)
{
    RowGeometry geometry;
    int top = 6;
    if (!parts.cancelButton.isEmpty()) {
        geometry.cancelButton =
            QRect(QPoint(width - parts.cancelButton.width() - 5, top), parts.cancelButton);
        top = parts.cancelButton.height() + 11;
    }
    if (!parts.pauseButton.isEmpty())
        geometry.pauseButton = QRect(QPoint(width - parts.pauseButton.width() - 5, top), parts.pauseButton);

    int buttons = qMax(geometry.cancelButton.width(), geometry.pauseButton.width());
    if (buttons == 0)
        buttons = kButtonWidth;
    geometry.progressBar =
        QRect(QPoint(width - parts.progressBar.width() - buttons - 20, 6), parts.progressBar);
    return geometry;
}

QRect rowTextArea(const QRect& row, const RowParts& sizes, bool isSubTask)
{
    int buttons = kButtonWidth;
    if (!sizes.cancelButton.isEmpty())
        buttons = sizes.cancelButton.width() - 1;
    else if (!sizes.pauseButton.isEmpty())
        buttons = sizes.pauseButton.width() - 1;
    return row.adjusted((isSubTask ? kIndent : 0) + 8, 6, -buttons - sizes.progressBar.width() - 18, -7);
}

}} // namespace Norvane::UI
