"""Holds gxexport against the model: random class files, random formats and options, byte for byte.

    compare.py --gxexport build/release/bin/gxexport --count 300
"""
from __future__ import annotations

import argparse
import collections
import json
import random
import subprocess
import sys
import tempfile
from pathlib import Path

import generate
import gxcurrent
import gxmodel
from gxmodel import GRADEBOOKS, REPORT_FIELDS, ClassRecord, Options

USER_FIELDS = ["first-name", "last-name", "student-id", "alias", "custom-1", "custom-2", "custom-3"]
COLUMNS = {"responses": (True, False), "points": (False, True), "both": (True, True)}
UNREADABLE, RUNS_PER_FILE = 3, 5
Run = tuple[list[str], int, bytes]      # arguments, expected exit status, expected bytes


def choose_dialect(r: random.Random, key: str, options: Options) -> list[str]:
    current = gxcurrent.CURRENT.get(key)
    if not current or r.random() < 0.5:
        return []
    semicolons = current.semicolons and r.random() < 0.5
    options.delimiter = ";" if semicolons else ","
    return ["--dialect", "current", *(["--delimiter", "semicolon"] if semicolons else [])]


def export(record: ClassRecord, key: str, options: Options) -> bytes:
    return (gxcurrent if options.delimiter else gxmodel).export(record, key, options)


def detailed_run(r: random.Random, record: ClassRecord) -> Run:
    columns, every = r.choice(list(COLUMNS)), list(REPORT_FIELDS)
    options = Options(assignments=[r.choice(record.assignments).id])
    options.responses, options.points = COLUMNS[columns]
    options.fields = r.choice([every, [], r.sample(every, r.randrange(1, 15))])
    options.answer_key = r.random() < 0.5
    options.points_possible = r.random() < 0.5
    options.asterisks = r.random() < 0.5
    named = "all" if options.fields is every else ",".join(options.fields) or "none"
    flags = {"--answer-key": options.answer_key, "--points-possible": options.points_possible,
             "--no-asterisks": not options.asterisks}
    arguments = ["-f", "detailed", "-a", str(options.assignments[0]), "--columns", columns,
                 "--fields", named, *(flag for flag, on in flags.items() if on)]
    arguments += choose_dialect(r, "detailed", options)
    return arguments, 0, export(record, "detailed", options)


def gradebook_run(r: random.Random, record: ClassRecord, key: str) -> Run:
    options, arguments = Options(), ["-f", key]
    if r.random() < 0.8:
        options.user_field = r.choice(USER_FIELDS)
        arguments += ["-u", options.user_field]
    if record.assignments and r.random() < 0.4:
        some = r.sample(record.assignments, r.randrange(1, len(record.assignments) + 1))
        options.assignments = [assignment.id for assignment in some]
        arguments += [word for number in options.assignments for word in ("-a", str(number))]
    arguments += choose_dialect(r, key, options)
    if key in gxmodel.UNQUOTED and not options.delimiter and r.random() < 0.5:
        options.quotes = False
        arguments.append("--no-quotes")
    return arguments, 0, export(record, key, options)


def runs_on(r: random.Random, data: bytes) -> list[Run]:
    try:
        record = gxmodel.read_class(data)
    except gxmodel.Unreadable:
        return [(["-f", r.choice(list(GRADEBOOKS))], UNREADABLE, b"")]
    keys = list(GRADEBOOKS) + ["detailed"] * (3 if record.assignments else 0)
    return [detailed_run(r, record) if key == "detailed" else gradebook_run(r, record, key)
            for key in r.sample(keys, RUNS_PER_FILE)]


def gxexport(path: str, arguments: list[str], file: Path, piped: bool) -> tuple[int, bytes, bytes]:
    command = [path, "export", *arguments, "--force", "-" if piped else str(file)]
    try:
        done = subprocess.run(command, input=file.read_bytes(), capture_output=True, timeout=60)
    except subprocess.TimeoutExpired as late:
        return -1, late.stdout or b"", b"no answer in 60 seconds"
    return done.returncode, done.stdout, done.stderr


def check_formats(path: str) -> None:
    """The model has to know every format that there is, which of them can do without quotes, and which have a
    current file."""
    formats = json.loads(subprocess.check_output([path, "formats", "--json"], timeout=60))
    unquoted = {row["key"] for row in formats if row["hasUnquotedVariant"]}
    current = {row["key"] for row in formats if row["hasCurrentFile"]}
    known = ({*GRADEBOOKS, "detailed"}, gxmodel.UNQUOTED, {*gxcurrent.CURRENT})
    if ({row["key"] for row in formats}, unquoted, current) != known:
        sys.exit(f"the formats are not those of the model: {formats}")


def keep(stem: Path, files: dict[str, bytes]) -> None:
    stem.parent.mkdir(parents=True, exist_ok=True)
    for suffix, content in files.items():
        Path(f"{stem}.{suffix}").write_bytes(content)
    print(f"mismatch: {stem}.*", flush=True)


def compare(path: str, count: int, seed: str, kept: Path) -> tuple[collections.Counter[str], int]:
    """Runs by format, and how many of them differ."""
    done, mismatches = collections.Counter(), 0
    with tempfile.TemporaryDirectory() as folder:
        file = Path(folder) / "class.xml"
        for i in range(count):
            data = generate.ClassFile(f"{seed}:{i}").data()
            file.write_bytes(data)
            r = random.Random(f"{seed}:{i}:runs")
            for n, (arguments, status, expected) in enumerate(runs_on(r, data)):
                got_status, got, messages = gxexport(path, arguments, file, r.random() < 0.1)
                dialect = "-current" if "--dialect" in arguments else ""
                done[arguments[1] + dialect if status == 0 else "unreadable"] += 1
                if (got_status, got) == (status, expected):
                    continue
                mismatches += 1
                about = f"{' '.join(arguments)}\nexit status {got_status} instead of {status}\n".encode()
                keep(kept / f"{i}-{n}", {"xml": data, "expected": expected, "got": got,
                                         "txt": about + messages})
    return done, mismatches


def main() -> int:
    parser = argparse.ArgumentParser(description="Holds gxexport against the model.")
    parser.add_argument("--gxexport", required=True, metavar="PATH")
    parser.add_argument("--count", type=int, default=100, metavar="N", help="class files to try")
    parser.add_argument("--seed", metavar="S", help="repeats an earlier run")
    parser.add_argument("--keep", type=Path, metavar="DIR", help="where the files of a mismatch go")
    asked = parser.parse_args()
    check_formats(asked.gxexport)
    seed = asked.seed or str(random.SystemRandom().randrange(10**9))
    print(f"seed {seed}", flush=True)
    kept = asked.keep or Path(tempfile.gettempdir()) / f"gxcompare-{seed}"
    done, mismatches = compare(asked.gxexport, asked.count, seed, kept)
    print(", ".join(f"{name} {times}" for name, times in sorted(done.items())))
    print(f"{asked.count} class files, {done.total()} exports, {mismatches} mismatches")
    return 1 if mismatches else 0


if __name__ == "__main__":
    sys.exit(main())
