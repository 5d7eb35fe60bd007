#!/usr/bin/env python3
"""Writes the sample class files beside this script.

Every person, school and score is invented. The same script always writes the same bytes: all chance comes
from `Dice`, which is seeded per class and uses nothing but `random.random()`, the one generator whose
sequence Python keeps from version to version.

    python3 make_samples.py           write the three files
    python3 make_samples.py --check   compare them with what would be written; status 1 if they differ
"""

import argparse
import random
import sys
import unicodedata
from contextlib import contextmanager
from dataclasses import dataclass, field
from pathlib import Path
from xml.sax.saxutils import escape

HEADER_FIELDS = ("class-name", "class-id", "period", "section", "instructor-name", "instructor-id",
                 "school-name", "school-id", "city", "state")
PREFERENCE_FIELDS = ("student-sort", "assignment-sort", "display-score", "show-term", "show-nclb",
                     "default-term", "default-grade-level", "category-name", "custom-1", "custom-2",
                     "custom-3")
STUDENT_FIELDS = ("first-name", "last-name", "student-id", "alias", "password", "gender", "date-of-birth",
                  "grade-level", "sociological", "race", "other", "custom-1", "custom-2", "custom-3",
                  "pad-id")
IDENTIFIER_FIELDS = ("student-id", "alias", "custom-1")

CHOICES = {"TF": "TF", "YN": "YN", "MC": "ABCD"}
GRADED_BY_HAND = ("ES", "PR", "CA", "OT")  # no single right answer
PARTIAL_CREDIT = ("MR", "MTF", "MA", "SA", "CO", "BI")


@dataclass
class Question:
    type: str
    points: int  # in quarter points, like every score of this script
    answer: str
    others: list  # wrong answers; from best to worst where a teacher grades by hand
    number: int = 0
    id: int = 0
    bank: int = 0
    reference: str = ""
    objective: str = ""


@dataclass
class Response:
    question: Question
    text: str
    points: int


@dataclass
class Results:
    student: int
    start: str
    end: str
    responses: list


@dataclass
class Assignment:
    id: int
    name: str
    date: str
    category: str
    delivery: str
    questions: list
    results: list = field(default_factory=list)

    def of(self, student):
        return next((each for each in self.results if each.student == student["id"]), None)


@dataclass
class Class:
    header: dict
    preferences: dict
    students: list
    assignments: list


class Dice:
    def __init__(self, seed):
        self._random = random.Random(seed)

    def roll(self):
        return self._random.random()

    def below(self, limit):
        return int(self._random.random() * limit)

    def pick(self, items):
        return items[self.below(len(items))]

    def shuffled(self, items):
        items = list(items)
        for last in range(len(items) - 1, 0, -1):
            other = self.below(last + 1)
            items[last], items[other] = items[other], items[last]
        return items


# ---- Writing -------------------------------------------------------------------------------------------

class XmlWriter:
    def __init__(self):
        self._lines = ['<?xml version="1.0" encoding="UTF-8"?>']
        self._indent = ""

    @contextmanager
    def element(self, name, attributes=()):
        self.line(start_tag(name, attributes))
        self._indent += "  "
        yield
        self._indent = self._indent[2:]
        self.line(f"</{name}>")

    def line(self, text):
        self._lines.append(self._indent + text)

    def texts(self, names, values):
        for name in names:
            self.line(text_element(name, values.get(name, "")))

    def document(self):
        return ("\n".join(self._lines) + "\n").encode("utf-8")


def start_tag(name, attributes):
    return f"<{name}" + "".join(f' {key}="{value}"' for key, value in attributes) + ">"


def text_element(name, text):
    return f"<{name}>{escape(text)}</{name}>" if text else f"<{name}/>"


def points_text(quarters):
    return f"{quarters / 4:g}"


def write_class(record):
    xml = XmlWriter()
    with xml.element("class"):
        xml.texts(HEADER_FIELDS, record.header)
        with xml.element("preferences"):
            xml.texts(PREFERENCE_FIELDS, record.preferences)
        with xml.element("student-list"):
            for student in record.students:
                with xml.element("student", [("id", student["id"])]):
                    xml.texts(STUDENT_FIELDS, student)
        with xml.element("assignment-list"):
            for assignment in record.assignments:
                write_assignment(xml, assignment)
    return xml.document()


