#include <ui/widgets/SearchField.h>

#include <ui/widgets/FlatButton.h>
#include <ui/widgets/PromptLabel.h>

#include <QCoreApplication>
#include <QEvent>
#include <QIcon>
#include <QLabel>
#include <QPointer>
#include <QResizeEvent>

namespace Norvane { namespace UI {

namespace {

const int kCancelSize = 14;

int centred(const QWidget* child, const QWidget* field)
{
    return (field->height() - child->height()) / 2;
}

} // namespace

struct SearchField::Private {
    QLabel* promptLabel = nullptr;
    FlatButton* cancelButton = nullptr;
    QPointer<QWidget> leftWidget;
};

SearchField::SearchField(QWidget* parent)
    : QLineEdit(parent)
    , d(new Private)
{
    connect(this, SIGNAL(textEdited(QString)), this, SLOT(textChanged(QString)));
    updateTextMargins();
}

SearchField::~SearchField() = default;

void SearchField::setPrompt(const QString& prompt)
{
    if (d->promptLabel) {
        d->promptLabel->setText(prompt);
        d->promptLabel->adjustSize();
    } else {
        d->promptLabel = createPromptLabel(prompt, this);
        updateGeometry();
        placeControlsSoon();
    }
    updateControls();
}

QString SearchField::prompt() const
{
    return d->promptLabel ? d->promptLabel->text() : QString();
}

void SearchField::setHasCancelButton(bool has)
{
    if (d->cancelButton)
        return;
    if (has)
        createCancelButton();
    updateTextMargins();
    updateControls();
}

bool SearchField::hasCancelButton() const
{
    return d->cancelButton != nullptr;
}

void SearchField::setLeftWidget(QWidget* widget)
{
    d->leftWidget = widget;
    updateTextMargins();
    updateGeometry();
    placeControlsSoon();
}

QWidget* SearchField::leftWidget() const
{
    return d->leftWidget;
}

void SearchField::textChanged(const QString&)
{
    updateControls();
}

void SearchField::cancelButtonPressed()
{
    setText(QString());
    updateControls();
    Q_EMIT cancelPressed();
}

void SearchField::changeEvent(QEvent* event)
{
    QLineEdit::changeEvent(event);
    const bool changesFont = event->type() == QEvent::FontChange || event->type() == QEvent::StyleChange;
    if (!changesFont || !d->promptLabel)
        return;
    d->promptLabel->adjustSize();
    placeControlsSoon();
}

void SearchField::focusInEvent(QFocusEvent* event)
{
    updateControls();
    QLineEdit::focusInEvent(event);
}

void SearchField::focusOutEvent(QFocusEvent* event)
{
    updateControls();
    QLineEdit::focusOutEvent(event);
}

void SearchField::resizeEvent(QResizeEvent* event)
{
    QLineEdit::resizeEvent(event);
    if (d->leftWidget)
        d->leftWidget->move(rect().left() + 6, centred(d->leftWidget, this));
    if (d->promptLabel) {
        const int left = d->leftWidget ? d->leftWidget->width() + 9 : 7;
        d->promptLabel->move(left, centred(d->promptLabel, this));
    }
    if (d->cancelButton)
        d->cancelButton->move(rect().right() - 5 - kCancelSize + 1, centred(d->cancelButton, this));
}

void SearchField::createCancelButton()
{
    d->cancelButton = new FlatButton(QIcon(QLatin1String(":/ui/qrc/images/SearchFieldCancel.png")), this);
    d->cancelButton->setFixedSize(kCancelSize, kCancelSize);
    d->cancelButton->setFocusPolicy(Qt::NoFocus);
    d->cancelButton->setCursor(Qt::ArrowCursor);
    d->cancelButton->setAccessibleName(tr("Clear"));
    connect(d->cancelButton, SIGNAL(clicked()), this, SLOT(cancelButtonPressed()));
    placeControlsSoon();
}

void SearchField::updateControls()
{
    const bool hasText = !text().isEmpty();
    if (d->promptLabel)
        d->promptLabel->setVisible(!hasText && !hasFocus());
    if (d->cancelButton)
        d->cancelButton->setVisible(hasText && hasFocus());
}

void SearchField::updateTextMargins()
{
    setTextMargins(d->leftWidget ? d->leftWidget->width() + 7 : 6, 0, d->cancelButton ? 20 : 8, 0);
}

// A layout does not resize a field whose size suits it already, and a resize event is what places the
// controls.
void SearchField::placeControlsSoon()
{
    QCoreApplication::postEvent(this, new QResizeEvent(size(), size()));
}

}} // namespace Norvane::UI
