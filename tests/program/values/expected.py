"""What a data set must hold, as a test has written it to expected.json and expected.bin."""
import json
import os

import numpy


class Difference(Exception):
    pass


def expect(fits, what):
    if not fits:
        raise Difference(what)


def expect_same(values, expected, what):
    values = numpy.ascontiguousarray(values, dtype=values.dtype.newbyteorder("="))
    expect(values.dtype == expected.dtype, f"{what} is {values.dtype}, not {expected.dtype}")
    expect(values.size == expected.size, f"{what} has {values.size} values, not {expected.size}")
    expect(values.tobytes() == expected.tobytes(), f"values of {what} differ")


class Expected:
    """What a data set holds: zones, each with its fields as arrays of shape (k, j, i)."""

    def __init__(self, folder):
        with open(os.path.join(folder, "expected.json")) as file:
            facts = json.load(file)
        values = numpy.memmap(os.path.join(folder, "expected.bin"), mode="r")
        self.coordinates = facts["coordinates"]
        self.times = facts["times"]
        self.zones = facts["zones"]
        for zone in self.zones:
            shape = tuple(reversed(zone["size"]))
            for field in zone["fields"]:
                first = field["offset"]
                last = first + numpy.dtype(field["type"]).itemsize * int(numpy.prod(shape))
                field["values"] = values[first:last].view(field["type"]).reshape(shape)

    @staticmethod
    def field(zone, name):
        return next((f["values"] for f in zone["fields"] if f["name"] == name), None)

    def points(self, zone):
        """Points as VTK has them, with zeros for coordinates that there are not."""
        fields = [f["values"].ravel() for f in zone["fields"][: self.coordinates]]
        while len(fields) < 3:
            fields.append(numpy.zeros_like(fields[0]))
        return numpy.stack(fields, axis=1)


standard_names = {
    "X": "CoordinateX", "Y": "CoordinateY", "Z": "CoordinateZ", "RHO": "Density",
    "RHO-U": "MomentumX", "RHO-V": "MomentumY", "RHO-W": "MomentumZ",
    "E": "EnergyStagnationDensity",
}
