"""A sound server without loudspeakers, whose output is recorded: what was really played can be measured."""
import array
import math
import os
import wave

from polling import wait_until
from processes import listens

RATE = 44100
# Far above the silence of the empty sink, which is exactly zero, far below any shipped wave.
AUDIBLE = 300


class SoundServer:
    """PulseAudio with one sink that leads nowhere. Its processes belong to the desk."""

    def __init__(self, children, environment, root):
        self._recording = os.path.join(root, "recording.raw")
        address = environment["PULSE_SERVER"].removeprefix("unix:")
        self.process = children.start(
            ["pulseaudio", "-n", "--daemonize=no", "--exit-idle-time=-1", "--disallow-exit", "--use-pid-file=no",
             "-L", f"module-native-protocol-unix auth-anonymous=1 socket={address}",
             "-L", f"module-null-sink sink_name=desk rate={RATE} channels=1"], environment, "pulseaudio")
        wait_until(lambda: listens(address), "the sound server listens")
        with open(self._recording, "wb") as output:
            children.start(["parec", "--device=desk.monitor", "--format=s16le", f"--rate={RATE}", "--channels=1",
                            "--latency-msec=20"], environment, "parec", stdout=output)
        wait_until(lambda: os.path.getsize(self._recording) > 0, "the recording runs")

    def samples(self):
        """Everything recorded so far."""
        samples = array.array("h")
        with open(self._recording, "rb") as recording:
            data = recording.read()
        samples.frombytes(data[:len(data) // 2 * 2])
        return samples

    def position(self):
        """The recording's length in samples: the place from which a later sound is looked for."""
        return os.path.getsize(self._recording) // 2

    def loud_seconds(self, since=0):
        """How long something was heard since that position, counted in pieces of ten milliseconds."""
        piece = RATE // 100
        samples = self.samples()[since:]
        loud = sum(1 for start in range(0, len(samples) - piece, piece)
                   if max(samples[start:start + piece]) > AUDIBLE)
        return loud / 100

    def pitch(self, since=0):
        """The frequency in hertz of what was heard, from the rising crossings of zero; 0 for silence."""
        samples = self.samples()[since:]
        loud = [index for index, value in enumerate(samples) if abs(value) > AUDIBLE]
        if not loud:
            return 0.0
        part = samples[loud[0]:loud[-1] + 1]
        crossings = sum(1 for before, after in zip(part, part[1:]) if before < 0 <= after)
        return crossings * RATE / len(part)


def write_tone(path, frequency=880, seconds=1.0):
    """Writes a wave file with one tone, of the kind that a user would pick."""
    with wave.open(str(path), "wb") as tone:
        tone.setnchannels(1)
        tone.setsampwidth(2)
        tone.setframerate(RATE)
        tone.writeframes(array.array("h", [
            int(12000 * math.sin(2 * math.pi * frequency * index / RATE))
            for index in range(int(RATE * seconds))]).tobytes())
