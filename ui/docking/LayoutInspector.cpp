#include <ui/docking/LayoutInspector.h>

#include <ui/docking/LayoutFormat.h>
#include <ui/docking/LayoutRules.h>

#include <QCoreApplication>
#include <QIODevice>
#include <QSet>
#include <QXmlStreamReader>

#include <algorithm>
#include <utility>
#include <vector>

namespace Norvane { namespace UI {

namespace {

using namespace LayoutRules;

struct OpenElement {
    ElementKind kind = kDocument;
    LayoutInspector::Problem place = {1, 1, QString(), QString()};
    /// The children that an arrangement is made of: windows, splitters, panes, pages.
    int parts = 0;
    int splits = 0;
    QString activePageId;
    /// Until the page comes.
    bool missesActivePage = false;
};

bool standsBefore(const LayoutInspector::Problem& left, const LayoutInspector::Problem& right)
{
    return std::make_pair(left.line, left.column) < std::make_pair(right.line, right.column);
}

/// One walk through a document. What is open is kept in a list, not on the call stack, so that no document is
/// too deep for it.
class Inspection
{
    Q_DECLARE_TR_FUNCTIONS(LayoutInspector)
public:
    explicit Inspection(QIODevice* device);
    void run();

    bool restorable = true;
    QList<LayoutInspector::Problem> problems;
    QStringList pageIds;

private:
    void startElement();
    void endElement();
    ElementKind kindOfElement() const;
    void placeInParent(ElementKind kind);
    void checkNumber(const NumberRule& rule);
    void checkId(ElementKind kind);
    void openElement(ElementKind kind);
    void report(const QString& reason);
    void report(LayoutInspector::Problem problem, const QString& reason);
    LayoutInspector::Problem place() const;

