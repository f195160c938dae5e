"""Runs unittest cases and leaves their outcomes as tools/test.sh reads them."""
import sys
import time
import unittest
import xml.etree.ElementTree as xml


class Result(unittest.TextTestResult):
    def __init__(self, *arguments):
        super().__init__(*arguments)
        self.cases = []

    def startTest(self, test):
        super().startTest(test)
        self.began, self.bad = time.monotonic(), None

    def addError(self, test, error):
        super().addError(test, error)
        self.bad = self._exc_info_to_string(error, test)

    def addFailure(self, test, error):
        super().addFailure(test, error)
        self.bad = self._exc_info_to_string(error, test)

    def stopTest(self, test):
        super().stopTest(test)
        self.cases.append((test.id().partition(".")[2], time.monotonic() - self.began, self.bad))

    def write(self, path):
        suite = xml.Element("testsuite", tests=str(len(self.cases)))
        for name, seconds, bad in self.cases:
            case = xml.SubElement(suite, "testcase", name=name, time=f"{seconds:.3f}", status="fail" if bad else "run")
            if bad:
                xml.SubElement(case, "failure").text = bad
        # A class that could not be set up has no cases of its own, but is a failure.
        for test, text in self.errors:
            if not isinstance(test, unittest.TestCase):
                case = xml.SubElement(suite, "testcase", name=str(test), time="0", status="fail")
                xml.SubElement(case, "failure").text = text
        xml.ElementTree(suite).write(path, encoding="utf-8", xml_declaration=True)


def run(*modules, results=None):
    loader = unittest.defaultTestLoader
    suite = unittest.TestSuite(loader.loadTestsFromModule(sys.modules[name]) for name in modules)
    result = unittest.TextTestRunner(verbosity=1, resultclass=Result).run(suite)
    if results:
        result.write(results)
    return 0 if result.wasSuccessful() and result.testsRun > 0 else 1
