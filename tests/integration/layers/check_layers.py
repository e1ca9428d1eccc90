#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Velquon developers
# SPDX-License-Identifier: GPL-3.0-or-later

"""Tries to include each folder's headers in each folder, with the options its sources are built with.

usage: check_layers.py BUILD_FOLDER SOURCE_FOLDER

A folder reaches its own headers and those of the folders below it that ALLOWED names; an include of
any other must find no file. So must an include of Qt but in the folders that QT names; and no source
includes OpenGL but in those of OPENGL.
"""
import json
import re
import shlex
import subprocess
import sys
from pathlib import Path

# What each folder may include beside itself.
MODEL = {"engine", "events", "files", "model"}
DRAWN = MODEL | {"render", "widgets", "wording", "printing"}
ALLOWED = {
    "engine": set(),
    "events": {"engine"},
    "files": {"engine", "events"},
    "tools": {"engine", "events", "files"},
    "model": {"engine", "events", "files"},
    "render": {"engine"},
    "widgets": set(),
    "wording": MODEL | {"render", "widgets"},
    "printing": MODEL | {"render", "widgets", "wording"},
    "chamber": DRAWN,
    "projection": DRAWN,
    "track": MODEL | {"widgets"},
    "record": MODEL | {"widgets"},
    "guide": {"widgets"},
    "app": DRAWN | {"chamber", "projection", "track", "record", "guide"},
}

WINDOWS = {"widgets", "wording", "printing", "chamber", "projection", "track", "record", "guide", "app"}
# Headers of Qt and the folders that find them.
QT = {
    "QString": WINDOWS | {"render"},
    "QOpenGLContext": WINDOWS | {"render"},
    "QWidget": WINDOWS,
}
# OpenGL's own headers lie where every compiler looks: these folders may include them.
OPENGL = {"render", "widgets", "chamber", "projection", "track"}


def without_precompiled_header(words):
    """A command line without what names the precompiled header, as g++ and as clang have it."""
    return [word for at, word in enumerate(words)
            if "cmake_pch" not in word and word not in ("-include", "-include-pch")
            and not (word == "-Xclang" and words[at + 1].startswith(("-include", "/")))]


def is_of(folder, source, source_folder):
    """Whether a source is of a folder, or several of them compiled as one."""
    return (source.parent == source_folder / folder
            or source.parent.parts[-3:] == ("CMakeFiles", f"{folder}.dir", "Unity"))


def options_of(folder, commands, source_folder):
    """The compiler and its options for the first source of a folder that is no exception."""
    for command in commands:
        source = Path(command["file"])
        if is_of(folder, source, source_folder) and "hepmc3" not in source.name:
            words = shlex.split(command["command"])
            if words[0] == "ccache":
                words = words[1:]
            words = words[:words.index("-o")]
            return command["directory"], without_precompiled_header(words)
    raise SystemExit(f"no source of {folder}/ is built")


def preprocesses(folder, source, commands, source_folder):
    """Whether some lines pass the preprocessor as a source of the folder."""
    directory, options = options_of(folder, commands, source_folder)
    run = subprocess.run(options + ["-E", "-x", "c++", "-"], input=source, text=True, cwd=directory,
                         capture_output=True)
    return run.returncode == 0


def is_as_wanted(folder, header, wanted, commands, source_folder):
    """Whether a source of the folder finds a header, or does not, as wanted."""
    # The header is not read: what it includes in turn may take its time, or not be found.
    source = f'#if !__has_include("{header}")\n#error\n#endif\n'
    return preprocesses(folder, source, commands, source_folder) == wanted


def includers_of_opengl(folder):
    return [source for source in sorted(folder.glob("*.[ch]*"))
            if re.search(r"^#include <GL/", source.read_text(), re.MULTILINE)]


def main():
    build, source_folder = Path(sys.argv[1]), Path(sys.argv[2]).resolve()
    commands = json.loads((build / "compile_commands.json").read_text())
    wrong = []
    for folder, below in ALLOWED.items():
        for other in ALLOWED:
            header = sorted((source_folder / other).glob("*.h"))[0]
            wanted = other == folder or other in below
            if not is_as_wanted(folder, f"{other}/{header.name}", wanted, commands, source_folder):
                wrong.append(f"{folder}/ {'does not find' if wanted else 'finds'} {other}/")
        for header, folders in QT.items():
            wanted = folder in folders
            if not is_as_wanted(folder, header, wanted, commands, source_folder):
                wrong.append(f"{folder}/ {'does not find' if wanted else 'finds'} {header}")
        if folder not in OPENGL:
            wrong += [f"{source} includes OpenGL" for source in includers_of_opengl(source_folder / folder)]
    print("\n".join(wrong))
    return 1 if wrong else 0


if __name__ == "__main__":
    sys.exit(main())
