# A thread of its own asks the program, which only its main thread may do, for the list of open pictures.

import os
import threading
import norvane


def measure():
    paths = norvane.run_in_main_thread_with_result(norvane.pictures)
    task = norvane.ProgressTask("Measuring pictures", len(paths))
    total = 0
    for number, path in enumerate(paths):
        task.setMessage("picture %d of %d" % (number + 1, len(paths)))
        # Those of the program itself are in no file.
        if os.path.exists(path):
            total += os.path.getsize(path)
        task.setProgress(number + 1)
    print("%d pictures, %d bytes in files" % (len(paths), total))


threading.Thread(target=measure).start()
