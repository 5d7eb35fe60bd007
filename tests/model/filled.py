"""Holds `gxexport fill` against what the systems do with the gradebook that it fills.

    filled.py --gxexport build/release/bin/gxexport --count 300

A class is filled into a download of its course, and the file is imported again: every result has to be where it
belongs, nothing else may change, and the exit status has to tell whether everything arrived.
"""
from __future__ import annotations

import collections
import copy
import csv
import io
import random
import re
import sys
from collections.abc import Callable, Iterable
from pathlib import Path
from typing import NamedTuple

import awkward
import importers
import truth
from awkward import SchoolClass
from importers import Column, Course, Member, Refused

Row = list[str]
SYSTEMS = ["canvas", "moodle", "sakai", "blackboard91", "d2l"]
UNKNOWN = {"blackboard91", "d2l"}   # of which we have no model, only the layout
TROUBLED = {"canvas": "(Current|Final) (Score|Points|Grade)|Override (Score|Grade|Status)|^Notes$", "moodle": r"\\$",
            "sakai": r"\\|\[|^#|^\* "}      # titles whose columns no upload reaches


class Style(NamedTuple):
    """How a download is written."""
    encoding: str = "utf-8"
    separator: str = ","
    line_end: str = "\n"
    every_quoted: bool = False
    decimal: str = "."

    def text_of(self, rows: Iterable[Row]) -> bytes:
        out = io.StringIO()
        quoting = csv.QUOTE_ALL if self.every_quoted else csv.QUOTE_MINIMAL
        csv.writer(out, delimiter=self.separator, lineterminator=self.line_end, quoting=quoting).writerows(rows)
        return out.getvalue().encode(self.encoding, "replace")

    def rows_of(self, data: bytes) -> list[Row]:
        return list(csv.reader(io.StringIO(data.decode(self.encoding), newline=""), delimiter=self.separator))

    def score(self, column: Column, member: Member, none: str = "") -> str:
        score = column.scores.get(member.number, none)
        return score if isinstance(score, str) else f"{score:.2f}".replace(".", self.decimal)


class Download(NamedTuple):
    style: Style
    rows: list[Row]
    headings: dict[str, str]        # of the columns that hold the members' attributes
    items: dict[str, Column]        # by heading


def _table(style: Style, heading: Row, cells: Callable[[Member], Row], course: Course, none: str,
           titles: dict[str, Column], end: tuple[Row, Row] = ([], [])) -> list[Row]:
    """`end`: heading and cells of what comes after the scores."""
    return [heading + list(titles) + end[0]] + [
        cells(m) + [style.score(c, m, none) for c in titles.values()] + end[1] for m in course.members]


def _canvas(r: random.Random, course: Course) -> Download:
    style = Style(r.choice(["utf-8", "utf-8-sig"]), r.choice(",,;"), r.choice(["\n", "\r\n"]))
    more = [name for name in ("Integration ID", "Root Account") if r.random() < 0.3]
    two_names = r.random() < 0.2
    items = {f"{c.title} ({c.number})": c for c in course.columns if not c.custom}
    custom = [c.title for c in course.columns if c.custom]
    totals = ["Current Points", "Final Points", "Current Score", "Unposted Current Score", "Final Score"]
    names = ["LastName", "FirstName"] if two_names else ["Student"]

    def cells(m: Member) -> Row:
        name = m.names()[1]
        name = f'="{name}"' if name.startswith("=") else name
        return ([m.last, m.first] if two_names else [name]) + [str(m.number), m.sis, m.login, *(["x"] * len(more)),
                                                                "Section 1", *(["late"] * len(custom))]

    heading = [*names, "ID", "SIS User ID", "SIS Login ID", *more, "Section", *custom]
    rows = _table(style, heading, cells, course, "", items, (totals, ["70.00"] * len(totals)))
    blank = [""] * (len(heading) - 1)
    rows.insert(1, ["    Points Possible", *blank, *(f"{c.points:.2f}" for c in items.values()),
                    *(["(read only)"] * len(totals))])
    if r.random() < 0.3:
        rows.insert(1, ["", *blank, *(r.choice(["", "Manual Posting"]) for _ in items), *([""] * len(totals))])
    return Download(style, rows, {"sis": "SIS User ID", "login": "SIS Login ID"}, items)


