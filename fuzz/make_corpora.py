#!/usr/bin/env python3
"""Makes the first inputs of the fuzz targets: the files of fuzz/corpus, and what is made from them,
from examples and from tables of the tests.

    make_corpora.py SOURCE_DIRECTORY TARGET_DIRECTORY MANUAL_GENERATOR
"""

import json
import os
import re
import shutil
import struct
import subprocess
import sys
import tempfile
from pathlib import Path

# Operations that the trace does not show.
SILENT = {
    "insertDiagram", "trace", "getPropPages", "start", "stop", "showLast", "getDocType",
    "overrideRegistry", "insertMark", "setOrientation", "setTableRowHeight", "startFile",
    "insertLocate", "pushDirectory", "popDirectory"}
ATTRIBUTES = {1: "DocBold,", 2: "DocItalic,", 4: "DocUnderline,", 8: "DocStrike,"}
NOT_CALLS = {"set", "file", "dir", "model", "maps"}
LARGEST_SEED = 8000


def field(value):
    """A field of a session, see support/fields.h."""
    if isinstance(value, bool):
        return "1" if value else "0"
    text = str(value).replace("\\", "\\\\").replace("\n", "\\n").replace("\r", "\\r")
    return text.replace("\t", "\\t")


def unescaped(text):
    pattern = r"\\(n|r|t|\\|u[0-9a-fA-F]{4}|x[0-9a-fA-F]{2})"

    def character(match):
        kind = match.group(1)
        if kind[0] in "ux":
            return chr(int(kind[1:], 16))
        return {"n": "\n", "r": "\r", "t": "\t", "\\": "\\"}[kind]

    return re.sub(pattern, character, text)


def session_of(calls):
    return "".join("\t".join(map(field, call)) + "\n" for call in calls)


def calls_of(session, kinds):
    """The calls of a session; `kinds` has the kinds of each operation's parameters."""
    calls = []
    for line in session.splitlines():
        name, *fields = line.split("\t")
        if name in NOT_CALLS or (name not in kinds and name != "new"):
            continue
        values = [unescaped(text) for text in fields]
        typed = []
        for kind, value in zip(kinds.get(name, []), values):
            if kind == "string":
                typed.append(value)
            elif kind == "boolean":
                typed.append(value == "1")
            else:
                typed.append(int(value or 0))
        calls.append([name, *typed])
    return calls


def stream_of(calls):
    return "".join(json.dumps(call, ensure_ascii=False) + "\n" for call in calls)


def recorded(call):
    name, *arguments = call
    if name == "setFontAttribute":
        return f"{ATTRIBUTES.get(arguments[0], '')}{'TRUE' if arguments[1] else 'FALSE'}"
    return ",".join(f'"{value}"' if isinstance(value, str) else str(value) for value in arguments)


def recording_of(calls):
    lines = []
    for call in calls:
        if call[0] in SILENT or call[0] == "new":
            continue
        lines.append(f"dochtml->{call[0]}({recorded(call)});\n")
        if call[0] == "insertPageBreak":
            lines.append("\n")
        if call[0] == "insertTag":
            lines.append(f"created bookmark:{call[1]}\n")
    return "".join(lines).encode("cp1252", "replace")


class Corpora:
    def __init__(self, target):
        self.target = target

    def add(self, fuzzer, name, content):
        directory = self.target / fuzzer
        directory.mkdir(parents=True, exist_ok=True)
        data = content if isinstance(content, bytes) else content.encode("utf-8", "surrogatepass")
        (directory / name).write_bytes(data)

    def add_pieces(self, fuzzer, name, text):
        """A long text, cut between lines."""
        piece, size, number = [], 0, 0
        for line in text.splitlines(keepends=True):
            piece.append(line)
            size += len(line.encode("utf-8", "surrogatepass"))
            if size > LARGEST_SEED // 2:
                self.add(fuzzer, f"{name}-{number}", "".join(piece))
                piece, size, number = [], 0, number + 1
        self.add(fuzzer, f"{name}-{number}", "".join(piece))

    def write_lists(self):
        """Files that name all inputs, for runs that must not add any."""
        for directory in sorted(path for path in self.target.iterdir() if path.is_dir()):
            names = ",".join(str(path) for path in sorted(directory.iterdir()))
            Path(f"{directory}.inputs").write_text(names)


def operation_kinds(source):
    """The parameters of each operation, from the interface's own declarations."""
    header = (source / "src/driver/boundary/i_document.h").read_text()
    kinds = {}
    for name, parameters in re.findall(r"virtual DocResult (\w+)\(([^)]*)\)", header):
        kinds[name] = []
        for parameter in filter(None, (text.strip() for text in parameters.split(","))):
            if parameter.startswith("std::u16string&"):
                continue
            kinds[name].append("string" if parameter.startswith("WideText") else
                               "boolean" if parameter.startswith("bool") else "number")
    return kinds


def manual_calls(generator, work):
    """The first pages of the manual, and those that need its services."""
    subprocess.run([generator, "--document", "C:\\out\\r.htm", str(work)], check=True,
                   stdout=subprocess.DEVNULL)
    stream = (work / "manual.jsonl").read_text(encoding="utf-8").splitlines()
    return [json.loads(line) for line in stream if line.startswith("[")]


