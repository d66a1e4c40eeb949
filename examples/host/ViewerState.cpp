#include "ViewerState.h"

#include <QList>
#include <QStringList>

#include <algorithm>
#include <cmath>

namespace Norvane { namespace Host {

namespace {

QString textOf(const QList<double>& numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(QString::number(number, 'g', 10));
    return texts.join(QLatin1String(" "));
}

/// None if there are not \a count finite ones.
QList<double> numbersOf(const QString& text, int count)
{
    QList<double> numbers;
    const QStringList texts = text.split(QLatin1Char(' '));
    for (const QString& number : texts) {
        bool isNumber = false;
        numbers.append(number.toDouble(&isNumber));
        if (!isNumber || !std::isfinite(numbers.last()))
            return QList<double>();
    }
    return numbers.size() == count ? numbers : QList<double>();
}

} // namespace

QString ViewerState::toString() const
{
    if (path.isEmpty())
        return QString();
    QString text =
        fitted ? QString::fromLatin1("fit") : textOf(QList<double>() << zoom << center.x() << center.y());
    if (!grade.isNeutral())
        text += QLatin1Char(';') +
                textOf(QList<double>() << grade.exposure << grade.gain[0] << grade.gain[1] << grade.gain[2]);
    return text + QLatin1Char('|') + path;
}

ViewerState ViewerState::fromString(const QString& text)
{
    ViewerState state;
    const int bar = int(text.indexOf(QLatin1Char('|')));
    state.path = text.mid(bar + 1);
    const QString look = text.left(qMax(0, bar));
    const QList<double> view = numbersOf(look.section(QLatin1Char(';'), 0, 0), 3);
    if (!view.isEmpty() && view[0] > 0) {
        state.fitted = false;
        state.zoom = view[0];
        state.center = QPointF(view[1], view[2]);
    }
    const QList<double> numbers = numbersOf(look.section(QLatin1Char(';'), 1), 4);
    PictureGrade grade;
    if (!numbers.isEmpty()) {
        grade.exposure = numbers[0];
        std::copy(numbers.begin() + 1, numbers.end(), grade.gain);
    }
    if (grade.isPossible())
        state.grade = grade;
    return state;
}

}} // namespace Norvane::Host
