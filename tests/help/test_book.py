"""The help book: valid pages, links that lead somewhere, samples that are what the filter writes."""
import itertools
import json
import os
import subprocess
import unittest
from html.parser import HTMLParser
from pathlib import Path
from urllib.parse import unquote, urlsplit

BOOK = Path(os.environ["BOOK"]).resolve()
CLASS = Path(__file__).resolve().parent / "class.xml"
LANGUAGES = ("en", "es")
GXEXPORT = os.environ["GXEXPORT"]

VOID = {"link", "meta", "br", "hr", "img"}
BANNED = {"script", "iframe", "object", "embed", "style", "base", "form"}

FORMATS = {row["key"] for row in json.loads(subprocess.check_output([GXEXPORT, "formats", "--json"], timeout=60))}
# How samples are made that are not just their format's.
SAMPLES = {
    "blackboard91-unquoted": ["blackboard91", "--no-quotes"],
    "moodle": ["moodle", "-u", "custom-2"],
    "detailed": ["detailed", "-a", "1", "--answer-key"],
    "detailed-both": ["detailed", "-a", "1", "--columns", "both", "--answer-key", "--points-possible"],
}


class Page(HTMLParser):
    """The page's elements; `errors` has what is wrong with their nesting."""

    def __init__(self, path):
        super().__init__()
        self.errors, self.ids, self.links, self.tags, self.samples = [], [], [], [], {}
        self.language = self.title = None
        self._open = []
        self._sample = None
        source = path.read_bytes().decode("utf-8")
        self.starts_well = source.startswith("<!DOCTYPE html>\n")
        self.feed(source)
        self.close()
        self.errors += [f"<{tag}> is not closed" for tag, _ in self._open]

    def handle_starttag(self, tag, attrs):
        attributes = dict(attrs)
        self.tags.append((tag, attributes))
        if len(attributes) != len(attrs):
            self.errors.append(f"attribute twice in {self.get_starttag_text()}")
        if "id" in attributes:
            self.ids.append(attributes["id"])
        self.links += [attributes[name] for name in ("href", "src") if name in attributes]
        self.language = attributes.get("lang") if tag == "html" else self.language
        inside = [name for name, _ in self._open]
        if "p" in inside and tag in {"p", "ul", "ol", "dl", "pre", "section", "h1", "h2", "h3", "nav"}:
            self.errors.append(f"<{tag}> in <p>, line {self.getpos()[0]}")
        if tag == "li" and inside[-1:] not in (["ul"], ["ol"]) or tag in {"dt", "dd"} and inside[-1:] != ["dl"]:
            self.errors.append(f"<{tag}> outside of a list, line {self.getpos()[0]}")
        if tag not in VOID:
            self._open.append((tag, self.getpos()[0]))
        self._sample = attributes.get("data-sample") if tag == "pre" else self._sample

    def handle_endtag(self, tag):
        if not self._open or self._open[-1][0] != tag:
            self.errors.append(f"</{tag}> in line {self.getpos()[0]} closes {self._open[-1:]}")
        else:
            self._open.pop()
        self._sample = None if tag == "pre" else self._sample

    def handle_data(self, data):
        if self._sample:
            self.samples[self._sample] = self.samples.get(self._sample, "") + data
        if self._open and self._open[-1][0] == "title":
            self.title = data

    def count(self, tag):
        return sum(name == tag for name, _ in self.tags)


def book(language):
    return BOOK / language / "Quizonne Gradix"


# The topics of the English book, in the order of their numbers; the other language has the same.
TOPICS = [f"qzmanage/{path.name}" for path in sorted(book("en").glob("qzmanage/qzm_*.htm"))]
PAGES = {path: Page(path) for language in LANGUAGES for path in sorted(book(language).rglob("*.htm"))}


class BookTest(unittest.TestCase):
    def test_languages_have_the_same_files(self):
        def files(language):
            return {str(path.relative_to(book(language))) for path in book(language).rglob("*") if path.is_file()}

        for language in LANGUAGES:
            self.assertEqual(files(language), {*TOPICS, "qzmanage.htm", "qzmanage/help.css"})

    def test_pages_are_well_formed(self):
        for path, page in PAGES.items():
            with self.subTest(path):
                self.assertEqual(page.errors, [])
                self.assertTrue(page.starts_well)
                self.assertIn(page.language, path.parts)
                self.assertTrue(page.title)
                self.assertEqual((page.count("h1"), page.count("main"), page.count("title")), (1, 1, 1))
                self.assertIn(("meta", {"charset": "utf-8"}), page.tags)
                self.assertIn("viewport", [attributes.get("name") for _, attributes in page.tags])
                self.assertEqual(len(page.ids), len(set(page.ids)))
                self.assertEqual({tag for tag, _ in page.tags} & BANNED, set())
                events = [name for _, attributes in page.tags for name in attributes if name.startswith("on")]
                self.assertEqual(events, [])

    def test_links_stay_in_the_book_and_lead_somewhere(self):
        for path, page in PAGES.items():
            for link in page.links:
                with self.subTest(path, link=link):
                    parts = urlsplit(link)
                    self.assertEqual(parts.scheme + parts.netloc, "")
                    target = (path.parent / unquote(parts.path)).resolve() if parts.path else path
                    self.assertTrue(target.is_relative_to(book(page.language)) and target.is_file())
                    if parts.fragment:
                        self.assertIn(parts.fragment, PAGES[target].ids)

    def test_style_sheet_is_self_contained(self):
        sheets = {book(language).joinpath("qzmanage/help.css").read_text() for language in LANGUAGES}
        self.assertEqual(len(sheets), 1)
        for text in sheets:
            self.assertNotIn("url(", text)
            self.assertNotIn("@import", text)
            self.assertIn("section:target", text)

    def test_start_page_has_a_section_for_each_topic(self):
        for language in LANGUAGES:
            page = PAGES[book(language) / "qzmanage.htm"]
            sections = {attributes.get("id") for tag, attributes in page.tags if tag == "section"}
            self.assertEqual({name for name in sections if "/" in name}, set(TOPICS))
            for topic in TOPICS:
                self.assertIn(topic, page.links)
                self.assertIn("#" + topic, page.links)

    def test_topic_pages_lead_back_and_on(self):
        for language in LANGUAGES:
            for topic, neighbour in itertools.pairwise(TOPICS):
                self.assertIn(Path(neighbour).name, PAGES[book(language) / topic].links)
                self.assertIn(Path(topic).name, PAGES[book(language) / neighbour].links)
            for topic in TOPICS:
                self.assertIn(f"../qzmanage.htm#{topic}", PAGES[book(language) / topic].links)

    def test_samples_are_what_is_exported(self):
        exported = {}
        for name in FORMATS | set(SAMPLES):
            command = [GXEXPORT, "export", "-f", *SAMPLES.get(name, [name]), str(CLASS)]
            exported[name] = subprocess.run(command, check=True, stdout=subprocess.PIPE, timeout=60).stdout
        for language in LANGUAGES:
            samples = {}
            for path, page in PAGES.items():
                samples |= page.samples if page.language == language else {}
            self.assertEqual(set(samples), set(exported))
            for name, text in samples.items():
                with self.subTest(language=language, sample=name):
                    self.assertEqual(text.lstrip("\n"), exported[name].decode("mac_roman"))


if __name__ == "__main__":
    unittest.main()
