#!/usr/bin/python3
"""The cookbook's installation and update of a database, beside a server of with_server.py or on SQLite.

versions_test.py FOLDER QVRSCRIPT
"""
import os
import pathlib
import sqlite3
import subprocess
import sys
import tempfile
import unittest

FOLDER, PROGRAM = (pathlib.Path(each).resolve() for each in sys.argv[1:3])
SERVER = os.environ.get("QVR_TESTS_SERVER")


class Versions(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.database = pathlib.Path(folder.name, "cuentas.db")
        self.bin = pathlib.Path(folder.name, "bin")
        self.bin.mkdir()
        (self.bin / "qvrscript").symlink_to(PROGRAM)

    def driver(self):
        return os.environ["QVR_TESTS_CONNECTION"] if SERVER else f"DRIVER={{SQLite3}};Database={self.database};"

    def ask(self, query):
        if SERVER:
            import pyodbc
            with pyodbc.connect(self.driver()) as session:
                return session.execute(query).fetchval()
        with sqlite3.connect(self.database) as session:
            return session.execute(query).fetchone()[0]

    def run_it(self, *words):
        return subprocess.run(words, stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=120, env={
            **os.environ, "PATH": f"{self.bin}:{os.environ['PATH']}",
            "CUENTAS_DB": f'Provider=MSDASQL;Extended Properties="{self.driver()}"'})

    def test_the_database_is_installed_and_has_the_last_version(self):
        engine = "sqlserver" if SERVER else "jet"
        ended = self.run_it("sh", FOLDER / "update.sh", engine)
        self.assertEqual(ended.returncode, 0, ended.stderr)
        self.assertEqual(self.ask("SELECT Version FROM Esquema"), 10020)
        self.assertEqual(self.ask("SELECT Count(*) FROM Apuntes"), 0)
        again = self.run_it("qvrscript", "update", "--engine", engine, "--connection-env", "CUENTAS_DB", "--from-query",
                            "SELECT Version FROM Esquema", FOLDER, "Cuentas")
        self.assertEqual((again.returncode, again.stdout), (0, "up to date: Cuentas has no update from 10020\n"), again.stderr)

    def test_the_scripts_are_clean(self):
        ended = self.run_it("qvrscript", "check", "--fail-on", "note", FOLDER)
        self.assertEqual((ended.returncode, ended.stderr), (0, ""), ended.stdout)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
