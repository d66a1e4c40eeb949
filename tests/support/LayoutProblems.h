#pragma once

#include <ui/docking/LayoutInspector.h>

#include <QBuffer>
#include <QStringList>

namespace NorvaneTest {

inline Norvane::UI::LayoutInspector inspect(QByteArray document)
{
    QBuffer buffer(&document);
    buffer.open(QIODevice::ReadOnly);
    return Norvane::UI::LayoutInspector(&buffer);
}

/// "LINE: ELEMENT: REASON" for each problem.
inline QStringList problemsOf(const Norvane::UI::LayoutInspector& inspector)
{
    QStringList lines;
    for (const Norvane::UI::LayoutInspector::Problem& problem : inspector.problems()) {
        lines.append(QString::fromLatin1("%1: %2: %3")
                         .arg(QString::number(problem.line), problem.element, problem.reason));
    }
    return lines;
}

} // namespace NorvaneTest
