#pragma once

class QIcon;
class QPainter;

namespace Norvane { namespace Designer {

/// An icon of 24 by 24 for the screens' densities, drawn by \a draw in those units.
QIcon widgetIcon(void (*draw)(QPainter& painter));

void drawColorWheel(QPainter& painter);
void drawDisclosureButton(QPainter& painter);
void drawDropAcceptingListWidget(QPainter& painter);
void drawFilenameField(QPainter& painter);
void drawFlatButton(QPainter& painter);
void drawLogSlider(QPainter& painter);
void drawSearchField(QPainter& painter);
void drawSlider(QPainter& painter);

}} // namespace Norvane::Designer
