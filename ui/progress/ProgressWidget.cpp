#include <ui/progress/ProgressWidget.h>

#include <ui/progress/ProgressDialog.h>
#include <ui/progress/ProgressManager.h>
#include <ui/progress/ProgressTask.h>
#include <ui/progress/RowGeometry.h>
#include <ui/progress/TaskPrivate.h>
#include <ui/progress/TimeToGo.h>
#include <ui/toolkit/Painting.h>

#include <QPainter>
#include <QPointer>
#include <QProgressBar>
#include <QPushButton>
#include <QStyle>

namespace Norvane { namespace UI {

namespace {

QFont fontOfSize(int pixels)
{
    QFont font;
    font.setPixelSize(pixels);
    return font;
}

QSize hintOf(const QWidget* widget)
{
    return widget ? widget->sizeHint() : QSize();
}

QSize sizeOf(const QWidget* widget)
{
    return widget ? widget->size() : QSize();
}

} // namespace

ProgressWidget::ProgressWidget(TaskPrivate* taskRecord, ProgressManager* manager, QWidget* parentWidget)
    : QWidget(parentWidget)
    , m_progressBar(new QProgressBar(this))
    , m_record(taskRecord)
    , m_manager(manager)
    , m_name(taskRecord->name)
    , m_isSubTask(taskRecord->parent)
    , m_message(taskRecord->message())
{
    m_progressBar->setMaximum(taskRecord->maximum);
    m_progressBar->setMinimumWidth(100);
    if (taskRecord->flags & ProgressTask::kUserCanPause)
        m_pauseButton = addButton(tr("Pause"), SLOT(togglePause()));
    if (taskRecord->flags & ProgressTask::kUserCanCancel)
        m_cancelButton = addButton(tr("Cancel"), SLOT(cancel()));
    setFixedHeight(80);
    setMinimumWidth(320);
    setEnabled(!(taskRecord->flags & ProgressTask::kDisable));
    setAccessibleName(m_name);
}

ProgressWidget::~ProgressWidget()
{
    forgetRecord();
}

QPushButton* ProgressWidget::addButton(const QString& text, const char* slot)
{
    QPushButton* const button = new QPushButton(text, this);
    // Enter, typed when the dialog happens to appear, must not stop a job.
    button->setAutoDefault(false);
    connect(button, SIGNAL(clicked()), this, slot);
    return button;
}

TaskPrivate* ProgressWidget::record() const
{
    return m_record.data();
}

QSize ProgressWidget::sizeHint() const
{
    return QSize(340, 80);
}

void ProgressWidget::togglePause()
{
    if (!m_record || !m_record->owner)
        return;
    const bool pause = !m_record->paused;
    m_record->paused = pause;
    // The owner may do anything, also to the dialog.
    const QExplicitlySharedDataPointer<TaskPrivate> record = m_record;
    const QPointer<QPushButton> button(m_pauseButton);
    record->notify(pause ? &ProgressTask::taskPaused : &ProgressTask::taskResumed);
    if (button)
        button->setText(pause ? tr("Resume ") : tr("Pause "));
}

void ProgressWidget::cancel()
{
    if (!m_record) {
        retire();
        deleteLater();
        return;
    }
    const QExplicitlySharedDataPointer<TaskPrivate> record = m_record;
    const QPointer<ProgressWidget> self(this);
    record->notify(&ProgressTask::taskCancelled);
    record->cancelled = true;
    if (self && m_cancelButton)
        m_cancelButton->setEnabled(m_errorLook);
}

void ProgressWidget::clear()
{
    if (m_record) {
        m_record->flags.setBits(ProgressTask::kDisable, true);
        m_record->finished = true;
    }
    retire();
    deleteLater();
    m_manager->wakeUp();
}

void ProgressWidget::refresh()
{
    update();
    if (!m_record) {
        m_status = tr("Completed.");
        return;
    }
    m_progressBar->setMaximum(m_record->maximum);
    m_progressBar->setValue(qMax(0, int(m_record->progress)));
    m_record->flags.setBits(TaskPrivate::kMessageChanged, false);
    m_message = m_record->message();

    const int flags = m_record->flags;
    if (flags & TaskPrivate::kErrorPending) {
        m_record->flags.setBits(TaskPrivate::kErrorPending, false);
        showError();
    } else if (flags & ProgressTask::kShowTimeToGo) {
        m_status = timeToGoText(*m_record);
    }
    // A task that failed can be cleared, cancelled or not.
    if (m_cancelButton)
        m_cancelButton->setEnabled(m_errorLook ||
                                   ((flags & ProgressTask::kUserCanCancel) && !m_record->cancelled));
}

void ProgressWidget::showError()
{
    m_errorLook = true;
    m_status.clear();
    if (!m_cancelButton)
        return;
    m_cancelButton->setText(tr("Clear"));
    disconnect(m_cancelButton, nullptr, this, nullptr);
    connect(m_cancelButton, SIGNAL(clicked()), this, SLOT(clear()));
}

void ProgressWidget::keepWithoutRecord()
{
    forgetRecord();
    if (m_cancelButton) {
        m_cancelButton->setText(tr("Hide"));
        m_cancelButton->setEnabled(true);
    }
}

void ProgressWidget::retire()
{
    forgetRecord();
    QWidget* ancestor = parentWidget();
    while (ancestor && !qobject_cast<ProgressDialog*>(ancestor))
        ancestor = ancestor->parentWidget();
    if (ancestor)
        disconnect(ancestor, nullptr, this, nullptr);
}

void ProgressWidget::forgetRecord()
{
    if (!m_record)
        return;
    m_message = m_record->message();
    if (m_record->widget == this)
        m_record->widget = nullptr;
    m_record.reset();
}

RowParts ProgressWidget::partSizes() const
{
    return {sizeOf(m_cancelButton), sizeOf(m_pauseButton), sizeOf(m_progressBar)};
}

void ProgressWidget::resizeEvent(QResizeEvent*)
{
    const RowGeometry geometry =
        layOutRow(width(), {hintOf(m_cancelButton), hintOf(m_pauseButton), hintOf(m_progressBar)});
    const auto place = [this](QWidget* part, const QRect& rect) {
        if (part)
            part->setGeometry(QStyle::visualRect(layoutDirection(), this->rect(), rect));
    };
    place(m_cancelButton, geometry.cancelButton);
    place(m_pauseButton, geometry.pauseButton);
    place(m_progressBar, geometry.progressBar);
}

// \a baseline is where the text begins; right to left, it begins as far from the other side.
void ProgressWidget::drawLine(QPainter* painter, const QPoint& baseline, const QFont& font,
                              const QString& text) const
{
    int x = baseline.x();
    if (layoutDirection() == Qt::RightToLeft)
        x = width() - x - textWidth(QFontMetrics(font), text);
    painter->setFont(font);
    painter->drawText(x, baseline.y(), text);
}

void ProgressWidget::paintEvent(QPaintEvent*)
{
    const QRect area = rowTextArea(rect(), partSizes(), m_isSubTask);
    const QFont largeFont = fontOfSize(12);
    const QFont smallFont = fontOfSize(10);
    const QFontMetrics large(largeFont);
    const QFontMetrics small(smallFont);
    const int firstLine = area.y() + large.ascent();
    const int thirdLine = firstLine + small.height() + small.lineSpacing();
    const int secondColumn = area.x() + area.width() / 3;
    const QString name = m_isSubTask ? QLatin1String("- ") + m_name : m_name;
    const QColor textColour = palette().color(QPalette::Text);

    QPainter painter(this);
    painter.setPen(textColour);
    drawLine(&painter, QPoint(area.x(), firstLine), largeFont,
             large.elidedText(name, Qt::ElideRight, area.width() / 3));
    if (m_errorLook)
        painter.setPen(Qt::red);
    drawLine(&painter, QPoint(secondColumn, firstLine), smallFont,
             small.elidedText(m_message, Qt::ElideRight, 2 * area.width() / 3));
    painter.setPen(textColour);
    drawLine(&painter, QPoint(secondColumn, thirdLine), smallFont, m_status);
}

}} // namespace Norvane::UI
