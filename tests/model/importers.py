"""What Canvas, Moodle and Sakai make of a file that a teacher uploads into a course.

Each importer takes the bytes and the course and gives the course as it is afterwards, or raises Refused.
They know how these systems behave and nothing of how the file was made.
"""
from __future__ import annotations

import copy
import csv
import re
from dataclasses import dataclass, field

Score = float | str         # words such as "EX" are kept as they are


class Refused(Exception):
    """The system takes nothing of the file."""


@dataclass
class Member:
    number: int             # the system's own
    first: str
    last: str
    sis: str = ""
    login: str = ""
    email: str = ""

    def names(self) -> tuple[str, str]:
        return f"{self.first} {self.last}", f"{self.last}, {self.first}"


@dataclass
class Column:
    number: int             # the system's own
    title: str
    points: float | None
    scores: dict[int, Score] = field(default_factory=dict)      # by the member's number
    custom: bool = False    # holds no scores

    def put(self, member: Member, score: Score | None) -> None:
        if score is None:
            self.scores.pop(member.number, None)
        else:
            self.scores[member.number] = score


@dataclass
class Course:
    members: list[Member]
    columns: list[Column]

    def titled(self, title: str) -> Column | None:
        return next((c for c in self.columns if c.title == title), None)

    def added(self, title: str, points: float | None) -> Column:
        self.columns.append(Column(max((c.number for c in self.columns), default=0) + 1, title, points))
        return self.columns[-1]

    def having(self, key: str, value: str) -> Member | None:
        return next((m for m in self.members if value and getattr(m, key) == value), None)


def _rows(text: str, separator: str) -> list[list[str]]:
    """Without the empty lines."""
    lines = text.replace("\r\n", "\n").split("\n")
    return [row for row in csv.reader((line + "\n" for line in lines), delimiter=separator) if row]


def _table(text: str, separator: str) -> tuple[list[str], list[list[str]]]:
    rows = _rows(text, separator)
    if not rows:
        raise Refused("an empty file")
    return rows[0], rows[1:]


def _number(cell: str) -> float | None:
    try:
        return float(cell)
    except ValueError:
        return None


# Canvas

_CANVAS_HEADINGS = {"Student", "LastName", "FirstName", "ID", "SIS User ID", "SIS Login ID", "Integration ID",
                    "Root Account", "Section"}
_CANVAS_DROPS = re.compile("(Current|Final) (Score|Points|Grade)|Override (Score|Grade|Status)")
_FIRST_SEPARATOR = re.compile('(?:"(?:[^"]|"")*"|[^,;"])*?([,;])')


def _canvas_member(course: Course, cells: dict[str, str]) -> Member | None:
    number = re.match(r"\s*(\d+)", cells.get("ID", ""))
    name = cells.get("Student", "")
    if "LastName" in cells:
        name = f"{cells.get('FirstName', '')} {cells['LastName']}"
    name = re.sub('^="(.*)"$', r"\1", name)
    ways = [(m for m in course.members if number and m.number == int(number[1])),
            filter(None, [course.having("sis", cells.get("SIS User ID", ""))]),
            filter(None, [course.having("login", cells.get("SIS Login ID", ""))]),
            (m for m in course.members if name in m.names())]
    return next((member for way in ways for member in way), None)


def _canvas_column(course: Course, title: str, points: float | None) -> Column:
    numbered = re.search(r" \((\d+)\)$", title)
    if numbered:
        found = next((c for c in course.columns if c.number == int(numbered[1])), None)
        if found:
            return found
        title = title[:numbered.start()]
    return course.titled(title) or course.added(title, points)


def import_canvas(data: bytes, before: Course) -> Course:
    """Students whom it does not find are asked for on a page; nobody answers it here."""
    course = copy.deepcopy(before)
    try:
        text = data.decode("utf-8-sig")
    except UnicodeDecodeError as error:
        raise Refused("not UTF-8") from error
    separator = _FIRST_SEPARATOR.match(text)
    headings, rows = _table(text, separator[1] if separator else ",")
    places = {heading: i for i, heading in enumerate(headings) if heading in _CANVAS_HEADINGS}
    items = {i: heading for i, heading in enumerate(headings)
             if heading not in _CANVAS_HEADINGS and not _CANVAS_DROPS.search(heading)}
    if len(places) == len(headings) or not {"Student", "LastName"} & places.keys():
        raise Refused("no students or no assignments")
    students, points = [], {}
    for row in rows:
        row += [""] * (len(headings) - len(row))
        cells = {heading: row[i] for heading, i in places.items()}
        if row[0].strip() == "Points Possible":
            points = {i: _number(row[i]) for i in items}
        elif row[0].strip() != "Manual Posting" and any(cells.values()):
            students.append((cells, row))
    columns = {i: _canvas_column(course, title, points.get(i)) for i, title in items.items()}
    for cells, row in students:
        member = _canvas_member(course, cells)
        for i, column in columns.items() if member else ():
            number = _number(row[i])
            if not column.custom:
                column.put(member, number if number is not None else row[i].strip() or None)
    return course


