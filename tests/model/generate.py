"""Random class files: ordinary ones, odd ones, and some that nobody can read.

    generate.py SEED > class.xml

A file is a function of its seed alone.
"""
from __future__ import annotations

import random
import re
import sys
from collections.abc import Callable

NAMES = ["Ann", "Smith", "O'Neil", "Say \"hi\"", "Lee, Jr.", "Zoë", "Müller", "Ünal", "Łukasz", "李",
         "Quiz 1", "Ω", "\u2126", "€", "\uf8ff", "\ufb01n", "\u00a0", "\U0001f600", "\x7f", "\x85x",
         "%s%d%n", "\u2028", "  ", "e\u0301", "ÿ", "?", "A&B", "<b>", "]]>", "\t", "\n", "\r\n", "'"]
INTEGERS = ["1", "2", "3", "4", "5", "7", "007", " 2", "+3", "-4", "- 4", "4x", "abc", "", "3.9", "1e2",
            "0", "2147483647", "2147483648", "-2147483649", "99999999999999999999", "-9223372036854775809",
            "４", "0x10", "\u00a05", "&#9;3", "\n2", "+-1", "1,5"]
REALS = ["1", "2", "0.999", "1.999", "2.5", "0.5", " 7", "+3", ".5", "5.", "1e2", "2,5", "abc", "", "1e400",
         "-1e400", "0x10", "0x1.8p1", "0x", "0xg", ".", "-", "1e", "1e+", "-0", "-2.5", "0.9995", "1.9995",
         "1234567", "1e6", "123456.5", "999999.5", "1e-5", "0.0001", "1e-400", "1e308", "3.3333333333",
         "2.675", "0.000012345678", "- 1", "1 2", "1_0", "\u00a01", "infinit", "+.e1", "1e0005", "1d3"]
WILD_REALS = ["nan", "-nan", "NAN(12)", "inf", "-Infinity"]
URIS = ["urn:gradix", "http://example.org/a#b", "http://example.org/#", "urn:class", "#", "a#class#"]
GENDERS = ["M", "F", "m", "Male", "M ", " M", "M&#10;", "<x/>F", "&#70;", ""]
POINTS = ["10", "20", "7.5", "0", "-5", "1234567"]
MISPLACED = [f"<{name} id='1'>lost<text>lost</text></{name}>" for name in (     # known, but not there
    "first-name", "student", "text", "points-earned", "assignment", "question-list", "class", "custom-1")]
STUDENT = ["first-name", "last-name", "student-id", "alias", "password", "date-of-birth", "grade-level",
           "sociological", "race", "other", "custom-1", "custom-2", "custom-3", "pad-id"]
BAD = [b"", b"\0", b"&no;", b"<z:a/>", b"</class>", b"\xff", b"\xc3", b"\xed\xa0\x80", b"&#0;", b"\x01", b"<",
       b"]]>", b"\xef\xbf\xbf", b"&#xD800;"]
ENTITIES = {"school": "North &#38;lt;High&#38;gt; &#233;", "tab": "a&#9;b&#10;", "nest": "[&school;&school;]",
            "kid": "<odd>never</odd>kept", "empty": "", "name": "<first-name>Entity</first-name>"}


def escape(text: str) -> str:
    return text.replace("&", "&amp;").replace("<", "&lt;").replace(">", "&gt;").replace('"', "&quot;")


