#!/usr/bin/python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Walks through every window and dialog of the program as a screen reader does, and by the Tab key.

Each control must have a name and a role, those with a value that value, and each that can be used must
be reached by Tab.

usage: walk.py VELQUON WORK_FOLDER
"""
import subprocess
import sys
from pathlib import Path

from session import (Atspi, PICTURE_ROLES, Session, children, has_state, is_showing, name_of, text_of,
                     wait_until, walk)

# What is worked by a user.
CONTROLS = {"push button", "check box", "radio button", "toggle button", "slider", "spin button",
            "combo box", "text", "entry", "page tab", "table", "tree table", "tree", "list",
            "menu item", "check menu item", "radio menu item"}
WITH_VALUE = {"slider", "spin button"}
# What Qt puts together by itself, and what is reached by the arrow keys within another control.
BY_ARROWS = {"page tab", "menu item", "check menu item", "radio menu item", "table cell", "list item"}

# Windows and dialogs: the window that the key is pressed in, the key, the title that comes up.
PLACES = [
    ("Particle Chamber", None, "Particle Chamber"),
    ("Particle Chamber", None, "Projector"),
    ("Particle Chamber", ["ctrl+e"], "Event Record"),
    ("Particle Chamber", ["ctrl+m"], "Measurements"),
    ("Particle Chamber", ["F1"], "Velquon Guide"),
    ("Particle Chamber", ["alt+h", "k"], "Keyboard Shortcuts"),
    ("Particle Chamber", ["alt+h", "a"], "About Velquon"),
    ("Particle Chamber", ["ctrl+p"], "Print"),
    ("Particle Chamber", ["alt+f", "w"], "Print Worksheets"),
    ("Particle Chamber", ["ctrl+shift+s"], "Save Picture"),
    ("Particle Chamber", ["ctrl+o"], "Open Event"),
    ("Measurements", ["ctrl+alt+m"], "Make Events"),
    ("Particle Chamber", ["ctrl+k"], "Track"),
]
# Windows stay, dialogs go.
STAYING = {"Particle Chamber", "Projector", "Event Record", "Measurements", "Track"}


class Faults(list):
    def expect(self, holds, fault):
        if not holds:
            self.append(fault)


def described(node):
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return f"{node.get_role_name()} '{name_of(node)}' at {box.x},{box.y}"


def is_control(node):
    # A picture that cannot have the focus is an ornament.
    return node.get_role_name() in CONTROLS or (node.get_role_name() in PICTURE_ROLES
                                                and has_state(node, Atspi.StateType.FOCUSABLE))


def controls_in(window):
    return [node for node in walk(window) if is_control(node) and is_showing(node)]


def check_names(window, faults):
    for node in controls_in(window):
        role = node.get_role_name()
        faults.expect(name_of(node) or text_of(node), f"{name_of(window)}: no name: {described(node)}")
        if role in WITH_VALUE:
            faults.expect("Value" in node.get_interfaces(),
                          f"{name_of(window)}: no value: {described(node)}")
    for node in walk(window):
        # Pages with tabs have the focus as their bar of tabs.
        is_tabbed = any(child.get_role_name() == "page tab list" for child in children(node))
        if is_showing(node) and has_state(node, Atspi.StateType.FOCUSABLE) and not is_tabbed:
            faults.expect(node.get_role_name() not in {"filler", "unknown", "panel", "invalid"},
                          f"{name_of(window)}: focus without a role: {described(node)}")


def focused_in(window):
    return [node for node in walk(window) if has_state(node, Atspi.StateType.FOCUSED)]


def shares_focus(node):
    """What has the focus with a node: what it is a part of, and what the arrow keys reach from it."""
    if node.get_role_name() == "check box":
        yield from (other for other in children(node.get_parent())
                    if other.get_role_name() == "check box")
    while node is not None and node.get_role_name() != "application":
        yield node
        node = node.get_parent()


def place_of(node):
    box = Atspi.Component.get_extents(node, Atspi.CoordType.SCREEN)
    return node.get_role_name(), box.x, box.y, box.width, box.height


def check_tab(session, window, faults):
    """Tabs round until a control comes again for the second time."""
    wanted = {place_of(node): described(node) for node in controls_in(window)
              if has_state(node, Atspi.StateType.FOCUSABLE) and has_state(node, Atspi.StateType.ENABLED)
              and node.get_role_name() not in BY_ARROWS and is_alone(node)}
    reached = set()
    for _ in range(3 * len(wanted) + 10):
        for node in focused_in(window):
            reached.update(place_of(other) for other in shares_focus(node))
        if set(wanted) <= reached:
            return
        session.press("Tab")
    for place in set(wanted) - reached:
        faults.append(f"{name_of(window)}: Tab does not reach {wanted[place]}")


def is_alone(node):
    """Whether a control is no part of another one, as the field of a box for numbers is."""
    parent = node.get_parent()
    return parent is None or parent.get_role_name() not in {"spin button", "combo box", "table",
                                                            "tree", "tree table", "list"}


def main():
    program, folder = Path(sys.argv[1]).resolve(), Path(sys.argv[2])
    subprocess.run(["rm", "-rf", folder], check=True)
    folder.mkdir(parents=True)
    session = Session([program, "--seed", "4", "--language", "en"], folder)
    faults = Faults()
    try:
        session.wait_for_active("Particle Chamber")
        session.press("ctrl+n")
        session.window("Particle Chamber: Untitled")
        for front, keys, title in PLACES:
            bring_up(session, front)
            if keys:
                session.press(*keys)
            else:
                bring_up(session, title)
            window = session.wait_for_active(title)
            check_names(window, faults)
            check_tab(session, window, faults)
            if title not in STAYING:
                session.press("Escape")
                wait_until(lambda: not any(title in name_of(other) for other in session.windows()),
                           f"{title} has gone")
    finally:
        session.kill()
    if faults:
        sys.exit("\n".join(faults))


def bring_up(session, title):
    window = session.window(title)
    if not has_state(window, Atspi.StateType.ACTIVE):
        subprocess.run(["xdotool", "search", "--name", title, "windowactivate", "--sync"], check=True)
    session.wait_for_active(title)


if __name__ == "__main__":
    main()
