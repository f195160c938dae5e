#!/usr/bin/python3
"""Four processes run scripts into one database at once: each leaves all of its rows or none.

four_processes.py native QVRSCRIPT              the console program, of which the last one's script fails
four_processes.py wine64|wine32 FOLDER          script hosts that use the library of this folder
with_server.py starts the server.
"""
import os
import pathlib
import subprocess
import sys
import tempfile
import time

import pyodbc

ROOT = pathlib.Path(__file__).resolve().parents[3]
ROWS = 300
PROCESSES = range(1, 5)
BEGINS_WITHIN = 120  # seconds; four processes under Wine on a busy machine
MARIADB = os.environ["QVR_TESTS_SERVER"] == "mariadb"

TABLES = ["create table Comun(P int, N int, T varchar(50), primary key (P, N))", "create table Salida(Abierta int)",
          "insert into Salida values(1)"]
# Waits at the gate, which the test opens when all are there. The server's own limit is for the other tests.
GATE = (["set innodb_lock_wait_timeout=300", "select Abierta from Salida lock in share mode"] if MARIADB else
        ["set lock_timeout='300s'", "select Abierta from Salida for share"])
CLOSED = "update Salida set Abierta = 1"
WAITING = ("select count(*) from information_schema.processlist where info like 'select Abierta %'" if MARIADB else
           "select count(*) from pg_stat_activity where query like '%select Abierta %' and wait_event_type = 'Lock'")


def script(process, fails):
    inserts = [f"insert into Comun values({process}, {n}, 'Niño {n} del {process}')" for n in range(ROWS)]
    if fails:
        inserts.insert(ROWS // 2, "nonsense")
    return "".join(f"{command}\r\nGO\r\n" for command in GATE + inserts)


def connection():
    return f'Provider=MSDASQL;Extended Properties="{os.environ["QVR_TESTS_CONNECTION"]}"'


class Native:
    """The console program, whose answer to its question is No."""

    failing = {4}
    encoding = "utf-8"

    def __init__(self, program):
        self.program = program

    def __enter__(self):
        return self

    def __exit__(self, *_):
        pass

    def start(self, file):
        return subprocess.Popen([self.program, "run", "--engine", "sqlserver", "--connection-env", "CONNECTION", file],
                                env={**os.environ, "CONNECTION": connection()}, stdout=subprocess.DEVNULL)


class ScriptHosts:
    """A host as users have it: five lines of VBScript. Nobody is there to answer a question, so that no script fails."""

    failing = set()
    encoding = "cp1252"

    def __init__(self, folder, width):
        self.libraries = [f"{folder}/QVRlib21.dll", f"{folder}/testado.dll"]
        self.system = r"C:\windows\system32" if width == 64 else r"C:\windows\syswow64"
        self.environment = dict(os.environ)
        if width == 64:
            self.environment["QVR_WINE"] = "/usr/lib/wine/wine64"

    def __enter__(self):
        self._register()
        return self

    def __exit__(self, *_):
        self._register("/u")

    def _register(self, *options):
        for library in self.libraries:
            subprocess.run(self._wine("regsvr32.exe", *options, "/s", _windows(library)), env=self.environment,
                           check=True, timeout=300)

    def _wine(self, program, *arguments):
        return [str(ROOT / "tools/wine.sh"), f"{self.system}\\{program}", *arguments]

    def start(self, file):
        host = file.with_suffix(".vbs")
        quoted = connection().replace('"', '""')
        host.write_bytes(f'''Set files = CreateObject("Scripting.FileSystemObject")
commands = files.OpenTextFile("{_windows(file)}").ReadAll
Set runner = CreateObject("QVRlib21.QVRScr")
If Not runner.EjecutarComandos("app", 2, commands, "{quoted}") Then WScript.Quit 1
'''.encode(self.encoding))
        return subprocess.Popen(self._wine("cscript.exe", "//nologo", _windows(host)), env=self.environment)


def _windows(path):
    return "Z:" + str(path).replace("/", "\\")


def wait_for_all(session, children):
    until = time.monotonic() + BEGINS_WITHIN
    while session.execute(WAITING).fetchval() < len(PROCESSES):
        assert time.monotonic() < until, "not all processes came to the gate"
        assert all(child.poll() is None for child in children), "a process ended before"
        time.sleep(0.05)


def check(hosts, folder):
    owner = pyodbc.connect(os.environ["QVR_TESTS_CONNECTION"])
    observer = pyodbc.connect(os.environ["QVR_TESTS_ADMIN"], autocommit=True)
    for statement in TABLES:
        owner.execute(statement)
    owner.commit()
    owner.execute(CLOSED)  # holds the row until the commit
    running = {}
    for process in PROCESSES:
        file = folder / f"{process}.sql"
        file.write_bytes(script(process, process in hosts.failing).encode(hosts.encoding))
        running[process] = hosts.start(file)
    wait_for_all(observer, running.values())
    owner.commit()
    codes = {process: child.wait(300) for process, child in running.items()}
    assert codes == {process: int(process in hosts.failing) for process in PROCESSES}, codes
    rows = [tuple(row) for row in owner.execute(
        "select P, count(*), min(T), max(N) from Comun group by P order by P").fetchall()]
    expected = [(process, ROWS, f"Niño 0 del {process}", ROWS - 1) for process in PROCESSES
                if process not in hosts.failing]
    assert rows == expected, rows
    print(rows)


def main():
    way, place = sys.argv[1:]
    hosts = Native(place) if way == "native" else ScriptHosts(place, int(way[4:]))
    with tempfile.TemporaryDirectory() as folder, hosts:
        check(hosts, pathlib.Path(folder))


if __name__ == "__main__":
    main()
