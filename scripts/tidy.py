#!/usr/bin/env python3
"""Runs clang-tidy over the sources of a build folder. A source that had no findings before is left out if its text, its
headers and the list of checks are still the same."""
import concurrent.futures
import hashlib
import json
import os
import pathlib
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
CLEAN = pathlib.Path(os.environ.get("XDG_CACHE_HOME", pathlib.Path.home() / ".cache")) / "korvane" / "tidy"


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


def check(build, source):
    """The findings of clang-tidy about the file. The text is empty when there are none."""
    run = subprocess.run(
        ["clang-tidy", "-p", build, "--quiet", "--extra-arg=-Wno-unknown-warning-option", source],
        capture_output=True, text=True)
    return "" if run.returncode == 0 else run.stdout + run.stderr


def main():
    build = pathlib.Path(sys.argv[1]).resolve()
    CLEAN.mkdir(parents=True, exist_ok=True)
    objects = headers_of_objects(build)
    wanted = {}
    for entry in json.loads((build / "compile_commands.json").read_text()):
        source = pathlib.Path(entry["file"])
        if ROOT / "src" in source.parents and build not in source.parents:
            key = key_of(source, objects.get(entry["output"], [source]))
            if not (CLEAN / key).exists():
                wanted[source] = key
    faults = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count()) as pool:
        for source, said in zip(wanted, pool.map(lambda source: check(build, source), wanted)):
            if said:
                faults += 1
                print(said)
            else:
                (CLEAN / wanted[source]).touch()
    print(f"clang-tidy: {len(wanted)} files read, {faults} with faults")
    return 1 if faults else 0


sys.exit(main())
