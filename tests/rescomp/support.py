"""Running gxrescomp, and reading what it writes."""
import json
import os
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

GXRESCOMP = os.path.abspath(os.environ["GXRESCOMP"])
TREE = Path(os.environ["SOURCE_TREE"]).resolve()


def run(*args, **options):
    return subprocess.run([GXRESCOMP, *map(str, args)], capture_output=True, timeout=60, **options)


def read_fork(data):
    """(type, id) -> bytes, of the bytes of a resource file."""
    data_offset, map_offset, data_length, map_length = struct.unpack_from(">4I", data)
    assert data_offset + data_length <= len(data) and map_offset + map_length == len(data)
    type_list = map_offset + struct.unpack_from(">H", data, map_offset + 24)[0]
    resources = {}
    for i in range((struct.unpack_from(">H", data, type_list)[0] + 1) & 0xFFFF):
        kind, last, offset = struct.unpack_from(">4sHH", data, type_list + 2 + 8 * i)
        for j in range(last + 1):
            identifier, _, place = struct.unpack_from(">hHI", data, type_list + offset + 12 * j)
            start = data_offset + (place & 0xFFFFFF)
            size = struct.unpack_from(">I", data, start)[0]
            assert start + 4 + size <= data_offset + data_length
            resources[kind.decode("ascii"), identifier] = data[start + 4:start + 4 + size]
    return resources


def strings_of(resource):
    """The texts of a string list."""
    count = struct.unpack_from(">H", resource)[0]
    at, texts = 2, []
    for _ in range(count):
        texts.append(resource[at + 1:at + 1 + resource[at]].decode("mac_roman"))
        at += 1 + resource[at]
    assert at == len(resource)
    return texts


def items_of(resource):
    """(rectangle, kind, data) of each item of an item list."""
    count = (struct.unpack_from(">H", resource)[0] + 1) & 0xFFFF
    at, items = 2, []
    for _ in range(count):
        handle, *rectangle, kind, size = struct.unpack_from(">I4hBB", resource, at)
        assert handle == 0
        items.append((tuple(rectangle), kind, resource[at + 14:at + 14 + size]))
        at += 14 + size + size % 2
    assert at == len(resource)
    return items


BUTTON = 1
DATA_SIZES = {BUTTON: 2, 2: 2, 3: 2, 7: 4}  # of the types whose items have data


def descriptions_of(resource):
    """(type, flags, data) of each item of an item extension."""
    at, rows = 4, []
    for _ in range(struct.unpack_from(">H", resource, 2)[0]):
        kind, flags = struct.unpack_from(">II", resource, at)
        at += 8 + DATA_SIZES.get(kind, 0)
        rows.append((kind, flags, resource[at - DATA_SIZES.get(kind, 0):at]))
    assert at == len(resource)
    return rows


class FolderTest(unittest.TestCase):
    """Works in an empty folder."""

    def setUp(self):
        temporary = tempfile.TemporaryDirectory()
        self.addCleanup(temporary.cleanup)
        self.folder = Path(temporary.name)

    def write(self, name, source):
        """`source` is the text, its bytes, or what JSON is made of."""
        path = self.folder / name
        if not isinstance(source, (str, bytes)):
            source = json.dumps(source)
        path.write_bytes(source if isinstance(source, bytes) else source.encode())
        return path

    def compile_files(self, *paths):
        """The bytes of the resource file."""
        output = self.folder / "out.rsrc"
        result = run(*paths, "-o", output)
        self.assertEqual((result.returncode, result.stderr.decode()), (0, ""))
        return output.read_bytes()

    def compile(self, source):
        return read_fork(self.compile_files(self.write("source.json", source)))