def _moodle(r: random.Random, course: Course) -> Download:
    style = Style("utf-8", r.choice(",,;:\t"))
    items = {f"{c.title} (Real)": c for c in course.columns}
    heading = ["First name", "Last name", "ID number", "Institution", "Department", "Email address"]
    rows = _table(style, heading, lambda m: [m.first, m.last, m.sis, "", "", m.login], course, "-", items,
                  (["Essay (Feedback)", "Course total (Real)", "Last downloaded from this course"],
                   ["good", "50.00", "1763740800"]))
    return Download(style, rows, {"sis": "ID number", "login": "Email address"}, items)


def _sakai(r: random.Random, course: Course, key: str) -> Download:
    separator, decimal = r.choice([",.", ";,"])
    style = Style("iso-8859-1", separator, "\r\n", True, decimal)
    items = {f"{c.title} [{f'{c.points:g}'.replace('.', decimal)}]": c for c in course.columns}
    rows = _table(style, ["Student ID", "Name", "# Student Number"], lambda m: [getattr(m, key), m.names()[1], ""],
                  course, "", items, (["* Essay", "# Test tool [10]"], ["good", "3"]))
    return Download(style, rows, {key: "Student ID"}, items)


def _blackboard(r: random.Random, course: Course) -> Download:
    style = r.choice([Style("utf-16", "\t", every_quoted=True), Style("utf-8-sig", ",", every_quoted=True)])
    items = {f"{c.title} [Total Pts: {c.points:g} Score] |{c.number}": c for c in course.columns}
    heading = ["Last Name", "First Name", "Username", "Student ID", "Last Access", "Availability"]
    rows = _table(style, heading, lambda m: [m.last, m.first, m.login, m.sis, "2026-11-20", "Yes"], course, "", items)
    return Download(style, rows, {"sis": "Student ID", "login": "Username"}, items)


def _brightspace(r: random.Random, course: Course) -> Download:
    style = Style(r.choice(["utf-8", "utf-8-sig"]), ",", r.choice(["\n", "\r\n"]))
    items = {f"{c.title} Points Grade <Numeric MaxPoints:{c.points:g} Weight:1>": c for c in course.columns}
    heading = ["OrgDefinedId", "Username", "Last Name", "First Name", "Email"]
    rows = _table(style, heading, lambda m: ["#" + m.sis, "#" + m.login, m.last, m.first, "a@b.example"], course, "",
                  items, (["End-of-Line Indicator"], ["#"]))
    return Download(style, rows, {"sis": "OrgDefinedId", "login": "Username"}, items)


def download_of(r: random.Random, system: str, course: Course, key: str) -> Download:
    if system == "sakai":
        return _sakai(r, course, key)
    return {"canvas": _canvas, "moodle": _moodle, "blackboard91": _blackboard, "d2l": _brightspace}[system](r, course)


def _import_by_heading(data: bytes, before: Course, download: Download, key: str) -> Course:
    """For systems of which no more is known than the layout."""
    course = copy.deepcopy(before)
    headings, *rows = download.style.rows_of(data)
    number = {heading: column.number for heading, column in download.items.items()}
    for heading in set(headings) - set(download.rows[0]):
        number[heading] = course.added(heading.removesuffix(" Points Grade"), None).number
    for row in rows:
        identifier = row[headings.index(download.headings[key])]
        member = course.having(key, identifier.removeprefix("#") if headings[0] == "OrgDefinedId" else identifier)
        if not member:
            raise Refused(f"no student {identifier}")
        for heading, cell in zip(headings, row):
            if heading in number:
                column = next(c for c in course.columns if c.number == number[heading])
                column.put(member, float(cell) if cell else None)
    return course


