#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Checks the files of translations.

    check_translations.py CHECK SOURCE
"""
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as ElementTree

CHECK, SOURCE = sys.argv[1], pathlib.Path(sys.argv[2])
LANGUAGES = ("de", "es", "fr", "it")
FOLDERS = ("app", "chamber", "engine", "events", "files", "guide", "model", "printing", "projection",
           "record", "render", "track", "widgets", "wording")
failures = []


def check(condition, message):
    if not condition:
        failures.append(message)


def translate(folder, *words):
    """What scripts/translate of a folder ends with and says."""
    result = subprocess.run([folder / "scripts/translate", *words], text=True, encoding="utf-8",
                            stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    return result.returncode, result.stdout


def nothing_is_missing():
    """Renewing the files would change none, and every text is translated."""
    status, said = translate(SOURCE, "--check")
    check(status == 0 and not said, said)


def what_is_missing_is_found():
    with tempfile.TemporaryDirectory() as place:
        copy = pathlib.Path(place)
        for folder in (*FOLDERS, "resources/translations", "scripts"):
            shutil.copytree(SOURCE / folder, copy / folder)
        german = copy / "resources/translations/velquon_de.ts"
        window = copy / "record/record_window.cpp"
        damages = (
            (german, r"<message>\n +<source>Event Record</source>.*?</message>\n", "", "Event Record"),
            (german, r"(<source>Event Record</source>\n +<translation)>", r'\1 type="unfinished">',
             "Event Record"),
            (german, r"<source>Event Record</source>", "<source>Record of Old</source>", "Record of Old"),
            (window, r'tr\("Event Record"\)', 'tr("A New Record")', "A New Record"),
        )
        for path, pattern, damage, expected in damages:
            before = path.read_text("utf-8")
            path.write_text(re.sub(pattern, damage, before, count=1, flags=re.DOTALL), "utf-8")
            check(path.read_text("utf-8") != before, f"nothing to damage: {pattern}")
            status, said = translate(copy, "--check")
            check(status == 1 and expected in said, f"not found: {expected} ({status}): {said}")
            path.write_text(before, "utf-8")
        window.write_text(window.read_text("utf-8").replace('tr("Event Record")', 'tr("A New Record")'))
        status, said = translate(copy)
        check(status == 0, f"the files are not renewed: {said}")
        for language in LANGUAGES:
            text = (copy / f"resources/translations/velquon_{language}.ts").read_text("utf-8")
            check("A New Record" in text, f"the new text is not taken into {language}")
        check("A New Record" not in (copy / "resources/translations/velquon_en.ts").read_text("utf-8"),
              "English holds more than forms of number")


def marks_of(text):
    """What a translation must have as its source has it."""
    return {
        "places": sorted(re.findall(r"%(?:n|\d)", text)),
        "key": len(re.findall(r"&(?!&)", text)),
        "further questions": text.endswith("…"),
        "file patterns": re.findall(r"\*\.\w+", text),
        "rich text": re.findall(r"</?\w+>", text),
        "outer blanks": (len(text) - len(text.lstrip(" ")), len(text) - len(text.rstrip(" "))),
        "lines": text.count("\n"),
    }


def marks_are_those_of_the_source():
    """Places for values, keys after &, dots for a dialog, patterns of files."""
    for language in LANGUAGES:
        path = SOURCE / f"resources/translations/velquon_{language}.ts"
        messages = list(ElementTree.parse(path).iter("message"))
        check(len(messages) > 400, f"only {len(messages)} texts in {path}")
        for message in messages:
            source, translation = message.find("source").text, message.find("translation")
            forms = [form.text for form in translation.iter("numerusform")] or [translation.text]
            check(message.get("numerus") != "yes" or len(forms) == 2, f"{path}: forms of '{source}'")
            for form in forms:
                check(marks_of(form or "") == marks_of(source), f"{path}: '{form}' for '{source}'")


globals()[CHECK]()
print(*failures, sep="\n")
sys.exit(1 if failures else 0)
