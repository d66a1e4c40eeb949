#pragma once

#include <QCoreApplication>
#include <QLibraryInfo>
#include <QString>

/// What a program says to Qt around making its application object, where Qt generations differ.
namespace Norvane { namespace UI {

/// Widgets are laid out in density-independent pixels and icons are drawn in physical ones. Only Qt 5 has to
/// be told; Qt 6 always does, Qt 4 never.
inline void enableHighDensity()
{
#if QT_VERSION >= QT_VERSION_CHECK(5, 6, 0) && QT_VERSION < QT_VERSION_CHECK(6, 0, 0)
    QCoreApplication::setAttribute(Qt::AA_EnableHighDpiScaling);
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
#endif
}

/// Where translations of Qt's own texts are installed.
inline QString translationsFolder()
{
#if QT_VERSION >= QT_VERSION_CHECK(6, 0, 0)
    return QLibraryInfo::path(QLibraryInfo::TranslationsPath);
#else
    return QLibraryInfo::location(QLibraryInfo::TranslationsPath);
#endif
}

}} // namespace Norvane::UI
