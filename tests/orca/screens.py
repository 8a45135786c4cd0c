#!/usr/bin/env python3
"""screens.py PROGRAM: reads the tree of every screen as assistive tools meet it."""

import subprocess
import sys
from pathlib import Path

from desk import Desk


def main():
    with Desk(reader=False) as desk:
        desk.start(sys.argv[1])
        client = Path(__file__).with_name("tree.py")
        sys.exit(subprocess.run([sys.executable, client], env=desk.environment).returncode)


if __name__ == "__main__":
    main()
