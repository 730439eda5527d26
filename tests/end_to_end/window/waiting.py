# SPDX-License-Identifier: GPL-3.0-or-later
"""Waiting for a condition, with a limit."""

import os
import time

LIMIT = 15  # seconds of a machine with nothing else to do; far more than anything takes
PAUSE = 0.02
LEAST = 20  # answers, however long each takes to come


class Late(AssertionError):
    """What was waited for did not come."""


class Patience:
    """A limit that a busy machine does not reach any sooner than an idle one.

    It counts the seconds by the load, and is never over before the program has been asked a few
    times: where an answer takes seconds, so does everything else.
    """

    def __init__(self, limit=LIMIT):
        self._limit = limit
        self._begin = time.monotonic()
        self._asked = 0

    def is_over(self):
        """To be asked after each answer that was in vain."""
        self._asked += 1
        load = max(1, os.getloadavg()[0] / os.cpu_count())
        return self._asked >= LEAST and self.seconds() > self._limit * load

    def seconds(self):
        """What has passed so far."""
        return time.monotonic() - self._begin


def wait_for(condition, what, limit=LIMIT):
    """Asks `condition` until it answers something true, which is returned; refused after `limit`.

    wait_for(lambda: box.text == "finir", "the infinitive in its box")
    """
    patience = Patience(limit)
    while True:
        asked = time.monotonic()
        answer = condition()
        if answer:
            return answer
        if patience.is_over():
            raise Late(f"waited {patience.seconds():.0f} s in vain for {what}")
        time.sleep(max(PAUSE, time.monotonic() - asked))  # half of the time is the program's


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
