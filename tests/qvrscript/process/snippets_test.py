"""The manual's examples of qvrscript, run as they stand there, and its documents beside their schema."""
import json
import os
import pathlib
import re
import subprocess
import xml.etree.ElementTree as xml

import jsonschema
from program import ROOT, ProgramTest

MANUAL = ROOT / "docs/manual"
GOOD = b"create table [NombreBD](N int)\r\nGO\r\n"
BAD = b"create table T(N int)\r\nGO;\r\n"
REFUSED = b"nonsense\r\nGO\r\n"


def snippet(language, name):
    page = (MANUAL / language / "qvrscript-build-servers.md").read_text(encoding="utf-8")
    found = re.findall(rf"^<!-- {name} -->\n```sh\n(.*?)^```$", page, re.MULTILINE | re.DOTALL)
    assert len(found) == 1, f"{language}: {len(found)} snippets {name}"
    return found[0]


class Silencing(ProgramTest):
    """The comment that the page for scripts shows."""

    def test_it_silences_what_it_names(self):
        for language in ("en", "es"):
            page = (MANUAL / language / "qvrscript-scripts.md").read_text(encoding="utf-8")
            example, = re.findall(r"^```sql\n(.*?)^```$", page, re.MULTILINE | re.DOTALL)
            script = self.write("x.cfc", example.replace("\n", "\r\n"))
            told = json.loads(self.run_program("check", "--json", "--fail-on", "note", script).out)
            self.assertEqual((told["findings"], told["exitCode"]), ([], 0))
            self.assertEqual([each["rule"] for each in told["silenced"]], ["no-transaction", "own-transaction"])


class Snippets(ProgramTest):
    """A folder as a project has it, with the program where shells look for it."""

    def setUp(self):
        super().setUp()
        (self.folder / "bin").mkdir()
        (self.folder / "bin/qvrscript").symlink_to(pathlib.Path(self.program.path).resolve())
        self.project = self.folder / "project"
        self.project.mkdir()
        (self.folder / "tmp").mkdir()

    def put(self, name, content):
        self.write(f"project/{name}", content)

    def call(self, *words, **more):
        # Nothing of the machine's own settings, and none of a repository around.
        environment = {name: value for name, value in os.environ.items() if not name.startswith("GIT_")}
        environment |= {"LC_ALL": "C.UTF-8", "PATH": f"{self.folder}/bin:{os.environ['PATH']}",
                        "HOME": str(self.folder), "GIT_CONFIG_NOSYSTEM": "1", "TMPDIR": str(self.folder / "tmp"),
                        **more}
        return subprocess.run(words, cwd=self.project, env=environment, capture_output=True, text=True, timeout=120,
                              check=False)

    def snippet(self, name):
        """It is the same in both languages."""
        english = snippet("en", name)
        self.assertEqual(snippet("es", name), english)
        return english


class Hook(Snippets):
    def setUp(self):
        super().setUp()
        for words in (("init", "-q"), ("config", "user.name", "A"), ("config", "user.email", "a@b.example"),
                      ("config", "commit.gpgsign", "false")):
            self.git(*words)
        hook = self.project / ".git/hooks/pre-commit"
        hook.parent.mkdir(exist_ok=True)
        hook.write_text(self.snippet("pre-commit"))
        hook.chmod(0o755)
        self.put(".gitattributes", "*.cfc -text\n")

    def git(self, *words):
        ended = self.call("git", *words)
        self.assertEqual(ended.returncode, 0, ended.stderr)
        return ended.stdout

    def commit(self, *words):
        return self.call("git", "commit", "-q", "-m", "x", *words)

    def commits(self):
        return self.git("rev-list", "--all", "--count").strip()

    def expect_refused(self, told):
        ended = self.commit()
        self.assertEqual(ended.returncode, 1, ended.stderr)
        self.assertIn(told, ended.stdout + ended.stderr)

    def test_scripts_without_findings_are_committed(self):
        self.put("scripts/GestionSQL1.cfc", GOOD)
        self.git("add", ".")
        ended = self.commit()
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr), (0, "", ""))
        self.assertEqual(self.commits(), "1")
        self.assertEqual(list((self.folder / "tmp").iterdir()), [])

    def test_findings_refuse_the_commit(self):
        self.put("scripts/GestionSQL1.cfc", BAD)
        self.git("add", ".")
        self.expect_refused("scripts/GestionSQL1.cfc:2: error: ")
        self.assertEqual(self.commits(), "0")
        self.assertEqual(list((self.folder / "tmp").iterdir()), [])

    def test_what_is_staged_counts(self):
        self.put("scripts/GestionSQL1.cfc", BAD)
        self.git("add", ".")
        self.put("scripts/GestionSQL1.cfc", GOOD)
        self.expect_refused("[go-semicolon]")
        self.git("add", ".")
        self.put("scripts/GestionSQL1.cfc", BAD)
        self.assertEqual(self.commit().returncode, 0)

    def test_a_folder_without_scripts_is_committed(self):
        self.put("scripts/old/GestionSQL1.cfc", BAD)
        self.put("scripts/README", "none yet")
        self.git("add", ".")
        self.assertEqual(self.commit().returncode, 0)

    def test_without_the_program_nothing_is_committed(self):
        (self.folder / "bin/qvrscript").unlink()
        self.put("scripts/GestionSQL1.cfc", GOOD)
        self.git("add", ".")
        self.assertNotEqual(self.commit().returncode, 0)
        self.assertEqual(self.commits(), "0")


