#!/usr/bin/env python3
"""Checks the help: pages, links between them, contents and index, and that HELP.CHM holds all of it whole.

Usage: help_pages.py PAGES_DIRECTORY HELP_CHM CHMLS. Prints one line a finding and exits 1 when there is any.
HELP_CHM that is not there is not checked: it is built only where its compiler is installed.
"""

import pathlib
import re
import subprocess
import sys
import tempfile
from html.parser import HTMLParser


class Page(HTMLParser):
    """What the checks need of a page, a table of contents or an index."""

    def __init__(self, text):
        super().__init__()
        self.title, self.links, self.anchors, self.loaded, self.open_tags = "", [], set(), [], []
        self.faults = []
        self.feed(text)

    def handle_starttag(self, tag, attributes):
        values = dict(attributes)
        if "id" in values:
            self.anchors.add(values["id"])
        if tag == "a" and "href" in values:
            self.links.append(values["href"])
        if tag == "param" and values.get("name") == "Local":
            self.links.append(values["value"])
        if tag == "script" or "src" in values or (tag == "link" and values.get("href") != "style.css"):
            self.faults.append(f"loads something beyond the stylesheet: <{tag}>")
        if tag not in ("meta", "link", "br", "param"):
            self.open_tags.append(tag)

    def handle_endtag(self, tag):
        if not self.open_tags or self.open_tags.pop() != tag:
            self.faults.append(f"</{tag}> closes another element, line {self.getpos()[0]}")

    def handle_data(self, data):
        if self.open_tags and self.open_tags[-1] == "title":
            self.title += data


def read(path):
    return Page(path.read_bytes().decode("utf-8"))


def page_findings(pages, whose, links):
    for link in links:
        name, _, anchor = link.partition("#")
        target = pages.get(name)
        if target is None:
            yield f"{whose}: {link} leads nowhere"
        elif anchor and anchor not in target.anchors:
            yield f"{whose}: {link} names no place of that page"


def project_findings(directory, pages):
    """The compiler's files: every page is compiled, stands in the contents, and links lead somewhere."""
    for name in ("help.hhc", "help.hhk"):
        links = re.findall(r'name="Local" value="([^"]*)"', (directory / name).read_text(encoding="utf-8"))
        yield from page_findings(pages, name, links)
        if name == "help.hhc":
            yield from (f"{page} does not stand in {name}" for page in sorted(set(pages) - set(links)))
        # Titles, contents and index are compiled in this code page.
        (directory / name).read_text(encoding="utf-8").encode("gbk")
    project = (directory / "help.hhp").read_text(encoding="utf-8")
    project.encode("gbk")
    listed = project.split("[FILES]")[1].split()
    if sorted(listed) != sorted([*pages, "style.css"]):
        yield f"help.hhp lists {listed}"


def compiled_findings(directory, compiled, lister):
    with tempfile.TemporaryDirectory() as target:
        subprocess.run([lister, "extractall", compiled, target], check=True, capture_output=True)
        for path in sorted(directory.iterdir()):
            if path.suffix not in (".html", ".css", ".hhc", ".hhk"):
                continue
            extracted = pathlib.Path(target) / path.name
            content = path.read_bytes()
            if path.suffix.startswith(".hh"):
                content = content.decode("utf-8").encode("gbk")
            if not extracted.is_file() or extracted.read_bytes() != content:
                yield f"{compiled}: {path.name} is not in it as it was written"
        system = (pathlib.Path(target) / "#SYSTEM").read_bytes()
        if "签到系统帮助".encode("gbk") not in system or b"\x04\x08\x00\x00" not in system:
            yield f"{compiled}: title or language is not the Chinese one"


def main():
    directory = pathlib.Path(sys.argv[1])
    pages = {path.name: read(path) for path in sorted(directory.glob("*.html"))}
    findings = [] if pages else ["there are no pages"]
    for name, page in pages.items():
        findings += [f"{name}: {fault}" for fault in page.faults]
        findings += page_findings(pages, name, page.links)
        if not page.title.strip():
            findings.append(f"{name}: no title")
        if name not in pages["index.html"].links and name != "index.html":
            findings.append(f"{name} does not stand in index.html")
    findings += project_findings(directory, pages)
    compiled = pathlib.Path(sys.argv[2])
    if compiled.is_file():
        findings += compiled_findings(directory, compiled, sys.argv[3])
    print("\n".join(findings) or f"{len(pages)} pages hold together" + ("" if compiled.is_file() else ", no HELP.CHM"))
    return 1 if findings else 0


if __name__ == "__main__":
    sys.exit(main())
