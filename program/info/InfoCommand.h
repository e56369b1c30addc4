// plot3d info: what files are, and what is wrong with those that can't be read.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include <plot3d/FileInfo.h>

#include "manners/Command.h"

namespace plot3d::program {

class InfoCommand : public Command {
public:
    /// Looks at one file: plot3d::inspect, or what a test puts in its place.
    using Inspect =
        std::function<FileInfo(const std::string&, const InspectOptions&, const Watch&)>;

    InfoCommand();
    explicit InfoCommand(Inspect inspect);

    const char* name() const override { return "info"; }
    const char* purpose() const override;
    const char* examples() const override;
    const char* failureMeans() const override;
    void declare(console::OptionTable& table) override;
    int run(const Surroundings_s& surroundings) override;

private:
    InspectOptions options() const;
    std::size_t inspectAll(const std::vector<std::string>& files,
                           const Surroundings_s& surroundings,
                           const std::function<void(const FileInfo&)>& show) const;
    /// These give the number of files that are not ok.
    std::size_t showText(const std::vector<std::string>& files,
                         const Surroundings_s& surroundings) const;
    std::size_t showJson(const std::vector<std::string>& files,
                         const Surroundings_s& surroundings) const;

    Inspect inspect_;
    std::vector<std::string> files_;
    std::string as_;
    bool why_ = false;
    bool all_ = false;
    bool json_ = false;
};

} // namespace plot3d::program
