"""What gxexport must write, computed a second time.

Reads the bytes of a class file and gives the exact bytes of every export format. It shares no
code with the exporters and favours plainness over speed: compare.py holds the two side by side.
"""
from __future__ import annotations

import math
import re
from collections.abc import Iterable, Iterator, Sequence
from dataclasses import dataclass
from typing import NamedTuple
from xml.parsers import expat

CHUNK, TEXT_LIMIT, LABEL_LIMIT = 4095, 199, 200

_ROMAN = {bytes([code]).decode("mac_roman"): code for code in range(0x80, 0x100)}
del _ROMAN["\uf8ff"], _ROMAN["\u03a9"]         # 0xF0 stands for nothing, 0xBD for the ohm sign
_ROMAN |= {"\u2126": 0xBD, "\u20ac": 0xDB}

_INTEGER = re.compile(rb"[ \t-\r]*([+-]?[0-9]+)")
_REAL = re.compile(
    rb"[ \t-\r]*(?P<sign>[+-]?)(?:(?P<hex>0x(?:[0-9a-f]+\.?[0-9a-f]*|\.[0-9a-f]+)(?:p[+-]?[0-9]+)?)"
    rb"|(?P<plain>nan|inf|(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:e[+-]?[0-9]+)?))", re.IGNORECASE)


class Unreadable(Exception):
    """The class file is malformed, or is no class file."""


def to_8bit(text: str) -> bytes:
    return bytes(ord(c) if ord(c) < 0x80 else _ROMAN.get(c, ord("?")) for c in text)


def clean(text: str, limit: int) -> str:
    """Cut first, so that spaces just before the cut are trailing ones."""
    return "".join(max(character, " ") for character in text[:limit]).rstrip(" ")


def clamp(value: int) -> int:
    return max(-2**31, min(2**31 - 1, value))


def to_int(text: bytes) -> int:
    match = _INTEGER.match(text)
    return clamp(int(match[1])) if match else 0


def to_double(text: bytes) -> float:
    match = _REAL.match(text)
    if not match:
        return 0.0
    try:
        value = float.fromhex(match["hex"].decode()) if match["hex"] else float(match["plain"])
    except OverflowError:
        value = math.inf
    return math.copysign(value, -1.0 if match["sign"] == b"-" else 1.0)


def g(value: float) -> bytes:
    if math.isnan(value):
        return b"-nan" if math.copysign(1.0, value) < 0 else b"nan"
    return b"%g" % value


def add(values: Iterable[float]) -> float:
    """One after the other from 0.0: sum() is free to add more exactly. The first NaN stays."""
    total = 0.0
    for value in values:
        total = total if math.isnan(total) else total + value
    return total


def _leaves(names: str) -> dict:
    return {name: {} for name in names.split()}


# What is read; all other elements, known or not, have the same effect: none.
# A leaf, {}, keeps its text and holds no element; anything else is a container.
_STUDENT = _leaves("first-name last-name student-id alias password gender date-of-birth grade-level "
                   "sociological race other custom-1 custom-2 custom-3 pad-id")
_ASSIGNMENT = _leaves("assignment-name points-possible") | {
    "question-list": {"question": _leaves("answer points-possible")},
    "results-list": {"results": {"response-list": {"response": _leaves("text points-earned")}}}}
SCHEMA = {"class": {"preferences": _leaves("custom-1 custom-2 custom-3"),
                    "student-list": {"student": _STUDENT},
                    "assignment-list": {"assignment": _ASSIGNMENT}}}

# The only encodings the parser knows by itself; Python's binding would quietly add more.
_ENCODINGS = {"utf-8", "utf-16", "utf-16be", "utf-16le", "iso-8859-1", "us-ascii"}


