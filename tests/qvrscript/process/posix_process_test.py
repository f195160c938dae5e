"""What only a process on Linux shows: signals, closed and full outputs, and databases that hang or fail."""
import json
import os
import pty
import resource
import signal
import subprocess
import termios
import time

from program import ProgramTest

TABLE = "create table T(N varchar(9))\nGO\n"


class Interrupted(ProgramTest):
    def started(self, behaviour, script, *more):
        """A run that has come to a point that it tells in the driver's log."""
        return self.start("run", "--engine", "sqlserver", "--connection", self.played(f"log={self.folder}/log;{behaviour}"),
                          *more, self.write("x.cfc", script))

    def wait_for(self, line):
        log, until = self.folder / "log", time.monotonic() + 60
        while not log.exists() or line not in log.read_text().splitlines():
            self.assertLess(time.monotonic(), until, f"{line} was never told in the driver's log")
            time.sleep(0.01)

    def ended(self, process):
        out, err = process.communicate(timeout=60)
        return process.returncode, out.decode(), err.decode()

    def test_a_signal_ends_the_command_and_takes_all_back(self):
        for each in (signal.SIGINT, signal.SIGTERM):
            with self.subTest(each):
                process = self.started("", "one\nGO\nhang\nGO\nthree\nGO\n", "--quiet")
                self.wait_for("execute hang")
                process.send_signal(each)
                self.assertEqual(self.ended(process),
                                 (130, "", "qvrscript: interrupted after 1 of 3 commands; all taken back\n"))
                self.assertIn("rollback", (self.folder / "log").read_text().splitlines())
                (self.folder / "log").unlink()

    def test_the_document_tells_of_the_interruption(self):
        process = self.started("", "one\nGO\nhang\nGO\n", "--json")
        self.wait_for("execute hang")
        process.send_signal(signal.SIGINT)
        code, out, err = self.ended(process)
        self.assertEqual((code, err), (130, "qvrscript: interrupted after 1 of 2 commands; all taken back\n"))
        self.assertEqual(json.loads(out), {
            "command": "run", "files": [f"{self.folder}/x.cfc"], "success": False, "executed": 1, "total": 2,
            "transaction": True, "ending": "takenBack", "interrupted": True, "failures": [], "notRun": []})

    def test_without_a_transaction_what_ran_stays(self):
        process = self.started("", "one\nGO\nhang\nGO\n", "--no-transaction", "--quiet")
        self.wait_for("execute hang")
        process.send_signal(signal.SIGINT)
        self.assertEqual(self.ended(process), (130, "", "qvrscript: interrupted after 1 of 2 commands; what ran stays\n"))

    def test_a_second_signal_does_not_wait_for_the_database(self):
        process = self.started("hang=rollback;", "hang\nGO\n", "--quiet")
        self.wait_for("execute hang")
        process.send_signal(signal.SIGINT)
        self.wait_for("rollback")
        process.send_signal(signal.SIGINT)
        self.assertEqual(self.ended(process), (130, "", "qvrscript: interrupted again: the connection is left as it is, "
                                               "and the database takes back what was not committed\n"))

    def test_the_opening_of_a_connection_is_not_waited_for(self):
        process = self.started("hang=connect;", "one\nGO\n", "--connect-timeout=0")
        self.wait_for("connect")
        process.send_signal(signal.SIGINT)
        self.assertEqual(self.ended(process), (130, "", "qvrscript: interrupted after 0 of 1 commands; nothing was run\n"))


    def test_a_command_that_runs_nothing_ends_at_once(self):
        env = {"QVR_ID": "x"}
        other = f'Extended Properties="DRIVER={self.program.driver};hang=connect;log={self.folder}/log;"'
        self.expect(self.run_program("cfp", "new", "--id-env", "QVR_ID", "--engine", "jet", "--provider", "MSDASQL",
                                     "--other", other, "--quiet", str(self.folder), "x", env=env), 0, "")
        process = self.start("cfp", "test", "--id-env", "QVR_ID", str(self.folder), "x", env=env)
        self.wait_for("connect")
        process.send_signal(signal.SIGTERM)
        self.assertEqual(self.ended(process), (130, "", "qvrscript: interrupted\n"))
        ended = self.run_program("cfp", "test", "--id-env", "QVR_ID", "--connect-timeout=1", "--json", str(self.folder),
                                 "x", env=env)
        self.assertEqual((ended.code, json.loads(ended.out)["failure"]["description"]),
                         (1, "The connection was not opened within 1 seconds (--connect-timeout)"))


    def test_a_secret_that_is_asked_for(self):
        child, master = pty.fork()
        if child == 0:
            os.execve(self.program.path, [self.program.path, "cfp", "show", str(self.folder), "x"],
                      self.program.environment({}))
        shown = b""
        while not shown.endswith(b": "):
            shown += os.read(master, 1)
        self.assertFalse(termios.tcgetattr(master)[3] & termios.ECHO)
        os.write(master, b"\x03")
        self.assertIn(b"qvrscript: interrupted", self.rest_of(master))
        self.assertEqual(os.waitstatus_to_exitcode(os.waitpid(child, 0)[1]), 130)

    def rest_of(self, master):
        """What is still shown, and the terminal's echo is back behind it."""
        shown = b""
        while b"interrupted" not in shown:
            shown += os.read(master, 100)
        self.assertTrue(termios.tcgetattr(master)[3] & termios.ECHO)
        return shown


