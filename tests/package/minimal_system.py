"""A minimal Debian system in a directory, for tests that install packages."""

import os
import pathlib
import shutil
import subprocess

HERE = pathlib.Path(__file__).resolve().parent
# What the tools of the system itself write while packages come and go.
CHANGING = ("proc", "tmp", "home", "root", "run", "var/cache", "var/lib/apt", "var/lib/dpkg", "var/log")
APT = ("apt-get", "--quiet", "--yes", "--option", "Dpkg::Use-Pty=0")
ENTER = """
mount -t proc proc "$1/proc"
root=$1 user=$2
shift 2
exec chroot --userspec="$user" "$root" "$@"
"""


class MinimalSystem:
    def __init__(self, archive, root):
        self.root = pathlib.Path(root)
        subprocess.run([HERE / "minimal_root.sh", archive], check=True)
        self.remove()
        self.root.mkdir(parents=True)
        self._as_root("tar", "-xf", archive, "-C", self.root, "--exclude=./dev/*", "--numeric-owner")
        for name in ("null", "zero", "urandom"):
            self._as_root("cp", "-a", f"/dev/{name}", self.root / "dev" / name)

    def remove(self):
        if self.root.exists():
            self._as_root("rm", "-rf", self.root)

    @staticmethod
    def _as_root(*command, **options):
        """Without the rights of root, in a user namespace, as mmdebstrap itself does it."""
        helper = [] if os.geteuid() == 0 else ["mmdebstrap", "--unshare-helper"]
        return subprocess.run([*helper, *map(str, command)], check=True, **options)

    def run(self, *command, user="root", **environment):
        """Runs a command inside; answers with what it wrote. Fails if the command fails."""
        home = "/root" if user == "root" else f"/home/{user}"
        variables = {"PATH": "/usr/sbin:/usr/bin:/sbin:/bin", "HOME": home, "LC_ALL": "C.UTF-8"}
        variables |= environment
        enter = ["unshare", "--mount", "--pid", "--fork", "sh", "-ec", ENTER, "sh", self.root, user]
        settings = [f"{name}={value}" for name, value in variables.items()]
        try:
            ended = self._as_root(
                *enter, "env", "-i", *settings, *command, capture_output=True, text=True, timeout=300
            )
        except subprocess.CalledProcessError as failure:
            raise AssertionError(f"{command}: {failure.stdout}{failure.stderr}") from None
        return ended.stdout

    def shell(self, text, user="tester", **environment):
        """Runs lines of a shell in the user's home directory."""
        return self.run("sh", "-ec", f"cd; {text}", user=user, **environment)

    def install(self, *packages):
        """Installs package files by apt-get, which sees to what they depend on. There is no network."""
        for package in packages:
            self._as_root("cp", package, self.root / "tmp")
        names = [f"/tmp/{pathlib.Path(package).name}" for package in packages]
        self.run(*APT, "install", *names)

    def remove_packages(self, *packages):
        """Removes packages, as a user does it who may want them again."""
        self.run(*APT, "remove", *packages)

    def purge(self, *packages):
        self.run(*APT, "purge", *packages)

    def put(self, file, place):
        """Copies a file into the home directory of the user."""
        target = self.root / "home/tester" / place
        self._as_root("cp", file, target)
        self._as_root("chmod", "0644", target)

    def files(self):
        """All files and directories, but those that change by themselves."""
        listed = self._as_root(
            "find", self.root, "-xdev", "-printf", r"%P\n", capture_output=True, text=True
        )
        names = set(listed.stdout.splitlines())
        return {name for name in names if not name.startswith(CHANGING)}
