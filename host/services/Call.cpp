#include "services/Call.h"

namespace quorvia::host {

void Call::begin() noexcept {
    fails_ = host_.faults.countCall(operation_);
    if (operation_.traits().lock == LockNeed_e::Held && host_.lockDepth() == 0)
        violation("called without the host's lock");
}

bool Call::fails() noexcept {
    if (fails_)
        refuse("failed on purpose");
    return fails_;
}

DataSet* Call::dataSet() noexcept {
    DataSet* found = host_.frame().dataSet();
    if (found == nullptr)
        violate("there is no data set");
    return found;
}

Zone_s* Call::zone(std::int32_t number) noexcept {
    DataSet* data = dataSet();
    if (data == nullptr)
        return nullptr;
    Zone_s* found = data->zone(number);
    if (found == nullptr)
        violate("there is no zone ", number);
    return found;
}

const Variable_s* Call::variable(std::int32_t number) noexcept {
    DataSet* data = dataSet();
    if (data == nullptr)
        return nullptr;
    const Variable_s* found = data->variable(number);
    if (found == nullptr)
        violate("there is no variable ", number);
    return found;
}

Field_s* Call::field(std::int32_t zoneNumber, std::int32_t variableNumber) noexcept {
    Zone_s* holder = zone(zoneNumber);
    if (holder == nullptr || variable(variableNumber) == nullptr)
        return nullptr;
    return &holder->fields[static_cast<std::size_t>(variableNumber - 1)];
}

void Call::beginLine(std::initializer_list<std::string> arguments) {
    std::string line(operation_.name());
    const char* separator = "(";
    if (arguments.size() == 0)
        line += '(';
    for (const std::string& argument : arguments) {
        line += separator + argument;
        separator = ", ";
    }
    host_.log.transcript.push_back(line + ')');
    line_ = host_.log.transcript.size();
}

// What a callback asks for in the meantime stands below this call's line.
void Call::endLine(const std::string& resultText) {
    if (line_ > host_.log.transcript.size())
        return;
    host_.log.transcript[line_ - 1] += (hasResult_ ? ", " : " = ") + resultText;
    hasResult_ = true;
}

} // namespace quorvia::host
