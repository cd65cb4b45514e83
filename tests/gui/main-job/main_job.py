#!/usr/bin/env python3
"""The main job on the desktop program: a sample opened, calculated, and its report shown, all with the keyboard.

    main_job.py ONDARA SAMPLE.od7 FOLDER

Runs the program with the engine beside it on a screen of its own. FOLDER takes the picture of each step and, where the
job fails, tells what stood on the screen. Exit status 77 says that there is no Xvfb.
"""

import os
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import time

from screen import Failure, Screen, missing_programs, wait_until

START = 60  # s, also on a busy machine
ANSWER = 30
CALCULATION = 600
SKIPPED = 77
EXPECTED = {"", "Ondara  v3.5.0", "ondara", "Ondara Calculation Engine Running"}  # also while others are waited for
IN_THE_REPORT = ("<CENTER>Wigley<", "HYDROSTATICS SUMMARY", "Regular Seas Response: Motion RAO",
                 "Regular Seas Response: Load RAO", "Irregular Seas Response: RMS Responses",
                 "Motion Sickness Incidence", "</html>")

OPENER = """#!/bin/sh
echo "$1" >>"$ONDARA_OPENED"
"""


class Desk:
    """A user's home, and the folder in which the program is started."""

    def __init__(self, folder, sample):
        self.calculation = folder / "calculation"
        self.opened = folder / "opened"
        self.said = folder / "said"
        self.home = folder / "home"
        self.runtime = folder / "runtime"
        self.programs = folder / "programs"
        for made in (self.calculation / "Data", self.home, self.runtime, self.programs):
            made.mkdir(parents=True)
        self.runtime.chmod(0o700)
        shutil.copy(sample, self.calculation / "Data")
        opener = self.programs / "xdg-open"
        opener.write_text(OPENER)
        opener.chmod(0o755)

    def environment(self, screen):
        kept = {name: value for name, value in os.environ.items()
                if not name.startswith(("XDG_", "QT_", "ONDARA_", "LC_", "LANG", "WAYLAND_"))}
        return dict(kept, DISPLAY=screen.display, HOME=str(self.home), XDG_CONFIG_HOME=str(self.home / ".config"),
                    XDG_RUNTIME_DIR=str(self.runtime), PATH=f"{self.programs}:{os.environ['PATH']}",
                    ONDARA_OPENED=str(self.opened), QT_QPA_PLATFORM="xcb", LANG="C.UTF-8")

    def start(self, program, screen):
        with open(self.said, "ab") as said:
            return subprocess.Popen([program], cwd=self.calculation, env=self.environment(screen),
                                    stdin=subprocess.DEVNULL, stdout=said, stderr=said)


