"""`qvrscript install` and `update` as a process."""
import json
import subprocess

from program import ROOT, ProgramTest

FIRST = "create table [NombreBD](U varchar(30), P varchar(30))\nGO\n"
SECOND = "-- accounts\ninsert into [nombrebd] values('[UsuarioQVRAdm]', '[ClaveUsuarioQVRAdm]')\nGO\n"
ENV = {"QVR_PASSWORD": "geheim3"}


class Load(ProgramTest):
    def setUp(self):
        super().setUp()
        self.write("GestionSQL1.cfc", FIRST)
        self.write("GestionSQL2.cfc", SECOND)
        self.write("GestionJET1.cfc", FIRST)
        self.write("VentasSQL1.cfc", "nonsense\nGO\n")
        for versions in ("10023a10024", "10024a10025", "10025a10026"):
            self.write(f"Gestion{versions}SQL.cfc", f"insert into Datos values('{versions}', '')\nGO\n")

    def load(self, command, *more, engine="sqlserver", name="Gestion", **how):
        return self.run_program(command, "--engine", engine, *more, self.program.path_of(self.folder), name, **how)

    def install(self, *more, **how):
        return self.load("install", "--database", "Datos", "--admin-user", "sa", "--admin-password-env", "QVR_PASSWORD",
                         *more, env=ENV, **how)

    def file(self, name):
        return f"{self.program.path_of(self.folder)}/{name}"

    def test_a_definition_is_installed_with_its_texts(self):
        self.expect(self.install("--connection", self.connection()), 0,
                    "commands done: 0/2\ncommands done: 1/2\ndone: 2 of 2 commands\n")
        self.assertEqual(self.rows("select * from Datos"), [("sa", "geheim3")])

    def test_a_failure_is_told_by_file_and_line_and_without_the_password(self):
        self.write("GestionSQL2.cfc", SECOND.replace("values", "vaules"))
        ended = self.install("--connection", self.connection(), "--quiet")
        self.assertEqual((ended.code, ended.out), (1, ""))
        lines = ended.err.splitlines()
        self.assertEqual(lines[0], f"{self.file('GestionSQL2.cfc')}:1: command 2 of 2 failed")
        self.assertEqual(lines[1], "  command   -- accounts insert into Datos vaules('sa', '***')")
        self.assertNotIn("geheim3", ended.err)

    def test_a_plan_shows_files_commands_and_texts(self):
        self.expect(self.install("--plan"), 0,
                    "Gestion, definition, SQL Server: 2 files, 2 commands\n"
                    "  GestionSQL1.cfc: 1 command\n"
                    "  GestionSQL2.cfc: 1 command\n"
                    "  [NombreBD] becomes \"Datos\": 2 times\n"
                    "  [UsuarioQVRAdm] becomes \"sa\": 1 time\n"
                    "  [ClaveUsuarioQVRAdm] becomes (password): 1 time\n")
        self.assertFalse(self.database.exists())

    def test_a_plan_as_json(self):
        told = json.loads(self.install("--plan", "--json").out)
        self.assertEqual(told, {
            "command": "install", "plan": True, "name": "Gestion", "engine": "sqlserver", "from": None,
            "files": [{"name": "GestionSQL1.cfc", "pending": True, "commands": 1},
                      {"name": "GestionSQL2.cfc", "pending": True, "commands": 1}],
            "commands": 2,
            "placeholders": [
                {"placeholder": "[NombreBD]", "by": "Datos", "password": False, "count": 2},
                {"placeholder": "[UsuarioQVRAdm]", "by": "sa", "password": False, "count": 1},
                {"placeholder": "[ClaveUsuarioQVRAdm]", "by": None, "password": True, "count": 1},
                {"placeholder": "[UsuarioQVRCli]", "by": "", "password": False, "count": 0},
                {"placeholder": "[ClaveUsuarioQVRCli]", "by": None, "password": True, "count": 0}],
            "encrypted": 0, "notRun": []})

    def test_the_text_is_written_with_passwords_only_where_asked(self):
        out = self.shown("all.txt")
        self.expect(self.install("--out", out), 0, f"{out}: 2 commands\n")
        text = (FIRST + "\n" + SECOND + "\n").replace("\n", "\r\n")
        filled = text.replace("[NombreBD]", "Datos").replace("[nombrebd]", "Datos").replace("[UsuarioQVRAdm]", "sa")
        self.assertEqual((self.folder / "all.txt").read_bytes().decode(), filled)
        self.expect(self.install("--out", out, "--with-passwords"), 0, f"{out}: 2 commands\n",
                    f"qvrscript: {out} holds the accounts' passwords: whoever reads it has them\n")
        self.assertEqual((self.folder / "all.txt").read_bytes().decode(),
                         filled.replace("[ClaveUsuarioQVRAdm]", "geheim3"))

    def test_a_text_that_cannot_be_written(self):
        out = self.shown("none/all.txt")
        self.expect(self.install("--out", out), 1, "", f"qvrscript: {out} could not be written\n")

    def test_bodies_are_encrypted_unless_not(self):
        self.write("CifradoSQL1.cfc", "create view V\nAS\nselect 1 N\nGO\n")
        for more, expected in (((), "WITH ENCRYPTION AS"), (("--no-encryption",), "AS")):
            self.load("install", "--out", self.shown("all.txt"), *more, name="Cifrado")
            self.assertEqual((self.folder / "all.txt").read_text().splitlines()[1], expected)
        self.expect(self.load("install", "--plan", name="Cifrado"), 0,
                    "Cifrado, definition, SQL Server: 1 file, 1 command\n  CifradoSQL1.cfc: 1 command\n"
                    "  AS becomes WITH ENCRYPTION AS: 1 time\n")

    def test_an_update_runs_what_is_pending(self):
        self.install("--connection", self.connection(), "--quiet")
        self.expect(self.load("update", "--from", "10024", "--connection", self.connection()), 0,
                    "commands done: 0/2\ncommands done: 1/2\ndone: 2 of 2 commands\n")
        self.assertEqual(self.rows("select U from Datos"), [("sa",), ("10024a10025",), ("10025a10026",)])

    def test_an_update_asks_the_database_for_its_version(self):
        self.install("--connection", self.connection(), "--quiet")
        query = "select 10025 V"
        self.expect(self.load("update", "--from-query", query, "--connection", self.connection(), "--quiet"), 0, "")
        self.assertEqual(self.rows("select U from Datos"), [("sa",), ("10025a10026",)])
        self.expect(self.load("update", "--from-query", query, "--connection", self.connection(), "--plan"), 0,
                    "Gestion, update from 10025, SQL Server: 1 file, 1 command\n"
                    "  Gestion10023a10024SQL.cfc: already in the database\n"
                    "  Gestion10024a10025SQL.cfc: already in the database\n"
                    "  Gestion10025a10026SQL.cfc: 1 command\n")

    def test_a_version_that_is_none_is_told(self):
        for query, told in (("select 1 where 1 = 0", "must give one row with one number: it gave 0 rows"),
                            ("select 1, 2", "must give one row with one number: it gave 1 rows of 2 columns"),
                            ("select 99", 'gave no version of five digits: "99"'),
                            ("select null", 'gave no version of five digits: ""'),
                            ("nonsense", 'failed: [SQLite]near "nonsense": syntax error (1)')):
            with self.subTest(query):
                self.expect(self.load("update", "--from-query", query, "--connection", self.connection()), 1, "",
                            f"qvrscript: --from-query {told}\n")

    def test_a_database_that_has_everything_is_up_to_date(self):
        self.expect(self.load("update", "--from", "10026", "--connection", self.connection()), 0,
                    "up to date: Gestion has no update from 10026\n")
        self.assertFalse(self.database.exists())

    def test_an_unknown_version_is_told(self):
        self.expect(self.load("update", "--from", "10030", "--plan"), 1, "",
                    "qvrscript: no update of Gestion for SQL Server begins with version 10030, and none ends there\n")

    def test_versions_that_overlap_are_refused(self):
        self.write("Gestion10024a10026SQL.cfc", "select 1\nGO\n")
        self.expect(self.load("update", "--from", "10024", "--connection", self.connection()), 1, "",
                    "qvrscript: Gestion10024a10026SQL.cfc would run after Gestion10024a10025SQL.cfc, which has reached "
                    "10025 already: versions overlap, and nothing was run\n")

    def test_a_gap_is_told(self):
        (self.folder / "Gestion10024a10025SQL.cfc").unlink()
        self.expect(self.load("update", "--from", "10023", "--plan"), 0,
                    "Gestion, update from 10023, SQL Server: 2 files, 2 commands\n"
                    "  Gestion10023a10024SQL.cfc: 1 command\n  Gestion10025a10026SQL.cfc: 1 command\n",
                    "qvrscript: nothing updates from 10024 to 10025: Gestion10025a10026SQL.cfc follows "
                    "Gestion10023a10024SQL.cfc\n")

    def test_scripts_that_are_not_there(self):
        folder = self.program.path_of(self.folder)
        self.expect(self.load("install", "--plan", name="Compras"), 1, "",
                    f"qvrscript: no script ComprasSQL?.cfc in {folder}\n")
        self.expect(self.load("update", "--plan", "--from", "10024", engine="oracle"), 1, "",
                    f"qvrscript: no script Gestion?????a?????ORA.cfc in {folder}\n")
        none = self.shown("none")
        self.expect(self.run_program("install", "--engine", "jet", "--plan", none, "Gestion"), 1, "",
                    f"qvrscript: {none} is no folder that can be read\n")

    def test_an_empty_or_unreadable_script_stops_everything(self):
        for content in (b"", b"a\0b"):
            self.write("GestionSQL2.cfc", content)
            self.expect(self.install("--connection", self.connection()), 1, "",
                        f"qvrscript: {self.file('GestionSQL2.cfc')} is empty or cannot be read: nothing is run\n")
        self.assertEqual(self.rows("select name from sqlite_master"), [])

    def test_text_behind_the_last_go_of_the_last_script(self):
        self.write("GestionSQL2.cfc", SECOND + "select 1\n")
        ended = self.install("--connection", self.connection())
        self.expect(ended, 1, "",
                    f"qvrscript: {self.file('GestionSQL2.cfc')}:4: no GO line follows this, and it is not run: select 1\n"
                    "qvrscript: nothing was run\n")

    def test_a_command_through_two_scripts_is_told_where_it_begins(self):
        self.write("GestionSQL1.cfc", FIRST + "\ncreate table")
        self.write("GestionSQL2.cfc", "nonsense(\nGO\n")
        ended = self.install("--connection", self.connection(), "--quiet")
        self.assertEqual(ended.err.splitlines()[0], f"{self.file('GestionSQL1.cfc')}:4: command 2 of 2 failed")


