#!/usr/bin/env python3
"""Measures the programs against their floors and prints the table of bench/README.md.

Usage: bench/compare.py [RUNS]. Builds the preset `bench` first. Every pair is measured in one interleaved run,
and the table holds the medians. The homes lie in BENCH_DIR, in memory unless it is set: a disk's file system that is
slow at creating files right after many were deleted would hide what is compared.
"""

import os
import pathlib
import signal
import statistics
import subprocess
import sys
import tempfile
import time

PROJECT = pathlib.Path(__file__).resolve().parent.parent
BIN = PROJECT / "build" / "bench" / "bin"


class Result:
    """One finished process: seconds, peak memory in MB and what it printed as `name value` lines."""

    def __init__(self, command):
        start = time.monotonic()
        with tempfile.TemporaryFile() as messages:
            process = subprocess.Popen([str(part) for part in command], stdout=subprocess.PIPE, stderr=messages)
            output = process.stdout.read().decode()
            _, status, usage = os.wait4(process.pid, 0)
            if status != 0:
                messages.seek(0)
                sys.exit(f"{command} failed: {messages.read().decode()}")
        self.wall = time.monotonic() - start
        self.memory = usage.ru_maxrss / 1024
        pairs = (line.split() for line in output.splitlines())
        self.printed = {pair[0]: float(pair[1]) for pair in pairs if len(pair) == 2 and pair[0].isascii()}

    @property
    def seconds(self):
        return self.printed.get("seconds", self.wall)


def median(results, name):
    return statistics.median(getattr(result, name) for result in results)


def compare(ours, floor, runs):
    """Both commands in turn, after one run of each that warms the caches."""
    Result(ours), Result(floor)
    pairs = [(Result(ours), Result(floor)) for _ in range(runs)]
    return [pair[0] for pair in pairs], [pair[1] for pair in pairs]


def row(what, value, limit):
    print(f"| {what} | {value} | {limit} |")


def ratio_row(what, ours, floor, limit, digits=3):
    a, b = median(ours, "seconds"), median(floor, "seconds")
    row(what, f"{a:.{digits}f} s / {b:.{digits}f} s = {a / b:.2f}", limit)


def demo(directory, name, *arguments):
    home = pathlib.Path(directory) / name
    command = "demo" if arguments else "init"
    subprocess.run([BIN / "attendancectl", "--home", home, command, *arguments], check=True,
                   stdout=subprocess.DEVNULL)
    return home


def measure_cards(home, directory, runs):
    pdf, drawn = directory / "cards.pdf", directory / "drawn.pdf"
    ours, floor = compare([BIN / "attendancectl", "--home", home, "cards", "--all", "--out", pdf],
                          [BIN / "bench_cards_drawn", home, drawn], runs)
    ratio_row("`attendancectl cards --all`, 1,000 photos of 25 KB, whole process / photos drawn", ours, floor, "0.4")
    photos, pages = floor[0].printed["photo_bytes"], floor[0].printed["pages"]
    megabyte = 1024 * 1024
    row("its memory", f"{median(ours, 'memory'):.0f} MB", f"{3 * photos / megabyte + 64:.0f} MB")
    row("its file beyond the photos, a page", f"{(pdf.stat().st_size - photos) / pages / 1024:.2f} KB", "4 KB")
    row("memory and file with the photos drawn",
        f"{median(floor, 'memory'):.0f} MB, {drawn.stat().st_size / megabyte:.1f} MB", "")


def measure_month(directory, runs):
    """All employees present on all 31 days: 62 texts each."""
    homes = {}
    for people in (1000, 5000):
        home = demo(directory, f"month{people}", "--employees", str(people), "--photo-kb", "2", "--month", "2026-10")
        subprocess.run([BIN / "bench_presence_home", home, "2026-10-01", "31"], check=True)
        homes[people] = home

    def print_month(people, name):
        return [BIN / "attendancectl", "--home", homes[people], "month", "2026-10", "--out", directory / name]

    ours, floor = compare(print_month(1000, "month.pdf"),
                          [BIN / "bench_month_report_floor", "1000", directory / "floor.pdf"], runs)
    ratio_row("`attendancectl month` to PDF, 1,000 employees, 31 days, whole process / 62,000 cached glyph runs",
              ours, floor, "2")
    row("its memory", f"{median(ours, 'memory'):.0f} MB", "80 MB")
    ours, floor = compare(print_month(5000, "month5.pdf"), print_month(1000, "month.pdf"), runs)
    ratio_row("the same, 5,000 employees / 1,000", ours, floor, "6")
    ours, floor = compare(print_month(1000, "month.xlsx"),
                          [BIN / "bench_month_workbook_floor", "1000", directory / "floor.xlsx"], runs)
    ratio_row("`attendancectl month` to .xlsx, 1,000 employees, 31 days, whole process / the same cells with "
              "the library's own calls", ours, floor, "3")


