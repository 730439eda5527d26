# SPDX-License-Identifier: GPL-3.0-or-later
"""A screen of exactly 800 pixels whose desktop draws everything half as large again."""

SCREEN = "800x600"


def no_resolution_question_is_asked_at_150_percent(program):
    program.environment["QT_SCALE_FACTOR"] = "1.5"
    program.start()
    program.conjugate("finir")
    program.box("Indicatif présent, nous").await_text("finissons")
    assert program.messages() == []
    program.quit()
