#include "ArrangementName.h"

#include <QCoreApplication>
#include <QFontMetrics>
#include <QInputDialog>

namespace Norvane { namespace Host {

namespace {

const int kShownCharacters = 48;

} // namespace

QString askForArrangementName(QWidget* parent, const QString& title, const QString& name,
                              const QStringList& others)
{
    QInputDialog dialog(parent);
    dialog.setWindowTitle(title);
    dialog.setLabelText(QCoreApplication::translate("ArrangementName", "Name of the arrangement:"));
    if (!others.isEmpty()) {
        dialog.setComboBoxItems(others);
        dialog.setComboBoxEditable(true);
    }
    dialog.setTextValue(name);
    dialog.resize(dialog.fontMetrics().averageCharWidth() * kShownCharacters, dialog.sizeHint().height());
    return dialog.exec() == QDialog::Accepted ? dialog.textValue().simplified() : QString();
}

}} // namespace Norvane::Host
