"""The pages of the documentation: links and paths that lead somewhere, samples that are what the program writes, and
examples that compile."""
import json
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PAGES = [*sorted(ROOT.glob("*.md")), *sorted((ROOT / "docs").glob("*.md")), ROOT / "samples/README.md"]
BLOCK = re.compile(r"^```(\w*)\n(.*?)^```$", re.MULTILINE | re.DOTALL)


def gxexport(*arguments, **options):
    return subprocess.run([os.environ["GXEXPORT"], *map(str, arguments)], cwd=ROOT, check=True, capture_output=True,
                          timeout=60, **options).stdout


def export(*arguments, **options):
    return gxexport("export", *arguments, **options).decode("mac_roman")


def anchors(page):
    """The names that GitHub gives the headings."""
    text = BLOCK.sub("", page.read_text())
    headings = re.findall(r"^#+ (.*)$", text, re.MULTILINE)
    return {re.sub(r"[^\w\- ]", "", heading.lower()).replace(" ", "-") for heading in headings}


class DocumentationTest(unittest.TestCase):
    def assert_begins(self, sample, output):
        """The sample is the output, cut where its last line is an ellipsis."""
        if sample.endswith("…\n"):
            self.assertEqual(sample[:-2], output[:len(sample) - 2])
        else:
            self.assertEqual(sample, output)

    def test_links(self):
        for page in PAGES:
            text = BLOCK.sub("", page.read_text())
            for target in re.findall(r"\]\(([^)\s]+)\)|<img[^>]* src=\"([^\"]+)\"", text):
                path, _, anchor = (target[0] or target[1]).partition("#")
                if ":" in path:
                    continue
                with self.subTest(page=page.name, link=path + "#" + anchor):
                    file = (page.parent / path).resolve() if path else page
                    self.assertTrue(file.exists())
                    if anchor:
                        self.assertIn(anchor, anchors(file))

    def test_paths(self):
        """What looks like a path of the sources is one; names in the table of folders are files there."""
        folders = {path.name for path in ROOT.iterdir() if path.is_dir() and path.name[0] != "."} - {"build", "out"}
        for page in PAGES:
            if page.name == "adding-a-format.md":
                continue  # test_new_format.py holds its paths against its patch
            for path in re.findall(rf"`((?:{'|'.join(folders)})/[^`\s:]*)[^`\s]*`", BLOCK.sub("", page.read_text())):
                with self.subTest(page=page.name, path=path):
                    self.assertTrue(list(ROOT.glob(path.rstrip("/"))))
        for folder, text in re.findall(r"^\| `(src/[^`]+)/` \|(.*)$", (ROOT / "docs/architecture.md").read_text(),
                                       re.MULTILINE):
            below = {path.stem for path in (ROOT / folder).rglob("*")} | {"gxexport", "gxhost"}
            for name in re.findall(r"`([\w]+)/?`", text):
                with self.subTest(folder=folder, name=name):
                    self.assertIn(name, below)

    def test_options(self):
        """Options on the pages for users are options of the program."""
        known = set()
        for command in ("", "formats", "inspect", "check", "export", "fill"):
            known |= set(re.findall(r"--?[a-zA-Z][\w-]*", gxexport(*command.split(), "--help").decode()))
        for name in ("README.md", "docs/formats.md", "docs/learning-systems.md", "SECURITY.md"):
            text = re.sub(r"(?ms)^## (Installing|How it is tested).*?(?=^## |\Z)", "", (ROOT / name).read_text())
            for code in re.findall(r"`([^`\n]*)`", BLOCK.sub("", text)):
                for option in re.findall(r"(?<!\S)--?[a-zA-Z][\w-]*", code):
                    with self.subTest(page=name, option=option):
                        self.assertIn(option, known)

    def test_every_format_is_described(self):
        formats = [row["key"] for row in json.loads(gxexport("formats", "--json"))]
        for name, row in (("README.md", r"^\| `(\w+)` \|"), ("docs/formats.md", r"^\| \[`(\w+)`\]")):
            self.assertEqual(re.findall(row, (ROOT / name).read_text(), re.MULTILINE), formats, name)

    def test_samples_of_the_formats(self):
        samples = re.findall(r"^`(-f [^`]*)`\n\n```\n(.*?)^```$", (ROOT / "docs/formats.md").read_text(),
                             re.MULTILINE | re.DOTALL)
        self.assertGreater(len(samples), 10)
        for options, sample in samples:
            with self.subTest(options):
                self.assert_begins(sample, export(*options.split(), "samples/secondary-school.xml"))

    def test_sample_of_the_class_file(self):
        (_, class_file), (_, output) = BLOCK.findall((ROOT / "docs/class-file.md").read_text())[:2]
        self.assertEqual(export("-f", "moodle", "-", input=class_file.encode()), output)

    def compiles(self, source, *options):
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "example.c"
            file.write_text(source)
            done = subprocess.run([os.environ["CC"], *options, "-fsyntax-only", f"-I{ROOT / 'include'}", str(file)],
                                  capture_output=True, text=True)
            self.assertEqual((done.returncode, done.stderr), (0, ""), source)

    def test_examples_in_c(self):
        """Whole programs, declarations, and statements, in which `id` and `getExportOutcome` are at hand."""
        around = ("#include <stdio.h>\n#include <string.h>\n#include <gradix/QZFilter.h>\n"
                  "void example(QZFilter_GetExportOutcomeProc getExportOutcome, unsigned long id);\n"
                  "void example(QZFilter_GetExportOutcomeProc getExportOutcome, unsigned long id) {{\n"
                  "(void)getExportOutcome;\n(void)id;\n{}}}\n")
        warnings = ["-Wall", "-Wextra", "-Wpedantic", "-Wshadow", "-Wconversion", "-Werror"]
        examples = [code for page in PAGES for language, code in BLOCK.findall(page.read_text()) if language == "c"]
        self.assertGreaterEqual(len(examples), 3)
        for code in examples:
            whole = "#include" in code
            with self.subTest(code.splitlines()[0]):
                self.compiles(code if whole else around.format(code), "-std=c11", *warnings)

    def test_example_of_a_dialog(self):
        (source,) = [code for language, code in BLOCK.findall((ROOT / "docs/resources.md").read_text())
                     if language == "json"]
        with tempfile.TemporaryDirectory() as folder:
            file = Path(folder) / "example.json"
            file.write_text(source)
            subprocess.run([os.environ["GXRESCOMP"], file, "-o", file.with_suffix(".rsrc")], check=True, timeout=60)

    def test_every_element_is_described(self):
        elements = set(re.findall(r'(?:Text|Container)\(\w+, "([\w-]+)"',
                                  (ROOT / "src/Common/QZXMLParse/gxml.cpp").read_text()))
        self.assertGreater(len(elements), 50)
        page = (ROOT / "docs/class-file.md").read_text()
        named = set(re.findall(r"[\w-]+", " ".join(re.findall(r"`([^`\n]+)`", BLOCK.sub("", page)))))
        # What the class is called has no table of its own: no format uses it.
        unused = {"class-name", "class-id", "period", "section", "instructor-name", "instructor-id", "school-name",
                  "school-id", "city", "state"}
        self.assertEqual(elements - named - unused, set())

    def test_offsets_of_the_records(self):
        """The tables of offsets, as assertions that the compiler checks for both widths."""
        text = (ROOT / "docs/hosting.md").read_text()
        # Only here do we know that the compiler can do both.
        both = os.uname().machine == "x86_64"
        for column, option in ((0, ["-m32"]), (1, ["-m64"])) if both else ((1, []),):
            lines = ["#include <stddef.h>", "#include <gradix/QZFilter.h>"]
            for record, table in re.findall(r"^### (QZ\w+)\n(.*?)\n(?=^#|\Z)", text, re.MULTILINE | re.DOTALL):
                for field, *offsets in re.findall(r"^\| `(\w+)` \| .*? \| (\d+) \| (\d+) \|", table, re.MULTILINE):
                    lines.append(f'_Static_assert(offsetof({record}, {field}) == {offsets[column]}, "{field}");')
                size = re.search(r"^\| size \| \| (\d+) \| (\d+) \|", table, re.MULTILINE)
                lines.append(f'_Static_assert(sizeof({record}) == {size[column + 1]}, "{record}");')
            self.assertEqual(len(lines), 31)
            with self.subTest(option):
                self.compiles("\n".join(lines) + "\n", *option, "-std=c11", "-ffreestanding")


if __name__ == "__main__":
    unittest.main()
