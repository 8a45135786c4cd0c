#!/usr/bin/env python3
"""spanish.py PROGRAM: a reader that was there before the program and speaks Spanish says an
exercise from the menu to its verdict."""

import signal
import sys

from desk import Desk

# Newer systems name the roles in the language of an installed locale alone.
BUTTON = r"(.*?) (?:botón|button).*"
BOX = "Primer factor (?:texto|text)"


def main():
    signal.signal(signal.SIGTERM, lambda *_: sys.exit("stopped"))  # what was started ends too
    with Desk(language="es") as desk:
        desk.start(sys.argv[1])
        at = desk.hear(BUTTON)[0].group(1)
        while at != "Suma repetida":
            desk.press("Tab")
            at = desk.hear(BUTTON)[0].group(1)
        desk.press("space")
        desk.hear("SUMA REPETIDA.*", BOX, r"(\d+)(?: más \1)+")
        desk.press("1", "Tab", "1", "Return")
        desk.hear("Respuesta incorrecta")


if __name__ == "__main__":
    main()
