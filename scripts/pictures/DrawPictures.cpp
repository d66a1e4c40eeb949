// Draws the pictures that are kept in the tree.
//
//   draw_pictures ROOT     writes ROOT/ui/qrc/images/*.png and ROOT/examples/host/samples/*.png

#include <scripts/pictures/Icons.h>
#include <scripts/pictures/Samples.h>

#include <QImage>
#include <QPainter>
#include <QString>
#include <QStringList>

#include <cstdio>

using namespace Norvane::Pictures;

namespace {

const int kIconSize = 16;

struct Icon {
    const char* name;
    void (*draw)(QPainter& painter);
};

const Icon kIcons[] = {
    {"HSplit", drawHSplit},
    {"PanelMenu", drawPanelMenu},
    {"SearchFieldCancel", drawSearchFieldCancel},
    {"VSplit", drawVSplit},
};

struct Sample {
    const char* name;
    QImage (*draw)();
};

const Sample kSamples[] = {
    {"CityLights", drawCityLights}, {"ColourChart", drawColourChart}, {"Dunes", drawDunes},
    {"StillLife", drawStillLife},   {"TestChart", drawTestChart},
};

QImage drawIcon(const Icon& icon, int scale)
{
    QImage image(kIconSize * scale, kIconSize * scale, QImage::Format_ARGB32_Premultiplied);
    image.fill(0);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.scale(scale, scale);
    icon.draw(painter);
    return image;
}

bool save(const QImage& image, const QString& path)
{
    // Quality 0 is the smallest file: a PNG loses nothing by it.
    const bool saved = image.save(path, "PNG", 0);
    std::fprintf(saved ? stdout : stderr, saved ? "%s\n" : "cannot write %s\n", qPrintable(path));
    return saved;
}

bool savePictures(const QString& root)
{
    bool saved = true;
    const QString icons = root + QLatin1String("/ui/qrc/images/%1%2.png");
    for (const Icon& icon : kIcons) {
        const QString name = QLatin1String(icon.name);
        saved &= save(drawIcon(icon, 1), icons.arg(name, QString()));
        saved &= save(drawIcon(icon, 2), icons.arg(name, QLatin1String("@2x")));
    }
    const QString samples = root + QLatin1String("/examples/host/samples/%1.png");
    for (const Sample& sample : kSamples)
        saved &= save(sample.draw(), samples.arg(QLatin1String(sample.name)));
    return saved;
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc != 2) {
        std::fprintf(stderr, "usage: draw_pictures ROOT\n");
        return 2;
    }
    return savePictures(QString::fromLocal8Bit(argv[1])) ? 0 : 1;
}
