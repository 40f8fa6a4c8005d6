"""The page in headless Chromium: it shows the line-up and the programmes on
now as the library reads them, its slow switch makes the service slow, and
an event sent on the bus shows within a second.

page_test.py BUILD SOURCE [--screenshot FILE]: with --screenshot, saves the
page on the default data instead."""
import shutil
import sys
import time
import unittest

from harness import Service

BUILD, SOURCE = sys.argv.pop(1), sys.argv.pop(1)
SLOW_REPLY_MS = 1500

try:
    from selenium import webdriver
    from selenium.webdriver.chrome.service import Service as DriverService
    from selenium.webdriver.common.by import By
    from selenium.webdriver.support.ui import WebDriverWait
except ImportError:
    webdriver = None
CHROMIUM, DRIVER = shutil.which("chromium"), shutil.which("chromedriver")


def open_browser():
    options = webdriver.ChromeOptions()
    options.binary_location = CHROMIUM
    for flag in ["--headless", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
                 "--disable-background-networking", "--disable-component-update", "--disable-sync",
                 "--window-size=1400,900"]:
        options.add_argument(flag)
    # Chromium makes itself a fresh profile folder when none is named.
    return webdriver.Chrome(service=DriverService(DRIVER), options=options)


def guide_rows(browser, count):
    rows = WebDriverWait(browser, 10).until(
        lambda b: (lambda found: found if len(found) >= count else None)(
            b.find_elements(By.CSS_SELECTOR, "#guide .row:not(.times)")))
    return [(row.find_element(By.CLASS_NAME, "name").text,
             row.find_element(By.CSS_SELECTOR, ".programme.now").text) for row in rows[:count]]


def library_guide(service, count):
    """The first channels of activity 0 and the titles on now, through the library."""
    channels = service.cli_json("catalogue", "channels", "0")["channel_array"][:count]
    now = str(int(time.time()))
    return [(c["str_channel_name"], service.cli_json("catalogue", "program", "0", c["str_program_source_id"], now)["title"])
            for c in channels]


def call_seconds(service):
    start = time.monotonic()
    service.cli("env", "get")
    return time.monotonic() - start


class PageInBrowser(unittest.TestCase):
    def setUp(self):
        self.service = Service(BUILD, SOURCE, SLOW_REPLY_MS).__enter__()
        self.browser = open_browser()
        self.browser.get(self.service.url)

    def tearDown(self):
        self.browser.quit()
        self.service.__exit__()

    def test_shows_the_lineup_with_the_programmes_on_now(self):
        before = library_guide(self.service, 5)
        shown = guide_rows(self.browser, 5)
        self.assertIn(shown, [before, library_guide(self.service, 5)])

    def test_slow_switch_makes_the_service_slow_until_turned_off(self):
        switch = self.browser.find_element(By.ID, "slow")
        for on in (True, False):
            switch.click()
            deadline = time.monotonic() + 5
            while (call_seconds(self.service) >= SLOW_REPLY_MS / 1000) != on and time.monotonic() < deadline:
                pass
            self.assertEqual(call_seconds(self.service) >= SLOW_REPLY_MS / 1000, on)

    def test_an_event_on_the_bus_shows_within_a_second(self):
        guide_rows(self.browser, 1)
        self.service.cli("emit", "FavoriteChanged", "0", "1", "3")
        WebDriverWait(self.browser, 1).until(
            lambda b: "13 FavoriteChanged (0, 1, 3)" in b.find_element(By.ID, "events").text)

    def test_a_change_redraws_the_page_without_reloading(self):
        guide_rows(self.browser, 1)
        self.service.cli("env", "set", "DE", "de")
        WebDriverWait(self.browser, 2).until(lambda b: "DE" in b.find_element(By.ID, "environment").text)


def screenshot(path):
    with Service(BUILD, SOURCE) as service:
        browser = open_browser()
        try:
            browser.set_window_size(1400, 1150)
            browser.get(service.url)
            guide_rows(browser, 5)
            # One event sent from the page's own form, so that the list shows one.
            for field, value in [("emit-event", "ChannelMapChanged"), ("emit-p1", "0"), ("emit-p2", "60")]:
                browser.find_element(By.ID, field).clear()
                browser.find_element(By.ID, field).send_keys(value)
            browser.find_element(By.CSS_SELECTOR, "#emit button").click()
            WebDriverWait(browser, 5).until(lambda b: b.find_elements(By.CSS_SELECTOR, "#events .event"))
            time.sleep(2.5)  # until the new line's highlight fades
            browser.save_screenshot(path)
        finally:
            browser.quit()


if __name__ == "__main__":
    if webdriver is None or not CHROMIUM or not DRIVER:
        print("page test skipped: no browser here (Debian chromium, chromium-driver and python3-selenium)")
        sys.exit(77)
    if len(sys.argv) == 3 and sys.argv[1] == "--screenshot":
        screenshot(sys.argv[2])
    else:
        unittest.main()