class Played(ProgramTest):
    def run_played(self, behaviour, script, *more, engine="sqlserver"):
        return self.run_program("run", "--engine", engine, "--connection", self.played(behaviour), "--quiet", *more,
                                self.write("x.cfc", script))

    def last_line(self, ended):
        self.assertEqual(ended.code, 1)
        return ended.err.splitlines()[-1]

    def test_a_connection_that_hangs_is_given_up(self):
        ended = self.run_played("hang=connect;", "one\nGO\n", "--connect-timeout=1", "--json")
        self.assertEqual(ended.code, 1)
        failure, = json.loads(ended.out)["failures"]
        self.assertEqual((failure["command"], failure["description"]),
                         (None, "The connection was not opened within 1 seconds (--connect-timeout)"))
        self.assertEqual(self.last_line(ended), "qvrscript: failed after 0 of 1 commands; nothing was run")

    def test_a_question_for_the_version_does_not_wait_for_ever(self):
        ended = self.run_program("update", "--engine", "jet", "--from-query", "select 1", "--connect-timeout=1",
                                 "--connection", self.played("hang=connect;"), str(self.folder), "Gestion")
        self.expect(ended, 1, "", "qvrscript: The connection was not opened within 1 seconds (--connect-timeout)\n")

    def test_a_rollback_that_fails_is_not_told_as_done(self):
        ended = self.run_played("fail=rollback;", "one\nGO\nfail 42000 1 no\nGO\n")
        self.assertRegex(self.last_line(ended), r"^qvrscript: failed after 1 of 2 commands; the rollback failed \(.+\): "
                         "what the database kept is not known$")

    def test_a_commit_that_fails(self):
        ended = self.run_played("fail=commit;", "one\nGO\n")
        self.assertEqual(ended.err.splitlines()[0], "the run failed outside its commands")
        self.assertEqual(self.last_line(ended), "qvrscript: failed after 1 of 1 commands; all taken back")

    def test_what_the_engine_commits_is_not_told_as_taken_back(self):
        script = "one\nGO\ncreate table T(N int)\nGO\nfail 42000 1 no\nGO\n"
        for engine, behaviour, told in (
                ("sqlserver", "ddl=commits;", "rolled back, but what ran stays up to create table in command 2 ({}:3)"),
                ("oracle", "", "rolled back, but what ran stays up to create table in command 2 ({}:3)"),
                ("sqlserver", "", "all taken back")):
            with self.subTest(engine + behaviour):
                ended = self.run_played(behaviour, script, engine=engine)
                self.assertEqual(self.last_line(ended), "qvrscript: failed after 2 of 3 commands; " +
                                 told.format(self.shown("x.cfc")))

    def test_an_own_commit_is_not_told_as_taken_back(self):
        ended = self.run_played("", "one\nGO\nCOMMIT TRAN\nGO\nfail 42000 1 no\nGO\n")
        self.assertEqual(self.last_line(ended), "qvrscript: failed after 2 of 3 commands; rolled back, but what ran "
                         f"stays up to COMMIT in command 2 ({self.shown('x.cfc')}:3)")

    def test_an_own_rollback_leaves_it_open(self):
        script = "one\nGO\nROLLBACK\nGO\nfail 42000 1 no\nGO\n"
        ended = self.run_played("", script)
        self.assertEqual(self.last_line(ended), "qvrscript: failed after 2 of 3 commands; rolled back, but it is not known "
                         f"what stays because of ROLLBACK in command 2 ({self.shown('x.cfc')}:3)")
        ended = self.run_played("", script, "--rehearse")
        self.assertEqual(self.last_line(ended), f"qvrscript: {self.shown('x.cfc')}:3: ROLLBACK: it is not known whether a "
                         "rollback takes everything back: this cannot be rehearsed, and nothing was run")

    def test_a_rehearsal_is_refused_where_ddl_commits(self):
        ended = self.run_played(f"ddl=commits;log={self.folder}/log;", "one\nGO\nalter table T\nGO\n", "--rehearse")
        self.assertEqual(self.last_line(ended), f"qvrscript: {self.shown('x.cfc')}:3: alter table commits by itself here, "
                         "and what ran before it: this cannot be rehearsed, and nothing was run")
        self.assertNotIn("execute one", (self.folder / "log").read_text().splitlines())

    def test_all_errors_of_the_provider_are_told(self):
        ended = self.run_played("", "fail 23000 547 first\n01000 3621 second\nGO\n")
        self.assertEqual(ended.err.splitlines()[2:-1],
                         ["  error     first", "  number    -2147217873 (0x80040E2F)",
                          "  source    Microsoft OLE DB Provider for ODBC Drivers", "  native    547",
                          "  state     23000", "  also      state 01000, native 3621: second"])

    def test_an_error_that_repeats_the_connection_string_shows_no_password(self):
        for how in ("fail=connect;", "fail=rollback;"):
            for more in ((), ("--json",), ("--format=junit",), ("--verbose",)):
                with self.subTest(how + " ".join(more)):
                    ended = self.run_played(f"echo=1;{how}UID=app;PWD=geheim4;", "fail 42000 1 no\nGO\n", *more)
                    self.assertEqual(ended.code, 1)
                    self.assertIn("***", ended.out + ended.err)
                    self.assertNotIn("geheim4", ended.out + ended.err)


