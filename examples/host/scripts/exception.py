# What goes wrong on the main thread comes back to the thread that asked, which may handle it or not.

import threading
import norvane


def first_picture():
    return norvane.pictures()[1000000]


def ask():
    try:
        norvane.run_in_main_thread_with_result(first_picture)
    except IndexError as problem:
        print("handled: %s" % problem)
    norvane.run_in_main_thread_with_result(first_picture)


threading.Thread(target=ask).start()
