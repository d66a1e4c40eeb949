#pragma once

#include <QPlainTextEdit>
#include <QString>

namespace Norvane { namespace Host {

/// A panel for plain text. The text is its layout state, every character of it.
class NotesPanel : public QPlainTextEdit
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    /// \a number tells several panels apart.
    explicit NotesPanel(int number, QWidget* parent = nullptr);

    /// The text. Unlike toPlainText() it keeps no-break spaces and line separators.
    QString layoutState() const;
    void setLayoutState(const QString& text);

    /// The title with the first words of the text, for a menu.
    QString summary() const;

Q_SIGNALS:
    /// Another text than \a text, which was not empty, has come from a layout.
    void textReplaced(const QString& text);

protected:
    void paintEvent(QPaintEvent* event) override;
};

}} // namespace Norvane::Host
