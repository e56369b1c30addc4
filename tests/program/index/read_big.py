#!/usr/bin/python3
"""read_big.py INDEX: reads the first and the last plane of each coordinate through an index, with
h5py, and compares them with what BigIndexTest writes. Exit code 1 if they differ, 77 without h5py.
"""
import sys

try:
    import h5py
    import numpy
except ImportError as missing:
    print(f"not read: {missing}")
    sys.exit(77)

fields = 0
with h5py.File(sys.argv[1]) as file:
    zones = [node for node in file["Base3D"].values() if node.attrs.get("label") == b"Zone_t"]
    for variable, letter in enumerate("XYZ"):
        values = zones[0][f"GridCoordinates/Coordinate{letter}/ data"]
        j, i = numpy.mgrid[: values.shape[1], : values.shape[2]]
        first = 1 + i + 509 * j + variable * 300000
        fields += bool((values[0] == first).all() and (values[-1] == first + 1000000).all())
print(f"{fields} fields have their ends")
sys.exit(0 if fields == 3 else 1)
