"""The current files, computed a second time: gxmodel's class, written for today's systems."""
from __future__ import annotations

import decimal
import math
from collections.abc import Iterator
from typing import NamedTuple

from gxmodel import GRADEBOOKS, Assignment, Cell, ClassRecord, Options, add, clamp, detailed, selected


class Current(NamedTuple):
    header: list[str]
    row: list[str]
    title: str = "%(name)s"              # once per assignment
    header_end: list[str] = []
    row_end: list[str] = []
    missing: str = ""
    points_row: str = ""                 # its first cell; empty: there is none
    number: str = "%s"
    encoding: str = "utf-8"
    decimals: int | None = None
    semicolons: bool = False
    decimal_commas: bool = False         # with semicolons


_BLACKBOARD = Current(
    ["Last Name", "First Name", "Username", "Student ID", "Last Access", "Availability", "Weighted Total"],
    ["%(last-name)s", "%(first-name)s", "%(user)s", "%(student-id)s", "", "Yes", "Not Applicable"],
    "%(name)s [Pts: %(points)d Weight:: 0%% Category:: Quiz]", ["Running Total [Pts: %(sum)d]"],
    ["%(running)s"], "-", number='"%s"', encoding="utf-8-sig")
CURRENT = {
    "blackboard8": _BLACKBOARD, "blackboard91": _BLACKBOARD,
    "canvas": Current(["Student", "ID", "SIS User ID", "SIS Login ID", "Section"],
                      ["%(first-name)s %(last-name)s", "", "%(sis)s", "%(alias)s", ""],
                      points_row="    Points Possible", semicolons=True),
    "d2l": Current(["OrgDefinedId"], ["%(numbered)s"], "%(name)s Points Grade", ["End-of-Line Indicator"], ["#"],
                   encoding="utf-8-sig"),
    "moodle": Current(["User ID"], ["%(user)s"], missing="-", semicolons=True),
    "schoology": Current(["User Unique ID"], ["%(user)s"], number='"%s"'),
    "sakai": Current(["Student ID", "Student Name"], ["%(user)s", "%(last-name)s %(first-name)s"],
                     "%(name)s [%(points)d]", encoding="iso-8859-1", decimals=2, semicolons=True,
                     decimal_commas=True),
    "detailed": Current([], [], encoding="utf-8-sig", semicolons=True, decimal_commas=True),
}


def plain(value: float, decimals: int | None) -> str:
    """Ten digits, of which so many decimals stay."""
    with decimal.localcontext(prec=400, rounding=decimal.ROUND_HALF_UP):
        number = decimal.Decimal(f"{value:.9e}")
        if decimals is not None:
            number = number.quantize(decimal.Decimal(10) ** -decimals)
        return f"{number.normalize():f}" if number else "0"


class _Writer:
    def __init__(self, current: Current, delimiter: str) -> None:
        self.current, self.delimiter = current, delimiter
        self.point = "," if current.decimal_commas and delimiter == ";" else "."

    def number(self, value: float | None) -> str:
        if value is None or not math.isfinite(value):
            return self.current.missing
        return plain(value, self.current.decimals).replace(".", self.point)

    def quoted(self, text: str) -> str:
        return '"' + text.replace('"', '""') + '"'

    def text(self, text: str) -> str:
        return self.quoted(text) if text else self.current.number % ""

    def report_cell(self, cell: Cell) -> str:
        return self.quoted(cell) if isinstance(cell, str) else self.number(cell)

    def gradebook(self, record: ClassRecord, chosen: list[Assignment], user_field: str) -> Iterator[list[str]]:
        current = self.current
        values = {"sum": clamp(sum(a.points for a in chosen))}
        titles = [current.title % {"name": a.name, "points": a.points} for a in chosen]
        yield [self.text(title) for title in
               [*current.header, *titles, *(title % values for title in current.header_end)]]
        if current.points_row:
            empty = [""] * (len(current.header) - 1)
            yield [self.quoted(current.points_row)] + empty + [self.number(a.points) for a in chosen]
        for student in record.students:
            user = student.texts[user_field]
            if not user:
                continue
            totals = [assignment.total(student) for assignment in chosen]
            values = student.texts | {
                "user": user, "sis": student.texts["student-id" if user_field == "alias" else user_field],
                "numbered": ("#" if set(user) <= set("0123456789") else "") + user,
                "running": self.number(add(t for t in totals if t is not None))}
            yield [self.text(cell % values) for cell in current.row] + [
                current.number % self.number(total) for total in totals] + [
                self.text(cell % values) for cell in current.row_end]


def export(record: ClassRecord, key: str, options: Options) -> bytes:
    writer, chosen = _Writer(CURRENT[key], options.delimiter), selected(record, options)
    if key == "detailed":
        lines = ([writer.report_cell(cell) for cell in line] for line in detailed(record, chosen[0], options))
    else:
        lines = writer.gradebook(record, chosen, options.user_field or GRADEBOOKS[key].user_field)
    text = "".join(options.delimiter.join(line) + "\n" for line in lines)
    return text.encode(CURRENT[key].encoding, "replace")
