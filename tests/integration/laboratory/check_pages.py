#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Checks the guide's laboratory against its scripts.

    check_pages.py CHECK VELQUON-EVENTS SOURCE
"""
import os
import pathlib
import re
import shutil
import string
import subprocess
import sys
import tempfile

CHECK, PROGRAM, SOURCE = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
EXERCISES = ("curvature", "pairs", "kink", "decay_lengths", "lambda")
ENVIRONMENT = {**os.environ, "VELQUON_EVENTS": PROGRAM, "PYTHONDONTWRITEBYTECODE": "1",
               "PYTHONIOENCODING": "utf-8"}
failures = []


def check(condition, message):
    if not condition:
        failures.append(message)


def run(*words):
    return subprocess.run([sys.executable, *map(str, words)], env=ENVIRONMENT, text=True,
                          encoding="utf-8", stdout=subprocess.PIPE)


def printed_by(exercise):
    """The names and texts that an exercise prints."""
    result = run(SOURCE / "scripts/laboratory" / f"{exercise}.py")
    check(result.returncode == 0, f"{exercise}.py ends with {result.returncode}")
    texts = re.findall(r"^(\w+):(?: (.*)|\n((?:\|.*\n)+))", result.stdout, re.MULTILINE)
    return {name: line or block.rstrip("\n") for name, line, block in texts}


def pages_hold_what_the_scripts_print():
    """Page by page: its text with what the scripts, each a program of its own, print."""
    printed = {exercise: printed_by(exercise) for exercise in EXERCISES}
    texts = sorted((SOURCE / "scripts/laboratory/text").glob("*.md"))
    check(len(texts) == 7, f"{len(texts)} texts instead of 7")
    for text in texts:
        own = printed.get(text.stem, {})
        template = text.read_text("utf-8")
        used = [name for _, name, _, _ in string.Formatter().parse(template) if name]
        check(text.stem not in EXERCISES or len(set(used)) > 15, f"{text.name} holds few results")
        page = (SOURCE / "docs/laboratory" / text.name).read_text("utf-8")
        check(page == template.format_map(printed | own),
              f"docs/laboratory/{text.name} is not its text with what the scripts print")


def a_changed_number_is_found():
    """A digit in a table, one in a sentence and one in the teacher's page."""
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder)
        shutil.copytree(SOURCE / "scripts/laboratory", copy / "scripts/laboratory")
        shutil.copytree(SOURCE / "docs/laboratory", copy / "docs/laboratory")
        update = copy / "scripts/laboratory/update"
        check(run(update, "--check").returncode == 0, "the pages are not up to date")
        for name, place in (("kink.md", r"(?m)^\| \d+ \| \d+\."), ("lambda.md", r"The mean is \d+\."),
                            ("teacher.md", r"muon, by tape \(MeV/c\) \| ± \d")):
            page = copy / "docs/laboratory" / name
            before = page.read_text("utf-8")
            end = re.search(place, before).end()
            changed = before[:end] + str((int(before[end]) + 1) % 10
                                         if before[end].isdigit() else 7) + before[end + 1:]
            page.write_text(changed, "utf-8")
            result = run(update, "--check")
            check(result.returncode == 1 and f"docs/laboratory/{name}" in result.stdout,
                  f"a changed number in {name} is not found")
            page.write_text(before, "utf-8")
        run(update)
        check(run(update, "--check").returncode == 0, "update does not write the pages")


def links_and_pictures_are_there():
    pages = [SOURCE / "docs/guide.md", *sorted((SOURCE / "docs/laboratory").glob("*.md"))]
    links = [(page, target) for page in pages
             for target in re.findall(r"\]\(([^)#]+)\)", page.read_text("utf-8"))]
    check(len(links) > 15, f"only {len(links)} links")
    for page, target in links:
        check((page.parent / target).is_file(), f"{page.name} links to {target}, which is not there")
    linked = {(page.parent / target).resolve() for page, target in links}
    for page in pages[1:]:
        check(page.resolve() in linked, f"nothing links to {page.name}")
    for picture in (SOURCE / "docs/images/laboratory").glob("*.png"):
        check(picture.resolve() in linked, f"no page shows {picture.name}")


globals()[CHECK]()
print(*failures, sep="\n")
sys.exit(1 if failures else 0)