# Moodle

_MOODLE_HEADINGS = {"First name", "Last name", "ID number", "Institution", "Department", "Email address", "Username"}


def import_moodle(data: bytes, before: Course, identity: tuple[str, str] = ("User ID", "sis"),
                  separator: str = ",") -> Course:
    """`identity`: the heading that the teacher maps to students, and the member's attribute that it holds. All
    other columns he maps to the item of that title, or to a new one."""
    course = copy.deepcopy(before)
    text = data.decode("utf-8", "ignore").removeprefix("\ufeff")    # what is no UTF-8 vanishes
    headings, rows = _table(text, separator)
    if any(heading.endswith("\\") for heading in headings):
        if '\\"' in text.partition("\n")[0]:
            raise Refused("a quote that does not end")
        return course               # takes nothing and says that it did
    if any(len(row) != len(headings) for row in rows):
        raise Refused("the number of columns is not constant")
    if identity[0] not in headings:
        raise Refused("no column tells the student")
    place = headings.index(identity[0])
    columns = {}
    for i, heading in enumerate(headings):
        if i != place and heading not in _MOODLE_HEADINGS:
            title = heading.removesuffix(" (Real)")
            columns[i] = course.titled(heading) or course.titled(title) or course.added(title, 100)
    for row in rows:
        member = course.having(identity[1], row[place])
        if not member:
            raise Refused(f"no student {row[place]!r}")
        for i, column in columns.items():
            column.put(member, _moodle_score(row[i].strip(), column.points))
    return course


def _moodle_score(cell: str, points: float | None) -> float | None:
    if cell in ("", "-"):
        return None
    number = _number(cell)
    if number is None or number > 100:
        raise Refused(f"a score of {cell}")
    return max(0.0, min(number, points) if points else number)    # nobody has items of 0 points


# Sakai

_SAKAI_TITLE = re.compile(r"(.*?) ?\[([0-9.,]+)\]")
_SAKAI_NUMBER = re.compile(r"[0-9]{0,10}(\.[0-9]{0,2})?")


def _sakai_columns(course: Course, headings: list[str]) -> dict[int, Column]:
    columns, seen = {}, set()
    for i, heading in enumerate(headings[2:], 2):
        heading = re.sub(r"\\(.?)", r"\1", heading)
        if heading.startswith("#"):
            continue                # another tool's
        match = _SAKAI_TITLE.fullmatch(heading)
        title = (match[1] if match else heading).strip(" ")
        points = float(match[2].replace(",", ".")) if match else None
        if not title or "[" in title or title.startswith("* ") or title in seen:
            raise Refused(f"the title {title!r}")
        seen.add(title)
        column = course.titled(title)
        if not column and points is None:
            raise Refused(f"the title {title!r} without points")
        if column or points:
            columns[i] = column or course.added(title, points)
            columns[i].points = columns[i].points if points is None else points
    return columns


def import_sakai(data: bytes, before: Course, identity: str = "sis", decimal_comma: bool = False) -> Course:
    """`decimal_comma`: in the user's language. Students whom it does not know are listed and skipped."""
    course = copy.deepcopy(before)
    headings, rows = _table(data.decode("iso-8859-1"), ";" if decimal_comma else ",")
    columns = _sakai_columns(course, headings)
    changes: dict[int, list[tuple[Member, float | None]]] = {i: [] for i in columns}
    for row in rows:
        if len(row) > len(headings):
            raise Refused("a row with too many cells")
        row += [""] * (len(headings) - len(row))
        cells = {i: row[i].replace(",", ".") if decimal_comma else row[i] for i in columns}
        wrong = [cell for cell in cells.values() if not _SAKAI_NUMBER.fullmatch(cell)]
        if wrong:
            raise Refused(f"the score {wrong[0]}")
        member = course.having(identity, row[0])
        for i, cell in cells.items() if member else ():
            changes[i].append((member, float(cell) if cell else None))
    for i, column in columns.items():
        if any(score is not None and column.scores.get(m.number) != score for m, score in changes[i]):
            for member, score in changes[i]:
                column.put(member, score)
    return course
