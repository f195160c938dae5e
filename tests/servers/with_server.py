#!/usr/bin/env python3
"""Runs a command beside a database server of its own, which has ended whatever becomes of the command.

with_server.py [--drivers FOLDER] [--full-disk LIBRARY] mariadb|postgresql COMMAND...

The command's environment has
  QVR_TESTS_SERVER      the server's name
  QVR_TESTS_CONNECTION  a connection string of an ordinary user
  QVR_TESTS_ADMIN       and one of the administrator
  QVR_TESTS_CABLE       the ordinary user's, through a cable that can lose answers
  QVR_TESTS_CONTROL     a folder: whoever renames a file to `request` there, with one of the words kill, stop, start,
                        fill, free and lose as its content, finds `answer` when that is done: empty, or what went wrong
Drivers are the registered ones, or those of a folder, which also has the libraries that they need.
"""

import argparse
import contextlib
import os
import signal
import subprocess
import sys
import threading
import traceback
from pathlib import Path

sys.dont_write_bytecode = True
from cable import Cable  # noqa: E402
from mariadb import MariaDb  # noqa: E402
from postgresql import PostgreSql  # noqa: E402
from server import Server  # noqa: E402

SERVERS = {each.name: each for each in (MariaDb, PostgreSql)}


class Control:
    """Does what the command asks for, one request at a time."""

    def __init__(self, server: Server, cable: Cable) -> None:
        self.folder = server.folder / "control"
        self.folder.mkdir()
        self.folder.chmod(0o777)  # the command may be another user than the server
        self._actions = {"kill": server.kill, "stop": server.stop, "start": server.start,
                         "fill": server.fill_disk, "free": server.free_disk,
                         "lose": cable.lose_answer}
        self._over = threading.Event()
        self._thread = threading.Thread(target=self._serve)

    def __enter__(self) -> "Control":
        self._thread.start()
        return self

    def __exit__(self, *_) -> None:
        self._over.set()
        self._thread.join()

    def _serve(self) -> None:
        request = self.folder / "request"
        while not self._over.wait(0.002):
            if not request.exists():
                continue
            word = request.read_text().strip()
            request.unlink()
            unfinished = self.folder / "answer.unfinished"
            unfinished.write_text(self._done(word))
            unfinished.rename(self.folder / "answer")

    def _done(self, word: str) -> str:
        try:
            self._actions[word]()
            return ""
        except Exception:  # the one who asked tells it
            return traceback.format_exc()


def main() -> int:
    parser = argparse.ArgumentParser()
    parser.add_argument("--drivers", type=lambda folder: Path(folder).resolve())
    parser.add_argument("--full-disk", type=lambda path: Path(path).resolve())
    parser.add_argument("server", choices=SERVERS)
    parser.add_argument("command", nargs=argparse.REMAINDER)
    arguments = parser.parse_args()
    # As an exception, so that the server ends.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    with contextlib.ExitStack() as used:
        server = used.enter_context(SERVERS[arguments.server](arguments.full_disk))
        front = server.folder / "cable" / server.socket.name
        front.parent.mkdir()
        cable = used.enter_context(Cable(front, server.socket))
        control = used.enter_context(Control(server, cable))
        driver = str(arguments.drivers / server.driver_file) if arguments.drivers else server.driver
        environment = dict(os.environ)
        environment["QVR_TESTS_SERVER"] = server.name
        environment["QVR_TESTS_CONNECTION"] = server.connection_string(driver)
        environment["QVR_TESTS_ADMIN"] = server.connection_string(driver, administrator=True)
        environment["QVR_TESTS_CABLE"] = server.connection_string(driver, socket=front)
        environment["QVR_TESTS_CONTROL"] = str(control.folder)
        if arguments.drivers:
            environment["LD_LIBRARY_PATH"] = str(arguments.drivers)
        child = subprocess.Popen(arguments.command, env=environment)
        try:
            result = child.wait()
        finally:
            child.kill()
        if result != 0:
            print(f"The log of {server.name}:\n" + server.log_text()[-20000:], file=sys.stderr)
        return result if result >= 0 else 128 - result


if __name__ == "__main__":
    sys.exit(main())
