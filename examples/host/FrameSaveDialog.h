#pragma once

#include <QFileDialog>

namespace Norvane { namespace Host {

struct FrameLayout;

/// Asks where a frame of video is to be saved, and in which layout: that is the type of the file. A name
/// without suffix gets the layout's, and it is asked before a file is replaced.
class FrameSaveDialog : public QFileDialog
{
    Q_OBJECT
public:
    /// \a layout is proposed; null for the first one.
    FrameSaveDialog(const QString& folder, const FrameLayout* layout, QWidget* parent);

    const FrameLayout& frameLayout() const;

private Q_SLOTS:
    void takeSuffix();
};

}} // namespace Norvane::Host
