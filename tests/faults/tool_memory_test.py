"""The replay tool as a process while memory runs out.

usage: tool_memory_test.py TOOL FAILING_TOOL [STEP]

FAILING_TOOL is the same program with an allocator that fails as the environment says. TOOL runs
under limits of its address space. A run must end by itself, with status 0 and all files, or with
status 1 and a message. With a STEP of 1 every allocation fails once.
"""

import os
import pathlib
import resource
import subprocess
import sys
import tempfile

CALLS = """["overrideRegistry","Html","StyleSheet","",2]
["overrideRegistry","Html","Navig","3",2]
["create","out.htm"]
["setStyle","Heading 1"]
["insertText","A heading"]
["insertEndl"]
["insertXref","forwards","the end"]
["insertPageBreak"]
["insertText","%s"]
["insertTag","the end"]
["close"]
"""


class Runs:
    def __init__(self, directory, text):
        self.directory = directory
        self.calls = directory / "calls.jsonl"
        self.calls.write_text(CALLS % text)
        self.count = self.failed = 0
        self.problems = []

    def run(self, name, command, environment=(), limit=None):
        out = self.directory / "out"
        subprocess.run(["rm", "-rf", out], check=True)
        out.mkdir()

        def setLimit():
            if limit:
                resource.setrlimit(resource.RLIMIT_AS, (limit, limit))

        done = subprocess.run(
            [command, "-q", "-o", "out/doc.htm", self.calls], cwd=self.directory,
            env={"PATH": os.environ["PATH"], "SOURCE_DATE_EPOCH": "0",
                 "XDG_CONFIG_HOME": str(self.directory), **dict(environment)},
            stdin=subprocess.DEVNULL, capture_output=True, timeout=60, preexec_fn=setLimit,
            check=False)
        files = {path.name: path.read_bytes() for path in out.rglob("*") if path.is_file()}
        self.count += 1
        self.failed += done.returncode != 0
        return done, files

    def check(self, name, result, undisturbed):
        done, files = result
        if done.returncode == 0 and files == undisturbed:
            return
        if b"error while loading shared libraries" in done.stderr or (
                b"failed to map segment" in done.stderr):
            return  # The system could not even load the program or the component.
        if done.returncode != 1 or not done.stderr:
            self.problems.append(f"{name}: status {done.returncode}, {done.stderr[:200]}")


def main():
    tool, failing = (pathlib.Path(name).resolve() for name in sys.argv[1:3])
    step = int(sys.argv[3]) if len(sys.argv) > 3 else 40
    with tempfile.TemporaryDirectory() as name:
        runs = Runs(pathlib.Path(name), "text " * 20)
        done, undisturbed = runs.run("undisturbed", failing)
        assert done.returncode == 0 and len(undisturbed) > 5, done
        for suffix in ("", "+"):
            position, last = 1, 0
            while True:
                label = f"{position}{suffix}"
                result = runs.run(label, failing, [("DOCHTML_FAIL_ALLOCATION", label)])
                runs.check(label, result, undisturbed)
                last = last + 1 if result[0].returncode == 0 else 0
                if last > 10:  # Nothing fails any more.
                    break
                position += step
        print(f"failing allocator: {runs.count} runs, {runs.failed} with status 1")
        # What a text costs grows with it, so the short form takes a shorter one.
        limited = Runs(pathlib.Path(name), "text " * (4_000_000 if step == 1 else 800_000))
        done, undisturbed = limited.run("undisturbed", tool)
        assert done.returncode == 0, done
        mebibyte = 1 << 20
        limit = 4 * mebibyte
        while True:
            result = limited.run(f"{limit} bytes", tool, limit=limit)
            limited.check(f"limit of {limit // mebibyte} MiB", result, undisturbed)
            if result[0].returncode == 0 or limit > 2000 * mebibyte:
                break
            limit += max(mebibyte, limit * step // 400)
        print(f"limited memory: {limited.count} runs, {limited.failed} with another status than 0, "
              f"enough with {limit // mebibyte} MiB")
        problems = runs.problems + limited.problems
        for problem in problems:
            print(problem)
        return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
