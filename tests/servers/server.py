"""A database server of the tests' own: an unprivileged process in a temporary folder, reached by a local socket only."""

import ctypes
import os
import pwd
import shutil
import signal
import subprocess
import tempfile
import time
from abc import ABC, abstractmethod
from pathlib import Path

READY_WITHIN = 60  # seconds
STOPPED_WITHIN = 30
PR_SET_PDEATHSIG = 1


class Server(ABC):
    """Makes its data once; can be started, stopped and killed any number of times. Use it in a `with` statement."""

    name: str
    user = "qvr"
    password = "Secreto-1"
    database = "gestion"

    def __init__(self, full_disk: Path | None = None) -> None:
        """`full_disk` is the library that lets the disk be full."""
        self.folder = Path(tempfile.mkdtemp(prefix="qvr-", dir="/tmp"))  # a socket's path has at most 107 bytes
        # A copy, as the server's user may not read the folder of the build.
        self._full_disk = shutil.copy(full_disk, self.folder) if full_disk else None
        self._process: subprocess.Popen | None = None
        # Both servers refuse to run as root, or are better not to.
        self._as_user = {}
        if os.geteuid() == 0:
            nobody = pwd.getpwnam("nobody")
            self._as_user = {"user": nobody.pw_uid, "group": nobody.pw_gid, "extra_groups": []}
            os.chown(self.folder, nobody.pw_uid, nobody.pw_gid)
        self.folder.chmod(0o755)

    def __enter__(self) -> "Server":
        try:
            self._make()
            self.start()
            self._prepare()
        except BaseException:
            self.__exit__()
            raise
        return self

    def __exit__(self, *_) -> None:
        self.kill()
        shutil.rmtree(self.folder, ignore_errors=True)

    @property
    def pid(self) -> int:
        return self._process.pid if self._process else 0

    def start(self) -> None:
        """Returns when the server takes connections."""
        if self._process:
            return
        with open(self.log, "ab") as log:
            self._process = subprocess.Popen(
                self._command(), stdin=subprocess.DEVNULL, stdout=log, stderr=log, cwd=self.folder,
                env=self._environment(), start_new_session=True, preexec_fn=_end_with_parent, **self._as_user)
        until = time.monotonic() + READY_WITHIN
        while not self._is_ready():
            if self._process.poll() is not None or time.monotonic() > until:
                raise RuntimeError(f"{self.name} does not start:\n" + self.log_text())
            time.sleep(0.02)

    def stop(self) -> None:
        """An orderly end; sessions are ended by the server."""
        self._end(self._orderly)

    def kill(self) -> None:
        """All its processes at once, as when the machine fails."""
        self._end(signal.SIGKILL)

    def _end(self, sent: signal.Signals) -> None:
        if not self._process:
            return
        if sent == signal.SIGKILL:
            self._process.send_signal(signal.SIGSTOP)  # it makes no further children, and these do not miss it
        children = _children_of(self._process.pid)
        if sent == signal.SIGKILL:
            for child in children:
                _kill(child)
        self._process.send_signal(sent)
        try:
            self._process.wait(STOPPED_WITHIN)
            until = time.monotonic() + STOPPED_WITHIN
            while any(map(_lives, children)):
                if time.monotonic() > until:
                    raise RuntimeError(f"{self.name} leaves processes behind")
                time.sleep(0.01)
        finally:
            self._process = None
        self._clean_up()

    def fill_disk(self) -> None:
        """From now on no file of the server grows."""
        if not self._full_disk:
            raise RuntimeError("started without the library that lets the disk be full")
        self._full.touch()

    def free_disk(self) -> None:
        self._full.unlink(missing_ok=True)

    @property
    def _full(self) -> Path:
        return self.folder / "full"

    def log_text(self) -> str:
        return self.log.read_text(errors="replace") if self.log.exists() else ""

    @property
    def log(self) -> Path:
        return self.folder / "server.log"

    def _run(self, *command: str, text: str = "") -> None:
        done = subprocess.run(command, input=text, text=True, capture_output=True, cwd=self.folder,
                              env=self._environment(), timeout=READY_WITHIN, **self._as_user)
        if done.returncode != 0:
            raise RuntimeError(f"{command[0]} ended with {done.returncode}:\n{done.stdout}{done.stderr}")

    def _environment(self) -> dict[str, str]:
        environment = {"PATH": os.environ["PATH"], "LC_ALL": "C.UTF-8", "HOME": str(self.folder),
                       # MariaDB removes the temporary tables that it finds where it has its own, whosever they are.
                       "TMPDIR": str(self.folder)}
        if self._full_disk:
            environment["LD_PRELOAD"] = self._full_disk
            environment["QVR_TESTS_FULL"] = str(self._full)
        return environment

    def _clean_up(self) -> None:
        """Removes what a server that was killed leaves in the way of the next start."""

    _orderly: signal.Signals

    @abstractmethod
    def _make(self) -> None:
        """Makes the data folder."""

    @abstractmethod
    def _command(self) -> list[str]:
        """Of the server, in the foreground."""

    @abstractmethod
    def _is_ready(self) -> bool: ...

    @abstractmethod
    def _prepare(self) -> None:
        """Makes the database and its user."""

    @property
    @abstractmethod
    def socket(self) -> Path: ...

    @abstractmethod
    def connection_string(self, driver: str, administrator: bool = False, socket: Path | None = None) -> str:
        """For ODBC; `driver` is a registered name or a driver's path, `socket` another than the server's own, of the
        same name in another folder."""


def _children_of(pid: int) -> list[int]:
    try:
        return [int(child) for child in Path(f"/proc/{pid}/task/{pid}/children").read_text().split()]
    except FileNotFoundError:
        return []  # it has ended by itself


def _kill(pid: int) -> None:
    try:
        os.kill(pid, signal.SIGKILL)
    except ProcessLookupError:
        pass


def _lives(pid: int) -> bool:
    try:
        state = Path(f"/proc/{pid}/stat").read_text().rpartition(")")[2].split()[0]
    except (FileNotFoundError, ProcessLookupError):
        return False
    return state not in "ZX"


def _end_with_parent() -> None:
    # Also when the tests are killed no server stays behind.
    ctypes.CDLL(None).prctl(PR_SET_PDEATHSIG, signal.SIGKILL)
