#!/usr/bin/python3
"""`qvrscript` with the example's scripts for the server that with_server.py has started.

installation_test.py SCRIPTS QVRSCRIPT
"""
import json
import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

import pyodbc

MARIADB = os.environ["QVR_TESTS_SERVER"] == "mariadb"
SCRIPTS, PROGRAM = sys.argv[1:3]
FOLDER = f"{SCRIPTS}/{os.environ['QVR_TESTS_SERVER']}"
# What MariaDB's driver needs for modules of several statements.
DRIVER = os.environ["QVR_TESTS_CONNECTION"] + (";OPTION=67108864" if MARIADB else "")
COMMANDS, UPDATE_COMMANDS = (113, 24) if MARIADB else (114, 23)


class Server(unittest.TestCase):
    maxDiff = None

    def setUp(self):
        with pyodbc.connect(os.environ["QVR_TESTS_ADMIN"], autocommit=True) as administrator:
            for statement in (["drop database gestion", "create database gestion"] if MARIADB else
                              ["drop schema public cascade", "create schema public authorization qvr"]):
                administrator.execute(statement)
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_program(self, command, *arguments):
        return subprocess.run(
            [PROGRAM, command, "--engine", "sqlserver", "--connection-env", "CONNECTION", *arguments],
            env={**os.environ, "CONNECTION": f'Provider=MSDASQL;Extended Properties="{DRIVER}"'},
            stdin=subprocess.DEVNULL, capture_output=True, text=True, timeout=120)

    def last_line(self, code, *arguments):
        ended = self.run_program(*arguments)
        self.assertEqual(ended.returncode, code, ended.stderr)
        return (ended.stdout + ended.stderr).splitlines()[-1]

    def ask(self, query):
        with pyodbc.connect(DRIVER) as session:
            return session.execute(query).fetchval()

    def write(self, text):
        path = self.folder / "x.cfc"
        path.write_text(text)
        return str(path)

    def install(self):
        last = self.last_line(0, "install", "--database", "Gestión", "--admin-user", "Begoña", "--client-user", "mostrador",
                              FOLDER, "Gestion")
        self.assertEqual(last, f"done: {COMMANDS} of {COMMANDS} commands")

    def test_it_installs_and_updates(self):
        self.install()
        update = ["update", "--from-query", "select Versión from Esquema", FOLDER, "Gestion"]
        self.assertEqual(self.last_line(0, *update), f"done: {UPDATE_COMMANDS} of {UPDATE_COMMANDS} commands")
        self.assertEqual(self.ask("select Versión from Esquema"), 10100)
        self.assertEqual(self.ask("select Nombre from Provincias where Código = 46"), "València")
        self.assertEqual(self.ask("select count(*) from Clientes where Inactivo"), 3)
        self.assertEqual(self.ask("select Descripción from Usuarios where Nombre = 'Begoña'"),
                         "Administrador de Gestión")
        self.assertIn("up to date", self.last_line(0, *update))

    def test_it_rehearses_where_that_can_be_taken_back(self):
        self.install()
        last = self.last_line(1 if MARIADB else 0, "update", "--rehearse", "--from", "10000", FOLDER, "Gestion")
        if MARIADB:
            self.assertTrue(last.endswith("CREATE INDEX commits by itself here, and what ran before it: this cannot be "
                                          "rehearsed, and nothing was run"), last)
        else:
            self.assertEqual(last, f"rehearsed: {UPDATE_COMMANDS} of {UPDATE_COMMANDS} commands; all taken back")
        self.assertEqual(self.ask("select Versión from Esquema"), 10000)
        self.assertEqual(self.ask("select count(*) from information_schema.columns where column_name = "
                                  + ("'Correo'" if MARIADB else "'correo'")), 0)

    def test_what_a_failure_left_is_told(self):
        script = self.write("create table T(N int)\nGO\ninsert into T values(1)\nGO\nnonsense\nGO\n")
        self.assertEqual(self.last_line(1, "run", script), "qvrscript: failed after 2 of 3 commands; " + (
            f"rolled back, but what ran stays up to create table in command 1 ({script}:1)" if MARIADB else
            "all taken back"))
        tables = "select count(*) from information_schema.tables where table_name in ('T', 't')"
        self.assertEqual(self.ask(tables), 1 if MARIADB else 0)

    def test_a_begin_of_the_scripts_own_is_no_rehearsal(self):
        with pyodbc.connect(DRIVER, autocommit=True) as session:
            session.execute("create table T(N int)")
        script = self.write("insert into T values(1)\nGO\nbegin\nGO\nnonsense\nGO\n")
        self.assertEqual(self.last_line(1, "run", script), "qvrscript: failed after 2 of 3 commands; " + (
            f"rolled back, but what ran stays up to begin in command 2 ({script}:3)" if MARIADB else "all taken back"))
        self.assertEqual(self.ask("select count(*) from T"), 1 if MARIADB else 0)

    def test_what_a_command_that_is_left_out_left_is_told(self):
        with pyodbc.connect(DRIVER, autocommit=True) as session:
            session.execute("create table T(N int)")
        script = self.write("insert into T values(1)\nGO\nnonsense\nGO\ninsert into T values(2)\nGO\n")
        self.assertEqual(self.last_line(1, "run", "--continue", script),
                         "qvrscript: not everything ran: 2 of 3 commands; committed" + (
                             "" if MARIADB else ", but the database may have taken back what ran before a failure, or "
                             "all of it"))
        self.assertEqual(self.ask("select count(*) from T"), 2 if MARIADB else 1)

    def test_a_document_tells_the_same(self):
        script = self.write("nonsense\nGO\nselect 1\nGO\n")
        document = json.loads(self.run_program("run", "--continue", "--format", "json", script).stdout)
        self.assertEqual(document["ending"], "committed" if MARIADB else "perhapsCommitted")

    def test_rows_are_rehearsed_everywhere(self):
        self.install()
        script = self.write("update Esquema set Versión = 1\nGO\n")
        self.assertEqual(self.last_line(0, "run", "--rehearse", script),
                         "rehearsed: 1 of 1 commands; all taken back")
        self.assertEqual(self.ask("select Versión from Esquema"), 10000)


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
