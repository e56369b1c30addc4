#!/usr/bin/python3
"""read_index.py FOLDER: reads indexes with programs of others, and compares bit for bit.

Each folder in FOLDER is one data set: expected.json and expected.bin tell what it holds, and beside
them stand its indexes, out.cgns and so on. Prints a line for each thing that differs, then how many
indexes were read. Exit code 1 if something differs, 77 if a module is missing.
"""
import os
import sys
import xml.etree.ElementTree

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "convert"))
sys.dont_write_bytecode = True
from read_back import Expected, check_cgns, expect, expect_same

try:
    import fsspec
    import numpy
    import zarr
    from vtk_blocks import blocks_of, check_p3d_zone, check_vtk_zone, first_named, zones_at
    from vtkmodules.vtkCommonCore import vtkObject
    from vtkmodules.vtkIOCGNSReader import vtkCGNSReader
    from vtkmodules.vtkIOParallel import vtkPlot3DMetaReader
except ImportError as missing:
    print(f"not read back: {missing}")
    sys.exit(77)

differences = []


# ---- CGNS: by h5py as it stands, and by VTK's reader


def check_cgns_by_vtk(path, expected):
    reader = vtkCGNSReader()
    reader.SetFileName(path)
    reader.DoublePrecisionMeshOn()
    reader.UpdateInformation()
    reader.EnableAllBases()
    reader.EnableAllPointArrays()
    for time in expected.times:
        reader.UpdateTimeStep(time)
        blocks = dict(blocks_of(reader.GetOutput()))
        for name, zone in first_named(expected, time).items():
            expect(name in blocks, f"VTK has no block {name}")
            check_vtk_zone(blocks[name], zone, expected)


def check_cgns_index(path, expected):
    check_cgns(path, expected)
    check_cgns_by_vtk(path, expected)


# ---- References: by fsspec and zarr


def check_references(path, expected):
    store = fsspec.filesystem("reference", fo=path, skip_instance_cache=True).get_mapper("")
    root = zarr.open(store, mode="r")
    expect(len(list(root.group_keys())) == len(expected.zones), "count of zones")
    for number, zone in enumerate(expected.zones, 1):
        group = root[str(number)]
        expect(group.attrs["name"] == zone["name"], "name of a zone")
        time = zone["time"] if zone["strand"] else None
        expect(group.attrs["time"] == time, f"time is {group.attrs['time']}")
        for field in zone["fields"]:
            array = group[field["name"].rstrip()]
            expect("elements" in zone or array.shape == field["values"].shape, "shape")
            expect_same(array[...], field["values"], field["name"])
        if "elements" in zone:
            expect(group["elements"][...].tolist() == zone["elements"], "elements differ")


# ---- XDMF: its data items, as its definition says


def read_item(item, folder):
    order = ">" if item.get("Endian") == "Big" else "<"
    kind = {"Float": "f", "Int": "i"}[item.get("NumberType")]
    shape = tuple(int(size) for size in item.get("Dimensions").split())
    if item.get("Format") == "XML":
        return numpy.array([int(text) for text in item.text.split()]).reshape(shape)
    path = os.path.join(folder, item.text)
    dtype = order + kind + item.get("Precision")
    return numpy.memmap(path, dtype=dtype, mode="r", offset=int(item.get("Seek")), shape=shape)


def check_xdmf_zone(grid, zone, expected, folder):
    expect(grid.get("Name") == zone["name"], f"{grid.get('Name')} is not {zone['name']}")
    topology = grid.find("Topology")
    if "elements" in zone:
        corners = read_item(topology.find("DataItem"), folder)
        expect(corners.tolist() == zone["elements"], "elements differ")
    else:
        sizes = [int(size) for size in topology.get("Dimensions").split()]
        expect(sizes == zone["size"][::-1], f"sizes are {sizes}")
    items = grid.findall("Geometry/DataItem") + grid.findall("Attribute/DataItem")
    names = [attribute.get("Name") for attribute in grid.findall("Attribute")]
    wanted = [field["name"] for field in zone["fields"][expected.coordinates :]]
    expect(names == wanted, f"attributes are {names}")
    expect(len(items) == len(zone["fields"]), "count of data items")
    for item, field in zip(items, zone["fields"]):
        expect_same(read_item(item, folder), field["values"], field["name"])


def check_xdmf(path, expected):
    steps = xml.etree.ElementTree.parse(path).getroot().find("Domain/Grid").findall("Grid")
    times = [float(step.find("Time").get("Value")) for step in steps]
    expect(times == expected.times, f"times are {times}")
    for time, step in zip(times, steps):
        zones = zones_at(expected, time)
        grids = step.findall("Grid")
        expect(len(grids) == len(zones), "count of grids")
        for grid, zone in zip(grids, zones):
            check_xdmf_zone(grid, zone, expected, os.path.dirname(path))


# ---- .p3d: by VTK's reader of whole files. VisIt's reader of .vp3d is in no package: its lines are
# looked at.


def check_p3d(path, expected):
    reader = vtkPlot3DMetaReader()
    reader.SetFileName(path)
    reader.UpdateInformation()
    for time in expected.times:
        reader.UpdateTimeStep(time)
        zones = zones_at(expected, time)
        blocks = reader.GetOutput()
        expect(blocks.GetNumberOfBlocks() == len(zones), "VTK's count of blocks")
        for place, zone in enumerate(zones):
            check_p3d_zone(blocks.GetBlock(place), zone, expected)


def check_vp3d(path, expected):
    with open(path) as file:
        lines = [line.rstrip("\n") for line in file if not line.startswith("# ")]
    names = [line.split(" ", 1)[1] for line in lines if " " in line]
    expect(all(os.path.isfile(name) for name in names), f"{names} are no files")
    expect(("IBLANKING" in lines) == any(f["name"] == "IBlank" for f in expected.zones[0]["fields"]), "I-blank")
    expect(("2D" in lines) == (expected.coordinates == 2), "dimensions")
    expect("MULTI_GRID" in lines or len(expected.zones) == 1, "count of grids")


checks = {
    "out.cgns": check_cgns_index,
    "out.json": check_references,
    "out.xmf2": check_xdmf,
    "out.p3d": check_p3d,
    "out.vp3d": check_vp3d,
}


def check(folder):
    count = 0
    expected = Expected(folder)
    for name, check_format in checks.items():
        path = os.path.join(folder, name)
        if not os.path.exists(path):
            continue
        count += 1
        try:
            check_format(path, expected)
        except Exception as problem:  # of any module: told, and the next one is read
            differences.append(f"{path}: {type(problem).__name__}: {problem}")
    return count


def main():
    root = sys.argv[1]
    vtkObject.GlobalWarningDisplayOff()
    count = sum(check(os.path.join(root, name)) for name in sorted(os.listdir(root)))
    for difference in differences:
        print(difference)
    print(f"{count} files read")
    return 1 if differences else 0


sys.exit(main())
