#include "Arrangements.h"

#include <QBuffer>
#include <QXmlStreamWriter>

#include <cmath>

namespace Norvane { namespace Host {

namespace {

const int kSideWidth = 252;
const int kNotesHeight = 150;
const int kStripHeight = 150;
const QSize kFloatingNotes(340, 240);

class ArrangementWriter
{
public:
    ArrangementWriter(const ArrangedPanels& panels, const MainWindowPlace& place)
        : m_buffer(&m_bytes)
        , m_panels(panels)
        , m_place(place)
    {
        m_buffer.open(QIODevice::WriteOnly);
        m_xml.setDevice(&m_buffer);
    }

    QByteArray write(Arrangement arrangement);

private:
    void writeSingle();
    void writeSideBySide();
    void writeReview();
    void writeFloatingNotes();
    void writeViewerGrid();
    void beginWindow(const MainWindowPlace& place);
    void beginSplitter(Qt::Orientation orientation);
    void writePane(const QString& name, const QStringList& pages);
    void writeSplit(int size, bool stretches);
    void writeNumber(const char* name, int value);
    void end() { m_xml.writeEndElement(); }
    int width() const { return m_place.frame.width(); }
    int height() const { return m_place.frame.height(); }

    QByteArray m_bytes;
    QBuffer m_buffer;
    QXmlStreamWriter m_xml;
    const ArrangedPanels& m_panels;
    const MainWindowPlace& m_place;
};

QByteArray ArrangementWriter::write(Arrangement arrangement)
{
    m_xml.writeStartDocument();
    m_xml.writeStartElement(QLatin1String("layout"));
    m_xml.writeAttribute(QLatin1String("version"), QLatin1String("1.0"));
    beginWindow(m_place);
    switch (arrangement) {
    case kSingleArrangement:
        writeSingle();
        break;
    case kSideBySideArrangement:
        writeSideBySide();
        break;
    case kReviewArrangement:
        writeReview();
        break;
    }
    end();
    if (arrangement == kReviewArrangement && !m_panels.notes.isEmpty())
        writeFloatingNotes();
    m_xml.writeEndDocument();
    return m_bytes;
}

void ArrangementWriter::writeSingle()
{
    beginSplitter(Qt::Horizontal);
    writeSplit(kSideWidth, false);
    beginSplitter(Qt::Vertical);
    writeSplit(height() * 2 / 3, true);
    writePane(QLatin1String("pane.pictures"), m_panels.pictures);
    if (!m_panels.notes.isEmpty()) {
        writeSplit(height() / 3, false);
        writePane(QLatin1String("pane.notes"), m_panels.notes);
    }
    end();
    writeSplit(width() - kSideWidth, true);
    writePane(QLatin1String("pane.viewers"), m_panels.viewers);
    end();
}

void ArrangementWriter::writeSideBySide()
{
    QStringList left;
    QStringList right;
    for (int i = 0; i < m_panels.viewers.size(); ++i)
        (i % 2 == 0 ? left : right).append(m_panels.viewers[i]);

    beginSplitter(Qt::Horizontal);
    writeSplit(kSideWidth, false);
    writePane(QLatin1String("pane.pictures"), m_panels.pictures);
    writeSplit(width() - kSideWidth, true);
    beginSplitter(Qt::Vertical);
    writeSplit(height() - kNotesHeight, true);
    beginSplitter(Qt::Horizontal);
    writeSplit(width() / 2, true);
    writePane(QLatin1String("pane.left"), left);
    // One viewer alone gets all the room.
    if (!right.isEmpty()) {
        writeSplit(width() / 2, true);
        writePane(QLatin1String("pane.right"), right);
    }
    end();
    if (!m_panels.notes.isEmpty()) {
        writeSplit(kNotesHeight, false);
        writePane(QLatin1String("pane.notes"), m_panels.notes);
    }
    end();
    end();
}

void ArrangementWriter::writeReview()
{
    beginSplitter(Qt::Vertical);
    writeSplit(height() - kStripHeight, true);
    writeViewerGrid();
    writeSplit(kStripHeight, false);
    writePane(QLatin1String("pane.pictures"), m_panels.pictures);
    end();
}

void ArrangementWriter::writeViewerGrid()
{
    const int count = int(m_panels.viewers.size());
    const int columns = qMax(1, int(std::ceil(std::sqrt(double(count)))));
    const int rows = qMax(1, (count + columns - 1) / columns);
    beginSplitter(Qt::Vertical);
    for (int row = 0; row < rows; ++row) {
        const QStringList viewers = m_panels.viewers.mid(row * columns, columns);
        writeSplit(height() / rows, true);
        beginSplitter(Qt::Horizontal);
        for (const QString& viewer : viewers) {
            writeSplit(width() / int(viewers.size()), true);
            writePane(QLatin1String("pane.") + viewer, QStringList(viewer));
        }
        end();
    }
    end();
}

void ArrangementWriter::writeFloatingNotes()
{
    MainWindowPlace place;
    place.screen = m_place.screen;
    place.frame = QRect(QPoint(0, 0), kFloatingNotes);
    place.frame.moveBottomRight(m_place.frame.bottomRight() - QPoint(24, 24));
    beginWindow(place);
    beginSplitter(Qt::Vertical);
    writeSplit(kFloatingNotes.height(), false);
    writePane(QLatin1String("pane.notes"), m_panels.notes);
    end();
    end();
}

void ArrangementWriter::beginWindow(const MainWindowPlace& place)
{
    m_xml.writeStartElement(QLatin1String("window"));
    writeNumber("x", place.frame.x());
    writeNumber("y", place.frame.y());
    writeNumber("w", place.frame.width());
    writeNumber("h", place.frame.height());
    if (place.maximized)
        writeNumber("maximized", 1);
    if (place.fullscreen)
        writeNumber("fullscreen", 1);
    writeNumber("screen", place.screen);
}

void ArrangementWriter::beginSplitter(Qt::Orientation orientation)
{
    m_xml.writeStartElement(QLatin1String("splitter"));
    writeNumber("orientation", orientation);
}

void ArrangementWriter::writePane(const QString& name, const QStringList& pages)
{
    m_xml.writeStartElement(QLatin1String("dock"));
    m_xml.writeAttribute(QLatin1String("id"), name);
    const bool holdsCurrent = pages.contains(m_panels.currentViewer);
    if (!pages.isEmpty()) {
        m_xml.writeAttribute(QLatin1String("activePageId"),
                             holdsCurrent ? m_panels.currentViewer : pages.first());
    }
    if (holdsCurrent)
        m_xml.writeAttribute(QLatin1String("focus"), QLatin1String("true"));
    for (const QString& page : pages) {
        m_xml.writeEmptyElement(QLatin1String("page"));
        m_xml.writeAttribute(QLatin1String("id"), page);
    }
    end();
}

void ArrangementWriter::writeSplit(int size, bool stretches)
{
    m_xml.writeEmptyElement(QLatin1String("split"));
    writeNumber("size", size);
    if (stretches)
        writeNumber("stretch", 1);
}

void ArrangementWriter::writeNumber(const char* name, int value)
{
    m_xml.writeAttribute(QLatin1String(name), QString::number(value));
}

} // namespace

QByteArray arrangementDocument(Arrangement arrangement, const ArrangedPanels& panels,
                               const MainWindowPlace& place)
{
    return ArrangementWriter(panels, place).write(arrangement);
}

}} // namespace Norvane::Host
