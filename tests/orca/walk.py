#!/usr/bin/env python3
"""walk.py PROGRAM [ACTIVITY...]: plays activities with a real screen reader."""

import re
import signal
import subprocess
import sys
import time
from pathlib import Path

import activities
from desk import Desk, Silence

# Of every exercise: one has the focus for a moment when its access key presses it.
BUTTONS = ["Hecho (?:push )?button", "Borrar (?:push )?button", "Continuar (?:push )?button",
           "Ver soluci.* (?:push )?button"]
READING = 0.8  # seconds in which a box that has come up by itself takes no key


class Pupil:
    """Plays by what is heard. Whatever the reader says must be waited for here, except what it
    says by itself of the control and the window that have the focus."""

    def __init__(self, desk):
        self.desk = desk
        self.names = []
        self.heard_exercise = None
        self.transcript = []

    def at_the_menu(self):
        """Hears which activity of the menu has the focus."""
        self.at = self.desk.hear(r"(.*?) (?:push )?button.*")[0].group(1)

    def open(self, activity, names):
        """Goes through the menu with Tab until an activity has the focus, and opens it."""
        while self.at != activity:
            self.desk.press("Tab")
            self.at = self.desk.hear(r"(.*?) (?:push )?button.*")[0].group(1)
        self.names = [activity, "PIZARRIN", *BUTTONS, *names]
        self.desk.press("space")

    def exercise(self, words, also=()):
        """Hears the exercise, and hears it again at F2 with nothing in between."""
        self.heard_exercise = self.desk.hear(words)[0]
        self._note("")
        self._again([words], also)
        return self.heard_exercise

    def goes_on(self, key, words, before=(), also=()):
        """Presses a key that leads to another exercise."""
        self.desk.press(key)
        matches = self.desk.hear(*before, words)
        self.heard_exercise = matches[-1]
        self._note(key)
        self._again([*before, words], also)
        return self.heard_exercise

    def press(self, *keys):
        self.desk.press(*keys)
        self._note(" ".join(keys), [])

    def answer_box(self, key):
        """Presses a key in a box that came up by itself: once heard, it has been shown."""
        time.sleep(READING)
        self.press(key)

    def hears(self, *words):
        """Hears these in order, whatever else is said in between. Returns the last match."""
        match = self.desk.hear(*words)[-1]
        self._note("", self.desk.passed)
        return match

    def hears_whole(self, words, before=()):
        """Hears this, in however many breaths the reader says it, and nothing else but what a
        reader may say before it."""
        self.hears(f".*{words.split()[-1]}")
        said = self.desk.passed
        while said[0] in before:
            said = said[1:]
        if " ".join(said) != words:
            raise Silence(f"heard {self.desk.passed} instead of {words!r}")

    def does(self, *keys, says, also=()):
        """Presses keys and hears what they bring about, and nothing else."""
        self.desk.press(*keys)
        matches = self.desk.hear(*says)
        self._note(" ".join(keys))
        self._again([*says], also)
        return matches

    def close(self):
        self.desk.press("alt+F4")
        self.back_at_the_menu()

    def back_at_the_menu(self):
        """Where the focus still is on what has been opened."""
        self.desk.hear(rf"{self.at} (?:push )?button.*")

    def _note(self, keys, said=None):
        self.transcript.append((keys, list(self.desk.passed if said is None else said)))

    def _again(self, expected, also=()):
        """F2 says the exercise again; what was said before it was all expected, but for a
        character that the reader spells out, and for what stands in a box: a reader that says
        announcements first comes to what was typed or written when the pupil is past it."""
        said = list(self.desk.passed)
        self.desk.press("F2")
        self.desk.hear(re.escape(self.heard_exercise.group()))
        said += self.desk.passed[:-1]
        for words in expected:
            said.remove(next(one for one in said if re.fullmatch(words, one)))
        own = [*self.names, "F2 repite el ejercicio", *also]
        chatter = [one for one in said
                   if len(one) > 1 and not re.fullmatch(r"[\d ]+", one)
                   and not any(re.match(name, one) for name in own)]
        if chatter:
            raise Silence(f"heard {chatter} besides {expected}")


def play(pupil, wanted):
    for activity in activities.ALL:
        if wanted and activity.__name__ not in wanted:
            continue
        pupil.transcript.clear()
        try:
            activity(pupil)
        finally:
            print(f"== {activity.__name__}")
            for keys, said in pupil.transcript:
                print(f"  {keys or 'opening'}: {' | '.join(said)}", flush=True)


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("stopped"))  # what was started ends too
    program, wanted = sys.argv[1], sys.argv[2:]
    with Desk() as desk:
        desk.start(program)
        pupil = Pupil(desk)
        pupil.at_the_menu()
        play(pupil, wanted)


if __name__ == "__main__":
    main()