class Example(ProgramTest):
    """The example's database, from its connection file to the last version."""

    def test_it_is_installed_and_updated(self):
        folder, scripts = self.program.path_of(self.folder), self.program.path_of(ROOT / "examples/gestion/scripts/sqlite")
        ended = subprocess.run([ROOT / "examples/gestion/console_program.sh", self.database, folder, scripts,
                                *self.program.words(())], env=self.program.environment({}), capture_output=True,
                               check=False, timeout=240)
        told = [line for line in ended.stdout.decode().splitlines() if not line.startswith("> ")]
        file = folder + ("\\" if self.program.wine else "/") + "consola.cfp"
        self.assertEqual((told, ended.stderr, ended.returncode), ([
            f"{file}: written (Jet)",
            f"{file}: fine (Jet)",
            "Gestion, definition, Jet: 4 files, 260 commands",
            "  GestionJET1.cfc: 14 commands",
            "  GestionJET2.cfc: 97 commands",
            "  GestionJET3.cfc: 56 commands",
            "  GestionJET4.cfc: 93 commands",
            '  [NombreBD] becomes "Gestion": 1 time',
            '  [UsuarioQVRAdm] becomes "Admin": 3 times',
            '  [UsuarioQVRCli] becomes "app": 2 times',
            "rehearsed: 260 of 260 commands; all taken back",
            "done: 260 of 260 commands",
            "Gestion, update from 10000, Jet: 3 files, 20 commands",
            "  Gestion10000a10010JET.cfc: 6 commands",
            "  Gestion10010a10020JET.cfc: 8 commands",
            "  Gestion10020a10100JET.cfc: 6 commands",
            "done: 20 of 20 commands",
            "up to date: Gestion has no update from 10100"], b"", 0))
        self.assertEqual(self.rows('select "Versi\u00f3n" from Esquema'), [(10100,)])
        users = self.rows('select "Nombre" from Usuarios')
        self.assertIn(("Admin",), users)
        self.assertIn(("app",), users)
