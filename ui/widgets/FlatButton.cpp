#include <ui/widgets/FlatButton.h>

#include <QIcon>
#include <QPainter>

namespace Norvane { namespace UI {

FlatButton::FlatButton(const QIcon& icon, QWidget* parent)
    : QAbstractButton(parent)
{
    setIcon(icon);
    // Repaints the button when the mouse comes and goes.
    setAttribute(Qt::WA_Hover);
}

FlatButton::FlatButton(QWidget* parent)
    : FlatButton(QIcon(), parent)
{
}

FlatButton::~FlatButton() = default;

QSize FlatButton::sizeHint() const
{
    return QSize(22, 22);
}

void FlatButton::paintEvent(QPaintEvent*)
{
    QIcon::Mode mode = testAttribute(Qt::WA_UnderMouse) ? QIcon::Active : QIcon::Normal;
    if (!isEnabled())
        mode = QIcon::Disabled;
    QPainter painter(this);
    icon().paint(&painter, rect(), Qt::AlignCenter, mode, isChecked() ? QIcon::On : QIcon::Off);
}

}} // namespace Norvane::UI
