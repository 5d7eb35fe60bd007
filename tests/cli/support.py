"""Running gxexport, and small class files to run it on."""
import atexit
import functools
import os
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path
from xml.sax.saxutils import escape

GXEXPORT = os.path.abspath(os.environ["GXEXPORT"])
SAMPLE = Path(os.environ["SAMPLES"]).resolve() / "secondary-school.xml"

DONE, USAGE, CLASS_FILE, IDENTIFIERS, OUTPUT, TROUBLE = 0, 2, 3, 4, 5, 6

# Root may do anything: replace a device by a file, write a protected one. Tests of either run as somebody else.
UNPRIVILEGED = {"user": 65534, "group": 65534, "extra_groups": []} if os.geteuid() == 0 else {}


@functools.cache
def _program_for_everybody():
    """A copy that anybody may run, wherever the build lies; gone with the process."""
    folder = tempfile.TemporaryDirectory()
    atexit.register(folder.cleanup)
    os.chmod(folder.name, 0o755)
    return shutil.copy(GXEXPORT, folder.name)


def run(*args, stdin=b"", **options):
    """stdout and stderr are bytes."""
    program = _program_for_everybody() if "user" in options else GXEXPORT
    options.setdefault("stdout", subprocess.PIPE)
    options.setdefault("stderr", subprocess.PIPE)
    source = {} if "stdin_file" in options else {"input": stdin}
    if "stdin_file" in options:
        source["stdin"] = options.pop("stdin_file")
    return subprocess.run([program, *map(str, args)], timeout=60, **source, **options)


def student(number, first, last="Smith", **fields):
    return {"id": number, "first-name": first, "last-name": last} | {k.replace("_", "-"): v for k, v in fields.items()}


def assignment(number, name, questions=(), results=()):
    """`questions`: (answer, points); `results`: student -> list of (text, points), one per question or None."""
    return {"id": number, "name": name, "questions": questions, "results": dict(results)}


def _element(name, value):
    return f"<{name}>{escape(str(value))}</{name}>"


def _assignment_xml(row):
    questions = "".join(
        f'<question number="{i}" type="MC" question-id="{i}" bank-id="9">{_element("answer", answer)}'
        f'{_element("points-possible", points)}</question>' for i, (answer, points) in enumerate(row["questions"], 1))
    results = "".join(
        f'<results id="{who}"><response-list>' + "".join(
            f'<response question-id="{i}" bank-id="9">{_element("text", r[0])}{_element("points-earned", r[1])}</response>'
            for i, r in enumerate(responses, 1) if r) + "</response-list></results>"
        for who, responses in row["results"].items())
    return (f'<assignment id="{row["id"]}">{_element("assignment-name", row["name"])}'
            f"<question-list>{questions}</question-list><results-list>{results}</results-list></assignment>")


def class_xml(students, assignments=()):
    people = "".join(
        f'<student id="{s["id"]}">' + "".join(_element(k, v) for k, v in s.items() if k != "id") + "</student>"
        for s in students)
    work = "".join(map(_assignment_xml, assignments))
    return (f"<class><student-list>{people}</student-list>"
            f"<assignment-list>{work}</assignment-list></class>").encode()


QUIZ = assignment(12, "Quiz", [("B", 2), ("C", 1)], {1: [("B", 2), ("A", 0)]})
ANN, BOB, CAT = (student(i, n, student_id=1000 + i, alias=n.lower()) for i, n in enumerate(["Ann", "Bob", "Cat"], 1))


class FolderTest(unittest.TestCase):
    """Has an empty folder."""

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)

    def write_class(self, students, assignments=(QUIZ,), name="class.xml"):
        path = self.folder / name
        path.write_bytes(class_xml(students, assignments))
        return path

    def check(self, result, status, *fragments):
        """The status, the texts in the messages, and no data unless all went well."""
        messages = result.stderr.decode()
        self.assertEqual(result.returncode, status, messages)
        for fragment in fragments:
            self.assertIn(fragment, messages)
        if status != DONE:
            self.assertEqual(result.stdout or b"", b"")
