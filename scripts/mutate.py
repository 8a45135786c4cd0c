"""The engine of mutate.sh: changes one operator or constant of a model's file at a time, and runs
its tests against that. A mutant that no test notices survives.

Most mutants are tried without compiling each: the file is compiled once with a switch at every
place (mutant.h), and run once a mutant. Those whose place takes no switch (constants that the
compiler computes with, && and ||, assignments), and those that seem to survive, are compiled one
by one."""

import concurrent.futures
import json
import os
import re
import resource
import shlex
import subprocess
import sys
import tempfile
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
BUILD = ROOT / "build" / "release"
TOOLKIT = {".cpp": BUILD / "mutate" / "model.h", ".h": BUILD / "mutate" / "test.h"}  # compiled once
SWITCH = ROOT / "scripts" / "mutant.h"
EQUIVALENT = ROOT / "tests" / "equivalent_mutants.md"
CHECKED = ["-DQT_FORCE_ASSERTS", "-D_GLIBCXX_ASSERTIONS"]  # else an index past the end may go unseen
JOBS = int(os.environ.get("JOBS", os.cpu_count() or 1))
PATIENCE = 10  # times what a test takes of the processor; beyond that it hangs, which is noticing too

SWAPS = {
    "+": ["-"], "-": ["+"], "*": ["/"], "/": ["*"], "%": ["*"],
    "<": ["<=", ">="], "<=": ["<", ">"], ">": [">=", "<="], ">=": [">", "<"],
    "==": ["!="], "!=": ["=="], "&&": ["||"], "||": ["&&"],
    "+=": ["-="], "-=": ["+="], "*=": ["/="], "++": ["--"], "--": ["++"],
}
SWITCHED = {"+", "-", "*", "/", "%", "<", "<=", ">", ">=", "==", "!="}
ELSE_NO_OPERATION = {"<", ">", "*"}  # unless between blanks: brackets of templates, and pointers
# Literals, comments, directives and what Windows alone compiles are passed over whole; a number may
# have digit marks.
TOKEN = re.compile(
    r'(?P<skip>^\s*\#ifdef Q_OS_WIN.*?^\#(?:else|endif)|//[^\n]*|/\*.*?\*/|^\s*\#[^\n]*|u?"(?:[^"\\\n]|\\.)*"(?:_s)?|u?\'(?:[^\'\\\n]|\\.)+\''
    r"|->|::|<<=?|>>=?|<=>|template\s*<[^;{]*?>|\w+_cast\s*<[^>]*>)"
    r"|(?P<number>(?<![\w.])\d[\d']*(?:\.\d+)?f?(?![\w.]))"
    r"|(?P<word>[A-Za-z_]\w*)"
    r"|(?P<operator>\+\+|--|\+=|-=|\*=|<=|>=|==|!=|&&|\|\||[-+*/%<>])",
    re.S | re.M)


def stands_between(match, text):
    """Whether an operator stands between its operands, which the format puts blanks around."""
    return text[match.start() - 1:match.start()] in (" ", "\n") and text[match.end():match.end() + 1] in (" ", "\n")


class Place:
    """A token that can be changed, numbered by its first mutant."""

    def __init__(self, match, text, changes, number):
        self.found, self.start, self.end = match.group(), match.start(), match.end()
        self.changes, self.number = changes, number
        self.line = text.count("\n", 0, self.start) + 1
        self.switchable = match.lastgroup != "operator" or (self.found in SWITCHED and stands_between(match, text))

    def switch(self):
        if self.found in SWITCHED:
            return f"{self.found} mutant::Op<{self.number}>() {self.found}"
        return f"(mutant::on({self.number}) ? {self.changes[0]} : {self.found})"


def places(text):
    """Every place that can be changed."""
    number = 1
    for match in TOKEN.finditer(text):
        found = match.group()
        if match.lastgroup == "number":
            if "." in found or found.endswith("f"):
                changes = [f"({found} + 0.25{'f' if found.endswith('f') else ''})"]
            else:
                changes = [str(int(found.replace("'", "")) + 1)]
        elif match.lastgroup == "operator":
            if found in ELSE_NO_OPERATION and not stands_between(match, text):
                continue
            changes = SWAPS.get(found, [])
        elif found in ("true", "false"):
            changes = ["false" if found == "true" else "true"]
        else:
            continue
        if changes:
            yield Place(match, text, changes, number)
            number += len(changes)


