#include <scripts/pictures/Sheets.h>

#include <examples/host/Palettes.h>
#include <ui/toolkit/Application.h>
#include <ui/toolkit/Painting.h>

#include <QApplication>
#include <QScopedPointer>

#include <cstdio>

namespace Norvane { namespace Pictures {

namespace {

bool drawSheet(const Sheet& sheet, const QString& path)
{
    const QScopedPointer<QWidget> widget(sheet.create());
    const bool isSaved = UI::grabPixmap(widget.data()).toImage().save(path, "PNG", 0);
    std::fprintf(isSaved ? stdout : stderr, isSaved ? "%s\n" : "cannot write %s\n", qPrintable(path));
    return isSaved;
}

} // namespace

int drawSheets(int argc, char* argv[], const std::vector<Sheet>& sheets)
{
    UI::enableHighDensity();
    QApplication application(argc, argv);
    if (argc != 2) {
        std::fprintf(stderr, "usage: %s FOLDER\n", argv[0]);
        return 2;
    }
    QApplication::setStyle(QLatin1String("Fusion"));
    const QString path = QString::fromLocal8Bit(argv[1]) + QLatin1String("/%1-%2.png");
    bool areSaved = true;
    for (const bool isDark : {false, true}) {
        Host::Palettes::apply(isDark);
        const QString palette = QLatin1String(isDark ? "dark" : "light");
        for (const Sheet& sheet : sheets)
            areSaved &= drawSheet(sheet, path.arg(QLatin1String(sheet.name), palette));
    }
    return areSaved ? 0 : 1;
}

}} // namespace Norvane::Pictures