def imported(system: str, data: bytes, course: Course, download: Download, key: str) -> Course:
    if system == "canvas":
        return importers.import_canvas(data, course)
    if system == "moodle":
        return importers.import_moodle(data, course, (download.headings[key], key), download.style.separator)
    if system == "sakai":
        return importers.import_sakai(data, course, key, download.style.decimal == ",")
    return _import_by_heading(data, course, download, key)


def _latin(text: str) -> str:
    return text.encode("iso-8859-1", "replace").decode("iso-8859-1")


def _unsettle(r: random.Random, system: str, made: SchoolClass, course: Course) -> None:
    """Old scores, also of students of whom we have none; students and columns on one side only."""
    if r.random() < 0.4:
        del course.members[r.randrange(len(course.members))]
    if r.random() < 0.2:
        del course.columns[-1:]
    if system == "sakai":       # whose download tells no more than this
        for member in course.members:
            member.sis, member.login = (_latin(text) for text in (member.sis, member.login))
        course.columns = list({_latin(c.title): c for c in course.columns}.values())
        for column in course.columns:
            column.title = _latin(column.title)
    for column in [column for column in course.columns if not column.custom]:
        old = {m.number: r.randrange(int(column.points or 0) * 4 + 1) / 4 for m in course.members}
        column.scores = {who: score for who, score in old.items() if r.random() < 0.5}
        other = r.random() if column.title not in ("Essay", "Attendance") else 1
        if other < 0.1:
            column.title = column.title.upper()
        elif other < 0.2 and system == "moodle":
            column.title = "Quiz: " + column.title
        elif other < 0.25 and system in ("canvas", "blackboard91"):     # tell them apart by numbers
            course.added(column.title, column.points)
    if system == "canvas" and r.random() < 0.3:
        course.columns[0].scores[r.choice(course.members).number] = "EX"


class Attempt(NamedTuple):
    """One class, its course, and what is asked of fill."""
    made: SchoolClass
    course: Course
    key: str
    titles: dict[int, str]          # of columns, which the user names
    only_empty: bool
    new_columns: bool

    def options(self) -> list[str]:
        return [*self.made.arguments(), *(["--only-empty"] * self.only_empty), *(["--new-columns"] * self.new_columns),
                *(word for number, title in self.titles.items() for word in ("--map", f"{number}={title}"))]

    def member(self, pupil: awkward.Pupil) -> Member | None:
        return next((m for m in self.course.members if m.number == awkward.number_of(pupil.id)), None)

    def columns(self, work: awkward.Work, exactly: bool) -> list[Column]:
        """Those that its results may go to."""
        def same(title: str) -> str:
            title = title if exactly else " ".join(title.split()).casefold()
            return title.removeprefix("Quiz: ").removeprefix("quiz: ")

        wanted = self.titles.get(work.id, work.title)
        return [c for c in self.course.columns if same(c.title) == same(wanted) and not c.custom]

    def cells(self, certain: bool) -> dict[tuple[int, int], float]:
        """Scores by member and column: those that have to arrive, or all that may."""
        ids = collections.Counter(pupil.ids[self.made.field] for pupil in self.made.pupils)
        titles = collections.Counter(self.titles.get(work.id, work.title) for work in self.made.exported())
        found = {}
        for work in self.made.exported():
            columns = self.columns(work, certain)
            if certain and (len(columns) != 1 or titles[work.title] > 1 or work.id in self.titles):
                continue
            for pupil in self.made.pupils:
                member, own = self.member(pupil), pupil.ids[self.made.field]
                if not member or pupil.id not in work.scores:
                    continue
                if certain and (getattr(member, self.key) != own or ids[own] > 1):
                    continue
                found |= {(member.number, c.number): work.scores[pupil.id] for c in columns
                          if not (self.only_empty and member.number in c.scores)}
        return found