class Job(Snippets):
    def job(self):
        self.put("job", self.snippet("build job"))
        return self.call("sh", "job", GESTION_DB=self.connection())

    def report(self, name):
        return (self.project / "reports" / name).read_text(encoding="utf-8")

    def findings(self):
        run, = json.loads(self.report("scripts.sarif"))["runs"]
        return [result["ruleId"] for result in run["results"]]

    def cases(self):
        return [[child.tag for child in case] for case in xml.fromstring(self.report("install.xml").encode())]

    def test_all_is_well_and_nothing_stays(self):
        self.put("scripts/GestionSQL1.cfc", GOOD)
        ended = self.job()
        self.assertEqual((ended.returncode, ended.stdout, ended.stderr), (0, "", ""))
        self.assertEqual((self.findings(), self.cases()), ([], [[]]))
        self.assertIn("<testsuite ", self.report("install.log"))
        self.assertEqual(self.rows("select name from sqlite_master"), [])

    def test_a_finding_ends_it_and_is_reported(self):
        self.put("scripts/GestionSQL1.cfc", BAD)
        self.assertEqual(self.job().returncode, 1)
        self.assertEqual(sorted(self.findings()), ["go-semicolon", "no-go"])
        self.assertFalse(self.database.exists())

    def test_a_command_that_fails_ends_it_and_is_reported(self):
        self.put("scripts/GestionSQL1.cfc", GOOD + REFUSED + b"create table U(N int)\r\nGO\r\n")
        ended = self.job()
        self.assertEqual(ended.returncode, 1)
        self.assertIn("scripts/GestionSQL1.cfc:3: command 2 of 3 failed", ended.stderr)
        self.assertEqual((self.findings(), self.cases()), ([], [[], ["failure"], ["skipped"]]))
        self.assertIn("all taken back", self.report("install.log"))
        self.assertEqual(self.rows("select name from sqlite_master"), [])


class Documents(ProgramTest):
    """Documents of runs beside the schema that the manual leads to."""

    def setUp(self):
        super().setUp()
        schema = json.loads((MANUAL / "schemas/qvrscript-run.schema.json").read_text(encoding="utf-8"))
        jsonschema.Draft202012Validator.check_schema(schema)
        self.schema = jsonschema.Draft202012Validator(schema)

    def document(self, code, command, *words):
        ended = self.run_program(command, "--json", *words)
        self.assertEqual(ended.code, code, ended.err)
        told = json.loads(ended.out)
        self.schema.validate(told)
        # A field that it does not know, or one less, would be found.
        self.assertFalse(self.schema.is_valid({**told, "more": 1}))
        self.assertFalse(self.schema.is_valid({name: value for name, value in told.items() if name != "command"}))
        return told

    def script(self, code, content, *words, engine="sqlserver"):
        return self.document(code, "run", "--engine", engine, "--connection", self.connection(), *words,
                             self.write("x.cfc", content))

    def load(self, code, command, *words):
        return self.document(code, command, "--engine", "sqlserver", *words, str(self.folder), "Gestion")

    def test_runs(self):
        self.assertEqual(self.script(0, GOOD, "--timing")["ending"], "committed")
        self.assertEqual(self.script(0, b"create table U(N int)\r\nGO\r\n", "--rehearse")["ending"], "rehearsed")
        self.assertEqual(self.script(1, REFUSED, "--no-transaction")["ending"], "kept")
        self.assertEqual(self.script(1, REFUSED + b"select 1")["ending"], "nothing")
        failed = b"create table V(N int)\r\nGO\r\n" + REFUSED
        self.assertEqual(self.script(1, failed)["ending"], "takenBack")
        self.assertEqual(self.script(1, failed, engine="oracle")["keptUpTo"],
                         {"command": 1, "statement": "create table"})

    def test_the_end_tells_whether_there_is_more_to_tell(self):
        told = self.script(1, b"create table V(N int)\r\nGO\r\n" + REFUSED, engine="oracle")
        self.assertFalse(self.schema.is_valid({**told, "ending": "takenBack"}))
        self.assertFalse(self.schema.is_valid({name: value for name, value in told.items() if name != "keptUpTo"}))

    def test_a_failure_outside_the_commands(self):
        told = self.document(1, "run", "--engine", "jet", "--connection", "Provider=MSDASQL;Data Source=NoSuchDsn",
                             self.write("x.cfc", GOOD))
        self.assertIsNone(told["failures"][0]["command"])

    def test_plans_and_texts(self):
        self.write("GestionSQL1.cfc", GOOD + b"select 1")
        self.write("Gestion10023a10024SQL.cfc", GOOD)
        self.write("Gestion10024a10025SQL.cfc", GOOD)
        self.assertEqual(self.load(1, "install", "--plan")["notRun"][0]["line"], 3)
        self.assertEqual([each["pending"] for each in self.load(0, "update", "--from", "10024", "--plan")["files"]],
                         [False, True])
        self.assertEqual(self.load(0, "update", "--from", "10024", "--out", self.shown("all.txt"))["commands"], 1)
        told = self.load(0, "update", "--from", "10025", "--connection", self.connection())
        self.assertEqual((told["total"], told["ending"]), (0, "nothing"))

    def test_what_goes_no_further(self):
        told = self.document(1, "run", "--engine", "jet", "--connection", "x", self.shown("none.cfc"))
        self.assertEqual(told["exitCode"], 1)
        self.assertIsNone(self.document(2, "install", "--nothing")["command"])
