#include <benchmarks/soak/Residue.h>

#include <benchmarks/HeapCounter.h>

#include <QApplication>
#include <QDir>
#include <QStringList>
#include <QWidget>

namespace Norvane { namespace Benchmarks {

namespace {

int entriesOf(const char* folder)
{
    return int(
        QDir(QLatin1String(folder)).entryList(QDir::AllEntries | QDir::System | QDir::NoDotAndDotDot).size());
}

} // namespace

Residue Residue::now()
{
    Residue residue;
    residue.files = entriesOf("/proc/self/fd");
    residue.threads = entriesOf("/proc/self/task");
    const QWidgetList widgets = QApplication::allWidgets();
    residue.widgets = int(widgets.size());
    for (const QWidget* const widget : widgets)
        ++residue.classes[widget->metaObject()->className()];
    residue.heap = heapBytes();
    return residue;
}

QString Residue::toString() const
{
    return QString::fromLatin1("heap %1 MB, %2 files, %3 threads, %4 widgets")
        .arg(double(heap) / 1e6, 0, 'f', 2)
        .arg(files)
        .arg(threads)
        .arg(widgets);
}

QString Residue::moreWidgetsThan(const Residue& before) const
{
    QStringList more;
    for (QMap<QByteArray, int>::const_iterator i = classes.begin(); i != classes.end(); ++i) {
        const int difference = i.value() - before.classes.value(i.key());
        if (difference > 0)
            more.append(QString::fromLatin1("+%1 %2").arg(difference).arg(QString::fromLatin1(i.key())));
    }
    return more.join(QLatin1String(", "));
}

}} // namespace Norvane::Benchmarks
