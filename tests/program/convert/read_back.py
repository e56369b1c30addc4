#!/usr/bin/python3
"""read_back.py FOLDER: reads what was converted with programs of others, and compares bit for bit.

Each folder in FOLDER is one data set: expected.json and expected.bin tell what it holds, and beside
them stand out.vtm, out.npz and so on. Prints a line for each thing that differs, then how many data
sets were read. Exit code 1 if something differs, 77 if a module is missing.
"""
import csv
import os
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "values"))
sys.dont_write_bytecode = True

try:
    import h5py
    import numpy
    import vtk
    from expected import Expected, expect, expect_same, standard_names
    from vtk.util.numpy_support import vtk_to_numpy
except ImportError as missing:
    print(f"not read back: {missing}")
    sys.exit(77)

differences = []


def hidden_cells(iblank):
    """32 where a corner of the cell is 0; directions of one point have one layer of cells."""
    hidden = iblank == 0
    for axis in range(3):
        if hidden.shape[axis] > 1:
            ahead = [slice(None)] * 3
            behind = [slice(None)] * 3
            ahead[axis], behind[axis] = slice(None, -1), slice(1, None)
            hidden = hidden[tuple(ahead)] | hidden[tuple(behind)]
    return numpy.where(hidden, 32, 0).astype(numpy.uint8)


def check_vtk_zone(block, zone, expected):
    expect(block is not None, "no block")
    expect_same(vtk_to_numpy(block.GetPoints().GetData()), expected.points(zone), "points")
    fields = zone["fields"][expected.coordinates :]
    data = block.GetPointData()
    expect(data.GetNumberOfArrays() == len(fields), f"{data.GetNumberOfArrays()} point arrays")
    for field in fields:
        expect(data.HasArray(field["name"]), f"no array {field['name']}")
        expect_same(vtk_to_numpy(data.GetArray(field["name"])), field["values"], field["name"])
    time = vtk_to_numpy(block.GetFieldData().GetArray("TimeValue"))
    expect(time.tolist() == [zone["time"]], f"time is {time}")
    if "elements" in zone:
        cells = vtk_to_numpy(block.GetCells().GetConnectivityArray())
        expect(cells.tolist() == sum(zone["elements"], []), "elements differ")
        kinds = {3: vtk.VTK_TRIANGLE, 4: vtk.VTK_TETRA}
        wanted = [kinds[len(corners)] for corners in zone["elements"]]
        expect(vtk_to_numpy(block.GetCellTypesArray()).tolist() == wanted, "types of cells differ")
        return
    expect(list(block.GetDimensions()) == zone["size"], f"dimensions are {block.GetDimensions()}")
    iblank = Expected.field(zone, "IBlank")
    if iblank is not None and iblank.dtype.kind == "i":
        ghosts = vtk_to_numpy(block.GetCellData().GetArray("vtkGhostType"))
        expect_same(ghosts, hidden_cells(iblank), "vtkGhostType")


def multi_block(path):
    reader = vtk.vtkXMLMultiBlockDataReader()
    reader.SetFileName(path)
    reader.Update()
    return reader.GetOutput()


def check_vtm(path, expected):
    blocks = multi_block(path)
    expect(blocks.GetNumberOfBlocks() == len(expected.zones), "count of blocks")
    for index, zone in enumerate(expected.zones):
        name = blocks.GetMetaData(index).Get(vtk.vtkCompositeDataSet.NAME())
        expect(name == zone["name"], f"block {index} is called {name}")
        check_vtk_zone(blocks.GetBlock(index), zone, expected)


def check_pvd(path, expected):
    """VTK has no reader of its own for this index of ParaView's: its XML is looked at."""
    parser = vtk.vtkXMLDataParser()
    parser.SetFileName(path)
    expect(parser.Parse() == 1, "is no XML")
    collection = parser.GetRootElement().FindNestedElementWithName("Collection")
    steps = [collection.GetNestedElement(n) for n in range(collection.GetNumberOfNestedElements())]
    times = [float(step.GetAttribute("timestep")) for step in steps]
    expect(times == expected.times, f"times are {times}")
    for time, step in zip(times, steps):
        blocks = multi_block(os.path.join(os.path.dirname(path), step.GetAttribute("file")))
        zones = [zone for zone in expected.zones if zone["time"] == time]
        expect(blocks.GetNumberOfBlocks() == len(zones), "count of blocks")
        for index, zone in enumerate(zones):
            check_vtk_zone(blocks.GetBlock(index), zone, expected)


def check_npz(path, expected):
    with numpy.load(path) as archive:
        keys = set()
        for zone in expected.zones:
            number = zone["number"]
            for field in zone["fields"]:
                key = f"{number}/{field['name']}"
                keys.add(key)
                expect(key in archive, f"no key {key}")
                expect(archive[key].shape == field["values"].shape, f"shape of {key}")
                expect_same(archive[key], field["values"], key)
            if "elements" in zone:
                keys.add(f"{number}/elements")
                expect(archive[f"{number}/elements"].tolist() == zone["elements"], "elements")
        expect(archive["times"].tolist() == [zone["time"] for zone in expected.zones], "times")
        expect(set(archive.files) == keys | {"times"}, f"keys are {archive.files}")


