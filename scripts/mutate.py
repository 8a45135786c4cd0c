"""The engine of mutate.sh: changes one operator or constant of a model's file at a time, builds
the file with its tests against that, and runs them. A mutant that no test notices survives."""

import concurrent.futures
import json
import os
import re
import resource
import shlex
import subprocess
import sys
import tempfile
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "release"
TOOLKIT = BUILD / "mutate" / "toolkit.h"  # compiled once: most of what a mutant takes
EQUIVALENT = ROOT / "tests" / "equivalent_mutants.md"
CHECKED = ["-DQT_FORCE_ASSERTS", "-D_GLIBCXX_ASSERTIONS"]  # else an index past the end may go unseen
SECONDS = 20  # of the processor; beyond this a test hangs, which is noticing too

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


def compile_to(entry, source, target, *options):
    """Compiles as the build does it, but for the optimising; False when it does not build."""
    directory, words = entry
    words = [*words[:words.index("-o")], *options, *CHECKED, "-O0", "-w", "-o", str(target), "-c", str(source)]
    run = subprocess.run(words, cwd=directory, capture_output=True,
                         env={**os.environ, "CCACHE_DISABLE": "1"})
    return run.returncode == 0


def compile_toolkit(entry):
    TOOLKIT.parent.mkdir(exist_ok=True)
    TOOLKIT.write_text("#include <QtCore>\n")
    compile_to(entry, TOOLKIT, f"{TOOLKIT}.gch", "-x", "c++-header")


def tests_of(path):
    folder = ROOT / "tests" / path.parent.name
    listed = re.findall(r"model_test\((\w+\.cpp)\)", (folder / "CMakeLists.txt").read_text())
    found = [folder / name for name in listed if name.startswith(path.stem)]
    # Part of a model that is tested under another name: every model test of the folder.
    return found or [folder / name for name in listed]


def limit_time():
    resource.setrlimit(resource.RLIMIT_CPU, (SECONDS, SECONDS))


def survives(text, path, tests, compiled):
    """True when every test passes; None when the mutant does not build."""
    with tempfile.TemporaryDirectory(prefix="mutant-") as name:
        folder = Path(name)
        place = folder / path.relative_to(ROOT / "src")
        place.parent.mkdir(parents=True)
        place.write_text(text)
        header = path.suffix == ".h"
        source = path.with_suffix(".cpp")
        first = ["-iquote", str(folder)]  # is looked into before the build's directories
        objects = []
        if source.exists():
            objects = [str(folder / "mutant.o")]
            if not compile_to(compiled[str(source)], source if header else place, objects[0],
                              "-include", str(TOOLKIT), *first):
                return None
        for test in tests:
            program = folder / test.stem
            unit = BUILD / "tests" / test.parent.name / "CMakeFiles" / f"{test.stem}.dir" / f"{test.name}.o"
            if header:
                unit = folder / f"{test.stem}.test.o"
                if not compile_to(compiled[str(test)], test, unit, *first):
                    return None
            link = ["c++", "-o", str(program), str(unit), *objects, str(BUILD / "src/libpizarrin_core.a"),
                    "-lQt6Test", "-lQt6Core"]
            if subprocess.run(link, capture_output=True).returncode != 0:
                return None
            run = subprocess.run([str(program)], capture_output=True, cwd=folder, preexec_fn=limit_time,
                                 env={**os.environ, "LC_ALL": "C.UTF-8"})
            if run.returncode != 0:
                return False
        return True


def equivalents():
    """(file, line, change) of the rows of the list."""
    if not EQUIVALENT.exists():
        return set()
    rows = re.findall(r"^\| `(.+?)` \| `(.+?)` \| `(.+?)` \|", EQUIVALENT.read_text(), re.M)
    return set(rows)


def main():
    path = Path(sys.argv[1]).resolve()
    name = str(path.relative_to(ROOT))
    compiled = commands()
    tests = tests_of(path)
    if not tests:
        sys.exit(f"no model tests for {path.name}")
    compile_toolkit(compiled[str(ROOT / "src/core/numbers.cpp")])
    text = path.read_text()
    if survives(text, path, tests, compiled) is not True:
        sys.exit(f"the tests of {path.name} do not pass unchanged")
    made = list(mutants(text))
    lines = text.split("\n")
    proved = equivalents()
    counts = {True: 0, False: 0, None: 0}
    equivalent = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        outcomes = pool.map(lambda mutant: survives(mutant[2], path, tests, compiled), made)
        for (line, what, _), outcome in zip(made, outcomes):
            if outcome and (name, lines[line - 1].strip(), what) in proved:
                equivalent += 1
                continue
            counts[outcome] += 1
            if outcome:
                print(f"{name}:{line}: survived: {what}", flush=True)
    print(f"{name}: {len(made) - counts[None]} mutants, {counts[False]} killed, {equivalent} equivalent, "
          f"{counts[True]} survived ({counts[None]} more did not compile)", flush=True)
    return 1 if counts[True] else 0


if __name__ == "__main__":
    sys.exit(main())
