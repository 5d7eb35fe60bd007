"""The completions, asked as each shell asks them."""
import contextlib
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
KILL_LINE = "\x15"  # the key that takes all back that is typed

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
complete-and-say() {{ zle expand-or-complete; print end >>$PROPOSALS }}
zle -N complete-and-say; bindkey '^I' complete-and-say
print ready >>$PROPOSALS
"""


def run(*command):
    return subprocess.run(command, capture_output=True, text=True, env=ENVIRONMENT, cwd=SAMPLE.parent, timeout=LIMIT)


def bash(line):
    words = line.replace("=", " = ").split(" ")  # bash takes "=" as a word of its own
    result = run("bash", "-c", BASH, "bash", line, *words)
    return [text for text in result.stdout.splitlines() if text], result.stderr


def fish(lines):
    """Of each line what one fish proposes, and what it says at the end."""
    result = run("fish", "--no-config", "-c", 'source $argv[1]; for line in $argv[2..]; complete -C $line; printf "\\f"; end',
                 str(PACKAGING / "fish/gxexport.fish"), *lines)
    found = {}
    for line, proposals in zip(lines, result.stdout.split("\f")):
        word = line.rpartition(" ")[2]  # newer ones also propose what has its letters somewhere
        found[line] = [text.partition("\t")[0] for text in proposals.splitlines() if text.startswith(word)]
    return found, result.stderr


class Zsh:
    """One on a terminal of its own, in the folder of the sample."""

    def __init__(self):
        self.folder = tempfile.TemporaryDirectory()
        self.proposals = Path(self.folder.name) / "proposals"
        script = Path(self.folder.name) / "script"
        script.write_text(ZSH)
        self.process, self.terminal = pty.fork()
        if self.process == 0:
            os.chdir(SAMPLE.parent)
            os.execvpe("zsh", ["zsh", "-f", "-i"], ENVIRONMENT | {"PROPOSALS": str(self.proposals), "TERM": "dumb"})
        os.set_blocking(self.terminal, False)
        self._send(f"source {script}\n")
        self._wait_for("ready")

    def close(self):
        os.kill(self.process, signal.SIGKILL)
        os.waitpid(self.process, 0)
        os.close(self.terminal)
        self.folder.cleanup()

    def complete(self, line):
        self.proposals.unlink()
        self._send(KILL_LINE + line + "\t")
        self._wait_for("end")
        return [text for text in self.proposals.read_text().splitlines() if text != "end"]

    def _send(self, keys):
        os.write(self.terminal, keys.encode())

    def _wait_for(self, word):
        end = time.monotonic() + LIMIT
        while not (self.proposals.exists() and word in self.proposals.read_text().splitlines()):
            if time.monotonic() > end:
                raise AssertionError(f"zsh is not {word}")
            time.sleep(0.01)
            with contextlib.suppress(BlockingIOError):
                os.read(self.terminal, 65536)  # what it shows; it waits until that is read


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

    def check(self, changes, complete):
        """All rows, some of them changed, in a shell that completes a line."""
        for line, proposals in (self.ROWS | changes).items():
            with self.subTest(line):
                self.assertEqual(sorted(complete(line)), proposals)

    @unittest.skipUnless(os.path.exists(LIBRARY), "bash-completion is not installed")
    def test_bash(self):
        def complete(line):
            found, errors = bash(line)
            self.assertEqual(errors, "")
            return found
        self.check({"gxexport inspect make_s": [],
                    f"gxexport export {SAMPLE.name} -a 301,302,30": [f"301,302,30{i}" for i in range(1, 10)]}, complete)

    @unittest.skipUnless(shutil.which("fish"), "fish is not installed")
    def test_fish(self):
        found, errors = fish(list(self.ROWS))
        self.assertEqual(errors, "")
        self.check({"gxexport export --format=can": ["--format=canvas"],
                    f"gxexport export {SAMPLE.name} -a 301,302,30": [f"301,302,30{i}" for i in range(1, 10)]},
                   found.__getitem__)

    @unittest.skipUnless(shutil.which("zsh"), "zsh is not installed")
    def test_zsh(self):
        shell = Zsh()
        self.addCleanup(shell.close)
        self.check({"gxexport export --format=can": ["--format=canvas"],
                    f"gxexport fill {SAMPLE.name} --map 312": ["312"]}, shell.complete)  # and "=" behind it


if __name__ == "__main__":
    unittest.main()
