#!/usr/bin/python3
"""`qvrscript run` on a server that fails: the exit code, the server's message, and what is told of the database.

run_cases.py calls it with the program and --gtest_output=xml:FILE; with_server.py starts the server.
"""
import argparse
import os
import pathlib
import sys
import threading
import time

import pyodbc

sys.dont_write_bytecode = True
sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "qvrscript/process"))
import program  # noqa: E402

NOTICED_WITHIN = 60  # seconds
MARIADB = os.environ["QVR_TESTS_SERVER"] == "mariadb"
CONTROL = pathlib.Path(os.environ["QVR_TESTS_CONTROL"])

# At the gate the script waits, or its commit does.
GATE = "do get_lock('gate', 60)" if MARIADB else "select pg_advisory_lock(1)"
CLOSE = "select get_lock('gate', 60)" if MARIADB else "select pg_advisory_lock(1)"
OPEN = "select release_lock('gate')" if MARIADB else "select pg_advisory_unlock(1)"
SESSION = ("select max(id) from information_schema.processlist where user = 'qvr' and command = 'Query'" if MARIADB else
           "select max(pid) from pg_stat_activity where usename = 'qvr' and wait_event_type = 'Lock'")
WAITING = SESSION + (" and (state = 'User lock' or state like 'Waiting for %lock')" if MARIADB else "")
END = "kill {}" if MARIADB else "select pg_terminate_backend({})"
WAITS_AT_COMMIT = [] if MARIADB else [
    "create function waits() returns trigger as 'begin perform pg_advisory_xact_lock(2); return null; end' "
    "language plpgsql",
    "create constraint trigger waits after insert on t deferrable initially deferred for each row "
    "execute function waits()"]
NO_COMMITS = "flush tables with read lock" if MARIADB else "select pg_advisory_lock(2)"
COMMITS = "unlock tables" if MARIADB else "select pg_advisory_unlock(2)"


def ask_server(word):
    unfinished, answer = CONTROL / "request.unfinished", CONTROL / "answer"
    unfinished.write_text(word)
    unfinished.rename(CONTROL / "request")
    wait_until(word, answer.exists)
    told = answer.read_text()
    answer.unlink()
    assert not told, told


def wait_until(what, condition):
    until = time.monotonic() + NOTICED_WITHIN
    while not condition():
        assert time.monotonic() < until, f"no sign of {what}"
        time.sleep(0.005)


class FailingServer(program.ProgramTest):
    def setUp(self):
        super().setUp()
        ask_server("start")
        self.administrator = self.administrators_session()
        owner = pyodbc.connect(os.environ["QVR_TESTS_CONNECTION"], autocommit=True)
        for statement in ["drop table if exists t", "create table t(n int)"]:
            owner.execute(statement)
        if not MARIADB:
            owner.execute("drop function if exists waits()")
        owner.close()

    def administrators_session(self):
        session = pyodbc.connect(os.environ["QVR_TESTS_ADMIN"], autocommit=True)
        self.addCleanup(session.close)
        return session

    def run_meanwhile(self, script, meanwhile, *more, through="QVR_TESTS_CONNECTION"):
        """Runs the script; `meanwhile` is done while it waits."""
        connection = f'Provider=MSDASQL;Extended Properties="{os.environ[through]}"'
        ended = []
        run = threading.Thread(target=lambda: ended.append(self.run_program(
            "run", "--engine", "sqlserver", "--connection-env", "CONNECTION", *more, self.write("x.sql", script),
            env={"CONNECTION": connection})))
        run.start()
        try:
            wait_until("the waiting script", lambda: self.administrator.execute(WAITING).fetchval())
            meanwhile()
        finally:
            run.join()
        return ended[0]

    def found(self):
        ask_server("start")
        return [row[0] for row in self.administrators_session().execute("select n from t order by n").fetchall()]

    def end_session(self):
        self.administrator.execute(END.format(self.administrator.execute(SESSION).fetchval()))

    def expect_failure(self, ended, messages, ending):
        self.assertEqual(ended.code, 1)
        self.assertTrue(any(message in ended.err for message in messages), ended.err)
        self.assertIn(ending, ended.err.splitlines()[-1])
        self.assertNotIn("Secreto", ended.out + ended.err)

    GONE = ["Lost connection to server during query", "server closed the connection unexpectedly",
            "terminating connection due to administrator command"]
    UNKNOWN = "what the database kept is not known"
    IN_COMMAND = f"insert into t values(1)\nGO\n{GATE}\nGO\ninsert into t values(2)\nGO\n"

    def test_a_server_that_is_killed_inside_a_command(self):
        self.administrator.execute(CLOSE)
        ended = self.run_meanwhile(self.IN_COMMAND, lambda: ask_server("kill"))
        self.expect_failure(ended, self.GONE, "failed after 1 of 3 commands; the rollback failed")
        self.assertEqual(self.found(), [])

    def test_a_session_that_is_ended_inside_a_command_and_further_commands(self):
        self.administrator.execute(CLOSE)
        ended = self.run_meanwhile(self.IN_COMMAND, self.end_session, "--continue")
        self.expect_failure(ended, self.GONE, self.UNKNOWN)
        self.assertEqual(ended.err.count("failed\n  command"), 2, "commands 2 and 3")
        self.assertEqual(self.found(), [])

    def run_to_commit(self, meanwhile, **more):
        """`meanwhile` is done while the commit waits."""
        for statement in WAITS_AT_COMMIT:
            self.administrator.execute(statement)
        self.administrator.execute(CLOSE)

        def let_it_commit():
            observer = self.administrators_session()
            waiting = observer.execute(WAITING).fetchval()
            self.assertTrue(waiting)
            self.administrator.execute(NO_COMMITS)
            self.administrator.execute(OPEN)
            wait_until("the waiting commit", lambda: self.commit_waits(observer))
            meanwhile()

        return self.run_meanwhile(f"insert into t values(1)\nGO\n{GATE}\nGO\n", let_it_commit, **more)

    def commit_waits(self, observer):
        query = (f"select count(*) from information_schema.processlist where user = 'qvr' and info like 'commit%'"
                 if MARIADB else
                 "select count(*) from pg_locks where locktype = 'advisory' and objid = 2 and not granted")
        return observer.execute(query).fetchval()

    def test_a_server_that_is_killed_while_it_commits(self):
        ended = self.run_to_commit(lambda: ask_server("kill"))
        self.expect_failure(ended, self.GONE, "the rollback failed")
        self.expect_failure(ended, self.GONE, self.UNKNOWN)
        self.assertEqual(self.found(), [])

    def test_an_answer_to_the_commit_that_is_lost(self):
        def lose_answer():
            ask_server("lose")
            self.administrator.execute(COMMITS)

        ended = self.run_to_commit(lose_answer, through="QVR_TESTS_CABLE")
        self.expect_failure(ended, self.GONE, self.UNKNOWN)
        self.assertEqual(self.found(), [1])


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("program")
    parser.add_argument("--gtest_output", required=True)
    parser.add_argument("--gtest_brief", help="taken, as run_cases.py gives it")
    options = parser.parse_args()
    program.ProgramTest.program = program.Program(options.program, None)
    return program.run_tests([FailingServer], options.gtest_output.removeprefix("xml:"))


if __name__ == "__main__":
    sys.exit(main())
