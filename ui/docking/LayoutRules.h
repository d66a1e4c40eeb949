#pragma once

#include <qnamespace.h>

#include <limits>

/// What a layout document may hold: which element stands in which, and which numbers they bear.
namespace Norvane { namespace UI { namespace LayoutRules {

enum ElementKind { kDocument, kLayout, kWindow, kSplitter, kSplit, kDock, kPage, kUnknown };

struct Nesting {
    ElementKind parent;
    const char* name;
    ElementKind kind;
};

const Nesting kNestings[] = {
    {kDocument, "layout", kLayout},     {kLayout, "window", kWindow}, {kLayout, "dock", kDock},
    {kWindow, "splitter", kSplitter},   {kSplitter, "split", kSplit}, {kSplitter, "dock", kDock},
    {kSplitter, "splitter", kSplitter}, {kDock, "page", kPage},
};

const int kLowest = std::numeric_limits<int>::min();
const int kHighest = std::numeric_limits<int>::max();

struct NumberRule {
    ElementKind kind;
    const char* attribute;
    bool required;
    int minimum;
    int maximum;
};

const NumberRule kNumberRules[] = {
    {kWindow, "x", true, kLowest, kHighest},
    {kWindow, "y", true, kLowest, kHighest},
    {kWindow, "w", true, 1, kHighest},
    {kWindow, "h", true, 1, kHighest},
    {kWindow, "maximized", false, kLowest, kHighest},
    {kWindow, "fullscreen", false, kLowest, kHighest},
    {kWindow, "screen", true, 0, kHighest},
    {kSplitter, "orientation", true, Qt::Horizontal, Qt::Vertical},
    {kSplit, "size", true, 0, kHighest},
    {kSplit, "stretch", false, 0, kHighest},
    {kDock, "hideTitles", false, kLowest, kHighest},
};

}}} // namespace Norvane::UI::LayoutRules
