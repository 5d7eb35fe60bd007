"""Filling a downloaded gradebook: statuses, messages, the file for upload and the JSON."""
import json
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(__file__))
from support import ANN, BOB, CAT, CLASS_FILE, DONE, QUIZ, USAGE, FolderTest, assignment, run  # noqa: E402

TROUBLE = 6
HEAD = "Student,ID,SIS User ID,SIS Login ID,Section,"
POINTS = "    Points Possible,,,,,"
ESSAY = assignment(13, "Essay", [("B", 4)], {1: [("B", 3)], 2: [("A", 4)]})


class Fill(FolderTest):
    def gradebook(self, *lines, name="Grades.csv"):
        path = self.folder / name
        path.write_bytes("".join(line + "\n" for line in lines).encode())
        return path

    def fill(self, *args, students=(ANN, BOB), work=(QUIZ, ESSAY), gradebook=None):
        """The result, the text written, and what the JSON tells (of the same run, dry)."""
        source = self.write_class(students, work)
        gradebook = gradebook or self.gradebook(HEAD + "Quiz (1),Essay (2),Old (3)", POINTS + "3,4,5",
                                                "Ann Smith,91,1001,ann,A,,1.00,9", "Bob Smith,92,1002,bob,A,2,,8")
        result = run("fill", "--gradebook", gradebook, *args, source)
        dry = run("fill", "--gradebook", gradebook, "--dry-run", "--json", *args, source)
        self.assertEqual(dry.returncode, result.returncode)
        return result, result.stdout.decode(), json.loads(dry.stdout or "null")

    def test_statuses_and_files(self):
        head, points = HEAD + "Quiz (1),Essay (2)\n", POINTS + "3,4\n"
        ann, bob = "Ann Smith,91,1001,ann,A,", "Bob Smith,92,1002,bob,A,"
        new = self.gradebook(HEAD + "Quiz (1),Total Final Score", POINTS + "3,(read only)", ann + ",1", bob + ",1",
                             name="new.csv")
        rows = {
            "all in": ([], {}, DONE, head + points + ann + "2,3\n" + bob + "2,4\n", "Changed: 1", "1.00 -> 3"),
            "only empty": (["--only-empty"], {}, DONE, head + points + ann + "2,1.00\n" + bob + "2,4\n", "Essay: 1.00"),
            "one of them": (["-a", "12"], {}, DONE, f"{HEAD}Quiz (1)\n{POINTS}3\n{ann}2\n", "Columns that get nothing: 2"),
            "a stranger": ([], {"students": (ANN, CAT | {"id": 2})}, TROUBLE, head + points + ann + "2,3\n",
                           "Cat Smith (1003): the id is not in the gradebook", "Bob Smith"),
            "by name": (["--match-names"], {"students": (ANN, BOB | {"student-id": "x"})}, DONE,
                        head + points + ann + "2,3\n" + bob + "2,4\n"),
            "another field": (["-u", "alias"], {}, DONE, head + points + ann + "2,3\n" + bob + "2,4\n"),
            "no column": ([], {"gradebook": new}, TROUBLE, f"{HEAD}Quiz (1)\n{POINTS}3\n{ann}2\n",
                          "Essay (id 13): no column has this title"),
            "a new column": (["--new-columns"], {"gradebook": new}, DONE,
                             f"{HEAD}Quiz (1),Essay\n{POINTS}3,0\n{ann}2,3\n{bob},4\n", "a new column"),
            "by hand": (["--map", "13=old", "-a", "13"], {}, DONE, f"{HEAD}Old (3)\n{POINTS}5\n{ann}3\n{bob}4\n"),
            "nobody": (["-u", "first-name"], {}, TROUBLE, "", "-u student-id finds 2", "nothing was written"),
        }
        for name, (args, changes, status, text, *fragments) in rows.items():
            with self.subTest(name):
                result, written, _ = self.fill(*args, **changes)
                messages = result.stderr.decode()
                self.assertEqual(result.returncode, status, messages)
                self.assertEqual(written, text)
                for fragment in fragments:
                    self.assertIn(fragment, messages)

    def test_refusals(self):
        source, book = self.write_class((ANN, BOB), (QUIZ, ESSAY)), self.gradebook(HEAD + "Quiz (1),Quiz (2),Final Score",
                                                                                   "Ann Smith,91,1001,ann,A,,,")
        other = self.gradebook("a,b,c", "1,2,3", name="other.csv")
        torn = self.gradebook(HEAD + "Quiz (1)", "Ann Smith,91", name="torn.csv")
        rows = {
            "class file": ([book, "-o", source], USAGE, "overwrite the class file"),
            "download": ([book, "-o", book], USAGE, "overwrite the downloaded gradebook"),
            "json": ([book, "--json"], USAGE, "--json"),
            "no such assignment": ([book, "-a", "99"], USAGE, "99", "13  Essay"),
            "map: no such assignment": ([book, "--map", "99=Quiz"], USAGE, "--map", "13  Essay"),
            "map: no such column": ([book, "--map", "13=Quizz"], USAGE, "'Quizz'", "Quiz (2)"),
            "map: several columns": ([book, "--map", "13=Quiz"], USAGE, "several times", "Quiz (2)"),
            "map: a total": ([book, "--map", "13=Final Score"], USAGE, "cannot be filled"),
            "no download of this system": ([book, "-f", "webct"], USAGE, "WebCT"),
            "another system's": ([book, "-f", "sakai"], CLASS_FILE, "Sakai", "Student ID", '"SIS User ID"'),
            "nobody's": ([other], CLASS_FILE, "other.csv:1", "Canvas", '"a", "b", "c"'),
            "torn": ([torn], CLASS_FILE, "torn.csv:2", "2 cells"),
            "not there": ([self.folder / "none.csv"], CLASS_FILE, "none.csv"),
        }
        before = source.read_bytes(), book.read_bytes()
        for name, (args, status, *fragments) in rows.items():
            with self.subTest(name):
                self.check(run("fill", "--gradebook", *args, source), status, *fragments)
        self.assertEqual((source.read_bytes(), book.read_bytes()), before)

    def test_dry_run_writes_nothing(self):
        result, _, _ = self.fill("--dry-run", "-o", self.folder / "upload.csv")
        self.check(result, DONE, "Filled: 2")
        self.assertFalse((self.folder / "upload.csv").exists())

    def test_trouble_of_what_is_written_is_told(self):
        best = assignment(12, "Quiz", [("B", 2)], {1: [("B", 999)]})
        book = self.gradebook("First name,Last name,ID number,Quiz (Real)", "Ann,Smith,1001,-")
        result, _, told = self.fill("-u", "student-id", work=(best,), gradebook=book)
        self.assertEqual(result.returncode, TROUBLE)
        self.assertIn("warning", result.stderr.decode())
        self.assertIn("score-above-100", [finding["code"] for finding in told["findings"]])

    def test_lists_are_cut(self):
        book = self.gradebook(HEAD + "Quiz (1)", *(f"Nr {i},{i},n{i},,A," for i in range(30)), "Ann Smith,91,1001,ann,A,")
        result, _, told = self.fill("-a", "12", students=(ANN,), gradebook=book)
        self.assertIn("  Nr 19\n  and 10 more\n", result.stderr.decode())
        self.assertEqual(len(told["unmatchedMembers"]), 30)

    def test_json(self):
        upload = self.folder / "upload.csv"
        result, _, dry = self.fill("--json", "-o", upload, students=(ANN, BOB, CAT), work=(QUIZ, ESSAY, assignment(14, "Lab")))
        told = json.loads(result.stdout)
        self.assertEqual(told | {"written": False, "output": None}, dry)
        self.assertEqual({key: told[key] for key in list(told)[:14]}, {
            "version": 1, "file": str(self.folder / "class.xml"), "className": "",
            "gradebook": str(self.folder / "Grades.csv"), "output": str(upload), "written": True, "exitStatus": DONE,
            "system": "canvas", "format": "canvas", "field": "student-id", "identifierColumn": "SIS User ID",
            "counts": {"students": 2, "assignments": 2, "filled": 2, "changed": 1, "same": 0, "kept": 1, "no-number": 0},
            "columns": [{"assignment": {"id": 12, "name": "Quiz"}, "column": "Quiz (1)"},
                        {"assignment": {"id": 13, "name": "Essay"}, "column": "Essay (2)"}],
            "cells": [
                {"student": 1, "assignment": 12, "kind": "filled", "old": "", "new": "2"},
                {"student": 1, "assignment": 13, "kind": "changed", "old": "1.00", "new": "3"},
                {"student": 2, "assignment": 12, "kind": "kept", "old": "2", "new": "2"},
                {"student": 2, "assignment": 13, "kind": "filled", "old": "", "new": "4"}]})
        self.assertEqual({key: told[key] for key in list(told)[14:]}, {
            "unmatchedStudents": [], "unmatchedMembers": [],
            "unmatchedAssignments": [{"assignment": {"id": 14, "name": "Lab"}, "reason": "no-column"}],
            "unmatchedColumns": ["Old (3)"],
            "differentPoints": [{"assignment": {"id": 12, "name": "Quiz"}, "points": 0, "gradebookPoints": 3},
                                {"assignment": {"id": 13, "name": "Essay"}, "points": 0, "gradebookPoints": 4}],
            "findings": told["findings"]})

    def test_check_knows_the_gradebook(self):
        source = self.write_class((ANN, BOB), (QUIZ,))
        book = self.gradebook(HEAD + "Quiz (1)", "Ann Smith,91,1001,ann,A,", "Bob Smith,92,1002,bob,A,2")
        result = run("check", "-f", "canvas", "--gradebook", book, "--json", source)
        self.assertEqual(result.returncode, TROUBLE, result.stderr)
        codes = [finding["code"] for finding in json.loads(result.stdout)["classes"][0]["findings"]]
        self.assertIn("gradebook-erased", codes)
        self.assertNotIn("result-missing", codes)


if __name__ == "__main__":
    unittest.main()
