# A long job in the program's own thread: the progress dialog shows it and can cancel it.

import time
from norvane import ProgressTask

task = ProgressTask("Counting", 50)
for i in range(50):
    if task.isCancelled():
        print("cancelled at %d" % i)
        break
    task.setMessage("number %d" % (i + 1))
    task.setProgress(i + 1)
    time.sleep(0.05)
else:
    print("counted to 50")
del task