class Outputs(ProgramTest):
    def run_script(self, *more, **how):
        script = self.write("x.cfc", TABLE)
        return self.run_program("run", "--engine", "sqlserver", "--connection", self.connection(), *more, script, **how)

    def expect_committed(self, ended):
        """What was committed is told as such, and not as a refused command line."""
        self.assertEqual(ended.code, 1)
        self.assertEqual(ended.err.splitlines()[-1], "qvrscript: the output could not be written whole; "
                         "the run itself: 1 of 1 commands; committed")
        self.assertEqual(self.rows("select name from sqlite_master"), [("T",)])

    def test_a_full_output(self):
        with open("/dev/full", "wb") as full:
            self.expect_committed(self.run_script(stdout=full))

    def test_a_reader_that_is_gone(self):
        read, write = os.pipe()
        os.close(read)
        self.expect_committed(self.run_script("--json", stdout=write))
        os.close(write)

    def test_a_closed_output(self):
        self.expect_committed(self.run_script(stdout=None, preexec_fn=lambda: os.close(1)))

    def limited(self):
        resource.setrlimit(resource.RLIMIT_FSIZE, (4096, 4096))
        signal.signal(signal.SIGXFSZ, signal.SIG_IGN)

    def test_a_full_disk_under_the_text(self):
        self.write("GestionSQL1.cfc", "select 1 -- " + "x" * 9000 + "\nGO\n")
        out = self.shown("all.txt")
        ended = self.run_program("install", "--engine", "sqlserver", "--out", out, str(self.folder), "Gestion",
                                 preexec_fn=self.limited)
        self.expect(ended, 1, "", f"qvrscript: {out} could not be written\n")
        self.assertEqual(sorted(path.name for path in self.folder.iterdir()), ["GestionSQL1.cfc"])

    def test_a_full_disk_under_the_log(self):
        script = self.write("x.cfc", "select 1\nGO\n" * 300)
        log = self.shown("run.log")
        ended = self.run_program("run", "--engine", "sqlserver", "--connection", self.played(""), "--log", log, script,
                                 preexec_fn=self.limited)
        self.assertEqual(ended.code, 1)
        self.assertEqual(ended.err, f"qvrscript: {log} could not be written whole\n")
        self.assertTrue(ended.out.endswith("done: 300 of 300 commands\n"))

    def test_devices_are_no_files(self):
        for name in ("/dev/null", "/dev/full", "/dev/stdout"):
            with self.subTest(name):
                self.expect(self.run_script("--log", name), 1, "", f"qvrscript: {name} cannot be written\n")
                ended = self.run_program("run", "--engine=jet", "--connection", self.connection(), name)
                self.expect(ended, 1, "", f"qvrscript: {name} cannot be read\n")
        self.assertEqual(self.rows("select name from sqlite_master"), [])

    def test_a_bar_on_a_terminal_and_colours_unless_unwanted(self):
        def shown(**env):
            master, slave = os.openpty()
            process = self.start("run", "--engine", "sqlserver", "--connection", self.connection(),
                                 self.write("x.cfc", "nonsense\nGO\n"), env={"TERM": "xterm", "NO_COLOR": "", **env},
                                 stdout=slave, stderr=slave)
            os.close(slave)
            text = b""
            while True:
                try:
                    piece = os.read(master, 4096)
                except OSError:  # the other end is closed
                    break
                if not piece:
                    break
                text += piece
            process.wait(timeout=60)
            os.close(master)
            return text.decode()
        self.assertIn("[" + "." * 40 + "] 0/1", shown())
        self.assertIn("\x1b[31m", shown())
        for env in ({"NO_COLOR": "1"}, {"TERM": "dumb"}):
            self.assertNotIn("\x1b", shown(**env))
        self.assertNotIn("commands done", shown())

    def test_arguments_that_are_no_utf8_are_refused(self):
        process = subprocess.run([self.program.path, b"check", b"caf\xe9.cfc"], capture_output=True, check=False)
        self.assertEqual((process.returncode, process.stdout, process.stderr),
                         (2, b"", b"qvrscript: an argument is no UTF-8; qvrscript --help tells more\n"))
