#include "dataset/items/CurrentTask.h"

namespace quorvia::quorutildataio {

std::unique_ptr<TaskProgress> currentTask;

} // namespace quorvia::quorutildataio
