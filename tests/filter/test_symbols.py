"""What leaves the module: these names and nothing else."""
import os
import subprocess
import unittest

NAMES = """DllMain DoCommand OpenApplication OpenDataFile PrintDataFile QZFilter_ExportBeginA QZFilter_ExportEnd
QZFilter_ExportFileA QZFilter_GetCustomMessageA QZFilter_GetExportFormatInfoA QZFilter_GetExportOutcome
QZFilter_GetNumExportFormatsA QuitApplication UpdateMenus gLang""".split()


class Symbols(unittest.TestCase):
    def test_exactly_the_published_ones(self):
        lines = subprocess.run(["nm", "-D", "--defined-only", os.environ["FILTER_MODULE"]], check=True,
                               stdout=subprocess.PIPE, text=True, timeout=60).stdout.splitlines()
        kinds = {name: kind for _, kind, name in map(str.split, lines)}
        self.assertEqual(sorted(kinds), sorted(NAMES))
        for name, kind in kinds.items():
            self.assertIn(kind, "BD" if name == "gLang" else "T", name)


if __name__ == "__main__":
    unittest.main()