def measure_sign_in(directory, runs):
    """A thousand employees who were there for ten days, and for two thousand."""
    homes = {}
    for days in (10, 2000):
        homes[days] = demo(directory, f"days{days}", "--employees", "1000", "--photo-kb", "2", "--month", "2020-01")
        subprocess.run([BIN / "bench_presence_home", homes[days], "2020-01-01", str(days)], check=True)

    ours, floor = compare([BIN / "bench_sign_in", homes[10], "500"], [BIN / "bench_sign_in_floor", homes[10], "500"],
                          runs)
    ratio_row("500 sign-ins, each durable / the engine's own durable insertions", ours, floor, "2")
    ours, floor = compare([BIN / "bench_sign_in", homes[2000], "500"], [BIN / "bench_sign_in", homes[10], "500"], runs)
    ratio_row("500 sign-ins with 2,000,000 rows / with 10,000", ours, floor, "1.2")
    ours, floor = compare([BIN / "bench_load_by_date", homes[2000], "2023-03-01"],
                          [BIN / "bench_load_by_date_floor", homes[2000], "2023-03-01"], runs)
    ratio_row("`LoadByDate`, 1,000 employees and 22 days of 2,000,000 rows / bare loop", ours, floor, "3")


def measure_preview(directory, cards, runs):
    def pair(what, report, home):
        program = BIN / "bench_preview"
        return compare([program, what, report, home], [program, what + "_floor", report, home], runs)

    ours, floor = pair("memory", "cards", cards)
    a, b = (statistics.median(result.printed["beyond"] for result in results) for results in (ours, floor))
    row("memory of the preview beyond the report, every page of 1,000 cards looked at / Qt's preview widget, opened",
        f"{a:.0f} MB / {b:.0f} MB = {a / b:.2f}", "0.1")
    row("the whole processes", f"{median(ours, 'memory'):.0f} MB / {median(floor, 'memory'):.0f} MB", "")
    ours, floor = pair("turn", "cards", cards)
    ratio_row("a page turn in the preview / painting that page into an image", ours, floor, "1.5", digits=4)
    ours, floor = pair("wheel", "cards", cards)
    beyond = (median(ours, "seconds") - median(floor, "seconds")) * 1000
    row("a step of the wheel over kept pages, beyond copying the pixels", f"{beyond:.2f} ms", "5 ms")
    many = demo(directory, "pages1000", "--employees", "4000", "--photo-kb", "2", "--month", "2026-10")
    ours, floor = pair("find", "cards", many)
    ratio_row("finding four texts in 1,000 pages of cards / in a list of the same texts", ours, floor, "3", digits=4)
    month = demo(directory, "pages100", "--employees", "1200", "--photo-kb", "2", "--month", "2026-10")
    subprocess.run([BIN / "bench_presence_home", month, "2026-10-01", "31"], check=True)
    ours, floor = pair("find", "month", month)
    ratio_row("finding four texts in 100 pages of the month / in a list of the same texts", ours, floor, "3", digits=4)


