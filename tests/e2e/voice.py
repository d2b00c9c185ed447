#!/usr/bin/env python3
"""A voice without sound: a speech-dispatcher output module that writes down what it is to say.

Of each utterance it writes one line of JSON when it begins and one when it ends, or when it is cut
off. It takes as long as speech would; the words that it speaks in a second are VOICE_SPEED.
"""

import json
import os
import re
import select
import sys
import time

SPEED = float(os.environ["VOICE_SPEED"])
MARKUP = re.compile(r"<[^>]*>")
ENTITIES = {"&lt;": "<", "&gt;": ">", "&quot;": '"', "&amp;": "&"}


class Commands:
    """The lines of the server, without a buffer that select() knows nothing of."""

    def __init__(self):
        self.pending = b""

    def line(self, patience=None):
        """The next line, or None when none came in time."""
        while b"\n" not in self.pending:
            if not select.select([0], [], [], patience)[0]:
                return None
            data = os.read(0, 4096)
            if not data:
                sys.exit(0)
            self.pending += data
        line, self.pending = self.pending.split(b"\n", 1)
        return line.decode(errors="replace").rstrip("\r")

    def block(self):
        lines = []
        while (line := self.line()) != ".":
            lines.append(line.removeprefix("."))
        return "\n".join(lines)


def answer(*lines):
    for line in lines:
        os.write(1, (line + "\n").encode())


def write(kind, text):
    entry = json.dumps({"kind": kind, "text": text, "time": time.time()})
    with open(os.environ["VOICE_FILE"], "a", encoding="utf-8") as file:
        file.write(entry + "\n")


def plain(text):
    text = MARKUP.sub("", text)
    for entity, character in ENTITIES.items():
        text = text.replace(entity, character)
    return text


def say(commands, text):
    """Says it to the end, or until the server wants something else."""
    answer("701 BEGIN")
    write("begins", text)
    end = time.monotonic() + len(text.split()) / SPEED
    while (left := end - time.monotonic()) > 0:
        command = commands.line(left)
        if command in ("STOP", "PAUSE"):
            write("is cut off", text)
            answer("703 STOP" if command == "STOP" else "704 PAUSE")
            return
        if command is not None:
            serve(commands, command)
    write("ends", text)
    answer("702 END")


def serve(commands, command):
    if command == "INIT":
        answer("299-The voice is ready", "299 OK LOADED SUCCESSFULLY")
    elif command in ("AUDIO", "LOGLEVEL", "SET"):
        answer({"AUDIO": "207 OK RECEIVING AUDIO SETTINGS",
                "LOGLEVEL": "207 OK RECEIVING LOGLEVEL SETTINGS",
                "SET": "203 OK RECEIVING SETTINGS"}[command])
        settings = commands.block()
        if "audio_output_method=server" in settings:
            # The server then also follows sounds that never come, and loses ends on the way.
            answer("300 ERR THE VOICE HAS ITS OWN AUDIO")
            return
        answer({"AUDIO": "203 OK AUDIO INITIALIZED", "LOGLEVEL": "203 OK LOG LEVEL SET",
                "SET": "203 OK SETTINGS RECEIVED"}[command])
    elif command in ("SPEAK", "CHAR", "KEY", "SOUND_ICON"):
        answer("202 OK RECEIVING MESSAGE")
        text = plain(commands.block())
        answer("200 OK SPEAKING")
        say(commands, text)
    elif command == "LIST VOICES":
        answer("200-voice\ten\tnone", "200 OK VOICE LIST SENT")
    elif command == "QUIT":
        answer("210 OK QUIT")
        sys.exit(0)


if __name__ == "__main__":
    server = Commands()
    while True:
        serve(server, server.line())
