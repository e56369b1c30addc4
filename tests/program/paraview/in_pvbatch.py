"""in_pvbatch.py FOLDER: what each rank of pvbatch --sym runs. Reads the indexes of all folders in FOLDER,
compares the zones that this rank has bit for bit, and writes what it read and what differed to
FOLDER/rank<number>.json."""
import collections
import glob
import json
import os
import sys

here = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [os.path.join(here, "..", "values"), os.path.join(here, "..", "index")]
from expected import Expected
from paraview import simple
from vtk_blocks import blocks_of, check_p3d_zone, check_vtk_zone, first_named, own_named, own_names
from vtkmodules.vtkCommonCore import vtkObject
from vtkmodules.vtkParallelCore import vtkMultiProcessController


def everything_of(reader):
    reader.UpdatePipelineInformation()
    reader.PointArrayStatus = reader.PointArrayStatus.Available
    return reader


def output(reader, time):
    reader.UpdatePipeline(time)
    return reader.GetClientSideObject().GetOutputDataObject(0)


def cgns(path):
    reader = everything_of(simple.CGNSSeriesReader(FileNames=[path]))
    reader.Bases = reader.Bases.Available
    return reader


def xdmf(path):
    return everything_of(simple.XDMFReader(FileNames=[path]))


def p3d(path):
    return simple.PLOT3DMetaFileReader(FileName=path)


def check_xdmf_zone(block, zone, expected):
    check_vtk_zone(block, zone, expected, own_names)


formats = {
    ".cgns": (cgns, check_vtk_zone, first_named),
    ".xmf2": (xdmf, check_xdmf_zone, own_named),
    ".p3d": (p3d, check_p3d_zone, own_named),
}


def named_blocks(data, zones):
    """Blocks by the names of their zones. Zones in the order of the file may come without names, and
    one alone as it is."""
    if not hasattr(data, "GetNumberOfBlocks"):
        return dict.fromkeys(zones, data)
    blocks = blocks_of(data)
    if any(name is None for name, _ in blocks):
        return dict(zip(zones, (block for _, block in blocks)))
    return dict(blocks)


def check(path, expected, read):
    opened, check_zone, zones_by_name = formats[os.path.splitext(path)[1]]
    reader = opened(path)
    names = {name for time in expected.times for name in zones_by_name(expected, time)}
    for time in expected.times:
        zones = zones_by_name(expected, time)
        for name, block in named_blocks(output(reader, time), zones).items():
            if name not in zones and name in names:
                continue  # ParaView shows zones of CGNS also at times that don't have them
            check_zone(block, zones[name], expected)
            read.append([time, expected.zones.index(zones[name])])
    simple.Delete(reader)


def main():
    vtkObject.GlobalWarningDisplayOff()
    root = sys.argv[1]
    read = collections.defaultdict(list)
    differences = collections.defaultdict(list)
    for path in sorted(glob.glob(os.path.join(root, "*", "out.*"))):
        try:
            check(path, Expected(os.path.dirname(path)), read[path])
        except Exception as problem:  # of any module: told, and the next one is read
            differences[path].append(f"{type(problem).__name__}: {problem}")
    rank = vtkMultiProcessController.GetGlobalController().GetLocalProcessId()
    with open(os.path.join(root, f"rank{rank}.json"), "w") as file:
        json.dump({"read": read, "differences": differences}, file)


main()
