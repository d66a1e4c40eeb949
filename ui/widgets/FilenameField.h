#pragma once

#include <NorvaneCoreExport.h>

#include <QFileDialog>
#include <QWidget>

#include <memory>

namespace Norvane { namespace UI {

/// A line edit for the name of a file or folder, with the icon of what is named and a button that opens a
/// file dialog. The name is any text: whether there is such a file is the host's affair.
class NORVANE_CORE_EXPORT FilenameField : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString filename READ filename WRITE setFilename)
    Q_PROPERTY(QString prompt READ prompt WRITE setPrompt)
    Q_PROPERTY(bool useNativeDialog READ useNativeDialog WRITE setUseNativeDialog)
public:
    /// \a mode is what the dialog lets people choose; of QFileDialog::ExistingFiles only the first is taken.
    /// \a useNativeDialog chooses between the platform's dialog and Qt's own, which fileDialogShown() lets
    /// the host change.
    explicit FilenameField(QWidget* parent, QFileDialog::FileMode mode = QFileDialog::AnyFile,
                           bool useNativeDialog = false);
    /// An open dialog is cancelled.
    ~FilenameField() override;

    /// The text as it is.
    QString filename() const;
    /// Emits filenameChanged(), twice if \a name differs from what was there, and then filenameSet().
    void setFilename(const QString& name);

    /// The grey text shown while the field is empty and does not have the keyboard; empty by default.
    QString prompt() const;
    void setPrompt(const QString& text);

    /// Whether the button opens the platform's dialog instead of Qt's own.
    bool useNativeDialog() const;
    void setUseNativeDialog(bool use);

Q_SIGNALS:
    /// \a fileDialog is about to be shown and may still be given filters, a caption, options. Not emitted for
    /// the platform's dialog.
    void fileDialogShown(QFileDialog* fileDialog);
    /// The text has changed, with every key.
    void filenameChanged();
    /// A name has been chosen, set by code, or its editing is finished (Return, or the keyboard went
    /// elsewhere).
    void filenameSet();

protected Q_SLOTS:
    /// What the button does. May be replaced.
    virtual void openFileDialog();

    /// The text, or what depends on it, has changed. Not for callers.
    void textChanged();
    void enableControls();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QString askDialog();
    QString askNativeDialog();
    void placePrompt();

    struct Private;
    std::unique_ptr<Private> d;
};

}} // namespace Norvane::UI
