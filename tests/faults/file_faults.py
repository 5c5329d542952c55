"""The replay tool while one file operation fails: at every place, in every way.

    file_faults.py REPLAY-TOOL SHIM [--all]

Without --all it takes a sample of some seconds. It prints how many runs there were and what they
did; the exit status is 1 when a run crashed, lost something without a message or with status 0, or
left a file that is cut."""

import errno
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

ERRORS = ["ENOSPC", "EIO", "EACCES", "EMFILE", "EINTR"]
KINDS = ["open", "read", "write", "close", "rename", "stat", "mkdir", "unlink", "copy", "truncate"]
SAMPLE = 8  # places of a kind in the short form
LARGE = "a large document " * 20000  # its copy is not overwritten, but replaced

CALLS = """["create","rep.htm"]
["setOption","title","A report"]
["startHeader"]
["insertText","header"]
["endHeader"]
["setStyle","Heading 1"]
["insertText","VERSION chapter"]
["insertEndl"]
["insertMark",5,false]
["insertMark",7,true]
["insertImage","pics/a.gif",""]
["insertImage","pics/missing.gif",""]
["insertFile","pics/a.txt",3]
["insertXref","document","pics/a.doc"]
["insertXref","later","later"]
["insertXref","never","never"]
["insertLocate"]
["pushDirectory","sub"]
["setStyle","Heading 2"]
["insertText","second VERSION page"]
["insertTag","later"]
["popDirectory"]
["insertPageBreak"]
["insertText","third VERSION page"]
["close"]
"""

FILES = {
    "settings.ini": "[Html]\nNavig=3\nScriptNavigator=true\nSupportOld=true\nIconFile=IN/own.zip\n"
    "[Settings]\nInstallDir=IN\nUserFilesDir=IN\n",
    "tool.ini": "[Quillmark]\nUseJavaPre7=FALSE\n",
    "model.json": '{"schemaType": 1, "elements": {"0x0000000700000005": {"class": "Operation", '
    '"attributes": {"visibility": "public"}}}}',
    "maps.json": '{"pics/a.gif": ["A", "Page 1", "1,2,3,4"]}',
    "pics/a.gif": "GIF",
    "pics/a.txt": "one\ntwo\n",
    "pics/a.doc": LARGE,
    "in/default.css": "P { }",
    "in/toc2.jar": "jar",
    "in/toc2_OLD.jar": "old jar",
    "in/toc2.jnlp": "jnlp",
    "in/icons.zip": "icons",
    "in/own.zip": "own icons",
    "in/pixs/locate_in_brw.JPG": "locate",
    "in/pixs/locate_in_brw_button_mouse_over.JPG": "over",
    "in/navigator/order.txt": "a.js\na.css\n",
    "in/navigator/a.js": "script",
    "in/navigator/a.css": "sheet",
}


def snapshot(directory):
    return {
        str(path.relative_to(directory)): path.read_bytes()
        for path in directory.rglob("*")
        if path.is_file()
    }


def is_whole(name, content):
    """Links differ when a file could not be copied, so a page may differ and be whole."""
    if name.endswith(".htm"):
        return content.endswith(b"</HTML>\n")
    if name.endswith(".dat"):
        return content.endswith(b")\n")
    return name.endswith(".js") and content.endswith(b"');\n")


