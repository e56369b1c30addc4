"""Blocks of VTK against the zones that they must be."""
from expected import expect, expect_same, standard_names
from vtkmodules.util.numpy_support import vtk_to_numpy
from vtkmodules.vtkCommonDataModel import vtkCompositeDataSet, vtkMultiBlockDataSet


def cgns_names(fields, count):
    """Names of arrays and components: X, Y and Z become one vector."""
    names = {}
    stems = [standard_names.get(field["name"], field["name"].rstrip()) for field in fields]
    for stem in stems:
        letters = "XYZ"[:count]
        whole = stem[:-1]
        if stem[-1:] in letters and all(whole + letter in stems for letter in letters):
            names[stem] = (whole, "XYZ".index(stem[-1]))
        else:
            names[stem] = (stem, None)
    return [names[stem] for stem in stems]


def own_names(fields, count):
    return [(field["name"], None) for field in fields]


def blocks_of(tree):
    """Names and blocks of zones. Blocks that another rank has are not there."""
    blocks = []
    for place in range(tree.GetNumberOfBlocks()):
        block = tree.GetBlock(place)
        if isinstance(block, vtkMultiBlockDataSet):
            blocks += blocks_of(block)
        elif block is not None:
            facts = tree.GetMetaData(place)
            blocks.append((facts.Get(vtkCompositeDataSet.NAME()) if facts else None, block))
    return blocks


def zones_at(expected, time):
    return [z for z in expected.zones if not z["strand"] or z["time"] == time]


def own_named(expected, time):
    return {zone["name"]: zone for zone in zones_at(expected, time)}


def first_named(expected, time):
    """By the names of the blocks that CGNS gives: the zone of a grid keeps the name that it has at the
    first time."""
    firsts = {}
    for zone in expected.zones:
        firsts.setdefault(zone["strand"] or zone["name"], zone["name"][:32])
    return {firsts[zone["strand"] or zone["name"]]: zone for zone in zones_at(expected, time)}


def check_vtk_zone(block, zone, expected, names_of=cgns_names):
    points = vtk_to_numpy(block.GetPoints().GetData())
    for place, field in enumerate(zone["fields"][: expected.coordinates]):
        expect_same(points[:, place].astype(field["type"]), field["values"], "VTK's points")
    fields = zone["fields"][expected.coordinates :]
    for field, (name, component) in zip(fields, names_of(fields, expected.coordinates)):
        array = block.GetPointData().GetArray(name)
        expect(array is not None, f"VTK has no array {name}")
        values = vtk_to_numpy(array)
        values = values if component is None else values[:, component]
        expect_same(values, field["values"], f"VTK's {name}")
    if "elements" in zone:
        cells = vtk_to_numpy(block.GetCells().GetConnectivityArray())
        expect(cells.tolist() == sum(zone["elements"], []), "VTK's elements differ")


def check_p3d_zone(block, zone, expected):
    points = vtk_to_numpy(block.GetPoints().GetData())
    for place, field in enumerate(zone["fields"][: expected.coordinates]):
        expect_same(points[:, place], field["values"], "VTK's points")
    solution = {"RHO": ("Density", None), "RHO-U": ("Momentum", 0), "RHO-V": ("Momentum", 1),
                "RHO-W": ("Momentum", 2), "E": ("StagnationEnergy", None)}
    for field in zone["fields"][expected.coordinates :]:
        if field["name"] == "IBlank":
            continue  # VTK makes ghosts of it
        name, component = solution.get(field["name"], (field["name"].rstrip(), None))
        array = block.GetPointData().GetArray(name)
        expect(array is not None, f"VTK has no array {name}")
        values = vtk_to_numpy(array)
        expect_same(values if component is None else values[:, component], field["values"], name)
