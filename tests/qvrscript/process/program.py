"""The console program as a process of its own: natively, or under Wine with Windows' kind of paths."""
import os
import pathlib
import subprocess
import tempfile
import unittest
import xml.etree.ElementTree as xml

ROOT = pathlib.Path(__file__).resolve().parents[3]


class Program:
    def __init__(self, path, wine):
        self.path, self.wine = path, wine
        self.driver = None  # of the driver for tests, natively only

    def path_of(self, path):
        """A path as the program takes it."""
        return "Z:" + str(path).replace("/", "\\") if self.wine else str(path)

    def words(self, arguments):
        first = [str(ROOT / "tools/wine.sh"), self.path] if self.wine else [self.path]
        return first + list(arguments)

    def environment(self, more):
        return {**os.environ, "LC_ALL": "C.UTF-8", **more}


class Ended:
    """An ended process: its exit code, and what it wrote with LF line ends."""

    def __init__(self, code, out, err):
        self.code = code
        self.out, self.err = (text.decode("utf-8", "surrogateescape").replace("\r\n", "\n") for text in (out, err))


class ProgramTest(unittest.TestCase):
    program = None
    maxDiff = None

    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)
        self.database = self.folder / "test.db"

    def write(self, name, content):
        path = self.folder / name
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content if isinstance(content, bytes) else content.encode())
        return self.shown(name)

    def shown(self, name):
        """A file's path as it is given to the program and shown by it."""
        return self.program.path_of(self.folder / name)

    def connection(self):
        # The database driver is the host system's and wants its kind of path, also under Wine.
        return f'Provider=MSDASQL;Extended Properties="DRIVER={{SQLite3}};Database={self.database};"'

    def played(self, behaviour):
        """A connection of the driver for tests."""
        return f'Provider=MSDASQL;Extended Properties="DRIVER={self.program.driver};{behaviour}"'

    def start(self, *arguments, env=None, **more):
        for stream in ("stdin", "stdout", "stderr"):
            more.setdefault(stream, subprocess.DEVNULL if stream == "stdin" else subprocess.PIPE)
        return subprocess.Popen(self.program.words(arguments), env=self.program.environment(env or {}), **more)

    def run_program(self, *arguments, env=None, text=b"", **more):
        process = self.start(*arguments, env=env, stdin=subprocess.PIPE, **more)
        out, err = process.communicate(text, timeout=240)
        return Ended(process.returncode, out or b"", err or b"")

    def expect(self, ended, code, out, err=""):
        self.assertEqual((ended.out, ended.err, ended.code), (out, err, code))

    def rows(self, query):
        """What the database holds, by SQLite's own library."""
        import sqlite3
        with sqlite3.connect(self.database) as connection:
            return connection.execute(query).fetchall()


def run_tests(cases, path):
    """Runs the tests and lists each as a case in an XML file; the exit code."""
    suite = unittest.TestSuite()
    for case in cases:
        suite.addTests(unittest.defaultTestLoader.loadTestsFromTestCase(case))
    tests = list(suite)
    result = unittest.TextTestRunner(verbosity=2).run(suite)
    bad = {id(test.test_case if hasattr(test, "test_case") else test) for test, _ in result.failures + result.errors}
    root = xml.Element("testsuites")
    for test in tests:
        case = xml.SubElement(root, "testcase", name=test.id().split(".")[-1], status="run", result="completed",
                              classname=type(test).__name__)
        if id(test) in bad:
            xml.SubElement(case, "failure")
    pathlib.Path(path).parent.mkdir(parents=True, exist_ok=True)
    xml.ElementTree(root).write(path)
    return 0 if result.wasSuccessful() and tests and not result.skipped else 1
