"""A pupil's desk: a display, a session and a screen reader of their own, keys to press and
the words that the reader says. Nothing of the user's own session is touched."""

import json
import os
import pty
import queue
import re
import shutil
import signal
import subprocess
import tempfile
import threading
import time
import tty
from pathlib import Path

LIMIT = 90  # seconds: far more than a busy machine takes, so that only real silence ends it

SPEECH = """LogLevel 0
LogDir "{folder}"
AudioOutputMethod "libao"
AddModule "dummy" "sd_dummy" "dummy.conf"
DefaultModule dummy
"""
PROFILE = {"profile": ["Default", "default"], "enableKeyEcho": False, "enableEchoByWord": False}
SETTINGS = {
    "general": {"startingProfile": ["Default", "default"], "enableKeyEcho": False},
    "profiles": {"default": PROFILE},
    "pronunciations": {},
    "keybindings": {},
}
NEWER_SETTINGS = """[org/gnome/orca/default/typing-echo]
key-echo=false
word-echo=false
[org/gnome/orca/default/speech]
speak-widget-mnemonic=false
speak-tutorial-messages=false
"""


# What a reader says of a text that the program has highlighted or replaced, and of where the
# focus rests while there is nothing to be done: none of it is of use to a pupil.
CHATTER = re.compile(r"(.* )?(un)?selected|Selection .*|Cielo.*|panel|unknown")

# One word group twice in a row, in one breath. A bracket may well stand in another one.
DOUBLED = re.compile(r"\b(?!(?:abre|cierra) paréntesis)([^\W\d_]+(?: [^\W\d_]+)*)[ .,:;]+\1\b")

# What the reader says first, in the language that it is started in.
GREETINGS = {"en": "Screen reader on", "es": "Lector de pantalla activado"}

FIRST_FUNCTION_KEY = 67  # the code of F1

# The last that the reader writes before it does nothing but listen, in old words and in new ones.
LISTENING = re.compile(r"ORCA: Starting (registry|Atspi main event loop)")


def by_code(key):
    """F2 as the code of its key: by its name, newer maps of the keyboard have it pressed with Alt."""
    return re.sub(r"F([1-9])$", lambda found: str(FIRST_FUNCTION_KEY - 1 + int(found.group(1))), key)


class Silence(AssertionError):
    """The reader did not say what it had to."""


class Chatter(AssertionError):
    """The reader said what it should not."""


