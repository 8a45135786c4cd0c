"""The engine of mutate.sh: changes one operator or constant of a model's file at a time, builds
the file with its tests against that, and runs them. A mutant that no test notices survives."""

import concurrent.futures
import json
import os
import re
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "mutate"
SECONDS = 20  # beyond this a test hangs, which is noticing too

SWAPS = {
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "++": ["--"], "--": ["++"],
}
# Literals, comments and directives are passed over whole; a number may have digit marks.
TOKEN = re.compile(
    r'(?P<skip>//[^\n]*|/\*.*?\*/|^\s*\#[^\n]*|u?"(?:[^"\\\n]|\\.)*"(?:_s)?|u?\'(?:[^\'\\\n]|\\.)+\''
    r"|->|::|<<=?|>>=?|<=>|template\s*<[^;{]*?>|\w+_cast\s*<[^>]*>)"
    r"|(?P<number>(?<![\w.])\d[\d']*(?:\.\d+)?f?(?![\w.]))"
    r"|(?P<word>[A-Za-z_]\w*)"
    r"|(?P<operator>\+\+|--|\+=|-=|\*=|<=|>=|==|!=|&&|\|\||[-+*/%<>])",
    re.S | re.M)


def mutants(text):
    """(line, what, mutated text) for every place that can be changed."""
    for match in TOKEN.finditer(text):
        found = match.group()
        if match.lastgroup == "number":
            if "." in found or found.endswith("f"):
                changes = [f"({found} + 0.25{'f' if found.endswith('f') else ''})"]
            else:
                changes = [str(int(found.replace("'", "")) + 1)]
        elif match.lastgroup == "operator":
            changes = SWAPS.get(found, [])
        elif found in ("true", "false"):
            changes = ["false" if found == "true" else "true"]
        else:
            continue
        for change in changes:
            line = text.count("\n", 0, match.start()) + 1
            yield line, f"{found} → {change}", text[:match.start()] + change + text[match.end():]


def commands():
    entries = json.loads((BUILD / "compile_commands.json").read_text())
    return {entry["file"]: (entry["directory"], shlex.split(entry["command"])) for entry in entries}


def compile_to(entry, source, target, folder):
    directory, words = entry
    words = list(words)
    words[words.index("-o") + 1] = str(target)
    words[words.index("-c") + 1] = str(source)
    words[1:1] = ["-I", str(folder), "-w"]
    return subprocess.run(words, cwd=directory, capture_output=True).returncode == 0


def tests_of(path):
    stem = path.stem
    folder = ROOT / "tests" / path.parent.name
    found = [test for test in sorted(folder.glob(f"{stem}*_test.cpp")) if "screen" not in test.name]
    # Part of a model that is tested under another name: every model test of the folder.
    return found or [test for test in sorted(folder.glob("*_test.cpp")) if "screen" not in test.name]


def survives(text, path, tests, compiled):
    """True when every test passes; None when the mutant does not build."""
    with tempfile.TemporaryDirectory(prefix="mutant-") as name:
        folder = Path(name)
        place = folder / path.relative_to(ROOT / "src")
        place.parent.mkdir(parents=True)
        place.write_text(text)
        header = path.suffix == ".h"
        sources = [path.with_suffix(".cpp")] if header else [path]
        objects = []
        for source in sources:
            if not source.exists():
                continue
            target = folder / (source.stem + ".o")
            if not compile_to(compiled[str(source)], source if header else place, target, folder):
                return None
            objects.append(str(target))
        for test in tests:
            program = folder / test.stem
            unit = BUILD / "tests" / test.parent.name / "CMakeFiles" / f"{test.stem}.dir" / f"{test.name}.o"
            if header:
                unit = folder / f"{test.stem}.test.o"
                if not compile_to(compiled[str(test)], test, unit, folder):
                    return None
            link = ["c++", "-o", str(program), str(unit), *objects, str(BUILD / "src/libpizarrin_core.a"),
                    "-lQt6Test", "-lQt6Core"]
            if subprocess.run(link, capture_output=True).returncode != 0:
                return None
            try:
                run = subprocess.run([str(program)], capture_output=True, timeout=SECONDS, cwd=folder,
                                     env={**os.environ, "LC_ALL": "C.UTF-8"})
            except subprocess.TimeoutExpired:
                return False
            if run.returncode != 0:
                return False
        return True


def main():
    path = Path(sys.argv[1]).resolve()
    compiled = commands()
    tests = tests_of(path)
    if not tests:
        sys.exit(f"no model tests for {path.name}")
    text = path.read_text()
    if survives(text, path, tests, compiled) is not True:
        sys.exit(f"the tests of {path.name} do not pass unchanged")
    made = list(mutants(text))
    counts = {True: 0, False: 0, None: 0}
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        outcomes = pool.map(lambda mutant: survives(mutant[2], path, tests, compiled), made)
        for (line, what, _), outcome in zip(made, outcomes):
            counts[outcome] += 1
            if outcome:
                print(f"{path.relative_to(ROOT)}:{line}: survived: {what}", flush=True)
    print(f"{path.relative_to(ROOT)}: {len(made) - counts[None]} mutants, {counts[False]} killed, "
          f"{counts[True]} survived ({counts[None]} more did not compile)")
    return 1 if counts[True] else 0


if __name__ == "__main__":
    sys.exit(main())
