#!/usr/bin/env python3
"""Drives the host application with a real mouse and keyboard and looks at the layout file that it leaves.

Usage: drive_host.py HOST PICTURE...
Needs an X desktop with a window manager, and xdotool. Each step starts the host with the layout of the step before,
does one thing, quits with Ctrl+Q and reads the file: so every step is a restart as well.
"""

import os
import subprocess
import sys
import tempfile
import time
import xml.etree.ElementTree as ElementTree

TAB_ROW = 13  # a point in the title strip, from the top of a pane
FIRST_TAB = 45  # a point in a pane's first tab, from its left edge: behind the menu button
HANDLE = 5  # the width of a splitter's handle
PATIENCE = 20  # seconds


def xdotool(*arguments):
    result = subprocess.run(["xdotool", *map(str, arguments)], check=True, stdout=subprocess.PIPE, text=True)
    return result.stdout


def wait_for(condition, what):
    deadline = time.monotonic() + PATIENCE
    while time.monotonic() < deadline:
        value = condition()
        if value:
            return value
        time.sleep(0.05)
    raise AssertionError(f"waited in vain for {what}")


def check(condition, message):
    if not condition:
        raise AssertionError(message)


class Layout:
    """A layout file: windows, panes with their rectangles in the client area of their window, pages."""

    def __init__(self, path):
        with open(path, encoding="utf-8") as file:
            self.text = file.read()
        self.windows = ElementTree.fromstring(self.text).findall("window")

    def panes(self, window=0):
        return list(self.windows[window].iter("dock"))

    @staticmethod
    def pages(pane):
        return [page.get("id") for page in pane.findall("page")]

    def focused_page(self):
        focused = [pane for window in self.windows for pane in window.iter("dock") if pane.get("focus")]
        check(focused, f"no pane has the focus in\n{self.text}")
        return focused[0].get("activePageId")

    def rectangles(self, client, window=0):
        """Where each pane of a window with the client size (w, h) lies: {page ids: (x, y, w, h)}."""
        found = {}
        root = self.windows[window].find("splitter")
        width, height = extent(root)
        place(root, (client[0] - width, client[1] - height, width, height), found)
        return found


def split_sizes(splitter):
    return [int(split.get("size")) for split in splitter.findall("split")]


def extent(node):
    """The size of a splitter as its own splits and those of the splitters in it tell; None where they do not."""
    children = [child for child in node if child.tag != "split"]
    along = sum(split_sizes(node)) + HANDLE * (len(children) - 1)
    across = next((size for size in (extent(child)[1 if node.get("orientation") == "1" else 0]
                                     for child in children if child.tag == "splitter") if size), None)
    return (along, across) if node.get("orientation") == "1" else (across, along)


def place(node, rectangle, found):
    x, y, width, height = rectangle
    if node.tag == "dock":
        found[tuple(Layout.pages(node))] = rectangle
        return
    horizontal = node.get("orientation") == "1"
    for size, child in zip(split_sizes(node), (child for child in node if child.tag != "split")):
        place(child, (x, y, size, height) if horizontal else (x, y, width, size), found)
        x, y = (x + size + HANDLE, y) if horizontal else (x, y + size + HANDLE)


def visible_windows(name):
    """The ids of the visible windows whose name matches the regular expression."""
    found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", name], text=True,
                           stdout=subprocess.PIPE, check=False)
    return found.stdout.split()


def active_window():
    return xdotool("getactivewindow").strip()


class Host:
    """A running host application."""

    def __init__(self, program, arguments, log):
        self.process = subprocess.Popen([program, *arguments], stderr=log)
        self.window = wait_for(lambda: visible_windows("norvane-host$"), "the main window")[-1]
        self.wait_until_at_rest()
        xdotool("windowactivate", "--sync", self.window)

    def client(self):
        facts = dict(line.split("=") for line in xdotool("getwindowgeometry", "--shell", self.window).split())
        return tuple(int(facts[name]) for name in ("X", "Y", "WIDTH", "HEIGHT"))

    def cpu_time(self):
        with open(f"/proc/{self.process.pid}/stat", encoding="utf-8") as file:
            # What follows the name, which may have anything in it.
            fields = file.read().rpartition(")")[2].split()
        return int(fields[11]) + int(fields[12])

    def wait_until_at_rest(self):
        """The window manager and the host have nothing left to do: for a second nothing moves and nobody works."""
        state = {"last": None, "since": time.monotonic()}

        def is_at_rest():
            now = self.client(), self.cpu_time()
            if now != state["last"]:
                state.update(last=now, since=time.monotonic())
            return time.monotonic() - state["since"] > 1.0

        wait_for(is_at_rest, "a main window at rest")

    def move(self, x, y):
        xdotool("mousemove", "--window", self.window, int(x), int(y))

    def drag(self, start, end, steps=12):
        self.move(*start)
        xdotool("mousedown", 1)
        for step in range(1, steps + 1):
            self.move(start[0] + (end[0] - start[0]) * step / steps, start[1] + (end[1] - start[1]) * step / steps)
        xdotool("mouseup", 1)

    def quit(self, activates):
        # The mouse must not lie over another pane than the one with the focus when the next host starts.
        xdotool("mousemove", 0, 0)
        if activates:
            xdotool("windowactivate", "--sync", self.window)
        xdotool("key", "ctrl+q")
        code = self.process.wait(PATIENCE)
        check(code == 0, f"the host ended with {code}")


