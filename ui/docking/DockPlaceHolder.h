#pragma once

#include <NorvaneCoreExport.h>

#include <QString>
#include <QWidget>

namespace Norvane { namespace UI {

/// Stands in a pane for a panel that the layout file names and that does not exist yet; its object name is
/// the missing panel's. It shows its window title in large grey letters. Dock::addWidget() of a panel of the
/// same name replaces it. Until then it keeps the state that the layout file holds for the panel, so that a
/// layout saved meanwhile still has it.
class NORVANE_CORE_EXPORT DockPlaceHolder : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(QString layoutState READ layoutState WRITE setLayoutState)
public:
    /// Carries Qt::WA_DeleteOnClose: it belongs to its pane.
    explicit DockPlaceHolder(QWidget* parent = nullptr);
    ~DockPlaceHolder() override;

    /// The state that the layout file holds for the missing panel.
    QString layoutState() const;
    void setLayoutState(const QString& state);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QString m_layoutState;
};

}} // namespace Norvane::UI
