#pragma once

#include <QList>
#include <QPointer>
#include <QWidget>

#include <map>

namespace Norvane { namespace UI {

class DisclosureButton;

/// Collects which widgets one update of a disclosure button shows and which it hides, so that a widget that
/// is reached more than once is shown or hidden once, as was decided last.
class VisibilitySetter
{
public:
    /// Overwrites what was decided for \a widget before.
    void set(QWidget* widget, bool visible);

    /// Shows and hides the widgets that are not yet as decided. A disclosure button that came or went with
    /// them applies its own group afterwards, in the order in which the buttons were entered: what it did at
    /// that moment may have been undone, depending on the addresses of the widgets.
    void apply();

private:
    struct Entry {
        QPointer<QWidget> widget;
        bool visible;
    };
    std::map<QWidget*, Entry> m_entries;
    QList<DisclosureButton*> m_buttons;
};

}} // namespace Norvane::UI
