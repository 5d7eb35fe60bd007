"""docs/adding-a-format.md, done: a copy of the sources gets one more format as the page says, is built, and its own
tests are run; where a step is left out, one of them fails."""
import fnmatch
import json
import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from sources import ROOT, copy_sources

BUILD = Path(os.environ["BUILD"]).resolve()
PAGE = (ROOT / "docs/adding-a-format.md").read_text()
PATCH = Path(__file__).resolve().parent / "new_format.patch"
PATCHED = re.findall(r"^\+\+\+ b/(.*?)\t?$", PATCH.read_text(), re.MULTILINE)
STEPS = PAGE[PAGE.index("\n## 1. "):]

# What a new format is compared with: the tests that go through the table.
TARGETS = ["gxexport", "gxrescomp", "unit_tests", "reader_tests", "export_tests", "systems_tests"]
TESTS = "SessionMgr|EntryPoints|Findings|help_book|docs_pages"
GOLDEN = "tests/golden/*.example*.csv"  # not in the patch: a command of the page makes them
TOLD = "GOLDEN"  # a macro with a folder, in place of which the tests can be told another

UI = "EXAMPLE_HOST" in os.environ
UI_TARGETS = ["GX_StdCsv", "gradix_resources"]
UI_SOURCES = ["src/Host/Result/UploadSteps.cpp", "tests/filter/end_to_end_test.cpp"]  # are compiled, but not linked

# Stands before each call of the compiler: an object that the copy does not change is taken from the build at hand.
LAUNCHER = """#!/bin/sh
for word; do [ "$before" != -o ] || object=$word; before=$word; done
grep -qxF -- "$object" {list} && cp {build}/"$object" "$object" 2>/dev/null || exec "$@"
"""


def sources_of(entry):
    """What is compiled there: a file, or several as one."""
    file = Path(entry["file"])
    text = file.read_text() if file.is_relative_to(BUILD) and file.exists() else ""
    return [Path(name) for name in re.findall(r'^#include "(/.*)"$', text, re.MULTILINE)] or [file]


def unchanged_objects(copy, build):
    """The objects of the build at hand that come from no file of the patch and know no folder of one."""
    done = subprocess.run(["ninja", "-C", BUILD, "-t", "deps"], capture_output=True, text=True)
    files = {}
    for entry in done.stdout.split("\n\n"):
        name, *lines = entry.strip().split("\n")
        files[name.partition(": #deps")[0]] = {Path(os.path.normpath(BUILD / line.strip())) for line in lines}
    texts = {}

    def names(file, macros):
        if file not in texts:
            texts[file] = file.read_text(errors="replace") if file.is_relative_to(ROOT) and file.exists() else ""
        return re.search(rf"\b({'|'.join(macros)})\b", texts[file])

    patched = {ROOT / path for path in [*PATCHED, GOLDEN]}
    for entry in json.loads((BUILD / "compile_commands.json").read_text()):
        name = re.search(r" -o (\S+)", entry["command"])[1]
        macros = [name for name, path in re.findall(r'-D(\w+)=\S*?(/[^"\\\s]+)', entry["command"])
                  if any(file.is_relative_to(path) for file in patched) and name != TOLD]
        found = files.get(name)
        ours = Path(entry["file"])
        if ours.is_relative_to(BUILD):
            theirs = build / ours.relative_to(BUILD)
            if not theirs.exists() or theirs.read_text().replace(str(copy), str(ROOT)) != ours.read_text():
                continue
        if found and not found & patched and not (macros and any(names(file, macros) for file in found)):
            yield name


def run(*command, **options):
    done = subprocess.run([*map(str, command)], capture_output=True, text=True, errors="replace", timeout=600,
                          **options)
    if done.returncode != 0:
        raise AssertionError(f"{' '.join(map(str, command))}\n{done.stdout[-4000:]}{done.stderr[-4000:]}")
    return done.stdout


class Page(unittest.TestCase):
    def test_the_steps_name_the_files(self):
        named = set(re.findall(r"`((?:[\w]+/[^`]*|README)\.\w+)`", STEPS))
        for path in PATCHED:
            self.assertTrue(any(fnmatch.fnmatch(path, name) for name in named), f"{path} is on the page")
        self.assertEqual({name for name in named if not fnmatch.filter(PATCHED, name)}, {GOLDEN}, "not in the patch")

    def test_the_steps_show_the_lines(self):
        added = "\n".join(line[1:].strip() for line in PATCH.read_text().splitlines() if line.startswith("+"))
        shown = re.findall(r"^```cpp\n(.*?)^```$", STEPS, re.MULTILINE | re.DOTALL)
        self.assertGreaterEqual(len(shown), 3)
        for block in shown:
            self.assertIn("\n".join(line.strip() for line in block.splitlines()), added)


