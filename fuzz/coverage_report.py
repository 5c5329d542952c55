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


def lines_by_folder(data, source, functions):
    """Lines reached, all lines, and those of functions that are expected not to be reached."""
    totals = collections.defaultdict(lambda: [0, 0, 0])
    for name, lines in functions.expected_lines().items():
        for folder in {folder_of(name), name.split("/")[0]}:
            totals[folder][2] += len(lines)
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


def short_name(shown):
    """Without parameters: "DocHtml::close"."""
    for noise in ("quillmark::", "(anonymous namespace)::", "(anonymous class)::"):
        shown = shown.replace(noise, "")
    return shown.split("(")[0].split(" ")[-1]


def report_lines(data, source, functions):
    missed = []
    print(f"{'folder':24}{'lines':>8}{'reached':>9}{'of those that can be':>22}")
    for folder, totals in sorted(lines_by_folder(data, source, functions).items()):
        covered, count, expected = totals
        if count == 0:
            continue
        share = 100 * covered / count
        possible = 100 * covered / max(count - expected, 1)
        print(f"{folder:24}{count:8}{share:8.1f}%{min(possible, 100):21.1f}%")
        if folder in FOLDERS_WITH_GOAL and possible < GOAL:
            missed.append(f"{folder}: {possible:.1f} % of its lines, and {GOAL:.0f} % are the goal")
    return missed


def is_left_out(file):
    return any(file == path or file.startswith(path + "/") for path in LEFT_OUT)


def expected_names(path):
    """The lines of not_reached.txt: a file, a function or "*", and the reason."""
    entries = set()
    for line in path.read_text().splitlines():
        if line and not line.startswith("#"):
            file, name, _reason = line.split(maxsplit=2)
            entries.add((file, name))
    return entries


class Functions:
    """The functions of the sources, by place: file, line and column."""

    def __init__(self, data, source, expected):
        self.run = {}
        self.lines = {}
        symbols = {}
        for function in data["functions"]:
            file = os.path.relpath(function["filenames"][0], source)
            if file.startswith(".."):
                continue
            first, column, last, *_ = function["regions"][0]
            place = (file, first, column)
            # Of a template, one instance is enough.
            self.run[place] = self.run.get(place, False) or function["count"] > 0
            self.lines[place] = range(first, last + 1)
            symbols.setdefault(place, function["name"].rsplit(":", 1)[-1])
        names = demangled(sorted(set(symbols.values())))
        self.names = {place: short_name(names[symbol]) for place, symbol in symbols.items()}
        self.expected = expected

    def not_reached(self):
        return sorted(place for place, run in self.run.items() if not run)

    def expected_lines(self):
        """By file: the lines of functions that are expected not to be reached."""
        lines = collections.defaultdict(set)
        for place in filter(self.is_expected, self.not_reached()):
            lines[place[0]].update(self.lines[place])
        return lines

    def is_expected(self, place):
        file = place[0]
        return bool({(file, "*"), (file, self.names[place])} & self.expected) or is_left_out(file)


def report_functions(functions):
    missing = functions.not_reached()
    unexpected = [place for place in missing if not functions.is_expected(place)]
    total = len(functions.run)
    print(f"\n{total - len(missing)} of {total} functions are reached; of the others "
          f"{len(missing) - len(unexpected)} are expected:")
    for place in missing:
        if not is_left_out(place[0]):
            print(f"  {place[0]}:{place[1]}: {functions.names[place]}")
    return [f"{place[0]}:{place[1]}: {functions.names[place]} is not reached"
            for place in unexpected]


def main():
    arguments = options()
    arguments.work.mkdir(parents=True, exist_ok=True)
    profiles = [play(program, arguments.corpora, arguments.work)
                for program in arguments.programs]
    data = export(arguments, profiles)
    functions = Functions(data, arguments.source, expected_names(arguments.expected))
    missed = report_lines(data, arguments.source, functions)
    missed += report_functions(functions)
    if missed:
        sys.exit("\nNot as it should be:\n" + "\n".join(missed))


if __name__ == "__main__":
    main()
