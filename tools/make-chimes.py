#!/usr/bin/env python3
"""Writes Velto's three chimes as small 16-bit mono WAV files.

The sounds are synthesised here from a few sine partials and filtered noise, so the repository carries
their source and no third-party audio. Output is deterministic: running the script again gives the same
bytes, so a diff of the WAVs only shows up when the sound was meant to change.

    python3 tools/make-chimes.py [output-folder]   (default: src/platform/linux/sounds)
"""

import math
import random
import struct
import sys
import wave
from pathlib import Path

RATE = 44100
# Peaks stay well below full scale: these play over whatever the user is listening to.
GENTLE_PEAK = 0.45


def seconds(n):
    return int(round(n * RATE))


def raised_cosine(position):
    """0 at position 0, 1 at position 1, smooth at both ends."""
    position = min(max(position, 0.0), 1.0)
    return 0.5 - 0.5 * math.cos(math.pi * position)


def fade_edges(samples, attack, release):
    """A smooth start and an end that reaches exactly zero, so neither edge clicks."""
    attack_n, release_n = seconds(attack), seconds(release)
    count = len(samples)
    for i in range(count):
        gain = 1.0
        if i < attack_n:
            gain *= raised_cosine(i / attack_n)
        if i >= count - release_n:
            gain *= raised_cosine((count - 1 - i) / release_n)
        samples[i] *= gain
    return samples


def normalised(samples, peak):
    highest = max(abs(s) for s in samples)
    return [s * peak / highest for s in samples]


def glass():
    """A bright ding: a bell's fundamental and its inharmonic upper partial, the upper one dying first."""
    duration = 0.55
    partials = [
        # (frequency Hz, amplitude, decay time constant s)
        (1318.5, 1.0, 0.16),
        (1318.5 * 2.76, 0.35, 0.06),
        (1318.5 * 5.40, 0.08, 0.025),
    ]
    samples = []
    for i in range(seconds(duration)):
        t = i / RATE
        samples.append(sum(a * math.exp(-t / tau) * math.sin(2 * math.pi * f * t) for f, a, tau in partials))
    return normalised(fade_edges(samples, 0.003, 0.05), GENTLE_PEAK)


def bandpass(signal, centre, q):
    """A two-pole band-pass (the audio-EQ cookbook's constant-peak form)."""
    w0 = 2 * math.pi * centre / RATE
    alpha = math.sin(w0) / (2 * q)
    b0, b2 = alpha, -alpha
    a0, a1, a2 = 1 + alpha, -2 * math.cos(w0), 1 - alpha
    x1 = x2 = y1 = y2 = 0.0
    out = []
    for x in signal:
        y = (b0 * x + b2 * x2 - a1 * y1 - a2 * y2) / a0
        x2, x1 = x1, x
        y2, y1 = y1, y
        out.append(y)
    return out


def blow():
    """A soft, lower, breathy tone: a rounded note with a little vibrato and band-limited air around it."""
    duration = 0.65
    frequency = 329.6
    count = seconds(duration)
    noise_source = random.Random(20261123)
    air = bandpass([noise_source.uniform(-1.0, 1.0) for _ in range(count)], frequency * 2, 2.5)
    air_level = 0.9 / max(abs(s) for s in air)
    samples = []
    phase = 0.0
    for i in range(count):
        t = i / RATE
        # Swells in over the first fifth, then falls away slowly.
        envelope = raised_cosine(t / 0.13) * math.exp(-max(t - 0.13, 0.0) / 0.22)
        phase += 2 * math.pi * frequency * (1 + 0.003 * math.sin(2 * math.pi * 5.0 * t)) / RATE
        tone = math.sin(phase) + 0.18 * math.sin(2 * phase) + 0.05 * math.sin(3 * phase)
        samples.append(envelope * (tone + 0.22 * air_level * air[i]))
    return normalised(fade_edges(samples, 0.005, 0.08), GENTLE_PEAK * 0.85)


def pop():
    """A very short, round pop: a sine whose pitch drops quickly as it dies away."""
    duration = 0.1
    samples = []
    phase = 0.0
    for i in range(seconds(duration)):
        t = i / RATE
        frequency = 480 + 720 * math.exp(-t / 0.012)
        phase += 2 * math.pi * frequency / RATE
        samples.append(math.exp(-t / 0.02) * math.sin(phase))
    return normalised(fade_edges(samples, 0.001, 0.02), GENTLE_PEAK)


def write_wav(path, samples):
    frames = b"".join(struct.pack("<h", int(round(s * 32767))) for s in samples)
    with wave.open(str(path), "wb") as out:
        out.setnchannels(1)
        out.setsampwidth(2)
        out.setframerate(RATE)
        out.writeframes(frames)


def main():
    default = Path(__file__).resolve().parent.parent / "src" / "platform" / "linux" / "sounds"
    folder = Path(sys.argv[1]) if len(sys.argv) > 1 else default
    folder.mkdir(parents=True, exist_ok=True)
    for name, make in (("Glass", glass), ("Blow", blow), ("Pop", pop)):
        path = folder / f"{name}.wav"
        write_wav(path, make())
        print(path)


if __name__ == "__main__":
    main()
