"""The replay tool under Wine against the native one: the same streams, the same bytes.

    replay_wine_test.py BUILD-DIRECTORY SOURCE-DIRECTORY CMAKE

The native tool is built below the build directory, unless DOCHTML_NATIVE_BUILD names a build that
has it. Both run with the same arguments: the drive C: is the prefix's for the one and a directory
(--drive) for the other, and streams are named from there."""

import json
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile
import unittest

import document_set

BUILD, SOURCE, CMAKE = map(pathlib.Path, sys.argv[1:4])
SETTINGS = ["--install-dir", "C:\\support", "--set", "Settings.UserFilesDir=C:\\support"]
MANUAL = [*SETTINGS, "--settings", "C:\\manual.ini", "--ini", "C:\\manual.ini"]

# Texts of several scripts, half a surrogate pair, and every kind of file.
UTF8_CALLS = [
    ["setOption", "title", "注文の概要 – Обзор"],
    ["startFooter"],
    ["insertText", "سعر"],
    ["endFooter"],
    ["setStyle", "Heading 1"],
    ["insertText", "Größe żółw"],
    ["insertEndl"],
    ["setStyle", "Normal"],
    ["insertXref", "→ 価格", "GUID-価格"],
    ["pushDirectory", "注文 #1\\Цена"],
    ["insertPageBreak"],
    ["setStyle", "Heading 1"],
    ["insertTag", "GUID-価格"],
    ["insertText", "価格 👨‍👩‍👧 \ud83d"],
    ["insertEndl"],
    ["setStyle", "Normal"],
    ["insertXref", "nowhere", "GUID-どこにもない"],
    ["insertImage", "C:\\report\\図 Größe#.gif", ""],
    ["insertXref", "メモ", "C:\\report\\メモ 100%.txt"],
    ["insertFile", "C:\\report\\メモ 100%.txt", 3],
    ["insertFile", "C:\\report\\8-bit.txt", 3],
    ["close"],
]
IMAGE_MAPS = {"C:\\report\\図 Größe#.gif": ["価格", "GUID-価格", "0,0,9,0,9,9"]}


def native_build():
    given = os.environ.get("DOCHTML_NATIVE_BUILD")
    if given:
        return pathlib.Path(given)
    build = BUILD / "native"
    subprocess.run(
        [CMAKE, "-S", SOURCE, "-B", build, "-G", "Ninja"]
        + ["-DCMAKE_BUILD_TYPE=Release", "-DDOCHTML_BUILD_TESTS=OFF"],
        check=True,
        capture_output=True,
    )
    targets = ["dochtml-replay", "manual_generator"]
    subprocess.run(
        [CMAKE, "--build", build, "--target", *targets], check=True, capture_output=True
    )
    return build


def is_text(name):
    """Files with the system's own line ends: tree data, traces, the messages of the tool."""
    return name.endswith(("_toc.dat", ".log", ".said"))


