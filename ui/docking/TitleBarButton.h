#pragma once

#include <NorvaneCoreExport.h>
#include <ui/toolkit/Events.h>

#include <QPushButton>

namespace Norvane { namespace UI {

/// A small flat icon button of a pane's title strip: float, close, pane menu. It takes no keyboard focus.
class NORVANE_CORE_EXPORT TitleBarButton : public QPushButton
{
    Q_OBJECT
public:
    /// Without icon.
    explicit TitleBarButton(QWidget* parent);
    ~TitleBarButton() override;

    /// The icon at the style's small size and two pixels around it.
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void enterEvent(EnterEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
};

}} // namespace Norvane::UI
