"""Many classes at once: what is written, what is told of each class, and what stops the others (nothing)."""
import json
import os
import pty
import sys
import threading
import time
import unittest

sys.path.insert(0, os.path.dirname(__file__))
from support import (ANN, BOB, CAT, CLASS_FILE, DONE, GXEXPORT, IDENTIFIERS, OUTPUT, QUIZ, SAMPLE,  # noqa: E402
                     USAGE, FolderTest, assignment, run)

TROUBLE = 6
COMMA = assignment(12, "Quiz, the first", [("B", 2)], {1: [("B", 2)]})


class Batch(FolderTest):
    def setUp(self):
        super().setUp()
        self.write_class([ANN, BOB], name="good.xml")
        self.write_class([ANN, BOB], [COMMA], name="comma.xml")
        self.write_class([ANN, BOB, CAT | {"student-id": "1001"}], name="twins.xml")
        (self.folder / "broken.xml").write_bytes(b"<class>\n <a>\n  </b>\n</class>")
        self.write_class([ANN], name="full.xml")
        (self.folder / "out" / "full-canvas.csv").mkdir(parents=True)

    def export(self, *args, **options):
        return run("export", "-f", "canvas", "--output-dir", "out", *args, cwd=self.folder, **options)

    def written(self, folder="out"):
        return {p.name: p.read_bytes() for p in (self.folder / folder).iterdir() if p.is_file()}

    def test_worst_status(self):
        rows = [
            (["good.xml"], DONE), (["comma.xml", "good.xml"], DONE), (["--strict", "good.xml", "comma.xml"], TROUBLE),
            (["-a", "77", "good.xml"], USAGE), (["twins.xml", "--strict", "comma.xml"], IDENTIFIERS),
            (["--force", "twins.xml"], DONE), (["twins.xml", "full.xml", "good.xml"], OUTPUT),
            (["full.xml", "broken.xml", "twins.xml"], CLASS_FILE), (["good.xml", "missing.xml"], CLASS_FILE)]
        for args, status in rows:
            with self.subTest(args):
                self.check(self.export(*args), status, "classes written to out")

    def test_no_class_stops_another(self):
        names = ["broken", "comma", "full", "missing", "twins", "good"]
        result = self.export(*(f"{name}.xml" for name in names))
        self.check(result, CLASS_FILE, "2 of 6 classes written to out\n", "Written, with warnings: 1\n  comma.xml: ",
                   "Refused: 1\n  twins.xml: the same Canvas User ID \"1001\" for Ann Smith, Cat Smith\n",
                   "Unreadable: 2\n  broken.xml: line 3, column 5: mismatched tag\n  missing.xml: ",
                   "Not written: 1\n  full.xml: Is a directory\n")
        self.assertEqual(self.written(), {f"{name}-canvas.csv": run("export", "-f", "canvas", f"{name}.xml",
                                                                   cwd=self.folder).stdout for name in ("comma", "good")})
        told = self.export("--json", *(f"{name}.xml" for name in names))
        report = json.loads(told.stdout)
        self.assertEqual((told.returncode, told.stderr), (CLASS_FILE, b""))
        self.assertEqual(list(report), ["version", "format", "dialect", "classes", "summary", "exitStatus"])
        self.assertEqual((report["version"], report["format"], report["dialect"], report["exitStatus"]),
                         (1, "canvas", "classic", CLASS_FILE))
        self.assertEqual(report["summary"], {"classes": 6, "written": 2, "warned": 1, "refused": 1, "unreadable": 2,
                                             "notWritten": 1})
        self.assertEqual([(c["file"], c["status"], c["exitStatus"]) for c in report["classes"]], [
            ("broken.xml", "unreadable", 3), ("comma.xml", "warned", 0), ("full.xml", "not-written", 5),
            ("missing.xml", "unreadable", 3), ("twins.xml", "refused", 4), ("good.xml", "written", 0)])
        self.assertEqual(["title-comma" in [f["code"] for f in c["findings"]] for c in report["classes"]],
                         [c["file"] == "comma.xml" for c in report["classes"]])
        good = report["classes"][5]
        good.pop("findings")  # notes
        self.assertEqual(good, {"file": "good.xml", "output": "out/good-canvas.csv", "status": "written", "exitStatus": 0,
                                "reason": "", "className": "", "students": 2, "assignments": 1, "scores": 1})
        self.assertIsNone(report["classes"][2]["output"])

    def test_long_lists_are_cut(self):
        result = self.export(*(f"missing{i}.xml" for i in range(25)))
        self.check(result, CLASS_FILE, "Unreadable: 25\n", "missing19.xml: cannot be opened", "\n  and 5 more; --json")
        self.assertNotIn(b"missing20.xml", result.stderr)

    def test_jobs_make_no_difference(self):
        for i in range(40):
            self.write_class([ANN, BOB], [assignment(12, f"Quiz {i}", [("B", 2)], {1: [("B", i % 3)]})], f"{i}.xml")
        (self.folder / "7.xml").write_bytes(b"<class>")
        results = []
        for jobs in (1, 4):
            told = self.export("--jobs", jobs, "--json", ".")
            results.append((told.stdout, told.stderr, told.returncode, self.written()))
        self.assertEqual(results[0], results[1])
        self.assertEqual(len(self.written()), 39 + 2)

    def test_folders(self):
        for folder in ("new", "school/a", "school/b"):
            (self.folder / folder).mkdir(parents=True)
        for name in ("school/1.xml", "school/a/2.xml", "school/b/3.xml"):
            self.write_class([ANN], name=name)
        rows = [(["school"], ["1"]), (["-r", "school", "school/a/2.xml"], ["1", "2", "3"])]
        for args, names in rows:
            with self.subTest(args):
                result = run("export", "-f", "canvas", "--output-dir", "new/er", *args, cwd=self.folder)
                self.check(result, DONE, "written to new/er")
                self.assertEqual(sorted(self.written("new/er")), [f"{name}-canvas.csv" for name in names])
        self.check(self.export("new", "good.xml"), DONE, "no class file (*.xml) in new; -r")
        self.check(self.export("new"), USAGE, "no class file (*.xml) in new; -r")

    def test_refused_before_anything_is_written(self):
        (self.folder / "other").mkdir()
        for name in ("other/good.xml", "other/GOOD.xml", "out/comma-canvas.csv"):
            self.write_class([ANN], name=name)
        inputs = ["full.xml", "good.xml"]
        rows = {
            "one name": ([*inputs, "other/good.xml"], "good.xml and other/good.xml would both be written to out/good"),
            "letter case": ([*inputs, "other/GOOD.xml"], "good.xml and other/GOOD.xml would both"),
            "a class": (["comma.xml", "out/comma-canvas.csv"], "out/comma-canvas.csv would replace the class"),
            "standard input": ([*inputs, "-"], "- cannot be"),
        }
        before = self.written()
        for name, (args, fragment) in rows.items():
            with self.subTest(name):
                self.check(self.export(*args), USAGE, fragment)
                self.assertEqual(self.written(), before)
        (self.folder / "file").write_bytes(b"")
        result = run("export", "-f", "canvas", "--output-dir", "file", "good.xml", cwd=self.folder)
        self.check(result, OUTPUT, "cannot make the folder file")

    def test_progress_is_for_terminals(self):
        self.assertNotIn(b"\r", self.export("good.xml", stdin_file=None).stderr)
        os.mkfifo(self.folder / "slow.xml")

        def feed():
            with open(self.folder / "slow.xml", "wb") as slow:
                time.sleep(0.15)
                slow.write((self.folder / "good.xml").read_bytes())

        for terminal, shown in (("xterm", True), ("dumb", False)):
            feeder = threading.Thread(target=feed)
            feeder.start()
            screen, stderr = pty.openpty()
            result = self.export("--jobs", "1", "good.xml", "slow.xml", stderr=stderr, env={"TERM": terminal})
            feeder.join()
            os.close(stderr)
            seen = os.read(screen, 10000)
            os.close(screen)
            self.assertEqual(result.returncode, DONE)
            self.assertEqual(b"\r\x1b[K2 of 2 classes\r\x1b[K" in seen, shown, seen)
            self.assertTrue(seen.endswith(b"gxexport: 2 of 2 classes written to out\r\n"), seen)


if __name__ == "__main__":
    unittest.main()
