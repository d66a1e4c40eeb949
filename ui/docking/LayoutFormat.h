#pragma once

#include <QString>
#include <QXmlStreamReader>

/// What the writer, the reader and the inspector of layout documents have in common.
namespace Norvane { namespace UI { namespace LayoutFormat {

const char kVersion[] = "1.0";

/// Splitters may be nested this deep; reading goes one call deeper for each.
const int kMaxSplitterDepth = 128;

/// Whether the start element at which \a xml stands opens a layout of the supported version.
inline bool isLayout(const QXmlStreamReader& xml)
{
    return xml.name() == QLatin1String("layout") &&
           xml.attributes().value(QLatin1String("version")) == QLatin1String(kVersion);
}

}}} // namespace Norvane::UI::LayoutFormat
