"""The replay tool in a failing environment: streams that cannot be read or written, names that
the driver cannot hold, damaged settings stores.

    environment_test.py REPLAY-TOOL"""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

TOOL = sys.argv[1]
CALLS = '["create","rep.htm"]\n["insertText","a"]\n["getDocType"]\n["close"]\n'


class Environment(unittest.TestCase):
    def setUp(self):
        directory = tempfile.TemporaryDirectory()
        self.addCleanup(directory.cleanup)
        self.work = pathlib.Path(directory.name)
        self.store = self.work / "config" / "quillmark" / "settings.ini"
        (self.work / "calls").write_text(CALLS)

    def play(self, command, cwd=None, quiet=True):
        """Runs a shell command in which TOOL is replaced by the tool; returns status and errors."""
        environment = dict(os.environ, XDG_CONFIG_HOME=str(self.work / "config"))
        environment["XDG_DATA_HOME"] = str(self.work / "data")
        ended = subprocess.run(
            ["sh", "-c", command.replace("TOOL", f"'{TOOL}'" + " -q" * quiet)],
            env=environment,
            cwd=cwd or self.work,
            stderr=subprocess.PIPE,
            stdout=subprocess.DEVNULL,
            timeout=60,
        )
        return ended.returncode, ended.stderr.decode()

    def test_a_standard_input_that_cannot_be_read_is_refused(self):
        refused = (2, "dochtml-replay: cannot read the standard input\n")
        self.assertEqual(self.play("TOOL - <&-"), refused)
        self.assertEqual(self.play("TOOL - </"), refused)

    def test_answers_that_cannot_be_written_are_reported(self):
        failed = "dochtml-replay: cannot write the output: "
        full = (1, failed + "No space left on device\n")
        self.assertEqual(self.play("TOOL calls >/dev/full"), full)
        self.assertEqual(self.play("TOOL calls >&-"), (1, failed + "Bad file descriptor\n"))
        self.assertEqual(self.play("TOOL --help >/dev/full"), full)

    def test_a_trace_that_cannot_be_written_is_reported_once(self):
        failed = (1, "dochtml-replay: Error writing to file: /dev/full: No space left on device\n")
        self.assertEqual(self.play("TOOL --trace 10 --log /dev/full calls"), failed)
        stream = '["trace",10]\n' + CALLS
        (self.work / "tracing").write_text(stream)
        self.assertEqual(self.play("TOOL --set Log.LogName=/dev/full tracing"), failed)

    def test_names_that_the_driver_cannot_hold_are_refused(self):
        status, errors = self.play("TOOL -o 日.htm calls")
        self.assertEqual(status, 2)
        self.assertRegex(errors, "8-bit code page cannot hold the file name .*/日.htm \\(--set Html.CharSet=UTF-8 keeps all names\\)\n$")
        strange = self.work / "日"
        strange.mkdir()
        status, errors = self.play("TOOL ../calls", cwd=strange)
        self.assertEqual(status, 2)
        self.assertRegex(errors, "8-bit code page cannot hold the file name .*/日 \\(--set Html.CharSet=UTF-8 keeps all names\\)\n$")
        self.assertEqual(sorted(path.name for path in self.work.iterdir()), ["calls", "日"])

    def test_documents_in_utf8_hold_every_name(self):
        place = self.work / "日"
        place.mkdir()
        (place / "設定.ini").write_text("[Quillmark]\nUseJavaPre7=TRUE\n")
        command = "TOOL -q -o 報告.htm --ini 設定.ini ../calls"
        status, errors = self.play(command, cwd=place)
        self.assertEqual(status, 2)
        self.assertIn("--set Html.CharSet=UTF-8 keeps all names", errors)
        utf8 = command.replace("TOOL", "TOOL --set Html.CharSet=UTF-8")
        self.assertEqual(self.play(utf8, cwd=place), (0, ""))
        names = {path.name for path in place.iterdir()}
        self.assertIn("報告_dtl.htm", names)
        # For the applet of an old Java there is no file that starts it.
        self.assertNotIn("toc2.jnlp", names)
        self.play(utf8.replace("--ini 設定.ini", ""), cwd=place)
        self.assertTrue((place / "toc2.jnlp").exists())

    def test_a_working_directory_that_is_gone_is_refused(self):
        gone = self.work / "gone"
        gone.mkdir()
        status, errors = self.play("rmdir ../gone; TOOL ../calls", cwd=gone)
        self.assertEqual(status, 2)
        self.assertRegex(errors, "^dochtml-replay: cannot determine the current directory: ")

    def test_a_damaged_store_of_the_user_is_refused(self):
        self.store.parent.mkdir(parents=True)
        self.store.write_text("oops\n")
        status, errors = self.play("TOOL calls")
        self.assertEqual(status, 2)
        self.assertRegex(errors, "Line 1 of the settings file .* is neither a section nor a sett")
        self.store.unlink()
        self.store.mkdir()
        status, errors = self.play("TOOL calls")
        self.assertEqual(status, 2)
        self.assertEqual(
            errors,
            f"dochtml-replay: Cannot read the settings file {self.store}: Not a regular file\n",
        )

    def test_an_unknown_setting_is_reported_and_does_no_harm(self):
        status, errors = self.play("TOOL --set Html.Navigg=2 calls")
        self.assertEqual(status, 0)
        self.assertEqual(errors, "dochtml-replay: warning: there is no setting Html.Navigg\n")
        status, errors = self.play("TOOL --set html.navig=2 --set Html.Navigg=2 calls", quiet=False)
        self.assertEqual(status, 0)
        self.assertIn("dochtml-replay: warning: there is no setting Html.Navigg\n", errors)
        self.assertNotIn("html.navig\n", errors)

    def test_directories_in_the_place_of_files_are_refused(self):
        for option in "--model", "--image-maps", "--settings":
            self.assertEqual(
                self.play(f"TOOL {option} / calls"),
                (2, "dochtml-replay: cannot read /: not a regular file\n"),
            )

    def test_pipes_and_devices_in_the_place_of_files_are_refused_at_once(self):
        os.mkfifo(self.work / "pipe")
        for name in "pipe", "/dev/null":
            for option in "--model", "--image-maps", "--settings":
                refused = (2, f"dochtml-replay: cannot read {name}: not a regular file\n")
                self.assertEqual(self.play(f"TOOL {option} {name} calls"), refused)
            told = f"dochtml-replay: Cannot read file {name}: Not a regular file\n"
            self.assertEqual(self.play(f"TOOL --ini {name} calls"), (1, told))
        for page in "rep_dtl.htm", "rep_toc.dat", "default.css":
            (self.work / page).unlink(missing_ok=True)
            os.mkfifo(self.work / page)
            status, errors = self.play("TOOL calls")
            self.assertEqual(status, 1)
            self.assertRegex(errors, "^dochtml-replay: .*: Not a regular file\n")
            self.assertTrue((self.work / page).is_fifo())
            (self.work / page).unlink()

    def test_an_inserted_pipe_is_refused_at_once(self):
        os.mkfifo(self.work / "a.txt")
        (self.work / "calls").write_text(
            '["create","rep.htm"]\n["insertFile","a.txt",3]\n["close"]\n'
        )
        told = "dochtml-replay: Cannot open : a.txt: Not a regular file\n"
        self.assertEqual(self.play("TOOL calls"), (1, told))

    def test_a_name_that_cannot_be_looked_up_is_reported(self):
        (self.work / "loop").symlink_to("loop")
        (self.work / "calls").write_text(
            '["create","rep.htm"]\n["insertXref","x","loop"]\n["close"]\n'
        )
        status, errors = self.play("TOOL calls")
        self.assertEqual(status, 1)
        reason = "Too many levels of symbolic links"
        self.assertIn(f"dochtml-replay: Cannot look up file loop: {reason}\n", errors)

    def test_a_page_beyond_the_limit_on_file_sizes_is_reported(self):
        (self.work / "calls").write_text(
            f'["create","rep.htm"]\n["insertText","{"a" * 300000}"]\n["close"]\n'
        )
        status, errors = self.play("ulimit -f 200; TOOL calls")
        self.assertEqual(status, 1)
        self.assertIn(
            "dochtml-replay: Error writing to file: rep_dtl.htm: File too large\n", errors
        )
        self.assertFalse((self.work / "rep_dtl.htm").exists())

    def test_answers_that_nobody_reads_are_reported(self):
        status, errors = self.play("{ sleep 0.3; TOOL calls; echo $? >status; } | true; cat status >&2")
        self.assertEqual(errors, "dochtml-replay: cannot write the output: Broken pipe\n1\n")
        self.assertTrue((self.work / "rep_dtl.htm").exists())

    def test_a_killed_run_leaves_at_most_the_page_in_hand(self):
        pages = "".join(f'["insertText","page {i}"]\n["insertPageBreak"]\n' for i in range(3000))
        (self.work / "calls").write_text('["create","out/rep.htm"]\n' + pages + '["close"]\n')
        (self.work / "out").mkdir()
        for run in range(12):
            tool = subprocess.Popen([TOOL, "-q", "calls"], cwd=self.work, stderr=subprocess.DEVNULL)
            try:
                tool.wait(timeout=0.02 + run * 0.02)
            except subprocess.TimeoutExpired:
                tool.kill()
                tool.wait()
            cut = [
                page.name
                for page in (self.work / "out").glob("*.htm")
                if not page.read_bytes().endswith(b"</HTML>\n")
            ]
            self.assertLessEqual(len(cut), 1)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1], verbosity=0)
