// The host exists once in a program, in whichever order it is linked with the library: what the
// library does there is seen by the program. Built in both orders.
#include <filesystem>
#include <string>

#include <link.h>

#include "OpenFixture.h"
#include "session/ReferenceHost.h"

namespace plot3dtest {
namespace {

using writer::FileKind_e;

/// The libraries of this project that the program has loaded, in their order.
std::vector<std::string> loadedLibraries() {
    std::vector<std::string> names;
    const auto note = [](dl_phdr_info* info, std::size_t, void* data) {
        const std::string name = std::filesystem::path(info->dlpi_name).filename().string();
        if (name.starts_with("libplot3d.so") || name.starts_with("libquorhost.so"))
            static_cast<std::vector<std::string>*>(data)->push_back(
                name.substr(0, name.find(".so") + 3));
        return 0;
    };
    dl_iterate_phdr(note, &names);
    return names;
}

/// By the name of the program, link_order_<it>_first_tests.
std::string firstLibrary() {
    const std::string program = std::filesystem::read_symlink("/proc/self/exe").filename().string();
    const std::size_t begin = std::string("link_order_").size();
    return "lib" + program.substr(begin, program.find("_first_tests") - begin) + ".so";
}

class LinkOrder : public OpenTest {};

TEST_F(LinkOrder, LeavesOneHost) {
    const auto& host = quorvia::host::ReferenceHost::instance();
    plot3d::DataSet::open({write("wing.x", wholeLayout(FileKind_e::Grid)).path});
    EXPECT_EQ(host.loaderNames(), std::vector<std::string>{"PLOT3D Loader"});
    EXPECT_EQ(loadedLibraries().size(), 2u);
    EXPECT_EQ(loadedLibraries().front(), firstLibrary());
}

TEST_F(LinkOrder, LeavesTheProgramsOwnSymbolsAlone) {
    const auto grid = write("wing.x", wholeLayout(FileKind_e::Grid));
    const auto data = plot3d::DataSet::open({grid.path});
    EXPECT_THROW(data.source(0, 99), plot3d::Error);
    expectFields(data, FileReading::asMeant(grid), 0);
}

TEST_F(LinkOrder, TakesAnotherAddOnAsAGuestOfThatHost) {
    const auto grid = write("wing.x", wholeLayout(FileKind_e::Grid));
    plot3d::OpenOptions options;
    options.addOn = PLOT3DLOADER_FILE;
    const auto data = plot3d::DataSet::open({grid.path}, options);
    EXPECT_EQ(data.kind(0, 0), plot3d::FieldKind::AtHost);
    EXPECT_EQ(quorvia::host::ReferenceHost::instance().loaders().size(), 2u);
    expectFields(data, FileReading::asMeant(grid), 0);
}

} // namespace
} // namespace plot3dtest
