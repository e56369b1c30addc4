#include "plot3dsample/Sample.h"

namespace quorvia::plot3dsample {

const std::vector<SampleCase_s>& sampleCases() {
    static const std::vector<SampleCase_s> cases = {
        {"cylinder", "flow past a cylinder: an O-grid around it over a Cartesian background",
         cylinderFiles},
        {"vortex", "isentropic vortex carried by a free stream, a time series", vortexFiles},
        {"shocktube", "shock tube after its diaphragm has burst, a time series", shockTubeFiles},
        {"ball", "gas ball in rigid rotation, on tetrahedra or on the triangles of its surface",
         ballFiles},
        {"overflow", "mixing layer of two gases: species, gamma and turbulence", mixingLayerFiles},
        {"functions", "steady periodic flow as two function files with a name file", functionFiles},
    };
    return cases;
}

const SampleCase_s& sampleCaseNamed(std::string_view name) {
    std::string expected;
    for (const SampleCase_s& candidate : sampleCases()) {
        if (candidate.name == name)
            return candidate;
        expected += expected.empty() ? "" : ", ";
        expected += candidate.name;
    }
    throw UsageError("no case '" + std::string(name) + "', expected one of " + expected);
}

} // namespace quorvia::plot3dsample
