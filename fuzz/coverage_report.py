#!/usr/bin/env python3
"""Plays the corpora of the fuzz targets in a build with coverage and reports what of the sources
they reach: lines and functions of each module, and every function that is not reached.

The exit status is 1 when less than the goal of lines is reached in a folder that has one, or when a
function is not reached that not_reached.txt does not name.
"""

import argparse
import collections
import json
import os
import subprocess
import sys
from pathlib import Path

# Of the lines of these folders, so many per cent are reached.
GOAL = 90.0
FOLDERS_WITH_GOAL = ["driver", "page", "contents", "replay/input"]
# What no stream and no file leads to: the programs' options and the settings page.
LEFT_OUT = ["command_line", "settings_ui", "toc", "replay/tool", "component/tool",
            "component/client/c_client.cpp"]


def options():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--llvm-cov", required=True)
    parser.add_argument("--llvm-profdata", required=True)
    parser.add_argument("--source", type=Path, required=True)
    parser.add_argument("--corpora", type=Path, required=True)
    parser.add_argument("--work", type=Path, required=True)
    parser.add_argument("--expected", type=Path, required=True)
    parser.add_argument("programs", type=Path, nargs="+")
    return parser.parse_args()


def play(program, corpora, work):
    """Runs a target on its corpus alone; returns the file of its counts."""
    profile = work / f"{program.name}.profraw"
    inputs = sorted(str(path) for path in (corpora / program.name).iterdir())
    subprocess.run([program, *inputs], check=True, cwd=work, stdout=subprocess.DEVNULL,
                   stderr=subprocess.DEVNULL, env={**os.environ, "LLVM_PROFILE_FILE": str(profile)})
    return profile


def export(arguments, profiles):
    merged = arguments.work / "all.profdata"
    subprocess.run([arguments.llvm_profdata, "merge", "-sparse", *profiles, "-o", merged],
                   check=True)
    first, *others = arguments.programs
    command = [arguments.llvm_cov, "export", first, f"-instr-profile={merged}"]
    for program in others:
        command += ["-object", program]
    result = subprocess.run([*command, str(arguments.source)], check=True, capture_output=True)
    return json.loads(result.stdout)["data"][0]


def folder_of(file):
    parts = file.split("/")
    deep = parts[0] in ("replay", "component", "driver", "navigator", "platform")
    return "/".join(parts[:2]) if deep and len(parts) > 2 else parts[0]


def lines_by_folder(data, source):
    totals = collections.defaultdict(lambda: [0, 0])
    for file in data["files"]:
        name = os.path.relpath(file["filename"], source)
        lines = file["summary"]["lines"]
        for folder in {folder_of(name), name.split("/")[0]}:
            totals[folder][0] += lines["covered"]
            totals[folder][1] += lines["count"]
    return totals


def demangled(names):
    result = subprocess.run(["c++filt"], input="\n".join(names), text=True, check=True,
                            capture_output=True)
    return dict(zip(names, result.stdout.splitlines()))


def functions(data, source):
    """By place: whether the function, or one instance of the template, was run, and its name."""
    found = {}
    for function in data["functions"]:
        name = os.path.relpath(function["filenames"][0], source)
        if name.startswith(".."):
            continue
        line, column = function["regions"][0][:2]
        run, shown = found.get((name, line, column), (False, ""))
        symbol = function["name"].rsplit(":", 1)[-1]
        found[name, line, column] = (run or function["count"] > 0, shown or symbol)
    return found


def short_name(shown):
    """Without parameters: "DocHtml::close"."""
    for noise in ("quillmark::", "(anonymous namespace)::", "(anonymous class)::"):
        shown = shown.replace(noise, "")
    return shown.split("(")[0].split(" ")[-1]


def report_lines(data, source):
    totals = lines_by_folder(data, source)
    missed = []
    print(f"{'folder':26} {'lines':>7} {'reached':>8}")
    for folder, (covered, count) in sorted(totals.items()):
        share = 100 * covered / count if count else 100
        print(f"{folder:26} {count:7} {share:7.1f}%")
        if folder in FOLDERS_WITH_GOAL and share < GOAL:
            missed.append(f"{folder}: {share:.1f} % of its lines, and {GOAL:.0f} % are the goal")
    return missed


def is_left_out(file):
    return any(file == path or file.startswith(path + "/") for path in LEFT_OUT)


def expected_names(path):
    """The lines of not_reached.txt: a file, a function, and the reason."""
    entries = set()
    for line in path.read_text().splitlines() if path.exists() else []:
        if line and not line.startswith("#"):
            file, name, _reason = line.split(maxsplit=2)
            entries.add((file, name))
    return entries


def report_functions(data, source, expected):
    found = functions(data, source)
    names = demangled([symbol for _, symbol in found.values()])
    counted = {key: value for key, value in found.items() if not is_left_out(key[0])}
    reached = sum(run for run, _ in counted.values())
    print(f"\n{reached} of {len(counted)} functions that a stream or a file may lead to")
    missed = []
    for (file, line, _column), (run, symbol) in sorted(counted.items()):
        name = short_name(names[symbol])
        if run:
            continue
        known = (file, name) in expected
        print(f"  {file}:{line}: {name}{' (expected)' if known else ''}")
        if not known:
            missed.append(f"{file}:{line}: {name} is not reached")
    return missed


def main():
    arguments = options()
    arguments.work.mkdir(parents=True, exist_ok=True)
    profiles = [play(program, arguments.corpora, arguments.work)
                for program in arguments.programs]
    data = export(arguments, profiles)
    missed = report_lines(data, arguments.source)
    missed += report_functions(data, arguments.source, expected_names(arguments.expected))
    if missed:
        sys.exit("\nNot as it should be:\n" + "\n".join(missed))


if __name__ == "__main__":
    main()
