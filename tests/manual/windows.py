"""Programs of Windows, run in Wine with the library of one width."""
import os
import pathlib
import subprocess

ROOT = pathlib.Path(__file__).resolve().parents[2]


class Windows:
    def __init__(self, width, programs):
        self.width, self.programs = width, pathlib.Path(programs)
        self.system = r"C:\windows\system32" if width == "64" else r"C:\windows\syswow64"

    def run(self, *command):
        environment = dict(os.environ, LC_ALL="C.UTF-8")
        if self.width == "64":  # the loader of the other width would see its programs
            environment["QVR_WINE"] = "/usr/lib/wine/wine64"
        return subprocess.run([ROOT / "tools/wine.sh", *command], env=environment, stdin=subprocess.DEVNULL,
                              timeout=120, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)

    def register(self, *switches):
        for name in ("QVRlib21.dll", "testado.dll"):
            self.run(self.system + r"\regsvr32.exe", *switches, "/s", path(self.programs / name)).check_returncode()


def path(file):
    return "Z:" + str(file).replace("/", "\\")


def told(ended):
    return ended.stdout.decode("utf-8", "replace").replace("\r\n", "\n")
