#!/usr/bin/env python3
"""Makes the demonstration's take-off analysis files, one for each variant, from the model of docs/takeoff_model.md.

They are plausible, not the manufacturer's: not for navigation. Run it from the top of the tree; it overwrites the
files.
"""
import math
import pathlib

NAVDATA = pathlib.Path("data/root/Velarion/TZ900/Navdata")
ROWS = 108
FLAT_RATED = 30          # degrees Celsius up to which the engines give full thrust
HOTTEST = 68             # highest assumed temperature
POUNDS_PER_DEGREE = 3500  # of limit weight that a degree above it costs
REFERENCE_LENGTH = 11000  # ft, at which the base weight leaves at sea level
CLIMB_IN_HAND = 1.10     # thrust at sea level over what the second segment wants at the base weight
HIGH = 999999999         # an axis value that nothing comes near

# Base weight (lb); flaps by elevation up to 4,000 ft, to 8,500 ft and above; flaps near the limit, lightest first.
VARIANTS = {
    "8": (502500, (15, 15, 5), (5, 15, 15, 20, 20)),
    "9": (560500, (15, 10, 5), (5, 15, 17, 18, 20)),
    "10": (560500, (18, 15, 5), (5, 15, 17, 18, 20)),
}


def density_ratio(feet):
    return (1 - 6.8756e-6 * feet) ** 4.2559


def thrust_ratio(feet):
    """Of a turbofan with a high bypass ratio at take-off speed."""
    return density_ratio(feet) ** 0.8


def field_weight(base, length, feet):
    """Take-off distance goes with W^2 / (density * thrust): the take-off parameter."""
    return base * math.sqrt(length / REFERENCE_LENGTH * density_ratio(feet) * thrust_ratio(feet))


def climb_weight(base, feet):
    """The engine that is left carries drag and gradient, which both go with the weight."""
    return base * CLIMB_IN_HAND * thrust_ratio(feet)


def rows_of(base, by_elevation, by_fraction):
    for i in range(ROWS):
        weight = round(base * 0.5 + i * base * 0.5 / (ROWS - 1))
        assumed = min(HOTTEST, FLAT_RATED + (base - weight) / POUNDS_PER_DEGREE)
        length = 3000 + i * 125
        by_length = min(0, field_weight(base, length, 0) - base)
        feet = -1000 + i * 150
        limit = min(field_weight(base, REFERENCE_LENGTH, max(feet, 0)), climb_weight(base, max(feet, 0)))
        by_feet = min(0, limit - base)
        band = 0 if feet <= 4000 else 1 if feet <= 8500 else 2
        key, flaps = (band + 1, by_elevation[band])
        fraction, near_limit = (0, by_fraction[0]) if i == 0 else (HIGH, by_fraction[-1])
        if 1 <= i <= 4:
            near_limit = by_fraction[i]
        yield weight, round(assumed, 1), length, round(by_length), feet, round(by_feet), key, flaps, fraction, near_limit


for variant, (base, by_elevation, by_fraction) in VARIANTS.items():
    lines = [" ".join(str(number) for number in row) for row in rows_of(base, by_elevation, by_fraction)]
    (NAVDATA / f"Airport_Analysis-{variant}.txt").write_text("\n".join(lines) + "\n")