def switched(text, chosen, name):
    """The text with a switch at each of these places, whose faults are told by its number."""
    parts, at = [], 0
    for place in chosen:
        line = text.count("\n", 0, place.end) + 1
        parts += [text[at:place.start], f'\n#line {place.number} "switch"\n{place.switch()}\n#line {line} "{name}"\n']
        at = place.end
    return "".join(parts) + text[at:]


def commands():
    entries = json.loads((BUILD / "compile_commands.json").read_text())
    return {entry["file"]: (entry["directory"], shlex.split(entry["command"])) for entry in entries}


def compile_to(entry, source, target, *options):
    """Compiles as the build does it, but for the optimising. What the compiler complains of, or
    nothing."""
    directory, words = entry
    words = [words[0], *options, *words[1:words.index("-o")], *CHECKED, "-O0", "-w", "-o", str(target),
             "-c", str(source)]
    run = subprocess.run(words, cwd=directory, capture_output=True, text=True,
                         env={**os.environ, "CCACHE_DISABLE": "1", "LC_ALL": "C"})
    return run.stderr or "fault" if run.returncode != 0 else ""


def compile_toolkit(entry, toolkit, modules):
    """The toolkit's headers, which are most of what a mutant takes to compile."""
    toolkit.parent.mkdir(exist_ok=True)
    toolkit.write_text("".join(f"#include <{module}>\n" for module in modules))
    compile_to(entry, toolkit, f"{toolkit}.gch", "-x", "c++-header")


def model_sources(folder, compiled):
    return [Path(name) for name, (_, words) in compiled.items()
            if Path(name).parent == folder and any("pizarrin_core.dir" in word for word in words)]


def models(path):
    """The file, or of a folder every source of a model with its header."""
    if path.is_file():
        return [path]
    both = [file for source in sorted(model_sources(path, commands())) for file in (source, source.with_suffix(".h"))]
    return [file for file in both if file.exists()]


def tests_of(path):
    folder = ROOT / "tests" / path.parent.name
    listed = re.findall(r"model_test\((\w+\.cpp)\)", (folder / "CMakeLists.txt").read_text())
    # A header, or part of a model that is tested under another name: every model test of the folder.
    found = [name for name in listed if path.suffix == ".cpp" and name.startswith(path.stem)]
    return [folder / name for name in found or listed]


class Trial:
    """Tries one file."""

    def __init__(self, path, compiled):
        self.path, self.compiled = path, compiled
        self.tests = tests_of(path)
        self.seconds = {}  # of the processor, that each test may take
        if not self.tests:
            sys.exit(f"no model tests for {path.name}")

    def build(self, text, folder, *options):
        """The test programs with this text in the place of the file, or what is wrong with it."""
        place = folder / self.path.relative_to(ROOT / "src")
        place.parent.mkdir(parents=True, exist_ok=True)
        place.write_text(text)
        header = self.path.suffix == ".h"
        first = [*options, "-iquote", str(folder)]  # is looked into before the build's directories
        objects, faults = [], ""
        # What a header defines inline, any model of its folder may have.
        for source in model_sources(self.path.parent, self.compiled) if header else [self.path]:
            objects.append(str(folder / f"{source.stem}.o"))
            faults += compile_to(self.compiled[str(source)], source if header else place, objects[-1],
                                 "-include", str(TOOLKIT[".cpp"]), *first)
        if header:
            for test in self.tests:
                faults += compile_to(self.compiled[str(test)], test, folder / f"{test.stem}.o",
                                     "-include", str(TOOLKIT[".h"]), *first)
        return faults or self.link(folder, objects, header)

    def link(self, folder, objects, header):
        for test in self.tests:
            built = BUILD / "tests" / test.parent.name / "CMakeFiles" / f"{test.stem}.dir"
            units = [str(unit) for unit in built.rglob("*.o") if not header or unit.name != f"{test.name}.o"]
            if header:
                units.append(str(folder / f"{test.stem}.o"))
            link = ["c++", "-o", str(folder / test.stem), *units, *objects, str(BUILD / "src/libpizarrin_core.a"),
                    "-lQt6Test", "-lQt6Core"]
            run = subprocess.run(link, capture_output=True, text=True)
            if run.returncode != 0:
                return run.stderr
        return ""

    def passes(self, folder, number=0):
        """Whether every test passes with this mutant switched on, the quickest first."""
        def limit(test):
            seconds = self.seconds.get(test, 60)
            return lambda: resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))

        for test in sorted(self.tests, key=lambda test: self.seconds.get(test, 0)):
            before = os.times()
            run = subprocess.run([str(folder / test.stem)], capture_output=True, cwd=folder, preexec_fn=limit(test),
                                 env={**os.environ, "LC_ALL": "C.UTF-8", "MUTANT": str(number)})
            if run.returncode != 0:
                return False
            if test not in self.seconds:
                after = os.times()
                took = after.children_user - before.children_user
                self.seconds[test] = 2 + int(PATIENCE * took)
        return True

    def survives(self, text):
        """True when every test passes; None when the mutant does not build."""
        with tempfile.TemporaryDirectory(prefix="mutant-") as name:
            if self.build(text, Path(name)):
                return None
            return self.passes(Path(name))

    def with_switches(self, text, found, folder):
        """Builds with as many switches as the text takes, and says which places have one."""
        chosen = [place for place in found if place.switchable]
        while chosen:
            faults = self.build(switched(text, chosen, self.path), folder, "-include", str(SWITCH))
            if not faults:
                return chosen if self.passes(folder) else []
            numbers = set(map(int, re.findall(r"^switch:(\d+):\d+: error", faults, re.M)))
            lines = set(map(int, re.findall(rf"^{re.escape(str(self.path))}:(\d+):\d+: error", faults, re.M)))
            kept = [place for place in chosen if place.number not in numbers]
            if len(kept) == len(chosen):  # the fault is told of what stands beside it
                kept = [place for place in chosen if place.line not in lines]
            if len(kept) == len(chosen):
                numbers = set(map(int, re.findall(r"^switch:(\d+):\d+:", faults, re.M)))
                kept = [place for place in chosen if place.number not in numbers]
            if len(kept) == len(chosen):
                return []
            chosen = kept
        return []

    def killed_by_switch(self, text, found):
        """The numbers of the mutants that a test notices when they are switched on."""
        with tempfile.TemporaryDirectory(prefix="mutant-") as name:
            folder = Path(name)
            chosen = self.with_switches(text, found, folder)
            numbers = [place.number + i for place in chosen for i in range(len(place.changes))]
            with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
                passed = pool.map(lambda number: self.passes(folder, number), numbers)
                return {number for number, survived in zip(numbers, passed) if not survived}


