#!/usr/bin/env python3
"""Runs clang-tidy over the sources of a build folder. A source that had no findings before is left out if its text, its
headers and the list of checks are still the same."""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import shlex
import subprocess
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent
CLEAN = pathlib.Path(os.environ.get("XDG_CACHE_HOME", pathlib.Path.home() / ".cache")) / "korvane" / "tidy"
# So many sources are read as one at most.
TOGETHER = 16
JOINED_SETTINGS = """InheritParentConfig: true
Checks: '-bugprone-suspicious-include'
HeaderFilterRegex: '/src/.*'
"""


def headers_of_objects(build):
    """The files of this tree from which each object file was compiled."""
    listing = subprocess.run(["ninja", "-C", build, "-t", "deps"], check=True, capture_output=True, text=True).stdout
    files, current = {}, None
    for line in listing.splitlines():
        if line.startswith("    "):
            path = (build / line.strip()).resolve()
            if ROOT in path.parents and path.exists():
                files[current].append(path)
        elif line:
            current = line.split(":")[0]
            files[current] = []
    return files


def hash_of(path, known={}):
    if path not in known:
        known[path] = hashlib.sha256(path.read_bytes()).hexdigest()
    return known[path]


def key_of(source, files):
    parts = [str(source.relative_to(ROOT)), hash_of(ROOT / ".clang-tidy")]
    parts += sorted(f"{path.relative_to(ROOT)} {hash_of(path)}" for path in files)
    return hashlib.sha256("\n".join(parts).encode()).hexdigest()


def object_of(entry):
    """The object file that the command makes."""
    words = shlex.split(entry["command"])
    return words[words.index("-o") + 1]


def tidy(build, *arguments):
    """The findings of clang-tidy. The text is empty when there are none."""
    run = subprocess.run(["clang-tidy", "--quiet", "--extra-arg=-Wno-unknown-warning-option", *arguments], cwd=build,
                         capture_output=True, text=True)
    return "" if run.returncode == 0 else run.stdout + run.stderr


def check_together(build, folder, sources, command):
    """Reads the sources as one, because most of the time goes to the headers that they have in common."""
    flags, words = [], iter(shlex.split(command))
    for word in words:
        if word in ("-c", "-o"):
            next(words)
        else:
            flags.append(word)
    compiler = next(place for place, word in enumerate(flags) if pathlib.Path(word).name.startswith("clang"))
    joined = folder / (hashlib.sha256(str(sources).encode()).hexdigest() + ".cpp")
    joined.write_text("".join(f'#include "{source}"\n' for source in sources))
    return tidy(build, joined, "--", *flags[compiler + 1:], "-w")


def check(build, folder, sources, command):
    """The findings by source. Sources that can't be read as one, or aren't clean together, are read by halves."""
    if len(sources) == 1:
        return {sources[0]: tidy(build, "-p", build, sources[0])}
    if not check_together(build, folder, sources, command):
        return dict.fromkeys(sources, "")
    middle = len(sources) // 2
    return check(build, folder, sources[:middle], command) | check(build, folder, sources[middle:], command)


def groups_of(wanted):
    """The sources of each folder, at most `TOGETHER` in a group."""
    folders = {}
    for source in sorted(wanted):
        folders.setdefault(source.parent, []).append(source)
    return [sources[first:first + TOGETHER] for sources in folders.values()
            for first in range(0, len(sources), TOGETHER)]


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    CLEAN.mkdir(parents=True, exist_ok=True)
    objects = headers_of_objects(build)
    wanted, commands = {}, {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        source = pathlib.Path(entry["file"])
        # Some sources are compiled once more for a test.
        if ROOT / "src" in source.parents and build not in source.parents and object_of(entry).startswith("src/"):
            key = key_of(source, objects.get(object_of(entry), [source]))
            if not (CLEAN / key).exists():
                wanted[source], commands[source] = key, entry["command"]
    faults = 0
    with tempfile.TemporaryDirectory(dir=build) as folder, \
            concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        folder = pathlib.Path(folder)
        (folder / ".clang-tidy").write_text(JOINED_SETTINGS)
        groups = groups_of(wanted)
        for said in pool.map(lambda group: check(build, folder, group, commands[group[0]]), groups):
            for source, findings in said.items():
                if findings:
                    faults += 1
                    print(findings)
                else:
                    (CLEAN / wanted[source]).touch()
    print(f"clang-tidy: {len(wanted)} files read, {faults} with faults")
    return 1 if faults else 0


sys.exit(main())
