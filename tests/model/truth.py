"""Holds what `gxexport check` says against what Canvas, Moodle and Sakai do with the file.

    truth.py --gxexport build/release/bin/gxexport --count 300

Each class is exported in both dialects and imported into its course by the models. Silence (the import goes wrong and
check names no trouble) and a false alarm (check names trouble and the import goes right) are faults alike.
"""
from __future__ import annotations

import argparse
import collections
import copy
import json
import os
import random
import subprocess
import sys
import tempfile
from collections.abc import Callable
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path
from typing import NamedTuple, TypeVar

import awkward
import importers
from awkward import SchoolClass
from importers import Column, Course, Refused

DONE, TROUBLE = 0, 6
T = TypeVar("T")
VARIANTS = [("canvas", "classic", []), ("canvas", "current", []), ("moodle", "classic", []), ("moodle", "current", []),
            ("sakai", "classic", []), ("sakai", "current", []), ("sakai", "current", ["--delimiter", "semicolon"])]


class Case(NamedTuple):
    system: str
    dialect: str
    awkward: tuple[str, ...]
    seed: str
    outcome: str            # of the import; empty: everything is where it belongs
    codes: dict[str, str]   # what check found, with the consequence

    def troubles(self) -> list[str]:
        return [code for code, consequence in self.codes.items() if consequence != "note"]

    def fault(self) -> str:
        if bool(self.outcome) == bool(self.troubles()):
            return ""
        # Who has more than the chosen ids to go by may bear that they are equal; they are exported by force only.
        if not self.outcome and self.system == "canvas" and self.troubles() == ["id-duplicate"]:
            return ""
        return "silence" if self.outcome else "false alarm"

    def is_refused(self) -> bool:
        return self.outcome.startswith("refused")


def run(path: str, *arguments: str) -> subprocess.CompletedProcess[bytes]:
    return subprocess.run([path, *arguments], capture_output=True, timeout=60)


def imported(system: str, data: bytes, course: Course, made: SchoolClass, semicolons: bool = False) -> Course:
    key = "login" if made.field == "alias" else "sis"
    if system == "canvas":
        return importers.import_canvas(data, course)
    if system == "moodle":
        return importers.import_moodle(data, course, ("User ID", key))
    return importers.import_sakai(data, course, key, semicolons)


def intended(course: Course, made: SchoolClass, titles: dict[int, str]) -> Course:
    """The course with every result of the class where it belongs."""
    after = copy.deepcopy(course)
    used: list[Column] = []
    for work in made.exported():
        column = next((c for c in after.columns if c.title == titles[work.id] and c not in used and not c.custom), None)
        used.append(column or after.added(titles[work.id], work.points))
        for pupil in made.pupils:
            if pupil.id in work.scores:
                used[-1].scores[awkward.number_of(pupil.id)] = work.scores[pupil.id]
    return after


def columns_of(course: Course) -> list[tuple]:
    def plain(score: object) -> object:
        return score if isinstance(score, str) else f"{score + 0.0:g}"

    return sorted((c.title, c.points or 0, sorted((who, plain(score)) for who, score in c.scores.items()))
                  for c in course.columns)


def difference(wanted: Course, got: Course) -> str:
    """The first one, or nothing."""
    columns = columns_of(wanted), columns_of(got)
    if columns[0] == columns[1]:
        return ""
    missing, extra = ([c for c in columns[i] if c not in columns[1 - i]] for i in (0, 1))
    return f"wanted {missing[:1]}, got {extra[:1]}"


def findings_in(output: bytes) -> dict[str, str]:
    """Consequences by code, of the only class."""
    report = json.loads(output)
    return {finding["code"]: finding["consequence"] for finding in report.get("classes", [report])[0]["findings"]}


def findings_of(path: str, arguments: list[str]) -> dict[str, str]:
    done = run(path, "check", "--json", *arguments)
    found = findings_in(done.stdout) if done.stdout else {}
    if done.returncode != (TROUBLE if set(found.values()) - {"note"} else DONE):
        raise ValueError(f"check {' '.join(arguments)}: status {done.returncode}, {found}\n{done.stderr.decode()}")
    return found


