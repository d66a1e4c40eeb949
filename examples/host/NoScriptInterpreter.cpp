// For programs that are built without Python.

#include "ScriptInterpreter.h"

namespace Norvane { namespace Host {

ScriptInterpreter::ScriptInterpreter(const PictureList* pictures, QObject* parent)
    : QObject(parent)
    , m_pictures(pictures)
{
}

ScriptInterpreter::~ScriptInterpreter() = default;

QString ScriptInterpreter::greeting()
{
    return tr("This program was built without Python.");
}

bool ScriptInterpreter::hasThreadsLeft()
{
    return false;
}

bool ScriptInterpreter::push(const QString&)
{
    Q_EMIT written(greeting() + QLatin1Char('\n'), true);
    return false;
}

void ScriptInterpreter::run(const QByteArray&, const QString&)
{
    Q_EMIT written(greeting() + QLatin1Char('\n'), true);
}

bool ScriptInterpreter::isRunning() const
{
    return false;
}

void ScriptInterpreter::interrupt() {}

void ScriptInterpreter::finish() {}

}} // namespace Norvane::Host
