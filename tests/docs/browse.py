#!/usr/bin/python3
"""Opens every page of the manual in a wide and in a narrow window and follows its links within the site:
browse.py SITE [DIRECTORY FOR PICTURES]"""
import base64
import pathlib
import sys
from urllib.parse import unquote, urldefrag, urlparse

from selenium import webdriver

site = pathlib.Path(sys.argv[1]).resolve()
pictures = pathlib.Path(sys.argv[2]) if len(sys.argv) > 2 else None
options = webdriver.ChromeOptions()
# No other host is asked.
for argument in "headless", "no-sandbox", "disable-dev-shm-usage", "host-resolver-rules=MAP * ~NOTFOUND":
    options.add_argument(argument)
options.set_capability("goog:loggingPrefs", {"browser": "ALL"})

LINKS = """return [...document.querySelectorAll('[href], [src]')]
    .map(e => new URL(e.getAttribute('href') || e.getAttribute('src'), document.baseURI).href)"""
faults, links, anchors = [], set(), {}
pages = sorted(site.rglob("*.html"))
with webdriver.Chrome(options=options) as browser:
    for page in pages:
        name = page.relative_to(site)
        for width in 1280, 400:
            window = {"width": width, "height": 900, "deviceScaleFactor": 1, "mobile": False}
            browser.execute_cdp_cmd("Emulation.setDeviceMetricsOverride", window)
            browser.get(page.as_uri())
            faults += [f"{name}: {entry['message']}" for entry in browser.get_log("browser")]
            links |= {(name, link) for link in browser.execute_script(LINKS) if link.startswith("file:")}
            anchors[page] = browser.execute_script("return [...document.querySelectorAll('[id]')].map(e => e.id)")
            needed = browser.execute_script("return document.documentElement.scrollWidth")
            if needed > width:
                faults.append(f"{name}: {needed} pixels wide in a window of {width}")
            if pictures:
                shot = browser.execute_cdp_cmd("Page.captureScreenshot", {"captureBeyondViewport": True})
                picture = pictures / str(width) / name.with_suffix(".png")
                picture.parent.mkdir(parents=True, exist_ok=True)
                picture.write_bytes(base64.b64decode(shot["data"]))
for name, link in sorted(links):
    url, anchor = urldefrag(link)
    target = pathlib.Path(unquote(urlparse(url).path))
    if not target.exists() or anchor and unquote(anchor) not in anchors.get(target, []):
        faults.append(f"{name}: leads nowhere: {link}")
print(f"{len(pages)} pages opened, {len(links)} links followed", *faults, sep="\n")
sys.exit(bool(faults) or not pages)