class Node:
    def __init__(self, name: str, attributes: Iterable[tuple[str, str]] = ()) -> None:
        self.name, self.attributes = name, list(attributes)
        self.children: list[Node] = []
        self.pieces: list[str] = []

    def all(self, name: str) -> Iterator[Node]:
        return (child for child in self.children if child.name == name)

    def first(self, name: str) -> Node:
        """What is not there is as good as empty."""
        return next(self.all(name), Node(name))

    def text(self, name: str, limit: int = TEXT_LIMIT) -> str:
        return clean("".join(self.first(name).pieces), limit)

    def number(self, attribute: str) -> int:
        values = (value for name, value in self.attributes if name == attribute)
        return to_int(to_8bit(next(values, "")))


def _local(name: str) -> str:
    return name.rpartition("#")[2]


class _Builder:
    """Keeps the elements that are read, seven deep at most, and drops all others with what they hold."""

    def __init__(self) -> None:
        self.top = Node("")
        self.open: list[tuple[Node, dict] | None] = [(self.top, SCHEMA)]    # None: dropped
        self.parser = expat.ParserCreate(namespace_separator="#")
        self.parser.ordered_attributes = True
        self.parser.StartElementHandler = self.start
        self.parser.EndElementHandler = lambda _: self.open.pop()
        self.parser.CharacterDataHandler = self.characters
        self.parser.XmlDeclHandler = self.declaration

    def declaration(self, _version: str, encoding: str | None, _standalone: int) -> None:
        if encoding and encoding.lower() not in _ENCODINGS:
            raise Unreadable(f"encoding {encoding}")

    def start(self, name: str, attributes: list[str]) -> None:
        holder = self.open[-1]
        known = holder[1].get(_local(name)) if holder else None
        if known is None and len(self.open) == 1:
            raise Unreadable("not a class")
        node = Node(_local(name), zip(map(_local, attributes[::2]), attributes[1::2]))
        if known is not None:
            holder[0].children.append(node)
        self.open.append(None if known is None else (node, known))

    def characters(self, text: str) -> None:
        if self.open[-1] and not self.open[-1][1]:
            self.open[-1][0].pieces.append(text)


def parse(data: bytes) -> Node:
    """In chunks, of which a zero byte hides the rest; only a short one is the last."""
    builder = _Builder()
    try:
        for start in range(0, len(data) + 1, CHUNK):
            chunk = data[start:start + CHUNK]
            builder.parser.Parse(chunk.partition(b"\0")[0], len(chunk) < CHUNK)
    except expat.ExpatError as error:
        raise Unreadable(str(error)) from error
    return builder.top.first("class")


class Student(NamedTuple):
    id: int
    texts: dict[str, str]


class Item(NamedTuple):
    """A question with its answer and the points possible, or a response with the points earned."""
    key: tuple[int, int]
    text: str
    points: float


class Assignment(NamedTuple):
    id: int
    name: str
    points: int
    questions: list[Item]
    results: list[tuple[int, list[Item]]]    # a student's id and his responses

    def of(self, student: Student) -> list[Item] | None:
        return next((responses for number, responses in self.results if number == student.id), None)

    def total(self, student: Student) -> float | None:
        found = self.of(student)
        return None if found is None else add(response.points for response in found)


class ClassRecord(NamedTuple):
    labels: list[str]
    students: list[Student]
    assignments: list[Assignment]


def _student(node: Node) -> Student:
    texts = {name: node.text(name) for name in _STUDENT}
    texts["gender"] = {"M": "Male", "F": "Female"}.get(texts["gender"], texts["gender"])
    return Student(node.number("id"), texts)


def _item(node: Node, text: str, points: str) -> Item:
    key = node.number("question-id"), node.number("bank-id")
    return Item(key, node.text(text), to_double(to_8bit(node.text(points))))


def _assignment(node: Node) -> Assignment:
    questions = [_item(question, "answer", "points-possible")
                 for question in node.first("question-list").all("question")]
    results = [(results.number("id"), [_item(response, "text", "points-earned") for response
                                       in results.first("response-list").all("response")])
               for results in node.first("results-list").all("results")]
    return Assignment(node.number("id"), node.text("assignment-name"),
                      to_int(to_8bit(node.text("points-possible"))), questions, results)


