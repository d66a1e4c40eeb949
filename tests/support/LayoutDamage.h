#pragma once

#include <tests/support/LayoutDocuments.h>

#include <QList>

#include <random>

/// Ways to damage a layout document. Each takes a good one, without blanks between its elements, and gives
/// many bad ones.
namespace NorvaneTest { namespace LayoutDamage {

typedef QList<QByteArray> Documents;

/// The place of an element or an attribute in a document.
struct Span {
    int begin;
    int end;
};

inline QByteArray replaced(const QByteArray& document, const Span& span, const QByteArray& text)
{
    return document.left(span.begin) + text + document.mid(span.end);
}

inline QByteArray textOf(const QByteArray& document, const Span& span)
{
    return document.mid(span.begin, span.end - span.begin);
}

/// All elements but the root.
inline QList<Span> elementsOf(const QByteArray& document)
{
    QList<Span> elements;
    QList<int> open;
    for (int begin = document.indexOf("<layout"); begin >= 0; begin = document.indexOf('<', begin + 1)) {
        const int end = document.indexOf('>', begin) + 1;
        if (document[begin + 1] != '/')
            open.append(begin);
        if (document[begin + 1] == '/' || document[end - 2] == '/')
            elements.append({open.takeLast(), end});
    }
    elements.removeLast();
    return elements;
}

/// All attributes with the blank before them.
inline QList<Span> attributesOf(const QByteArray& document)
{
    QList<Span> attributes;
    for (int quote = document.indexOf("=\"", document.indexOf("?>")); quote >= 0;) {
        const int end = document.indexOf('"', quote + 2) + 1;
        attributes.append({int(document.lastIndexOf(' ', quote)), end});
        quote = document.indexOf("=\"", end);
    }
    return attributes;
}

inline Documents cutAnywhere(const QByteArray& good)
{
    Documents documents;
    for (int size = 0; size < good.size(); size += 1 + size % 3)
        documents.append(good.left(size));
    return documents;
}

inline Documents bitsFlipped(const QByteArray& good)
{
    std::mt19937 random(4);
    Documents documents;
    for (int i = 0; i < 400; ++i) {
        QByteArray document = good;
        for (int flips = 1 + i % 4; flips > 0; --flips) {
            const int at = int(random() % unsigned(document.size()));
            document[at] = char(document[at] ^ (1 << random() % 8));
        }
        documents.append(document);
    }
    return documents;
}

inline Documents elementsDoubledOrRemoved(const QByteArray& good)
{
    Documents documents;
    for (const Span& element : elementsOf(good)) {
        const QByteArray text = textOf(good, element);
        documents << replaced(good, element, text + text) << replaced(good, element, text.repeated(20))
                  << replaced(good, element, QByteArray()) << replaced(good, element, text.mid(1))
                  << replaced(good, element, text.mid(text.indexOf('>') + 1))
                  << replaced(good, element, text.left(text.lastIndexOf('<')));
    }
    return documents;
}

inline Documents elementsMoved(const QByteArray& good)
{
    Documents documents;
    const QList<Span> elements = elementsOf(good);
    for (const Span& element : elements) {
        const QByteArray text = textOf(good, element);
        const QByteArray name = text.mid(1, text.indexOf(' ') - 1);
        for (const char* const parent : {"layout", "window", "splitter", "split", "dock", "page", "toolbar"})
            documents << replaced(good, element, QByteArray("<") + parent + '>' + text + "</" + parent + '>');
        documents << replaced(good, element, text.left(text.indexOf('>') + 1) + text + "</" + name + '>');
        for (const Span& place : elements)
            documents << replaced(good, {place.begin, place.begin}, text);
    }
    return documents;
}

inline Documents valuesReplaced(const QByteArray& good)
{
    const char* const values[] = {
        "",         "0",   "-1",   "3",   "40000", "2147483647", "-2147483648", "99999999999",
        "nonsense", "1.5", "0x7f", " 7 ", "1e9",   "&#x661;",    "&lt;&amp;",   "&#55;"};
    Documents documents;
    for (const Span& attribute : attributesOf(good)) {
        const QByteArray name = textOf(good, attribute).split('=').first();
        // Each attribute with a third of them: most are several times in the document.
        for (std::size_t i = static_cast<std::size_t>(attribute.begin) % 3; i < 16; i += 3)
            documents.append(replaced(good, attribute, name + "=\"" + values[i] + '"'));
    }
    return documents;
}

inline Documents deepNesting(const QByteArray&)
{
    using namespace LayoutDocuments;
    const int depth = 20000;
    Documents documents;
    documents << nestedSplitters(128) << nestedSplitters(129)
              << inWindow(nested("<splitter orientation=\"2\">", "</splitter>", depth))
              << inWindow(QByteArray("<splitter>").repeated(depth))
              << inWindow(splitter(nested("<a>", "</a>", depth)))
              << inPane(nested("<page id=\"a\">", "</page>", depth))
              << layout(nested("<dock>", "</dock>", depth)) << layout(nested("<window>", "</window>", depth))
              << nested("<layout version=\"1.0\">", "</layout>", depth)
              << inWindow(splitter(nested("<split>", "</split>", depth)));
    return documents;
}

}} // namespace NorvaneTest::LayoutDamage
