#include "program/commands/ModelSelection.h"

#include <algorithm>
#include <cmath>
#include <optional>
#include <set>
#include <string_view>

namespace plot3d::program {
namespace {

char lowered(char letter) {
    return letter >= 'A' && letter <= 'Z' ? static_cast<char>(letter - 'A' + 'a') : letter;
}

/// Case does not count here.
bool fits(std::string_view name, std::string_view pattern) {
    if (pattern.empty())
        return name.empty();
    if (pattern.front() == '*')
        return fits(name, pattern.substr(1)) || (!name.empty() && fits(name.substr(1), pattern));
    return !name.empty() && (pattern.front() == '?' || lowered(pattern[0]) == lowered(name[0])) &&
           fits(name.substr(1), pattern.substr(1));
}

std::string drawnPattern(Dice& draw, std::string name) {
    switch (draw.between(1, 5)) {
    case 1:
        return name;
    case 2:
        std::transform(name.begin(), name.end(), name.begin(), lowered);
        return name;
    case 3:
        return name.substr(0, static_cast<std::size_t>(
                                  draw.between(0, static_cast<std::int32_t>(name.size())))) +
               "*";
    case 4:
        return "*" + name.substr(name.size() - 1);
    default:
        name[static_cast<std::size_t>(
            draw.between(0, static_cast<std::int32_t>(name.size()) - 1))] = '?';
        return name;
    }
}

/// FIRST,LAST,STEP as they are typed: from 1, from the end if negative.
struct TypedRange_s {
    std::optional<std::int64_t> first;
    std::optional<std::int64_t> last;
    std::optional<std::int64_t> step;
    bool isSingle = false;

    std::string text() const {
        const auto of = [](const auto& part) { return part ? std::to_string(*part) : ""; };
        if (isSingle)
            return of(first);
        std::string text = of(first) + "," + of(last);
        return step ? text + "," + of(step) : text;
    }

