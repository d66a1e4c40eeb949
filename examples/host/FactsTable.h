#pragma once

#include "PictureFacts.h"

#include <ui/widgets/DisclosableWidget.h>

#include <QWidget>

class QLabel;

namespace Norvane { namespace Host {

/// Names and values below each other. In an open group it is to be seen only if it has any.
class FactsTable : public QWidget, public UI::DisclosableWidget
{
    Q_OBJECT
public:
    explicit FactsTable(QWidget* parent);

    void setFacts(const Facts& facts);

    bool isShownWhenDisclosed() const override;

private:
    QLabel* m_names;
    QLabel* m_values;
};

}} // namespace Norvane::Host
