#pragma once

#include "PictureGrade.h"

#include <QPointF>
#include <QString>

namespace Norvane { namespace Host {

/// What a viewer writes into the layout: "fit|PATH" or "ZOOM X Y|PATH" with the zoom and the picture point in
/// the middle. A grade follows them: "fit;EXPOSURE RED GREEN BLUE|PATH". The path comes last because it may
/// hold any character.
struct ViewerState {
    bool fitted = true;
    qreal zoom = 1;
    QPointF center;
    PictureGrade grade;
    QString path;

    QString toString() const;
    /// Whatever cannot be read is left at its default; text without "|" is a path.
    static ViewerState fromString(const QString& text);
};

}} // namespace Norvane::Host
