#include <ui/widgets/PromptLabel.h>

#include <QLabel>

namespace Norvane { namespace UI {

QLabel* createPromptLabel(const QString& text, QWidget* edit)
{
    QLabel* const label = new QLabel(text, edit);
    label->setTextFormat(Qt::PlainText);
    label->setEnabled(false);
    label->setAttribute(Qt::WA_TransparentForMouseEvents);
    label->adjustSize();
    label->hide();
    return label;
}

}} // namespace Norvane::UI
