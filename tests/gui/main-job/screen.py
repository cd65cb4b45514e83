"""A screen of its own for a program under test: Xvfb, driven with xdotool, read through its frame buffer."""

import os
import pathlib
import shutil
import struct
import subprocess
import time
import zlib

WIDTH, HEIGHT = 1280, 960
POLL = 0.02  # s


class Failure(Exception):
    """What a user would have missed."""


def missing_programs():
    return [name for name in ("Xvfb", "xdotool") if shutil.which(name) is None]


def wait_until(what, condition, limit):
    """The condition's first true value; a Failure if there is none after `limit` seconds."""
    end = time.monotonic() + limit
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > end:
            raise Failure(f"{what}: not after {limit:g} s")
        time.sleep(POLL)


class Screen:
    def __init__(self, folder):
        """Starts it; `folder` takes its frame buffer."""
        self.buffer = pathlib.Path(folder) / "Xvfb_screen0"
        reading, writing = os.pipe()
        self.server = subprocess.Popen(
            ["Xvfb", "-displayfd", str(writing), "-screen", "0", f"{WIDTH}x{HEIGHT}x24", "-fbdir", str(folder),
             "-nolisten", "tcp", "-noreset"], pass_fds=[writing], stderr=subprocess.DEVNULL)
        os.close(writing)
        with os.fdopen(reading) as number:
            self.display = ":" + number.readline().strip()
        if self.display == ":":
            raise Failure(f"Xvfb ended with status {self.server.wait()}")

    def close(self):
        self.server.terminate()
        self.server.wait()

    def xdotool(self, *arguments):
        """Its standard output; empty if it finds nothing."""
        environment = dict(os.environ, DISPLAY=self.display)
        done = subprocess.run(["xdotool", *arguments], env=environment, text=True, timeout=30,
                              stdout=subprocess.PIPE, stderr=subprocess.DEVNULL, check=False)
        return done.stdout.strip()

    def windows(self):
        """The visible windows, by number, with their titles."""
        numbers = self.xdotool("search", "--onlyvisible", "--name", "").split()
        return {number: self.xdotool("getwindowname", number) for number in numbers}

    def find(self, title):
        """The visible window whose title matches; None if there is none."""
        found = self.xdotool("search", "--onlyvisible", "--name", title).split()
        return found[-1] if found else None

    def press(self, window, *keys):
        """Keys into a window, one after another; there is no window manager that would give it the focus."""
        self.xdotool("windowfocus", window)
        wait_until("a window takes the focus", lambda: self.xdotool("getwindowfocus") == window, 10)
        self.xdotool("key", *keys)

    def save(self, path):
        """The screen as PNG."""
        data = self.buffer.read_bytes()
        header = struct.unpack(">25I", data[:100])
        size, width, height, line, colors = header[0], header[4], header[5], header[12], header[19]
        pixels = data[size + 12 * colors:]
        rows = bytearray()
        for y in range(height):
            row = pixels[y * line:y * line + 4 * width]  # blue, green, red, unused
            rgb = bytearray(3 * width)
            rgb[0::3], rgb[1::3], rgb[2::3] = row[2::4], row[1::4], row[0::4]
            rows += b"\0" + rgb

        def chunk(kind, body):
            return struct.pack(">I", len(body)) + kind + body + struct.pack(">I", zlib.crc32(kind + body))

        shape = struct.pack(">2I5B", width, height, 8, 2, 0, 0, 0)
        pathlib.Path(path).write_bytes(b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", shape) +
                                       chunk(b"IDAT", zlib.compress(rows, 1)) + chunk(b"IEND", b""))