def equivalents():
    """(file, line, change) of the rows of the list."""
    if not EQUIVALENT.exists():
        return set()
    rows = re.findall(r"^\| `(.+?)` \| `(.+?)` \| `(.+?)` \|", EQUIVALENT.read_text(), re.M)
    return {tuple(cell.replace(r"\|", "|") for cell in row) for row in rows}  # as tables need it


def try_all(path, compiled):
    """Prints the survivors of a file and returns how many there are."""
    name = str(path.relative_to(ROOT))
    text = path.read_text()
    found = list(places(text))
    if not found:
        return 0
    trial = Trial(path, compiled)
    if trial.survives(text) is not True:
        sys.exit(f"the tests of {path.name} do not pass unchanged")
    killed = trial.killed_by_switch(text, found)
    lines = text.split("\n")
    proved = equivalents()
    left = [(place, i) for place in found for i in range(len(place.changes)) if place.number + i not in killed]
    counts = {True: 0, False: len(killed), None: 0}
    equivalent = 0

    def changed(place, i):
        return text[:place.start] + place.changes[i] + text[place.end:]

    with concurrent.futures.ThreadPoolExecutor(JOBS) as pool:
        outcomes = pool.map(lambda one: trial.survives(changed(*one)), left)
        for (place, i), outcome in zip(left, outcomes):
            what = f"{place.found} → {place.changes[i]}"
            if outcome and (name, lines[place.line - 1].strip(), what) in proved:
                equivalent += 1
                continue
            counts[outcome] += 1
            if outcome:
                print(f"{name}:{place.line}: survived: {what}", flush=True)
    print(f"{name}: {sum(counts.values()) + equivalent - counts[None]} mutants, {counts[False]} killed, "
          f"{equivalent} equivalent, {counts[True]} survived ({counts[None]} more did not compile)", flush=True)
    return counts[True]


def main():
    compiled = commands()
    compile_toolkit(compiled[str(ROOT / "src/core/numbers.cpp")], TOOLKIT[".cpp"], ["QtCore"])
    compile_toolkit(compiled[str(ROOT / "tests/core/numbers_test.cpp")], TOOLKIT[".h"], ["QtCore", "QtTest"])
    files = [file for name in sys.argv[1:] for file in models(Path(name).resolve())]
    survived = sum([try_all(file, compiled) for file in files])
    return 1 if survived else 0


if __name__ == "__main__":
    sys.exit(main())