@unittest.skipUnless(shutil.which("git"), "no git, which applies the patch")
class NewFormat(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        cls.copy = Path(folder.name).resolve() / "gradix"
        # The copy is not part of a repository, wherever it lies.
        cls.environment = os.environ | {"GIT_CEILING_DIRECTORIES": str(cls.copy.parent),
                                        "GRADIX_GOLDEN": str(cls.copy / "tests/golden")}
        copy_sources(cls.copy)
        cls.patch()
        cls.build = cls.copy / "build/release"
        objects = cls.copy / "unchanged-objects"
        launcher = cls.copy / "launcher"
        launcher.write_text(LAUNCHER.format(list=objects, build=BUILD))
        launcher.chmod(0o755)
        # Compiled anew is little, and quickly: without optimisation.
        cache = dict(re.findall(r"^(\w+):\w+=(.*)$", (BUILD / "CMakeCache.txt").read_text(), re.MULTILINE))
        same = ["CMAKE_C_COMPILER", "CMAKE_CXX_COMPILER", "GRADIX_SANITIZE", "GRADIX_UNITY"]
        run(os.environ["CMAKE"], "-S", cls.copy, "-B", cls.build, "-G", cache["CMAKE_GENERATOR"], f"-DGRADIX_UI={UI}",
            "-DCMAKE_BUILD_TYPE=Debug", "-DCMAKE_CXX_FLAGS_DEBUG=", f"-DCMAKE_CXX_COMPILER_LAUNCHER={launcher}",
            *(f"-D{name}={cache.get(name, '')}" for name in same))
        objects.write_text("".join(f"{name}\n" for name in unchanged_objects(cls.copy, cls.build)))
        run(os.environ["CMAKE"], "--build", cls.build, "--target", *TARGETS, *UI_TARGETS * UI)

    @classmethod
    def patch(cls, *options):
        run("git", "apply", *options, PATCH, cwd=cls.copy, env=cls.environment)

    def outcome(self, names):
        """Whether the tests of the copy pass, and what they say. "model" is the comparison with it, a short one."""
        command = ["ctest", "--preset", "release", "-R", names, "--no-tests=error"]
        if names == "model":
            command = ["python3", "tests/model/compare.py", "--gxexport", self.build / "bin/gxexport", "--count", "30"]
        done = subprocess.run(command, cwd=self.copy, capture_output=True, text=True, errors="replace",
                              env=self.environment)
        return done.returncode == 0, done.stdout[-4000:] + done.stderr[-4000:]

    def gxexport(self, *arguments):
        return run(self.build / "bin/gxexport", *arguments, cwd=self.copy)

    def test_the_format_is_everywhere(self):
        formats = json.loads(self.gxexport("formats", "--json"))
        self.assertEqual((formats[-1]["key"], formats[-1]["index"]), ("example", len(formats) - 1))
        sample = "samples/village-school.xml"
        self.assertEqual(self.gxexport("export", "-f", "example", sample),
                         self.gxexport("export", "-f", str(len(formats) - 1), sample))
        self.assertIn(", for Example, current file\n",
                      self.gxexport("check", "-f", "example", "--dialect", "current", sample))
        proposed = run("python3", "-c", "import test_completion as t; print(*t.bash('gxexport check -f exa')[0])",
                       cwd=self.copy / "tests/cli", env=self.environment | {
                           "GXEXPORT": str(self.build / "bin/gxexport"), "SAMPLES": str(self.copy / "samples")})
        self.assertEqual(proposed, "example\n")
        for tests in (TESTS, "model"):
            with self.subTest(tests):
                passed, told = self.outcome(tests)
                self.assertTrue(passed, told)

    @unittest.skipUnless(UI, "built without Qt")
    def test_the_dialog_opens(self):
        (module,) = self.build.glob("lib/**/GX_StdCsv.so")
        bundle = {"GRADIX_BUNDLE": str(self.build / "share/gradix/Gradix.bundle")}
        told = run(os.environ["EXAMPLE_HOST"], module, "samples/village-school.xml", "11", "2", "/nonexistent/x.csv",
                   cwd=self.copy, env=self.environment | bundle)
        self.assertIn("\n11  Assignment Results for Example (.csv)\nThe options dialog is open.\n", told)

    @unittest.skipUnless(UI, "built without Qt")
    def test_the_windows_have_their_rows(self):
        commands = json.loads((BUILD / "compile_commands.json").read_text())
        for name in UI_SOURCES:
            self.assertIn(name, PATCHED)
            entry = next(entry for entry in commands if ROOT / name in sources_of(entry))
            command = entry["command"].replace(entry["file"], str(ROOT / name))
            command = command.replace(str(BUILD), "\0").replace(str(ROOT), str(self.copy))
            run("sh", "-c", command.replace("\0", str(BUILD)) + " -fsyntax-only", cwd=BUILD)
        run("python3", "tests/host/test_translations.py", cwd=self.copy, env=self.environment | {
            "SOURCES": str(self.copy / "src/Host"), "LUPDATE": os.environ["LUPDATE"]})

    def test_a_step_that_is_left_out_fails(self):
        rows = (("resources/help/*qzm_231.htm", "help_book"), ("resources/help/*qzmanage.htm", "help_book"),
                ("resources/help/*qzm_230.htm", "help_book"), ("tests/model/gxmodel.py", "model"),
                ("tests/model/gxcurrent.py", "model"), ("README.md", "docs_pages"), ("docs/formats.md", "docs_pages"))
        for path, tests in rows:
            with self.subTest(path):
                self.patch("--reverse", f"--include={path}")
                passed, told = self.outcome(tests)
                self.patch(f"--include={path}")
                self.assertFalse(passed, told)

    def test_golden_files(self):
        tests = "Golden|GradebookFormats"
        self.assertEqual(sorted(self.copy.glob(GOLDEN)), [])
        self.assertFalse(self.outcome(tests)[0], "there are none yet")
        command = re.search(r"^ *(GRADIX_UPDATE_GOLDEN=1 ctest .*)$", PAGE, re.MULTILINE)[1]
        run("bash", "-c", command, cwd=self.copy, env=self.environment)
        passed, told = self.outcome(tests)
        self.assertTrue(passed, told)
        # What is in them is compared with the model, and with the sample in docs/formats.md.
        self.assertEqual({path.name for path in self.copy.glob(GOLDEN)}, {
            "small-class.example.csv", "small-class.example-bare.csv", "secondary-school.example.csv",
            "secondary-school.example-current.csv"})


if __name__ == "__main__":
    unittest.main()