    QXmlStreamReader m_reader;
    std::vector<OpenElement> m_open;
    int m_splitterDepth = 0;
    QSet<QString> m_knownPageIds;
};

Inspection::Inspection(QIODevice* device)
    : m_reader(device)
    , m_open(1)
{
}

void Inspection::run()
{
    while (!m_reader.atEnd() && !m_reader.hasError()) {
        const QXmlStreamReader::TokenType token = m_reader.readNext();
        if (token == QXmlStreamReader::StartElement)
            startElement();
        else if (token == QXmlStreamReader::EndElement)
            endElement();
    }
    // Some problems of an element come to light at its end only.
    std::stable_sort(problems.begin(), problems.end(), standsBefore);
    if (m_reader.hasError()) {
        restorable = false;
        // An error of our own has been reported together with its element.
        if (m_reader.error() != QXmlStreamReader::CustomError)
            report(m_reader.errorString());
    }
}

void Inspection::startElement()
{
    const ElementKind kind = kindOfElement();
    if (m_open.back().kind == kDocument && !LayoutFormat::isLayout(m_reader)) {
        report(tr("The file is not a Norvane panel layout version 1.0 file."));
        m_reader.raiseError();
    } else if (kind == kUnknown) {
        // What is inside an unknown element is skipped with it.
        if (m_open.back().kind != kUnknown)
            report(tr("The element is not known in this place and is skipped."));
        openElement(kUnknown);
    } else if (kind == kSplitter && m_splitterDepth == LayoutFormat::kMaxSplitterDepth) {
        placeInParent(kind);
        report(tr("The layout is nested too deeply."));
        restorable = false;
        openElement(kUnknown);
    } else {
        placeInParent(kind);
        for (const NumberRule& rule : kNumberRules) {
            if (rule.kind == kind)
                checkNumber(rule);
        }
        if (kind == kDock || kind == kPage)
            checkId(kind);
        openElement(kind);
    }
}

void Inspection::endElement()
{
    const OpenElement element = m_open.back();
    m_open.pop_back();
    if (element.kind == kLayout && element.parts == 0)
        report(element.place, tr("The layout has no window."));
    if (element.missesActivePage)
        report(element.place,
               tr("The active page \"%1\" is none of the pane's pages.").arg(element.activePageId));
    if (element.kind == kSplitter) {
        --m_splitterDepth;
        if (element.splits != element.parts) {
            report(element.place, tr("The splitter has %1 \"split\" elements for %2 children.")
                                      .arg(element.splits)
                                      .arg(element.parts));
        }
    }
}

ElementKind Inspection::kindOfElement() const
{
    for (const Nesting& nesting : kNestings) {
        if (nesting.parent == m_open.back().kind && m_reader.name() == QLatin1String(nesting.name))
            return nesting.kind;
    }
    return kUnknown;
}

void Inspection::placeInParent(ElementKind kind)
{
    OpenElement& parent = m_open.back();
    if (parent.kind == kLayout && kind == kDock) {
        report(tr("The pane belongs to no window."));
        return;
    }
    if (kind == kSplit)
        ++parent.splits;
    else
        ++parent.parts;
    if (parent.kind == kWindow && parent.parts > 1)
        report(tr("The window has another splitter already."));
}

void Inspection::checkNumber(const NumberRule& rule)
{
    const QLatin1String name(rule.attribute);
    if (!m_reader.attributes().hasAttribute(name)) {
        if (rule.required)
            report(tr("The attribute \"%1\" is missing.").arg(name));
        return;
    }
    bool isNumber = false;
    const int number = m_reader.attributes().value(name).toString().toInt(&isNumber);
    if (!isNumber)
        report(tr("The attribute \"%1\" is not a whole number.").arg(name));
    else if (rule.maximum != kHighest && (number < rule.minimum || number > rule.maximum))
        report(tr("The attribute \"%1\" is not between %2 and %3.")
                   .arg(name)
                   .arg(rule.minimum)
                   .arg(rule.maximum));
    else if (number < rule.minimum)
        report(tr("The attribute \"%1\" is less than %2.").arg(name).arg(rule.minimum));
}

void Inspection::checkId(ElementKind kind)
{
    const QLatin1String name("id");
    if (!m_reader.attributes().hasAttribute(name)) {
        report(tr("The attribute \"%1\" is missing.").arg(name));
        return;
    }
    if (kind != kPage)
        return;
    const QString id = m_reader.attributes().value(name).toString();
    if (m_knownPageIds.contains(id))
        report(tr("There is another page \"%1\".").arg(id));
    m_knownPageIds.insert(id);
    pageIds.append(id);
    OpenElement& pane = m_open.back();
    if (pane.activePageId == id)
        pane.missesActivePage = false;
}

void Inspection::openElement(ElementKind kind)
{
    OpenElement element;
    element.kind = kind;
    element.place = place();
    if (kind == kDock) {
        const QLatin1String name("activePageId");
        element.activePageId = m_reader.attributes().value(name).toString();
        element.missesActivePage = m_reader.attributes().hasAttribute(name);
    }
    if (kind == kSplitter)
        ++m_splitterDepth;
    m_open.push_back(element);
}

void Inspection::report(const QString& reason)
{
    report(place(), reason);
}

void Inspection::report(LayoutInspector::Problem problem, const QString& reason)
{
    problem.reason = reason;
    problems.append(problem);
}

LayoutInspector::Problem Inspection::place() const
{
    // The reader counts the characters it has read of a line: none of an empty one.
    const qint64 column = qMax<qint64>(1, m_reader.columnNumber());
    // Where the text is no XML, the reader still bears the name of an element before.
    const QString element = m_reader.hasError() ? QString() : m_reader.name().toString();
    return {m_reader.lineNumber(), column, element, QString()};
}

} // namespace

LayoutInspector::LayoutInspector(QIODevice* device)
{
    if (!device || !device->isReadable()) {
        const Problem problem = {1, 1, QString(), Inspection::tr("The layout cannot be read.")};
        m_problems.append(problem);
        return;
    }
    const qint64 start = device->pos();
    Inspection inspection(device);
    inspection.run();
    m_restorable = inspection.restorable;
    m_problems = inspection.problems;
    m_pageIds = inspection.pageIds;
    if (!device->isSequential())
        device->seek(start);
}

bool LayoutInspector::isRestorable() const
{
    return m_restorable;
}

const QList<LayoutInspector::Problem>& LayoutInspector::problems() const
{
    return m_problems;
}

const QStringList& LayoutInspector::pageIds() const
{
    return m_pageIds;
}

}} // namespace Norvane::UI
