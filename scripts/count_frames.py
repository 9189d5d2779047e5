#!/usr/bin/python3
"""Prints how many frames a second programs draw on the display, by what the X server tells of its damage.

Usage: count_frames.py SECONDS. What is drawn within five milliseconds is one frame.
"""
import select
import sys
import time

from Xlib import display
from Xlib.ext import damage

ONE_FRAME = 0.005


def main():
    seconds = float(sys.argv[1])
    screen = display.Display()
    screen.damage_query_version()
    root = screen.screen().root
    drawn = root.damage_create(damage.DamageReportNonEmpty)
    screen.flush()
    frames = 0
    last = 0.0
    end = time.monotonic() + seconds
    while (left := end - time.monotonic()) > 0:
        if not screen.pending_events() and not select.select([screen.fileno()], [], [], left)[0]:
            break
        now = time.monotonic()
        for _ in range(screen.pending_events()):
            screen.next_event()
        screen.damage_subtract(drawn)
        screen.flush()
        if now - last >= ONE_FRAME:
            frames += 1
            last = now
    print(f"{frames / seconds:.1f}")


main()