    std::vector<std::int64_t> indices(std::int64_t count) const {
        const auto place = [count](std::int64_t typed) {
            return typed > 0 ? typed - 1 : count + typed;
        };
        std::vector<std::int64_t> found;
        if (isSingle) {
            if (place(*first) >= 0 && place(*first) < count)
                found.push_back(place(*first));
            return found;
        }
        const std::int64_t end = std::min(last ? place(*last) : count - 1, count - 1);
        for (std::int64_t index = std::max<std::int64_t>(first ? place(*first) : 0, 0);
             index <= end; index += step.value_or(1))
            found.push_back(index);
        return found;
    }
};

std::int64_t drawnIndex(Dice& draw) {
    const std::int32_t index = draw.between(1, 7);
    return draw.chance(33) ? -index : index;
}

TypedRange_s drawnRange(Dice& draw) {
    TypedRange_s range;
    range.first = drawnIndex(draw);
    range.isSingle = draw.chance(25);
    if (range.isSingle)
        return range;
    range.last = drawnIndex(draw);
    if ((*range.first > 0) == (*range.last > 0) && *range.last <= *range.first)
        std::swap(range.first, range.last);
    if (draw.chance(50))
        range.step = draw.between(1, 4);
    if (draw.chance(20))
        range.first.reset();
    if (draw.chance(33))
        range.last.reset();
    return range;
}

} // namespace

ModelSelection::ModelSelection(const ModelSet& data, Dice& draw) : data_(data) {
    drawVariables(draw);
    const auto namesVariables = static_cast<std::ptrdiff_t>(words_.size());
    drawZones(draw);
    drawTimes(draw);
    wordsOfWholeZones_ = words_;
    if (draw.chance(17))
        drawPoint(draw);
    else
        drawRanges(draw);
    wordsOfPoints_.assign(words_.begin() + namesVariables, words_.end());
    std::erase_if(boxes_, [](const ModelBox_s& box) { return box.count() == 0; });
}

void ModelSelection::drawVariables(Dice& draw) {
    std::set<std::size_t> chosen;
    std::string list;
    for (std::int32_t left = draw.chance(50) ? 0 : draw.between(1, 3); left > 0; --left) {
        const std::string pattern = drawnPattern(draw, draw.oneOf(data_.variables()).name);
        list += (list.empty() ? "" : ",") + pattern;
        for (std::size_t index = 0; index < data_.variables().size(); ++index)
            if (fits(data_.variables()[index].name, pattern))
                chosen.insert(index);
    }
    for (std::size_t index = 0; index < data_.variables().size(); ++index)
        if (list.empty() || chosen.count(index) > 0)
            variables_.push_back(index);
    if (!list.empty())
        words_.insert(words_.end(), {"--variable", list});
}

void ModelSelection::drawZones(Dice& draw) {
    const auto count = static_cast<std::int32_t>(data_.zones().size());
    std::set<std::size_t> chosen;
    std::string list;
    for (std::int32_t left = draw.chance(50) ? 0 : draw.between(1, 2); left > 0; --left) {
        const std::int32_t first = draw.between(1, count);
        const std::int32_t last = draw.chance(50) ? first : draw.between(first, count);
        list += (list.empty() ? "" : ",") + std::to_string(first);
        if (last > first)
            list += "-" + std::to_string(last);
        for (std::int32_t number = first; number <= last; ++number)
            chosen.insert(static_cast<std::size_t>(number) - 1);
    }
    for (std::size_t zone = 0; zone < data_.zones().size(); ++zone)
        if (list.empty() || chosen.count(zone) > 0)
            zones_.push_back(zone);
    if (!list.empty())
        words_.insert(words_.end(), {"--zone", list});
}

void ModelSelection::drawTimes(Dice& draw) {
    const std::vector<double>& times = data_.times();
    if (times.empty() || draw.chance(50))
        return;
    double first = draw.oneOf(times);
    double last = first;
    std::string text = std::to_string(first);
    switch (draw.between(1, 5)) {
    case 1:
        first = last = times.front();
        text = "first";
        break;
    case 2:
        first = last = times.back();
        text = "last";
        break;
    case 3:
        last = times.back();
        text += ":";
        break;
    case 4:
        first = -HUGE_VAL;
        text = ":" + text;
        break;
    default:
        break;
    }
    std::erase_if(zones_, [&](std::size_t zone) {
        return isEarlier(data_.zones()[zone].time, first) ||
               isEarlier(last, data_.zones()[zone].time);
    });
    words_.insert(words_.end(), {"--time", text});
}

void ModelSelection::drawPoint(Dice& draw) {
    std::array<TypedRange_s, 3> point;
    for (TypedRange_s& index : point)
        index = {draw.chance(50) ? 1 : drawnIndex(draw), {}, {}, true};
    words_.insert(words_.end(),
                  {"--point", point[0].text() + "," + point[1].text() + "," + point[2].text()});
    for (const std::size_t zone : zones_) {
        boxes_.push_back({zone, {}});
        for (std::size_t direction = 0; direction < 3; ++direction)
            boxes_.back().indices[direction] =
                point[direction].indices(data_.zones()[zone].size[direction]);
    }
}

void ModelSelection::drawRanges(Dice& draw) {
    const std::array<const char*, 3> options = {"--i", "--j", "--k"};
    const bool hasAny = draw.chance(50);
    for (const std::size_t zone : zones_)
        boxes_.push_back({zone, {}});
    for (std::size_t direction = 0; direction < 3; ++direction) {
        const TypedRange_s range =
            hasAny && draw.chance(50) ? drawnRange(draw) : TypedRange_s{1, {}, {}, false};
        if (range.text() != "1,")
            words_.insert(words_.end(), {options[direction], range.text()});
        for (ModelBox_s& box : boxes_)
            box.indices[direction] = range.indices(data_.zones()[box.zone].size[direction]);
    }
}

bool ModelSelection::cutsElements() const {
    return data_.isUnstructured() &&
           std::any_of(boxes_.begin(), boxes_.end(), [this](const ModelBox_s& box) {
               return static_cast<std::int64_t>(box.count()) != data_.zones()[box.zone].size[0];
           });
}

std::vector<ModelBox_s> ModelSelection::wholeZones() const {
    std::vector<ModelBox_s> boxes;
    for (const std::size_t zone : zones_) {
        boxes.push_back({zone, {}});
        for (std::size_t direction = 0; direction < 3; ++direction)
            boxes.back().indices[direction] =
                TypedRange_s{1, {}, {}, false}.indices(data_.zones()[zone].size[direction]);
    }
    return boxes;
}

} // namespace plot3d::program
