"""Prints the cells of a workbook, a line each: sheet, place, t (text) or n (number), value. Then its other marks."""

import sys
import xml.etree.ElementTree as tree
import zipfile

MAIN = "{http://schemas.openxmlformats.org/spreadsheetml/2006/main}"

with zipfile.ZipFile(sys.argv[1]) as book:
    def part(name):
        return tree.fromstring(book.read("xl/" + name))

    texts = ["".join(node.text or "" for node in item.iter(MAIN + "t")) for item in part("sharedStrings.xml")]
    for number, sheet in enumerate(part("workbook.xml").iter(MAIN + "sheet"), 1):
        content = part(f"worksheets/sheet{number}.xml")
        name = sheet.get("name")
        for cell in content.iter(MAIN + "c"):
            value = cell.find(MAIN + "v")
            if value is None:
                continue
            is_text = cell.get("t") == "s"
            shown = texts[int(value.text)] if is_text else value.text
            print(name, cell.get("r"), "t" if is_text else "n", shown, sep="\t")
        for pane in content.iter(MAIN + "pane"):
            print(name, "frozen", pane.get("topLeftCell"), sep="\t")
        if any(setup.get("fitToPage") == "1" for setup in content.iter(MAIN + "pageSetUpPr")):
            for setup in content.iter(MAIN + "pageSetup"):
                print(name, "pages wide and high", setup.get("fitToWidth", "1"), setup.get("fitToHeight", "1"), sep="\t")
        for merged in content.iter(MAIN + "mergeCell"):
            print(name, "merged", merged.get("ref"), sep="\t")
