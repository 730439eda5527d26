# SPDX-License-Identifier: GPL-3.0-or-later
"""A voice for Orca that writes down what it is given to say, a line a sentence."""

import os

from orca.speechserver import SpeechServer as Voice, VoiceFamily


class SpeechServer(Voice):
    """Made by Orca itself, which takes this file for one of its makers of voices."""

    _only = None

    @staticmethod
    def getFactoryName():
        return "written down"

    @staticmethod
    def getSpeechServers():
        return [SpeechServer.getSpeechServer()]

    @staticmethod
    def getSpeechServer(info=None):
        if SpeechServer._only is None:
            SpeechServer._only = SpeechServer()
        return SpeechServer._only

    @staticmethod
    def shutdownActiveServers():
        pass

    def __init__(self):
        super().__init__()
        self._said = open(os.environ["ORCA_SAYS"], "a", buffering=1, encoding="utf-8")

    def getInfo(self):
        return ["written down", "default"]

    def getVoiceFamilies(self):
        return [VoiceFamily({VoiceFamily.NAME: "default"})]

    def speak(self, text=None, acss=None, interrupt=True):
        self._said.write((text or "").replace("\n", " ").strip() + "\n")

    def speakCharacter(self, character, acss=None):
        self.speak(character)

    def speakKeyEvent(self, event, acss=None):
        """Which keys are pressed is no answer of the program's."""

    def sayAll(self, utterances, progress):
        for context, acss in utterances:
            self.speak(context.utterance, acss)
            progress(context, SpeechServer.PROGRESS if hasattr(SpeechServer, "PROGRESS") else 0)

    def stop(self):
        pass

    def shutdown(self):
        pass

    def reset(self, text=None, acss=None):
        pass
