"""The command line: options, refusals, messages, exit statuses and the treatment of output files."""
import json
import os
import re
import resource
import signal
import stat
import subprocess
import sys
import threading
import time
import unittest

sys.path.insert(0, os.path.dirname(__file__))
from support import (ANN, BOB, CAT, CLASS_FILE, DONE, GXEXPORT, IDENTIFIERS, OUTPUT, QUIZ, SAMPLE,  # noqa: E402
                     UNPRIVILEGED, USAGE, FolderTest, assignment, class_xml, run, student)

FORMATS = json.loads(run("formats", "--json").stdout)
CONTROL = re.compile(r"[\x00-\x09\x0b-\x1f\x7f-\x9f]")  # all but the line feed


class Usage(FolderTest):
    def test_refusals(self):
        rows = {
            "no command": ([], "a command is missing; the commands are formats, inspect"),
            "unknown command": (["convert"], "unknown command 'convert'; the commands are formats, inspect"),
            "nearly a command": (["exprot"], "'exprot'; did you mean 'export'? The commands are"),
            "help on nothing": (["help", "insect"], "did you mean 'inspect'?"),
            "nearly an option": (["export", "--foramt", "canvas", SAMPLE], "unknown option '--foramt'; did you mean '--format'?"),
            "nearly an option with a value": (["export", "--colums=both"], "option '--colums'; did you mean '--columns'?"),
            "an option like no other": (["inspect", "--quick"], "unknown option '--quick'\n"),
            "nearly a format": (["export", "-f", "BlackBord", SAMPLE], "did you mean 'blackboard'? The formats are webct"),
            "nearly a field": (["export", "-f", "6", "-u", "Sudent-ID", SAMPLE], "mean 'student-id'? The fields are"),
            "nearly a column": (["export", "-f", "3", "-a", "301", "--fields", "alais", SAMPLE], "did you mean 'alias'?"),
            "no class file": (["inspect"], "CLASSFILE"),
            "no format": (["export", SAMPLE], "--format"),
            "unknown format": (["export", "-f", "excel", SAMPLE], "schoology, sakai"),
            "index too large": (["export", "-f", len(FORMATS), SAMPLE], f"unknown format '{len(FORMATS)}'"),
            "index beyond 32 bits": (["export", "-f", "4294967302", SAMPLE], "unknown format"),
            "index with a tail": (["export", "-f", "6x", SAMPLE], "unknown format '6x'"),
            "two formats": (["export", "-f", "6", "-f", "7", SAMPLE], "--format"),
            "unknown option": (["export", "-f", "6", "--quotes", SAMPLE], "--quotes"),
            "two class files": (["export", "-f", "6", SAMPLE, SAMPLE], "need --output-dir"),
            "two to inspect": (["inspect", SAMPLE, "b"], "not expected: b"),
            "id is no number": (["export", "-f", "6", "-a", "12x", SAMPLE], "'12x' is no assignment id"),
            "an id left out": (["export", "-f", "6", "-a", "301,,302", SAMPLE], "'' is no assignment id"),
            "id beyond 32 bits": (["export", "-f", "6", "-a", "2147483648", SAMPLE], "'2147483648'"),
            "unknown id": (["export", "-f", "6", "-a", "301", "-a", "-7", SAMPLE], "id -7", "302  Quiz 2: Membranes"),
            "unknown user field": (["export", "-f", "6", "-u", "password", SAMPLE], "'password'", "alias, custom-1"),
            "no output name": (["export", "-f", "6", "-o", "", SAMPLE], "-o"),
            "fields, canvas": (["export", "-f", "6", "--fields", "all", SAMPLE], "--fields applies to"),
            "columns, canvas": (["export", "-f", "6", "--columns", "both", SAMPLE], "--columns applies to"),
            "asterisks, canvas": (["export", "-f", "6", "--no-asterisks", SAMPLE], "--no-asterisks applies to"),
            "unknown field": (["export", "-f", "3", "-a", "301", "--fields", "alias,iq", SAMPLE], "'iq'", "pad-id"),
            "empty field": (["export", "-f", "3", "-a", "301", "--fields", "alias,", SAMPLE], "''"),
            "all and more": (["export", "-f", "3", "-a", "301", "--fields", "all,alias", SAMPLE], "'all'"),
            "unknown columns": (["export", "-f", "3", "-a", "301", "--columns", "none", SAMPLE], "'none'"),
            "detailed, no id": (["export", "-f", "3", SAMPLE], "one assignment", "301  Quiz 1: Cells"),
            "detailed, two ids": (["export", "-f", "3", "-a", "301", "-a", "302", SAMPLE], "one assignment"),
        }
        for name, (args, *fragments) in rows.items():
            with self.subTest(name):
                self.check(run(*args), USAGE, *fragments)

    def test_superfluous_options_are_told(self):
        report = ["-f", "detailed", "-a", "301"]
        for plain, option in [(["-f", "canvas"], ["--no-quotes"]), (report, ["--no-quotes"]), (report, ["-u", "alias"]),
                              (report, ["--points-possible"]), ([*report, "--columns", "points"], ["--answer-key"])]:
            with self.subTest(option):
                result = run("export", *plain, *option, SAMPLE)
                self.check(result, DONE, f"{option[0]} has no effect")
                self.assertEqual(result.stdout, run("export", *plain, SAMPLE).stdout)

    def test_help_and_version(self):
        for args, text in [(["--help"], "Exit status"), (["--version"], "gxexport 1"), (["-V"], "gxexport 1"),
                           (["export", "--help"], "-u"), (["inspect", "-h"], "CLASSFILE"), (["formats", "-h"], "--json"),
                           (["help"], "Exit status"), (["help", "export"], "--no-asterisks")]:
            with self.subTest(args):
                result = run(*args)
                self.check(result, DONE)
                self.assertIn(text, result.stdout.decode())
                self.assertTrue(all(len(line) < 80 for line in result.stdout.decode().splitlines()))
                self.assertTrue(result.stdout.endswith(b"\n"))

    def test_odd_file_names(self):
        expected = run("export", "-f", "canvas", SAMPLE).stdout
        for name in ["[a,b]", "{}", " blank", "export", "%s%n"]:
            with self.subTest(name):
                (self.folder / name).write_bytes(SAMPLE.read_bytes())
                self.assertEqual(run("export", "-f", "canvas", name, cwd=self.folder).stdout, expected)

    def test_no_message_controls_the_terminal(self):
        hostile = "a\x1b]0;b\x07\x9b1m\n\x7f"
        twin = student(5, hostile, hostile, student_id=hostile)
        path = self.write_class([twin | {"first-name": "\x7fx\n", "last-name": "\x85", "student-id": "\n\x7f"}] * 2,
                                [assignment(1, "\nname\x7f"), assignment(2, "b")])
        runs = [run(hostile), run("inspect", hostile), run("export", "-f", hostile, SAMPLE), run("inspect", path),
                run("export", "-f", "3", "--fields", hostile, "-a", "1", SAMPLE), run("export", "-f", "3", path),
                run("export", "-f", "6", "-o", "/nowhere/" + hostile, SAMPLE), run("export", "-f", "6", path),
                run("export", "-f", "6", "-a", hostile, SAMPLE), run("inspect", b"\xff\xc3".decode("latin-1"))]
        for result in runs:
            with self.subTest(result.args):
                self.assertNotRegex((result.stdout + result.stderr).decode(), CONTROL)
        # Two lines for two students, whatever their names hold.
        self.assertEqual(runs[3].stdout.decode().split("\n\n")[-1].count("\n"), 4)


