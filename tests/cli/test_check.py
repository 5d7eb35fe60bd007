"""The check before an export: what it tells, as text and as JSON, and its exit status."""
import json
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(__file__))
from support import (ANN, BOB, CAT, CLASS_FILE, DONE, QUIZ, SAMPLE, TROUBLE, USAGE, FolderTest, assignment,  # noqa: E402
                     run, student)

COMMA = assignment(13, "Cells, part 1", [("B", 2)], {1: [("B", 2)]})


class Check(FolderTest):
    def check_text(self, status, *args):
        """The lines of the text, and the messages."""
        result = run("check", *args)
        self.assertEqual(result.returncode, status, result.stderr.decode())
        lines = result.stdout.decode().splitlines()
        self.assertTrue(all(len(line) < 80 for line in lines[1:]))
        return lines, result.stderr.decode()

    def test_groups_worst_first(self):
        people = [student(1, "Zoé", alias="z"), *(student(i, "Twin", alias=f"t{i}") for i in range(2, 40)), BOB]
        path = self.write_class(people, [QUIZ, COMMA])
        lines, messages = self.check_text(TROUBLE, "-f", "canvas", "-u", "alias", path)
        self.assertEqual(messages, "")
        self.assertEqual(lines[0], f"{path}, for Canvas, classic file")
        groups = [line for line in lines[1:] if line.endswith(":") and not line.startswith(" ")]
        self.assertEqual(groups, ["The file will be refused:", "Results will land in the wrong place:", "Good to know:"])
        text = " ".join(" ".join(lines).split())
        for part in ["Zoé Smith (z) What to do: Make", "Twin Smith (t2); Twin Smith (t3);", "Twin Smith (t21) and 18 more",
                     "Cells, part 1 What", "--dialect current makes"]:
            self.assertIn(part, text)
        self.assertNotIn("t22", text)

    def test_statuses(self):
        clean = self.write_class([ANN], [assignment(12, "Quiz", [("B", 2)], {1: [("B", 2)]})], "clean.xml")
        trouble = self.write_class([ANN], [COMMA], "trouble.xml")
        broken = self.folder / "broken.xml"
        broken.write_bytes(b"<class>\n</x>")
        rows = [([clean], DONE, None), ([trouble], TROUBLE, None), ([broken], CLASS_FILE, None),
                ([clean, clean], DONE, "2 classes: 0 with trouble, 2 without."),
                ([broken, clean, trouble], CLASS_FILE, "3 classes: 1 with trouble, 1 without, 1 not checked."),
                ([trouble, clean, "-a13"], USAGE, "2 classes: 1 with trouble, 0 without, 1 not checked.")]
        for args, status, summary in rows:
            with self.subTest(args):
                result = run("check", "-f", "canvas", *args)
                self.assertEqual(result.returncode, status)
                if summary:
                    self.assertEqual(result.stdout.decode().splitlines()[-1], summary)
                data = json.loads(run("check", "-f", "canvas", "--json", *args).stdout.decode())
                self.assertEqual((data["status"], len(data["classes"])), (status, len(args) - ("-a13" in args)))
        self.check(run("check", "-f", "canvas", "no.xml"), CLASS_FILE, "cannot open no.xml")
        self.check(run("check", "-f", "detailed", "-a", "12", clean), DONE)

    def test_what_is_checked_follows_the_choices(self):
        path = self.write_class([ANN, BOB | {"alias": "zoé"}, CAT], [QUIZ, COMMA])
        for args, status in [(["-a", "12"], DONE), (["-a", "12,13"], TROUBLE), (["-a", "12", "-u", "alias"], TROUBLE),
                             (["-u", "alias", "--dialect", "current"], DONE)]:
            with self.subTest(args):
                self.assertEqual(run("check", "-f", "canvas", *args, path).returncode, status)

    def test_json(self):
        path = self.write_class([ANN, BOB], [COMMA])
        data = json.loads(run("check", "-f", "canvas", "--json", path).stdout.decode())
        self.assertEqual(list(data), ["version", "status", "counts", "classes"])
        self.assertEqual(data["counts"], {"classes": 1, "clean": 0, "trouble": 1, "refused": 0, "unreadable": 0})
        one = data["classes"][0]
        findings = one.pop("findings")
        self.assertEqual(one, {
            "file": str(path), "className": "", "format": "canvas", "system": "canvas", "dialect": "classic",
            "field": "student-id", "status": "trouble", "exitStatus": TROUBLE, "reason": "",
            "counts": {"refused": 0, "wrong": 1, "lost": 0, "changed": 0, "note": len(findings) - 1}})
        for finding in findings:
            self.assertEqual(list(finding), ["code", "consequence", "what", "advice", "places", "arguments"])
        self.assertEqual((findings[0]["code"], findings[0]["consequence"]), ("title-comma", "wrong"))
        self.assertEqual(findings[0]["places"],
                         [{"student": None, "assignment": {"id": 13, "name": "Cells, part 1"}, "detail": ""}])
        empty = next(finding for finding in findings if finding["code"] == "result-missing")
        self.assertEqual(empty["places"][0]["student"], {"id": 2, "name": "Bob Smith"})

    def test_export_tells_trouble(self):
        path, output = self.write_class([ANN, BOB], [COMMA]), self.folder / "out.csv"
        plain = run("export", "-f", "canvas", path)
        self.check(plain, DONE, "gxexport: warning: There is a comma in one title.", "  Cells, part 1\n  What to do: ")
        self.assertNotIn("without a result", plain.stderr.decode())
        self.check(run("export", "-f", "canvas", "--strict", "-o", output, path), TROUBLE, "nothing was written")
        self.assertFalse(output.exists())
        self.check(run("export", "-f", "canvas", "--strict", "--dialect", "current", path), DONE)
        self.check(run("export", "-f", "canvas", "--json", path), USAGE, "--json needs")
        data = json.loads(run("export", "-f", "canvas", "--json", "-o", output, path).stdout.decode())
        self.assertEqual(list(data), ["version", "file", "output", "className", "format", "system", "dialect", "field",
                                      "status", "exitStatus", "reason", "students", "assignments", "scores", "findings",
                                      "counts"])
        self.assertEqual((data["status"], data["exitStatus"], data["scores"]), ("warned", DONE, 1))
        self.assertEqual(output.read_bytes(), plain.stdout)

    def test_gradebook(self):
        path = self.write_class([ANN, BOB], [QUIZ])
        gradebook = self.folder / "Grades.csv"
        gradebook.write_text("Student,ID,SIS User ID,SIS Login ID,Section,Quiz (17)\n"
                             "    Points Possible,,,,,3\n\"Smith, Ann\",501,1001,ann,A,2\n\"Smith, Bob\",502,1002,bob,A,3\n")
        args = ["check", "-f", "canvas", "--json", "--dialect", "current", path]
        alone, course = (json.loads(run(*args, *more).stdout.decode())["classes"][0]
                         for more in ([], ["--gradebook", gradebook]))
        self.assertEqual((alone["status"], course["status"]), ("clean", "trouble"))
        self.assertIn({"id": 2, "name": "Bob Smith"},
                      [place["student"] for place in course["findings"][0]["places"]])
        self.check(run(*args[:-3], "--gradebook", path, path), CLASS_FILE, str(path))
        self.check(run(*args[:-3], "--gradebook", "no.csv", path), CLASS_FILE, "no.csv: No such file")
        self.check(run("check", "-f", "canvas", "--gradebook", gradebook, path, SAMPLE), USAGE, "one class file only")
        self.check(run("check", "-f", "webct", "--gradebook", gradebook, path), USAGE, "WebCT")


if __name__ == "__main__":
    unittest.main()
