#!/usr/bin/env python3
"""Makes the two long amplitudes of loads_and_sections.json, as a text that `nga import` takes.

The ground acceleration is *synthetic*, no record of any event: white noise through the filter of
Kanai and Tajimi (an oscillator that stands for firm soil; Clough and Penzien, Dynamics of
Structures), under an envelope that rises, holds and decays. The second is a sine whose frequency
rises evenly with time. Neither needs anything but Python, and both are the same at every run.
"""
import json
import math
import random


def ground_acceleration(interval=0.02, duration=12.0, peak=3.0):
    """m/s^2, every interval seconds."""
    frequency, damping = 15.6, 0.6  # of firm soil, in radians per second
    noise = random.Random(1)
    x = v = 0.0  # of the oscillator relative to the rock below
    values = []
    parts = 10  # of an interval, over each of which the noise is constant
    step = interval / parts
    for i in range(round(duration / interval) + 1):
        for _ in range(parts):
            a = -(noise.random() - 0.5) - 2 * damping * frequency * v - frequency**2 * x
            v += a * step
            x += v * step
        filtered = -2 * damping * frequency * v - frequency**2 * x
        values.append(filtered * envelope(i * interval))
    largest = max(map(abs, values))
    return [round(value * peak / largest, 3) + 0.0 for value in values]


def envelope(time):
    if time < 2.0:
        return (time / 2.0) ** 2
    return 1.0 if time < 6.0 else math.exp(-0.5 * (time - 6.0))


def sine_sweep(interval=0.01, duration=4.0, low=1.0, high=8.0):
    """From low to high, in Hz."""
    rate = (high - low) / duration
    times = (i * interval for i in range(round(duration / interval) + 1))
    return [round(math.sin(2 * math.pi * (low + rate * t / 2) * t), 4) + 0.0 for t in times]


print(json.dumps({"amplitudes": {
    "ground acceleration (synthetic)": {
        "class": "EquallySpacedAmplitude", "timeSpan": "TOTAL", "fixedInterval": 0.02,
        "smooth": 0.0, "data": ground_acceleration(), "baselineCorrection": {"intervals": [6.0]}},
    "sine sweep 1 to 8 Hz": {
        "class": "EquallySpacedAmplitude", "fixedInterval": 0.01, "data": sine_sweep()},
}}))
