"""Every command on a page: run in the order of the page, in a copy of the sources beside the build at hand, or marked
on the page as not run, with the reason. Output that follows is what the commands write."""
import os
import re
import shutil
import subprocess
import tempfile
import unittest
from pathlib import Path

from sources import ROOT, copy_sources

BUILD = Path(os.environ["BUILD"]).resolve()
PAGES = [*sorted(ROOT.glob("*.md")), *sorted((ROOT / "docs").glob("*.md")), *sorted((ROOT / "samples").glob("*.md"))]
MANUALS = sorted((ROOT / "packaging/man").glob("*.1"))
FENCE = re.compile(r"^( *)```(\w*)\n(.*?)^ *```$", re.MULTILINE | re.DOTALL)
NOT_RUN = re.compile(r"# not run by the tests\b:?[ ]*(.*)", re.IGNORECASE)
LANGUAGES = {"", "sh", "c", "cpp", "json", "xml", "mermaid"}

# Stands in front of the programs: trouble found is no failure, and a window that stays open for a moment is enough.
GXEXPORT = """#!/bin/sh
"{build}/bin/gxexport" "$@"
status=$?
[ $status -eq 6 ] || exit $status
"""
GXHOST = """#!/bin/sh
[ -x "{build}/bin/gxhost" ] || {{ echo "built without Qt"; exit 0; }}
QT_QPA_PLATFORM=offscreen HOME="$PWD" timeout 2 "{build}/bin/gxhost" "$@"
[ $? -eq 124 ]
"""

# Not in a test, whatever a page says.
BARRED = ("cmake", "ninja", "make", "apt", "apt-get", "sudo", "su", "dpkg", "curl", "wget", "git", "ctest")

# What a page calls the reader's own files, and how the test makes them.
SAMPLE = "mkdir reader && cp samples/secondary-school.xml reader/class.xml && cd reader\n"
READERS = {
    "docs/hosting.md": "\"$CMAKE\" --install \"$BUILD\" --prefix \"$PWD/installed\" >/dev/null\n"
                       "export PKG_CONFIG_PATH=$PWD/installed/lib/pkgconfig QT_QPA_PLATFORM=offscreen\n"
                       "cp docs/examples/host.c host.c\n",
    "docs/performance.md": "mkdir -p classes && cp samples/*.xml classes\n"
                           "export SLURM_ARRAY_TASK_ID=1 SLURM_ARRAY_TASK_COUNT=2 SLURM_CPUS_PER_TASK=2\n",
    "packaging/man/gxexport.1": SAMPLE + "gxexport export -f canvas --dialect current -o Grades.csv class.xml\n"
                                "gxexport export -f canvas --output-dir grades --json class.xml >summary.json\n",
    "packaging/man/gxhost.1": SAMPLE,
}


def name_of(page):
    return str(page.relative_to(ROOT))


class Block:
    """The commands of a fenced block, and the output that follows it, or none."""

    def __init__(self, text, output=None):
        self.text, self.output = text, output
        self.reasons = []
        self.runs = []
        first, _, rest = text.partition("\n")
        if first.startswith("#") and NOT_RUN.search(first):
            self.reasons.append(NOT_RUN.search(first)[1])
            return
        for line in text.replace("\\\n", "\0").splitlines():
            marked = NOT_RUN.search(line)
            if marked:
                self.reasons.append(marked[1])
            else:
                self.runs.append(line.replace("\0", "\\\n"))

    def script(self):
        return "\n".join(self.runs) + "\n" if any(line.strip() and line[0] != "#" for line in self.runs) else ""


def blocks_of(page):
    text = page.read_text()
    if page.suffix == ".1":
        escaped = re.findall(r"^\.Dl \$ (.*)$", text, re.MULTILINE)
        return [Block(line.replace("\\e", "\\").replace("\\-", "-") + "\n") for line in escaped]
    found = list(FENCE.finditer(text))
    blocks = []
    for fence, following in zip(found, [*found[1:], None]):
        indent, language, code = fence.groups()
        if language == "sh":
            follows = following and following[2] == "" and not text[fence.end():following.start()].strip()
            blocks.append(Block(re.sub(f"^{indent}", "", code, flags=re.MULTILINE), following[3] if follows else None))
    return blocks