class Desk:
    """Use as a context: everything that it has started ends with it."""

    def __init__(self, reader=True, language="en"):
        self.has_reader = reader
        self.language = language

    def __enter__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="desk-"))
        self.processes = []
        self.said = queue.Queue()
        self.listening = threading.Event()
        self.heard = []  # since the last step, in order
        self.before = ""  # the last since a key was pressed
        self.environment = dict(
            os.environ,
            HOME=str(self.folder),
            XDG_RUNTIME_DIR=str(self.folder / "run"),
            LC_ALL="C.UTF-8",
            LANGUAGE=self.language,
            QT_LINUX_ACCESSIBILITY_ALWAYS_ON="1",
            QT_QPA_PLATFORM="xcb",
        )
        for variable in ("AT_SPI_BUS_ADDRESS", "XDG_DATA_HOME", "XDG_CONFIG_HOME"):
            self.environment.pop(variable, None)
        (self.folder / "run").mkdir(mode=0o700)
        try:
            self._start_display()
            self._start_accessibility()
            if self.has_reader:
                self._start_reader()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_):
        for process in reversed(self.processes):
            try:
                os.killpg(process.pid, signal.SIGTERM)
            except ProcessLookupError:
                pass
            try:
                process.wait(10)
            except subprocess.TimeoutExpired:
                os.killpg(process.pid, signal.SIGKILL)
                process.wait()
        shutil.rmtree(self.folder, ignore_errors=True)

    def start(self, *command, **options):
        options = {"stdout": subprocess.DEVNULL, **options}
        process = subprocess.Popen(
            command, env=self.environment, stdin=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
            start_new_session=True, **options)
        self.processes.append(process)
        return process

    def _start_display(self):
        reading, writing = os.pipe()
        self.start("Xvfb", "-displayfd", str(writing), "-screen", "0", "1366x768x24",
                   "-nolisten", "tcp", pass_fds=[writing])
        os.close(writing)
        with os.fdopen(reading) as display:
            self.environment["DISPLAY"] = ":" + display.readline().strip()
        bus = self.start("dbus-daemon", "--session", "--nofork", "--print-address=1",
                         stdout=subprocess.PIPE, text=True)
        self.environment["DBUS_SESSION_BUS_ADDRESS"] = bus.stdout.readline().strip()
        managed = self.folder / "managed"
        os.mkfifo(managed)
        self.start("openbox", "--startup", f"sh -c 'echo >{managed}'")
        managed.read_text()

    def _start_accessibility(self):
        # Asking where its bus is starts it.
        subprocess.run(
            ["dbus-send", "--session", "--print-reply", "--dest=org.a11y.Bus", "/org/a11y/bus",
             "org.a11y.Bus.GetAddress"],
            env=self.environment, check=True, stdout=subprocess.DEVNULL,
            stderr=subprocess.DEVNULL)

    def _start_reader(self):
        speech = self.folder / "speech"
        shutil.copytree("/etc/speech-dispatcher", speech)
        (speech / "speechd.conf").write_text(SPEECH.format(folder=self.folder))
        self._write(".local/share/orca/user-settings.conf", json.dumps(SETTINGS))
        self._write(".config/glib-2.0/settings/keyfile", NEWER_SETTINGS)
        self.environment["GSETTINGS_BACKEND"] = "keyfile"
        self.start("speech-dispatcher", "-s", "-t", "0", "-C", str(speech), "-L",
                   str(self.folder))
        socket = self.folder / "run/speech-dispatcher/speechd.sock"
        self._wait(socket.exists, "no speech server")
        # It writes line by line to a terminal alone.
        terminal, log = pty.openpty()
        tty.setraw(log)
        threading.Thread(target=self._listen, args=[terminal], daemon=True).start()
        self._hide_other_readers()
        self.start("orca", f"--debug-file={os.ttyname(log)}")
        self.hear(GREETINGS[self.language])  # which it says before it listens to programs
        if not self.listening.wait(LIMIT):
            raise Silence("the reader does not listen")

    def _hide_other_readers(self):
        """It does not start beside another one of the same user's that it finds. Told to replace
        that, it would end it, and two seconds later lose whatever it is about to say."""
        finder = self.folder / "alone/pgrep"
        finder.parent.mkdir()
        finder.write_text("#!/bin/sh\n")
        finder.chmod(0o755)
        self.environment["PATH"] = f"{finder.parent}:{self.environment['PATH']}"

    def _write(self, name, text):
        file = self.folder / name
        file.parent.mkdir(parents=True)
        file.write_text(text)

    @staticmethod
    def _wait(condition, complaint):
        end = time.monotonic() + LIMIT
        while not condition():
            if time.monotonic() > end:
                raise Silence(complaint)
            time.sleep(0.05)

    def _listen(self, terminal):
        with open(terminal, encoding="utf-8", errors="replace") as log:
            utterance = ""
            try:
                for line in log:
                    if LISTENING.search(line):
                        self.listening.set()
                    if not utterance and "SPEECH OUTPUT: '" not in line:
                        continue
                    utterance += line  # a box may say several lines
                    words = re.search(r"SPEECH OUTPUT: '(.*)' *(?:\{.*)?$", utterance, re.DOTALL)
                    if words:
                        self.said.put(" ".join(words.group(1).split()).removesuffix("."))
                        utterance = ""
            except OSError:
                pass  # the reader has gone

    def press(self, *keys):
        """Presses keys one after the other, by their X names: "Tab", "alt+v", "5"."""
        self.before = ""
        subprocess.run(["xdotool", "key", "--delay", "30", *map(by_code, keys)],
                       env=self.environment, check=True)

    def type(self, text):
        self.press(*str(text))

    def hear(self, *wanted):
        """Waits until the reader has said each wanted regular expression, in this order, as
        whole utterances. Returns the matches, and forgets what came before the last one."""
        matches, at = [], 0
        for pattern in wanted:
            end = time.monotonic() + LIMIT
            while True:
                if at == len(self.heard):
                    self._hear_on(pattern, end)
                match = re.fullmatch(pattern, self.heard[at])
                at += 1
                if match:
                    break
            matches.append(match)
        self.passed, self.heard = self.heard[:at], self.heard[at:]
        return matches

    def _hear_on(self, pattern, end):
        try:
            self._take(max(0, end - time.monotonic()))
        except queue.Empty:
            raise Silence(f"waited for {pattern!r}, heard {self.heard}") from None

    def _take(self, seconds):
        said = self.said.get(timeout=seconds)
        if CHATTER.fullmatch(said) or DOUBLED.search(said) or repeats(self.before, said):
            raise Chatter(f"heard {said!r} behind {self.before!r} and {self.heard}")
        self.before = said
        self.heard.append(said)


def repeats(before, said):
    """Whether a caption is said with what it belongs to, and then again by itself."""
    return said[:1].isalpha() and before.startswith(f"{said} ")
