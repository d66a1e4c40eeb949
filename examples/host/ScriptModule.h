#pragma once

// Before the headers of the standard library, as Python wants it.
#include <Python.h>

namespace Norvane { namespace Host {

class PictureList;
class ScriptInterpreter;

/// Makes the Python module "norvane", which writes through \a interpreter. With the interpreter's lock; false
/// with an exception set. Later calls only change what it works with; nullptr for nothing.
bool setUpScriptModule(ScriptInterpreter* interpreter, const PictureList* pictures);

}} // namespace Norvane::Host
