# SPDX-License-Identifier: GPL-3.0-or-later
"""Waiting for a condition, with a limit."""

import time

LIMIT = 15  # seconds; far more than anything takes
PAUSE = 0.02


class Late(AssertionError):
    """What was waited for did not come."""


def wait_for(condition, what, limit=LIMIT):
    """Asks `condition` until it answers something true, which is returned; refused after `limit`.

    wait_for(lambda: box.text == "finir", "the infinitive in its box")
    """
    end = time.monotonic() + limit
    while True:
        answer = condition()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Late(f"waited {limit} s in vain for {what}")
        time.sleep(PAUSE)


def wait_equal(query, expected, what, limit=LIMIT):
    """Asks `query` until it answers `expected`; says in the end what it answered instead."""
    answers = []

    def is_reached():
        answers[:] = [query()]
        return answers[0] == expected

    try:
        wait_for(is_reached, what, limit)
    except Late:
        raise Late(f"{what}: {answers[0]!r} instead of {expected!r}") from None
