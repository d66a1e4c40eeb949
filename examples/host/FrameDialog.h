#pragma once

#include "FrameFormat.h"

#include <QDialog>

class QComboBox;
class QDialogButtonBox;
class QFileDialog;
class QFormLayout;
class QLabel;
class QSpinBox;

namespace Norvane { namespace UI {
class FilenameField;
}} // namespace Norvane::UI

namespace Norvane { namespace Host {

/// Asks for a file with the samples of a frame, and for what the file does not say: layout, size and matrix.
/// It proposes what suffix and size of the file suggest, and can be accepted once a frame can be read.
class FrameDialog : public QDialog
{
    Q_OBJECT
public:
    /// Files are looked for in \a folder first.
    FrameDialog(const QString& folder, QWidget* parent);

    /// The frame as it is described now.
    FrameAddress address() const;

private Q_SLOTS:
    void prepareDialog(QFileDialog* dialog);
    void proposeFormat();
    void proposeSize();
    void check();

private:
    QFormLayout* createForm();
    QSpinBox* createSide(const QString& name);
    FrameFormat format() const;
    void setSize(const QSize& size);

    const QString m_folder;
    UI::FilenameField* m_file;
    QComboBox* m_layout;
    QSpinBox* m_width;
    QSpinBox* m_height;
    /// The first entry stands for the layout's usual one, the others are those of YCbCrMatrix.
    QComboBox* m_matrix;
    QLabel* m_problem;
    QDialogButtonBox* m_buttons;
};

}} // namespace Norvane::Host