def cases_of(path: str, seed: str, only: str, stem: str) -> list[Case]:
    made, file, cases = awkward.build(seed, only=only), f"{stem}.xml", []
    Path(file).write_bytes(made.xml())
    for system, dialect, more in VARIANTS:
        if system != "canvas" and not made.exported():
            continue        # what the others do with such a file, we do not know
        arguments = ["-f", system, *made.arguments(), "--dialect", dialect, file]
        done = run(path, "export", "--force", *more, *arguments)
        if done.returncode != DONE:
            raise ValueError(f"export {' '.join(arguments)}: status {done.returncode}\n{done.stderr.decode()}")
        titles = {w.id: w.title.replace('"', "'") if dialect == "classic" else w.title for w in made.works}
        course = awkward.course_of(made, random.Random(seed + system), titles, system, system == "moodle")
        try:
            after = imported(system, done.stdout, course, made, bool(more))
            outcome = difference(intended(course, made, titles), after)
        except Refused as refusal:
            outcome = f"refused: {refusal}"
        cases.append(Case(system, dialect, tuple(made.awkward), seed, outcome, findings_of(path, arguments)))
    return cases


def seeds(base: str, count: int) -> list[tuple[str, str]]:
    """Seed and the one awkward thing; every other class has none or several, at random."""
    if ":" in base:
        number = int(base.partition(":")[2])
        return [seeds(base.partition(":")[0], number + 1)[number]]
    names = list(awkward.AWKWARD)
    random.Random(base).shuffle(names)
    return [(f"{base}:{i}", "" if i % 2 else names[i // 2 % len(names)]) for i in range(count)]


def report(cases: list[Case]) -> int:
    kinds = sorted({(case.system, case.dialect) for case in cases})
    faults = collections.defaultdict(list)
    for case in cases:
        if case.fault():
            faults[case.fault(), case.system, case.dialect, case.awkward, tuple(case.codes)].append(case)
    for (fault, system, dialect, things, codes), some in sorted(faults.items(), key=lambda item: len(item[0][3])):
        print(f"{fault}: {system} {dialect}, {', '.join(things)}; seed {some[0].seed}; "
              f"check says {', '.join(codes) or 'nothing'}; {some[0].outcome or 'all arrives'}")
    for kind in kinds:
        of_kind = [case for case in cases if (case.system, case.dialect) == kind]
        count = collections.Counter(case.fault() for case in of_kind)
        told = sum(case.is_refused() == ("refused" in case.codes.values()) for case in of_kind if case.outcome)
        troubled = sum(bool(case.outcome) for case in of_kind)
        print(f"{' '.join(kind)}: {len(of_kind)} imports, {troubled} met trouble; silence {count['silence']}, "
              f"false alarms {count['false alarm']}; told whether all is refused: {told} of {troubled}")
    return len(faults)


def run_many(about: str, work: Callable[[str, str, str, str], list[T]]) -> list[T]:
    """What `work` gives for each class, from the program, a seed, the one awkward thing and the stem of file names."""
    parser = argparse.ArgumentParser(description=about)
    parser.add_argument("--gxexport", required=True, metavar="PATH")
    parser.add_argument("--count", type=int, default=100, metavar="N", help="classes to try")
    parser.add_argument("--seed", metavar="S", help="repeats an earlier run; with a number, one class of it")
    parser.add_argument("--only", default="", metavar="NAME", help="classes with this awkward thing alone")
    parser.add_argument("--keep", type=Path, metavar="DIR", help="where the files stay")
    parser.add_argument("files", nargs="*", metavar="CLASSFILE", help="class files to try, too")
    asked = parser.parse_args()
    seed = asked.seed or str(random.SystemRandom().randrange(10**9))
    print(f"seed {seed}", flush=True)
    with tempfile.TemporaryDirectory() as folder, ThreadPoolExecutor(os.cpu_count()) as workers:
        def each(job: tuple[str, str]) -> list[T]:
            stem = f"{asked.keep or folder}/{Path(job[0]).stem.replace(':', '-')}"
            return work(asked.gxexport, job[0], asked.only or job[1], stem)

        return sum(workers.map(each, [(file, "") for file in asked.files] + seeds(seed, asked.count)), [])


def main() -> int:
    return 1 if report(run_many("Holds gxexport check against models of the systems' importers.", cases_of)) else 0


if __name__ == "__main__":
    sys.exit(main())