class Commands(unittest.TestCase):
    maxDiff = None

    def copy(self):
        """A copy of the sources, in which build/release has what was built, and nothing that could be built anew."""
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        copy = Path(folder.name).resolve() / "gradix"
        copy_sources(copy)
        release = copy / "build/release"
        (release / "bin").mkdir(parents=True)
        for name in "lib", "share":
            (release / name).symlink_to(BUILD / name)
        for path in (BUILD / "bin").iterdir():
            (release / "bin" / path.name).symlink_to(path)
        for name, text in (("gxexport", GXEXPORT), ("gxhost", GXHOST)):
            program = release / "bin" / name
            program.unlink(missing_ok=True)
            program.write_text(text.format(build=BUILD))
            program.chmod(0o755)
        for name in BARRED:
            program = release / "bin" / name
            program.write_text(f"#!/bin/sh\necho {name} is for readers, not for tests\nexit 97\n")
            program.chmod(0o755)
        return copy

    def run_page(self, page, blocks):
        """The output of each block; the first that fails ends the run."""
        copy = self.copy()
        script = "set -euo pipefail\n" + READERS.get(name_of(page), "")
        for block in blocks:
            script += f"printf '\\n\\036\\n'\n{block.script()}"
        # Nothing that a reader has to set up for himself is set here.
        environment = {key: value for key, value in os.environ.items() if not key.startswith("GRADIX_")}
        environment["PATH"] = f"{copy}/build/release/bin:{environment['PATH']}"
        done = subprocess.run(["bash", "-c", script], cwd=copy, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                              stderr=subprocess.STDOUT, encoding="utf-8", errors="replace", timeout=250,
                              env=environment)
        outputs = done.stdout.split("\n\036\n")[1:]
        if done.returncode != 0:
            failed = blocks[len(outputs) - 1].text
            self.fail(f"{name_of(page)} ends with {done.returncode} in\n{failed}{done.stdout[-3000:]}")
        return outputs

    def assert_shows(self, shown, output):
        """The output as the page shows it, with an ellipsis where lines are left out."""
        first, *parts = shown.split("…\n")
        self.assertEqual(first, output[:len(first)])
        output = output[len(first):]
        for part in parts:
            self.assertIn(part, output)
            output = output[output.index(part) + len(part):]
        self.assertTrue(shown.endswith("…\n") or not output, output)

    def test_commands(self):
        count = 0
        for page in [*PAGES, *MANUALS]:
            blocks = [block for block in blocks_of(page) if block.script()]
            missing = [tool for tool in ("jq", "pkg-config") if not shutil.which(tool)
                       and any(re.search(rf"\b{tool}\b", block.script()) for block in blocks)]
            if not blocks or name_of(page) == "docs/hosting.md" and "HOSTS" not in os.environ:
                continue
            with self.subTest(page=name_of(page)):
                if missing:
                    self.skipTest(f"no {missing[0]}")
                for block, output in zip(blocks, self.run_page(page, blocks)):
                    count += 1
                    if block.output is not None:
                        self.assert_shows(block.output, output)
        self.assertGreater(count, 10)

    def test_what_is_not_run_says_why(self):
        for page in [*PAGES, *MANUALS]:
            for block in blocks_of(page):
                for reason in block.reasons:
                    with self.subTest(page=name_of(page), block=block.text):
                        self.assertRegex(reason, r"\w+ \w+")

    def test_no_command_hides(self):
        """Commands stand in sh blocks, and blocks of no other kind begin with a prompt or a program's name."""
        for page in PAGES:
            for _, language, code in FENCE.findall(page.read_text()):
                with self.subTest(page=name_of(page), block=code):
                    self.assertIn(language, LANGUAGES)
                    if language == "":
                        self.assertNotRegex(code, r"(?m)^(\$ |sudo |cmake |ctest |scripts/|gxhost |gxexport \w+ -)")
            outside = FENCE.sub("", page.read_text())
            self.assertNotRegex(outside, r"(?m)^    +(\$ |sudo |cmake |ctest |python3 |scripts/|gx\w+ )", name_of(page))


if __name__ == "__main__":
    unittest.main()
