"""The completions, asked as each shell asks them."""
import os
import pty
import shutil
import signal
import subprocess
import sys
import tempfile
import time
import unittest
from pathlib import Path

sys.path.insert(0, os.path.dirname(__file__))
from support import GXEXPORT, SAMPLE  # noqa: E402

LIBRARY = "/usr/share/bash-completion/bash_completion"
PACKAGING = Path(__file__).resolve().parents[2] / "packaging"
ENVIRONMENT = os.environ | {"PATH": os.path.dirname(GXEXPORT) + ":" + os.environ["PATH"]}
LIMIT = 60  # seconds

# Bash offers compopt only while it completes for a user.
BASH = f"""
source {LIBRARY} && source '{PACKAGING}/bash-completion/gxexport' || exit 1
compopt() {{ :; }}
COMP_LINE=$1; shift
COMP_POINT=${{#COMP_LINE}}; COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1))
_gxexport gxexport
printf '%s\\n' "${{COMPREPLY[@]}}"
"""

# Zsh completes in its line editor only: what it is about to propose is written down, and then that it is done.
ZSH = f"""
fpath=('{PACKAGING}/zsh' $fpath); autoload -Uz compinit; compinit -u -D
compadd() {{
  local -a hits
  if [[ ${{@[1,(i)(-|--)]}} != *-(O|A|D)\\ * ]]; then
    builtin compadd -A hits "$@"
    (( $#hits )) && print -rl -- "$IPREFIX"${{^hits}} >>$PROPOSALS
  fi
  builtin compadd "$@"
}}
finished() {{ print end >>$PROPOSALS }}
comppostfuncs=(finished)
print ready >>$PROPOSALS
"""


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, env=ENVIRONMENT, cwd=SAMPLE.parent, timeout=LIMIT)


def bash(line):
    words = line.replace("=", " = ").split(" ")  # bash takes "=" as a word of its own
    result = run("bash", "-c", BASH, "bash", line, *words)
    return [text for text in result.stdout.splitlines() if text], result.stderr


def fish(line):
    result = run("fish", "--no-config", "-c", 'source $argv[1]; complete -C $argv[2]',
                 str(PACKAGING / "fish/gxexport.fish"), line)
    proposals = [text.partition("\t")[0] for text in result.stdout.splitlines()]
    word = line.rpartition(" ")[2]  # newer ones also propose what has its letters somewhere
    return [text for text in proposals if text.startswith(word)], result.stderr


def zsh(line):
    with tempfile.TemporaryDirectory() as folder:
        script, proposals = Path(folder) / "script", Path(folder) / "proposals"
        script.write_text(ZSH)
        process, terminal = pty.fork()
        if process == 0:
            os.chdir(SAMPLE.parent)
            os.execvpe("zsh", ["zsh", "-f", "-i"], ENVIRONMENT | {"PROPOSALS": str(proposals), "TERM": "dumb"})

        def wait_for(word):
            end = time.monotonic() + LIMIT
            while not (proposals.exists() and word in proposals.read_text().splitlines()):
                if time.monotonic() > end:
                    raise AssertionError(f"zsh is not {word}: {line}")
                time.sleep(0.02)

        try:
            os.write(terminal, f"source {script}\n".encode())
            wait_for("ready")
            os.write(terminal, line.encode() + b"\t")
            wait_for("end")
        finally:
            os.kill(process, signal.SIGKILL)
            os.waitpid(process, 0)
            os.close(terminal)
        return [text for text in proposals.read_text().splitlines() if text not in ("ready", "end")], ""


class Completion(unittest.TestCase):
    ROWS = {
        "gxexport ex": ["export"],
        "gxexport inspect --j": ["--json"],
        "gxexport inspect second": [SAMPLE.name],
        "gxexport export -f black": ["blackboard6", "blackboard8", "blackboard91"],
        "gxexport export --format=can": ["canvas"],
        "gxexport export -u custom": ["custom-1", "custom-2", "custom-3"],
        "gxexport export -u pass": [],
        "gxexport export --fields pass": ["password"],
        "gxexport export --fields alias,custom-1,gr": ["alias,custom-1,grade-level"],
        "gxexport export --columns b": ["both"],
        "gxexport check --dialect c": ["classic", "current"],
        "gxexport export --delimiter s": ["semicolon"],
        "gxexport help ins": ["inspect"],
        f"gxexport check {SAMPLE.name} -a 31": ["310", "311", "312"],
        f"gxexport export {SAMPLE.name} -a 301,302,30": [f"301,302,30{i}" for i in range(3, 10)],
        f"gxexport fill {SAMPLE.name} --map 312": ["312="],
        "gxexport export --no": ["--no-asterisks", "--no-quotes"],
        "gxexport export -f canvas second": [SAMPLE.name],
    }

    def check(self, complete, changes):
        for line, proposals in (self.ROWS | changes).items():
            with self.subTest(line):
                found, errors = complete(line)
                self.assertEqual((sorted(found), errors), (proposals, ""))

    @unittest.skipUnless(os.path.exists(LIBRARY), "bash-completion is not installed")
    def test_bash(self):
        self.check(bash, {"gxexport inspect make_s": [],
                          f"gxexport export {SAMPLE.name} -a 301,302,30": [f"301,302,30{i}" for i in range(1, 10)]})

    @unittest.skipUnless(shutil.which("fish"), "fish is not installed")
    def test_fish(self):
        self.check(fish, {"gxexport export --format=can": ["--format=canvas"],
                          f"gxexport export {SAMPLE.name} -a 301,302,30": [f"301,302,30{i}" for i in range(1, 10)]})

    @unittest.skipUnless(shutil.which("zsh"), "zsh is not installed")
    def test_zsh(self):
        self.check(zsh, {"gxexport export --format=can": ["--format=canvas"],
                         f"gxexport fill {SAMPLE.name} --map 312": ["312"]})  # and "=" behind it


if __name__ == "__main__":
    unittest.main()