def write_assignment(xml, assignment):
    values = {
        "assignment-name": assignment.name,
        "assignment-id": f"A{assignment.id:03}",
        "category": assignment.category,
        "online-id": f"{7000 + assignment.id}" if assignment.delivery == "Online" else "",
        "term": "1",
        "assignment-date": assignment.date,
        "delivery-method": assignment.delivery,
        "test-file": f"test{assignment.id:03}.tst",
        "points-possible": str(whole_points(assignment)),
    }
    with xml.element("assignment", [("id", assignment.id)]):
        xml.texts(values, values)
        with xml.element("question-list"):
            for question in assignment.questions:
                write_question(xml, question)
        with xml.element("results-list"):
            for results in assignment.results:
                write_results(xml, results)


def whole_points(assignment):
    total = sum(question.points for question in assignment.questions)
    if total % 4:
        raise ValueError(f"{assignment.name}: {points_text(total)} points are not a whole number")
    return total // 4


def write_question(xml, question):
    attributes = [("number", question.number), ("type", question.type), ("question-id", question.id),
                  ("bank-id", question.bank)]
    values = {
        "num-choices": str(choice_count(question)),
        "answer": question.answer,
        "reference": question.reference,
        "learning-objective": question.objective,
        "national-standard": "",
        "local-standard": "",
        "state-standard": "",
        "points-possible": points_text(question.points),
        "response-grid": "",
    }
    with xml.element("question", attributes):
        xml.texts(values, values)


def choice_count(question):
    if question.type in CHOICES:
        return len(CHOICES[question.type])
    return {"MR": 5, "MTF": 4, "MA": 4}.get(question.type, 0)


def write_results(xml, results):
    values = {"num-attempts": "1", "start-date": results.start, "end-date": results.end}
    with xml.element("results", [("id", results.student)]):
        xml.texts(values, values)
        with xml.element("response-list"):
            for response in results.responses:
                xml.line(response_line(response))


def response_line(response):
    # A response takes one line: most of a class file is responses.
    attributes = [("question-id", response.question.id), ("bank-id", response.question.bank)]
    return (start_tag("response", attributes) + text_element("text", response.text) +
            text_element("points-earned", points_text(response.points)) + "</response>")


# ---- Making people, questions and answers --------------------------------------------------------------

def plain(name):
    """The letters a to z of the name up to its first comma, as a login has them."""
    name = name.split(",")[0].translate(str.maketrans({"ø": "o", "Ł": "L", "ß": "ss"}))
    return "".join(c for c in unicodedata.normalize("NFD", name).lower() if "a" <= c <= "z")


def call_name(first_name):
    return plain(first_name.split()[0])


def make_secret(dice):
    return dice.pick(("plum", "kite", "fern", "moss", "tide", "oak")) + str(100 + dice.below(900))


def make_birthday(dice, year):
    return f"{year}-{1 + dice.below(12):02}-{1 + dice.below(28):02}"


def check_identifiers(students):
    for name in IDENTIFIER_FIELDS:
        values = [student[name] for student in students]
        if not all(values) or len(set(values)) != len(values):
            raise ValueError(f"{name} is not a unique identifier")


def parse_questions(lines):
    """One question per line: type, points, then the answer and other answers between bars."""
    questions = []
    for line in lines.strip().splitlines():
        head, answer, *others = (part.strip() for part in line.split("|"))
        kind, points = head.split()
        quarters = float(points) * 4
        if quarters != int(quarters):
            raise ValueError(f"not in quarter points: {line}")
        if kind in CHOICES:
            others = [choice for choice in CHOICES[kind] if choice != answer]
        questions.append(Question(kind, int(quarters), answer, others))
    return questions


def number_questions(questions, banks):
    """Numbers the questions and deals them to the banks in turn; each bank counts its own from 1."""
    for index, question in enumerate(questions):
        question.number = index + 1
        question.id = 1 + index // len(banks)
        question.bank = banks[index % len(banks)]


