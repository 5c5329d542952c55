"""Document sets as the tests of the hosts compare them: every file, byte for byte."""

import pathlib

HERE = pathlib.Path(__file__).resolve().parent
REPORT = HERE / "report"
EXPECTED = REPORT / "expected"
STYLE_SHEET = REPORT / "plain.css"


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
    """Makes a document set the expected one."""
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
