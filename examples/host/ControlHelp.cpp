#include "ControlHelp.h"

#include <ui/toolkit/Events.h>
#include <ui/widgets/BubbleWidget.h>

#include <QApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QVBoxLayout>

namespace Norvane { namespace Host {

namespace {

const int kTextWidth = 260;
/// A bubble beside a larger control would be far from where the user is looking.
const QSize kLargestTarget(400, 60);

QString explanationOf(const QWidget* control)
{
    while (control && control->whatsThis().isEmpty())
        control = control->parentWidget();
    return control ? control->whatsThis() : ControlHelp::tr("There is nothing to tell about this.");
}

} // namespace

ControlHelp::ControlHelp(QObject* parent)
    : QObject(parent)
{
}

ControlHelp::~ControlHelp()
{
    stopAsking();
}

void ControlHelp::ask()
{
    if (m_isAsking)
        return;
    m_isAsking = true;
    QApplication::setOverrideCursor(Qt::WhatsThisCursor);
    qApp->installEventFilter(this);
}

void ControlHelp::stopAsking()
{
    if (!m_isAsking)
        return;
    m_isAsking = false;
    QApplication::restoreOverrideCursor();
    qApp->removeEventFilter(this);
}

bool ControlHelp::eventFilter(QObject* watched, QEvent* event)
{
    if (!watched->isWidgetType())
        return false;
    switch (event->type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
        return true;
    case QEvent::MouseButtonRelease: {
        const QPoint position = UI::globalMousePosition(static_cast<QMouseEvent*>(event));
        stopAsking();
        if (QWidget* const control = QApplication::widgetAt(position))
            explain(control, position);
        return true;
    }
    case QEvent::KeyPress: {
        const int key = static_cast<QKeyEvent*>(event)->key();
        QWidget* const control = QApplication::focusWidget();
        const bool explains = key == Qt::Key_Return || key == Qt::Key_Enter;
        if (key != Qt::Key_Escape && !explains)
            return false;
        stopAsking();
        if (explains && control)
            explain(control, control->mapToGlobal(control->rect().center()));
        return true;
    }
    default:
        return false;
    }
}

void ControlHelp::explain(QWidget* control, const QPoint& position)
{
    UI::BubbleWidget* const bubble = new UI::BubbleWidget(control->window());
    bubble->setAttribute(Qt::WA_DeleteOnClose);
    QLabel* const text = new QLabel(explanationOf(control), bubble);
    text->setWordWrap(true);
    text->setFixedWidth(kTextWidth);
    (new QVBoxLayout(bubble))->addWidget(text);
    if (control->width() <= kLargestTarget.width() && control->height() <= kLargestTarget.height())
        bubble->popup(control);
    else
        bubble->popup(position);
}

}} // namespace Norvane::Host