def measure_station(home, directory):
    """A home of its own for the station, on the main window's database; the second run while lists are loaded."""
    station = directory / "station"
    station.mkdir()
    (station / "attendance.ini").write_bytes((home / "attendance.ini").read_bytes())
    alone = Result([BIN / "bench_station_scan", station, "400"]).printed
    row("last key of a scan until its answer is painted / the sign-in alone",
        f"{alone['scan_ms']:.1f} ms / {alone['sign_ms']:.1f} ms, {alone['scan_ms'] - alone['sign_ms']:.1f} ms more",
        "20 ms more")
    lists = subprocess.Popen(f"while :; do '{BIN}/bench_employee_list' '{home}' || exit; done", shell=True,
                             stdout=subprocess.DEVNULL, start_new_session=True)
    time.sleep(0.2)
    beside = Result([BIN / "bench_station_scan", station, "1600"]).printed
    if lists.poll() is not None:
        sys.exit("the lists were not loaded")
    os.killpg(lists.pid, signal.SIGKILL)
    lists.wait()
    row("the longest of 1,600 sign-ins while 5,000 employees with photos are loaded again and again",
        f"{beside['worst_ms'] / 1000:.3f} s", "0.5 s")


def measure_xml(home, directory, runs):
    exported, floor_file = directory / "employees.xml", directory / "floor.xml"
    ours, floor = compare([BIN / "bench_xml", "export", home, exported], [BIN / "bench_xml_floor", home, floor_file],
                          runs)
    ratio_row("exporting 1,000 employees with 30 KB photos / the same bytes in hexadecimal by the engine's C calls",
              ours, floor, "2")
    row("its memory", f"{median(ours, 'memory'):.0f} MB", "64 MB")
    python = ("import sys, time, xml.etree.ElementTree as tree; start = time.monotonic(); size = 0\n"
              "for _, element in tree.iterparse(sys.argv[1]):\n"
              "    photo = element.get('HEADIMG')\n"
              "    if photo: size += len(bytes.fromhex(photo))\n"
              "    element.clear()\n"
              "print('seconds', time.monotonic() - start); print('bytes', size)")
    ours, floor = compare([BIN / "bench_xml", "read", exported], ["python3", "-c", python, exported], runs)
    if ours[0].printed["bytes"] != floor[0].printed["bytes"]:
        sys.exit("the photos read differ")
    ratio_row("reading that file row by row / Python's iterparse with bytes.fromhex", ours, floor, "1")
    row("its memory", f"{median(ours, 'memory'):.0f} MB", "64 MB")


def main():
    runs = int(sys.argv[1]) if len(sys.argv) > 1 else 7
    os.environ.setdefault("QT_QPA_PLATFORM", "offscreen")
    # As the programs set it themselves: without it the C library looks at the zone's file for every local moment.
    os.environ.setdefault("TZ", ":/etc/localtime")
    subprocess.run(["cmake", "--preset", "bench"], cwd=PROJECT, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", "bench"], cwd=PROJECT, check=True, stdout=subprocess.DEVNULL)
    with tempfile.TemporaryDirectory(dir=os.environ.get("BENCH_DIR", "/dev/shm")) as name:
        directory = pathlib.Path(name)
        os.environ["XDG_RUNTIME_DIR"] = name
        many = demo(directory, "many", "--employees", "5000", "--photo-kb", "30", "--month", "2026-01")
        cards = demo(directory, "cards", "--employees", "1000", "--photo-kb", "25", "--month", "2026-01")
        empty = demo(directory, "empty")
        print("| what | measured | at most |\n|---|---|---|")
        ours, floor = compare([BIN / "bench_employee_list", many], [BIN / "bench_employee_list_floor", many], runs)
        ratio_row("employee list, 5,000 photos of 30 KB / bare loop", ours, floor, "1.5")
        measure_cards(cards, directory, runs)
        ours, floor = compare([BIN / "bench_window_start", empty], [BIN / "bench_window_start_floor"], runs)
        ratio_row("main window on an empty database, whole process / bare Qt window", ours, floor, "1.5")
        ours, floor = compare([BIN / "bench_first_preview_page", cards, "1000"],
                              [BIN / "bench_first_preview_page", cards, "4"], runs)
        ratio_row("first page of the preview, 1,000 cards / 4 cards", ours, floor, "2")
        measure_month(directory, runs)
        measure_sign_in(directory, runs)
        measure_preview(directory, cards, runs)
        measure_station(many, directory)
        photos = demo(directory, "photos30", "--employees", "1000", "--photo-kb", "30", "--month", "2026-01")
        measure_xml(photos, directory, runs)


if __name__ == "__main__":
    main()
