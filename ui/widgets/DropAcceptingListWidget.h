#pragma once

#include <NorvaneCoreExport.h>
#include <ui/widgets/DropAcceptingWidget.h>

#include <QListWidget>

namespace Norvane { namespace UI {

/// A list onto which files can be dropped from the desktop or a file manager, once setAcceptsDropsFlags() has
/// been given AcceptUrls. What becomes of them is the host's affair: the list adds no items by itself.
class NORVANE_CORE_EXPORT DropAcceptingListWidget : public DropAcceptingWidget<QListWidget>
{
    Q_OBJECT
    /// For forms: whether the flags have AcceptUrls.
    Q_PROPERTY(bool acceptsUrls READ acceptsUrls WRITE takeUrls)
public:
    /// Accepts nothing yet.
    explicit DropAcceptingListWidget(QWidget* parent);
    ~DropAcceptingListWidget() override;

Q_SIGNALS:
    /// URLs were dropped: their local paths in the order in which they came, empty for what is no local file.
    void droppedUrls(const QStringList& paths) override;

private:
    bool acceptsUrls() const;
    void takeUrls(bool accept);
};

}} // namespace Norvane::UI