def answer_question(dice, question, skill):
    luck = dice.roll()
    if question.type in GRADED_BY_HAND:
        share = 2 if luck < skill - 0.2 else 1 if luck < skill + 0.15 else 0
        return Response(question, question.others[2 - share], question.points * share // 2)
    if luck < skill:
        return Response(question, question.answer, question.points)
    if luck > 0.985:
        return Response(question, "", 0)
    half = question.points // 2 if question.type in PARTIAL_CREDIT and luck < skill + 0.12 else 0
    return Response(question, dice.pick(question.others), half)


def take(dice, assignment, student_id, skill):
    start = 5 + dice.below(10)
    end = start + 20 + dice.below(20)
    responses = [answer_question(dice, question, skill) for question in assignment.questions]
    return Results(student_id, f"{assignment.date} 09:{start:02}", f"{assignment.date} 09:{end}", responses)


def give(dice, assignment, students, attendance):
    """Most students take the assignment and hand it in in any order."""
    present = [student for student in students if dice.roll() < attendance]
    assignment.results = [take(dice, assignment, student["id"], student["skill"])
                          for student in dice.shuffled(present)]


# ---- The village school --------------------------------------------------------------------------------

VILLAGE_STUDENTS = (
    ("Mia", "Becker", "F"), ("Noah", "Carter", "M"), ("Lena", "Dahl", "F"), ("Sam", "Ellis", ""),
    ("Ivy", "Foster", "F"), ("Max", "Gruber", "M"), ("Tom", "Hill", "M"), ("Zoé", "Laurent", "F"))

VILLAGE_QUIZZES = (
    ("Spelling Week 1", "2023-09-15", """
     CO 1 | house | hous | hause
     CO 1 | garden | gardn | gardin
     CO 1 | friend | frend | freind
     CO 1 | apple | appel | aple
     CO 1 | school | skool | shool"""),
    ("Adding to 20", "2023-09-22", """
     NR 1 | 12 | 11 | 13
     NR 1 | 9 | 8 | 10
     NR 1 | 20 | 19 | 18
     TF 1 | T
     TF 1 | F"""),
    ("Animals", "2023-10-06", """
     MC 2 | B
     MC 2 | C
     YN 1 | Y
     YN 1 | N
     MA 4 | C,A,D,B | C,A,B,D | A,C,D,B"""))


def make_village():
    dice = Dice(10)
    students = []
    for index, (first, last, gender) in enumerate(VILLAGE_STUDENTS):
        students.append({
            "id": index + 1, "first-name": first, "last-name": last, "student-id": str(11 + index),
            "alias": call_name(first), "password": make_secret(dice), "gender": gender,
            "date-of-birth": make_birthday(dice, 2016), "grade-level": "2",
            "custom-1": f"{call_name(first)}.{plain(last)}", "pad-id": str(index + 1), "skill": 0.75})
    assignments = []
    for index, (name, date, lines) in enumerate(VILLAGE_QUIZZES):
        assignment = Assignment(index + 1, name, date, "Quizzes", "Paper", parse_questions(lines))
        number_questions(assignment.questions, [21 + index])
        give(dice, assignment, students, 0.95)
        assignments.append(assignment)
    header = {"class-name": "Class 2", "class-id": "2", "instructor-name": "Mrs. Ash",
              "school-name": "Millbrook Village School", "city": "Millbrook"}
    preferences = {"student-sort": "last-name", "assignment-sort": "date", "display-score": "points",
                   "show-term": "0", "show-nclb": "0", "default-grade-level": "2", "category-name": "Quizzes"}
    return Class(header, preferences, students, assignments)


# ---- The secondary school ------------------------------------------------------------------------------

SECONDARY_STUDENTS = (
    ("Inés", "Álvarez", "F"), ("Åsa", "Bergström", "F"), ("Chloë", "Bouchard", "F"), ("Daniel", "Chen", "M"),
    ("François", "Dubois", "M"), ("Amara", "Eze", "F"), ("Liam", "Fraser", "M"), ("Sofía", "García", "F"),
    ("Nadia", "Haddad", "F"), ("Søren", "Holm", "M"), ("Grace", "Ingram", "F"), ("Kenji", "Ito", "M"),
    ("Maya", "Joshi", "F"), ("Marcus", "King, Jr.", "M"), ("Yuna", "Lee", "F"), ("Jürgen", "Müller", "M"),
    ("Peter", "Novak", "M"), ("Łukasz", "Nowak", "M"), ("Mateo", "Núñez", "M"), ("Siobhan", "O'Brien", "F"),
    ("Ruth", "Okafor", "F"), ("João", "Pereira", "M"), ("Emma", "Quinn", "F"), ("Omar", "Rahman", "Male"),
    ("Ella", "Schäfer", "F"), ("Robert \"Bobby\"", "Tanaka", "M"), ("Alex", "Underwood", ""),
    ("Lotte", "van Dijk", "Female"), ("Hannah", "Weiß", "F"), ("Tom", "Young", "M"))

# What the sample is there to show; README.md tells the reader.
ABSENT_ALL_TERM = "Haddad"
ZERO_THEN_MISSING = "Young"  # 0 points in quiz 4, no results in quiz 5
OPENED_ONLY = "Ito"  # a results record without responses in quiz 2
LONG_ESSAY_BY = "Ingram"  # more than 199 characters in quiz 8
SKIPPED_LAST_QUESTION = ("Chen", "Lee", "Pereira")  # in quiz 6
LEFT_CLASS = 131  # took the first three quizzes, is no longer in the list
NOT_YET_GIVEN = 12  # the last assignment

LONG_ESSAY = ("A food web shows who eats whom in a whole habitat. If the pond's snails disappear, the algae "
              "grow, the fish that eat snails go hungry, and the herons, which eat the fish, leave. So one "
              "missing animal changes the life of every other animal, and of the plants, too.")

SECONDARY_QUIZZES = (
    ("Quiz 1: Cells", "2023-09-08", "Quizzes", "Paper", """
     MC 1    | C
     MC 1    | A
     TF 0.5  | T
     TF 0.5  | F
     CO 1    | nucleus | ribosome | cell wall
     MR 2    | A,D | A,B | D"""),
    ("Quiz 2: Membranes", "2023-09-15", "Quizzes", "Online", """
     MC 1    | B
     YN 1    | N
     SA 2.25 | osmosis | diffusion | "water moves", I think
     CO 1.25 | phospholipid | lipid | protein
     MTF 2   | T,F,T,T | T,T,T,T | F,F,T,T
     TF 0.5  | T"""),
    ("Quiz 3: Photosynthesis", "2023-09-22", "Quizzes", "Online", """
     MC 1    | D
     MC 1    | A
     CO 1    | chlorophyll | chloroplast | glucose
     MR 2    | B,C,E | B,C | A,E
     NR 1    | 6 | 12 | 3
     ES 2.25 | | Light and water make sugar. | It happens in the leaf, by day. | Plants breathe light.
     TF 0.75 | F
     YN 1    | Y"""),
    ("Lab 1: Microscopy", "2023-09-29", "Labs", "Paper", """
     NR 2    | 400 | 40 | 100
     PR 3    | | 0.05 mm | 50 micrometres | 5 mm
     SA 1    | onion skin | leaf | skin
     MC 1    | B
     OT 4    | | drawing with labels | drawing | no drawing"""),
    ("Quiz 4: Respiration", "2023-10-06", "Quizzes", "Paper", """
     MC 1    | C
     MC 1    | D
     CO 1    | mitochondria | mitochondrion? | nucleus
     NR 1    | 36 | 2 | 38
     TF 0.5  | T
     TF 0.5  | T
     MR 2    | A,B | A | B,C"""),
    ("Quiz 5: DNA & RNA", "2023-10-13", "Quizzes", "Online", """
     MC 1    | A
     MA 4    | D,B,A,C | D,B,C,A | B,D,A,C
     CO 0.5  | uracil | thymine | adenine
     CO 0.5  | double helix | helix | ladder
     BI 2    | B | A | D
     YN 1    | Y
     SA 2    | A-T & C-G | A-C & T-G | A < T"""),
    ("Quiz 6: Mendel's Peas", "2023-10-20", "Quizzes", "Paper", """
     NR 1    | 0.25 | 0.5 | 0.75
     NR 1    | 3 | 1 | 4
     MC 1    | B
     MC 1    | C
     PR 2.25 | | 3:1 | 1:2:1 | 9:3:3:1
     TF 0.75 | F
     MTF 2   | T,T,F,F | T,F,T,F | F,F,F,F
     CO 1    | allele | gene | trait"""),
    ("Lab 2: Enzymes", "2023-10-27", "Labs", "Paper", """
     NR 2    | 37 | 40 | 100
     SA 2    | denatured | cooked | it's broken
     PR 3    | | 1.5 ml/min | 3 ml in 2 min | 0.5 ml
     OT 4    | | graph, both axes | graph | no graph
     CO 1    | substrate | product | enzyme"""),
    ("Midterm Exam", "2023-11-10", "Exams", "Online", """
     MC 2    | A
     MC 2    | D
     MC 2    | B
     TF 1    | T
     TF 1    | F
     MR 3    | A,C,D | A,C | C,D
     MA 4    | C,A,D,B | C,A,B,D | D,A,C,B
     NR 2    | 23 | 46 | 22
     CA 3.5  | | case 1: carrier | case 1: not a carrier | both parents are carriers
     ES 4.5  | | Cells divide to grow. | To grow, and to heal. | I ran out of time."""),
    ("Quiz 7: Evolution", "2023-11-17", "Quizzes", "Online", """
     MC 1    | C
     MC 1    | B
     YN 1    | N
     CO 1    | Galápagos | Galapagos | Hawaii
     SA 2    | natural selection | selection | luck"""),
    ("Quiz 8: Food Webs", "2023-12-01", "Quizzes", "Paper", """
     MC 1    | A
     MR 2    | A,E | A | C,E
     MA 4    | B,A,D,C | B,A,C,D | A,B,D,C
     ES 2.5  | | Snails eat algae.\\nFish eat snails. | Everything eats something. | They all swim.
     TF 0.5  | T
     NR 1    | 10 | 90 | 1"""),
    ("Quiz 9: Biomes", "2023-12-15", "Quizzes", "Paper", """
     MC 1    | D
     MC 1    | D
     YN 1    | Y
     CO 1    | tundra | taiga | desert
     MR 2    | B,D | B | A,D"""),
)


def secondary_student(dice, index, first, last, gender):
    login = call_name(first)[0] + plain(last)
    return {
        "id": 101 + index, "first-name": first, "last-name": last, "student-id": str(204100 + 7 * index),
        "alias": login, "password": make_secret(dice), "gender": gender,
        "date-of-birth": make_birthday(dice, 2008 + dice.below(2)),
        "grade-level": "9",
        "sociological": dice.pick(("", "", "S1", "S2")), "race": dice.pick(("", "R1", "R2", "R3")),
        "other": dice.pick(("", "", "Bus 4", "Choir")),
        "custom-1": f"{plain(last)}.{call_name(first)}",
        "custom-2": f"{call_name(first)}.{plain(last)}@students.example.org",
        "custom-3": dice.pick(("Room 11", "Room 12", "Room 14")), "pad-id": f"P{index + 1:02}",
        "skill": 0.5 + 0.45 * dice.roll()}


def by_last_name(students, name):
    return next(student for student in students if student["last-name"] == name)


def fail_everything(results):
    for response in results.responses:
        response.points = 0
        response.text = response.question.others[-1]


def arrange_special_cases(dice, students, assignments):
    named = {assignment.name.split(":")[0]: assignment for assignment in assignments}
    zero = by_last_name(students, ZERO_THEN_MISSING)
    fail_everything(named["Quiz 4"].of(zero))
    named["Quiz 5"].results.remove(named["Quiz 5"].of(zero))
    named["Quiz 2"].of(by_last_name(students, OPENED_ONLY)).responses.clear()
    essays = named["Quiz 8"].of(by_last_name(students, LONG_ESSAY_BY)).responses
    next(essay for essay in essays if essay.question.type == "ES").text = LONG_ESSAY
    for name in SKIPPED_LAST_QUESTION:
        named["Quiz 6"].of(by_last_name(students, name)).responses.pop()
    for name in ("Quiz 1", "Quiz 2", "Quiz 3"):
        named[name].results.insert(3, take(dice, named[name], LEFT_CLASS, 0.6))


def make_secondary():
    dice = Dice(30)
    students = [secondary_student(dice, index, *row) for index, row in enumerate(SECONDARY_STUDENTS)]
    takers = [student for student in students if student["last-name"] != ABSENT_ALL_TERM]
    assignments = []
    for index, (name, date, category, delivery, lines) in enumerate(SECONDARY_QUIZZES):
        assignment = Assignment(301 + index, name, date, category, delivery, parse_questions(lines))
        number_questions(assignment.questions, [61, 62, 63] if category == "Exams" else [41 + index])
        for question in assignment.questions:
            question.others = [text.replace("\\n", "\n") for text in question.others]
            question.reference = f"p. {12 + 9 * index + question.number}"
            question.objective = f"LO {index + 1}.{1 + question.number // 3}"
        if index + 1 != NOT_YET_GIVEN:
            give(dice, assignment, takers, 0.97)
        assignments.append(assignment)
    arrange_special_cases(dice, students, assignments)
    header = {"class-name": "Biology 9", "class-id": "BIO-9", "period": "3", "section": "B",
              "instructor-name": "Ms. Ferreira", "instructor-id": "T-0417",
              "school-name": "Harbour Road Secondary School", "school-id": "HR-02", "city": "Port Ellery",
              "state": "ME"}
    preferences = {"student-sort": "last-name", "assignment-sort": "date", "display-score": "points",
                   "show-term": "1", "show-nclb": "0", "default-term": "1", "default-grade-level": "9",
                   "category-name": "Quizzes", "custom-1": "Canvas ID", "custom-2": "Moodle e-mail",
                   "custom-3": "Homeroom"}
    return Class(header, preferences, students, assignments)


# ---- The college lecture -------------------------------------------------------------------------------

COLLEGE_FIRST_NAMES = (
    "Aisha", "Andrés", "Ben", "Carmen", "David", "Elif", "Fatima", "Gabriel", "Helena", "Ian",
    "Jasmine", "Kofi", "Léa", "Mohammed", "Nora", "Oscar", "Priya", "Rosa", "Tomás", "Wei")
COLLEGE_LAST_NAMES = (
    "Abbott", "Baker", "Castro", "Diaz", "Evans", "Fischer", "Gupta", "Hughes", "Ibrahim", "Jensen",
    "Kaya", "Lopes", "Moreau", "Nguyen", "Olsen", "Peña", "Reyes", "Sato", "Turner", "Zhang")
COLLEGE_ASSESSMENTS = (  # name, date, questions
    ("Quiz 1", "2023-09-20", 8), ("Quiz 2", "2023-10-04", 8), ("Midterm", "2023-10-18", 8),
    ("Quiz 3", "2023-11-01", 8), ("Quiz 4", "2023-11-15", 8), ("Final Exam", "2023-12-13", 12))


def college_student(dice, index, first, last):
    netid = f"{call_name(first)[0]}{plain(last)[:5]}{21 + index}"
    return {
        "id": 5001 + index, "first-name": first, "last-name": last, "student-id": f"U{310277 + 13 * index}",
        "alias": netid, "gender": dice.pick("FM"), "custom-1": netid, "custom-2": f"Lab {1 + index % 9}",
        "pad-id": f"{0xA000 + 37 * index:X}", "skill": 0.45 + 0.5 * dice.roll()}


def college_question(dice):
    kind = dice.pick(("MC", "MC", "MC", "TF", "MR", "NR"))
    if kind == "MR":
        return Question(kind, 8, "A,C", ["A", "C,D", "B"])
    if kind == "NR":
        return Question(kind, 8, str(10 + dice.below(90)), ["0", "1", "100"])
    answer = dice.pick(CHOICES[kind])
    return Question(kind, 4, answer, [choice for choice in CHOICES[kind] if choice != answer])


def make_college():
    dice = Dice(180)
    names = [(first, last) for last in COLLEGE_LAST_NAMES for first in COLLEGE_FIRST_NAMES]
    chosen = sorted(dice.shuffled(range(len(names)))[:180])
    students = [college_student(dice, index, *names[pick]) for index, pick in enumerate(chosen)]
    assignments = []
    for index, (name, date, count) in enumerate(COLLEGE_ASSESSMENTS):
        assignment = Assignment(11 + index, name, date, "Assessments", "Online",
                                [college_question(dice) for _ in range(count)])
        number_questions(assignment.questions, [1 + index])
        give(dice, assignment, students, 0.85)
        assignments.append(assignment)
    header = {"class-name": "Chemistry 101", "class-id": "CHEM-101", "section": "001",
              "instructor-name": "Prof. Lindqvist", "school-name": "Eastlake College", "city": "Eastlake"}
    preferences = {"student-sort": "last-name", "assignment-sort": "date", "display-score": "percent",
                   "show-term": "1", "show-nclb": "0", "default-term": "1", "category-name": "Assessments",
                   "custom-1": "NetID", "custom-2": "Lab section"}
    return Class(header, preferences, students, assignments)


# ---- The program ---------------------------------------------------------------------------------------

SAMPLES = {"village-school.xml": make_village, "secondary-school.xml": make_secondary,
           "college-lecture.xml": make_college}


def make_sample(make):
    record = make()
    check_identifiers(record.students)
    return write_class(record)


def main():
    parser = argparse.ArgumentParser(description="Writes the sample class files beside this script.")
    parser.add_argument("--check", action="store_true", help="compare only; status 1 if a file differs")
    check_only = parser.parse_args().check
    folder = Path(__file__).resolve().parent
    status = 0
    for name, make in SAMPLES.items():
        path, content = folder / name, make_sample(make)
        if not check_only:
            path.write_bytes(content)
        elif not path.exists() or path.read_bytes() != content:
            print(f"{name}: differs from what {Path(__file__).name} writes", file=sys.stderr)
            status = 1
    return status


if __name__ == "__main__":
    sys.exit(main())
