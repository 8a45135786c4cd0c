#!/usr/bin/env python3
"""Start and memory of the program against the floor program, in turn, on one display.

Usage: bench/start.py [build folder] [rounds, 25 or more]

Each round starts one of the two programs, waits until its window is painted (its middle is
no longer the root window's black), and reads the time and, half a second later, the memory
(PSS) and the time that it has spent on a processor, which a busy machine changes least. Prints
the medians and the ratios. Runs Xvfb by itself (package xvfb).
"""
import mmap
import os
import pathlib
import signal
import statistics
import subprocess
import sys
import time

DISPLAY = ":87"
WIDTH, HEIGHT = 1366, 768


def frame_buffer(directory):
    """Xvfb's own frame buffer, mapped: to read it whole at each look takes a core of the two."""
    path = directory / "Xvfb_screen0"
    while not path.exists() or path.stat().st_size == 0:
        time.sleep(0.01)
    with path.open("rb") as file:
        return mmap.mmap(file.fileno(), 0, prot=mmap.PROT_READ)


def painted(display):
    """True when the middle of the display is not black."""
    header = int.from_bytes(display[0:4], "big")
    colours = int.from_bytes(display[76:80], "big")
    line = int.from_bytes(display[48:52], "big")
    start = header + colours * 12
    for x, y in ((WIDTH // 2 - 150, HEIGHT // 2), (WIDTH // 2 + 150, HEIGHT // 2), (WIDTH // 2, HEIGHT // 2 + 40)):
        at = start + y * line + x * 4
        if any(display[at : at + 3]):
            return True
    return False


def pss(pid):
    with open(f"/proc/{pid}/smaps_rollup") as rollup:
        for line in rollup:
            if line.startswith("Pss:"):
                return int(line.split()[1])
    raise RuntimeError("no PSS")


def command(build, program):
    """How to start a program of the build; one for Windows under Wine."""
    for_windows = build / f"bin/{program}.exe"
    return ["wine", for_windows] if for_windows.exists() else [build / "bin" / program]


def measure(program, display, environment):
    begin = time.perf_counter()
    process = subprocess.Popen(program, env=environment, stderr=subprocess.DEVNULL)
    while not painted(display):
        if process.poll() is not None or time.perf_counter() - begin > 20:
            sys.exit(f"{program} did not come up")
        time.sleep(0.0005)
    elapsed = time.perf_counter() - begin
    time.sleep(0.5)
    memory = pss(process.pid)
    process.send_signal(signal.SIGKILL)
    _, _, usage = os.wait4(process.pid, 0)  # of all its threads, those that have ended too
    process.returncode = -signal.SIGKILL
    processor = usage.ru_utime + usage.ru_stime
    while painted(display):
        time.sleep(0.01)
    return elapsed, memory, processor


def main():
    build = pathlib.Path(sys.argv[1] if len(sys.argv) > 1 else "build/release")
    rounds = max(25, int(sys.argv[2]) if len(sys.argv) > 2 else 25)  # fewer tell nothing
    programs = {"floor": command(build, "start_floor"), "pizarrin": command(build, "pizarrin")}
    directory = pathlib.Path(f"/tmp/pizarrin-bench-{os.getpid()}")
    directory.mkdir()
    server = subprocess.Popen(
        ["Xvfb", DISPLAY, "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-fbdir", str(directory)],
        stderr=subprocess.DEVNULL,
    )
    environment = dict(os.environ, DISPLAY=DISPLAY)
    environment.pop("WAYLAND_DISPLAY", None)
    environment.pop("QT_QPA_PLATFORM", None)
    results = {name: [] for name in programs}
    try:
        time.sleep(1)
        display = frame_buffer(directory)
        for name, program in programs.items():  # files into the cache
            measure(program, display, environment)
        for _ in range(rounds):
            for name, program in programs.items():
                results[name].append(measure(program, display, environment))
    finally:
        server.terminate()
        server.wait()
        subprocess.run(["rm", "-rf", str(directory)], check=False)
    medians = {}
    for name, values in results.items():
        seconds, memory, processor = (statistics.median(column) for column in zip(*values))
        medians[name] = (seconds, memory, processor)
        print(f"{name:9} start {seconds * 1000:7.1f} ms   memory {memory / 1024:6.2f} MiB (PSS)   "
              f"processor {processor * 1000:6.1f} ms")
    start, memory, processor = (
        ours / floor for ours, floor in zip(medians["pizarrin"], medians["floor"]))
    print(f"ratio     start {start:7.3f}      memory {memory:6.3f}             "
          f"processor {processor:6.3f}")


if __name__ == "__main__":
    main()
