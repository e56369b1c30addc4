#include "view/ViewJson.h"

#include <cmath>
#include <functional>
#include <limits>
#include <map>

#include <nlohmann/json.hpp>
#include <plot3d/Error.h>

#include "console/JsonText.h"
#include "console/NearestName.h"
#include "view/ViewWords.h"

namespace plot3d::scene {

namespace {

using Json = nlohmann::ordered_json;

constexpr const char* schemaName = "plot3d.view/1";

[[noreturn]] void refuse(const std::string& member, const std::string& expected,
                         const Json& found) {
    throw Error(ErrorKind::Refused, "the view's \"" + member + "\" can't be taken",
                {.file = {}, .byte = {}, .expected = expected, .found = found.dump(), .next = {}});
}

/// Texts that the command line has too are understood by the same functions.
template <typename Parse>
auto understood(const std::string& member, const Json& value, Parse parse) {
    try {
        return parse(value.get<std::string>());
    } catch (const Error& error) {
        throw Error(ErrorKind::Refused, "the view's \"" + member + "\": " + error.message());
    }
}

bool boolOf(const std::string& member, const Json& value) {
    if (!value.is_boolean())
        refuse(member, "true or false", value);
    return value.get<bool>();
}

double numberOf(const std::string& member, const Json& value) {
    if (!value.is_number())
        refuse(member, "a number", value);
    return value.get<double>();
}

/// Files have times that JSON has no numbers for.
double timeOf(const std::string& member, const Json& value) {
    using Limits = std::numeric_limits<double>;
    if (value.is_string())
        for (const double time : {Limits::infinity(), -Limits::infinity(), Limits::quiet_NaN()})
            if (value.dump() == console::jsonNumber(time))
                return time;
    return numberOf(member, value);
}

std::int64_t wholeOf(const std::string& member, const Json& value, std::int64_t least,
                     std::int64_t most) {
    if (!value.is_number_integer() || value.get<std::int64_t>() < least ||
        value.get<std::int64_t>() > most)
        refuse(member,
               "a whole number from " + std::to_string(least) + " to " + std::to_string(most),
               value);
    return value.get<std::int64_t>();
}

std::string textOf(const std::string& member, const Json& value) {
    if (!value.is_string())
        refuse(member, "a text", value);
    return value.get<std::string>();
}

template <std::size_t count>
std::array<double, count> numbersOf(const std::string& member, const Json& value) {
    if (!value.is_array() || value.size() != count)
        refuse(member, std::to_string(count) + " numbers", value);
    std::array<double, count> numbers = {};
    for (std::size_t place = 0; place < count; ++place)
        numbers[place] = numberOf(member, value[place]);
    return numbers;
}

template <typename Enumeration>
Enumeration wordOfView(const std::string& member, const Json& value,
                       std::optional<Enumeration> (*fromWord)(std::string_view),
                       const char* expected) {
    const std::optional<Enumeration> found =
        value.is_string() ? fromWord(value.get<std::string>()) : std::nullopt;
    if (!found)
        refuse(member, expected, value);
    return *found;
}

using Setters = std::map<std::string_view, std::function<void(const Json& value)>>;

/// Gives each member of an object to its setter.
void take(const std::string& ahead, const Json& object, const Setters& setters) {
    if (!object.is_object())
        refuse(ahead.empty() ? "view" : ahead.substr(0, ahead.size() - 1), "an object", object);
    for (const auto& [name, value] : object.items()) {
        const auto setter = setters.find(name);
        if (setter != setters.end()) {
            setter->second(value);
            continue;
        }
        std::vector<std::string_view> known;
        for (const auto& [word, unused] : setters)
            known.push_back(word);
        throw Error(ErrorKind::Refused, "a view has no \"" + ahead + name + "\"; \"" + ahead +
                                            std::string(console::nearestName(name, known)) +
                                            "\" may be meant");
    }
}

class Reader {
public:
    View_s read(const Json& json) {
        take("", json,
             {{"schema", [](const Json& value) { requireSchema(value); }},
              {"plot",
               [this](const Json& value) {
                   view_.plot = wordOfView("plot", value, plotFromWord, "auto, 3d, 2d or xy");
               }},
              {"zones", [this](const Json& value) { takeZones(value); }},
              {"time", [this](const Json& value) { view_.time = timeOf("time", value); }},
              {"surfaces", [this](const Json& value) { takeSurfaces(value); }},
              {"line",
               [this](const Json& value) {
                   textOf("line", value);
                   view_.line = understood("line", value, lineFromText);
               }},
              {"color", [this](const Json& value) { takeColour(value); }},
              {"lines", [this](const Json& value) { view_.gridLines = boolOf("lines", value); }},
              {"contours",
               [this](const Json& value) {
                   view_.contours = static_cast<int>(wholeOf("contours", value, 0, 1000));
               }},
              {"vectors", [this](const Json& value) { view_.vectors = textOf("vectors", value); }},
              {"blank",
               [this](const Json& value) {
                   view_.blank = wordOfView("blank", value, blankFromWord, "hide, show or color");
               }},
              {"outlines",
               [this](const Json& value) { view_.outlines = boolOf("outlines", value); }},
              {"axes", [this](const Json& value) { view_.axes = boolOf("axes", value); }},
              {"legend", [this](const Json& value) { view_.legend = boolOf("legend", value); }},
              {"title", [this](const Json& value) { takeTitle(value); }},
              {"camera", [this](const Json& value) { takeCamera(value); }},
              {"size", [this](const Json& value) { takeSize(value); }},
              {"background", [this](const Json& value) {
                   view_.background = textOf("background", value);
                   understood("background", value, colourFromText);
               }}});
        if (!json.contains("schema"))
            requireSchema(Json());
        return view_;
    }

private:
    static void requireSchema(const Json& value) {
        if (value != schemaName)
            refuse("schema", schemaName, value);
    }

