"""Ordinary classes with something awkward in them, and the courses that they belong to.

A class is a function of its seed; what is awkward about it has a name.
"""
from __future__ import annotations

import random
from collections.abc import Callable
from dataclasses import dataclass, field
from pathlib import Path
from xml.etree import ElementTree

from generate import escape
from importers import Column, Course, Member

FIRST = ["Ann", "Ben", "Carla", "David", "Eva", "Finn", "Grace", "Hugo", "Ida", "Jonas", "Kate", "Liam", "Mia",
         "Noah", "Olga", "Paul"]
LAST = ["Abbott", "Becker", "Carter", "Diaz", "Evans", "Foster", "Garcia", "Hall", "Ivanov", "Jones", "Klein",
        "Lopez", "O'Neil", "Parker-Hill", "Quinn", "van Dyke"]
WORK = ["Quiz", "Homework", "Exam", "Lab report", "Unit test"]
FIELDS = ["student-id", "alias", "custom-1"]
ID_STYLES = {"letters": "u{}", "digits": "204{}", "capitals": "U{}", "e-mail": "p{}@school.example.org",
             "digits first": "7{}x", "zeros": "00{}"}


@dataclass
class Pupil:
    id: int
    first: str
    last: str
    ids: dict[str, str]


@dataclass
class Work:
    id: int
    title: str
    points: int
    scores: dict[int, float]        # by pupil


@dataclass
class SchoolClass:
    pupils: list[Pupil]
    works: list[Work]
    field: str                      # whose value identifies
    chosen: list[int] | None = None     # works; None: all
    awkward: list[str] = field(default_factory=list)
    source: bytes = b""             # the class file, when it is no invention of ours

    def exported(self) -> list[Work]:
        return [work for work in self.works if self.chosen is None or work.id in self.chosen]

    def arguments(self) -> list[str]:
        return ["-u", self.field] + [word for number in self.chosen or () for word in ("-a", str(number))]

    def xml(self) -> bytes:
        if self.source:
            return self.source

        def leaf(name: str, value: object) -> str:
            return f"<{name}>{escape(str(value))}</{name}>"

        pupils = "".join(f'<student id="{p.id}">{leaf("first-name", p.first)}{leaf("last-name", p.last)}'
                         f'{"".join(leaf(*item) for item in p.ids.items())}</student>\n' for p in self.pupils)
        works = "".join(
            f'<assignment id="{w.id}">{leaf("assignment-name", w.title)}{leaf("points-possible", w.points)}'
            f'<question-list><question number="1" type="ES" question-id="1" bank-id="1">'
            f'{leaf("points-possible", w.points)}</question></question-list><results-list>' + "".join(
                f'<results id="{who}"><response-list><response question-id="1" bank-id="1">'
                f'{leaf("points-earned", score)}</response></response-list></results>\n'
                for who, score in w.scores.items()) + "</results-list></assignment>\n" for w in self.works)
        return (f"<class><class-name>A class</class-name><student-list>{pupils}</student-list>"
                f"<assignment-list>{works}</assignment-list></class>").encode()


def ordinary(r: random.Random) -> SchoolClass:
    count = r.randrange(3, 9)
    styles = {name: r.choice(list(ID_STYLES.values())) for name in FIELDS}
    names = zip(r.sample(FIRST, count), r.sample(LAST, count))
    numbers = r.sample(range(101, 199), count)
    pupils = [Pupil(i, *name, {f: style.format(number) for f, style in styles.items()})
              for i, (name, number) in enumerate(zip(names, numbers), 1)]
    works = []
    for number in range(1, r.randrange(2, 6)):
        points = r.choice([10, 20, 50, 100])
        scores = [score / 4 for score in r.sample(range(1, points * 4 + 1), count)]
        works.append(Work(300 + number, f"{r.choice(WORK)} {number}", points, dict(enumerate(scores, 1))))
    return SchoolClass(pupils, works, r.choice(FIELDS))


Spoil = Callable[[random.Random, SchoolClass], None]


def _title(title: str, second: str | None = None) -> Spoil:
    def spoil(r: random.Random, c: SchoolClass) -> None:
        some = r.sample(c.works, min(len(c.works), 2))
        some[0].title = title
        if second is not None and len(some) > 1:
            some[1].title = second
    return spoil


def _name(first: str | None, last: str | None = None) -> Spoil:
    def spoil(r: random.Random, c: SchoolClass) -> None:
        pupil = r.choice(c.pupils)
        pupil.first, pupil.last = first or pupil.first, last or pupil.last
    return spoil


def _same_name(r: random.Random, c: SchoolClass) -> None:
    one, other = r.sample(c.pupils, 2)
    other.first, other.last = one.first, one.last


