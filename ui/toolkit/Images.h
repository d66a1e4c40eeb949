#pragma once

#include <QImageReader>

/// Reading pictures, where Qt generations differ.
namespace Norvane { namespace UI {

/// Makes \a reader turn a picture the way its camera was held, where the toolkit can.
inline void setAutoTransform(QImageReader* reader)
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 5, 0)
    reader->setAutoTransform(true);
#else
    Q_UNUSED(reader);
#endif
}

}} // namespace Norvane::UI
