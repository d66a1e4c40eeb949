"""What the Script panel runs at its start: the prompt, and where output goes."""

import code
import gc
import sys
import threading

import norvane


class Output(object):
    """A stream into the panel, for any thread."""

    def __init__(self, is_error):
        self.is_error = is_error

    def write(self, text):
        norvane.write(text, self.is_error)

    def flush(self):
        pass


sys.stdout = Output(False)
sys.stderr = Output(True)

namespace = {"__name__": "__main__", "norvane": norvane}
console = code.InteractiveConsole(namespace)


def push(line):
    """Takes a line of the prompt. True if it needs more lines."""
    try:
        return bool(console.push(line))
    except SystemExit:
        sys.stderr.write("A script cannot end the program.\n")
        console.resetbuffer()
        return False


def run(source, name):
    """Runs a script, with the names of the prompt."""
    try:
        exec(compile(source, name, "exec"), namespace)
    except SystemExit:
        pass
    except:
        console.showtraceback()


def other_threads():
    """The threads that scripts made and that still run."""
    this = threading.current_thread()
    return [each.ident for each in threading.enumerate() if each is not this and each.ident]


def forget():
    """Lets everything go that scripts made."""
    namespace.clear()
    gc.collect()
