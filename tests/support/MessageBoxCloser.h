#pragma once

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QString>

namespace NorvaneTest {

/// While it lives, closes every message box as soon as it is shown, and remembers what the last one said.
/// Nobody sees them: a window manager would still be at work on them when they are gone.
class MessageBoxCloser : public QObject
{
public:
    MessageBoxCloser() { qApp->installEventFilter(this); }

    int count() const { return m_count; }
    QString lastTitle() const { return m_lastTitle; }
    QString lastText() const { return m_lastText; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        QMessageBox* const box = qobject_cast<QMessageBox*>(watched);
        if (box && event->type() == QEvent::Polish) {
            box->setAttribute(Qt::WA_DontShowOnScreen);
        } else if (box && event->type() == QEvent::Show) {
            ++m_count;
            m_lastTitle = box->windowTitle();
            m_lastText = box->text();
            // Queued: the box enters its event loop only after it has been shown.
            QMetaObject::invokeMethod(box, "reject", Qt::QueuedConnection);
        }
        return false;
    }

private:
    int m_count = 0;
    QString m_lastTitle;
    QString m_lastText;
};

} // namespace NorvaneTest
