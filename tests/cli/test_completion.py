"""The bash completion, asked as bash asks it."""
import os
import subprocess
import sys
import unittest
from pathlib import Path

sys.path.insert(0, os.path.dirname(__file__))
from support import GXEXPORT, SAMPLE  # noqa: E402

LIBRARY = "/usr/share/bash-completion/bash_completion"
COMPLETION = Path(__file__).resolve().parents[2] / "packaging" / "bash-completion" / "gxexport"

# Bash offers compopt only while it completes for a user.
SCRIPT = f"""
source {LIBRARY} && source '{COMPLETION}' || exit 1
compopt() {{ :; }}
COMP_LINE=$1; shift
COMP_POINT=${{#COMP_LINE}}; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
_gxexport gxexport
printf '%s\\n' "${{COMPREPLY[@]}}"
"""


def complete(line):
    """The proposals for the end of the line."""
    words = line.replace("=", " = ").split(" ")  # bash takes "=" as a word of its own
    environment = os.environ | {"PATH": os.path.dirname(GXEXPORT) + ":" + os.environ["PATH"]}
    result = subprocess.run(["bash", "-c", SCRIPT, "bash", line, *words], capture_output=True, text=True,
                            env=environment, cwd=SAMPLE.parent, timeout=60)
    return result.stdout.split("\n")[:-1], result.stderr


@unittest.skipUnless(os.path.exists(LIBRARY), "bash-completion is not installed")
class Completion(unittest.TestCase):
    def test_proposals(self):
        rows = {
            "gxexport ex": ["export"],
            "gxexport inspect --j": ["--json"],
            "gxexport inspect second": [SAMPLE.name],
            "gxexport inspect make_s": [""],
            "gxexport export -f black": ["blackboard6", "blackboard8", "blackboard91"],
            "gxexport export --format=can": ["canvas"],
            "gxexport export -u custom": ["custom-1", "custom-2", "custom-3"],
            "gxexport export -u pass": [""],
            "gxexport export --fields pass": ["password"],
            "gxexport export --fields alias,custom-1,gr": ["alias,custom-1,grade-level"],
            "gxexport export --columns b": ["both"],
            "gxexport check --dialect c": ["classic", "current"],
            "gxexport export --delimiter s": ["semicolon"],
            "gxexport help ins": ["inspect"],
            f"gxexport check {SAMPLE.name} -a 31": ["310", "311", "312"],
            f"gxexport export {SAMPLE.name} -a 301,302,30": [f"301,302,30{i}" for i in range(1, 10)],
            f"gxexport fill {SAMPLE.name} --map 312": ["312="],
            "gxexport export --no": ["--no-quotes", "--no-asterisks"],
            "gxexport export -f canvas second": [SAMPLE.name],
        }
        for line, proposals in rows.items():
            with self.subTest(line):
                self.assertEqual(complete(line), (proposals, ""))


if __name__ == "__main__":
    unittest.main()