    void takeZones(const Json& value) {
        if (!value.is_array())
            refuse("zones", "a list of numbers from 1", value);
        constexpr std::int64_t mostZones = 1'000'000'000;
        for (const Json& number : value)
            view_.zones.push_back(static_cast<std::size_t>(wholeOf("zones", number, 1, mostZones)));
        std::sort(view_.zones.begin(), view_.zones.end());
    }

    void takeSurfaces(const Json& value) {
        if (!value.is_array())
            refuse("surfaces", "a list of texts such as \"outer\" and \"k=1,-1\"", value);
        view_.surfaces.clear();
        for (const Json& text : value) {
            textOf("surfaces", text);
            for (SurfaceWish_s& surface : understood("surfaces", text, surfacesFromText))
                view_.surfaces.push_back(std::move(surface));
        }
    }

    void takeColour(const Json& value) {
        take("color.", value,
             {{"by", [this](const Json& by) { view_.colour = textOf("color.by", by); }},
              {"range", [this](const Json& range) { takeRange(range); }},
              {"map", [this](const Json& map) { view_.map = textOf("color.map", map); }}});
    }

    void takeRange(const Json& value) {
        if (value.is_string()) {
            if (!takesRangeOver(view_, value.get<std::string>()))
                refuse("color.range", "two numbers, or shown, time, all-times or zone=NUMBER",
                       value);
            return;
        }
        const auto [least, most] = numbersOf<2>("color.range", value);
        if (!(least < most))
            refuse("color.range", "the lower number first", value);
        view_.range = Range_s{least, most};
    }

    void takeTitle(const Json& value) {
        if (value.is_string())
            view_.titleText = value.get<std::string>();
        else
            view_.title = boolOf("title", value);
    }

    void takeCamera(const Json& value) {
        take("camera.", value,
             {{"direction", [this](const Json& part) { takeDirection(part); }},
              {"up",
               [this](const Json& part) { view_.camera.up = numbersOf<3>("camera.up", part); }},
              {"zoom",
               [this](const Json& part) {
                   view_.camera.zoom = numberOf("camera.zoom", part);
                   if (!(view_.camera.zoom > 0))
                       refuse("camera.zoom", "a number above 0", part);
               }},
              {"focus", [this](const Json& part) {
                   view_.camera.focus = numbersOf<3>("camera.focus", part);
               }}});
    }

    void takeDirection(const Json& value) {
        if (value.is_string()) {
            const Camera_s named = understood("camera.direction", value, cameraFromText);
            view_.camera.direction = named.direction;
            view_.camera.up = named.up;
            return;
        }
        view_.camera.direction = numbersOf<3>("camera.direction", value);
        if (view_.camera.direction == Vector3{0, 0, 0})
            refuse("camera.direction", "a direction", value);
    }

