"""`qvrscript run` as a process."""
import json
import xml.etree.ElementTree as xml

from program import ProgramTest

TABLE = "create table T(N varchar(9))\nGO\n"
HALF_FAILS = "insert into T values('1')\nGO\nnonsense\nGO\n\ninsert into T values('3')\nGO\n"
SOURCE = "Microsoft OLE DB Provider for ODBC Drivers"


def block(place, number, of, command, error, native, state):
    """A failure as people read it."""
    return (f"{place}: command {number} of {of} failed\n"
            f"  command   {command}\n"
            f"  error     {error}\n"
            f"  number    -2147217900 (0x80040E14)\n"
            f"  source    {SOURCE}\n"
            f"  native    {native}\n"
            f"  state     {state}\n")


class Run(ProgramTest):
    def run_script(self, *more, **how):
        return self.run_program("run", "--engine", "sqlserver", "--connection", self.connection(), *more, **how)

    def make_table(self):
        self.expect(self.run_script("--quiet", self.write("table.cfc", TABLE)), 0, "")

    def nonsense(self, place):
        return block(place, 2, 3, "nonsense", '[SQLite]near "nonsense": syntax error (1)', 1, "HY000")

    def test_all_commands_run_and_each_is_told(self):
        script = self.write("x.cfc", "create table T(N varchar(9))\nGO\ninsert into T values('Jam\u00f3n')\ngo")
        self.expect(self.run_script(script), 0,
                    "commands done: 0/2\ncommands done: 1/2\ndone: 2 of 2 commands\n")
        self.assertEqual(self.rows("select N from T"), [("Jam\u00f3n",)])

    def test_a_failure_takes_all_back_and_tells_where(self):
        self.make_table()
        script = self.write("x.cfc", HALF_FAILS)
        self.expect(self.run_script(script), 1, "commands done: 0/3\ncommands done: 1/3\n",
                    self.nonsense(f"{script}:3") + "qvrscript: failed after 1 of 3 commands; all taken back\n")
        self.assertEqual(self.rows("select * from T"), [])

    def test_a_command_that_is_left_out_is_no_success(self):
        self.make_table()
        script = self.write("x.cfc", HALF_FAILS)
        self.expect(self.run_script("--continue", script), 1,
                    "commands done: 0/3\ncommands done: 1/3\ncommands done: 2/3\n",
                    self.nonsense(f"{script}:3") + "qvrscript: not everything ran: 2 of 3 commands; committed\n")
        self.assertEqual(self.rows("select N from T"), [("1",), ("3",)])

    def test_sqlite_takes_several_statements_behind_ddl_only(self):
        self.make_table()
        script = self.write("x.cfc", "create table U(N int); insert into T values('1')\nGO\n")
        self.expect(self.run_script("--quiet", script), 0, "")
        self.assertEqual(self.rows("select N from T"), [("1",)])
        script = self.write("y.cfc", "insert into T values('2'); insert into T values('3')\nGO\n")
        ended = self.run_script("--quiet", script)
        self.assertEqual(ended.code, 1)
        self.assertIn("[SQLite]only one SQL statement allowed", ended.err)
        failing = self.write("z.cfc", "create table V(N int); nonsense\nGO\ninsert into T values('4')\nGO\n")
        self.assertEqual(self.run_script("--quiet", "--continue", failing).code, 1)
        self.assertEqual(self.rows("select name from sqlite_master where name = 'V'"), [("V",)])

    def test_sqlite_runs_comments_alone(self):
        self.expect(self.run_script("--quiet", self.write("x.cfc", "-- a\nGO\n/* b */\nGO\n")), 0, "")

    def test_without_a_transaction_what_ran_stays(self):
        self.make_table()
        script = self.write("x.cfc", HALF_FAILS)
        self.expect(self.run_script("--no-transaction", "--quiet", script), 1, "",
                    self.nonsense(f"{script}:3") + "qvrscript: failed after 1 of 3 commands; what ran stays\n")
        self.assertEqual(self.rows("select N from T"), [("1",)])

    def test_a_rehearsal_takes_all_back(self):
        self.make_table()
        script = self.write("x.cfc", "insert into T values('1')\nGO\ncreate table U(N int)\nGO\n")
        self.expect(self.run_script("--rehearse", script), 0,
                    "commands done: 0/2\ncommands done: 1/2\nrehearsed: 2 of 2 commands; all taken back\n")
        self.assertEqual(self.rows("select * from T"), [])
        self.assertEqual(self.rows("select name from sqlite_master"), [("T",)])

    def test_a_rehearsal_that_fails_tells_where(self):
        self.make_table()
        script = self.write("x.cfc", HALF_FAILS)
        self.expect(self.run_script("--rehearse", "--continue", "--quiet", script), 1, "",
                    self.nonsense(f"{script}:3") + "qvrscript: not everything ran: 2 of 3 commands; all taken back\n")
        self.assertEqual(self.rows("select * from T"), [])

    def test_what_oracle_commits_is_not_rehearsed(self):
        script = self.write("x.cfc", "insert into T values('1')\nGO\ncreate table U(N int)\nGO\n")
        self.expect(self.run_program("run", "--engine", "oracle", "--connection", self.connection(), "--rehearse", script),
                    1, "", f"qvrscript: {script}:3: create table commits by itself here, and what ran before it: this "
                    "cannot be rehearsed, and nothing was run\n")
        self.assertEqual(self.rows("select name from sqlite_master"), [])

    def test_text_behind_the_last_go_is_told_and_nothing_runs(self):
        script = self.write("x.cfc", TABLE + "\ninsert into T\nvalues('2')\n")
        self.expect(self.run_script(script), 1, "",
                    f"qvrscript: {script}:4: no GO line follows this, and it is not run: insert into T values('2')\n"
                    "qvrscript: nothing was run\n")
        self.assertEqual(self.rows("select name from sqlite_master"), [])

    def test_with_continue_the_rest_runs_and_it_is_no_success(self):
        script = self.write("x.cfc", TABLE + "insert into T values('2')\n")
        self.expect(self.run_script("--continue", script), 1, "commands done: 0/1\n",
                    f"qvrscript: {script}:3: no GO line follows this, and it is not run: insert into T values('2')\n"
                    "qvrscript: not everything ran: 1 of 1 commands; committed\n")
        self.assertEqual(self.rows("select name from sqlite_master"), [("T",)])

    def test_comments_behind_the_last_go_are_nothing(self):
        script = self.write("x.cfc", TABLE + "-- the end\n/* really */\n\n")
        self.expect(self.run_script("--quiet", script), 0, "")

    def test_a_file_without_go_is_told(self):
        script = self.write("x.cfc", "\nselect 1\n")
        self.expect(self.run_script(script), 1, "",
                    f"qvrscript: {script}:2: there is no GO line, and nothing of this is run: select 1\n"
                    "qvrscript: nothing was run\n")

    def test_json_tells_every_failure_in_fields(self):
        self.make_table()
        script = self.write("x.cfc", HALF_FAILS + "select 1")
        ended = self.run_script("--json", "--continue", script)
        self.assertEqual(ended.code, 1)
        error = {"number": -2147217900, "nativeError": 1, "sqlState": "HY000", "source": SOURCE,
                 "description": '[SQLite]near "nonsense": syntax error (1)'}
        self.assertEqual(json.loads(ended.out), {
            "command": "run", "files": [script], "success": False, "executed": 2, "total": 3, "transaction": True,
            "ending": "committed", "interrupted": False,
            "failures": [{"command": 2, "of": 3, "file": script, "line": 3, "text": "nonsense", **error,
                          "errors": [error]}],
            "notRun": [{"file": script, "line": 8, "text": "select 1"}]})

    def test_json_of_a_success(self):
        script = self.write("x.cfc", TABLE)
        ended = self.run_script("--format=json", "--timing", script)
        told = json.loads(ended.out)
        times = told.pop("times")
        self.assertGreaterEqual(told.pop("milliseconds"), times[0].pop("milliseconds"))
        self.assertEqual(times, [{"command": 1, "file": script, "line": 1}])
        self.assertEqual(told, {"command": "run", "files": [script], "success": True, "executed": 1, "total": 1,
                                "transaction": True, "ending": "committed", "interrupted": False, "failures": [],
                                "notRun": []})
        self.assertEqual((ended.code, ended.err), (0, ""))

    def test_junit_has_a_case_for_each_command(self):
        self.make_table()
        script = self.write("x.cfc", HALF_FAILS)
        ended = self.run_script("--format", "junit", script)
        self.assertEqual(ended.code, 1)
        suite = xml.fromstring(ended.out.encode())
        self.assertEqual({name: suite.get(name) for name in ("name", "tests", "failures", "errors", "skipped")},
                         {"name": "qvrscript run", "tests": "3", "failures": "1", "errors": "0", "skipped": "1"})
        self.assertEqual([(case.get("classname"), case.get("name"), [child.tag for child in case]) for case in suite],
                         [(script, "1: line 1: insert into T values('1')", []),
                          (script, "2: line 3: nonsense", ["failure"]),
                          (script, "3: line 6: insert into T values('3')", ["skipped"])])
        self.assertEqual(suite[1][0].attrib, {"message": '[SQLite]near "nonsense": syntax error (1)', "type": "HY000"})

    def test_times_of_commands_and_of_all(self):
        script = self.write("x.cfc", TABLE + TABLE.replace("T(", "U("))
        ended = self.run_script("--timing", script)
        time = r"[0-9]+(\.[0-9] ms|\.[0-9]{3} s)"
        self.assertRegex(ended.out.replace(script, "SCRIPT"),
                         f"^command 1 of 2: {time}, SCRIPT:1\ncommand 2 of 2: {time}, SCRIPT:3\n"
                         f"done: 2 of 2 commands\nin all: {time}\n$")

    def test_the_log_keeps_what_is_shown_with_times(self):
        self.make_table()
        script = self.write("x.cfc", HALF_FAILS)
        ended = self.run_script("--log", self.shown("run.log"), script)
        lines = (self.folder / "run.log").read_text().splitlines()
        for line in lines:
            self.assertRegex(line, r"^20[0-9]{2}-[01][0-9]-[0-3][0-9] [0-2][0-9]:[0-5][0-9]:[0-6][0-9] ")
        shown = [line[len("2000-01-01 00:00:00 "):] for line in lines]
        self.assertEqual(sorted(shown), sorted((ended.out + ended.err).splitlines()))
        self.assertEqual(ended.code, 1)

    def test_a_log_that_cannot_be_written_stops_the_run_before_it_begins(self):
        script = self.write("x.cfc", TABLE)
        log = self.shown("none/run.log")
        self.expect(self.run_script("--log", log, script), 1, "", f"qvrscript: {log} cannot be written\n")
        self.assertEqual(self.rows("select name from sqlite_master"), [])

    def test_files_that_cannot_be_read(self):
        self.write("zero.cfc", b"a\0b\r\nGO\r\n")
        self.write("half.cfc", b"\xff\xfea\0\r")
        for name in ("none.cfc", "zero.cfc", "half.cfc", "."):
            with self.subTest(name):
                self.expect(self.run_script(self.shown(name)), 1, "",
                            f"qvrscript: {self.shown(name)} cannot be read\n")
                ended = self.run_script("--json", self.shown(name))
                self.assertEqual(json.loads(ended.out), {"command": "run", "exitCode": 1,
                                                         "error": f"{self.shown(name)} cannot be read"})

    def test_an_empty_file_runs_nothing(self):
        self.expect(self.run_script(self.write("x.cfc", "")), 1, "", "qvrscript: nothing was run\n")

    def test_a_connection_that_cannot_be_opened_is_told_once(self):
        script = self.write("x.cfc", TABLE)
        ended = self.run_program("run", "--engine=oracle", "--connection", "Provider=MSDASQL;Data Source=NoSuchDsn", script)
        self.assertEqual((ended.code, ended.out), (1, ""))
        lines = ended.err.splitlines()
        self.assertEqual(lines[0], "the run failed outside its commands")
        self.assertTrue(lines[1].startswith("  error     "), ended.err)
        self.assertIn("  state     IM002", lines)
        self.assertEqual(lines[-1], "qvrscript: failed after 0 of 1 commands; nothing was run")
        self.assertEqual(len([line for line in lines if line.startswith("qvrscript")]), 1)

    def test_verbose_adds_the_trace_on_the_error_output(self):
        unopened = ("run", "--engine", "sqlserver", "--quiet", "--connection", "Provider=MSDASQL;Data Source=NoSuchDsn")
        script = self.write("x.cfc", TABLE)
        plain, verbose = self.run_program(*unopened, script), self.run_program(*unopened, "--verbose", script)
        self.assertEqual((plain.out, verbose.out, verbose.code), ("", "", 1))
        trace = [line for line in verbose.err.splitlines() if line not in plain.err.splitlines()]
        self.assertEqual(len(trace), 1)
        self.assertRegex(trace[0],
                         r"^trace: QVRScr\.EjecutarComandos: -2147467259 told by another component \(.+:\d+\)$")

    def test_control_characters_do_not_reach_the_terminal(self):
        script = self.write("x.cfc", "nonsense \x1b[2J\x07\nGO\n")
        ended = self.run_script(script)
        self.assertIn("  command   nonsense \\x1b[2J\\x07\n", ended.err)
        self.assertNotIn("\x1b", ended.out + ended.err)

    def test_an_unknown_option_is_told_as_json_too(self):
        ended = self.run_script("--json", "--colour", "x.cfc")
        self.expect(ended, 2, '{"command":null,"error":"The following argument was not expected: --colour",'
                    '"exitCode":2}\n',
                    "qvrscript: The following argument was not expected: --colour; qvrscript --help tells more\n")
