#include "NotesPanel.h"

#include <QPainter>
#include <QStringList>
#include <QTextBlock>
#include <QTextDocument>

namespace Norvane { namespace Host {

namespace {

const int kSummaryLength = 40;

} // namespace

NotesPanel::NotesPanel(int number, QWidget* parent)
    : QPlainTextEdit(parent)
{
    setFrameShape(QFrame::NoFrame);
    document()->setDocumentMargin(8);
    setWindowTitle(number > 1 ? tr("Notes %1").arg(number) : tr("Notes"));
    setAccessibleName(windowTitle());
    setTabChangesFocus(true);
    setWhatsThis(tr("Notes of yours. They are kept with the arrangement."));
}

QString NotesPanel::layoutState() const
{
    QStringList lines;
    for (QTextBlock block = document()->begin(); block.isValid(); block = block.next())
        lines.append(block.text());
    return lines.join(QLatin1String("\n"));
}

void NotesPanel::setLayoutState(const QString& text)
{
    const QString before = layoutState();
    if (before == text)
        return;
    setPlainText(text);
    if (!before.isEmpty())
        Q_EMIT textReplaced(before);
}

QString NotesPanel::summary() const
{
    QString words = layoutState().simplified();
    if (words.size() > kSummaryLength)
        words = tr("%1...").arg(words.left(kSummaryLength));
    return tr("%1: %2").arg(windowTitle(), words);
}

void NotesPanel::paintEvent(QPaintEvent* event)
{
    QPlainTextEdit::paintEvent(event);
    if (!document()->isEmpty())
        return;
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
    const int margin = int(document()->documentMargin());
    painter.drawText(viewport()->rect().adjusted(margin, margin, -margin, -margin), Qt::TextWordWrap,
                     tr("Type your notes here."));
}

}} // namespace Norvane::Host