def _attempt(seed: str, system: str) -> Attempt:
    r = random.Random(seed + system)
    made = awkward.build(seed, how_many=r.randrange(3))
    course = awkward.course_of(made, r, {w.id: w.title for w in made.works}, system, r.random() < 0.6)
    _unsettle(r, system, made, course)
    attempt = Attempt(made, course, "login" if made.field == "alias" else "sis", {}, r.random() < 0.2, r.random() < 0.2)
    unmatched = [work for work in made.exported()
                 if not attempt.columns(work, False) and max([work.points, *work.scores.values()]) <= 40]
    if unmatched and course.titled("Essay") and r.random() < 0.5:
        attempt.titles[unmatched[0].id] = "Essay"
    return attempt


def cells_of(course: Course) -> dict[tuple[int, int], object]:
    return {(who, c.number): score for c in course.columns for who, score in c.scores.items()}


def faults_of(attempt: Attempt, after: Course, system: str, warned: bool) -> list[str]:
    """What is not as it ought to be, apart from results that stay out and from what fill warned of."""
    old, new = cells_of(attempt.course), cells_of(after)
    may, must = attempt.cells(False), attempt.cells(True)
    points = {c.number: c.points or 0 for c in attempt.course.columns}
    lost = {c.number for c in attempt.course.columns if re.search(TROUBLED.get(system, "^$"), c.title)}
    faults = [f"{cell} was {old.get(cell)} and is {new.get(cell)}" for cell in sorted(old.keys() | new.keys())
              if old.get(cell) != new.get(cell) and cell not in may and cell[1] in points]
    for cell, score in must.items():
        plain = 0 <= score <= points[cell[1]] and round(score, 2) == score
        if plain and cell[1] not in lost and new.get(cell) != score:
            faults.append(f"{cell} is {new.get(cell)} instead of {score}")
    strays = [c.title for c in after.columns if c.number not in points]
    works = {w.title for w in attempt.made.exported() if not attempt.columns(w, True)}
    if strays and not (attempt.new_columns and set(strays) <= works) and not (warned and (lost or attempt.new_columns)):
        faults.append(f"new columns {strays}")
    return faults + ["points"] * any(c.points != points.get(c.number) for c in after.columns[:len(points)] if c.points)


def try_one(path: str, seed: str, system: str, stem: str) -> list[str]:
    """What is wrong with it, in words."""
    attempt = _attempt(seed, system)
    r = random.Random(seed + system)
    download = download_of(r, system, attempt.course, attempt.key)
    files = {name: Path(f"{stem}-{system}.{name}") for name in ("xml", "csv", "out")}
    files["xml"].write_bytes(attempt.made.xml())
    files["csv"].write_bytes(download.style.text_of(download.rows))
    done = truth.run(path, "fill", *(["-f", system] if r.random() < 0.5 else []), *attempt.options(), "--json",
                     "--gradebook", str(files["csv"]), "-o", str(files["out"]), str(files["xml"]))
    if done.returncode not in (truth.DONE, truth.TROUBLE):
        return [f"status {done.returncode}: {done.stderr.decode()}"]
    codes = truth.findings_in(done.stdout)
    after = attempt.course
    try:
        if files["out"].exists():
            after = imported(system, files["out"].read_bytes(), after, download, attempt.key)
        faults = faults_of(attempt, after, system, bool(set(codes.values()) - {"note"}))
    except Refused as refusal:
        return [] if set(codes.values()) - {"note"} else [f"{refusal}, but fill finds {codes}"]
    return faults + _status_faults(attempt, system, after, done.returncode, codes)


def _intended(attempt: Attempt, titles: dict[int, str]) -> Course:
    """The course with every result where a teacher would look for it, under the title that stands there."""
    there = {title.lower(): title for title in (c.title for c in attempt.course.columns if not c.custom)}
    return truth.intended(attempt.course, attempt.made, {k: there.get(t.lower(), t) for k, t in titles.items()})


