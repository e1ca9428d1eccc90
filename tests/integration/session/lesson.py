#!/usr/bin/python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""A pupil's lesson with the program as it is installed: sets a value, makes an event, measures it,
notes the measurement, saves and prints, all by the keyboard or all but file names by the mouse.

usage: lesson.py keys|mouse BIN_FOLDER WORK_FOLDER
"""
import csv
import subprocess
import sys
from pathlib import Path

from session import PICTURE_ROLES, Session, is_showing, name_of, wait_until, walk, xdotool

SEED = "4"
FIELD_KG = 2.5
# A pixel of the projector at zoom 1 is a 400th of the chamber's side of 500 cm.
CM_PER_PIXEL = 500.0 / 400.0
PIXELS = 100


class ByKeys:
    """Every step by the keyboard."""

    def __init__(self, session):
        self.session = session

    def set_field(self):
        self.session.wait_for_active("Particle Chamber")
        # The first control of the window is the value of the field.
        self.session.press("Return")
        self.session.write(str(FIELD_KG))
        self.session.press("Return")

    def make_event(self):
        self.session.press("ctrl+n")

    def measure(self):
        self.session.press("alt+w", "p")
        self.session.wait_for_active("Projector")
        self.session.press("t")
        focus_picture(self.session)
        self.session.press("Return", *["shift+Right"] * (PIXELS // 10), "Return")

    def record(self):
        self.session.press("ctrl+Return")
        self.session.window("Measurements")

    def save_measurements(self):
        self.session.press("ctrl+m")
        self.session.wait_for_active("Measurements")
        self.session.press("alt+m", "s")

    def back_to_chamber(self):
        self.session.press("alt+w", "c")
        self.session.wait_for_active("Particle Chamber")

    def save_event(self):
        self.session.press("ctrl+s")

    def print(self):
        self.session.press("ctrl+p")
        self.session.wait_for_active("Print")
        self.session.press("alt+d")

    def quit(self):
        self.session.press("ctrl+q")


class ByMouse:
    """Every step by the mouse; only what is typed in a field is typed."""

    def __init__(self, session):
        self.session = session

    def set_field(self):
        window = self.session.window("Particle Chamber")
        self.session.click(self.session.find("label", "B = ", window), times=2)
        self.session.write(str(FIELD_KG))
        self.session.press("Return")

    def make_event(self):
        window = self.session.window("Particle Chamber")
        self.session.click(self.session.find("push button", "New Event", window))

    def measure(self):
        window = self.session.window("Projector")
        picture = picture_in(window)
        self.session.drag(picture, (100, 200), (100 + PIXELS, 200))

    def record(self):
        window = self.session.window("Projector")
        self.session.click(self.session.find("push button", "Record", window))
        self.session.window("Measurements")

    def save_measurements(self):
        self.session.choose("Window", "Measurements", within=self.session.window("Projector"))
        window = self.session.wait_for_active("Measurements")
        self.session.choose("Measurements", "Save Measurements", within=window)

    def back_to_chamber(self):
        # What is left to see of the chamber's window is clicked on.
        picture = picture_in(self.session.window("Particle Chamber"))
        self.session.point_at(picture, across=0.05, down=0.05)
        xdotool("click", 1)
        self.session.wait_for_active("Particle Chamber")

    def save_event(self):
        self.session.choose("File", "Save Event", within=self.session.window("Particle Chamber"))

    def print(self):
        self.session.choose("File", "Print…", within=self.session.window("Particle Chamber"))
        panel = self.session.wait_for_active("Print")
        self.session.click(self.session.find("push button", "Save as PDF", panel))

    def quit(self):
        self.session.choose("File", "Quit", within=self.session.window("Particle Chamber"))


def picture_in(window):
    return wait_until(
        lambda: next((node for node in walk(window)
                      if node.get_role_name() in PICTURE_ROLES and is_showing(node)), None),
        "the picture of the window")


def focus_picture(session):
    """Tabs to the projector's picture."""
    from gi.repository import Atspi
    picture = picture_in(session.window("Projector"))
    for _ in range(20):
        if picture.get_state_set().contains(Atspi.StateType.FOCUSED):
            return
        session.press("Tab")
    raise AssertionError("Tab does not reach the picture")


def name_file(session, title, path):
    session.wait_for_active(title)
    session.press("ctrl+a")
    session.write(str(path))
    session.press("Return")
    wait_until(lambda: path.exists() and path.stat().st_size > 0, f"the file {path.name}")
    wait_until(lambda: not any(title in name_of(window) for window in session.windows()),
               f"{title} has gone")


def do_lesson(pupil, session, folder):
    chamber = session.window("Particle Chamber")
    pupil.set_field()
    session.wait_for_text(f"B = {FIELD_KG:.3f} kG", chamber)
    pupil.make_event()
    session.window("Particle Chamber: Untitled")
    pupil.measure()
    session.wait_for_text(f"{PIXELS * CM_PER_PIXEL:.2f} cm", session.window("Projector"))
    pupil.record()
    pupil.save_measurements()
    name_file(session, "Save Measurements", folder / "lesson.csv")
    session.wait_for_active("Measurements")
    pupil.back_to_chamber()
    pupil.save_event()
    name_file(session, "Save", folder / "lesson.cwd")
    session.wait_for_active("Particle Chamber: lesson.cwd")
    pupil.print()
    name_file(session, "Save as PDF", folder / "lesson.pdf")
    session.wait_for_active("Particle Chamber")
    pupil.quit()
    session.end()


def check_files(programs, folder):
    subprocess.run([programs / "velquon-events", "--type", "pi-", "--field", str(FIELD_KG), "--seed",
                    SEED, "--format", "cwd", "--output", folder / "alone"], check=True)
    alone = (folder / "alone" / "event-000001.cwd").read_bytes()
    assert (folder / "lesson.cwd").read_bytes() == alone, "the event is another one"

    with open(folder / "lesson.csv", newline="", encoding="utf-8") as table:
        rows = list(csv.DictReader(line for line in table if not line.startswith("#")))
    assert len(rows) == 1, rows
    value = float(rows[0]["value"])
    assert abs(value - PIXELS * CM_PER_PIXEL) < 0.01, value

    text = subprocess.run(["pdftotext", folder / "lesson.pdf", "-"], check=True,
                          capture_output=True, text=True).stdout
    assert "Particle Chamber: lesson.cwd" in text, text
    assert f"B = {FIELD_KG} kG" in text, text


def main():
    pupil, programs, folder = sys.argv[1], Path(sys.argv[2]), Path(sys.argv[3])
    subprocess.run(["rm", "-rf", folder], check=True)
    (folder / "alone").mkdir(parents=True)
    session = Session([programs / "velquon", "--seed", SEED, "--language", "en"], folder)
    try:
        do_lesson({"keys": ByKeys, "mouse": ByMouse}[pupil](session), session, folder.resolve())
    finally:
        session.kill()
    check_files(programs, folder.resolve())


if __name__ == "__main__":
    main()
