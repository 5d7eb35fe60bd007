"""What gxexport must write, computed a second time.

Reads the bytes of a class file and gives the exact bytes of every export format. It shares no
code with the exporters and favours plainness over speed: compare.py holds the two side by side.
"""
from __future__ import annotations

import math
import re
from collections.abc import Callable, Iterator
from dataclasses import dataclass, field
from xml.parsers import expat

CHUNK = 4095
MAX_DEPTH = 40
TEXT_LIMIT = 199
LABEL_LIMIT = 200
INT_MIN, INT_MAX = -2**31, 2**31 - 1


class Unreadable(Exception):
    """The class file is malformed, or is no class file."""


# ---------------------------------------------------------------- 8-bit text and numbers

_ROMAN = {bytes([code]).decode("mac_roman"): code for code in range(0x80, 0x100)}
del _ROMAN["\uf8ff"]          # 0xF0 stands for nothing
del _ROMAN["\u03a9"]          # 0xBD is the ohm sign, not the letter
_ROMAN["\u2126"] = 0xBD
_ROMAN["\u20ac"] = 0xDB


def to_8bit(text: str) -> bytes:
    return bytes(ord(c) if ord(c) < 0x80 else _ROMAN.get(c, ord("?")) for c in text)


def clean(text: str, limit: int) -> bytes:
    """Cut first, so that spaces just before the cut are trailing ones."""
    cut = to_8bit(text)[:limit]
    return bytes(max(byte, 0x20) for byte in cut).rstrip(b" ")


_INTEGER = re.compile(rb"[ \t-\r]*([+-]?[0-9]+)")
_REAL = re.compile(
    rb"[ \t-\r]*(?P<sign>[+-]?)(?:(?P<nan>nan)|(?P<inf>inf)"
    rb"|(?P<hex>0x(?:[0-9a-f]+\.?[0-9a-f]*|\.[0-9a-f]+)(?:p[+-]?[0-9]+)?)"
    rb"|(?P<dec>(?:[0-9]+\.?[0-9]*|\.[0-9]+)(?:e[+-]?[0-9]+)?))", re.IGNORECASE)


def clamp(value: int) -> int:
    return max(INT_MIN, min(INT_MAX, value))


def to_int(text: bytes) -> int:
    match = _INTEGER.match(text)
    return clamp(int(match[1])) if match else 0


def _magnitude(match: re.Match[bytes]) -> float:
    if match["nan"]:
        return math.nan
    if match["inf"]:
        return math.inf
    if match["dec"]:
        return float(match["dec"])
    try:
        return float.fromhex(match["hex"].decode())
    except OverflowError:
        return math.inf


def to_double(text: bytes) -> float:
    match = _REAL.match(text)
    if not match:
        return 0.0
    return math.copysign(_magnitude(match), -1.0 if match["sign"] == b"-" else 1.0)


def g(value: float) -> bytes:
    if math.isnan(value):
        return b"-nan" if math.copysign(1.0, value) < 0 else b"nan"
    return b"%g" % value


# ---------------------------------------------------------------- the document

def _leaves(names: str) -> dict:
    return {name: {} for name in names.split()}


_RESPONSE = _leaves("text points-earned")
_RESULTS = _leaves("num-attempts start-date end-date") | {"response-list": {"response": _RESPONSE}}
_QUESTION = _leaves("num-choices answer reference learning-objective national-standard "
                    "local-standard state-standard points-possible response-grid")
_ASSIGNMENT = _leaves("assignment-name assignment-id category online-id term assignment-date "
                      "delivery-method test-file points-possible") | {
    "question-list": {"question": _QUESTION}, "results-list": {"results": _RESULTS}}
_STUDENT = _leaves("first-name last-name student-id alias password gender date-of-birth "
                   "grade-level sociological race other custom-1 custom-2 custom-3 pad-id")
_PREFERENCES = _leaves("student-sort assignment-sort display-score show-term show-nclb default-term "
                       "default-grade-level category-name custom-1 custom-2 custom-3")
_CLASS = _leaves("class-name class-id period section instructor-name instructor-id "
                 "school-name school-id city state") | {
    "preferences": _PREFERENCES,
    "student-list": {"student": _STUDENT},
    "assignment-list": {"assignment": _ASSIGNMENT}}
SCHEMA = {"class": _CLASS}    # a leaf, {}, keeps its text; anything else is a container

# The only encodings the parser knows by itself; Python's binding would quietly add more.
_ENCODINGS = {"utf-8", "utf-16", "utf-16be", "utf-16le", "iso-8859-1", "us-ascii"}


