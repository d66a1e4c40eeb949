#include "FactsTable.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QStringList>

namespace Norvane { namespace Host {

FactsTable::FactsTable(QWidget* parent)
    : QWidget(parent)
    , m_names(new QLabel(this))
    , m_values(new QLabel(this))
{
    m_values->setTextFormat(Qt::PlainText);
    // A long path is cut off instead of making the panel wide.
    m_values->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 6);
    layout->setSpacing(12);
    layout->addWidget(m_names);
    layout->addWidget(m_values, 1);
}

void FactsTable::setFacts(const Facts& facts)
{
    QStringList names;
    QStringList values;
    for (const QPair<QString, QString>& fact : facts) {
        names.append(fact.first);
        values.append(fact.second);
    }
    m_names->setText(names.join(QLatin1String("\n")));
    m_values->setText(values.join(QLatin1String("\n")));
    m_values->setToolTip(m_values->text());
}

bool FactsTable::isShownWhenDisclosed() const
{
    return !m_names->text().isEmpty() && isDisclosed();
}

}} // namespace Norvane::Host
