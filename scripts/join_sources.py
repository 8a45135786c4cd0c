"""join_sources.py BUILD FILE…: what lint.sh looks at. Most of what a check walks through is the
toolkit's headers, so sources that share no name of their own are joined and walked through them
once; what is built for other systems alone is left out. Writes BUILD/joined/N.cpp with a
compile_commands.json, and prints their paths."""

import json
import re
import shlex
import sys
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
LARGEST = 40  # files in a batch, so that every core has one
OWN = re.compile(r"^namespace \{$(.*?)^\} // namespace$", re.S | re.M)
# What stands before a bracket, an initialiser or the end, at the left edge; types by their word.
NAME = re.compile(r"^(?:(?:struct|class|enum class|enum) (\w+)|(?!return\b)[\w:].*?(\w+)(?: =|[({;]))", re.M)


def own_names(path):
    """What a file declares for itself alone, with the namespace around it."""
    text = path.read_text()
    names = {name for part in OWN.findall(text) for pair in NAME.findall(part) for name in pair if name}
    names |= {"main"} if "int main(" in text else set()
    return {(path.parent.name, name) for name in names}


def batches(paths):
    """Each file into the first batch that has none of its names."""
    found = []
    for path in paths:
        names = own_names(path)
        for batch in found:
            if len(batch["paths"]) < LARGEST and not batch["names"] & names:
                break
        else:
            batch = {"names": set(), "paths": []}
            found.append(batch)
        batch["names"] |= names
        batch["paths"].append(path)
    return [batch["paths"] for batch in found]


def main():
    build = Path(sys.argv[1]).resolve()
    entries = json.loads((build / "compile_commands.json").read_text())
    built = {e["file"]: e["command"] for e in entries}
    paths = [path for path in map(Path.resolve, map(Path, sys.argv[2:])) if str(path) in built]
    words = shlex.split(built[str(ROOT / "src/ui/screen.cpp")])  # its headers are found by all
    folder = build / "joined"
    folder.mkdir(exist_ok=True)
    for old in folder.glob("*.cpp"):
        old.unlink()
    written = []
    for number, batch in enumerate(batches(paths)):
        joined = folder / f"{number}.cpp"
        joined.write_text("".join(f'#include "{path}"\n' for path in batch))
        words[words.index("-c") + 1] = str(joined)
        written.append({"file": str(joined), "directory": str(build), "command": shlex.join(words)})
    (folder / "compile_commands.json").write_text(json.dumps(written, indent=1))
    print("\n".join(entry["file"] for entry in written))


if __name__ == "__main__":
    main()
