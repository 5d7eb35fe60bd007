"""Every text of gxhost has its Spanish, with the same placeholders and shortcut."""
import os
import re
import shutil
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as ET
from pathlib import Path

SOURCES = Path(os.environ["SOURCES"])
LUPDATE = os.environ["LUPDATE"]


def messages(path):
    return {message.findtext("source"): message.find("translation") for message in ET.parse(path).iter("message")}


def texts(translation):
    """The text, or those of its plural forms."""
    return [form.text or "" for form in translation.findall("numerusform")] or [translation.text or ""]


class Translations(unittest.TestCase):
    def updated(self, name, *options):
        """The file's messages as they are, and as the sources want them."""
        with tempfile.TemporaryDirectory() as folder:
            copy = Path(folder) / name
            shutil.copy(SOURCES / "translations" / name, copy)
            subprocess.run([LUPDATE, "-silent", "-locations", "none", "-no-obsolete", "-I", SOURCES.parent,
                            "-extensions", "h,cpp", *options, SOURCES, "-ts", copy], check=True,
                           stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
            return messages(SOURCES / "translations" / name), messages(copy)

    def test_are_complete(self):
        for name, options in (("gxhost_es.ts", ()), ("gxhost_en.ts", ("-pluralonly",))):
            present, wanted = self.updated(name, *options)
            self.assertEqual(set(present), set(wanted), f"{name}: run the target update_translations")
            unfinished = [source for source, translation in wanted.items() if translation.get("type")]
            self.assertEqual(unfinished, [], name)
            self.assertEqual([source for source, translation in wanted.items() if "" in texts(translation)], [])

    def test_keep_placeholders_and_shortcuts(self):
        for source, translation in messages(SOURCES / "translations" / "gxhost_es.ts").items():
            for text in texts(translation):
                for pattern in (r"%(?:\d|n)", r"&(?=\w)"):
                    wanted, found = (sorted(re.findall(pattern, each)) for each in (source, text))
                    self.assertEqual(wanted, found, source)


if __name__ == "__main__":
    unittest.main()
