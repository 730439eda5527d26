#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""notices.py QT-SOURCES FOLDER: writes the notices of the works of others that Qt contains.

Qt describes each in a file qt_attribution.json beside it: its name, its copyright, its licence and the
file with the licence's text. FOLDER gets a text file for each, named after it.
"""

import json
import pathlib
import sys

# What is built or run here only to build Qt, and what is for other systems.
LEFT_OUT = {"tests", "examples", "tools", "android", "doc", "wasm", "cocoa", "ios", "xcb", "wayland"}


def described(file):
    """The descriptions in a file: one, or several in a list."""
    # Some have line ends inside their texts.
    content = json.loads(file.read_text(encoding="utf-8-sig"), strict=False)
    return content if isinstance(content, list) else [content]


def lines_of(value):
    return "\n".join(value) if isinstance(value, list) else value


def licence_texts(folder, work):
    names = work.get("LicenseFiles") or [work.get("LicenseFile", "")]
    for name in names:
        file = folder / name
        if name and file.is_file():
            yield file.read_text(encoding="utf-8", errors="replace")


def notice(folder, work):
    head = [work["Name"]]
    head += [f"{key}: {lines_of(work[key])}" for key in ("Version", "Description", "License")
             if work.get(key)]
    head.append(lines_of(work.get("Copyright", "")))
    return "\n\n".join(["\n".join(head), *licence_texts(folder, work)]) + "\n"


def main(sources, output):
    output.mkdir(parents=True, exist_ok=True)
    written = 0
    for file in sorted((sources / "src").rglob("qt_attribution.json")):
        if LEFT_OUT & set(file.relative_to(sources).parts):
            continue
        for work in described(file):
            name = work["Id"].replace("/", "-")
            (output / f"{name}.txt").write_text(notice(file.parent, work), encoding="utf-8")
            written += 1
    if written < 10:
        raise SystemExit(f"only {written} notices were found in {sources}")


if __name__ == "__main__":
    if len(sys.argv) != 3:
        raise SystemExit(__doc__.splitlines()[0])
    main(pathlib.Path(sys.argv[1]), pathlib.Path(sys.argv[2]))