@dataclass
class Node:
    name: str
    attributes: list[tuple[str, str]]
    children: list[Node] = field(default_factory=list)
    pieces: list[str] = field(default_factory=list)

    def first(self, name: str) -> Node | None:
        return next(self.all(name), None)

    def all(self, name: str) -> Iterator[Node]:
        return (child for child in self.children if child.name == name)

    def items(self, list_name: str, item_name: str) -> Iterator[Node]:
        """The items of the first such list; a list that is not there is empty."""
        holder = self.first(list_name)
        return holder.all(item_name) if holder else iter(())

    def text(self, name: str, limit: int = TEXT_LIMIT) -> bytes:
        child = self.first(name)
        return clean("".join(child.pieces), limit) if child else b""

    def number(self, attribute: str) -> int:
        values = (value for name, value in self.attributes if name == attribute)
        return to_int(to_8bit(next(values, "")))


def _local(name: str) -> str:
    return name.rpartition("#")[2]


class _Builder:
    """Keeps the known elements; everything below an unknown one is dropped."""

    def __init__(self) -> None:
        self.root: Node | None = None
        self.open: list[tuple[Node, dict] | None] = []   # None: unknown or too deep
        parser = expat.ParserCreate(namespace_separator="#")
        parser.ordered_attributes = True
        parser.StartElementHandler = self.start
        parser.EndElementHandler = lambda _: self.open.pop()
        parser.CharacterDataHandler = self.characters
        parser.XmlDeclHandler = self.declaration
        self.parser = parser

    def declaration(self, _version: str, encoding: str | None, _standalone: int) -> None:
        if encoding and encoding.lower() not in _ENCODINGS:
            raise Unreadable(f"encoding {encoding}")

    def start(self, name: str, attributes: list[str]) -> None:
        holder = self.open[-1] if self.open else (None, SCHEMA)
        known = holder[1].get(_local(name)) if holder else None
        if not self.open and known is None:
            raise Unreadable("not a class")
        if known is None or len(self.open) >= MAX_DEPTH:
            self.open.append(None)
            return
        names = [_local(attribute) for attribute in attributes[::2]]
        node = Node(_local(name), list(zip(names, attributes[1::2])))
        if holder[0]:
            holder[0].children.append(node)
        else:
            self.root = node
        self.open.append((node, known))

    def characters(self, text: str) -> None:
        if self.open and self.open[-1]:
            node, children = self.open[-1]
            if not children:
                node.pieces.append(text)


def _chunks(data: bytes) -> Iterator[tuple[bytes, bool]]:
    """A zero byte hides the rest of its chunk; only a short read is the last one."""
    for start in range(0, len(data) + 1, CHUNK):
        chunk = data[start:start + CHUNK]
        yield chunk.partition(b"\0")[0], len(chunk) < CHUNK


def parse(data: bytes) -> Node:
    builder = _Builder()
    try:
        for chunk, final in _chunks(data):
            builder.parser.Parse(chunk, final)
    except expat.ExpatError as error:
        raise Unreadable(str(error)) from error
    assert builder.root
    return builder.root


# ---------------------------------------------------------------- records

@dataclass
class Student:
    id: int
    texts: dict[str, bytes]


@dataclass
class Response:
    key: tuple[int, int]
    text: bytes
    points: float


@dataclass
class Results:
    student: int
    responses: list[Response]

    def total(self) -> float:
        return add(response.points for response in self.responses)

    def response(self, question: Question) -> Response | None:
        return next((r for r in self.responses if r.key == question.key), None)


@dataclass
class Question:
    key: tuple[int, int]
    answer: bytes
    points: float


@dataclass
class Assignment:
    id: int
    name: bytes
    points: int
    questions: list[Question]
    results: list[Results]

    def of(self, student: Student) -> Results | None:
        return next((r for r in self.results if r.student == student.id), None)


@dataclass
class ClassRecord:
    labels: list[bytes]
    students: list[Student]
    assignments: list[Assignment]


def add(values: Iterator[float]) -> float:
    """One after the other from 0.0: sum() is free to add more exactly."""
    total = 0.0
    for value in values:
        total = total + value
    return total


def _key(node: Node) -> tuple[int, int]:
    return node.number("question-id"), node.number("bank-id")


def _student(node: Node) -> Student:
    texts = {name: node.text(name) for name in _STUDENT}
    texts["gender"] = {b"M": b"Male", b"F": b"Female"}.get(texts["gender"], texts["gender"])
    return Student(node.number("id"), texts)


def _results(node: Node) -> Results:
    return Results(node.number("id"), [
        Response(_key(r), r.text("text"), to_double(r.text("points-earned")))
        for r in node.items("response-list", "response")])


def _assignment(node: Node) -> Assignment:
    questions = [Question(_key(q), q.text("answer"), to_double(q.text("points-possible")))
                 for q in node.items("question-list", "question")]
    return Assignment(node.number("id"), node.text("assignment-name"),
                      to_int(node.text("points-possible")), questions,
                      [_results(r) for r in node.items("results-list", "results")])


