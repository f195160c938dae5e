#!/usr/bin/env python3
"""Holds what `qvrscript check` writes for other programs against the schemas of its formats, and the schemas against
documents that are wrong. Usage: check_documents.py PROGRAM SCHEMA-OF-JSON SCHEMA-OF-SARIF"""
import copy
import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

import jsonschema

PROGRAM = str(pathlib.Path(sys.argv[1]).resolve())


def validator(path):
    schema = json.loads(pathlib.Path(path).read_text(encoding="utf-8"))
    jsonschema.Draft7Validator.check_schema(schema)
    return jsonschema.Draft7Validator(schema)


JSON, SARIF = validator(sys.argv[2]), validator(sys.argv[3])

# By name: what is wrong with each is told in its lines.
SCRIPTS = {
    "GestionSQL1.cfc": b"select 1\r\nGO\r\nuse X\r\nGO\r\ncommit\r\nGO\r\nselect 2\r\nGO;\r\n",
    "50% a\xf1o: uno, dos;SQL1.cfc": b"-- qvrscript: ignore own-transaction: \xc3\xb1 \"<so>\"\r\ncommit\r\nGO\r\n",
    "\x01SQL1.cfc": b"select 1\nGO\n",
    "emptySQL1.cfc": b"",
    "manySQL1.cfc": b"GO 5\r\n" * 1500 + b"select 1\r\nGO\r\n",
}


class Documents(unittest.TestCase):
    def setUp(self):
        holder = tempfile.TemporaryDirectory()
        self.addCleanup(holder.cleanup)
        self.folder = pathlib.Path(holder.name)
        (self.folder / "scripts").mkdir()
        for name, bytes_of in SCRIPTS.items():
            (self.folder / "scripts" / name).write_bytes(bytes_of)

    def document(self, *arguments):
        run = subprocess.run([PROGRAM, "check", *arguments], cwd=self.folder, capture_output=True, check=False)
        self.assertIn(run.returncode, (0, 1))
        return json.loads(run.stdout.decode("utf-8"))

    def each(self, *options):
        """Documents of a folder with everything, of a path that leads nowhere, and of a script that is fine."""
        (self.folder / "fine.txt").write_bytes(b"select 1\r\nGO\r\n")
        for paths in (["scripts"], ["scripts", "none.cfc", str(self.folder / "none.cfc")], ["fine.txt"]):
            yield self.document(*options, *paths)

    def test_json_is_as_its_schema_says(self):
        for document in self.each("--json"):
            JSON.validate(document)
        (self.folder / "empty").mkdir()
        JSON.validate(self.document("--json", "--lock", "x.lock", "--update", "empty"))
        JSON.validate(self.document("--json", "--lock", "none.lock", "empty"))

    def test_sarif_is_as_its_schema_says(self):
        for document in self.each("--format", "sarif"):
            SARIF.validate(document)
        SARIF.validate(self.document("--format", "sarif", "--lock", "none.lock", "scripts"))

    def test_sarif_and_json_tell_the_same(self):
        told = self.document("--json", "scripts")
        results = self.document("--format", "sarif", "scripts")["runs"][0]["results"]
        self.assertEqual(sorted((each["rule"], each["message"]) for each in told["findings"] + told["silenced"]),
                         sorted((each["ruleId"], each["message"]["text"]) for each in results))
        self.assertEqual(len(told["silenced"]), sum(len(each["suppressions"]) for each in results))
        self.assertEqual(told["omitted"]["error"], 500)

    def test_sarif_names_files_relative_to_where_it_ran(self):
        results = self.document("--format", "sarif", "scripts")["runs"][0]["results"]
        uris = {each["locations"][0]["physicalLocation"]["artifactLocation"]["uri"] for each in results}
        self.assertEqual(uris, {"scripts/GestionSQL1.cfc", "scripts/50%25%20a%C3%B1o%3A%20uno%2C%20dos%3BSQL1.cfc",
                                "scripts/%01SQL1.cfc", "scripts/emptySQL1.cfc", "scripts/manySQL1.cfc"})

    def test_sarif_rules_are_those_of_the_results(self):
        run = self.document("--format", "sarif", "scripts")["runs"][0]
        rules = run["tool"]["driver"]["rules"]
        for result in run["results"]:
            self.assertEqual(rules[result["ruleIndex"]]["id"], result["ruleId"])
            self.assertEqual(rules[result["ruleIndex"]]["defaultConfiguration"]["level"], result["level"])

    def refuses(self, schema, document, change):
        changed = copy.deepcopy(document)
        change(changed)
        self.assertFalse(schema.is_valid(changed))

    def test_schemas_refuse_what_is_wrong(self):
        told = self.document("--json", "scripts")
        self.refuses(JSON, told, lambda each: each.pop("counts"))
        self.refuses(JSON, told, lambda each: each["findings"][0].update(severity="info"))
        self.refuses(JSON, told, lambda each: each["findings"][0].update(column=1))
        self.refuses(JSON, told, lambda each: each["silenced"][0].pop("reason"))
        sarif = self.document("--format", "sarif", "scripts")
        self.refuses(SARIF, sarif, lambda each: each.update(version="2.0.0"))
        result = sarif["runs"][0]["results"].index
        place = result(next(each for each in sarif["runs"][0]["results"] if "region" in
                            each["locations"][0]["physicalLocation"]))
        physical = lambda each: each["runs"][0]["results"][place]["locations"][0]["physicalLocation"]
        self.refuses(SARIF, sarif, lambda each: physical(each)["region"].update(startLine=0))
        self.refuses(SARIF, sarif, lambda each: physical(each)["artifactLocation"].update(uri="a b"))
        self.refuses(SARIF, sarif, lambda each: each["runs"][0]["results"][0].update(level="fatal"))
        self.refuses(SARIF, sarif, lambda each: each["runs"][0]["results"][0].pop("message"))
        self.refuses(SARIF, sarif, lambda each: each["runs"][0]["invocations"][0].pop("executionSuccessful"))


if __name__ == "__main__":
    unittest.main(argv=sys.argv[:1])
