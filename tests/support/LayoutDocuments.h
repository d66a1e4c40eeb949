#pragma once

#include <QByteArray>

/// Layout documents for tests, with one element a line.
namespace NorvaneTest { namespace LayoutDocuments {

/// The layout element with \a windows inside; they begin on the third line.
inline QByteArray layout(const QByteArray& windows)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"
           "<layout version=\"1.0\">\n" +
           windows + "</layout>\n";
}

/// A window element with \a content inside.
inline QByteArray window(const QByteArray& content)
{
    return "<window x=\"10\" y=\"20\" w=\"640\" h=\"480\" screen=\"0\">\n" + content + "</window>\n";
}

/// A horizontal splitter with \a content inside, which must bring its split elements.
inline QByteArray splitter(const QByteArray& content)
{
    return "<splitter orientation=\"1\">\n" + content + "</splitter>\n";
}

/// A split element with a pane that shows the single page \a pageId.
inline QByteArray pane(const QByteArray& id, const QByteArray& pageId)
{
    return "<split size=\"300\"/>\n<dock id=\"" + id + "\" activePageId=\"" + pageId + "\">\n<page id=\"" +
           pageId + "\"/>\n</dock>\n";
}

/// A layout with one window that holds \a content; it begins on the fourth line.
inline QByteArray inWindow(const QByteArray& content)
{
    return layout(window(content));
}

/// A layout with one pane that holds \a content; it begins on the seventh line.
inline QByteArray inPane(const QByteArray& content)
{
    return inWindow(splitter("<split size=\"300\"/>\n<dock id=\"pane1\">\n" + content + "</dock>\n"));
}

/// The main window with panes beside and above each other, and a floating window. Pages: Properties.1,
/// Scopes.1, Viewer.1, Graph.1, Curves.1.
inline QByteArray twoWindows()
{
    const QByteArray right = "<split size=\"320\" stretch=\"1\"/>\n"
                             "<splitter orientation=\"2\">\n" +
                             pane("pane2", "Viewer.1") +
                             "<split size=\"180\"/>\n"
                             "<dock id=\"pane3\" hideTitles=\"1\" activePageId=\"Graph.1\">\n"
                             "<page id=\"Graph.1\"/>\n"
                             "</dock>\n"
                             "</splitter>\n";
    const QByteArray left = "<split size=\"300\"/>\n"
                            "<dock id=\"pane1\" activePageId=\"Properties.1\" focus=\"true\">\n"
                            "<page id=\"Properties.1\"/>\n"
                            "<page id=\"Scopes.1\" layout=\"histogram\"/>\n"
                            "</dock>\n";
    return layout(window(splitter(left + right)) + window(splitter(pane("pane4", "Curves.1"))));
}

/// \a depth pairs of \a open and \a close, one inside the other.
inline QByteArray nested(const QByteArray& open, const QByteArray& close, int depth)
{
    return open.repeated(depth) + close.repeated(depth);
}

/// A layout whose window holds \a depth splitters, one inside the other, the innermost with one pane.
inline QByteArray nestedSplitters(int depth)
{
    const QByteArray outer = "<splitter orientation=\"1\">\n<split size=\"300\"/>\n";
    const QByteArray inner = splitter(pane("innermost", "Innermost.1"));
    return inWindow(outer.repeated(depth - 1) + inner + QByteArray("</splitter>\n").repeated(depth - 1));
}

}} // namespace NorvaneTest::LayoutDocuments
