#!/usr/bin/env python3
"""Writes resources/Audio/ring.wav: two seconds of a two-tone ring, made to loop without a click."""

import array
import math
import pathlib
import wave

RATE = 22050
SECONDS = 2.0
TONES = (440.0, 480.0)
BURSTS = ((0.0, 0.4), (0.6, 1.0))  # sounding parts, in seconds; the rest is silence
FADE = 0.02
VOLUME = 0.28


def envelope(t):
    """0 outside the bursts, 1 inside, with a short fade at both ends so that no edge clicks."""
    for begin, end in BURSTS:
        if begin <= t < end:
            return min(1.0, (t - begin) / FADE, (end - t) / FADE)
    return 0.0


def main():
    samples = array.array("h")
    for i in range(int(RATE * SECONDS)):
        t = i / RATE
        tone = sum(math.sin(2 * math.pi * f * t) for f in TONES) / len(TONES)
        samples.append(int(32767 * VOLUME * envelope(t) * tone))
    target = pathlib.Path(__file__).resolve().parent.parent / "resources" / "Audio" / "ring.wav"
    with wave.open(str(target), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(samples.tobytes())


if __name__ == "__main__":
    main()
