#!/usr/bin/env python3
"""Measures whole runs of gxexport: many classes with one and two jobs, the check and the filling of a downloaded
gradebook against the export, a district.

    measure_programs.py BIN [batch|check|fill|district]...

BIN is the folder with gxexport and generate_class. Prints medians of runs in turn; docs/performance.md shows some.
"""
import csv
import io
import random
import statistics
import subprocess
import sys
import tempfile
import time
from pathlib import Path

RUNS = 7


class Run:
    """Wall and CPU seconds and the peak memory in MiB of one run."""

    def __init__(self, command):
        with tempfile.NamedTemporaryFile("r") as usage:
            begin = time.monotonic()
            # A program's peak would count this one's memory, if this one started it.
            status = subprocess.run(["/usr/bin/time", "-q", "-f", "%U %S %M", "-o", usage.name, *command],
                                    stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL).returncode
            self.wall = time.monotonic() - begin
            if status not in (0, 6):
                sys.exit(f"{command} ended with status {status}")
            user, system, memory = map(float, usage.read().split())
        self.cpu = user + system
        self.memory = memory / 1024


def compare(commands):
    """Runs the named commands in turn. Returns the medians by name and prints them."""
    runs = {name: [] for name in commands}
    for _ in range(RUNS):
        for name, command in commands.items():
            runs[name].append(Run(command))
    for name, results in runs.items():
        medians = {key: statistics.median(getattr(r, key) for r in results) for key in ("wall", "cpu", "memory")}
        runs[name] = medians
        print(f"{name:12} {medians['wall']:8.3f} s   {medians['cpu']:8.3f} s CPU   {medians['memory']:7.1f} MiB")
    return runs


def generate(programs, path, *numbers):
    with open(path, "wb") as file:
        subprocess.run([programs / "generate_class", *map(str, numbers)], stdout=file, check=True)
    return path.stat().st_size


def batch_command(programs, folder, jobs):
    return [programs / "gxexport", "export", "-f", "canvas", "--output-dir", folder / "out", "--jobs", str(jobs),
            folder / "classes"]


def measure_batch(programs, folder):
    (folder / "classes").mkdir()
    size = sum(generate(programs, folder / "classes" / f"{i}.xml", 360, 4, 5, i) for i in range(1, 101))
    print(f"100 classes, {size / 1e6:.0f} MB")
    runs = compare({f"--jobs {jobs}": batch_command(programs, folder, jobs) for jobs in (1, 2)})
    print(f"ratio {runs['--jobs 2']['wall'] / runs['--jobs 1']['wall']:.2f}\n")


def measure_check(programs, folder):
    size = generate(programs, folder / "large.xml", 20000, 4, 10)
    print(f"20,000 students x 4, {size / 1e6:.0f} MB")
    gxexport, class_file = programs / "gxexport", folder / "large.xml"
    runs = compare({"export": [gxexport, "export", "-f", "canvas", "-o", folder / "o.csv", class_file],
                    "check": [gxexport, "check", "-f", "canvas", class_file]})
    print(f"ratio {runs['check']['cpu'] / runs['export']['cpu']:.2f}\n")


def write_download(programs, class_file, path):
    """The gradebook that Canvas would have for the class, with a score here and there."""
    current = subprocess.run([programs / "gxexport", "export", "-f", "canvas", "--dialect", "current", class_file],
                             check=True, stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, text=True).stdout
    headings, points, *students = csv.reader(io.StringIO(current))
    with open(path, "w", newline="", encoding="utf-8") as file:
        writer = csv.writer(file)
        writer.writerow(headings[:5] + [f"{title} ({number})" for number, title in enumerate(headings[5:], 100)])
        writer.writerow(points)
        for number, row in enumerate(students, 1):
            writer.writerow([row[0], number, *row[2:5], *("1.00" if number % 7 == 0 else "" for _ in row[5:])])


def measure_fill(programs, folder):
    class_file, download = folder / "large.xml", folder / "download.csv"
    size = generate(programs, class_file, 20000, 4, 10)
    write_download(programs, class_file, download)
    print(f"20,000 students x 4, {size / 1e6:.0f} MB")
    gxexport = programs / "gxexport"
    runs = compare({"export": [gxexport, "export", "-f", "canvas", "-o", folder / "o.csv", class_file],
                    "fill": [gxexport, "fill", "--gradebook", download, "-o", folder / "f.csv", class_file]})
    print(f"ratio {runs['fill']['cpu'] / runs['export']['cpu']:.2f}\n")


def measure_district(programs, folder):
    """Classes as they are at the end of a year: 12 to 35 students, 5 to 40 assignments of 5 to 25 questions."""
    (folder / "classes").mkdir()
    chance = random.Random(1)
    size = sum(generate(programs, folder / "classes" / f"{i}.xml", chance.randint(12, 35), chance.randint(5, 40),
                        chance.randint(5, 25), i) for i in range(1, 1001))
    print(f"1,000 classes, {size / 1e6:.0f} MB")
    compare({f"--jobs {jobs}": batch_command(programs, folder, jobs) for jobs in (1, 2)})


MEASUREMENTS = {"batch": measure_batch, "check": measure_check, "fill": measure_fill, "district": measure_district}


def main():
    programs = Path(sys.argv[1]).resolve()
    for name in sys.argv[2:] or MEASUREMENTS:
        with tempfile.TemporaryDirectory() as folder:
            MEASUREMENTS[name](programs, Path(folder))


if __name__ == "__main__":
    main()