class Reading(FolderTest):
    def test_faults_are_located(self):
        rows = {
            "mismatched tag": (b"<class>\n <a>\n  </b>\n</class>", ":3:5: mismatched tag"),
            "another document": (b"<html/>", "not class"),
            "unknown encoding": (b"<?xml version='1.0' encoding='windows-1252'?><class/>", ":1:31: the encoding windows-"),
        }
        for name, (data, message) in rows.items():
            path = self.folder / "bad.xml"
            path.write_bytes(data)
            with self.subTest(name):
                self.check(run("inspect", path), CLASS_FILE, f"gxexport: {path}:", message)
                self.check(run("export", "-f", "6", "-", stdin=data), CLASS_FILE, "gxexport: (standard input):", message)

    def test_unreadable(self):
        self.check(run("inspect", "no.xml", cwd=self.folder), CLASS_FILE, "cannot open no.xml: No such file or directory")
        self.check(run("inspect", self.folder), CLASS_FILE, f"cannot read {self.folder}: Is a directory")
        with_closed_input = subprocess.run(f"'{GXEXPORT}' inspect - <&-", shell=True, capture_output=True)
        self.check(with_closed_input, CLASS_FILE, "(standard input): Bad file descriptor")

    def test_inspect_as_json(self):
        summary = json.loads(run("inspect", "--json", SAMPLE).stdout.decode())
        self.assertEqual(list(summary), ["version", "className", "customLabels", "assignments", "identifierFields",
                                         "students"])
        self.assertEqual((summary["version"], summary["className"]), (1, "Biology 9"))
        self.assertEqual(summary["students"][0], {
            "id": 101, "first-name": "Inés", "last-name": "Álvarez", "student-id": "204100", "alias": "ialvarez",
            "pad-id": "P01", "gender": "Female", "date-of-birth": "2008-08-06", "grade-level": "9", "sociological": "",
            "race": "R1", "other": "Bus 4", "custom-1": "alvarez.ines", "custom-2": "ines.alvarez@students.example.org",
            "custom-3": "Room 14"})
        self.assertEqual(summary["students"][17]["first-name"], "Łukasz")
        first = summary["assignments"][0]
        self.assertEqual(first | {"scores": None}, {
            "id": 301, "name": "Quiz 1: Cells", "assignmentID": "A301", "category": "Quizzes", "onlineID": "",
            "date": "2023-09-08", "pointsPossible": 6, "questionCount": 6, "resultCount": 30, "scores": None})
        self.assertAlmostEqual(first["scores"].pop("mean"), 121.5 / 29)
        self.assertEqual(first["scores"], {"count": 29, "min": 1.5, "max": 6})
        self.assertEqual(summary["assignments"][-1]["scores"], {"count": 0, "mean": None, "min": None, "max": None})
        self.assertEqual((len(summary["students"]), len(summary["assignments"])), (30, 12))
        self.assertEqual(summary["customLabels"], ["Canvas ID", "Moodle e-mail", "Homeroom"])

    def test_inspect_judges_identifiers(self):
        people = [ANN, BOB | {"alias": ""}, CAT | {"alias": "ann"}, student(4, "Łucja", alias="ŁUCJA"),
                  student(5, "Žofia", alias="łucja"), student(6, "Dee", alias="")]
        path = self.write_class(people)
        fields = {f.pop("field"): f for f in json.loads(run("inspect", "--json", path).stdout)["identifierFields"]}
        self.assertEqual(list(fields), ["first-name", "last-name", "student-id", "alias", "custom-1", "custom-2",
                                        "custom-3"])
        self.assertEqual(fields["alias"], {"title": "Student alias", "filled": 4, "empty": 2, "duplicates": [[1, 3]],
                                           "nearDuplicates": [[4, 5]], "example": "ann"})
        self.assertEqual(fields["last-name"]["duplicates"], [[1, 2, 3, 4, 5, 6]])
        self.assertEqual(fields["custom-3"], {"title": "Custom 3", "filled": 0, "empty": 6, "duplicates": [],
                                              "nearDuplicates": [], "example": ""})
        text = run("inspect", path).stdout.decode()
        self.assertRegex(text, r"\n  alias +Student alias +4 of 6 +1 +1 +ann\n")
        self.assertIn('\n  alias: "ŁUCJA" (Łucja Smith), "łucja" (Žofia Smith)\n', text)
        self.assertTrue(text.endswith("\nStudents:\n  ID  NAME\n  1   Ann Smith\n  2   Bob Smith\n  3   Cat Smith\n"
                                      "  4   Łucja Smith\n  5   Žofia Smith\n  6   Dee Smith\n"), text)

    def test_inspect_shows_points(self):
        results = {1: [("x", 2), ("y", 1 / 3)], 2: [("x", 1), None], 3: [("x", "inf"), None], 99: [("x", 50), None]}
        rows = [assignment(7, "Łódź", [("A", 2), ("B", 1)], results), assignment(8, "", [], {2: []}), assignment(9, "C")]
        text = run("inspect", self.write_class([ANN, BOB, CAT], rows)).stdout.decode()
        self.assertTrue(text.startswith("Students:     3\nAssignments:  3\n\n"), text)
        self.assertEqual(text.split("\n")[5:8],
                         ["  7   Łódź  -     0       2          3        1.67  1 to 2.33",
                          "  8   -     -     0       0          1        0     0",
                          "  9   C     -     0       0          0        -     -"])


