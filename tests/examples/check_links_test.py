"""The link check finds what is broken, and nothing else."""

import contextlib
import io
import pathlib
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path.insert(0, str(ROOT / "scripts"))

import check_links  # noqa: E402  (found through the path above)


class CheckLinks(unittest.TestCase):
    def check(self, files, *options):
        """Exit status and lines of a run over files given as name to content."""
        with tempfile.TemporaryDirectory() as directory:
            for name, content in files.items():
                path = pathlib.Path(directory, name)
                path.parent.mkdir(parents=True, exist_ok=True)
                path.write_bytes(content if isinstance(content, bytes) else content.encode("latin-1"))
            before = [option for option in options if option.startswith("--allow=")]
            behind = [option for option in options if option not in before]
            output, errors = io.StringIO(), io.StringIO()
            with contextlib.redirect_stdout(output), contextlib.redirect_stderr(errors):
                try:
                    status = check_links.main([*before, directory, *behind])
                except SystemExit as stop:
                    status = stop.code
            return status, output.getvalue().splitlines()

    def broken(self, files, *options):
        status, lines = self.check(files, *options)
        self.assertEqual(status, 1)
        return lines

    def sound(self, files, *options):
        self.assertEqual(self.check(files, *options), (0, []))

    def test_a_link_to_a_page_that_is_there_is_sound(self):
        self.sound({"a.htm": '<A HREF="b.htm">b</A>', "b.htm": ""})

    def test_a_link_to_a_page_that_is_missing_is_told_with_its_line(self):
        lines = self.broken({"a.htm": '\n\n<A HREF="b.htm">b</A>'})
        self.assertEqual(lines, ["a.htm:3: b.htm: no such file"])

    def test_links_of_a_page_in_utf8_are_followed(self):
        head = '<META HTTP-EQUIV="Content-Type" CONTENT="text/html; charset=utf-8">'
        link = '<A HREF="%E4%BE%A1%25.htm#\u4fa1">x</A>'
        target = '<a name="\u4fa1"></a>'
        self.sound({"a.htm": (head + link).encode(), "\u4fa1%.htm": (head + target).encode()})
        lines = self.broken({"a.htm": (head + link).encode(), "b.htm": b""})
        self.assertEqual(lines, ["a.htm:1: %E4%BE%A1%25.htm#\u4fa1: no such file"])

    def test_letters_count(self):
        lines = self.broken({"a.htm": '<A HREF="B.htm">b</A>', "b.htm": ""})
        self.assertEqual(lines, ["a.htm:1: B.htm: no such file"])

    def test_a_fragment_needs_its_anchor(self):
        lines = self.broken({"a.htm": '<A HREF="#x">x</A><a name="X"></a>'})
        self.assertEqual(lines, ["a.htm:1: #x: no such anchor"])

    def test_a_fragment_may_hold_a_blank(self):
        self.sound({"a.htm": '<A HREF="b.htm#Page 2">x</A>', "b.htm": '<a name="Page 2"></a>'})

    def test_a_fragment_may_be_percent_encoded(self):
        self.sound({"a.htm": '<A HREF="b.htm#Page%202">x</A>', "b.htm": '<a name="Page 2"></a>'})

    def test_an_identifier_is_an_anchor(self):
        self.sound({"a.htm": '<A HREF="#x">x</A><P ID=x>'})

    def test_the_name_of_a_picture_map_is_no_anchor(self):
        lines = self.broken({"a.htm": '<A HREF="#map0">x</A><MAP NAME="map0"></MAP>'})
        self.assertEqual(lines, ["a.htm:1: #map0: no such anchor"])

    def test_links_lead_into_directories_and_out_of_them(self):
        self.sound({"a.htm": '<A HREF="sub/b.htm#b">b</A>',
                    "sub/b.htm": '<a name="b"></a><A HREF="../a.htm">a</A>'})

    def test_a_link_out_of_the_set_is_broken(self):
        lines = self.broken({"a.htm": '<A HREF="../elsewhere.htm">x</A>'})
        self.assertEqual(lines, ["a.htm:1: ../elsewhere.htm: no such file"])

    def test_a_picture_must_exist(self):
        lines = self.broken({"a.htm": '<IMG SRC="pix/a.gif" BORDER="0">'})
        self.assertEqual(lines, ["a.htm:1: pix/a.gif: no such file"])

    def test_both_pictures_of_a_button_must_exist(self):
        button = ('<input type=image src="./pixs/a.JPG" onmouseout="this.src=\'./pixs/a.JPG\'" '
                  'onmouseover="this.src=\'./pixs/b.JPG\'">')
        lines = self.broken({"p.htm": button, "pixs/a.JPG": ""})
        self.assertEqual(lines, ["p.htm:1: ./pixs/b.JPG: no such file"])

    def test_the_areas_of_a_map_are_links(self):
        area = '<MAP NAME="map0">\n  <AREA SHAPE="POLY" COORDS="0,0,1,1"  NAME="x" HREF="#y">\n</MAP>'
        self.assertEqual(self.broken({"a.htm": area}), ["a.htm:2: #y: no such anchor"])

    def test_frames_and_the_style_sheet_must_exist(self):
        lines = self.broken({"a.htm": "<LINK REL=STYLESHEET HREF=\"s.css\" >"
                                      "<FRAMESET COLS='30%,*'>\n<FRAME SRC='c.htm'></FRAMESET>"})
        self.assertEqual(lines, ["a.htm:1: s.css: no such file", "a.htm:2: c.htm: no such file"])

    def test_frames_that_a_script_writes_must_exist(self):
        script = "<SCRIPT>\ndocument.writeln(\"<FRAME SRC='c.htm' NAME='x'>\")\n</SCRIPT>"
        self.assertEqual(len(self.broken({"a.htm": script})), 1)
        self.sound({"a.htm": script, "c.htm": ""})

    def test_text_that_looks_like_a_frame_is_only_text(self):
        self.sound({"a.htm": "<SCRIPT></SCRIPT>&lt;FRAME SRC='c.htm'>"})

    def test_a_refresh_leads_to_a_page(self):
        refresh = '<META HTTP-EQUIV="Refresh" CONTENT="0; URL=../b.htm">'
        self.assertEqual(self.broken({"sub/a.htm": refresh}), ["sub/a.htm:1: ../b.htm: no such file"])
        self.sound({"sub/a.htm": refresh, "b.htm": ""})

    def test_a_link_without_a_path_names_its_own_page(self):
        self.sound({"sub/a.htm": '<A HREF="#top">x</A><a name="top"></a>'})

    def test_addresses_elsewhere_are_not_followed(self):
        self.sound({"a.htm": '<A HREF="http://www.zorvane.example/#x">w</A>'
                             '<A HREF="mailto:a@b.example">m</A><A HREF="file:///C|/a.doc">f</A>'})

    def test_other_files_than_pages_need_no_anchor(self):
        self.sound({"a.htm": '<A HREF="docs/a.txt#x">t</A>', "docs/a.txt": ""})

    def test_a_name_can_be_left_out(self):
        self.sound({"a.htm": '<A HREF="x/gone.htm">g</A>'}, "--allow=gone.htm")

    def test_a_page_that_no_link_leads_to_is_told_when_a_start_is_given(self):
        pages = {"a.htm": '<A HREF="b.htm">b</A>', "b.htm": '<A HREF="a.htm">a</A>', "c.htm": ""}
        self.sound(pages)
        self.assertEqual(self.broken(pages, "a.htm"), ["c.htm: no link leads here"])

    def test_a_directory_without_pages_is_bad_usage(self):
        self.assertEqual(self.check({"a.txt": ""}), (2, []))

    def test_an_unknown_start_page_is_bad_usage(self):
        self.assertEqual(self.check({"a.htm": ""}, "b.htm"), (2, []))


if __name__ == "__main__":
    unittest.main()
