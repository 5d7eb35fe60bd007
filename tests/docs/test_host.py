"""The example host, run with the filter and without a display."""
import json
import os
import re
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]
SAMPLE = ROOT / "samples/village-school.xml"


def host(*arguments):
    return subprocess.run([os.environ["EXAMPLE_HOST"], *map(str, arguments)], capture_output=True, text=True,
                          timeout=60)


FORMATS = json.loads(subprocess.run([os.environ["GXEXPORT"], "formats", "--json"], check=True,
                                    capture_output=True).stdout)


class HostTest(unittest.TestCase):
    def test_the_page_quotes_the_program(self):
        quoted = re.findall(r"^```c\n(.*?)^```$", (ROOT / "docs/hosting.md").read_text(), re.MULTILINE | re.DOTALL)
        self.assertIn((ROOT / "docs/examples/host.c").read_text(), quoted)

    def test_lists_the_formats(self):
        done = host(os.environ["FILTER"])
        self.assertEqual(done.returncode, 0, done.stderr)
        self.assertEqual(done.stdout.splitlines(),
                         [f"{index}  {row['name']} (.csv)" for index, row in enumerate(FORMATS)])

    def test_opens_the_dialog(self):
        with tempfile.TemporaryDirectory() as folder:
            output = Path(folder) / "grades.csv"
            malformed = Path(folder) / "malformed.xml"
            malformed.write_text("<class><student-list>")
            cases = (("every format has a dialog", SAMPLE, range(len(FORMATS)), True),
                     ("no such format", SAMPLE, [len(FORMATS), 4294967295], False),
                     ("no class file", malformed, [0, 3], False))
            for name, class_file, formats, opens in cases:
                for index in formats:
                    with self.subTest(name, index=index):
                        done = host(os.environ["FILTER"], class_file, index, 2, output)
                        self.assertEqual(
                            (done.returncode, "dialog is open" in done.stdout, "Nothing was exported." in done.stdout),
                            (0, True, True) if opens else (1, False, False), done.stderr)
            self.assertFalse(output.exists(), "nobody pressed OK")

    def test_refuses_what_is_no_filter(self):
        self.assertEqual(host(SAMPLE).returncode, 1)


if __name__ == "__main__":
    unittest.main()