def _id(change: Callable[[str], str]) -> Spoil:
    """`change`: of one student's id."""
    def spoil(r: random.Random, c: SchoolClass) -> None:
        pupil = r.choice(c.pupils)
        pupil.ids[c.field] = change(pupil.ids[c.field])
    return spoil


def _second_id(change: Callable[[str], str], elsewhere: bool = False) -> Spoil:
    """`change`: from one student's id to another's; `elsewhere`: in a field that is not chosen."""
    def spoil(r: random.Random, c: SchoolClass) -> None:
        one, other = r.sample(c.pupils, 2)
        name = r.choice([f for f in FIELDS if f != c.field]) if elsewhere else c.field
        other.ids[name] = change(one.ids[name])
    return spoil


def _all_ids(style: str) -> Spoil:
    def spoil(r: random.Random, c: SchoolClass) -> None:
        for pupil in c.pupils:
            pupil.ids[c.field] = style.format(pupil.id + 100)
    return spoil


def _score(score: Callable[[Work], float], points: int | None = None) -> Spoil:
    def spoil(r: random.Random, c: SchoolClass) -> None:
        work = r.choice(c.works)
        work.points = work.points if points is None else points
        work.scores[r.choice(c.pupils).id] = score(work)
    return spoil


def _no_points(r: random.Random, c: SchoolClass) -> None:
    work = r.choice(c.works)
    work.points, work.scores = 0, {pupil.id: 0.0 for pupil in c.pupils}


def _no_score(r: random.Random, c: SchoolClass) -> None:
    del r.choice(c.works).scores[r.choice(c.pupils).id]


def _no_scores(r: random.Random, c: SchoolClass) -> None:
    absent = r.choice(c.pupils).id
    for work in c.works:
        work.scores.pop(absent, None)


def _left_out(spoil: Spoil) -> Spoil:
    """What is awkward is in an assignment that is not exported."""
    def spoil_one(r: random.Random, c: SchoolClass) -> None:
        c.works.append(Work(max([399, *(work.id + 1 for work in c.works)]), "Extra", 10, {pupil.id: 5.0 for pupil in c.pupils}))
        spoil(r, SchoolClass(c.pupils, c.works[-1:], c.field))
        c.chosen = [work.id for work in c.works[:-1]]
    return spoil_one


AWKWARD: dict[str, Spoil] = {
    "nothing": lambda r, c: None,
    **{f"title {title!r}": _title(title) for title in (
        "Quiz 1, part 2", "Quiz (1)", "Quiz (501)", "Quiz(1)", "Quiz (A)", "Quiz (1) again", "Student", "ID",
        "Section", "SIS User ID", "SIS Login ID", "Integration ID", "Root Account", "student", "Sections",
        "Current Score", "My Final Grade", "Final Points", "Override Status", "Unposted Current Score", "final score",
        "Final Exam", "Override", "Current Events", "Notes", "notes", "[Quiz]", "Quiz [2]", "* Bonus", "*Bonus",
        "#1", "No. #1", "a\\b", "a\\", "Prüfung", "Épreuve é", "Łódź", "試験", "Quiz – one", "“Quiz”", "Year’s end",
        "€ 5", "Ω", "Say \"hi\"", "\"Hi\"", "one; two", "A & B <c>", "=1+1", "-x", "+y", "@z", "it's", "100%d",
        "x" * 120, "exactly thirty characters long", "e\u0301tude", "ﬁn", "Quiz\u00a01", "Points Possible",
        "User ID", "½ term")},
    **{f"titles {one!r} and {two!r}": _title(one, two) for one, two in (
        ("Quiz", "Quiz"), ("Quiz", "quiz"), ("Test (1)", "Test (2)"), ("Test", "Test (2)"), ("Łódź", "Śódź"),
        ("Quiz", "Quiz\u00a0"), ("Say \"hi\"", "Say 'hi'"), ("a\\b", "ab"), ("Über", "ber"), ("Go – 1", "Go ” 1"),
        ("a very long title that goes on for 1", "a very long title that goes on for 2"))},
    **{f"name {first!r} {last!r}": _name(first, last) for first, last in (
        ("José", None), (None, "Müller"), ("Łukasz", None), (None, "李"), (None, "King, Jr."), (None, "D’Arcy"),
        ('Robert "Bob"', None), ("Zoe\u0308", None), (None, "=Sum"), (None, "Smith; Jones"), ("\U0001f600", None),
        ("Anne  Marie", None), (None, "Nguyễn"))},
    "equal names": _same_name,
    "id missing": _id(lambda old: ""),
    **{f"id {extra!r}": _id(lambda old, extra=extra: extra.format(old)) for extra in (
        "{},1", "é{}", "{}ü", "Ł{}", "李{}", "{}\"x\"", "{};1", "{} 1", "={}", "-{}", "{}'", "{}–", "#{}", "{}/a")},
    "all ids digits": _all_ids("{}"), "all ids accented": _all_ids("é{}"), "all ids missing": _all_ids(""),
    "all ids capitals": _all_ids("AB{}"), "all ids begin with zeros": _all_ids("000{}"),
    "equal ids": _second_id(lambda one: one), "equal ids elsewhere": _second_id(lambda one: one, elsewhere=True),
    "id missing elsewhere": _second_id(lambda one: "", elsewhere=True),
    "ids but for case": _second_id(lambda one: one.swapcase()),
    "ids but for a blank": _second_id(lambda one: one[:2] + " " + one[2:]),
    "ids but for zeros": _second_id(lambda one: "0" + one),
    "ids equal in 8 bits": _second_id(lambda one: one + "?"),
    "above points": _score(lambda w: w.points + 3.5, 20), "above 100": _score(lambda w: 120, 100),
    "above 100 of 150": _score(lambda w: 120, 150), "below 100 of 150": _score(lambda w: 99, 150),
    "exactly 100": _score(lambda w: 100, 100), "negative": _score(lambda w: -1.5), "zero": _score(lambda w: 0),
    "3 decimals": _score(lambda w: 2.125), "thirds": _score(lambda w: 10 / 3),
    "2 decimals": _score(lambda w: 2.25), "almost 0": _score(lambda w: 0.00001), "a million": _score(lambda w: 2000000),
    "999999": _score(lambda w: 999999, 999999), "12 digits": _score(lambda w: 123456789012),
    "points 0": _no_points,
    "points 0, score": _score(lambda w: 5, 0), "no score": _no_score, "no scores of one": _no_scores,
    "no work": lambda r, c: c.works.clear(),
    "score of somebody else": lambda r, c: r.choice(c.works).scores.update({999: 5.0}),
    "comma left out": _left_out(_title("a, b")), "points left out": _left_out(_score(lambda w: 500)),
    "accent left out": _left_out(_title("Prüfung")),
}