def read_class(data: bytes) -> ClassRecord:
    root = parse(data)
    labels = ["Custom 1", "Custom 2", "Custom 3"]
    for preferences in root.all("preferences"):
        for i in range(3):
            labels[i] = preferences.text(f"custom-{i + 1}", LABEL_LIMIT) or labels[i]
    students = [_student(s) for holder in root.all("student-list") for s in holder.all("student")]
    assignments = [_assignment(a) for holder in root.all("assignment-list")
                   for a in holder.all("assignment")]
    return ClassRecord(labels, students, assignments)


@dataclass
class Options:
    delimiter: str | None = None             # of a current file; none: the classic file
    user_field: str | None = None            # none: the field preselected for the format
    assignments: list[int] | None = None     # none: all
    quotes: bool = True
    fields: Sequence[str] = ("first-name", "last-name", "student-id")
    responses: bool = True
    points: bool = False
    answer_key: bool = False
    points_possible: bool = False
    asterisks: bool = True


class Gradebook(NamedTuple):
    user_field: str                          # the one preselected
    header: bytes
    title: bytes                             # once per assignment
    header_end: bytes
    row: bytes
    row_end: bytes = b""
    score: bytes = b",%b"                    # once per assignment
    missing: bytes = b""


_PTS = b"%(name)b [Pts: %(points)d Weight:: 0%% Category:: Quiz]"
_BLACKBOARD8 = Gradebook(
    "alias", b'"Last Name","First Name","Username","Student ID","Last Access","Availability"'
    b',"Weighted Total"', b',"' + _PTS + b'"', b',"Running Total [Pts: %(sum)d]"',
    b'"%(last-name)b","%(first-name)b","%(user)b","%(student-id)b","","Yes","Not Applicable"',
    b',"%(running)b"', b',"%b"', b"-")
GRADEBOOKS = {
    "webct": Gradebook("alias", b"Last Name,First Name,User ID,Role", b',"%(name)b"', b"",
                       b'"%(last-name)b","%(first-name)b","%(user)b",Student', missing=b" "),
    "blackboard6": Gradebook(
        "alias", b'"Last Name, First Name (User Name) | Student Id"', b',"' + _PTS + b'"',
        b',"Running Total [Pts: %(sum)d]","Running Weighted Total"',
        b'"%(last-name)b, %(first-name)b (%(user)b) | "', b',"%(running)b","Not Applicable"', b',"%b"', b"-"),
    "angel": Gradebook("alias", b"Name,User ID", b',"%(name)b"', b"",
                       b'"%(last-name)b, %(first-name)b",%(user)b'),
    "blackboard8": _BLACKBOARD8,
    "blackboard91": _BLACKBOARD8._replace(user_field="student-id"),
    "canvas": Gradebook("student-id", b"Student,ID,Section", b",%(name)b",
                        b"\nPoints Possible,,%(all points)b", b'"%(first-name)b %(last-name)b",%(user)b,'),
    "d2l": Gradebook("custom-1", b"OrgDefinedId", b", %(name)b Points Grade", b", End-of-Line Indicator",
                     b"%(user)b", b",#"),
    "moodle": Gradebook("custom-1", b"User ID", b",%(name)b", b"", b"%(user)b"),
    "schoology": Gradebook("student-id", b"User Unique ID", b",%(name)b", b"", b"%(user)b"),
    "sakai": Gradebook("student-id", b"Student ID,Student Name", b",%(name)b [%(points)d]", b"",
                       b'%(user)b,"%(last-name)b %(first-name)b"'),
}
UNQUOTED = {"blackboard8", "blackboard91"}     # can do without quotes


def safe(text: str) -> bytes:
    return to_8bit(text.replace('"', "'"))


