#include "Pages.h"

#include <ui/widgets/BubbleWidget.h>

#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QTimer>
#include <QVBoxLayout>

namespace Norvane { namespace Gallery {

namespace {

/// A button that is explained by a bubble when it is clicked, and once at the start.
class ExplainedButton : public QPushButton
{
    Q_OBJECT
public:
    ExplainedButton(const QString& text, const QString& explanation, QWidget* parent)
        : QPushButton(text, parent)
        , m_bubble(new UI::BubbleWidget(this))
    {
        QLabel* const label = new QLabel(explanation, m_bubble);
        label->setWordWrap(true);
        label->setFixedWidth(220);
        (new QVBoxLayout(m_bubble))->addWidget(label);
        m_bubble->setMovable(true);
        connect(this, SIGNAL(clicked()), this, SLOT(explain()));
    }

protected:
    bool event(QEvent* event) override
    {
        // By now the window is where the window manager wants it.
        if (event->type() == QEvent::WindowActivate && !m_wasActive) {
            m_wasActive = true;
            QTimer::singleShot(0, this, SLOT(explain()));
        }
        return QPushButton::event(event);
    }

private Q_SLOTS:
    void explain() { m_bubble->popup(this); }

private:
    UI::BubbleWidget* const m_bubble;
    bool m_wasActive = false;
};

} // namespace

QWidget* createBubblePage()
{
    QWidget* const page = new QWidget;
    QVBoxLayout* const layout = new QVBoxLayout(page);
    layout->addStretch(1);
    layout->addWidget(
        new ExplainedButton(QLatin1String("Conform"),
                            QLatin1String("Replaces every clip by the take it was cut from. Escape "
                                          "closes this bubble, and it can be dragged."),
                            page),
        0, Qt::AlignHCenter);
    page->resize(320, 160);
    return page;
}

}} // namespace Norvane::Gallery

#include "BubblePage.moc"