def read_class(data: bytes) -> ClassRecord:
    root = parse(data)
    labels = [b"Custom 1", b"Custom 2", b"Custom 3"]
    for preferences in root.all("preferences"):
        for i in range(3):
            labels[i] = preferences.text(f"custom-{i + 1}", LABEL_LIMIT) or labels[i]
    students = [_student(s) for holder in root.all("student-list") for s in holder.all("student")]
    assignments = [_assignment(a) for holder in root.all("assignment-list")
                   for a in holder.all("assignment")]
    return ClassRecord(labels, students, assignments)


# ---------------------------------------------------------------- gradebook formats

@dataclass
class Options:
    user_field: str | None = None            # none: the field preselected for the format
    assignments: list[int] | None = None     # none: all
    quotes: bool = True
    fields: list[str] = field(default_factory=lambda: ["first-name", "last-name", "student-id"])
    responses: bool = True
    points: bool = False
    answer_key: bool = False
    points_possible: bool = False
    asterisks: bool = True


@dataclass
class Person:
    first: bytes
    last: bytes
    user: bytes
    student_id: bytes
    totals: list[float | None]               # one per selected assignment

    def cells(self, missing: bytes, around: bytes = b"") -> bytes:
        texts = (missing if t is None else g(t) for t in self.totals)
        return b"".join(b"," + around + text + around for text in texts)

    def running(self) -> bytes:
        return g(add(t for t in self.totals if t is not None))


Writer = Callable[[list[Assignment], list[Person], bool], Iterator[bytes]]


def safe(text: bytes) -> bytes:
    return text.replace(b'"', b"'")


def _titles(chosen: list[Assignment], shape: bytes) -> bytes:
    """`shape` once per assignment: %(name)b and %(points)d stand for its own."""
    return b"".join(shape % {b"name": safe(a.name), b"points": a.points} for a in chosen)


def _points_sum(chosen: list[Assignment]) -> bytes:
    return b"Running Total [Pts: %d]" % clamp(sum(a.points for a in chosen))


def _webct(chosen: list[Assignment], people: list[Person], _: bool) -> Iterator[bytes]:
    yield b"Last Name,First Name,User ID,Role" + _titles(chosen, b',"%(name)b"')
    for p in people:
        yield b'"%b","%b","%b",Student' % (p.last, p.first, p.user) + p.cells(b" ")


_BLACKBOARD_TITLE = b"%(name)b [Pts: %(points)d Weight:: 0%% Category:: Quiz]"


def _blackboard6(chosen: list[Assignment], people: list[Person], _: bool) -> Iterator[bytes]:
    yield (b'"Last Name, First Name (User Name) | Student Id"'
           + _titles(chosen, b',"' + _BLACKBOARD_TITLE + b'"')
           + b',"%b","Running Weighted Total"' % _points_sum(chosen))
    for p in people:
        yield (b'"%b, %b (%b) | "' % (p.last, p.first, p.user) + p.cells(b"-", b'"')
               + b',"%b","Not Applicable"' % p.running())


def _blackboard8(chosen: list[Assignment], people: list[Person], quotes: bool) -> Iterator[bytes]:
    q = b'"' if quotes else b""

    def row(*cells: bytes) -> bytes:
        return b",".join(q + cell + q for cell in cells)

    yield (row(b"Last Name", b"First Name", b"Username", b"Student ID", b"Last Access",
               b"Availability", b"Weighted Total")
           + _titles(chosen, b"," + q + _BLACKBOARD_TITLE + q) + b"," + row(_points_sum(chosen)))
    for p in people:
        yield (row(p.last, p.first, p.user, p.student_id, b"", b"Yes", b"Not Applicable")
               + p.cells(b"-", q) + b"," + row(p.running()))


def _angel(chosen: list[Assignment], people: list[Person], _: bool) -> Iterator[bytes]:
    def cell(assignment: Assignment, total: float | None) -> bytes:
        if total is None:
            return b","
        return b"," + (g(100 * total / assignment.points) if assignment.points > 0 else b"0")

    yield b"Name,User ID" + _titles(chosen, b',"%(name)b"')
    for p in people:
        yield b'"%b, %b",%b' % (p.last, p.first, p.user) + b"".join(map(cell, chosen, p.totals))


def _canvas(chosen: list[Assignment], people: list[Person], _: bool) -> Iterator[bytes]:
    yield b"Student,ID,Section" + _titles(chosen, b",%(name)b")
    yield b"Points Possible,," + b"".join(b"," + g(float(a.points)) for a in chosen)
    for p in people:
        yield b'"%b %b",%b,' % (p.first, p.last, p.user) + p.cells(b"")