class ClassFile:
    def __init__(self, seed: str) -> None:
        self.r = random.Random(seed)
        self.entities = list(ENTITIES) if self.chance(0.3) else []
        self.outside = bool(self.entities) and self.chance(0.3)     # then undeclared entities are let pass
        self.oddness = self.r.choice([0.02, 0.1, 0.3])
        self.prefixes = self.r.sample("pqrs", self.r.randrange(1, 4)) if self.chance(0.4) else []

    def chance(self, p: float) -> bool:
        return self.r.random() < p

    def odd(self, factor: float = 1) -> bool:
        return self.chance(self.oddness * factor)

    def times(self) -> int:
        """How often something comes that ought to come once."""
        return 0 if self.odd(0.5) else 2 if self.odd(0.5) else 1

    def element(self, name: str, content: str, attributes: list[tuple[str, str]] = ()) -> str:
        tag = f"{self.r.choice(self.prefixes)}:{name}" if self.prefixes and self.chance(0.5) else name
        space, mark = self.r.choice(["", " ", "\n"]), self.r.choice("'\"")
        start = tag + "".join(f" {key}={mark}{value}{mark}" for key, value in attributes) + space
        return f"<{start}/>" if not content and self.chance(0.5) else f"<{start}>{content}</{tag}{space}>"

    def ids(self, *names: str) -> list[tuple[str, str]]:
        """Attributes, some missing, some twice under a prefix, in any order."""
        found = [(name, "2" if name == "bank-id" and self.chance(0.8) else self.integer())
                 for name in names if not self.odd(0.5)]
        if self.prefixes and self.odd():
            found += [(f"{self.prefixes[0]}:{name}", self.integer()) for name in names]
        if self.odd(0.5):
            found.append(("Id", "9"))
        self.r.shuffle(found)
        return found

    def noise(self) -> str:
        """What may stand between any two elements and inside any text."""
        depth, lost = self.r.choice([38, 39, 40, 41, 60]), self.r.choice(MISPLACED)
        unknown = f"<unknown a='1'>lost{lost}<b>lost</b></unknown>"
        return self.r.choice([unknown, unknown, "<deep>" * depth + lost + "</deep>" * depth,
                              "<!-- <first-name>no</first-name> & -->", "<?gradix keep='no'?>",
                              "&name;" if self.entities else "\n  "])

    def body(self, parts: list[str]) -> str:
        """Children of a container, with blanks, stray text and noise between them."""
        gaps = [self.noise() if self.odd() else self.r.choice(["", "\n", "stray"]) for _ in parts]
        return "".join(part + gap for part, gap in zip(parts, gaps))

    def integer(self) -> str:
        return self.r.choice(INTEGERS) if self.odd() else self.r.choice(INTEGERS[:6])

    def real(self) -> str:
        if self.odd(0.1):
            return self.r.choice(WILD_REALS)
        return self.r.choice(REALS) if self.odd(3) else self.r.choice(REALS[:5])

    def long_text(self) -> str:
        """Around the cut, with blanks just before it."""
        blanks = self.r.randrange(4)
        start = self.r.choice(["x", "é", "李", "e\u0301"]) * self.r.randrange(194, 201)
        return start[:200 - blanks] + self.r.choice([" ", "\t"]) * blanks + "tail" * self.r.randrange(16)

    def text(self) -> str:
        if not self.odd(2):
            return escape(self.r.choice(NAMES[:4] + NAMES[5:8] + ["", "B", "C", "1001"]))
        if self.odd():
            return escape(self.long_text())
        pieces = [self.piece(self.r.choice(NAMES)) for _ in range(self.r.randrange(5))]
        end = self.r.choice(["", "  ", " \n", "&#32;", "&#13;"])
        return self.r.choice(["", " ", "\t "]) + "".join(pieces) + end

    def piece(self, text: str) -> str:
        pieces = [escape(text)] * 5 + [self.noise(), self.r.choice(MISPLACED)]
        pieces.append("".join(f"&#{ord(c)};" if self.chance(0.5) else f"&#x{ord(c):X};" for c in text))
        if "]]>" not in text:
            pieces.append(f"<![CDATA[{text}]]>")
        if self.entities:
            pieces.append(f"&{self.r.choice(self.entities + ['undeclared'] * self.outside)};")
        return self.r.choice(pieces)

    def leaf(self, name: str, value: str) -> list[str]:
        return [self.element(name, value if i == 0 else self.text()) for i in range(self.times())]

    def preferences(self) -> str:
        parts = sum((self.leaf(f"custom-{n}", self.text()) for n in (1, 2, 3) if self.chance(0.7)), [])
        return self.element("preferences", self.body(parts + self.leaf("student-sort", "1")))

    def record(self, name: str, parts: list[str], *ids: str) -> str:
        self.r.shuffle(parts)
        return self.element(name, self.body(parts), self.ids(*ids))

    def holder(self, name: str, make: Callable[[], str]) -> list[str]:
        return [self.element(name, self.body([make() for _ in range(self.r.randrange(9))]))
                for _ in range(self.times())]

    def student(self) -> str:
        parts = self.leaf("gender", self.r.choice(GENDERS))
        for name in STUDENT:
            parts += self.leaf(name, self.text())
        return self.record("student", parts, "id")

    def question(self) -> str:
        parts = self.leaf("answer", self.text()) + self.leaf("points-possible", self.real())
        parts += self.leaf("num-choices", self.integer()) + self.leaf("reference", self.text())
        return self.record("question", parts, "number", "type", "question-id", "bank-id")

    def response(self) -> str:
        parts = self.leaf("text", self.text()) + self.leaf("points-earned", self.real())
        return self.record("response", parts, "question-id", "bank-id")

    def results(self) -> str:
        parts = self.leaf("num-attempts", "1") + self.holder("response-list", self.response)
        return self.record("results", parts, "id")

    def assignment(self) -> str:
        parts = self.leaf("points-possible", self.integer() if self.odd(3) else self.r.choice(POINTS))
        for name in ("assignment-name", "assignment-date", "category"):
            parts += self.leaf(name, self.text())
        parts += self.holder("question-list", self.question) + self.holder("results-list", self.results)
        return self.record("assignment", parts, "id")

    def content(self) -> str:
        students = [self.student() for _ in range(self.r.choice([0, 1, 3, 6, 12]))]
        assignments = [self.assignment() for _ in range(self.r.choice([0, 1, 1, 2, 3, 5, 24]))]
        parts = [self.preferences() for _ in range(self.r.choice([0, 1, 1, 2, 3]))]
        parts += self.leaf("class-name", self.text())
        for name, items in (("student-list", students), ("assignment-list", assignments)):
            cut = self.r.randrange(len(items) + 1) if self.odd() else 0
            parts += [self.element(name, self.body(some)) for some in (items[:cut], items[cut:])]
        self.r.shuffle(parts)
        return self.body(parts)

    def padding(self) -> str:
        """Moves what follows across the reader's chunk borders; a zero byte hides the rest of a chunk."""
        length = self.r.choice([self.r.randrange(3900, 4200), self.r.randrange(9000)])
        zeros = "\0" if length > 4500 and self.chance(0.2) else ""
        return f"<!--{zeros}{'pad ' * (length // 4)}{'x' * (length % 4)}-->"

    def document(self) -> str:
        attributes = [(f"xmlns:{p}", uri) for p, uri in zip(self.prefixes, self.r.sample(URIS, 3))]
        if self.chance(0.3):
            attributes.append(("xmlns", self.r.choice(URIS)))
        root = self.element("class", self.content(), attributes)
        if self.chance(0.3):
            root = re.sub("><", lambda _: ">" + self.padding() + "<", root, count=self.r.randrange(1, 4))
        subset = "".join(f"<!ENTITY {name} {value!r}>" for name, value in ENTITIES.items())
        subset += self.r.choice(["", "<!ATTLIST student id CDATA '3'><!ATTLIST response bank-id CDATA '2'>"])
        outside = "SYSTEM 'class.dtd' " if self.outside else ""
        doctype = f"<!DOCTYPE class {outside}[{subset}]>" if self.entities else ""
        start = doctype + (self.padding() if self.chance(0.3) else "")
        return start + root + self.r.choice(["", "\n", "<!-- end -->"])

    def data(self) -> bytes:
        text = self.document()
        encoding = self.r.choice(["", "", "", "UTF-8", "utf-8", "ISO-8859-1", "iso-8859-1", "US-ASCII"])
        encoding = "windows-1252" if self.chance(0.01) else encoding
        declaration = f'<?xml version="1.0" encoding="{encoding}"?>' if encoding else ""
        mark = "\ufeff" if encoding in ("", "UTF-8") and self.chance(0.1) else ""
        data = (mark + declaration + text).encode(encoding or "utf-8", "xmlcharrefreplace")
        return self.spoil(data) if self.chance(0.08) else data

    def spoil(self, data: bytes) -> bytes:
        at = self.r.randrange(len(data))
        bad = self.r.choice(BAD)
        return self.r.choice([data[:at], data[:at] + bad + data[at:], data[:at] + bad + data[at + 1:],
                              re.sub(rb"\bclass\b(?=[ >\n])", b"Class", data), data + b"<class/>", b"",
                              data.decode("latin-1").encode("utf-16")])


if __name__ == "__main__":
    sys.stdout.buffer.write(ClassFile(sys.argv[1]).data())
