#include "app/CommandTable.h"

#include "convert/ConvertCommand.h"
#include "diff/DiffCommand.h"
#include "index/IndexCommand.h"
#include "info/InfoCommand.h"
#include "render/RenderCommand.h"
#include "stats/StatsCommand.h"

namespace plot3d::program {

Commands allCommands() {
    Commands commands;
    commands.push_back(std::make_unique<InfoCommand>());
    commands.push_back(std::make_unique<StatsCommand>());
    commands.push_back(std::make_unique<ConvertCommand>());
    commands.push_back(std::make_unique<DiffCommand>());
    commands.push_back(std::make_unique<IndexCommand>());
    commands.push_back(std::make_unique<RenderCommand>());
    return commands;
}

} // namespace plot3d::program
