"""The pages of the documentation: links that lead somewhere, and samples that are what the program writes."""
import itertools
import json
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
PAGES = [ROOT / "README.md", *sorted((ROOT / "docs").glob("*.md"))]
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

    def assert_has(self, sample, output):
        """The sample is the output, with an ellipsis where lines are left out."""
        for part in sample.split("…\n"):
            self.assertIn(part, output)
            output = output[output.index(part) + len(part):]
        self.assertTrue(sample.endswith("…\n") or not output)

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

    def test_samples_of_the_readme(self):
        blocks = BLOCK.findall((ROOT / "README.md").read_text())
        commands = [(text.split()[1:], sample) for (_, text), (_, sample) in itertools.pairwise(blocks)
                    if text.startswith("build/release/bin/gxexport ")]
        self.assertEqual([arguments[0] for arguments, _ in commands], ["check", "export", "fill"])
        for arguments, sample in commands:
            with self.subTest(arguments[0]), tempfile.TemporaryDirectory() as folder:
                arguments = [Path(folder) / text if text == "upload.csv" else text for text in arguments]
                done = subprocess.run([os.environ["GXEXPORT"], *arguments], cwd=ROOT, stdout=subprocess.PIPE,
                                      stderr=subprocess.STDOUT, text=True, timeout=60)
                self.assert_has(sample, done.stdout)

    def test_sample_of_the_class_file(self):
        (_, class_file), (_, output) = BLOCK.findall((ROOT / "docs/class-file.md").read_text())[:2]
        self.assertEqual(export("-f", "moodle", "-", input=class_file.encode()), output)

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
            with self.subTest(option), tempfile.TemporaryDirectory() as folder:
                source = Path(folder) / "offsets.c"
                source.write_text("\n".join(lines) + "\n")
                done = subprocess.run([os.environ["CC"], *option, "-std=c11", "-ffreestanding", "-fsyntax-only",
                                       f"-I{ROOT / 'include'}", str(source)], capture_output=True, text=True)
                self.assertEqual((done.returncode, done.stderr), (0, ""))


if __name__ == "__main__":
    unittest.main()
