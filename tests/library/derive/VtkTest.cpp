// What VTK's PLOT3D reader computes from real files, value for value. Where cells have no volume,
// and for the swirl at rest, VTK says 0 and the library that there is no value (docs/derived.md).
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <plot3d/DataSet.h>
#include <plot3d/Derived.h>

#include "support/TemporaryDirectory.h"

namespace plot3dtest {
namespace {

namespace fs = std::filesystem;

struct Name_s {
    int number;
    const char* nameInVtk;
};

constexpr Name_s pointwise[] = {
    {100, "Density"},          {110, "Pressure"},      {111, "PressureCoefficient"},
    {112, "MachNumber"},       {113, "SoundSpeed"},    {120, "Temperature"},
    {130, "Enthalpy"},         {144, "KineticEnergy"}, {153, "VelocityMagnitude"},
    {163, "StagnationEnergy"}, {170, "Entropy"},       {200, "Velocity"},
    {202, "Momentum"}};
constexpr Name_s withDerivatives[] = {{184, "Swirl"},
                                      {201, "Vorticity"},
                                      {210, "PressureGradient"},
                                      {211, "VorticityMagnitude"},
                                      {212, "StrainRate"}};

fs::path realData() {
    const char* const told = std::getenv("PLOT3D_REAL_DATA");
    return told != nullptr ? told : PLOT3D_REAL_DATA_FOLDER;
}

std::vector<float> numbersIn(const std::string& name) {
    std::vector<float> numbers(fs::file_size(name) / sizeof(float));
    std::ifstream(name, std::ios::binary)
        .read(reinterpret_cast<char*>(numbers.data()),
              static_cast<std::streamsize>(numbers.size() * sizeof(float)));
    return numbers;
}

class VtkTest : public ::testing::Test {
protected:
    /// Of each file the bytes that its values take; a file may hold more.
    void open(const char* grid, std::uintmax_t gridBytes, const char* solution,
              std::uintmax_t solutionBytes) {
        if (!fs::is_directory(realData()))
            GTEST_SKIP() << "the real files are not here; PLOT3D_REAL_DATA tells where they lie";
        grid_ = copied(grid, "real.x", gridBytes);
        solution_ = copied(solution, "real.q", solutionBytes);
        const std::string command = std::string(SYSTEM_PYTHON) + " " VTK_SCRIPT " " + grid_ + " " +
                                    solution_ + " " + directory_.path().string() + " 2>&1";
        const int status = std::system(command.c_str());
        if (WEXITSTATUS(status) == 77 || WEXITSTATUS(status) == 127)
            GTEST_SKIP() << "VTK is not installed";
        ASSERT_EQ(status, 0);
    }
    std::string copied(const char* from, const char* to, std::uintmax_t bytes) {
        fs::copy_file(realData() / from, directory_.file(to));
        fs::permissions(directory_.file(to), fs::perms::owner_write, fs::perm_options::add);
        fs::resize_file(directory_.file(to), bytes);
        return directory_.file(to);
    }
    plot3d::DataSet data() const {
        return plot3d::DataSet::open(std::vector<std::string>{grid_, solution_});
    }

    /// Differs by no more than the rounding of 32-bit reals on VTK's way; gives how many of our
    /// values are none, where VTK has 0 or none.
    std::int64_t compare(const plot3d::DataSet& data, const Name_s& name) {
        const auto ours =
            plot3d::derive(data, 0, *plot3d::findDerivedQuantity(std::to_string(name.number)));
        const std::vector<float> theirs =
            numbersIn(directory_.file(std::string(name.nameInVtk) + ".f32"));
        EXPECT_EQ(theirs.size(), ours.size() * ours[0].size());
        float largest = 0.0F;
        for (const float value : theirs)
            largest = std::isfinite(value) ? std::max(largest, std::abs(value)) : largest;
        std::int64_t without = 0;
        int wrong = 0;
        for (std::size_t n = 0; n < theirs.size(); ++n) {
            const double value = ours[n % ours.size()][n / ours.size()];
            if (std::isnan(value)) {
                ++without;
                wrong += theirs[n] != 0.0F && std::isfinite(theirs[n]);
            } else {
                wrong += !(std::abs(value - static_cast<double>(theirs[n])) <=
                           4e-6 * static_cast<double>(largest));
            }
        }
        EXPECT_EQ(wrong, 0) << name.nameInVtk;
        return without;
    }

    std::string grid_;
    std::string solution_;
    quorvia::testsupport::TemporaryDirectory directory_;
};

TEST_F(VtkTest, AgreesOnTheBluntFin) {
    open("bluntfinxyz.bin", 491'532, "bluntfinq.bin", 819'228);
    if (IsSkipped())
        return;
    const plot3d::DataSet fin = data();
    for (const Name_s& name : pointwise)
        EXPECT_EQ(compare(fin, name), 0) << name.nameInVtk;
    for (const Name_s& name : withDerivatives)
        compare(fin, name);
    EXPECT_EQ(compare(fin, {211, "VorticityMagnitude"}), 39); // nodes where cells have no volume
}

// Its file has density and momentum alone; the energies are 0.
TEST_F(VtkTest, AgreesOnTheCombustor) {
    open("combxyz.bin", 564'312, "combq.bin", 940'528);
    if (IsSkipped())
        return;
    const plot3d::DataSet combustor = data();
    for (const Name_s& name : pointwise)
        if (name.number != 111) // no free stream
            compare(combustor, name);
    for (const Name_s& name : withDerivatives)
        compare(combustor, name);
    EXPECT_EQ(compare(combustor, {201, "Vorticity"}), 0);
}

} // namespace
} // namespace plot3dtest
