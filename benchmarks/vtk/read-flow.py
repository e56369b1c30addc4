"""read-flow.py GRID SOLUTION little|big: prints the seconds that VTK's PLOT3D reader takes to bring
coordinates and the variables of the solution into memory."""
import sys
import time

from vtkmodules.vtkIOParallel import vtkMultiBlockPLOT3DReader

reader = vtkMultiBlockPLOT3DReader()
reader.SetXYZFileName(sys.argv[1])
reader.SetQFileName(sys.argv[2])
reader.SetMultiGrid(True)
reader.SetBinaryFile(True)
reader.SetHasByteCount(False)
if sys.argv[3] == "little":
    reader.SetByteOrderToLittleEndian()
else:
    reader.SetByteOrderToBigEndian()
reader.RemoveAllFunctions()  # derive nothing
reader.SetScalarFunctionNumber(-1)
reader.SetVectorFunctionNumber(-1)
start = time.perf_counter()
reader.Update()
seconds = time.perf_counter() - start
grid = reader.GetOutput().GetBlock(0)
if grid is None or grid.GetPointData().GetNumberOfArrays() != 3:
    sys.exit("the solution did not come in")
print(seconds)