def one_nan(values):
    """Text has one NaN for all that there are."""
    if values.dtype.kind != "f":
        return values
    return numpy.where(numpy.isnan(values), values.dtype.type("nan"), values)


def check_csv(path, expected):
    with open(path, newline="") as file:
        rows = list(csv.reader(file))
    names = [field["name"] for field in expected.zones[0]["fields"]]
    expect(rows[0] == ["zone", "time", "i", "j", "k"] + names, f"header is {rows[0]}")
    row = 1
    for zone in expected.zones:
        i, j, k = zone["size"]
        lines = rows[row : row + i * j * k]
        row += i * j * k
        places = [[n % i + 1, n // i % j + 1, n // i // j + 1] for n in range(i * j * k)]
        expect([[int(text) for text in line[2:5]] for line in lines] == places, "indices")
        expect(all(line[0] == str(zone["number"]) for line in lines), "zone numbers")
        expect(all(float(line[1]) == zone["time"] for line in lines), "times")
        for column, field in enumerate(zone["fields"], 5):
            texts = [line[column] for line in lines]
            read = numpy.array(texts, dtype=float).astype(field["type"])
            expect_same(one_nan(read), one_nan(field["values"]), field["name"])
    expect(row == len(rows), f"{len(rows)} lines")


def cgns_text(node):
    return bytes(node[" data"][()].astype(numpy.uint8)).decode()


def check_cgns_zone(node, zone, coordinates, solution, grid, count):
    cells = [max(n - 1, 0) for n in zone["size"]][:count]
    size = node[" data"][()]
    if "elements" in zone:
        expect(size.tolist() == [[zone["size"][0]], [len(zone["elements"])], [0]], f"size {size}")
        corners = node["Elements/ElementConnectivity/ data"][()] - 1
        expect(corners.tolist() == sum(zone["elements"], []), "elements differ")
        kinds = {3: 5, 4: 10}
        kind = node["Elements/ data"][()][0]
        expect(kind == kinds[len(zone["elements"][0])], f"elements are of kind {kind}")
    else:
        expect(size.tolist() == [zone["size"][:count], cells, [0] * count], f"size {size}")
    for place, field in enumerate(zone["fields"]):
        name = standard_names.get(field["name"], field["name"].rstrip())
        parent = grid if place < coordinates else solution
        values = node[f"{parent}/{name}/ data"]
        shape = tuple(n for n in field["values"].shape[3 - count :])
        expect("elements" in zone or values.shape == shape, f"shape of {name} is {values.shape}")
        expect_same(values[()], field["values"], name)


def check_cgns(path, expected):
    with h5py.File(path) as file:
        bases = [node for name, node in file.items() if name.startswith("Base")]
        for base in bases:
            times = base["BaseIterativeData/TimeValues/ data"][()]
            expect(times.tolist() == expected.times, f"times are {times}")
        zones = {name: (base, node) for base in bases for name, node in base.items()}
        first_names = {}  # of the earliest time, which need not come first
        for zone in sorted(expected.zones, key=lambda zone: zone["time"]):
            name = zone["name"][:32]
            step = expected.times.index(zone["time"]) if zone["strand"] else 0
            first_name = first_names.setdefault(zone["strand"] or name, name)
            follows = name not in zones  # one node is the zone at all times
            name = first_name if follows else name
            base, node = zones[name]
            solution, grid = "FlowSolution", "GridCoordinates"
            if "ZoneIterativeData" in node:
                lists = node["ZoneIterativeData"]
                place = slice(32 * step, 32 * step + 32)
                grid = cgns_text(lists["GridCoordinatesPointers"])[place].strip()
                if "FlowSolutionPointers" in lists:
                    solution = cgns_text(lists["FlowSolutionPointers"])[place].strip()
            elif len(expected.times) > 1 and zone["strand"]:
                expect(not follows, "a later step has no node")
                lists = cgns_text(base["BaseIterativeData/ZonePointers"])
                seen = [lists[n : n + 32].strip() for n in range(0, len(lists), 32)]
                seen = seen[len(seen) // len(expected.times) * step :]
                expect(name in seen, f"{name} is not seen at its time")
            count = 1 if "elements" in zone else int(base[" data"][()][0])
            check_cgns_zone(node, zone, expected.coordinates, solution, grid, count)


checks = {"out.cgns": check_cgns, "out.vtm": check_vtm, "out.pvd": check_pvd, "out.npz": check_npz, "out.csv": check_csv}


def check(folder):
    expected = Expected(folder)
    count = 0
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
    vtk.vtkObject.GlobalWarningDisplayOff()
    count = sum(check(os.path.join(root, name)) for name in sorted(os.listdir(root)))
    for difference in differences:
        print(difference)
    print(f"{count} files read")
    return 1 if differences else 0


if __name__ == "__main__":
    sys.exit(main())
