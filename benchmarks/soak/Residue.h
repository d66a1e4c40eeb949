#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>

namespace Norvane { namespace Benchmarks {

/// What a program holds at a moment.
struct Residue {
    long heap = 0;
    int files = 0;
    int threads = 0;
    int widgets = 0;
    /// How many widgets there are of each class.
    QMap<QByteArray, int> classes;

    static Residue now();

    /// "heap 12.34 MB, 17 files, 5 threads, 243 widgets".
    QString toString() const;
    /// The classes with more widgets than \a before, as "+2 QLabel, +1 QMenu"; empty for none.
    QString moreWidgetsThan(const Residue& before) const;
};

}} // namespace Norvane::Benchmarks