def check_one(path: str, seed: str, system: str, stem: str) -> list[str]:
    """What `check --gradebook` tells wrongly of an upload that is not filled."""
    attempt, faults, gradebook = _attempt(seed, system), [], Path(f"{stem}-{system}-old.csv")
    for column in attempt.course.columns:       # none is what the class has
        column.scores = {who: old if isinstance(old, str) else old + 0.1 for who, old in column.scores.items()}
    download = download_of(random.Random(seed + system), system, attempt.course, attempt.key)
    gradebook.write_bytes(download.style.text_of(download.rows))
    if system in UNKNOWN or download.style.decimal == "," or not attempt.made.exported():
        return []
    titles = [work.title for work in attempt.made.exported()]
    ids = [pupil.ids[attempt.made.field] for pupil in attempt.made.pupils]
    if len({title.lower() for title in titles}) < len(titles) or len(set(ids)) < len(ids):
        return []       # which of them is meant?
    if '"' in "".join(titles) or system == "sakai" and _latin("".join(ids)) != "".join(ids):
        return []       # which the course of the model has under other names, too
    if system == "moodle" and not all(map(attempt.course.titled, titles)):
        return []       # people choose its columns, and give new ones their points
    for dialect in ("classic", "current"):
        arguments = ["-f", system, *attempt.made.arguments(), "--dialect", dialect, f"{stem}-{system}.xml"]
        data = truth.run(path, "export", "--force", *arguments).stdout
        written = {w.id: w.title.replace('"', "'") if dialect == "classic" else w.title for w in attempt.made.works}
        try:
            after = truth.imported(system, data, attempt.course, attempt.made)
            outcome = truth.difference(_intended(attempt, written), after)
        except Refused as refusal:
            outcome = f"refused: {refusal}"
        codes = truth.findings_of(path, [*arguments, "--gradebook", str(gradebook)])
        case = truth.Case(system, dialect, tuple(attempt.made.awkward), seed, outcome, codes)
        faults += [f"{case.fault()} of the {dialect} upload: {outcome}, {codes}"] * bool(case.fault())
    return faults


def _status_faults(attempt: Attempt, system: str, after: Course, status: int, codes: dict[str, str]) -> list[str]:
    """It has to tell whether all results of the class arrived."""
    known = {pupil.id for pupil in attempt.made.pupils}
    if attempt.only_empty or not attempt.made.works or any(w.scores.keys() - known for w in attempt.made.exported()):
        return []
    goals = attempt._replace(course=after)
    missing = [f"{work.title}: {pupil.first} {pupil.last}" for work in attempt.made.exported()
               for pupil in attempt.made.pupils if pupil.id in work.scores and not _arrived(goals, pupil, work)]
    if bool(missing) == (status == truth.TROUBLE):
        return []
    # Nor does a download of Moodle tell its columns' points.
    if (system in UNKNOWN or "score-above-points" in codes) and not missing and set(codes.values()) - {"note"}:
        return []
    return [f"status {status}, {codes}; missing {missing[:3]}"]


def _arrived(goals: Attempt, pupil: awkward.Pupil, work: awkward.Work) -> bool:
    member = goals.member(pupil)
    scores = [c.scores.get(member.number) for c in goals.columns(work, False)] if member else []
    return any(isinstance(score, float) and f"{score:g}" == f"{work.scores[pupil.id]:g}" for score in scores)


def main() -> int:
    def attempts(path: str, seed: str, _only: str, stem: str) -> list[tuple[str, str, str]]:
        return [(seed, system, "; ".join(try_one(path, seed, system, stem) + check_one(path, seed, system, stem)))
                for system in SYSTEMS]

    done = truth.run_many("Holds gxexport fill against models of the systems' importers.", attempts)
    faults = [attempt for attempt in done if attempt[2]]
    for seed, system, fault in faults:
        print(f"{system}, seed {seed}: {fault}")
    for system in SYSTEMS:
        print(f"{system}: {sum(one[1] == system for one in done)} gradebooks filled, "
              f"{sum(one[1] == system for one in faults)} with faults")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
