#pragma once

#include <QApplication>
#include <QEvent>
#include <QMessageBox>
#include <QString>

namespace NorvaneTest {

/// While it lives, closes every message box as soon as it is shown, and remembers what the last one said.
class MessageBoxCloser : public QObject
{
public:
    MessageBoxCloser() { qApp->installEventFilter(this); }

    int count() const { return m_count; }
    QString lastTitle() const { return m_lastTitle; }
    QString lastText() const { return m_lastText; }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        QMessageBox* box = event->type() == QEvent::Show ? qobject_cast<QMessageBox*>(watched) : nullptr;
        if (box) {
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
