#include <ui/widgets/FilenameField.h>

#include <ui/widgets/PromptLabel.h>

#include <QEvent>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QHBoxLayout>
#include <QIcon>
#include <QLabel>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>

namespace Norvane { namespace UI {

namespace {

const int kIconWidth = 24;
const QSize kIconSize(20, 20);
const int kPromptLeft = 4;

/// Loses the keyboard to the file dialog without taking that for the end of the editing: it would report it,
/// and not once more when the user leaves it really.
class NameEdit : public QLineEdit
{
public:
    using QLineEdit::QLineEdit;

    bool dialogIsOpen = false;

protected:
    void focusOutEvent(QFocusEvent* event) override
    {
        if (!dialogIsOpen)
            QLineEdit::focusOutEvent(event);
    }
};

} // namespace

struct FilenameField::Private {
    bool useNativeDialog;
    QLabel* iconLabel;
    QLabel* promptLabel = nullptr;
    NameEdit* lineEdit;
    QPushButton* chooseButton;
    QFileIconProvider iconProvider;
    QFileDialog::FileMode mode;
};

FilenameField::FilenameField(QWidget* parent, QFileDialog::FileMode mode, bool useNativeDialog)
    : QWidget(parent)
    , d(new Private)
{
    d->useNativeDialog = useNativeDialog;
    d->mode = mode;
    d->iconLabel = new QLabel(this);
    d->iconLabel->setFixedWidth(kIconWidth);
    d->lineEdit = new NameEdit(this);
    d->lineEdit->setFrame(false);
    d->lineEdit->installEventFilter(this);
    connect(d->lineEdit, SIGNAL(textChanged(QString)), this, SLOT(textChanged()));
    d->chooseButton = new QPushButton(tr("Choose..."), this);
    connect(d->chooseButton, SIGNAL(clicked()), this, SLOT(openFileDialog()));

    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(4);
    layout->addWidget(d->lineEdit);
    layout->addWidget(d->iconLabel);
    layout->addWidget(d->chooseButton);

    setFocusProxy(d->lineEdit);
    connect(d->lineEdit, SIGNAL(editingFinished()), this, SIGNAL(filenameSet()));
}

FilenameField::~FilenameField()
{
    // An open dialog is on the stack of the function that runs it: it must not be deleted as a child.
    const QList<QFileDialog*> dialogs = findChildren<QFileDialog*>();
    for (QFileDialog* const dialog : dialogs) {
        dialog->setParent(nullptr, dialog->windowFlags());
        dialog->reject();
    }
}

QString FilenameField::filename() const
{
    return d->lineEdit->text();
}

void FilenameField::setFilename(const QString& name)
{
    d->lineEdit->setText(name);
    enableControls();
    Q_EMIT filenameChanged();
    Q_EMIT filenameSet();
}

QString FilenameField::prompt() const
{
    return d->promptLabel ? d->promptLabel->text() : QString();
}

void FilenameField::setPrompt(const QString& text)
{
    if (d->promptLabel)
        d->promptLabel->setText(text);
    else
        d->promptLabel = createPromptLabel(text, d->lineEdit);
    placePrompt();
    enableControls();
}

bool FilenameField::useNativeDialog() const
{
    return d->useNativeDialog;
}

void FilenameField::setUseNativeDialog(bool use)
{
    d->useNativeDialog = use;
}

void FilenameField::textChanged()
{
    enableControls();
    Q_EMIT filenameChanged();
}

void FilenameField::enableControls()
{
    if (d->promptLabel)
        d->promptLabel->setVisible(filename().isEmpty() && !d->lineEdit->hasFocus());
    const QIcon icon = d->iconProvider.icon(QFileInfo(filename()));
    d->iconLabel->setPixmap(icon.pixmap(kIconSize, QIcon::Normal, QIcon::Off));
}

void FilenameField::placePrompt()
{
    d->promptLabel->adjustSize();
    d->promptLabel->move(kPromptLeft, (d->lineEdit->height() - d->promptLabel->height()) / 2);
}

bool FilenameField::eventFilter(QObject*, QEvent* event)
{
    const QEvent::Type type = event->type();
    if (type == QEvent::FocusIn || type == QEvent::FocusOut)
        enableControls();
    else if (d->promptLabel && (type == QEvent::Resize || type == QEvent::FontChange))
        placePrompt();
    return false;
}

void FilenameField::openFileDialog()
{
    const QPointer<FilenameField> self(this);
    const bool hadFocus = d->lineEdit->hasFocus();
    d->chooseButton->blockSignals(true);
    d->lineEdit->dialogIsOpen = true;
    const QString name = d->useNativeDialog ? askNativeDialog() : askDialog();
    if (!self)
        return;
    d->lineEdit->dialogIsOpen = false;
    if (!name.isNull()) {
        d->lineEdit->setText(name);
        Q_EMIT filenameSet();
    }
    if (!self)
        return;
    d->chooseButton->blockSignals(false);
    if (hadFocus)
        d->lineEdit->setFocus(Qt::OtherFocusReason);
}

/// The name chosen, null if none was.
QString FilenameField::askDialog()
{
    QFileDialog dialog(this, QString(), QString(), QString());
    dialog.setOption(QFileDialog::DontUseNativeDialog);
    dialog.setFileMode(d->mode);
    dialog.selectFile(filename());
    Q_EMIT fileDialogShown(&dialog);
    if (dialog.exec() != QDialog::Accepted)
        return QString();
    return dialog.selectedFiles().value(0);
}

/// The name chosen, null if none was.
QString FilenameField::askNativeDialog()
{
    const QString caption = tr("Choose...");
    switch (d->mode) {
    case QFileDialog::AnyFile:
        return QFileDialog::getSaveFileName(this, caption, filename());
    case QFileDialog::ExistingFile:
        return QFileDialog::getOpenFileName(this, caption, filename());
    case QFileDialog::ExistingFiles:
        return QFileDialog::getOpenFileNames(this, caption, filename()).value(0);
    default:
        return QFileDialog::getExistingDirectory(this, caption, filename(), QFileDialog::ShowDirsOnly);
    }
}

}} // namespace Norvane::UI