class MainJob:
    def __init__(self, program, desk, screen, pictures):
        self.program = program
        self.desk = desk
        self.screen = screen
        self.pictures = pictures
        self.process = None
        self.frame = None
        self.step_name = "nothing yet"
        self.steps = 0

    def step(self, name, action):
        self.step_name = name
        started = time.monotonic()
        action()
        self.steps += 1
        print(f"{name:<40}{time.monotonic() - started:8.2f} s", flush=True)
        self.screen.save(self.pictures / f"{self.steps}.png")

    def window(self, title, limit=ANSWER):
        def found():
            if self.process.poll() is not None:
                raise Failure(f"the program ended with status {self.process.returncode}")
            window = self.screen.find(title)
            if window is None:
                for other in set(self.screen.windows().values()) - EXPECTED:
                    if not re.search(title, other):
                        raise Failure(f'the window "{other}" in place of "{title}"')
            return window

        return wait_until(f'the window "{title}"', found, limit)

    def gone(self, title):
        wait_until(f'the window "{title}" closes', lambda: self.screen.find(title) is None, ANSWER)

    def run(self):
        self.step("start", self.start)
        self.step("a second start ends at once", self.start_again)
        self.step("Sample01 from the recent files", self.open_recent)
        self.step("Run", self.calculate)
        self.step("OK", self.acknowledge)
        self.step("Output, Display", self.open_display)
        self.step("Select All, View", self.view)
        self.step("close", self.close)

    def start(self):
        self.process = self.desk.start(self.program, self.screen)
        self.frame = self.window("^Ondara", START)

    def start_again(self):
        second = self.desk.start(self.program, self.screen)
        try:
            status = second.wait(ANSWER)
        except subprocess.TimeoutExpired as still_there:
            second.kill()
            raise Failure("a second instance goes on") from still_there
        if status != 0:
            raise Failure(f"a second instance ends with status {status}")

    def open_recent(self):
        count = len(self.screen.windows())
        self.screen.press(self.frame, "alt+f")
        wait_until("the menu File opens", lambda: len(self.screen.windows()) > count, ANSWER)
        self.screen.xdotool("key", "1")
        wait_until("the menu File closes", lambda: len(self.screen.windows()) == count, ANSWER)

    def calculate(self):
        self.screen.press(self.frame, "alt+r")
        # A missing engine passes without a word.
        self.window("^(Calculation Complete|Ondara Calculation Engine Running)$")
        self.window("^Calculation Complete$", CALCULATION)

    def acknowledge(self):
        self.screen.press(self.window("^Calculation Complete$"), "Return")
        self.gone("^Calculation Complete$")

    def open_display(self):
        self.screen.press(self.frame, "alt+d")
        self.window("^Display Results$")

    def view(self):
        self.screen.press(self.window("^Display Results$"), "alt+a", "alt+v")
        wait_until("the report is handed on", self.desk.opened.exists, ANSWER)
        report = self.desk.calculation / "oview.html"
        wait_until("what is handed on has a name", self.desk.opened.read_text, ANSWER)
        handed = self.desk.opened.read_text().split("\n")[0].removeprefix("file://")
        if handed != str(report):
            raise Failure(f"handed on was {handed}, not {report}")
        text = report.read_text(encoding="latin-1")
        for expected in IN_THE_REPORT:
            if expected not in text:
                raise Failure(f'the report lacks "{expected}"')

    def close(self):
        title = "^Display Results$"
        if self.screen.find(title):
            self.screen.press(self.window(title), "Escape")
            self.gone(title)
        self.screen.press(self.frame, "ctrl+q")
        try:
            status = self.process.wait(ANSWER)
        except subprocess.TimeoutExpired as still_there:
            raise Failure("the program doesn't end") from still_there
        if status != 0:
            raise Failure(f"the program ends with status {status}")

    def tell(self, failure):
        print(f'Failed at "{self.step_name}": {failure}')
        print("Windows:", ", ".join(f'"{title}"' for title in self.screen.windows().values()) or "none")
        print("The program said:", self.desk.said.read_text(errors="replace") if self.desk.said.exists() else "")
        self.screen.save(self.pictures / "failed.png")
        print(f"The screen: {self.pictures / 'failed.png'}")

    def end(self):
        if self.process is not None and self.process.poll() is None:
            self.process.kill()
            self.process.wait()


def main():
    program, sample, pictures = sys.argv[1], sys.argv[2], pathlib.Path(sys.argv[3])
    missing = missing_programs()
    if missing:
        print(f"Skipped: there is no {' and no '.join(missing)} here; script/bootstrap installs it.")
        return SKIPPED
    shutil.rmtree(pictures, ignore_errors=True)
    pictures.mkdir(parents=True)
    with tempfile.TemporaryDirectory(prefix="ondara-main-job-") as folder:
        screen = Screen(folder)
        job = MainJob(program, Desk(pathlib.Path(folder), sample), screen, pictures)
        try:
            job.run()
        except (Failure, subprocess.SubprocessError) as failure:
            job.tell(failure)
            return 1
        finally:
            job.end()
            screen.close()
    return 0


if __name__ == "__main__":
    sys.exit(main())
