"""Where a connection string comes from, and that nobody sees it."""
import json

from program import ProgramTest

SCRIPT = "create table T(N int)\nGO\n"


class Connection(ProgramTest):
    def run_script(self, *connection, **how):
        return self.run_program("run", "--engine", "jet", *connection, "--quiet", self.write("x.cfc", SCRIPT), **how)

    def tables(self):
        return self.rows("select name from sqlite_master")

    def test_from_the_environment(self):
        self.expect(self.run_script("--connection-env", "QVR_TEST", env={"QVR_TEST": self.connection()}), 0, "")
        self.assertEqual(self.tables(), [("T",)])

    def test_from_the_standard_input(self):
        self.expect(self.run_script("--connection", "-", text=self.connection().encode() + b"\r\nmore\n"), 0, "")
        self.assertEqual(self.tables(), [("T",)])

    def test_from_nothing(self):
        self.expect(self.run_script("--connection-env", "QVR_TEST_NONE"), 2, "",
                    "qvrscript: the environment variable QVR_TEST_NONE is not set; qvrscript --help tells more\n")
        self.expect(self.run_script("--connection", "-"), 2, "",
                    "qvrscript: the standard input has no connection string in its first line; "
                    "qvrscript --help tells more\n")

    def test_a_password_in_an_argument_is_warned_of_and_not_shown(self):
        ended = self.run_script("--connection", 'Provider=MSDASQL;Data Source=NoSuchDsn;Password=geheim1', "--verbose")
        self.assertEqual(ended.code, 1)
        self.assertTrue(ended.err.startswith("qvrscript: warning: others can see a password that stands in an argument"),
                        ended.err)
        self.assertNotIn("geheim1", ended.out + ended.err)


class ConnectionFile(ProgramTest):
    """From the file's making to a run with it."""

    ENV = {"QVR_ID": "identificaci\u00f3n", "QVR_OLD": "x"}

    def cfp(self, *words, **how):
        return self.run_program("cfp", *words, self.program.path_of(self.folder), "gestion",
                                env={**self.ENV, **how.pop("env", {})}, **how)

    def make(self):
        # The SQLite driver takes its database and not a server; the options are ODBC's.
        other = f'Extended Properties="DRIVER={{SQLite3}};Database={self.database};"'
        return self.cfp("new", "--id-env", "QVR_ID", "--engine", "sqlserver", "--provider", "MSDASQL", "--other", other,
                        "--client-user", "app", "--client-password-env", "QVR_PASSWORD",
                        env={"QVR_PASSWORD": "geheim2"})

    def test_it_is_made_shown_checked_and_used(self):
        made = self.make()
        self.assertEqual((made.code, made.err), (0, ""))
        self.assertNotIn("geheim2", made.out)
        shown = self.cfp("show", "--id-env", "QVR_ID")
        self.assertEqual(shown.code, 0)
        self.assertIn("app", shown.out)
        self.assertNotIn("geheim2", shown.out + shown.err)
        self.assertIn("geheim2", self.cfp("show", "--reveal", "--id-env", "QVR_ID").out)
        self.assertEqual(self.cfp("check", "--id-env", "QVR_ID").code, 0)
        script = self.write("x.cfc", SCRIPT)
        ran = self.run_program("run", "--engine", "sqlserver", "--cfp", self.program.path_of(self.folder), "gestion",
                               "--id-env", "QVR_ID", "--quiet", script, env=self.ENV)
        self.expect(ran, 0, "")
        self.assertEqual(self.rows("select name from sqlite_master"), [("T",)])

    def test_a_file_that_is_there_stays_and_is_told_as_json_too(self):
        self.make()
        former = (self.folder / "gestion.cfp").read_bytes()
        ended = self.cfp("new", "--json", "--id-env", "QVR_OLD", "--engine", "jet", "--provider", "P")
        message = f"{self.shown('gestion.cfp')}: exists already; --replace writes it anew"
        self.assertEqual((json.loads(ended.out), ended.err, ended.code),
                         ({"command": "cfp new", "error": message, "exitCode": 1}, f"qvrscript: {message}\n", 1))
        self.assertEqual((self.folder / "gestion.cfp").read_bytes(), former)

    def test_another_identification_is_told(self):
        self.make()
        ended = self.cfp("check", "--id-env", "QVR_OLD")
        self.expect(ended, 1, f"{self.shown('gestion.cfp')}: another identification, or no connection file: no line can be "
                    "read with this one\n")

    def test_another_engine_is_refused(self):
        self.make()
        ended = self.run_program("run", "--engine", "oracle", "--cfp", self.program.path_of(self.folder), "gestion",
                                 "--id-env", "QVR_ID", self.write("x.cfc", SCRIPT), env=self.ENV)
        self.expect(ended, 1, "", "qvrscript: the connection file is for SQL Server, not for Oracle\n")

    def test_a_new_identification(self):
        self.make()
        rekeyed = self.cfp("rekey", "--id-env", "QVR_ID", "--new-id-env", "QVR_OLD")
        self.assertEqual((rekeyed.code, rekeyed.err), (0, ""))
        self.assertEqual(self.cfp("check", "--id-env", "QVR_OLD").code, 0)
        self.assertEqual(self.cfp("check", "--id-env", "QVR_ID").code, 1)

    def test_a_prompt_without_a_terminal_is_refused(self):
        ended = self.cfp("show", start_new_session=True)
        self.assertEqual((ended.code, ended.out), (2, ""))
        self.assertIn("--id-env", ended.err)
        self.assertEqual(len(ended.err.splitlines()), 1)
