// plot3d render: pictures of a data set.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "content/SceneContent.h"
#include "manners/Command.h"
#include "manners/ProgressWatch.h"
#include "render/ViewArguments.h"
#include "selection/DataArguments.h"

namespace plot3d::program {

class RenderCommand : public Command {
public:
    const char* name() const override { return "render"; }
    const char* purpose() const override;
    const char* examples() const override;
    const char* failureMeans() const override;
    void declare(console::OptionTable& table) override;
    int run(const Surroundings_s& surroundings) override;

private:
    void refuseOutputs() const;
    void saveView(const scene::View_s& view) const;
    void drawOne(const DataSet& data, const scene::View_s& view,
                 const Surroundings_s& surroundings) const;
    void drawAll(const DataSet& data, scene::View_s view, const Surroundings_s& surroundings) const;

    DataArguments data_;
    ViewArguments view_;
    std::string output_;
    bool overwrites_ = false;
    std::string savedView_;
};

} // namespace plot3d::program