class Export(FolderTest):
    def test_choices(self):
        path = self.write_class([ANN], [assignment(7, "One"), QUIZ, assignment(7, "Three")])
        for ids, names in [([], "One,Quiz,Three"), ([7], "One,Three"), ([12, 7, 12], "One,Quiz,Three"),
                           (["12,7"], "One,Quiz,Three")]:
            with self.subTest(ids):
                header = run("export", "-f", "canvas", *(f"-a{n}" for n in ids), path).stdout.decode().split("\n")[0]
                self.assertTrue(header.endswith("," + names), header)
        for plain, word in [("6", "CANVAS"), ("7", "Brightspace"), ("5", "blackboard")]:
            self.assertEqual(run("export", "-f", word, path).stdout, run("export", "-f", plain, path).stdout)
        self.check(run("export", "-f", "detailed", "-a", "7", path), DONE, "several assignments have this id")
        one = self.write_class([ANN], [QUIZ])  # the report's, so that it need not be named
        self.assertEqual(run("export", "-f", "detailed", one).stdout.decode(),
                         '"First name","Last name","Student ID",1,2\n"Ann","Smith","1001","*B","A"\n')
        none = self.write_class([ANN], [])
        self.check(run("export", "-f", "canvas", none), DONE, "no assignments")
        self.check(run("export", "-f", "detailed", none), USAGE, "no assignments")

