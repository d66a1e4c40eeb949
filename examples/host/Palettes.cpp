#include "Palettes.h"

#include <QApplication>
#include <QColor>
#include <QToolTip>

namespace Norvane { namespace Host { namespace Palettes {

namespace {

struct Colours {
    QRgb window, base, alternateBase, button, text, disabledText, brightText;
    QRgb highlight, highlightedText, disabledHighlight, link, visitedLink;
    QRgb light, midlight, mid, dark, shadow, toolTip;
};

// Disabled text keeps a contrast of about 3:1 to what is behind it, other text more than 7:1.
const Colours kLight = {0xffefeff1, 0xffffffff, 0xfff6f6f8, 0xffefeff1, 0xff1c1d21, 0xff85878e,
                        0xffffffff, 0xff2f6fd0, 0xffffffff, 0xffc3c6cd, 0xff1f5fbf, 0xff6b4a9e,
                        0xffffffff, 0xfff7f7f8, 0xffc2c4c9, 0xffa0a3aa, 0xff5f6268, 0xfffdfdf2};
const Colours kDark = {0xff2b2d31, 0xff1f2124, 0xff26282c, 0xff36383d, 0xffe4e5e8, 0xff85888f,
                       0xffffffff, 0xff3d7de0, 0xffffffff, 0xff4a4d54, 0xff7fb0ff, 0xffb79be8,
                       0xff53565d, 0xff43464c, 0xff3a3c41, 0xff1a1b1e, 0xff0e0f11, 0xff3f4248};

QPalette build(const Colours& colours)
{
    QPalette palette;
    palette.setColor(QPalette::Window, QColor(colours.window));
    palette.setColor(QPalette::WindowText, QColor(colours.text));
    palette.setColor(QPalette::Base, QColor(colours.base));
    palette.setColor(QPalette::AlternateBase, QColor(colours.alternateBase));
    palette.setColor(QPalette::Text, QColor(colours.text));
    palette.setColor(QPalette::Button, QColor(colours.button));
    palette.setColor(QPalette::ButtonText, QColor(colours.text));
    palette.setColor(QPalette::BrightText, QColor(colours.brightText));
    palette.setColor(QPalette::Highlight, QColor(colours.highlight));
    palette.setColor(QPalette::HighlightedText, QColor(colours.highlightedText));
    palette.setColor(QPalette::Link, QColor(colours.link));
    palette.setColor(QPalette::LinkVisited, QColor(colours.visitedLink));
    palette.setColor(QPalette::Light, QColor(colours.light));
    palette.setColor(QPalette::Midlight, QColor(colours.midlight));
    palette.setColor(QPalette::Mid, QColor(colours.mid));
    palette.setColor(QPalette::Dark, QColor(colours.dark));
    palette.setColor(QPalette::Shadow, QColor(colours.shadow));
    palette.setColor(QPalette::ToolTipBase, QColor(colours.toolTip));
    palette.setColor(QPalette::ToolTipText, QColor(colours.text));

    const QColor disabledText(colours.disabledText);
    palette.setColor(QPalette::Disabled, QPalette::WindowText, disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Text, disabledText);
    palette.setColor(QPalette::Disabled, QPalette::ButtonText, disabledText);
    palette.setColor(QPalette::Disabled, QPalette::HighlightedText, disabledText);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(colours.disabledHighlight));
    return palette;
}

} // namespace

QPalette light()
{
    return build(kLight);
}

QPalette dark()
{
    return build(kDark);
}

void apply(bool isDark)
{
    const QPalette palette = isDark ? dark() : light();
    QApplication::setPalette(palette);
    QToolTip::setPalette(palette);
}

}}} // namespace Norvane::Host::Palettes
