#pragma once

#include <NorvaneCoreExport.h>

#include <QList>
#include <QString>
#include <QStringList>

class QIODevice;

namespace Norvane { namespace UI {

/// Reads a layout document and tells everything that is wrong with it, without building or changing anything:
/// a host looks here before it lets DockMainWindow::restoreLayout() throw its arrangement away. GUI thread or
/// any other: an inspector shares nothing.
class NORVANE_CORE_EXPORT LayoutInspector
{
public:
    /// One thing that is wrong, and where.
    struct Problem {
        /// Where the problem is in the document, both from 1: the last character of the element's start tag,
        /// or the one at which the text ceases to be XML.
        qint64 line;
        qint64 column;
        /// The element that has the problem; empty where the text is no XML.
        QString element;
        /// A sentence for people.
        QString reason;
    };

    /// Inspects what \a device, open for reading, holds from its position on. A random-access device is put
    /// back to that position. A device that is null or not open for reading is a problem as well.
    explicit LayoutInspector(QIODevice* device);

    /// Whether DockMainWindow::restoreLayout() would read the document to its end without an error. Lesser
    /// problems (a number that is none, a page named twice) do not prevent that.
    bool isRestorable() const;

    /// In document order. After an XML error, or in a document of another format or version, the rest is not
    /// looked at.
    const QList<Problem>& problems() const;

    /// The ids of all pages, in document order, with duplicates.
    const QStringList& pageIds() const;

private:
    bool m_restorable = false;
    QList<Problem> m_problems;
    QStringList m_pageIds;
};

}} // namespace Norvane::UI
