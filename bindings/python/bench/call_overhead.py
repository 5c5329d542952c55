#!/usr/bin/env python3
"""What a call costs over an empty foreign call, both measured in one run.

Usage: call_overhead.py [--calls N]    (with the package on PYTHONPATH)

The empty foreign call is `start`, which does nothing in the driver, called through ctypes alone.
Each figure is the best of several rounds that take turns.
"""

import argparse
import tempfile
import time
from typing import Callable

from dochtml import Document, component

_ROUNDS = 200
_START = 17


def seconds(body: Callable[[int], None], calls: int) -> float:
    begin = time.perf_counter()
    body(calls)
    return (time.perf_counter() - begin) / calls


def bodies(report: Document) -> dict[str, Callable[[int], None]]:
    raw = component().functions[_START]
    pointer = report._pointer

    def empty(calls: int) -> None:
        for _ in range(calls):
            raw(pointer)

    def start(calls: int) -> None:
        for _ in range(calls):
            report.start()

    def insert_text(calls: int) -> None:
        for _ in range(calls):
            report.insertText("a word or two")

    def insert_xref(calls: int) -> None:
        for _ in range(calls):
            report.insertXref("the class", "here")

    def set_attribute(calls: int) -> None:
        for _ in range(calls):
            report.setFontAttribute(9, True)

    return {
        "empty foreign call": empty,
        "start()": start,
        "setFontAttribute(9, True)": set_attribute,
        'insertText("a word or two")': insert_text,
        'insertXref("the class", "here")': insert_xref,
    }


def main() -> None:
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--calls", type=int, default=2000)
    calls = parser.parse_args().calls
    best: dict[str, float] = {}
    with tempfile.TemporaryDirectory() as directory:
        with Document(f"{directory}/bench.htm") as report:
            report.tag("here")
            for _ in range(_ROUNDS):
                for name, body in bodies(report).items():
                    best[name] = min(best.get(name, 1.0), seconds(body, calls))
                report.page_break()
    empty = best["empty foreign call"]
    for name, value in best.items():
        print(f"{name:34} {value * 1e6:6.3f} us   over the empty one {(value - empty) * 1e6:6.3f} us")


if __name__ == "__main__":
    main()
