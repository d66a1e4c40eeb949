#include "Pages.h"

#include <ui/widgets/DropAcceptingListWidget.h>

#include <QLabel>
#include <QVBoxLayout>

namespace Norvane { namespace Gallery {

namespace {

/// A list that lists what is dropped onto it.
class DropList : public UI::DropAcceptingListWidget
{
    Q_OBJECT
public:
    explicit DropList(QWidget* parent)
        : UI::DropAcceptingListWidget(parent)
    {
        setAcceptsDropsFlags(UI::AcceptUrls);
        connect(this, SIGNAL(droppedUrls(QStringList)), this, SLOT(list(QStringList)));
    }

private Q_SLOTS:
    void list(const QStringList& paths)
    {
        for (const QString& path : paths) {
            if (!path.isEmpty())
                addItem(path);
        }
    }
};

} // namespace

QWidget* createDropListPage()
{
    QWidget* const page = new QWidget;
    DropList* const list = new DropList(page);
    list->addItem(QLatin1String("/shots/012/plate.png"));
    list->addItem(QLatin1String("/shots/012/matte.png"));
    QVBoxLayout* const layout = new QVBoxLayout(page);
    layout->addWidget(new QLabel(QLatin1String("Files from the desktop can be dropped here:"), page));
    layout->addWidget(list);
    page->resize(320, 160);
    return page;
}

}} // namespace Norvane::Gallery

#include "DropListPage.moc"
