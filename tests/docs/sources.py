"""The sources, and copies of them that a test may change."""
import shutil
from pathlib import Path

ROOT = Path(__file__).resolve().parents[2]


def copy_sources(destination):
    """Without the repository, what was built, and what was exported."""
    shutil.copytree(ROOT, destination, symlinks=True, ignore=lambda where, names: {
        name for name in names
        if Path(where) == ROOT and (name in {"build", "out", ".git"} or (ROOT / name / "CMakeCache.txt").exists())})
