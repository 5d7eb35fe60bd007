"""The installed tree: complete, movable, and usable from outside."""
import os
import re
import shutil
import struct
import subprocess
import tempfile
import unittest
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def run(*command, **options):
    return subprocess.run([*map(str, command)], check=True, capture_output=True, text=True, encoding="latin-1",
                          timeout=60, **options)


class InstallTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        folder = tempfile.TemporaryDirectory()
        cls.addClassCleanup(folder.cleanup)
        run(os.environ["CMAKE"], "--install", os.environ["BUILD"], "--prefix", f"{folder.name}/first")
        cls.prefix = Path(folder.name) / "moved"
        os.rename(f"{folder.name}/first", cls.prefix)
        # The tree has to be found by itself.
        cls.environment = {key: value for key, value in os.environ.items() if not key.startswith("GRADIX_")}

    def test_files(self):
        installed = {str(path.relative_to(self.prefix)) for path in self.prefix.rglob("*") if path.is_file()}
        others = {path for path in installed if not path.startswith("share/gradix/Quizonne Help/")}
        resources = "share/gradix/Gradix.bundle/Resources/"
        icons = "share/icons/hicolor/"
        sizes = (16, 22, 24, 32, 48, 64, 128, 256)
        self.assertEqual(others, {
            "bin/gxexport", "bin/gxhost", "include/gradix/QZFilter.h", "lib/gradix/GX_StdCsv.so",
            "lib/pkgconfig/gradix-filter.pc", "share/applications/gradix.desktop",
            "share/metainfo/example.gradix.gradix.metainfo.xml", "share/mime/packages/gradix.xml",
            "share/bash-completion/completions/gxexport", "share/fish/vendor_completions.d/gxexport.fish",
            "share/zsh/site-functions/_gxexport",
            "share/man/man1/gxexport.1", "share/man/man1/gxhost.1",
            icons + "scalable/apps/gradix.svg", icons + "scalable/mimetypes/application-x-gradix-class+xml.svg",
            *(f"{icons}{size}x{size}/apps/gradix.png" for size in sizes),
            resources + "Gradix.rsrc", resources + "GradixStringsENU.strings", resources + "GradixStringsESP.strings",
            resources + "qzfstdcsv.rsrc", resources + "qzfstdcsvESP.rsrc"})
        for size in sizes:
            picture = (self.prefix / f"{icons}{size}x{size}/apps/gradix.png").read_bytes()
            self.assertEqual(struct.unpack(">II", picture[16:24]), (size, size))
        for language in "en", "es":
            self.assertIn(f"share/gradix/Quizonne Help/{language}/Quizonne Gradix/qzmanage.htm", installed)

    def test_programs(self):
        output = run(self.prefix / "bin/gxexport", "export", "-f", "canvas", ROOT / "samples/village-school.xml").stdout
        self.assertTrue(output.startswith("Student,ID,Section,"))
        self.assertRegex(run(self.prefix / "bin/gxhost", "--version").stdout, r"^gxhost \d+\.\d+\.\d+\n$")

    def test_a_host_finds_the_run_time_files(self):
        """Beside the programs, and in a folder of its own by a path of the module that is relative and a link."""
        plugins = self.prefix / "plugins"
        plugins.mkdir()
        (plugins / "filter.so").symlink_to("../lib/gradix/GX_StdCsv.so")
        self.addCleanup(shutil.rmtree, plugins)
        for folder, module in ("bin", self.prefix / "lib/gradix/GX_StdCsv.so"), ("plugins", "plugins/filter.so"):
            with self.subTest(folder):
                host = shutil.copy(os.environ["EXAMPLE_HOST"], self.prefix / folder)
                self.addCleanup(Path(host).unlink, missing_ok=True)
                done = run(host, module, ROOT / "samples/village-school.xml", 6, 2, "/nonexistent/x.csv",
                           env=self.environment, cwd=self.prefix)
                self.assertIn("dialog is open", done.stdout)

    @unittest.skipUnless(os.environ["HARDENED"] == "1", "no release build")
    def test_hardening(self):
        for name in "bin/gxexport", "bin/gxhost", "lib/gradix/GX_StdCsv.so":
            with self.subTest(name):
                told = run("readelf", "--wide", "--file-header", "--segments", "--dynamic", "--dyn-syms",
                           self.prefix / name).stdout
                for pattern in r"Type: +DYN", r"GNU_RELRO", r"FLAGS.*NOW", r"__stack_chk_fail", r"__glibcxx_assert_fail":
                    self.assertTrue(re.search(pattern, told), pattern)
                if name != "bin/gxhost":  # where the compiler sees no size to check
                    self.assertTrue(re.search(r"__[a-z]+_chk@GLIBC", told))
                self.assertEqual(re.findall(r"GNU_STACK.*RWE|NEEDED.*libcsv.*", told), [])

    @unittest.skipUnless(shutil.which("pkg-config"), "no pkg-config")
    def test_pkg_config(self):
        environment = dict(os.environ, PKG_CONFIG_PATH=str(self.prefix / "lib/pkgconfig"))
        variables = [run("pkg-config", f"--variable={name}", "gradix-filter", env=environment).stdout.strip()
                     for name in ("filterdir", "bundle")]
        self.assertEqual([Path(variable).resolve() for variable in variables],
                         [self.prefix / "lib/gradix", self.prefix / "share/gradix/Gradix.bundle"])
        flags = run("pkg-config", "--cflags", "gradix-filter", env=environment).stdout.split()
        run(os.environ["CC"], "-fsyntax-only", *flags, ROOT / "docs/examples/host.c")

    @unittest.skipUnless(shutil.which("desktop-file-validate"), "no desktop-file-validate")
    def test_desktop_entry(self):
        done = run("desktop-file-validate", self.prefix / "share/applications/gradix.desktop")
        self.assertEqual(done.stdout + done.stderr, "")

    @unittest.skipUnless(shutil.which("appstreamcli"), "no appstreamcli")
    def test_metainfo(self):
        [file] = (self.prefix / "share/metainfo").iterdir()
        run("appstreamcli", "validate", "--no-net", file)

    @unittest.skipUnless(shutil.which("update-mime-database") and shutil.which("gio"), "no MIME database, or no gio")
    def test_type_of_class_files(self):
        """By the root element: another XML file is none."""
        with tempfile.TemporaryDirectory() as folder:
            data = Path(folder) / "mime"
            shutil.copytree("/usr/share/mime/packages", data / "packages")
            shutil.copy(self.prefix / "share/mime/packages/gradix.xml", data / "packages")
            done = run("update-mime-database", data)
            self.assertNotIn("gradix", done.stdout + done.stderr)
            environment = os.environ | {"XDG_DATA_DIRS": folder, "XDG_DATA_HOME": f"{folder}/none"}
            kind = "application/x-gradix-class+xml"
            other = "<?xml version='1.0'?>\n<school><class></class></school>"
            for name, text, expected in (
                    ("class.xml", (ROOT / "samples/village-school.xml").read_text(), kind),
                    ("class", '<?xml version="1.0" encoding="ISO-8859-1" standalone="yes"?>\r\n<class>', kind),
                    ("other.xml", other, "application/xml"), ("other", other, "application/xml"),
                    ("bare.xml", "<school/>", "application/xml")):
                with self.subTest(name):
                    (Path(folder) / name).write_text(text)
                    done = run("gio", "info", "-a", "standard::content-type", Path(folder) / name, env=environment)
                    self.assertEqual(done.stdout.split()[-1], expected)

    @unittest.skipUnless(shutil.which("mandoc"), "no mandoc")
    def test_manual_pages(self):
        for page in (self.prefix / "share/man/man1").iterdir():
            self.assertEqual(run("mandoc", "-T", "lint", "-W", "warning", page).stdout, "")


if __name__ == "__main__":
    unittest.main()
