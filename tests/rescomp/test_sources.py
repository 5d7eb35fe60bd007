"""The sources in resources/ and of the toolkit's tests: they compile, and the languages agree."""
import os
import re
import sys
import unittest

sys.path.insert(0, os.path.dirname(__file__))
from support import TREE, FolderTest, BUTTON, descriptions_of, items_of, read_fork, strings_of  # noqa: E402

RESOURCES = TREE / "resources"
TOOLKIT = TREE / "tests" / "toolkit" / "resources"

CONVERSION = re.compile(r"%.")
COMMENT = re.compile(r"/\*.*?\*/", re.DOTALL)
ENTRY = re.compile(r'"(\d+)" = "((?:[^"\\\n]|\\.)*)";\n')

FORMAT_NAMES = {str(identifier) for identifier in range(70442, 70447)}
FORMAT_NAME_SIZE = 50


def read_table(name):
    """(key, text) of each line of a string table, in order."""
    text = COMMENT.sub("", (RESOURCES / name).read_bytes().decode())
    rest = ENTRY.sub("", text)
    assert not rest.strip(), f"{name} holds what is no entry: {rest.strip()}"
    return ENTRY.findall(text)


def without_letter(description):
    """The same for every language: of a button's shortcut letter only whether there is one."""
    kind, flags, data = description
    return (kind, flags, (data[0] != 0, data[1])) if kind == BUTTON else description


class Tables(unittest.TestCase):
    def setUp(self):
        self.lists = {language: read_table(f"GradixStrings{language}.strings") for language in ("ENU", "ESP")}
        self.tables = {language: dict(rows) for language, rows in self.lists.items()}

    def test_keys(self):
        for language, rows in self.lists.items():
            self.assertEqual(len(rows), len(self.tables[language]), f"a key twice in {language}")
        self.assertEqual(self.tables["ENU"].keys(), self.tables["ESP"].keys())

    def test_conversions(self):
        spanish = self.tables["ESP"]
        for key, text in self.tables["ENU"].items():
            self.assertEqual(CONVERSION.findall(text), CONVERSION.findall(spanish[key]), key)

    def test_texts(self):
        for language, table in self.tables.items():
            self.assertLessEqual(FORMAT_NAMES, table.keys())
            for key, text in table.items():
                roman = text.encode("mac_roman")
                self.assertTrue(roman, (language, key))
                if key in FORMAT_NAMES:
                    self.assertLessEqual(len(roman), FORMAT_NAME_SIZE, (language, key))


class Sources(FolderTest):
    def compile_sources(self, *paths):
        self.assertTrue(paths)
        return read_fork(self.compile_files(*paths))

    def check_same_dialogs(self, one, other):
        """The same dialogs, but for texts and places."""
        self.assertEqual(one.keys(), other.keys())
        for key in one:
            if key[0] == "ldes":
                self.assertEqual(one[key], other[key], key)
            elif key[0] == "luDI":
                self.assertEqual(*([without_letter(row) for row in descriptions_of(fork[key])] for fork in (one, other)))
            elif key[0] == "STR#":
                texts = [[CONVERSION.findall(t) for t in strings_of(fork[key])] for fork in (one, other)]
                self.assertEqual(*texts, key)
            elif key[0] == "DITL":
                self.assertEqual(*([kind for _, kind, _ in items_of(fork[key])] for fork in (one, other)), key)

    def test_languages_agree(self):
        english, spanish = (self.compile_sources(*(RESOURCES / folder).glob("*.json")) for folder in ("en", "es"))
        self.check_same_dialogs(english, spanish)

    def test_toolkit(self):
        demo, spanish = (self.compile_sources(TOOLKIT / name) for name in ("demo.json", "demo.es.json"))
        self.check_same_dialogs(demo, spanish)
        self.assertEqual(*([rect for rect, _, _ in items_of(fork["DITL", 500])] for fork in (demo, spanish)))
        # Tests have both files open.
        self.assertEqual(demo.keys() & self.compile_sources(TOOLKIT / "cases.json").keys(), set())


if __name__ == "__main__":
    unittest.main()
