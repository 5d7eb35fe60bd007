"""The resource compiler: bytes against bytes written by hand, and its messages."""
import os
import sys
import unittest

sys.path.insert(0, os.path.dirname(__file__))
from support import FolderTest, items_of, read_fork, run, strings_of  # noqa: E402


def hex_bytes(*parts):
    return b"".join(bytes.fromhex(p) if isinstance(p, str) else p for p in parts)


def item(number, kind, rect=(10, 10, 50, 20), **keys):
    return {"number": number, "type": kind, "rect": list(rect)} | keys


def dialog(*items, **keys):
    return {"dialogs": [{"id": 600, "title": "T", "bounds": [0, 0, 300, 200], "window": "modeless",
                         "items": list(items)} | keys]}


def string_list(identifier, *texts):
    return {"stringLists": [{"id": identifier, "strings": list(texts)}]}


class Bytes(FolderTest):
    def test_whole_file(self):
        source = {"stringLists": [{"id": 300, "strings": []}, {"id": 7, "strings": ["é", ""]}]}
        header = "00000100 0000010F 0000000F 0000003E"
        expected = hex_bytes(
            header, bytes(240),
            "00000005 0002 01 8E 00", "00000002 0000",
            header, "00000000 0000 0000 001C 003E",
            "0000", b"STR#", "0001 000A",
            "0007 FFFF 00 000000 00000000", "012C FFFF 00 000009 00000000")
        self.assertEqual(self.compile_files(self.write("s.json", source)), expected)

    def test_tiny_dialog(self):
        source = dialog(
            item(1, "button", (192, 160, 88, 30), title="Sí", flags=["notify"], default=True, cancel=True, shortcut="S"),
            item(2, "text", (10, 10, 90, 18), title="Name", labels=3),
            item(3, "edit", (110, 10, 90, 28), flags=["tab", "disabled"], maxLength=1000, tag="Any"),
            item(4, 31, (10, 50, 20, 20), control="user", flags=["hidden"]),
            bounds=[-20, 40, 300, 200], window="movable-modal", closeBox=True, centred=True, title="Tú")
        self.assertEqual(self.compile(source), {
            ("DLOG", 600): hex_bytes("0028 FFEC 00F0 0118 0005 00 00 01 00 00000000 0258 02 54 9C 00 280A"),
            ("DITL", 600): hex_bytes(
                "0003",
                "00000000 00A0 00C0 00BE 0118 04 02 53 92",
                "00000000 000A 000A 001C 0064 08 04", b"Name",
                "00000000 000A 006E 0026 00C8 90 00",
                "00000000 0032 000A 0046 001E 00 00"),
            ("luDI", 600): hex_bytes(
                "0000 0004",
                "00000001 000000D0 7303",
                "00000003 000000C0 0003",
                "00000002 000001A0 03E8",
                "0000001F 00000040"),
            ("STR#", 600): hex_bytes("0004 00 00 03", b"Any", "00"),
        })

    def test_controls(self):
        fork = self.compile(dialog(
            item(1, "list", (10, 10, 50, 40), mode="checks", checkCapacity=32639),
            item(2, "combo", (70, 10, 50, 28)),
            item(3, "group", (0, 0, 300, 100), title="Group", flags=["hidden"]),
            item(4, "separator", (0, 110, 300, 2)),
            item(5, "list", (130, 10, 50, 40), mode="multiple")))
        expected = {
            ("CNTL", 600): "000A 000A 0032 003C 0258 01 00 0000 0000 0160 00000000 00",
            ("CNTL", 601): "000A 0046 0026 0078 0000 01 00 0000 CFC7 0191 00000000 00",
            ("CNTL", 602): "0000 0000 0064 012C 0000 00 00 0000 0000 00A0 00000000 05 47 72 6F 75 70",
            ("CNTL", 603): "006E 0000 0070 012C 0000 01 00 0000 0000 0090 00000000 00",
            ("CNTL", 604): "000A 0082 0032 00B4 025C 01 00 0000 0000 0160 00000000 00",
            ("ldes", 600): "0000 0000 0001 0000 0000 01 00 00 00 0623 00 00",
            ("ldes", 604): "0000 0000 0001 0000 0000 01 00 00 00 0622 00 00",
            ("luDI", 600): "0000 0005 00000007 000000C0 0002 7F7F 00000008 000000C0 00000013 00000040"
                           "00000012 000000C0 00000007 000000C0 0001 0000",
        }
        self.assertEqual({key: fork[key] for key in expected}, {k: hex_bytes(v) for k, v in expected.items()})
        self.assertEqual([(kind, data.hex()) for _, kind, data in items_of(fork["DITL", 600])],
                         [(7, f"{600 + i:04x}") for i in range(5)])
        self.assertNotIn(("STR#", 600), fork)

    def test_kinds_of_items_and_windows(self):
        names = {"checkbox": (5, 4), "radio": (6, 5), "picture": (0, 20), "custom": (0, 22)}
        for name, (kind, identifier) in names.items():
            title = {"title": "x"} if kind else {}
            fork = self.compile(dialog(item(1, name, **title)))
            self.assertEqual([kind], [k for _, k, _ in items_of(fork["DITL", 600])], name)
            self.assertEqual(fork["luDI", 600], hex_bytes(f"0000 0001 {identifier:08x} 000000C0"), name)
        for window, proc in {"modeless": 4, "floating": 1985}.items():
            fork = self.compile(dialog(window=window))
            self.assertEqual(fork["DLOG", 600][8:14], hex_bytes(f"{proc:04x} 0000 0000"), window)
            self.assertEqual(fork["DITL", 600], b"\xff\xff", window)

    def test_alert(self):
        source = {"alerts": [{"id": 900, "kind": "stop", "bounds": [5, 10, 400, 160], "text": "Gone.",
                              "explanation": "Try again.", "button": "OK"}]}
        fork = self.compile(source)
        self.assertEqual(fork["ALRT", 900], hex_bytes("000A 0005 00AA 0195 0384 5555"))
        items = items_of(fork["DITL", 900])
        self.assertEqual([(kind, data) for _, kind, data in items], [(4, b"OK"), (8, b"Gone."), (8, b"Try again.")])
        for (top, left, bottom, right), _, data in items:
            self.assertTrue(0 <= top < bottom <= 160 and 0 <= left < right <= 400, data)
        self.assertTrue(items[1][0][2] <= items[2][0][0] < items[2][0][2] <= items[0][0][0])
        del source["alerts"][0]["explanation"]
        self.assertEqual(len(items_of(self.compile(source)["DITL", 900])), 2)

    def test_text(self):
        longest = "é" * 255
        self.assertEqual(strings_of(self.compile(string_list(1, longest, "a\nb", "“€”"))["STR#", 1]),
                         [longest, "a\nb", "“€”"])

    def test_order_of_sources_does_not_matter(self):
        paths = [self.write("a.json", string_list(9, "nine") | dialog(item(1, "combo"))),
                 self.write("b.json", string_list(3, "three")), self.write("c.json", "{ /* nothing */ }")]
        one = self.compile_files(*paths)
        self.assertEqual(self.compile_files(*reversed(paths)), one)
        self.assertEqual(len(read_fork(one)), 6)
        self.assertEqual(read_fork(self.compile_files(paths[2])), {})