def read(source: bytes, chosen_field: str) -> SchoolClass:
    root = ElementTree.fromstring(source)
    pupils = [Pupil(int(s.get("id")), s.findtext("first-name", ""), s.findtext("last-name", ""),
                    {name: s.findtext(name, "") for name in FIELDS}) for s in root.iter("student")]
    works = [Work(int(a.get("id")), a.findtext("assignment-name", ""), int(a.findtext("points-possible", "0")),
                  {int(results.get("id")): sum(float(p.text) for p in results.iter("points-earned"))
                   for results in a.iter("results")}) for a in root.iter("assignment")]
    return SchoolClass(pupils, works, chosen_field, source=source)


def build(seed: str, how_many: int | None = None, only: str = "") -> SchoolClass:
    """With so many awkward things; None: from none to four. A class file may stand for a seed."""
    r = random.Random(seed)
    if seed.endswith(".xml"):
        return read(Path(seed).read_bytes(), r.choice(FIELDS))
    made = ordinary(r)
    made.awkward = [only] if only else r.sample(list(AWKWARD), r.randrange(5) if how_many is None else how_many)
    made.awkward.sort(key=lambda name: (name.endswith("left out"), name == "no work"))
    for name in made.awkward:
        if made.works:
            AWKWARD[name](r, made)
    return made


def number_of(pupil: int) -> int:
    """Of the member of the course that the pupil is."""
    return 90000 + pupil


def course_of(made: SchoolClass, r: random.Random, titles: dict[int, str], system: str,
              every: bool) -> Course:
    """The course that the class is taught in. It has columns under these titles for some of the class's works, or for
    every one, and columns and members of its own."""
    sis = made.field if made.field != "alias" else "student-id"
    members, used = [], set()
    for pupil in made.pupils:
        own = {}
        for key, name in (("sis", sis), ("login", "alias")):
            value = pupil.ids[name]
            own[key] = value if value and (key, value) not in used else f"own{key}{pupil.id}"
            used.add((key, value))
        members.append(Member(number_of(pupil.id), pupil.first, pupil.last, **own))
    members += [Member(95001, "Xenia", "Young", "own1", "own2"), Member(95002, "Zeno", "Zappa", "own3", "own4")]
    r.shuffle(members)
    columns = [Column(601, "Attendance", 5), Column(602, "Essay", 40)]
    for column in columns:
        column.scores = {member.number: float(r.randrange(5)) for member in members}
    if system == "canvas":
        columns.append(Column(500, "Notes", None, custom=True))
    known = {column.title for column in columns}
    for work in made.exported():
        title = titles[work.id]
        if title in known or not (every or (work.points and r.random() < 0.5)):
            continue
        known.add(title)
        columns.append(Column(610 + work.id, title, work.points))
        for pupil in made.pupils:
            if pupil.id in work.scores and r.random() < 0.4:
                columns[-1].scores[number_of(pupil.id)] = float(r.randrange(work.points + 1))
    return Course(members, columns)
