#!/usr/bin/env python3
"""Runs the example's script files for one engine on H2 and tells whether they leave what they say.

Usage: run_installation.py SCRIPTS sqlserver|oracle

Left out is what H2 does not know; how many commands that may be is written here, so that nothing else goes missing.
"""
import pathlib
import re
import subprocess
import sys
import tempfile

JAR = pathlib.Path("/usr/share/java/h2.jar")
GO = "\r\nGO\r\n"
ACCOUNTS = {"[NombreBD]": "Gestion", "[LogFile]": "Gestion0930", "[UsuarioQVRAdm]": "Begoña", "[UsuarioQVRCli]": "mostrador",
            "[ClaveUsuarioQVRAdm]": "uno", "[ClaveUsuarioQVRCli]": "dos"}
# Mode of H2, tag of the files, the beginnings of commands that it does not know, how many commands these are.
ENGINES = {
    "sqlserver": ("MSSQLServer", "SQL", (
        "IF NOT EXISTS", "USE ", "CREATE ROLE", "ALTER ROLE", "GRANT ", "CREATE FUNCTION", "CREATE PROCEDURE",
        "ALTER PROCEDURE", "CREATE TRIGGER", "ALTER VIEW", "ALTER TABLE [Líneas] DISABLE", "ALTER TABLE [Líneas] ENABLE",
        "UPDATE [Pedidos] SET [Importe] = [dbo]"), 32),
    "oracle": ("Oracle", "ORA", (
        "CREATE TABLESPACE", "CREATE USER", "GRANT ", "ALTER SESSION", "CREATE OR REPLACE PROCEDURE"), 20),
}


def loaded(folder, tag):
    """The commands of the definition and of all updates, in the order in which they run."""
    names = sorted(folder.glob(f"Gestion{tag}?.cfc")) + sorted(folder.glob(f"Gestion?????a?????{tag}.cfc"))
    text = "".join(path.read_bytes().decode("utf-8") + "\r\n" for path in names)
    for word, value in ACCOUNTS.items():
        text = text.replace(word, value)
    commands = [command.strip() for command in text.split(GO)]
    if commands.pop():
        sys.exit("the last command has no GO line")
    last_version = re.search(r"a(\d{5})", names[-1].name)[1]
    return [re.sub(r"\A--.*\r\n", "", command) for command in commands], last_version


def inserted(commands):
    """How many rows the commands insert, by table."""
    rows = {}
    for command in commands:
        if found := re.match(r"INSERT INTO (\S+) ", command):
            rows[found[1]] = rows.get(found[1], 0) + 1
    return rows


def questions(rows, oracle):
    version, table = ("Version", "Esquema") if oracle else ("[Versión]", "[Esquema]")
    counts = [f"SELECT 'COUNT {name} ' || Count(*) FROM {name}" for name in rows]
    return counts + [f"SELECT 'VERSION ' || {version} FROM {table}"]


def answers(commands, mode):
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder, "script.sql")
        path.write_text(";\n".join(commands) + ";\n", encoding="utf-8")
        run = subprocess.run(
            ["java", "-Dfile.encoding=UTF-8", "-cp", str(JAR), "org.h2.tools.RunScript", "-url",
             f"jdbc:h2:mem:gestion;MODE={mode}", "-user", "sa", "-script", str(path), "-showResults"],
            capture_output=True, text=True, encoding="utf-8")
    if run.returncode != 0:
        sys.exit("the engine refused a command:\n" + run.stderr[:3000])
    return re.findall(r"^--> ((?:COUNT|VERSION) .*)$", run.stdout, re.MULTILINE)


def main():
    if not JAR.exists():
        sys.exit(f"{JAR} is missing: install the packages of tools/packages.txt")
    mode, tag, unknown, left_out = ENGINES[sys.argv[2]]
    commands, last_version = loaded(pathlib.Path(sys.argv[1]), tag)
    known = [command for command in commands if not command.startswith(unknown)]
    if len(commands) - len(known) != left_out:
        sys.exit(f"{len(commands) - len(known)} commands would be left out, expected are {left_out}")
    rows = inserted(known)
    expected = [f"COUNT {name} {count}" for name, count in rows.items()] + [f"VERSION {last_version}"]
    got = answers(known + questions(rows, tag == "ORA"), mode)
    print(f"{len(known)} of {len(commands)} commands on H2 in mode {mode}: {', '.join(got)}")
    if got != expected:
        sys.exit(f"expected: {', '.join(expected)}")


if __name__ == "__main__":
    main()
