#!/usr/bin/python3
"""read_paraview.py PARAVIEW FOLDER [RANKS]: lets pvbatch read indexes, on so many ranks.

PARAVIEW is where unpack-paraview has put it; FOLDER holds a folder for each data set, as read_index.py
has it. Prints a line for each thing that differs, then how many indexes were read. Exit code 1 if
something differs, 77 if PLOT3D_PARAVIEW=skip says so.
"""
import collections
import glob
import json
import os
import subprocess
import sys

sys.dont_write_bytecode = True
here = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [os.path.join(here, "..", "values")]
from expected import Expected


def run_pvbatch(paraview, folder, ranks):
    """What the ranks say of themselves, in the order of their numbers."""
    libraries = [paraview + "/usr/lib/x86_64-linux-gnu", paraview + "/usr/lib"]
    environment = dict(
        os.environ,
        LD_LIBRARY_PATH=":".join(libraries),
        PYTHONPATH=paraview + "/usr/lib/python3/dist-packages",
        PYTHONDONTWRITEBYTECODE="1",
        OMPI_MCA_rmaps_base_oversubscribe="1",
    )
    command = ["mpirun", "-np", str(ranks), "--allow-run-as-root", "--oversubscribe"]
    command += [paraview + "/usr/bin/pvbatch", "--sym", os.path.join(here, "in_pvbatch.py"), folder]
    run = subprocess.run(command, env=environment, stdout=subprocess.PIPE, stderr=subprocess.STDOUT)
    names = [os.path.join(folder, f"rank{rank}.json") for rank in range(ranks)]
    if run.returncode != 0 or not all(os.path.exists(name) for name in names):
        sys.exit(run.stdout.decode(errors="replace") + f"pvbatch ended with {run.returncode}")
    reports = []
    for name in names:
        with open(name) as file:
            reports.append(json.load(file))
    return reports


def differences(path, expected, reports):
    """Of one index: what the ranks found, and that each zone was read by one of them."""
    told = [f"{path}: {text}" for report in reports for text in report["differences"].get(path, [])]
    read = [report["read"].get(path, []) for report in reports]
    counts = collections.Counter(tuple(zone) for zones in read for zone in zones)
    for time in expected.times:
        for number, zone in enumerate(expected.zones):
            count = counts[(time, number)]
            if (not zone["strand"] or zone["time"] == time) and count != 1:
                told.append(f"{path}: at {time} zone {number + 1} was read {count} times")
    if len(expected.zones) > 1 and not all(read):
        told.append(f"{path}: zones were read by the ranks {[len(zones) for zones in read]}")
    return told


def main():
    if os.environ.get("PLOT3D_PARAVIEW") == "skip":
        print("not read: PLOT3D_PARAVIEW=skip")
        return 77
    paraview, folder = sys.argv[1:3]
    reports = run_pvbatch(paraview, folder, int(sys.argv[3]) if len(sys.argv) > 3 else 1)
    told = []
    count = 0
    for name in sorted(os.listdir(folder)):
        indexes = sorted(glob.glob(os.path.join(folder, name, "out.*")))
        count += len(indexes)
        for path in indexes:
            told += differences(path, Expected(os.path.dirname(path)), reports)
    print("\n".join(told + [f"{count} files read"]))
    return 1 if told else 0


sys.exit(main())
