"""A headless Chromium that tells what a page asked for and what went wrong on it."""
import base64
import json
import pathlib
import re
import time

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

WIDE, NARROW = 1280, 360
# Seconds; far longer than anything here takes on a busy machine. Only a wait for what never comes lasts as long.
PATIENCE = 60
# Chromium as root wants no sandbox. No name is ever resolved: what a page asks of the web fails at once.
FLAGS = ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--host-resolver-rules=MAP * ~NOTFOUND")
# Its address, once all of the document is there and its first text or picture has been painted.
SHOWN = """
return document.readyState === "complete" && performance.getEntriesByName("first-contentful-paint").length > 0
    && location.href;
"""
# In pixels of the screen; a page that is wider than a narrow screen is shown smaller.
SCREEN = "return Math.round(innerWidth * visualViewport.scale)"
SUMMARY = "const summary = document.querySelector('.search-summary'); return summary && summary.innerText"


class Browser:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        options = Options()
        options.binary_location = "/usr/bin/chromium"
        for each in FLAGS:
            options.add_argument(each)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.driver.set_script_timeout(PATIENCE)
        self.forget()
        self.resize(WIDE)

    def close(self):
        self.driver.quit()

    def resize(self, width, height=800):
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": height, "deviceScaleFactor": 1, "mobile": width == NARROW})
        self.wait(lambda: abs(self.run(SCREEN) - width) <= 1, f"the screen is {width} pixels wide")

    def address(self, page):
        """Of a page below the site's folder, with its query or anchor."""
        file = re.split(r"[?#]", page, maxsplit=1)[0]
        return (self.folder / file).resolve().as_uri() + page[len(file):]

    def forget(self):
        self.driver.get_log("browser")
        self.driver.get_log("performance")
        self.console, self.network = [], []

    def open(self, page):
        """Until a reader sees it."""
        self.forget()
        self.driver.get(self.address(page))
        self.arrive(page)

    def arrive(self, page):
        """Until a reader sees the page that was opened or that a link leads to. What the driver itself waits for may be
        the end of the page before, while this one is still being read."""
        address = self.address(page)
        self.wait(lambda: self.run(SHOWN) == address, f"{page} is shown")

    def complaints(self):
        """What the console has shown since the page was opened."""
        self.console += [entry["message"] for entry in self.driver.get_log("browser")]
        return self.console

    def requests(self):
        """The addresses that were asked for since the page was opened."""
        messages = (json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance"))
        self.network += [each["params"]["request"]["url"] for each in messages
                         if each["method"] == "Network.requestWillBeSent"]
        return self.network

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def find(self, selector):
        return self.driver.find_element("css selector", selector)

    def search_summary(self):
        """What the search says when it has added its last hit."""
        return self.wait(lambda: self.run(SUMMARY), "the search is finished")

    def picture(self):
        """Of the page at rest: the second of two in a row that are the same."""
        last = None

        def at_rest():
            nonlocal last
            before, last = last, self.driver.execute_cdp_cmd("Page.captureScreenshot", {"format": "png"})["data"]
            return last if last == before else None

        return base64.b64decode(self.wait(at_rest, "the page is at rest"))

    def wait(self, condition, what):
        """Until the condition is true; what it gave then."""
        end = time.monotonic() + PATIENCE
        while not (value := condition()):
            if time.monotonic() > end:
                raise AssertionError(f"not within {PATIENCE} seconds: {what}")
            time.sleep(0.02)
        return value
