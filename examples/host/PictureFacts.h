#pragma once

#include <QImage>
#include <QList>
#include <QPair>
#include <QString>

/// What an inspector tells about a picture: names and values, for people.
namespace Norvane { namespace Host {

using Facts = QList<QPair<QString, QString>>;

Facts fileFacts(const QString& path);
Facts pictureFacts(const QImage& picture);
/// The mean and the extremes of the colours, of up to 256 x 256 pixels all over the picture.
Facts colourFacts(const QImage& picture);
/// How much of the picture is transparent, of the same pixels.
Facts transparencyFacts(const QImage& picture);

}} // namespace Norvane::Host