class Sweep:
    def __init__(self, tool, shim, root):
        self.tool, self.shim, self.root = tool, shim, root
        self.runs = 0
        self.found = {"crashes": [], "losses with status 0": [], "no message": [], "cut files": []}
        self.statuses = {0: 0, 1: 0, 2: 0}
        for name, text in FILES.items():
            path = root / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_text(text.replace("IN", str(root / "in")))
        for version in ("older", "newer"):
            (root / f"{version}.jsonl").write_text(CALLS.replace("VERSION", version))
        self.sources = snapshot(root)

    def play(self, calls, fault=None, count=None):
        environment = dict(os.environ, SOURCE_DATE_EPOCH="1", LD_PRELOAD=str(self.shim))
        environment["FILE_FAULT_ROOT"] = str(self.root)
        environment["XDG_DATA_HOME"] = environment["XDG_CONFIG_HOME"] = str(self.root / "none")
        if fault:
            environment["FILE_FAULT"] = fault
        if count:
            environment["FILE_FAULT_COUNT"] = str(count)
        options = "-q --settings settings.ini --ini tool.ini --model model.json --image-maps maps.json"
        logs = "--trace 11 --log logs/trace.txt --exceptions logs/exceptions.txt -o out/rep.htm"
        command = [self.tool, *options.split(), *logs.split(), calls]
        return subprocess.run(
            command, cwd=self.root, env=environment, stdin=subprocess.DEVNULL,
            stdout=subprocess.DEVNULL, stderr=subprocess.PIPE, timeout=60
        )

    def prepare(self, older):
        for name in ("out", "logs"):
            shutil.rmtree(self.root / name, ignore_errors=True)
        (self.root / "out").mkdir()
        for name, content in older.items():
            path = self.root / "out" / name
            path.parent.mkdir(parents=True, exist_ok=True)
            path.write_bytes(content)
        return older

    def undisturbed(self, older):
        self.prepare(older)
        counts = self.root.parent / "counts"
        ended = self.play("newer.jsonl", count=counts)
        if ended.returncode != 0:
            sys.exit("the undisturbed run failed: " + ended.stderr.decode())
        self.whole = snapshot(self.root / "out")
        self.log = snapshot(self.root / "logs")
        lines = (line.split() for line in counts.read_text().splitlines())
        numbers = {kind: int(number) for kind, number in lines}
        if min(numbers[kind] for kind in KINDS if kind not in ("rename", "truncate", "unlink")) < 1:
            sys.exit(f"the operations are not counted: {numbers}")
        return numbers

    def check(self, fault, older):
        self.prepare(older)
        self.runs += 1
        try:
            ended = self.play("newer.jsonl", fault)
        except subprocess.TimeoutExpired:
            self.found["crashes"].append(f"{fault}: it hangs")
            return
        self.statuses[ended.returncode] = self.statuses.get(ended.returncode, 0) + 1
        where = f"{fault}{' over older files' if older else ''}: "
        told = ended.stderr.decode(errors="replace").strip()
        if ended.returncode not in (0, 1, 2):
            self.found["crashes"].append(where + f"status {ended.returncode} {told}")
        out = snapshot(self.root / "out")
        for name, content in out.items():
            known = content in (self.whole.get(name), older.get(name))
            if not known and not is_whole(name, content):
                self.found["cut files"].append(where + f"{name}, {len(content)} bytes")
        if ended.returncode == 0:
            for name in sorted(set(out) | set(self.whole)):
                if out.get(name) != self.whole.get(name):
                    self.found["losses with status 0"].append(where + f"{name} {told}")
            if snapshot(self.root / "logs") != self.log:
                self.found["losses with status 0"].append(where + "the log")
        elif not told:
            self.found["no message"].append(where + f"status {ended.returncode}")
        sources = {name: content for name, content in snapshot(self.root).items()
                   if not name.startswith(("out/", "logs/"))}
        if sources != self.sources:
            sys.exit(where + "a source has changed")

    def sweep(self, older, everything):
        counts = self.undisturbed(older)
        for kind in KINDS:
            total = counts[kind]
            step = 1 if everything else max(1, total // SAMPLE)
            for number in range(1, total + 1, step):
                names = ERRORS if everything else [ERRORS[number // step % len(ERRORS)]]
                for name in names:
                    self.check(f"{kind}:{number}:{getattr(errno, name)}", older)
                if kind == "write":
                    self.check(f"{kind}:{number}:0", older)

    def report(self):
        print(f"{self.runs} runs, by status {self.statuses}")
        for what, places in self.found.items():
            print(f"{len(places)} {what}")
            for place in places[:40]:
                print("    " + place)
        return any(self.found.values())


def main():
    tool, shim = sys.argv[1:3]
    everything = "--all" in sys.argv[3:]
    with tempfile.TemporaryDirectory() as directory:
        root = pathlib.Path(directory).resolve() / "work"
        root.mkdir()
        sweep = Sweep(os.path.realpath(tool), pathlib.Path(shim).resolve(), root)
        sweep.sweep({}, everything)
        sweep.prepare({})
        sweep.play("older.jsonl")
        older = snapshot(root / "out")
        older["rep_toc.dat.zip"] = b"a stale archive"
        sweep.sweep(older, everything)
        return 1 if sweep.report() else 0


sys.exit(main())
