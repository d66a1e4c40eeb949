/// norvane-layout-check: tells what is wrong with layout files, in the form in which compilers report errors.

#include <ui/docking/LayoutInspector.h>

#include <QBuffer>
#include <QCoreApplication>
#include <QFile>
#include <QTextStream>

#include <cstdio>

using Norvane::UI::LayoutInspector;

namespace {

enum ExitCode { kFine = 0, kProblems = 1, kUnreadable = 2 };

class LayoutCheck
{
    Q_DECLARE_TR_FUNCTIONS(LayoutCheck)
public:
    LayoutCheck();
    int run(QStringList arguments);

private:
    bool parse(QStringList arguments);
    ExitCode check(const QString& name);
    ExitCode report(const QString& name, const LayoutInspector& inspector);
    QString summary(const QString& name, const LayoutInspector& inspector) const;
    QString usage() const;

    QTextStream m_out;
    QTextStream m_error;
    QStringList m_names;
    bool m_helpWanted = false;
    bool m_pagesWanted = false;
};

LayoutCheck::LayoutCheck()
    : m_out(stdout)
    , m_error(stderr)
{
}

int LayoutCheck::run(QStringList arguments)
{
    arguments.removeFirst();
    if (!parse(arguments)) {
        m_error << usage();
        return kUnreadable;
    }
    if (m_helpWanted) {
        m_out << usage();
        return kFine;
    }
    ExitCode worst = kFine;
    for (const QString& name : m_names)
        worst = qMax(worst, check(name));
    return worst;
}

bool LayoutCheck::parse(QStringList arguments)
{
    bool optionsEnded = false;
    for (const QString& argument : arguments) {
        const bool isOption = !optionsEnded && argument.startsWith(QLatin1String("-")) && argument.size() > 1;
        if (!isOption)
            m_names.append(argument);
        else if (argument == QLatin1String("--"))
            optionsEnded = true;
        else if (argument == QLatin1String("--pages"))
            m_pagesWanted = true;
        else if (argument == QLatin1String("--help") || argument == QLatin1String("-h"))
            m_helpWanted = true;
        else {
            m_error << tr("Unknown option: %1").arg(argument) << '\n';
            return false;
        }
    }
    return m_helpWanted || !m_names.isEmpty();
}

ExitCode LayoutCheck::check(const QString& name)
{
    const bool isStandardInput = name == QLatin1String("-");
    QFile file(name);
    QByteArray bytes;
    if (isStandardInput ? file.open(stdin, QIODevice::ReadOnly) : file.open(QIODevice::ReadOnly)) {
        // All at once: an inspector takes a file that fails to be read for one that ends too early.
        bytes = file.readAll();
    }
    if (file.error() != QFile::NoError) {
        m_error << tr("%1: cannot be read: %2").arg(name, file.errorString()) << '\n';
        return kUnreadable;
    }
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::ReadOnly);
    return report(isStandardInput ? tr("<standard input>") : name, LayoutInspector(&buffer));
}

ExitCode LayoutCheck::report(const QString& name, const LayoutInspector& inspector)
{
    for (const LayoutInspector::Problem& problem : inspector.problems()) {
        m_error << name << ':' << problem.line << ':' << problem.column << ": ";
        if (!problem.element.isEmpty())
            m_error << problem.element << ": ";
        m_error << problem.reason << '\n';
    }
    m_out << summary(name, inspector) << '\n';
    if (m_pagesWanted) {
        for (const QString& id : inspector.pageIds())
            m_out << "    " << id << '\n';
    }
    return inspector.problems().isEmpty() ? kFine : kProblems;
}

QString LayoutCheck::summary(const QString& name, const LayoutInspector& inspector) const
{
    if (inspector.problems().isEmpty())
        return tr("%1: valid, %n page(s)", nullptr, inspector.pageIds().size()).arg(name);
    const int count = inspector.problems().size();
    if (inspector.isRestorable())
        return tr("%1: %n problem(s), but it can be restored", nullptr, count).arg(name);
    return tr("%1: %n problem(s), it cannot be restored", nullptr, count).arg(name);
}

QString LayoutCheck::usage() const
{
    return tr(
        "Usage: norvane-layout-check [--pages] FILE...\n"
        "Tells what is wrong with layout files; the file \"-\" is the standard input.\n"
        "\n"
        "  --pages     also list the ids of the pages\n"
        "  -h, --help  show this text\n"
        "\n"
        "The exit code is 0 if all files are fine, 1 if there are problems, 2 if a file cannot be read\n"
        "or the command is not understood.\n");
}

} // namespace

int main(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    return LayoutCheck().run(application.arguments());
}
