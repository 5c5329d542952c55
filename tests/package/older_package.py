"""A package as an older version of it could have been."""

import gzip
import pathlib
import re
import subprocess

VERSION = "2.0.9-1"


def older_package(file, work):
    """Makes, in `work`, a package with an older number than `file`. Its support files differ: one is
    there that the new version lacks, and one has another content."""
    root = pathlib.Path(work) / file.name.partition("_")[0]
    root.parent.mkdir(parents=True, exist_ok=True)
    subprocess.run(["rm", "-rf", root], check=True)
    subprocess.run(["dpkg-deb", "--raw-extract", file, root], check=True)
    control = root / "DEBIAN/control"
    text = control.read_text()
    new = re.search(r"^Version: (.*)$", text, re.MULTILINE)[1]
    control.write_text(text.replace(new, VERSION))
    support = root / "usr/share/dochtml"
    if (support / "default.css").exists():
        (support / "default.css").write_text("BODY { color: black }\n")
        (support / "older.txt").write_text("The new version does without it.\n")
    (changes,) = root.glob("usr/share/doc/*/changelog.Debian.gz")
    text = gzip.decompress(changes.read_bytes()).decode()
    changes.write_bytes(gzip.compress(text.replace(new, VERSION).encode()))
    made = root.with_suffix(".deb")
    command = ["dpkg-deb", "--root-owner-group", "-Znone", "--build", root, made]
    subprocess.run(command, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["rm", "-rf", root], check=True)
    return made