def add_calls(corpora, source, generator):
    kinds = operation_kinds(source)
    report = (source / "tests/component/report/report.jsonl").read_text(encoding="utf-8")
    sets = {"report": [json.loads(line) for line in report.splitlines() if line]}
    with tempfile.TemporaryDirectory() as work:
        sets["manual"] = manual_calls(generator, Path(work))[:160]
        model = json.loads((Path(work) / "model.json").read_text())
    for name, calls in sets.items():
        corpora.add_pieces("driver_fuzz", name, session_of(calls))
    for path in sorted((source / "fuzz/corpus/driver_fuzz").iterdir()):
        sets[path.stem] = calls_of(path.read_text(encoding="utf-8"), kinds)
    for name, calls in sets.items():
        corpora.add_pieces("call_stream_fuzz", name, stream_of(calls))
        corpora.add("recording_reader_fuzz", name, recording_of(calls)[:LARGEST_SEED])
        corpora.add("replay_fuzz", f"{name}-calls", stream_of(calls)[:LARGEST_SEED])
        corpora.add("replay_fuzz", f"{name}-recording", recording_of(calls)[:LARGEST_SEED])
    few = {key: model["elements"][key] for key in list(model["elements"])[:6]}
    corpora.add("model_file_fuzz", "manual", json.dumps({**model, "elements": few}))


# Values of late-bound calls, in the form that late_binding_fuzz reads.
TYPES = ["EMPTY", "NULL", "I2", "I4", "R4", "R8", "CY", "DATE", "BSTR", "BSTR", "BSTR", "DISPATCH",
         "ERROR", "BOOL", "VARIANT", "UNKNOWN", "DECIMAL", "I1", "UI1", "UI2", "UI4", "I8", "UI8",
         "INT"]
FORMATS = {"R4": "<f", "R8": "<d", "DATE": "<d"}


def late_value(kind, value):
    """The bytes of a row of the table; nothing for a row that they cannot express."""
    is_reference = kind.endswith("&")
    kind = kind.rstrip("&")
    if kind not in TYPES or value in ("nowhere", "bare"):
        return None
    first = bytes([TYPES.index(kind) + (120 if is_reference else 0)])
    if is_reference and first[0] < 0x80:
        first = bytes([TYPES.index(kind) + 144])
    end = b"\0" if is_reference else b""
    if kind == "BSTR":
        return first + late_text(value) + end
    if kind in ("VARIANT", "DISPATCH"):
        inner = late_value(*value.split(" ", 1)) if " " in value else b"\0"
        return inner and first + inner + (b"\0" if kind == "DISPATCH" else b"") + end
    return first + late_number(kind, value) + end


def late_text(value):
    if value == "null":
        return b"\0\0\xff"
    units = unescaped(value[1:-1]).encode("utf-16-le", "surrogatepass")
    return bytes([len(units) % 256]) + units[:255] + b"\1\0"


def late_number(kind, value):
    if value in ("-", "null"):
        return b"\0"
    if kind == "DECIMAL":
        high, low, scale, sign = (int(part, 0) for part in value.split())
        return bytes([16]) + struct.pack("<HBBIQ", 0, scale & 0xFF, sign & 0xFF, high, low)
    if kind in FORMATS:
        data = struct.pack(FORMATS[kind], float(value))
    else:
        data = struct.pack("<Q", int(value, 0) % 2**64)
    return bytes([len(data)]) + data


def add_late_values(corpora, source):
    """One row of ten, so that the corpus stays small; every kind of value is among them."""
    seen = {}
    for line in (source / "tests/component/late_values/values.txt").read_text("utf-8").splitlines():
        kind, _, rest = line.partition("\t")
        value = rest.split("\t")[0]
        data = None if line.startswith("#") or not line else late_value(kind, value)
        if data is None:
            continue
        seen[kind] = seen.get(kind, 0) + 1
        if seen[kind] <= 6 or seen[kind] % 4 == 0:
            corpora.add("late_binding_fuzz", f"{kind.rstrip('&')}-{len(seen)}-{seen[kind]}",
                        b"\2" + data)


def add_words(corpora, source):
    cases = json.loads((source / "tests/navigator/word_cases.json").read_text(encoding="utf-8"))
    lines = ["utf8", "title\tWords"]
    for number, (text, _) in enumerate(cases["page"]):
        lines.append(f"page\t{number}\t<BODY  >" + field(text))
    for number, (text, _) in enumerate(cases["entry"]):
        lines.append(f"entry\t{3 + number % 3}\t{number % 4}\t" + field(text))
    corpora.add("navigator_fuzz", "word-cases", "\n".join(lines) + "\n")


def add_settings(corpora, source):
    ini = (source / "examples/manual/manual.ini").read_bytes()
    for choice in range(4):
        corpora.add("ini_text_fuzz", f"manual-{choice}", bytes([choice, 8]) + b"3\n" + ini)


def main():
    source, target, generator = Path(sys.argv[1]), Path(sys.argv[2]), sys.argv[3]
    shutil.rmtree(target, ignore_errors=True)
    corpora = Corpora(target)
    for path in sorted((source / "fuzz/corpus").rglob("*")):
        if path.is_file():
            corpora.add(path.parent.name, path.name, path.read_bytes())
    add_calls(corpora, source, os.path.abspath(generator))
    add_late_values(corpora, source)
    add_words(corpora, source)
    add_settings(corpora, source)
    corpora.write_lists()


if __name__ == "__main__":
    main()
