#include "PictureFacts.h"

#include "Pictures.h"

#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QLocale>

namespace Norvane { namespace Host {

namespace {

const int kSamples = 256;

struct Texts {
    Q_DECLARE_TR_FUNCTIONS(PictureFacts)
};

QString colourText(int red, int green, int blue)
{
    return Texts::tr("R %1  G %2  B %3").arg(red).arg(green).arg(blue);
}

template <typename Visit>
void visitPixels(const QImage& picture, Visit visit)
{
    const int rows = qMin(kSamples, picture.height());
    const int columns = qMin(kSamples, picture.width());
    for (int row = 0; row < rows; ++row) {
        for (int column = 0; column < columns; ++column)
            visit(picture.pixel(column * picture.width() / columns, row * picture.height() / rows));
    }
}

} // namespace

Facts fileFacts(const QString& path)
{
    const QFileInfo file(Pictures::filePath(path));
    Facts facts;
    facts << qMakePair(Texts::tr("Name"), file.fileName())
          << qMakePair(Texts::tr("Folder"), QDir::toNativeSeparators(file.absolutePath()))
          << qMakePair(Texts::tr("Size"), Texts::tr("%1 kB").arg((file.size() + 999) / 1000));
    if (file.lastModified().isValid())
        facts << qMakePair(Texts::tr("Changed"),
                           QLocale().toString(file.lastModified(), QLocale::ShortFormat));
    return facts;
}

Facts pictureFacts(const QImage& picture)
{
    return Facts() << qMakePair(Texts::tr("Size"),
                                Texts::tr("%1 x %2").arg(picture.width()).arg(picture.height()))
                   << qMakePair(Texts::tr("Depth"), Texts::tr("%1 bits").arg(picture.depth()));
}

Facts colourFacts(const QImage& picture)
{
    int count = 0;
    double red = 0, green = 0, blue = 0;
    QRgb darkest = qRgb(255, 255, 255);
    QRgb lightest = qRgb(0, 0, 0);
    visitPixels(picture, [&](QRgb pixel) {
        ++count;
        red += qRed(pixel);
        green += qGreen(pixel);
        blue += qBlue(pixel);
        if (qGray(pixel) <= qGray(darkest))
            darkest = pixel;
        if (qGray(pixel) >= qGray(lightest))
            lightest = pixel;
    });
    if (count == 0)
        return Facts();
    const auto textOf = [](QRgb pixel) { return colourText(qRed(pixel), qGreen(pixel), qBlue(pixel)); };
    return Facts() << qMakePair(Texts::tr("Mean"),
                                colourText(qRound(red / count), qRound(green / count), qRound(blue / count)))
                   << qMakePair(Texts::tr("Darkest"), textOf(darkest))
                   << qMakePair(Texts::tr("Lightest"), textOf(lightest));
}

Facts transparencyFacts(const QImage& picture)
{
    int count = 0;
    int transparent = 0;
    visitPixels(picture, [&](QRgb pixel) {
        ++count;
        transparent += qAlpha(pixel) < 255;
    });
    if (transparent == 0)
        return Facts();
    return Facts() << qMakePair(Texts::tr("Transparent"),
                                Texts::tr("%1%").arg(100.0 * transparent / count, 0, 'f', 1));
}

}} // namespace Norvane::Host
