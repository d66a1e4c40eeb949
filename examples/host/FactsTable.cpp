#include "FactsTable.h"

#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>

namespace Norvane { namespace Host {

FactsTable::FactsTable(QWidget* parent)
    : QWidget(parent)
    , m_names(new QLabel(this))
    , m_values(new QLabel(this))
{
    m_values->setTextFormat(Qt::PlainText);
    // A long path does not make the panel wide.
    m_values->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    m_values->installEventFilter(this);
    QHBoxLayout* const layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 6);
    layout->setSpacing(12);
    layout->addWidget(m_names);
    layout->addWidget(m_values, 1);
}

void FactsTable::setFacts(const Facts& facts)
{
    QStringList names;
    m_fullValues.clear();
    for (const QPair<QString, QString>& fact : facts) {
        names.append(fact.first);
        m_fullValues.append(fact.second);
    }
    m_names->setText(names.join(QLatin1String("\n")));
    const QString values = m_fullValues.join(QLatin1String("\n"));
    m_values->setToolTip(values);
    m_values->setAccessibleName(values);
    showValues();
}

void FactsTable::showValues()
{
    QStringList shown;
    for (const QString& value : m_fullValues)
        shown.append(m_values->fontMetrics().elidedText(value, Qt::ElideMiddle, m_values->width()));
    m_values->setText(shown.join(QLatin1String("\n")));
}

bool FactsTable::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::FontChange)
        showValues();
    return QWidget::eventFilter(watched, event);
}

bool FactsTable::isShownWhenDisclosed() const
{
    return !m_names->text().isEmpty() && isDisclosed();
}

}} // namespace Norvane::Host