class Identifiers(FolderTest):
    def test_some_missing(self):
        result = run("export", "-f", "canvas", self.write_class([ANN, BOB | {"student-id": ""}, CAT]))
        self.check(result, DONE, "1 of 3", "Bob Smith (id 2)", "Canvas User ID")
        self.assertNotIn("Ann", result.stderr.decode())

    def test_refused_unless_forced(self):
        nobody = student(9, "Zoé")
        shared = [BOB, ANN, *(student(i, "Twin", student_id=n) for i, n in enumerate(["a", "A", 1001, 1002], 3))]
        rows = {
            "no students": ([], ["no students"]),
            "nobody has one": ([nobody, nobody], ["empty for all students", "Zoé Smith (id 9), Zoé Smith"]),
            "groups by their second student": (shared, ['ID:\n  "1001": Ann Smith (id 1), Twin Smith (id 5)\n'
                                                        '  "1002": Bob Smith (id 2), Twin Smith (id 6)\nCheck']),
            "two missing": ([ANN, nobody, BOB, nobody], ["2 of 4", "none: Zoé Smith (id 9), Zoé"]),
        }
        for name, (people, fragments) in rows.items():
            with self.subTest(name):
                path = self.write_class(people)
                output = self.folder / "out.csv"
                self.check(run("export", "-f", "canvas", "-o", output, path), IDENTIFIERS, "--force", *fragments)
                self.assertFalse(output.exists())
                forced = run("export", "-f", "canvas", "--force", path)
                self.check(forced, DONE, "warning", *fragments)
                self.assertEqual(forced.stdout.count(b"\n"), 2 + len(people))
        for options in (["-f", "canvas", "-u", "first-name"], ["-f", "detailed"]):  # another field, and none
            result = run("export", *options, self.write_class([BOB | {"student-id": "1001"}, ANN]))
            self.assertEqual((result.returncode, result.stderr), (DONE, b""))