class Desk:
    """The steps, each a session of the host on the same layout file."""

    def __init__(self, program, pictures, folder):
        self.program = program
        self.pictures = pictures
        self.path = os.path.join(folder, "session.layout")
        self.log_path = os.path.join(folder, "console")
        self.log = open(self.log_path, "w+", encoding="utf-8")

    def start(self, *arguments):
        return Host(self.program, ["--layout", self.path, *arguments], self.log)

    def session(self, action=lambda host: None, *arguments, activates=True):
        host = self.start(*arguments)
        try:
            action(host)
            host.quit(activates)
        finally:
            host.process.kill()
        return Layout(self.path)

    def steps(self):
        layout = self.session(lambda host: None, "--fresh", *self.pictures)
        check(len(layout.panes()) >= 3 and len(layout.windows) == 1, f"no sensible first arrangement:\n{layout.text}")
        layout = self.restarts(layout)
        layout = self.drop_on_right_border(layout)
        layout = self.restarts(layout)
        layout = self.control_click_floats(layout)
        layout = self.restarts(layout)
        self.shortcuts_cycle_focus(layout)
        self.moves_to_second_monitor()

    def restarts(self, layout):
        again = self.session()
        check(again.text == layout.text, f"another arrangement after a restart:\n{layout.text}\nnow\n{again.text}")
        return again

    def viewers(self, layout):
        return [pane for pane in layout.panes() if layout.pages(pane)[0].startswith("Viewer.")]

    def drop_on_right_border(self, layout):
        source, target = self.viewers(layout)[:2]
        page = layout.pages(source)[0]

        def drag(host):
            areas = layout.rectangles(host.client()[2:])
            from_x, from_y, _, _ = areas[tuple(layout.pages(source))]
            to_x, to_y, width, height = areas[tuple(layout.pages(target))]
            host.drag((from_x + FIRST_TAB, from_y + TAB_ROW), (to_x + width - 10, to_y + height / 2))

        result = self.session(drag)
        areas = result.rectangles((0, 0))
        mine, its = areas.get((page,)), areas.get(tuple(layout.pages(target)))
        check(mine and its and (mine[0], mine[1], mine[3]) == (its[0] + its[2] + HANDLE, its[1], its[3]),
              f"{page} is not alone and right of the target:\n{result.text}")
        return result

    def control_click_floats(self, layout):
        pane = self.viewers(layout)[0]
        page = layout.pages(pane)[0]

        def click(host):
            x, y, _, _ = layout.rectangles(host.client()[2:])[tuple(layout.pages(pane))]
            host.move(x + FIRST_TAB, y + TAB_ROW)
            xdotool("keydown", "ctrl", "click", 1, "keyup", "ctrl")
            # Its title is a single space.
            wait_for(lambda: visible_windows("^ $"), "the floating window")

        result = self.session(click)
        check(len(result.windows) == 2 and [page] == [p for d in result.panes(1) for p in result.pages(d)],
              f"{page} does not float:\n{result.text}")
        return result

    def shortcuts_cycle_focus(self, layout):
        panes = [[layout.pages(pane) for pane in layout.panes(window)] for window in range(len(layout.windows))]
        in_main_window = [page for pages in panes[0] for page in pages]
        current = [pane.get("activePageId") for window in range(len(layout.windows)) for pane in layout.panes(window)
                   if layout.pages(pane)]
        tabs = [page for window in panes for pages in window for page in pages]

        def focus_after(keys, stops):
            """The page with the focus after the shortcut was pressed once for each of the pages it should reach."""

            def press(host):
                for page in stops:
                    xdotool("key", keys)
                    wait_for(lambda: (active_window() == host.window) == (page in in_main_window),
                             f"the window of {page} to become active, after {keys}")

            with open(self.path, "w", encoding="utf-8") as file:
                file.write(layout.text)
            return self.session(press, activates=False).focused_page()

        def check_cycle(keys, order, most):
            start = order.index(layout.focused_page())
            for count in range(1, most + 1):
                stops = [order[(start + step) % len(order)] for step in range(1, count + 1)]
                page = focus_after(keys, stops)
                check(page == stops[-1], f"{keys}, {count} times: the focus is on {page}, not on {stops[-1]}")

        # Once around: into the floating window and out of it.
        check_cycle("ctrl+alt+grave", current, len(current))
        check_cycle("ctrl+shift+alt+grave", current[::-1], 2)
        check_cycle("ctrl+shift+bracketright", tabs, 2)
        check_cycle("ctrl+shift+bracketleft", tabs[::-1], 2)

    def moves_to_second_monitor(self):
        if os.environ.get("NORVANE_MONITORS", "2") == "1":
            print("skipped: there is no second monitor to move to")
            return
        result = self.session(lambda host: xdotool("windowmove", "--sync", host.window, 1320, 60))
        check(result.windows[0].get("screen") == "1", f"the window is not on the second monitor:\n{result.text}")
        self.restarts(result)


def main():
    if len(sys.argv) < 3:
        sys.exit(__doc__)
    with tempfile.TemporaryDirectory() as folder:
        # Settings of the user neither change the test nor are changed by it.
        os.environ["XDG_CONFIG_HOME"] = folder
        desk = Desk(sys.argv[1], sys.argv[2:], folder)
        desk.steps()
        with open(desk.log_path, encoding="utf-8") as log:
            # Qt's race with window managers, which NorvaneTests.cmake tells about.
            console = [line for line in log if "(BadWindow)" not in line or "(TranslateCoords)" not in line]
        check(not console, f"the host wrote to the console:\n{''.join(console)}")
    print("passed")


if __name__ == "__main__":
    main()
