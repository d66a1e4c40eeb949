#pragma once

class QWidget;

/// The pages of the gallery: a small form for each widget, made without parent.
namespace Norvane { namespace Gallery {

QWidget* createBubblePage();
QWidget* createDisclosurePage();
QWidget* createDropListPage();
QWidget* createFilenamePage();
QWidget* createSearchPage();

}} // namespace Norvane::Gallery