    void takeSize(const Json& value) {
        const auto [width, height] = numbersOf<2>("size", value);
        view_.size = understood("size",
                                Json(Json(static_cast<std::int64_t>(width)).dump() + "x" +
                                     Json(static_cast<std::int64_t>(height)).dump()),
                                sizeFromText);
    }

    View_s view_;
};

Json parsed(std::string_view text) {
    try {
        return Json::parse(text);
    } catch (const Json::parse_error& error) {
        throw Error(ErrorKind::Refused, "this is no view: it is no JSON",
                    {.file = {},
                     .byte = static_cast<std::int64_t>(error.byte) - 1,
                     .expected = {},
                     .found = {},
                     .next = {}});
    }
}

/// Members that differ from those of a view as it is by default.
class Writer {
public:
    explicit Writer(const View_s& view) : view_(view) {}

    Json write() {
        json_["schema"] = schemaName;
        if (view_.plot != usual_.plot)
            json_["plot"] = wordOf(view_.plot);
        put(json_, "zones", view_.zones, usual_.zones);
        if (view_.time)
            json_["time"] = std::isfinite(*view_.time)
                                ? Json(*view_.time)
                                : Json::parse(console::jsonNumber(*view_.time));
        writeSurfaces();
        if (view_.line)
            json_["line"] = textOfLine();
        writeColour();
        put(json_, "lines", view_.gridLines, usual_.gridLines);
        put(json_, "contours", view_.contours, usual_.contours);
        put(json_, "vectors", view_.vectors, usual_.vectors);
        if (view_.blank != usual_.blank)
            json_["blank"] = wordOf(view_.blank);
        put(json_, "outlines", view_.outlines, usual_.outlines);
        put(json_, "axes", view_.axes, usual_.axes);
        put(json_, "legend", view_.legend, usual_.legend);
        if (!view_.title)
            json_["title"] = false;
        else
            put(json_, "title", view_.titleText, usual_.titleText);
        writeCamera();
        put(json_, "size", view_.size, usual_.size);
        put(json_, "background", view_.background, usual_.background);
        return json_;
    }

private:
    template <typename Value>
    static void put(Json& object, const char* name, const Value& value, const Value& usual) {
        if (value != usual)
            object[name] = value;
    }

    void writeSurfaces() {
        if (view_.surfaces == usual_.surfaces)
            return;
        json_["surfaces"] = Json::array();
        for (const SurfaceWish_s& surface : view_.surfaces)
            json_["surfaces"].push_back(scene::textOf(surface));
    }

    std::string textOfLine() const {
        std::string text;
        for (std::size_t axis = 0; axis < 3; ++axis)
            if ((*view_.line)[axis] != 0)
                text += (text.empty() ? "" : ",") + std::string(1, "ijk"[axis]) + "=" +
                        std::to_string((*view_.line)[axis]);
        return text;
    }

    void writeColour() {
        Json colour = Json::object();
        put(colour, "by", view_.colour, usual_.colour);
        if (view_.range)
            colour["range"] = {view_.range->least, view_.range->most};
        else if (view_.rangeOver != usual_.rangeOver)
            colour["range"] = textOfRangeOver(view_);
        put(colour, "map", view_.map, usual_.map);
        if (!colour.empty())
            json_["color"] = colour;
    }

    void writeCamera() {
        Json camera = Json::object();
        put(camera, "direction", view_.camera.direction, usual_.camera.direction);
        put(camera, "up", view_.camera.up, usual_.camera.up);
        put(camera, "zoom", view_.camera.zoom, usual_.camera.zoom);
        if (view_.camera.focus)
            camera["focus"] = *view_.camera.focus;
        if (!camera.empty())
            json_["camera"] = camera;
    }

    const View_s& view_;
    View_s usual_;
    Json json_;
};

} // namespace

std::string toJson(const View_s& view) {
    return Writer(view).write().dump(2) + "\n";
}

View_s viewFromJson(std::string_view text) {
    return Reader().read(parsed(text));
}

} // namespace plot3d::scene
