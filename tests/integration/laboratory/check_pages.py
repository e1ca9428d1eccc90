#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Checks the guide and its laboratory, in every language, against each other and against the scripts.

    check_pages.py CHECK VELQUON-EVENTS SOURCE
"""
import json
import os
import pathlib
import re
import shutil
import string
import subprocess
import sys
import tempfile

CHECK, PROGRAM, SOURCE = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
LANGUAGES = ("de", "es", "fr", "it")
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


def results_in(template):
    return [name for _, name, _, _ in string.Formatter().parse(template) if name]


def in_language(printed, language):
    """What the scripts print with its words translated: whole lines, and the cells of tables."""
    words = json.loads((SOURCE / "scripts/laboratory/text" / language / "words.json").read_text("utf-8"))

    def translated(line):
        return re.sub(r"(?<=\| )[^|]+(?= \|)", lambda cell: words.get(cell[0], cell[0]), line)
    return {exercise: {name: words.get(text) or translated(text) for name, text in results.items()}
            for exercise, results in printed.items()}


def pages_hold_what_the_scripts_print():
    """Page by page: its text with what the scripts, each a program of its own, print."""
    printed = {exercise: printed_by(exercise) for exercise in EXERCISES}
    for language in ("", *LANGUAGES):
        spoken = in_language(printed, language) if language else printed
        check(not language or spoken["kink"]["table"] != printed["kink"]["table"],
              f"the words of {language} are not translated")
        texts = sorted((SOURCE / "scripts/laboratory/text" / language).glob("*.md"))
        check(len(texts) == 7, f"{len(texts)} texts instead of 7 in {texts[0].parent}")
        for text in texts:
            template = text.read_text("utf-8")
            used = results_in(template)
            check(text.stem not in EXERCISES or len(set(used)) > 15, f"{text} holds few results")
            page = SOURCE / "docs" / language / "laboratory" / text.name
            check(page.read_text("utf-8") == template.format_map(spoken | spoken.get(text.stem, {})),
                  f"{page} is not its text with what the scripts print")


def shape_of(page):
    """What a page has in common with its translations: levels of headings, pictures, links to pages,
    code, items of lists, rows of tables and the results that are filled in."""
    text = page.read_text("utf-8")
    lines = text.splitlines()
    return {
        "headings": [len(h) for h in re.findall(r"^(#+) ", text, re.MULTILINE)],
        "pictures": [pathlib.PurePath(p).name for p in re.findall(r"!\[[^\]]*\]\(([^)]+)\)", text)],
        "links": sorted(pathlib.PurePath(p).name for p in re.findall(r"(?<!!)\[[^\]]+\]\(([^)]+)\)", text)),
        "code": sorted(re.findall(r"`[^`]+`", text)) + [line for line in lines if line.startswith("    ")],
        "items": [line.split(" ")[0] for line in lines if re.match(r"(-|\d+\.) ", line)],
        "rows": [line.count("|") for line in lines if line.startswith("|")],
    }


def translations_are_built_alike():
    """Each page of the guide against the English one, and each text of the laboratory."""
    for english in (SOURCE / "docs/guide.md", *sorted((SOURCE / "docs/laboratory").glob("*.md"))):
        for language in LANGUAGES:
            page = SOURCE / "docs" / language / english.relative_to(SOURCE / "docs")
            check(page.is_file(), f"{page} is not there")
            if not page.is_file():
                continue
            shape = shape_of(page)
            for part, expected in shape_of(english).items():
                check(shape[part] == expected, f"{page}: other {part} than in English: "
                      f"{[x for x in shape[part] if x not in expected][:5]} for "
                      f"{[x for x in expected if x not in shape[part]][:5]}")
    for english in sorted((SOURCE / "scripts/laboratory/text").glob("*.md")):
        for language in LANGUAGES:
            text = english.parent / language / english.name
            check(sorted(results_in(text.read_text("utf-8"))) ==
                  sorted(results_in(english.read_text("utf-8"))), f"{text} holds other results")


def a_changed_number_is_found():
    """A digit in a table, one in a sentence and one in the teacher's page."""
    with tempfile.TemporaryDirectory() as folder:
        copy = pathlib.Path(folder)
        shutil.copytree(SOURCE / "scripts/laboratory", copy / "scripts/laboratory")
        for language in ("", *LANGUAGES):
            shutil.copytree(SOURCE / "docs" / language / "laboratory",
                            copy / "docs" / language / "laboratory")
        update = copy / "scripts/laboratory/update"
        check(run(update, "--check").returncode == 0, "the pages are not up to date")
        for name, place in (("kink.md", r"(?m)^\| \d+ \| \d+\."), ("lambda.md", r"The mean is \d+\."),
                            ("teacher.md", r"muon, by tape \(MeV/c\) \| ± \d"),
                            ("de/laboratory/kink.md", r"(?m)^\| \d+ \| \d+\.")):
            name = name if "/" in name else f"laboratory/{name}"
            page = copy / "docs" / name
            before = page.read_text("utf-8")
            end = re.search(place, before).end()
            changed = before[:end] + str((int(before[end]) + 1) % 10
                                         if before[end].isdigit() else 7) + before[end + 1:]
            page.write_text(changed, "utf-8")
            result = run(update, "--check")
            check(result.returncode == 1 and f"docs/{name}" in result.stdout,
                  f"a changed number in {name} is not found")
            page.write_text(before, "utf-8")
        run(update)
        check(run(update, "--check").returncode == 0, "update does not write the pages")


def links_and_pictures_are_there():
    folders = [SOURCE / "docs" / language for language in ("", *LANGUAGES)]
    guides = [folder / "guide.md" for folder in folders]
    pages = [page for folder in folders
             for page in (folder / "guide.md", *sorted((folder / "laboratory").glob("*.md")))]
    links = [(page, target) for page in pages
             for target in re.findall(r"\]\(([^)#]+)\)", page.read_text("utf-8"))]
    check(len(links) > 75, f"only {len(links)} links")
    for page, target in links:
        check((page.parent / target).is_file(), f"{page} links to {target}, which is not there")
    linked = {(page.parent / target).resolve() for page, target in links}
    for page in pages:
        check(page in guides or page.resolve() in linked, f"nothing links to {page}")
    for picture in (SOURCE / "docs/images/laboratory").glob("*.png"):
        check(picture.resolve() in linked, f"no page shows {picture.name}")


globals()[CHECK]()
print(*failures, sep="\n")
sys.exit(1 if failures else 0)
