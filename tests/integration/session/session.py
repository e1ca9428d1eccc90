# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""A person before the screen: sees through the accessibility bus, works keys and mouse by xdotool.

Needs a display and scripts/with-accessibility.
"""
import os
import subprocess
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi, GLib  # noqa: E402

PATIENCE = 20.0  # seconds; long enough for a busy machine
PAUSE = 0.02

PICTURE_ROLES = {"graphic", "image", "drawing area", "canvas", "animation"}


def wait_until(holds, what):
    """Waits until a function gives something, and returns that."""
    end = time.monotonic() + PATIENCE
    while True:
        try:
            found = holds()
        except GLib.Error:
            # What was looked at has just gone.
            found = None
        if found:
            return found
        if time.monotonic() > end:
            raise AssertionError(f"waited in vain: {what}")
        time.sleep(PAUSE)


def xdotool(*words):
    subprocess.run(["xdotool", *map(str, words)], check=True)


def children(node):
    for index in range(node.get_child_count()):
        child = node.get_child_at_index(index)
        if child is not None:
            yield child


def walk(node):
    """A node and all below it."""
    yield node
    for child in children(node):
        yield from walk(child)


def states(node):
    return set(node.get_state_set().get_states())


def has_state(node, state):
    return node.get_state_set().contains(state)


def is_showing(node):
    return has_state(node, Atspi.StateType.SHOWING) and has_state(node, Atspi.StateType.VISIBLE)


def name_of(node):
    return node.get_name() or ""


def text_of(node):
    """What a node shows: its text where it has one, or its name."""
    if "Text" in (node.get_interfaces() or []):
        return Atspi.Text.get_text(node, 0, Atspi.Text.get_character_count(node))
    return name_of(node)


def rectangle(node):
    return Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)


def menu_bar_of(window):
    return next(child for child in children(window)
                if child.get_role_name() == "menu bar" and is_showing(child))


class Session:
    """A program that runs, with its windows."""

    def __init__(self, command, folder, environment=None):
        self.program = subprocess.Popen(command, cwd=folder, env={**os.environ, **(environment or {})})
        self.application = wait_until(self._find_application, "the program on the accessibility bus")

    def _find_application(self):
        assert self.program.poll() is None, "the program has ended"
        desktop = Atspi.get_desktop(0)
        # What is cached is renewed by events, for which nobody listens here.
        desktop.set_cache_mask(Atspi.Cache.NONE)
        for child in children(desktop):
            if child.get_process_id() == self.program.pid and child.get_child_count() > 0:
                return child
        return None

    def windows(self):
        return [window for window in children(self.application) if is_showing(window)]

    def window(self, title):
        """The window that has words in its title, once it is there."""
        return wait_until(
            lambda: next((window for window in self.windows() if title in name_of(window)), None),
            f"a window '{title}'")

    def find(self, role, name, within=None):
        """What shows under a role and a name, once it is there."""
        def look():
            for top in [within] if within is not None else self.windows():
                for node in walk(top):
                    if (node.get_role_name() == role and name in name_of(node).replace("&", "")
                            and is_showing(node)):
                        return node
            return None
        return wait_until(look, f"a {role} '{name}'")

    def wait_for_text(self, words, within):
        return wait_until(
            lambda: any(words in text_of(node) for node in walk(within) if is_showing(node)),
            f"'{words}' in {name_of(within)}")

    def wait_for_active(self, title):
        """Waits until the window with words in its title has the keys."""
        window = self.window(title)
        wait_until(lambda: has_state(window, Atspi.StateType.ACTIVE), f"{title} has the keys")
        return window

    def press(self, *keys):
        for key in keys:
            xdotool("key", key)
            time.sleep(PAUSE)

    def write(self, text):
        xdotool("type", "--delay", "5", text)

    def point_at(self, node, across=0.5, down=0.5):
        """Brings the mouse to a place in a node, as parts of its width and height."""
        box = rectangle(node)
        xdotool("mousemove", "--sync", box.x + int(box.width * across),
                box.y + int(box.height * down))

    def click(self, node, times=1):
        self.point_at(node)
        for _ in range(times):
            xdotool("click", 1)
        time.sleep(PAUSE)

    def choose(self, *titles, within):
        """Clicks through a window's menus down to an item."""
        bar = menu_bar_of(within)
        # Windows share their menus, so a title tells its place in the bar of any that has the same.
        title = rectangle(self.find("menu item", titles[0], bar))
        told = next(box for box in (rectangle(menu_bar_of(window)) for window in self.windows())
                    if box.x <= title.x < box.x + box.width and box.y <= title.y < box.y + box.height)
        box = rectangle(bar)
        xdotool("mousemove", "--sync", box.x + title.x - told.x + title.width // 2,
                box.y + title.height // 2, "click", 1)
        for item in titles[1:]:
            self.click(self.find("menu item", item, bar))

    def drag(self, node, start, end):
        """Drags from a place of a node to another, both in pixels from its top left."""
        box = rectangle(node)
        xdotool("mousemove", "--sync", box.x + start[0], box.y + start[1], "mousedown", 1)
        xdotool("mousemove", "--sync", box.x + (start[0] + end[0]) // 2,
                box.y + (start[1] + end[1]) // 2)
        xdotool("mousemove", "--sync", box.x + end[0], box.y + end[1], "mouseup", 1)

    def end(self):
        """Waits for the program's own end."""
        status = self.program.wait(timeout=PATIENCE)
        assert status == 0, f"the program ended with {status}"

    def kill(self):
        if self.program.poll() is None:
            self.program.kill()
            self.program.wait()
