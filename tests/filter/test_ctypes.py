"""The module in a host that has only its published layout: record sizes, formats, statuses."""
import ctypes
import os
import struct
import tempfile
import unittest
from ctypes import POINTER, byref, c_char, c_char_p, c_int16, c_int32, c_uint8, c_uint32, c_ulong, c_void_p
from pathlib import Path

CHOOSE = ctypes.CFUNCTYPE(c_int32, c_void_p, c_int32, POINTER(c_char), c_int32, c_void_p)
SUCCESS, FAILED = 0, 0xC0000004


class Begin(ctypes.Structure):
    _fields_ = [("host0", c_uint32), ("format_index", c_uint32), ("host8", c_uint32 * 2),
                ("choose_file_value", c_void_p), ("choose_file", CHOOSE)]


class Format(ctypes.Structure):
    _fields_ = [("host0", c_uint32), ("name", c_char * 51), ("extension", c_char * 21), ("flags", c_uint32)]


class File(ctypes.Structure):
    _fields_ = [("host0", c_uint32 * 2), ("assignment_id", c_int32), ("class_file", c_uint8 * 80)]


def load():
    module = ctypes.CDLL(os.environ["FILTER_MODULE"])
    module.QZFilter_GetExportFormatInfoA.argtypes = [c_void_p, c_ulong]
    module.QZFilter_ExportBeginA.argtypes = [c_void_p, POINTER(Begin), POINTER(c_ulong)]
    module.QZFilter_ExportFileA.argtypes = [c_void_p, c_ulong, POINTER(File), c_void_p]
    module.QZFilter_ExportEnd.argtypes = [c_ulong]
    for name in ("GetNumExportFormatsA", "GetExportFormatInfoA", "ExportBeginA", "ExportFileA", "ExportEnd"):
        getattr(module, "QZFilter_" + name).restype = c_uint32
    return module


class Host(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.filter = load()

    def begin(self, index):
        session = c_ulong(0)
        status = self.filter.QZFilter_ExportBeginA(None, byref(Begin(format_index=index)), byref(session))
        return status, session.value

    def export(self, session, path=b"", reference=None):
        keep = c_char_p(path)
        address = ctypes.cast(keep, c_void_p).value
        bytes_ = reference if reference is not None else struct.pack("4s4xP", b"FSrf", address)
        file = File()
        ctypes.memmove(file.class_file, bytes_, len(bytes_))
        return self.filter.QZFilter_ExportFileA(None, session, byref(file), None)

    @unittest.skipIf(ctypes.sizeof(c_void_p) != 8, "the offsets of 64 bits")
    def test_records(self):
        layout = {Begin: (32, 0, 4, 8, 16, 24), Format: (80, 0, 4, 55, 76), File: (92, 0, 8, 12)}
        for record, (size, *offsets) in layout.items():
            self.assertEqual(ctypes.sizeof(record), size)
            self.assertEqual([getattr(record, name).offset for name, _ in record._fields_], offsets)

    def test_formats(self):
        self.assertEqual(self.filter.QZFilter_GetNumExportFormatsA(), 11)
        names = []
        for index in range(11):
            record = Format(host0=0x1234)
            self.assertEqual(self.filter.QZFilter_GetExportFormatInfoA(byref(record), index), 1)
            self.assertEqual((record.host0, record.extension, record.flags), (0x1234, b"csv", 14))
            names.append(record.name.decode("ascii"))
        self.assertEqual(names[3], "Detailed Results as Text")
        self.assertEqual(names[10], "Assignment Results for Sakai")
        self.assertEqual(len(set(names)), 11)

    def test_an_index_that_does_not_exist(self):
        for index in (11, 2**32 - 1, 2**32, 2**64 - 1):
            record = (c_uint8 * 80)(*[0xA5] * 80)
            self.assertEqual(self.filter.QZFilter_GetExportFormatInfoA(record, index), 0)
            self.assertEqual(bytes(record), b"\xA5" * 80)
        self.assertEqual(self.begin(11), (FAILED, 0))
        self.assertEqual(self.begin(2**32 - 1), (FAILED, 0))

    def test_the_language_becomes_english(self):
        language = c_int16.in_dll(self.filter, "gLang")
        language.value = 6
        record = Format()
        self.assertEqual(self.filter.QZFilter_GetExportFormatInfoA(byref(record), 0), 1)
        self.assertEqual((language.value, record.name), (0, b"Assignment Results for WebCT Vista"))

    def test_files_that_cannot_be_read(self):
        status, session = self.begin(6)
        self.assertEqual(status, SUCCESS)
        with tempfile.TemporaryDirectory() as folder:
            malformed = Path(folder, "class.xml")
            malformed.write_text("<class><student-list></class>")
            for path in (str(malformed), folder + "/missing.xml", folder, "", folder + "/" + "x" * 2000):
                self.assertEqual(self.export(session, os.fsencode(path)), 0, path)
        for reference in (bytes(80), b"FSrf" + bytes(76), b"xxxx" + bytes(76)):
            self.assertEqual(self.export(session, reference=reference), 0)
        self.assertEqual(self.export(session + 1, os.fsencode(os.environ["SAMPLES"]) + b"/village-school.xml"),
                         FAILED)
        self.assertEqual(self.filter.QZFilter_ExportEnd(session), SUCCESS)


if __name__ == "__main__":
    unittest.main()
