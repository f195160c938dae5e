"""A headless Chromium that tells what a page asked for and what went wrong on it."""
import json
import pathlib
import re
import time

from selenium import webdriver
from selenium.webdriver.chrome.options import Options
from selenium.webdriver.chrome.service import Service

WIDE, NARROW = 1280, 360
PATIENCE = 15  # seconds
# Chromium as root wants no sandbox. No name is ever resolved: what a page asks of the web fails at once.
FLAGS = ("--headless=new", "--no-sandbox", "--disable-gpu", "--disable-dev-shm-usage", "--no-first-run",
         "--disable-background-networking", "--disable-component-update", "--host-resolver-rules=MAP * ~NOTFOUND")


class Browser:
    def __init__(self, folder):
        self.folder = pathlib.Path(folder)
        options = Options()
        options.binary_location = "/usr/bin/chromium"
        for each in FLAGS:
            options.add_argument(each)
        options.set_capability("goog:loggingPrefs", {"browser": "ALL", "performance": "ALL"})
        self.driver = webdriver.Chrome(service=Service("/usr/bin/chromedriver"), options=options)
        self.resize(WIDE)

    def close(self):
        self.driver.quit()

    def resize(self, width, height=800):
        self.driver.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", {
            "width": width, "height": height, "deviceScaleFactor": 1, "mobile": width == NARROW})

    def address(self, page):
        """Of a page below the site's folder, with its query or anchor."""
        file = re.split(r"[?#]", page, maxsplit=1)[0]
        return (self.folder / file).as_uri() + page[len(file):]

    def forget(self):
        self.driver.get_log("browser")
        self.driver.get_log("performance")

    def open(self, page):
        self.forget()
        self.driver.get(self.address(page))

    def place(self):
        """The page that is shown, with its anchor, below the site's folder."""
        return self.driver.current_url.removeprefix(self.folder.as_uri() + "/")

    def complaints(self):
        """What the console has shown since the page was opened."""
        return [entry["message"] for entry in self.driver.get_log("browser")]

    def requests(self):
        messages = (json.loads(entry["message"])["message"] for entry in self.driver.get_log("performance"))
        return [each["params"]["request"]["url"] for each in messages if each["method"] == "Network.requestWillBeSent"]

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def find(self, selector):
        return self.driver.find_element("css selector", selector)

    def wait(self, condition, what):
        """Until the condition is true; what it gave then."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            value = condition()
            if value:
                return value
            time.sleep(0.02)
        raise AssertionError(f"not within {PATIENCE} seconds: {what}")
