# SPDX-License-Identifier: GPL-3.0-or-later
"""The screens of the private desktop: their resolution, and several beside each other."""

import ctypes
import re
import subprocess


def _told(*command):
    return subprocess.run(command, check=True, capture_output=True, text=True).stdout


def enlarge(dots_per_inch):
    """What a desktop tells all programs that draw texts or everything larger: 96 is the usual size."""
    subprocess.run(["xprop", "-root", "-f", "RESOURCE_MANAGER", "8s", "-set", "RESOURCE_MANAGER",
                    f"Xft.dpi:\t{dots_per_inch}\n"], check=True)


class _Monitor(ctypes.Structure):
    _fields_ = [("name", ctypes.c_ulong), ("primary", ctypes.c_int), ("automatic", ctypes.c_int),
                ("outputs_used", ctypes.c_int), ("x", ctypes.c_int), ("y", ctypes.c_int),
                ("width", ctypes.c_int), ("height", ctypes.c_int), ("mm_width", ctypes.c_int),
                ("mm_height", ctypes.c_int), ("outputs", ctypes.POINTER(ctypes.c_ulong))]


class _Resources(ctypes.Structure):
    _fields_ = [("time", ctypes.c_ulong), ("changed", ctypes.c_ulong), ("tubes", ctypes.c_int),
                ("tube", ctypes.c_void_p), ("output_count", ctypes.c_int),
                ("outputs", ctypes.POINTER(ctypes.c_ulong))]


def divide(**places):
    """Lays screens over the private one: divide(left=(0, 0, 1366, 768), right=(1366, 0, 1366, 768))."""
    x11, randr = ctypes.CDLL("libX11.so.6"), ctypes.CDLL("libXrandr.so.2")
    x11.XOpenDisplay.restype = ctypes.c_void_p
    x11.XDefaultRootWindow.restype = x11.XInternAtom.restype = ctypes.c_ulong
    randr.XRRGetScreenResources.restype = ctypes.POINTER(_Resources)
    display = ctypes.c_void_p(x11.XOpenDisplay(None))
    root = ctypes.c_ulong(x11.XDefaultRootWindow(display))
    output = (ctypes.c_ulong * 1)(randr.XRRGetScreenResources(display, root).contents.outputs[0])
    for number, (name, (x, y, width, height)) in enumerate(places.items()):
        is_first = int(number == 0)  # it has the one output there is, and is the primary screen
        atom = x11.XInternAtom(display, name.encode(), 0)
        monitor = _Monitor(atom, is_first, 0, is_first, x, y, width, height, width // 4, height // 4,
                           output)
        randr.XRRSetMonitor(display, root, ctypes.byref(monitor))
    x11.XCloseDisplay(display)


def frames():
    """Where each window stands, its frame included: {caption: (left, top, right, bottom)}."""
    found = {}
    for line in _told("wmctrl", "-lG").splitlines():
        window, _, _, _, width, height, _, *words = line.split()
        place = _told("xwininfo", "-id", window)
        left, top = (int(re.search(f"Absolute upper-left {axis}: +(-?\\d+)", place)[1])
                     for axis in "XY")
        extents = re.findall(r"\d+", _told("xprop", "-id", window, "_NET_FRAME_EXTENTS")
                             .partition("=")[2]) or [0] * 4
        before, after, above, below = map(int, extents)
        found[" ".join(words)] = (left - before, top - above, left + int(width) + after,
                                  top + int(height) + below)
    return found


def cut_parts(window):
    """The names of the texts and buttons of a window that are not wholly inside it."""
    left, top, width, height = window.bounds
    found = []
    for part in window.parts():
        if part.role not in ("label", "push button", "check box") or not part.has("showing"):
            continue
        x, y, part_width, part_height = part.bounds
        if x < left or y < top or x + part_width > left + width or y + part_height > top + height:
            found.append(part.name)
    return found