def _d2l(chosen: list[Assignment], people: list[Person], _: bool) -> Iterator[bytes]:
    yield (b"OrgDefinedId" + _titles(chosen, b", %(name)b Points Grade")
           + b", End-of-Line Indicator")
    for p in people:
        yield p.user + p.cells(b"") + b",#"


def _one_id(first_cell: bytes) -> Writer:
    def write(chosen: list[Assignment], people: list[Person], _: bool) -> Iterator[bytes]:
        yield first_cell + _titles(chosen, b",%(name)b")
        for p in people:
            yield p.user + p.cells(b"")
    return write


def _sakai(chosen: list[Assignment], people: list[Person], _: bool) -> Iterator[bytes]:
    yield b"Student ID,Student Name" + _titles(chosen, b",%(name)b [%(points)d]")
    for p in people:
        yield b'%b,"%b %b"' % (p.user, p.last, p.first) + p.cells(b"")


GRADEBOOKS: dict[str, tuple[Writer, str]] = {     # with the preselected user field
    "webct": (_webct, "alias"),
    "blackboard6": (_blackboard6, "alias"),
    "angel": (_angel, "alias"),
    "blackboard8": (_blackboard8, "alias"),
    "blackboard91": (_blackboard8, "student-id"),
    "canvas": (_canvas, "student-id"),
    "d2l": (_d2l, "custom-1"),
    "moodle": (_one_id(b"User ID"), "custom-1"),
    "schoology": (_one_id(b"User Unique ID"), "student-id"),
    "sakai": (_sakai, "student-id"),
}


def _person(student: Student, user_field: str, chosen: list[Assignment]) -> Person:
    found = [assignment.of(student) for assignment in chosen]
    first, last, user, student_id = (
        safe(student.texts[name]) for name in ("first-name", "last-name", user_field, "student-id"))
    return Person(first, last, user, student_id, [r.total() if r else None for r in found])


# ---------------------------------------------------------------- detailed report

REPORT_FIELDS = {
    "first-name": b"First name", "last-name": b"Last name", "student-id": b"Student ID",
    "password": b"Password", "alias": b"Student alias", "pad-id": b"Pad ID", "gender": b"Gender",
    "date-of-birth": b"Date of birth", "grade-level": b"Grade level",
    "sociological": b"Sociological/Economic", "race": b"Race/Ethnicity", "other": b"Other",
    "custom-1": b"", "custom-2": b"", "custom-3": b"",      # headed by the class's labels
}


def _quoted(text: bytes, always: bool = False) -> bytes:
    return b'"' + safe(text) + b'"' if text or always else b""


def _question_cells(response: Response | None, question: Question, options: Options) -> list[bytes]:
    cells = []
    if options.responses:
        star = options.asterisks and response and response.points > question.points - 0.001
        cells.append(_quoted((b"*" if star else b"") + response.text, True) if response else b"")
    if options.points:
        cells.append(g(response.points) if response else b"")
    return cells


def _key_cells(question: Question, options: Options) -> list[bytes]:
    cells = []
    if options.responses:
        cells.append(_quoted(question.answer, True) if options.answer_key else b"")
    if options.points:
        cells.append(g(question.points) if options.points_possible else b"")
    return cells


def _detailed(record: ClassRecord, report: Assignment, options: Options) -> Iterator[list[bytes]]:
    names = [name for name in REPORT_FIELDS if name in options.fields]
    headers = REPORT_FIELDS | {f"custom-{i + 1}": label for i, label in enumerate(record.labels)}
    line = [_quoted(headers[name]) for name in names]
    if options.responses or options.points:
        for position in range(1, len(report.questions) + 1):
            line.append(b"%d" % position)
            if options.responses and options.points:
                line.append(b"")
    yield line

    if (options.responses and options.answer_key) or (options.points and options.points_possible):
        yield [b""] * len(names) + sum((_key_cells(q, options) for q in report.questions), [])

    for student in record.students:
        line = [_quoted(student.texts[name]) for name in names]
        results = report.of(student)
        for question in report.questions:
            response = results.response(question) if results else None
            line += _question_cells(response, question, options)
        yield line


def export(record: ClassRecord, key: str, options: Options) -> bytes:
    chosen = [a for a in record.assignments
              if options.assignments is None or a.id in options.assignments]
    if key == "detailed":
        lines = (b",".join(line) for line in _detailed(record, chosen[0], options))
    else:
        writer, preselected = GRADEBOOKS[key]
        user_field = options.user_field or preselected
        people = [_person(s, user_field, chosen) for s in record.students]
        lines = writer(chosen, people, options.quotes)
    return b"".join(line + b"\n" for line in lines)