class ReplayTest(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        cls.directory = pathlib.Path(tempfile.mkdtemp(prefix="wine-replay-", dir=BUILD))
        cls.addClassCleanup(shutil.rmtree, cls.directory)
        cls.native = native_build()
        cls.environment = dict(
            os.environ,
            WINEPREFIX=str(cls.directory / "prefix"),
            WINEDEBUG="-all",
            WINEDLLOVERRIDES="mscoree,mshtml=",
            LC_ALL="C.UTF-8",
            SOURCE_DATE_EPOCH="946728000",
            XDG_CONFIG_HOME=str(cls.directory / "config"),
            XDG_DATA_HOME=str(cls.directory / "data"),
        )
        cls.environment.pop("DISPLAY", None)
        cls.addClassCleanup(cls.stop_wine)
        cls.run_program(["wine", "wineboot", "--init"])
        cls.drives = {
            "windows": cls.directory / "prefix" / "drive_c",
            "posix": cls.directory / "c",
        }
        for drive in cls.drives.values():
            cls.furnish(drive)

    @classmethod
    def stop_wine(cls):
        for order in "--kill", "--wait":
            subprocess.run(["wineserver", order], env=cls.environment, check=False)

    @classmethod
    def run_program(cls, command, cwd=None):
        return subprocess.run(
            list(map(str, command)),
            env=cls.environment,
            cwd=cwd or cls.directory,
            capture_output=True,
            timeout=300,
        )

    @classmethod
    def furnish(cls, drive):
        """Support files, and the streams of the manual with all files that they name."""
        shutil.copytree(SOURCE / "support", drive / "support")
        shutil.copy(SOURCE / "examples" / "manual" / "manual.ini", drive)
        shutil.copytree(document_set.REPORT, drive / "report")
        work = drive / "work"
        generator = cls.native / "examples" / "manual" / "manual_generator"
        cls.run_program([generator, "--document", "C:\\out\\manual.htm", work])
        for stream in work.glob("*.json*"):
            content = stream.read_text(encoding="utf-8")
            stream.write_text(content.replace(str(work), "C:/work"), encoding="utf-8")

    def play(self, system, arguments):
        """Plays on one system; returns the exit status and all files that exist afterwards."""
        drive = self.drives[system]
        for name in "out", "log":
            shutil.rmtree(drive / name, ignore_errors=True)
            (drive / name).mkdir()
        if system == "windows":
            program = ["wine", BUILD / "bin" / "dochtml-replay.exe"]
        else:
            program = [self.native / "bin" / "dochtml-replay", "--drive", f"C={drive}"]
        ended = self.run_program([*program, *arguments], cwd=drive)
        files = document_set.read(drive / "out")
        files |= document_set.read(drive / "log")
        files["output.said"] = ended.stdout
        files["errors.said"] = ended.stderr
        for name, content in files.items():
            if is_text(name):
                files[name] = content.replace(b"\r\n", b"\n")
        return ended.returncode, files

    def check(self, *arguments):
        native_status, native = self.play("posix", arguments)
        wine_status, under_wine = self.play("windows", arguments)
        self.assertEqual(wine_status, native_status, under_wine["errors.said"])
        self.assertEqual(sorted(under_wine), sorted(native))
        for name, content in native.items():
            self.assertEqual(
                under_wine[name].decode("latin-1"), content.decode("latin-1"), name
            )
        return native_status, native

    def test_manual(self):
        status, files = self.check(
            *MANUAL,
            "--model",
            "C:\\work\\model.json",
            "--image-maps",
            "C:\\work\\image-maps.json",
            "--trace",
            "1",
            "--log",
            "C:\\log\\errors.log",
            "work/manual.jsonl",
            # Pages that lead from directory to directory, into the same document set.
            "work/bridges.jsonl",
        )
        self.assertEqual(status, 0)
        self.assertIn("manual.htm", files)
        self.assertIn("manual_nav/word0.js", files)
        self.assertGreater(len(files), 20)

    def test_report_and_its_recording(self):
        report = [*SETTINGS, "--set", "Html.StyleSheet=C:\\report\\plain.css", "-o", "C:\\out\\rep.htm"]
        status, files = self.check(
            *report,
            "--trace",
            "11",
            "--log",
            "C:\\log\\calls.log",
            "report/report.jsonl",
        )
        self.assertEqual(status, 0)
        for drive in self.drives.values():
            (drive / "report" / "recorded.txt").write_bytes(files["calls.log"])
        again = self.check(*report, "report/recorded.txt")
        self.assertEqual(again[0], 0)
        for name, content in files.items():
            if not is_text(name):
                self.assertEqual(again[1][name], content, name)

    def furnish_utf8(self):
        """Inputs with names and texts that no 8-bit code page holds together."""
        calls = [["create", "C:\\out\\報告 żółw%#.htm"], *UTF8_CALLS]
        for drive in self.drives.values():
            shutil.copy(SOURCE / "support" / "pix" / "backON.gif", drive / "report" / "図 Größe#.gif")
            (drive / "report" / "メモ 100%.txt").write_bytes("全部 ąęß\r\n".encode())
            (drive / "report" / "8-bit.txt").write_bytes(b"Gr\xf6\xdfe\n")
            (drive / "report" / "地図.json").write_text(json.dumps(IMAGE_MAPS), encoding="utf-8")
            stream = "".join(json.dumps(call) + "\n" for call in calls)
            (drive / "report" / "utf8.jsonl").write_text(stream, encoding="utf-8")

    def test_document_in_utf8_and_its_recording(self):
        self.furnish_utf8()
        utf8 = [*SETTINGS, "--set", "Html.CharSet=UTF-8", "--image-maps", "report/地図.json"]
        utf8 += ["--set", "Html.BodyTags=ID='価'", "--set", "Html.Navig=1"]
        utf8 += ["--set", "Html.ScriptNavigator=true", "--ini", "C:\\report\\設定.ini"]
        status, files = self.check(
            *utf8, "--trace", "11", "--log", "C:\\log\\記録.log", "report/utf8.jsonl"
        )
        self.assertEqual(status, 0, files["errors.said"])
        names = [
            "報告 żółw%#_dtl.htm",
            "注文 #1/Цена/報告 żółw%#_dtl2.htm",
            "報告 żółw%#_toc.dat",
            "pix/図 Größe#.gif",
            "docs/メモ 100%.txt",
            "記録.log",
        ]
        self.assertEqual([name for name in names if name not in files], [])
        page = files["注文 #1/Цена/報告 żółw%#_dtl2.htm"].decode("utf-8")
        for text in ["charset=utf-8", "価格 👨‍👩‍👧 \ufffd", "全部 ąęß", "Größe", "ID='価'"]:
            self.assertIn(text, page)
        for drive in self.drives.values():
            (drive / "report" / "recorded.txt").write_bytes(files["記録.log"])
        again = self.check(*utf8, "report/recorded.txt")
        self.assertEqual(again[0], 0, again[1]["errors.said"])
        # A recording has no calls of pushDirectory, so its pages are all in one directory.
        self.assertIn("報告 żółw%#_dtl2.htm", again[1])
        self.assertEqual(again[1]["pix/図 Größe#.gif"], files["pix/図 Größe#.gif"])

    def test_streams_with_faults(self):
        faults = {
            "malformed.jsonl": '["create","C:\\\\out\\\\a.htm"]\n["insertText","x"]\n["insertText"\n',
            "unknown.jsonl": '["insertSound"]\n',
            "count.jsonl": '["insertText"]\n',
            "kind.jsonl": '["insertField","x"]\n',
            "failing.jsonl": '["overrideRegistry","Html","StyleSheet","C:\\\\none.css",0]\n'
            '["create","C:\\\\out\\\\a.htm"]\n["insertText","x"]\n["close"]\n',
        }
        for name, content in faults.items():
            for drive in self.drives.values():
                (drive / "report" / name).write_text(content, encoding="utf-8")
            status, files = self.check(*SETTINGS, "report/" + name)
            self.assertEqual(status, 1 if name == "failing.jsonl" else 2, name)
            self.assertNotEqual(files["errors.said"], b"", name)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=0)
