#pragma once

#include "PictureFacts.h"

#include <ui/widgets/DisclosableWidget.h>

#include <QStringList>
#include <QWidget>

class QLabel;

namespace Norvane { namespace Host {

/// Names and values below each other. In an open group it is to be seen only if it has any.
/// A value that is too long loses its middle: paths are known by their ends.
class FactsTable : public QWidget, public UI::DisclosableWidget
{
    Q_OBJECT
public:
    explicit FactsTable(QWidget* parent);

    void setFacts(const Facts& facts);

    bool isShownWhenDisclosed() const override;

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void showValues();

    QLabel* m_names;
    QLabel* m_values;
    QStringList m_fullValues;
};

}} // namespace Norvane::Host
