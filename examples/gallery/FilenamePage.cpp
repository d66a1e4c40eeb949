#include "Pages.h"

#include <ui/widgets/FilenameField.h>

#include <QDir>
#include <QFormLayout>

namespace Norvane { namespace Gallery {

QWidget* createFilenamePage()
{
    QWidget* const page = new QWidget;
    UI::FilenameField* const names = new UI::FilenameField(page, QFileDialog::ExistingFile, false);
    names->setFilename(QLatin1String("/etc/hosts"));
    UI::FilenameField* const folder = new UI::FilenameField(page, QFileDialog::Directory, false);
    folder->setFilename(QDir::rootPath());
    UI::FilenameField* const result = new UI::FilenameField(page, QFileDialog::AnyFile, false);
    result->setPrompt(QLatin1String("Next to the names"));

    QFormLayout* const layout = new QFormLayout(page);
    layout->addRow(QLatin1String("Names"), names);
    layout->addRow(QLatin1String("Cache"), folder);
    layout->addRow(QLatin1String("Result"), result);
    page->resize(400, 110);
    return page;
}

}} // namespace Norvane::Gallery
