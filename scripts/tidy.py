#!/usr/bin/env python3
"""Analyses the units among the files that standard input names, and the units that include the headers among them.

    tidy.py CLANG_TIDY BUILD

BUILD is a configured build folder. A unit without findings is analysed again only when anything has changed that its
analysis depends on: itself, the project's headers that it includes, how it is compiled, the checks, the installed
headers, clang-tidy.
"""
import concurrent.futures
import functools
import hashlib
import json
import os
import re
import subprocess
import sys
from pathlib import Path

TREE = Path(__file__).resolve().parent.parent
FOLDERS = ("src", "tools", "tests", "fuzz", "bench")
INCLUDE_FOLDERS = [TREE / folder for folder in ("", "src", "include", "tools")]
INCLUDE = re.compile(rb'^\s*#\s*include\s*"([^"]+)"', re.MULTILINE)
NOISE = re.compile(r"^\d+ warnings?( and \d+ errors?)? generated\.$|^Suppressed |^Use -header-filter")


def units_of(build):
    """(path, how it is compiled) of each unit of the project's folders, once. 32-bit units are 64-bit ones again."""
    units = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        path = Path(entry["file"])
        inside = path.is_relative_to(TREE) and path.relative_to(TREE).parts[0] in FOLDERS
        if inside and " -m32 " not in entry["command"]:
            units.setdefault(path, entry)
    return units


@functools.cache
def includes_of(path):
    """The project's files that a file includes itself; conditions do not count."""
    found = set()
    for name in INCLUDE.findall(path.read_bytes()):
        for folder in [path.parent, *INCLUDE_FOLDERS]:
            included = (folder / name.decode()).resolve()
            if included.is_file():
                found.add(included)
    return found


def closure_of(path):
    """The file and all that it includes directly or not."""
    closure, new = set(), {path}
    while new:
        closure |= new
        new = {included for file in new for included in includes_of(file)} - closure
    return sorted(closure)


@functools.cache
def digest_of(path):
    return hashlib.sha256(path.read_bytes()).hexdigest()


def key_of(entry, closure, surroundings):
    """Names all that the analysis of a unit depends on."""
    checks = {folder / ".clang-tidy" for file in closure for folder in file.parents if folder.is_relative_to(TREE)}
    files = [*closure, *sorted(path for path in checks if path.is_file())]
    text = "\n".join([surroundings, entry["command"], *(f"{file} {digest_of(file)}" for file in files)])
    return hashlib.sha256(text.encode()).hexdigest()


def surroundings_of(clang_tidy):
    commands = ([clang_tidy, "--version"], ["dpkg-query", "-W", "*-dev", "*-14"])
    return "".join(subprocess.run(command, capture_output=True, text=True).stdout for command in commands)


def analyse(clang_tidy, database, path):
    """What there is to say of a unit; empty when it is clean."""
    result = subprocess.run([clang_tidy, "--quiet", "-p", database, path], capture_output=True, text=True)
    lines = [line for line in (result.stdout + result.stderr).splitlines() if not NOISE.match(line)]
    if result.returncode != 0 and not lines:
        lines = [f"{path}: {clang_tidy} ended with {result.returncode}"]
    return "\n".join(lines)


def main():
    clang_tidy, build = sys.argv[1], TREE / sys.argv[2]
    changed = {TREE / line for line in sys.stdin.read().split("\n") if line}
    units = units_of(build)
    closures = {path: closure_of(path) for path in units}
    affected = [path for path in units if changed.intersection(closures[path])]

    clean = build / "tidy" / "clean"
    clean.mkdir(parents=True, exist_ok=True)
    (build / "tidy" / "compile_commands.json").write_text(json.dumps(list(units.values())))
    surroundings = surroundings_of(clang_tidy)
    keys = {path: key_of(units[path], closures[path], surroundings) for path in affected}
    todo = [path for path in affected if not (clean / keys[path]).exists()]

    findings = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as executor:
        jobs = {executor.submit(analyse, clang_tidy, build / "tidy", path): path for path in todo}
        for job in concurrent.futures.as_completed(jobs):
            if job.result():
                findings += 1
                print(job.result(), flush=True)
            else:
                (clean / keys[jobs[job]]).touch()
    known = len(affected) - len(todo)
    print(f"{clang_tidy}: {len(affected) - findings} of {len(affected)} units are clean ({known} known from before)")
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
