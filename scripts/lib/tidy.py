"""Runs clang-tidy over sources, one a core: tidy.py BUILD, with paths on standard input, each ended by a zero byte."""

import concurrent.futures
import json
import os
import pathlib
import re
import subprocess
import sys
import tempfile


def tidy(build, source):
    done = subprocess.run(["clang-tidy", "--quiet", "--extra-arg=-Wno-unknown-warning-option", "-p", build, source],
                          capture_output=True, text=True)
    return source, done.returncode, done.stdout + (done.stderr if done.returncode else "")


def main(build):
    entries = json.loads(pathlib.Path(build, "compile_commands.json").read_text())
    compiled = {os.path.relpath(entry["file"]) for entry in entries}
    asked = [path for path in sys.stdin.read().split("\0") if path]
    sources = [path for path in asked if path in compiled]
    if not sources:
        print(f"error: {build} compiles none of {len(asked)} sources", file=sys.stderr)
        return 1
    failed = 0
    with tempfile.TemporaryDirectory() as commands, concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 2) as pool:
        # The compiler's precompiled headers mean nothing to clang.
        for entry in entries:
            entry["command"] = re.sub(r"-Winvalid-pch|-fpch-preprocess|-include \S+/cmake_pch\.hxx", "", entry["command"])
        pathlib.Path(commands, "compile_commands.json").write_text(json.dumps(entries))
        for source, status, output in pool.map(lambda path: tidy(commands, path), sources):
            if status != 0:
                failed += 1
                print(f"{source}:\n{output}")
    print(f"clang-tidy: {len(sources)} sources, {failed} with findings")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main(sys.argv[1]))