def _gradebook(book: Gradebook, chosen: list[Assignment], students: list[Student], user_field: str,
               percent: bool) -> Iterator[bytes]:
    def score(assignment: Assignment, total: float | None) -> bytes:
        if total is None:
            return book.score % book.missing
        if percent:
            total = 100 * total / assignment.points if assignment.points > 0 else 0.0
        return book.score % g(total)

    sums = {b"sum": clamp(sum(a.points for a in chosen)),
            b"all points": b"".join(b"," + g(float(a.points)) for a in chosen)}
    titles = (book.title % {b"name": safe(a.name), b"points": a.points} for a in chosen)
    yield book.header + b"".join(titles) + book.header_end % sums
    for student in students:
        totals = [assignment.total(student) for assignment in chosen]
        values = {name.encode(): safe(text) for name, text in student.texts.items()} | {
            b"user": safe(student.texts[user_field]),
            b"running": g(add(t for t in totals if t is not None))}
        yield book.row % values + b"".join(map(score, chosen, totals)) + book.row_end % values


REPORT_FIELDS = {
    "first-name": "First name", "last-name": "Last name", "student-id": "Student ID",
    "password": "Password", "alias": "Student alias", "pad-id": "Pad ID", "gender": "Gender",
    "date-of-birth": "Date of birth", "grade-level": "Grade level",
    "sociological": "Sociological/Economic", "race": "Race/Ethnicity", "other": "Other",
    "custom-1": "", "custom-2": "", "custom-3": "",      # headed by the class's labels
}
Cell = str | int | float | None         # a text, in quotes even when it is empty; a number; nothing


def _pair(options: Options, text: Cell, points: Cell) -> list[Cell]:
    """A question's cells, as far as its columns are wanted."""
    return [text] * options.responses + [points] * options.points


def _answered(options: Options, question: Item, response: Item | None) -> list[Cell]:
    if not response:
        return _pair(options, None, None)
    star = "*" if options.asterisks and response.points > question.points - 0.001 else ""
    return _pair(options, star + response.text, response.points)


def detailed(record: ClassRecord, report: Assignment, options: Options) -> Iterator[list[Cell]]:
    names = [name for name in REPORT_FIELDS if name in options.fields]
    headers = REPORT_FIELDS | {f"custom-{i + 1}": label for i, label in enumerate(record.labels)}
    line: list[Cell] = [headers[name] for name in names]
    for position in range(1, len(report.questions) + 1):
        line += [position, None][:options.responses + options.points]
    yield line

    if (options.responses and options.answer_key) or (options.points and options.points_possible):
        line = [None] * len(names)
        for question in report.questions:
            line += _pair(options, question.text if options.answer_key else None,
                          question.points if options.points_possible else None)
        yield line

    for student in record.students:
        line = [student.texts[name] or None for name in names]
        responses = report.of(student) or []
        for question in report.questions:
            first = next((r for r in responses if r.key == question.key), None)
            line += _answered(options, question, first)
        yield line


def _classic(cell: Cell) -> bytes:
    if isinstance(cell, str):
        return b'"' + safe(cell) + b'"'
    return b"" if cell is None else b"%d" % cell if isinstance(cell, int) else g(cell)


def selected(record: ClassRecord, options: Options) -> list[Assignment]:
    return [a for a in record.assignments if options.assignments is None or a.id in options.assignments]


def export(record: ClassRecord, key: str, options: Options) -> bytes:
    chosen = selected(record, options)
    if key == "detailed":
        lines = (b",".join(map(_classic, line)) for line in detailed(record, chosen[0], options))
    else:
        book = GRADEBOOKS[key]
        user_field = options.user_field or book.user_field
        if not options.quotes and key in UNQUOTED:
            book = Gradebook(user_field, *(part.replace(b'"', b"") for part in book[1:]))
        lines = _gradebook(book, chosen, record.students, user_field, key == "angel")
    return b"".join(line + b"\n" for line in lines)