class Messages(FolderTest):
    def check(self, message, *paths):
        result = run(*paths, "-o", "out.rsrc", cwd=self.folder)
        self.assertEqual((result.returncode, result.stderr.decode()), (1, message + "\n"))
        self.assertEqual([p.name for p in self.folder.iterdir() if p.suffix != ".json"], [])

    def test_syntax(self):
        rows = {
            "missing comma": ('{\n  "alerts": [],\n  "é": 1 "dialogs": []}', ":3:18"),
            "end of file": ('{"alerts": [', ":1:13"),
            "no UTF-8": (b'{\n"alerts": "\xff"}', ":2:12"),
            "empty": ("", ":1:1"),
        }
        for name, (source, place) in rows.items():
            with self.subTest(name):
                result = run(self.write("s.json", source).name, "-o", "out.rsrc", cwd=self.folder)
                self.assertEqual(result.returncode, 1)
                # The reason is the JSON library's, in words that change with its version.
                message = result.stderr.decode(errors="replace")
                self.assertRegex(message, rf"\As\.json{place}: not valid JSON: [a-z]+ (?!error at)[^\n]+\n\Z")

    def test_id_twice_in_two_files(self):
        for name in ("a.json", "b.json"):
            self.write(name, string_list(8))
        self.check("b.json: stringLists[0].id: 'STR#' 8 is already defined by a.json: stringLists[0].id",
                   "a.json", "b.json")

    def test_places(self):
        alert = {"id": 1, "kind": "stop", "bounds": [0, 0, 400, 160], "text": "T", "button": "OK"}
        three = dialog(item(1, "combo"), item(2, "button", (70, 10, 9, 9), title=""), item(3, "combo", (80, 10, 9, 9)))
        whole = {
            "no object": ("[]", "must be an object"),
            "unknown section": ({"dialog": []}, 'unknown key "dialog"'),
            "key twice": ('{"alerts": [], "alerts": []}', 'key "alerts" appears twice in one object'),
            "no list": ({"alerts": {}}, "alerts: must be a list"),
            "unknown key": ({"stringLists": [{"id": 1, "string": []}]}, 'stringLists[0]: unknown key "string"'),
            "missing key": ({"stringLists": [{"id": 1}]}, 'stringLists[0]: "strings" is missing'),
            "id": (string_list(0), "stringLists[0].id: must be from 1 to 32767"),
            "fraction": (string_list(1.5), "stringLists[0].id: must be a whole number"),
            "no text": (string_list(1, "a", 2), "stringLists[0].strings[1]: must be a text"),
            "surrogates": (string_list(1, "😀"), "stringLists[0].strings[0]: contains U+1F600, which Mac OS Roman lacks"),
            "control": (string_list(1, "a\0b"), "stringLists[0].strings[0]: contains the control character U+0000"),
            "too long": (string_list(1, "é" * 256), "stringLists[0].strings[0]: is 256 characters long, 255 are allowed"),
            "list with the id of help tags": (string_list(600) | dialog(item(1, "combo", tag="Tag")),
                                              "dialogs[0].id: 'STR#' 600 is already defined by s.json: stringLists[0].id"),
            "dialogs too near": ({"dialogs": three["dialogs"] + dialog(item(1, "combo"), id=602)["dialogs"]},
                                 "dialogs[1].items[0]: the dialogs 602 and 600 are too near: both have a control with "
                                 "the id 602, the other being s.json: dialogs[0].items[2]"),
            "kind": ({"alerts": [alert | {"kind": "stopp"}]}, 'alerts[0].kind: "stopp" is none of stop, note, caution'),
            "low alert": ({"alerts": [alert | {"explanation": "e" * 200}]},
                          "alerts[0].bounds: is too low for the texts: the height must be 216 or more"),
            "narrow alert": ({"alerts": [alert | {"button": "b" * 60}]},
                             "alerts[0].bounds: is too narrow for the button"),
        }
        button = item(1, "button", title="B")
        dialogs = {
            "window": (dialog(window="modal"), '.window: "modal" is none of movable-modal, modeless, floating'),
            "close box": (dialog(closeBox=1), ".closeBox: must be true or false"),
            "no window": (dialog(bounds=[0, 0, 300, 0]), ".bounds: is empty"),
            "beyond 63 bits": (dialog(bounds=[2 ** 64 - 1, 0, 300, 9]), ".bounds[0]: must be from -32768 to 32767"),
            "window beyond": (dialog(bounds=[32000, 0, 800, 10]), ".bounds: reaches beyond 32767"),
            "control id": (dialog(button, item(2, "combo", (70, 10, 9, 9)), id=32767),
                           ".items[1]: its control would have the id 32768, beyond 32767"),
            "two defaults": (dialog(button | {"default": True}, item(2, "button", (70, 10, 9, 9), title="", default=True)),
                             ".items[1].default: the dialog has another such button"),
            "shortcut twice": (dialog(item(1, "button", title="Sea", shortcut="A"),
                                      item(2, "button", (70, 10, 9, 9), title="Tea", shortcut="a")),
                               ".items[1].shortcut: items[0] has this one already"),
            "overlap": (dialog(button, item(2, "combo", (59, 29, 9, 9))), ".items[1]: items[1] overlaps items[0]"),
            "label of none": (dialog(item(1, "text", labels=2)), ".items[0].labels: there is no item 2"),
            "label of itself": (dialog(item(1, "text", labels=1)), ".items[0].labels: an item cannot label itself"),
            "two labels": (dialog(button, item(2, "text", (70, 10, 9, 9), labels=1),
                                  item(3, "text", (80, 10, 9, 9), labels=1)),
                           ".items[2].labels: items[1] labels this item already"),
        }
        outside = ".rect: lies outside the window, which is 300 by 200"
        items = {
            "position": (item(2, "combo"), ".number: must be 1, the position in the list"),
            "negative width": (item(1, "combo", (10, 10, -5, 9)), ".rect: right edge lies left of the left edge"),
            "negative height": (item(1, "combo", (10, 10, 5, -9)), ".rect: bottom edge lies above the top edge"),
            "three numbers": (item(1, "combo", (10, 10, 5)), ".rect: must be [left, top, width, height]"),
            "left of the window": (item(1, "combo", (-1, 10, 5, 9)), outside),
            "below the window": (item(1, "combo", (10, 190, 5, 11)), outside),
            "unknown type": (item(1, "slider"), '.type: "slider" is none of button, edit, text, checkbox, radio, list, '
                                                "combo, separator, group, picture, custom"),
            "number of a name": (item(1, 8, control="user"), '.type: is written as "combo"'),
            "numeric, no control": (item(1, 31), ': "control" is missing'),
            "key of another type": (item(1, "combo", maxLength=4), ': unknown key "maxLength"'),
            "title of a list": (item(1, "list", mode="single", title="x"), ': unknown key "title"'),
            "no title": (item(1, "button"), ': "title" is missing'),
            "shortcut of two letters": (item(1, "button", title="Sea", shortcut="Se"),
                                        ".shortcut: must be a letter from A to Z or a digit"),
            "shortcut with an accent": (item(1, "button", title="Sí", shortcut="í"),
                                        ".shortcut: must be a letter from A to Z or a digit"),
            "shortcut elsewhere": (item(1, "button", title="Sea", shortcut="T"), ".shortcut: is not in the title"),
            "unknown flag": (item(1, "combo", flags=["tabs"]),
                             '.flags[0]: "tabs" is none of notify, tab, hidden, disabled'),
            "flag twice": (item(1, "combo", flags=["tab", "tab"]), ".flags[1]: appears twice"),
            "length": (item(1, "edit", maxLength=1001), ".maxLength: must be from 0 to 1000"),
            "checks without capacity": (item(1, "list", mode="checks"), ': "checkCapacity" is missing'),
            "capacity without checks": (item(1, "list", mode="single", checkCapacity=5),
                                        '.checkCapacity: is for the mode "checks" only'),
        }
        items = {name: (dialog(source), message) for name, (source, message) in items.items()}
        for place, rows in {"": whole, "dialogs[0]": dialogs, "dialogs[0].items[0]": items}.items():
            for name, (source, message) in rows.items():
                with self.subTest(name):
                    self.write("s.json", source)
                    self.check(f"s.json: {place}{message}", "s.json")

    def test_what_may_overlap(self):
        self.compile(dialog(item(1, "group", (0, 0, 300, 200)), item(2, "picture", (5, 5, 80, 80)),
                            item(3, "separator", (0, 15, 300, 2)), item(4, "combo"), item(5, "combo", flags=["hidden"]),
                            item(6, "combo", (60, 10, 20, 20)), item(7, "combo", (10, 30, 50, 20))))


class Files(FolderTest):
    def test_failures(self):
        source = self.write("s.json", "{}")
        bad = self.write("bad.json", "{")
        old = self.write("old.json", "old")
        rows = {
            "old output stays": ([bad, "-o", old], 1, "bad.json:1:2"),
            "no source": ([self.folder / "none.json", "-o", "out"], 1, "none.json: No such file"),
            "source is a folder": ([self.folder, "-o", "out"], 1, str(self.folder)),
            "no folder": ([source, "-o", "none/out"], 1, "cannot write none/out: No such file"),
            "output is a folder": ([source, "-o", "folder"], 1, "cannot write folder: "),
            "no output": ([source], 2, "--output"),
            "nothing": (["-o", "out"], 2, "SOURCE"),
        }
        (self.folder / "folder").mkdir()
        for name, (args, status, fragment) in rows.items():
            with self.subTest(name):
                result = run(*args, cwd=self.folder)
                self.assertEqual(result.returncode, status)
                self.assertIn(fragment, result.stderr.decode())
                self.assertEqual(sorted(p.name for p in self.folder.iterdir()), ["bad.json", "folder", "old.json", "s.json"])
        self.assertEqual(old.read_text(), "old")


if __name__ == "__main__":
    unittest.main()
