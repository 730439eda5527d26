# SPDX-License-Identifier: GPL-3.0-or-later
"""start_orca.py FOLDER: the screen reader Orca, with its settings in FOLDER and a voice that writes.

Not the program `orca` itself: that one ends every other Orca of the user, another scenario's too.
"""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).parent))

import gi  # noqa: E402

gi.require_version("Gtk", "3.0")
gi.require_version("Gdk", "3.0")

from orca import orca, settings  # noqa: E402

manager = orca.getSettingsManager()
manager.activate(sys.argv[1], {"speechServerFactory": "orca_voice", "enableBraille": False,
                               "enableSound": False})
settings.speechServerFactory = "orca_voice"
# It would take itself for hung, and end, when its start waits for its turn on a busy machine.
settings.timeoutTime = 0
sys.exit(orca.main())