class Output(FolderTest):
    def setUp(self):
        super().setUp()
        self.expected = run("export", "-f", "canvas", SAMPLE).stdout
        self.output = self.folder / "out.csv"

    def export(self, output, *, source=SAMPLE, **options):
        return run("export", "-f", "canvas", "-o", output, source, **options)

    def written(self, path=None):
        return (path or self.output).read_bytes()

    def assert_only(self, *names):
        self.assertEqual(sorted(os.listdir(self.folder)), sorted(names))

    def test_new_file_gets_usual_permissions(self):
        self.check(self.export("out.csv", cwd=self.folder, umask=0o027), DONE)
        self.assertEqual(self.written(), self.expected)
        self.assertEqual(stat.S_IMODE(self.output.stat().st_mode), 0o640)
        self.assert_only("out.csv")

    def test_replaced_file_keeps_permissions(self):
        self.output.write_bytes(b"old" * 10000)
        self.output.chmod(0o604)
        self.check(self.export(self.output), DONE)
        self.assertEqual(self.written(), self.expected)
        self.assertEqual(stat.S_IMODE(self.output.stat().st_mode), 0o604)

    def test_symbolic_links_are_followed(self):
        (self.folder / "deep").mkdir()
        target = self.folder / "deep" / "target.csv"
        link = self.folder / "link.csv"
        link.symlink_to("deep/target.csv")
        for name in ["new target", "old target"]:
            with self.subTest(name):
                self.check(self.export(link), DONE)
                self.assertTrue(link.is_symlink())
                self.assertEqual(self.written(target), self.expected)
                target.write_bytes(b"old")

    def test_pipes_and_devices_are_written_directly(self):
        fifo = self.folder / "fifo"
        os.mkfifo(fifo)
        received = []
        reader = threading.Thread(target=lambda: received.append(fifo.read_bytes()), daemon=True)
        reader.start()
        self.check(self.export(fifo), DONE)
        reader.join(10)
        self.assertEqual(received, [self.expected])
        self.assertTrue(fifo.is_fifo())
        self.assertEqual(self.export("/dev/stdout").stdout, self.expected)
        with open(self.output, "ab") as appended:
            appended.write(b"before\n")
            appended.flush()
            self.export("/dev/stdout", stdout=appended)
        self.assertEqual(self.written(), b"before\n" + self.expected)

    def test_full_disk(self):
        data = SAMPLE.read_bytes()
        direct = self.export("/dev/full", source="-", stdin=data, **UNPRIVILEGED)
        self.check(direct, OUTPUT, "cannot write /dev/full: No space left on device")
        with open("/dev/full", "wb") as full:
            for args in (["export", "-f", "6", SAMPLE], ["formats"], ["inspect", SAMPLE], ["--help"]):
                self.check(run(*args, stdout=full), OUTPUT, "(standard output): No space left on device")

    def test_interrupted_writing_leaves_the_old_file(self):
        self.output.write_bytes(b"old")
        limit = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (1000, 1000))  # noqa: E731
        self.check(self.export(self.output, preexec_fn=limit), OUTPUT, "File too large")
        self.assertEqual(self.written(), b"old")
        self.assert_only("out.csv")

    def test_permissions_are_respected(self):
        self.output.write_bytes(b"old")
        self.output.chmod(0o444)
        if UNPRIVILEGED:
            os.chown(self.folder, 65534, 65534)
            os.chown(self.output, 65534, 65534)
        source = self.folder / "class.xml"
        source.write_bytes(SAMPLE.read_bytes())
        self.check(self.export(self.output, source=source, **UNPRIVILEGED), OUTPUT, "Permission denied")
        self.folder.chmod(0o555)
        self.addCleanup(self.folder.chmod, 0o755)
        self.check(self.export(self.folder / "new.csv", source=source, **UNPRIVILEGED), OUTPUT, "Permission denied")
        self.assertEqual(self.written(), b"old")
        self.assert_only("out.csv", "class.xml")

    def test_the_class_file_is_not_overwritten(self):
        source = self.write_class([ANN])
        content = source.read_bytes()
        (self.folder / "link").symlink_to("class.xml")
        os.link(source, self.folder / "twin")
        for name in ("class.xml", "link", "twin"):
            self.check(self.export(self.folder / name, source=source), USAGE, "overwrite")
        with open(source, "rb") as stream:
            self.check(self.export(source, source="-", stdin_file=stream), USAGE, "overwrite")
        with open(source, "ab") as appended:
            self.check(self.export("-", source=source, stdout=appended), USAGE, "overwrite")
        self.assertEqual(source.read_bytes(), content)

    def test_malformed_class_leaves_the_old_file(self):
        self.output.write_bytes(b"old")
        self.check(self.export(self.output, source="-", stdin=SAMPLE.read_bytes()[:-20]), CLASS_FILE)
        self.assertEqual(self.written(), b"old")

    def test_a_closed_pipe_is_no_news(self):
        reading, writing = os.pipe()
        os.close(reading)
        result = self.export("-", source=self.write_class([ANN]), stdout=writing)
        os.close(writing)
        self.check(result, OUTPUT)
        self.assertEqual(result.stderr, b"")

    def test_closed_standard_streams(self):
        command = f"'{GXEXPORT}' export -f canvas '{self.write_class([ANN, BOB | {'student-id': ''}])}'"
        closed_output = subprocess.run(command + " >&-", shell=True, capture_output=True)
        self.check(closed_output, OUTPUT, "Bad file descriptor")
        # The warning about Bob must not end up in the file that takes the free descriptor.
        subprocess.run(command + f" -o '{self.output}' 2>&-", shell=True, check=True)
        self.assertEqual(self.written(), subprocess.run(command, shell=True, capture_output=True).stdout)

    def test_a_signal_leaves_nothing_behind(self):
        def heed_signals():
            """A run in the background ignores the interrupt, one under nohup the hang-up, and so would the child."""
            for number in (signal.SIGINT, signal.SIGHUP):
                signal.signal(number, signal.SIG_DFL)

        questions = [("A", 1)] * 2000
        source = self.write_class([student(i, "Name") for i in range(4000)], [assignment(1, "Long", questions)])
        self.output.write_bytes(b"old")
        for number in (signal.SIGINT, signal.SIGTERM, signal.SIGHUP, signal.SIGKILL):
            with self.subTest(number.name):
                process = subprocess.Popen([GXEXPORT, "export", "-f", "detailed", "-o", self.output, source],
                                           preexec_fn=heed_signals)
                while process.poll() is None and not self.is_writing(process):
                    time.sleep(0.0005)
                process.send_signal(number)
                self.assertEqual(process.wait(), -number)
                self.assertEqual(self.written(), b"old")
                self.assert_only("out.csv", "class.xml")

    def is_writing(self, process):
        """Whether it has an unnamed file in the folder, with text in it."""
        folder = f"/proc/{process.pid}/fd"
        try:
            paths = [os.path.join(folder, name) for name in os.listdir(folder)]
            return any(os.readlink(path).startswith(f"{self.folder}/#") and os.stat(path).st_size for path in paths)
        except OSError:  # closed, or gone
            return False

    def test_what_cannot_be_replaced_is_written_in_place(self):
        source = self.folder / "class.xml"
        source.write_bytes(SAMPLE.read_bytes())
        closed = self.folder / "closed"
        closed.mkdir()
        output = closed / "out.csv"
        output.write_bytes(b"old" * 10000)
        output.chmod(0o666)
        closed.chmod(0o555)
        self.addCleanup(closed.chmod, 0o755)
        self.folder.chmod(0o755)
        number = output.stat().st_ino
        result = self.export(output, source=source, **UNPRIVILEGED)
        self.check(result, DONE, f"warning: {output} was written in place", "no second file (Permission denied)\n")
        self.assertEqual(result.stderr.count(b"\n"), run("export", "-f", "canvas", SAMPLE).stderr.count(b"\n") + 1)
        self.assertEqual((self.written(output), output.stat().st_ino), (self.expected, number))
        limit = lambda: resource.setrlimit(resource.RLIMIT_FSIZE, (100, 100))  # noqa: E731
        self.check(self.export(output, source=source, preexec_fn=limit, **UNPRIVILEGED), OUTPUT, "File too large",
                   "The file is incomplete: it was written in place")
        self.assertEqual(self.written(output), self.expected[:100])

    def mount(self, *args):
        """Mounts onto args[-1] until the end of the test."""
        if os.geteuid() != 0 or subprocess.run(["mount", *args], capture_output=True).returncode != 0:
            self.skipTest("NOT TESTED: nothing can be mounted here")
        self.addCleanup(subprocess.run, ["umount", args[-1]], check=True)

    def test_a_mounted_file_is_written_in_place(self):
        behind = self.folder / "behind.csv"
        for path in (behind, self.output):
            path.write_bytes(b"old")
        self.mount("--bind", behind, self.output)
        self.check(self.export(self.output), DONE, "written in place", "no other file can take its place (Device or")
        self.assertEqual(self.written(behind), self.expected)
        self.assert_only("behind.csv", "out.csv")

    def test_a_full_disk_leaves_the_old_file(self):
        disk = self.folder / "disk"
        disk.mkdir()
        self.mount("-t", "tmpfs", "-o", "size=16k", "none", disk)
        output = disk / "out.csv"
        output.write_bytes(b"old" * 1000)
        filler = disk / "filler"
        filler.write_bytes(b"x" * 12288)  # the rest of it
        self.check(self.export(output), OUTPUT, f"cannot write {output}: No space left on device\n")
        self.assertEqual(self.written(output), b"old" * 1000)
        self.assertEqual(sorted(os.listdir(disk)), ["filler", "out.csv"])
        filler.unlink()
        self.check(self.export(output), DONE)
        self.assertEqual(self.written(output), self.expected)


if __name__ == "__main__":
    unittest.main()
