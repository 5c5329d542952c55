#!/usr/bin/env python3
"""What a call costs over an empty foreign call, all measured in one run.

Usage: call_overhead.py [--rounds N]    (with the package on PYTHONPATH)

The empty foreign call is `start`, which does nothing in the driver, called through ctypes alone.
The second column compares with the same operation called through ctypes alone, its arguments laid
out beforehand: what is left is the package. Each figure is the best of many rounds that take turns.
"""

import argparse
import tempfile
import time
from typing import Callable

from dochtml import Document, component

_CALLS = 1000
_START, _TEXT, _ATTRIBUTE, _XREF = 17, 3, 21, 38

Body = Callable[[], object]


def seconds(body: Body) -> float:
    begin = time.perf_counter()
    for _ in range(_CALLS):
        body()
    return (time.perf_counter() - begin) / _CALLS


def bodies(report: Document) -> dict[str, tuple[Body, Body]]:
    """Each call through the package and through ctypes alone."""
    functions, pointer = component().functions, report._pointer
    start, text, attribute, xref = (
        functions[number] for number in (_START, _TEXT, _ATTRIBUTE, _XREF)
    )
    # The texts of the raw calls stay in the room of this document; the other has a room of its own.
    own = Document(report.file + ".own.htm").tag("here")
    take = report.tag("here")._arguments()
    words, target = take.text("text", "a word or two"), take.text("tagName", "here")
    return {
        "start()": (lambda: own.start(), lambda: start(pointer)),
        "setFontAttribute(9, True)": (
            lambda: own.setFontAttribute(9, True),
            lambda: attribute(pointer, 9, -1),
        ),
        'insertText("a word or two")': (
            lambda: own.insertText("a word or two"),
            lambda: text(pointer, words),
        ),
        'insertXref("a word or two", "here")': (
            lambda: own.insertXref("a word or two", "here"),
            lambda: xref(pointer, words, target),
        ),
    }


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--rounds", type=int, default=200)
    rounds = parser.parse_args().rounds
    best: dict[str, tuple[float, float]] = {}
    with tempfile.TemporaryDirectory() as directory:
        with Document(f"{directory}/bench.htm") as report:
            calls = bodies(report)
            for _ in range(rounds):
                for name, (own, raw) in calls.items():
                    before = best.get(name, (1.0, 1.0))
                    best[name] = min(before[0], seconds(own)), min(before[1], seconds(raw))
    empty = best["start()"][1]
    print(f"empty foreign call: {empty * 1e6:.2f} us\n")
    print(f"{'call':36}  over the empty one  over ctypes alone")
    for name, (own_time, raw_time) in best.items():
        over, package = (own_time - empty) * 1e6, (own_time - raw_time) * 1e6
        print(f"{name:36}  {over:15.2f} us  {package:14.2f} us")


if __name__ == "__main__":
    main()
