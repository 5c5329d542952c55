"""Document sets as the tests of the hosts compare them: every file, byte for byte."""

import pathlib

HERE = pathlib.Path(__file__).resolve().parent
HOSTS = HERE.parent.parent / "examples" / "hosts"
DOCUMENTATION = HERE.parent.parent / "docs" / "component.md"
REPORT = HERE / "report"
EXPECTED = REPORT / "expected"
STYLE_SHEET = REPORT / "plain.css"
# The installation directory of the hosts, which does not exist. A relative name gives the same
# links in the pages of every system, wherever the test's files are.
INSTALLATION = "installation"


def name_installation(configuration):
    """Stores the installation directory in a configuration directory off Windows."""
    store = pathlib.Path(configuration) / "quillmark" / "settings.ini"
    store.parent.mkdir(parents=True)
    store.write_text(f"[Settings]\nInstallDir={INSTALLATION}\n")


def read(directory):
    """All files below a directory: name with "/" to bytes."""
    directory = pathlib.Path(directory)
    return {
        path.relative_to(directory).as_posix(): path.read_bytes()
        for path in sorted(directory.rglob("*"))
        if path.is_file()
    }


def expected(system):
    """What the hosts' report must be on "posix" or "windows".

    The tree data file alone has the system's own line ends."""
    files = read(EXPECTED)
    if system == "windows":
        files["rep_toc.dat"] = files["rep_toc.dat"].replace(b"\n", b"\r\n")
    return files


def approve(directory):
    """Stores a document set as the expected one."""
    for path in EXPECTED.rglob("*"):
        path.unlink()
    for name, content in read(directory).items():
        target = EXPECTED / name
        target.parent.mkdir(parents=True, exist_ok=True)
        target.write_bytes(content)


def check(test, actual, system):
    """Fails the test case where a document set is not the expected one, file by file."""
    wanted = expected(system)
    test.assertEqual(sorted(actual), sorted(wanted))
    for name, content in wanted.items():
        test.assertEqual(actual[name].decode("latin-1"), content.decode("latin-1"), name)


def check_hello(test, actual):
    """Fails the test case where a document set is not that of the smallest hosts."""
    test.assertEqual(
        sorted(actual), ["plain.css", "rep.htm", "rep_cnt.htm", "rep_dtl.htm", "rep_toc.dat"]
    )
    test.assertIn(b'<H1><a name="toc1"></a>Hello', actual["rep_dtl.htm"])
