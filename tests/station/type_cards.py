#!/usr/bin/env python3
"""Types cards into the real sign-in window on an X server of its own, as fast as the server takes the keys.

Usage: type_cards.py STATION ATTENDANCECTL [CARDS]. Every card typed has a digit twice in a row. Fails when a card
is not recorded, when the keys come at once, at 1 ms and beside programs that keep all processors busy.
Exits with 77 where there is no X server to start.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

SKIPPED = 77


def cards_with_doubled_digits(attendancectl, home, wanted):
    """(number, barcode) of people of a new demo home."""
    # Of 1,000 cards 744 have a doubled digit.
    run = [attendancectl, "demo", "--home", home, "--employees", str(wanted * 2 + 10), "--photo-kb", "4",
           "--month", "2020-02"]
    subprocess.run(run, check=True, stdout=subprocess.DEVNULL)
    listed = subprocess.run([attendancectl, "list", "employees", "--home", home], check=True, capture_output=True,
                            text=True).stdout.splitlines()[1:]
    people = [(line.split("\t")[0], line.split("\t")[3]) for line in listed]
    return [person for person in people if re.search(r"(\d)\1", person[1])][:wanted]


def signed_in(attendancectl, home):
    today = subprocess.run([attendancectl, "today", "--home", home], check=True, capture_output=True, text=True)
    return {line.split("\t")[0] for line in today.stdout.splitlines()[1:]}


class Display:
    """An X server with one window of the station on it."""

    def __init__(self, station, home):
        read, write = os.pipe()
        self.server = subprocess.Popen(["Xvfb", "-displayfd", str(write), "-screen", "0", "1280x720x24"],
                                       pass_fds=[write], stderr=subprocess.DEVNULL)
        os.close(write)
        with os.fdopen(read) as number:
            self.environment = dict(os.environ, DISPLAY=":" + number.readline().strip(), QT_QPA_PLATFORM="xcb")
        self.station = subprocess.Popen([station, "--home", home], env=self.environment)
        subprocess.run(["xdotool", "search", "--sync", "--onlyvisible", "--name", "签到", "windowfocus", "--sync"],
                       env=self.environment, check=True, stdout=subprocess.DEVNULL, timeout=60)

    def type(self, text, delay):
        keys = ["Return" if key == "\n" else key for key in text]
        subprocess.run(["xdotool", "key", "--delay", str(delay), *keys], env=self.environment, check=True)

    def close(self):
        for process in (self.station, self.server):
            process.terminate()
            process.wait()


def type_all(display, people, delay):
    """In bursts of one, two and up to ten cards."""
    left, burst = list(people), 1
    while left:
        display.type("".join(code + "\n" for _, code in left[:burst]), delay)
        left, burst = left[burst:], burst % 10 + 1
        time.sleep(0.1)


def missing(attendancectl, home, people):
    """Those not signed in, once all are or nothing has come for three seconds."""
    lacking, since = people, time.monotonic()
    while lacking and time.monotonic() - since < 3:
        there = signed_in(attendancectl, home)
        now = [person for person in people if person[0] not in there]
        if len(now) != len(lacking):
            lacking, since = now, time.monotonic()
        time.sleep(0.2)
    return lacking


def main():
    station, attendancectl = sys.argv[1:3]
    wanted = int(sys.argv[3]) if len(sys.argv) > 3 else 60
    if not shutil.which("Xvfb") or not shutil.which("xdotool"):
        print("Neither Xvfb nor xdotool: nothing is typed.")
        return SKIPPED
    failed = 0
    with tempfile.TemporaryDirectory() as directory:
        home = str(pathlib.Path(directory) / "home")
        people = cards_with_doubled_digits(attendancectl, home, wanted)
        third = len(people) // 3
        display = Display(station, home)
        busy = []
        try:
            for how, some, delay in (("at once", people[:third], 0), ("at once, busy", people[third:2 * third], 0),
                                     ("1 ms a key, busy", people[2 * third:], 1)):
                if "busy" in how and not busy:
                    busy = [subprocess.Popen(["sh", "-c", "while :; do :; done"]) for _ in range(2 * os.cpu_count())]
                type_all(display, some, delay)
                lacking = missing(attendancectl, home, some)
                print(f"{how}: {len(some) - len(lacking)} of {len(some)} recorded", *(code for _, code in lacking))
                failed += len(lacking)
        finally:
            for process in busy:
                process.kill()
                process.wait()
            display.close()
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
