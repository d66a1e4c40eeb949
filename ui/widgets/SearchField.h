#pragma once

#include <NorvaneCoreExport.h>

#include <QLineEdit>

#include <memory>

namespace Norvane { namespace UI {

/// A line edit for search terms. It can have a grey prompt, shown while the field is empty and does not have
/// the keyboard; a small button at the right that clears the text, shown while there is text and the field
/// has the keyboard; and a widget of the caller's at the left, such as a menu button.
///
/// Typing shows and hides the prompt and the button at once; after setText() they follow when the keyboard
/// comes or goes. Use textEdited() or a string-based connection to textChanged(QString) to follow the text:
/// the name of that signal is taken by a slot here.
class NORVANE_CORE_EXPORT SearchField : public QLineEdit
{
    Q_OBJECT
    Q_PROPERTY(QString prompt READ prompt WRITE setPrompt)
    Q_PROPERTY(bool hasCancelButton READ hasCancelButton WRITE setHasCancelButton)
public:
    /// Empty, with neither prompt nor button.
    explicit SearchField(QWidget* parent);
    ~SearchField() override;

    /// Grey text, shown while the field is empty and does not have the keyboard.
    void setPrompt(const QString& prompt);
    /// Empty if none was set.
    QString prompt() const;

    /// Gives the field a button that clears it. Once there, the button stays: false does nothing.
    void setHasCancelButton(bool has);
    bool hasCancelButton() const;

    /// Makes room for \a widget inside the frame and keeps it there; null gives the room back. The caller
    /// makes it a child of the field, shows it and gives it its size first. Not owned.
    void setLeftWidget(QWidget* widget);
    QWidget* leftWidget() const;

Q_SIGNALS:
    /// The cancel button was pressed; the field is empty by now.
    void cancelPressed();

protected Q_SLOTS:
    /// What the field does as the text changes and as the button is pressed. Not for callers.
    void textChanged(const QString& text);
    void cancelButtonPressed();

protected:
    void changeEvent(QEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void focusOutEvent(QFocusEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void createCancelButton();
    void updateControls();
    void updateTextMargins();
    void placeControlsSoon();

    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
