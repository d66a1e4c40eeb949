#include "Pages.h"

#include <ui/widgets/SearchField.h>

#include <QListView>
#include <QMenu>
#include <QSortFilterProxyModel>
#include <QStringListModel>
#include <QToolButton>
#include <QVBoxLayout>

namespace Norvane { namespace Gallery {

namespace {

QToolButton* createMenuButton(QWidget* parent)
{
    QToolButton* const button = new QToolButton(parent);
    button->setText(QLatin1String("In"));
    button->setAutoRaise(true);
    button->setCursor(Qt::ArrowCursor);
    button->setPopupMode(QToolButton::InstantPopup);
    QMenu* const menu = new QMenu(button);
    menu->addAction(QLatin1String("Names"));
    menu->addAction(QLatin1String("Comments"));
    button->setMenu(menu);
    // A little lower than the field.
    button->ensurePolished();
    button->setFixedSize(button->sizeHint().width(), button->fontMetrics().height() + 2);
    return button;
}

} // namespace

QWidget* createSearchPage()
{
    QWidget* const page = new QWidget;
    QStringList names;
    for (const char* const name :
         {"Beach at noon", "City lights", "Dunes", "Harbour at night", "Night train"})
        names.append(QLatin1String(name));
    QSortFilterProxyModel* const found = new QSortFilterProxyModel(page);
    found->setSourceModel(new QStringListModel(names, page));
    found->setFilterCaseSensitivity(Qt::CaseInsensitive);
    QListView* const list = new QListView(page);
    list->setModel(found);

    UI::SearchField* const field = new UI::SearchField(page);
    QObject::connect(field, SIGNAL(textChanged(QString)), found, SLOT(setFilterFixedString(QString)));
    field->setText(QLatin1String("night"));
    field->setPrompt(QLatin1String("Search shots"));
    field->setHasCancelButton(true);
    field->setFocus();

    UI::SearchField* const other = new UI::SearchField(page);
    other->setLeftWidget(createMenuButton(other));
    other->setPrompt(QLatin1String("Search everywhere"));

    QVBoxLayout* const layout = new QVBoxLayout(page);
    layout->addWidget(field);
    layout->addWidget(list);
    layout->addWidget(other);
    page->resize(320, 200);
    return page;
}

}} // namespace Norvane::Gallery
