#!/usr/bin/env python3
"""Works out tables of the reachable uncertainty for the tests, sharing nothing with the program.

    python3 make_tables.py > tables.tsv

Exact fractions but for the square roots and the factors t. A factor for 6 or 7 samples is a quantile, found by
integrating the density and rounded to three decimals; those for many samples are the printed table's.
"""

from fractions import Fraction
from math import gamma, pi, sqrt

FLOOR = Fraction(2, 10000)

# What the printed table gives from 50 samples on, for those samples that the runs below end with.
PRINTED = {
    (149, 5): Fraction("1.976") + Fraction("0.001") / 10,
    (149, 1): Fraction("2.605") + Fraction("0.002") / 10,
    (499, 5): Fraction("1.965") + Fraction("0.001") / 100,
    (499, 1): Fraction("2.586") + Fraction("0.001") / 100,
}


def within(t, degrees, steps=20000):
    """Probability of |T| <= t, by Simpson's rule."""
    scale = gamma((degrees + 1) / 2) / (sqrt(degrees * pi) * gamma(degrees / 2))
    h = t / steps
    total = 0.0
    for i in range(steps + 1):
        weight = 1 if i in (0, steps) else 4 if i % 2 else 2
        total += weight * (1 + (i * h) ** 2 / degrees) ** (-(degrees + 1) / 2)
    return 2 * scale * total * h / 3


def t_factor(samples, level):
    """The factor for a mean of `samples`: printed row samples - 1, which is that of `samples` degrees of freedom."""
    if (samples - 1, level) in PRINTED:
        return PRINTED[samples - 1, level]
    low, high = 1.0, 10.0
    for _ in range(40):
        middle = (low + high) / 2
        if within(middle, samples) < 1 - level / 100:
            low = middle
        else:
            high = middle
    return Fraction(round(low, 3)).limit_denominator(1000)


def half_width(samples, level, s):
    return t_factor(samples, level) * s / Fraction(sqrt(samples))


def table(n, level, s):
    """Largest value, and the positions 1 to 2n."""
    # The half width falls with every sample, so the largest is the first and the last is the smallest.
    largest = half_width(6, level, s) if n >= 6 else Fraction(0)
    last = half_width(n, level, s) if n >= 6 else Fraction(0)
    first = [max(FLOOR, largest - (largest - last) * i / n) for i in range(n)]
    second = [max(FLOOR, first[-1] - (first[-1] - FLOOR) * i / n) for i in range(1, n + 1)]
    return largest, first + second


def main():
    print("# N\tBeta\ts\tposition\tuncertainty; position 0 holds the largest value of the raw curve")
    for n in (1, 5, 6, 7, 150, 500):
        for level, s in ((5, "0.0123"), (1, "0.0009")):
            largest, values = table(n, level, Fraction(s))
            print(f"{n}\t{level}\t{s}\t0\t{float(largest)!r}")
            for position, value in enumerate(values, 1):
                print(f"{n}\t{level}\t{s}\t{position}\t{float(value)!r}")


main()
