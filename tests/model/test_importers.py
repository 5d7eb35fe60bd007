"""The importers' models on small files made by hand."""
import unittest

from importers import Column, Course, Member, Refused, import_canvas, import_moodle, import_sakai


def course():
    """Ann has 4 of 10 in Quiz and 5 in Essay."""
    members = [Member(11, "Ann", "Smith", "a1", "ann"), Member(12, "Bob", "Lee, Jr.", "b2", "bob"),
               Member(13, "José", "Diaz", "é3", "jose")]
    return Course(members, [Column(501, "Quiz", 10, {11: 4.0}), Column(502, "Essay", 20, {11: 5.0}),
                            Column(503, "Notes", None, custom=True)])


CANVAS = [
    ("name", 'Student,ID,Section,Quiz\nPoints Possible,,,10\n"Bob Lee, Jr.",b2,,7\n', {"Quiz": {11: 4, 12: 7}}),
    ("last name first, semicolons", '\ufeffStudent;ID;Section;Quiz\r\n"Lee, Jr., Bob";;;7\r\n',
     {"Quiz": {11: 4, 12: 7}}),
    ("number before name", "Student,ID,Section,Quiz\nAnn Smith,12,,7\n", {"Quiz": {11: 4, 12: 7}}),
    ("number before SIS, SIS before name",
     'Student,ID,SIS User ID,Section,Quiz\nAnn Smith,13,b2,,7\nAnn Smith,,b2,,6\n',
     {"Quiz": {11: 4, 12: 6, 13: 7}}),
    ("login", "Student,ID,SIS User ID,SIS Login ID,Section,Quiz\nNobody,,zz,jose,,7\n", {"Quiz": {11: 4, 13: 7}}),
    ("unknown", "Student,ID,Section,Quiz\nNobody,,,7\n", {}),
    ("a blank erases, words stay", 'Student,ID,Section,Quiz,Essay\n"Smith, Ann",,,,EX\n',
     {"Quiz": {}, "Essay": {11: "EX"}}),
    ("new column", "Student,ID,Section,Test\n    Points Possible,,,30\nAnn Smith,,,3\n", {"Test": {11: 3}}),
    ("number in the title", "Student,ID,Section,Any (501)\nAnn Smith,,,3\n", {"Quiz": {11: 3}}),
    ("unknown number in the title", "Student,ID,Section,Test (1)\nAnn Smith,,,3\n", {"Test": {11: 3}}),
    ("later rows overwrite", "Student,ID,Section,Quiz\nAnn Smith,,,3\nAnn Smith,,,2\n", {"Quiz": {11: 2}}),
    ("totals and custom columns", "Student,ID,Section,Final Score,Notes,Quiz\nAnn Smith,,,1,2,3\n",
     {"Quiz": {11: 3}}),
    ("accents", "Student,ID,Section,Quiz\nJosé Diaz,,,3\n".encode("mac_roman"), Refused),
    ("no work", "Student,ID,Section\nAnn Smith,,\n", Refused),
]
MOODLE = [
    ("plain", "User ID,Quiz\na1,7\nb2,-\n", {"Quiz": {11: 7}}),
    ("a blank erases", "User ID,Quiz\na1,\n", {"Quiz": {}}),
    ("capped at both ends", "User ID,Quiz,Essay\na1,12,-3\n", {"Quiz": {11: 10}, "Essay": {11: 0}}),
    ("title of a download", "User ID,Quiz (Real)\na1,7\n", {"Quiz": {11: 7}}),
    ("letters vanish", "User ID,Prüfung\na1,7\n".encode("mac_roman"), {"Prfung": {11: 7}}),
    ("backslash", "User ID,a\\,Quiz\na1,7,7\n", {}), ("quoted backslash", 'User ID,"a\\"\na1,7\n', Refused),
    ("accent in an id", "User ID,Quiz\né3,7\n".encode("mac_roman"), Refused),
    ("unknown", "User ID,Quiz\na1,7\nzz,7\n", Refused), ("no id", "User ID,Quiz\n,7\n", Refused),
    ("above 100", "User ID,Quiz\na1,101\n", Refused), ("columns", "User ID,Quiz, 1\na1,7\n", Refused),
]
SAKAI = [
    ("plain", 'Student ID,Student Name,Quiz [10]\na1,"Smith Ann",7.25\nzz,,7\n', {"Quiz": {11: 7.25}}),
    ("a blank beside a change erases", "Student ID,Student Name,Quiz [10],Essay [20]\na1,,,\nb2,,3,\n",
     {"Quiz": {12: 3}}),
    ("new column", "Student ID,Student Name,Test [5]\né3,,3\n".encode("latin-1"), {"Test": {13: 3}}),
    ("garbled", "Student ID,Student Name,é [5]\na1,,3\n".encode("mac_roman"), {"\x8e": {11: 3}}),
    ("other tools, no points, backslash", "Student ID,Student Name,#x [5],No [0],Qu\\iz [10]\na1,,1,2,3\n",
     {"Quiz": {11: 3}}),
    *((f"score {score}", f"Student ID,Student Name,Quiz [10]\na1,,{score}\n", Refused)
      for score in ("1.125", "-1", "1e+06", "12345678901", "x")),
    *((f"title {title}", f"Student ID,Student Name,{title} [10],Quiz [10]\na1,,1,2\n", Refused)
      for title in ("Quiz", "", "[x]", "* x")),
]


class Importers(unittest.TestCase):
    def check(self, name, importer, data, wanted):
        data = data if isinstance(data, bytes) else data.encode()
        with self.subTest(name):
            if wanted is Refused:
                return self.assertRaises(Refused, importer, data, course())
            scores = {column.title: column.scores for column in importer(data, course()).columns}
            untouched = {column.title: column.scores for column in course().columns}
            return self.assertEqual(scores, untouched | wanted)

    def test_tables(self):
        for importer, rows in ((import_canvas, CANVAS), (import_moodle, MOODLE), (import_sakai, SAKAI)):
            for row in rows:
                self.check(row[0], importer, *row[1:])
        self.check("decimal comma", lambda data, before: import_sakai(data, before, decimal_comma=True),
                   "Student ID;Student Name;Quiz [10]\na1;x;2,5\n", {"Quiz": {11: 2.5}})


if __name__ == "__main__":
    unittest.main()
