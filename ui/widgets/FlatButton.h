#pragma once

#include <NorvaneCoreExport.h>

#include <QAbstractButton>

class QIcon;

namespace Norvane { namespace UI {

/// A button that is nothing but its icon: no frame, no background, no text, no focus mark. The icon is shown
/// in its disabled, active (under the mouse) or normal form, on when the button is checked.
class NORVANE_CORE_EXPORT FlatButton : public QAbstractButton
{
    Q_OBJECT
public:
    /// Its tool tip and accessible name are for the host to set.
    FlatButton(const QIcon& icon, QWidget* parent);
    /// Without an icon yet: the form that makes the button sets one.
    explicit FlatButton(QWidget* parent);
    ~FlatButton() override;

    /// 22 x 22 pixels. The icon is centred in the button and never drawn larger than it was made.
    QSize sizeHint() const override;

protected:
    void paintEvent(QPaintEvent* event) override;
};

}} // namespace Norvane::UI
