// Views as text and as JSON.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <plot3d/Error.h>

#include "view/ViewJson.h"
#include "view/ViewWords.h"

namespace plot3d::scene {
namespace {

std::string refusalOf(const std::string& json) {
    try {
        viewFromJson(json);
    } catch (const Error& error) {
        return error.what();
    }
    return {};
}

TEST(View, IsTheSameWhenItIsReadBack) {
    View_s view;
    view.plot = PlotKind_e::Plane;
    view.zones = {1, 3};
    view.time = 0.1;
    view.surfaces = surfacesFromText("outer i=1,-1 boundary=wing*");
    view.line = lineFromText("j=3,k=-1");
    view.colour = "Mach";
    view.range = Range_s{-1.5, 2e300};
    view.map = "cividis-r";
    view.gridLines = view.outlines = true;
    view.contours = 12;
    view.vectors = "A,B,C";
    view.blank = BlankWish_e::Show;
    view.axes = view.legend = false;
    view.titleText = "Wing \"7\"";
    view.camera = {{1, 2, 3}, {0, 1, 0}, 2.5, Vector3{4, 5, 6}};
    view.size = {320, 240};
    view.background = "#0a141e";
    EXPECT_EQ(viewFromJson(toJson(view)), view);
}

TEST(View, HasTimesThatAreNotFinite) {
    using Limits = std::numeric_limits<double>;
    View_s view;
    for (const double time : {Limits::infinity(), -Limits::infinity()}) {
        view.time = time;
        EXPECT_EQ(viewFromJson(toJson(view)), view);
    }
    view.time = Limits::quiet_NaN();
    EXPECT_TRUE(std::isnan(*viewFromJson(toJson(view)).time));
    EXPECT_EQ(refusalOf(R"({"schema": "plot3d.view/1", "time": "Inf"})"),
              "the view's \"time\" can't be taken (expected a number, found \"Inf\")");
}

TEST(View, NamesTheZoneOfItsRange) {
    View_s view;
    view.range = Range_s{1, 2};
    ASSERT_TRUE(takesRangeOver(view, "zone=12"));
    EXPECT_EQ(view.rangeOver, RangeOver_e::Zone);
    EXPECT_EQ(view.rangeZone, 12U);
    EXPECT_FALSE(view.range);
    EXPECT_EQ(viewFromJson(toJson(view)), view);
    for (const char* text : {"zone", "zone=", "zone=0", "zone=-1", "zone=1.5", "zones=1", "1:2"})
        EXPECT_FALSE(takesRangeOver(view, text)) << text;
}

TEST(View, SaysNothingOfWhatIsByDefault) {
    EXPECT_EQ(toJson(View_s()), "{\n  \"schema\": \"plot3d.view/1\"\n}\n");
    EXPECT_EQ(viewFromJson(toJson(View_s())), View_s());
}

TEST(View, IsRefusedWithTheMemberThatIsWrong) {
    const auto with = [](const std::string& members) {
        return refusalOf("{\"schema\": \"plot3d.view/1\", " + members + "}");
    };
    EXPECT_EQ(with("\"contours\": -1"), "the view's \"contours\" can't be taken (expected a whole "
                                        "number from 0 to 1000, found -1)");
    EXPECT_EQ(with("\"color\": {\"bye\": \"RHO\"}"),
              "a view has no \"color.bye\"; \"color.by\" may be meant");
    EXPECT_EQ(with("\"color\": {\"range\": [2, 1]}"),
              "the view's \"color.range\" can't be taken (expected the lower number first, found "
              "[2,1])");
    EXPECT_EQ(with("\"zones\": [0]"),
              "the view's \"zones\" can't be taken (expected a whole number "
              "from 1 to 1000000000, found 0)");
    EXPECT_EQ(with("\"surfaces\": [\"l=3\"]").rfind("the view's \"surfaces\": \"l=3\" can't be", 0),
              0U);
    EXPECT_EQ(refusalOf("{}"), "the view's \"schema\" can't be taken (expected plot3d.view/1, "
                               "found null)");
}

TEST(View, IsRefusedWithTheByteWhereItIsNoJson) {
    try {
        viewFromJson("{\"schema\": nothing}");
        FAIL();
    } catch (const Error& error) {
        EXPECT_EQ(error.kind(), ErrorKind::Refused);
        EXPECT_EQ(error.facts().byte, 12);
    }
}

TEST(ViewWords, AreTakenAndRefused) {
    EXPECT_EQ(surfacesFromText("k=1,-1").front().indices, (std::vector<std::int64_t>{1, -1}));
    EXPECT_EQ(rangeFromText("-1e3:0.5"), (Range_s{-1000, 0.5}));
    EXPECT_EQ(cameraFromText("+z").up, (Vector3{0, 1, 0}));
    EXPECT_EQ(sizeFromText("640x480"), (std::array<int, 2>{640, 480}));
    for (const char* text : {"", "k", "k=", "k=0", "k=1.5", "m=1", "outer;k=x"})
        EXPECT_THROW(surfacesFromText(text), Error) << text;
    for (const char* text : {"", "1", "2:1", "1:1", "nan:1", "1:2:3"})
        EXPECT_THROW(rangeFromText(text), Error) << text;
    for (const char* text : {"", "x", "0,0,0", "1,2", "1,2,inf"})
        EXPECT_THROW(cameraFromText(text), Error) << text;
    for (const char* text : {"", "640", "0x480", "640x480x2", "99999x480"})
        EXPECT_THROW(sizeFromText(text), Error) << text;
    for (const char* text : {"", "#12", "#12345g", "whiteish"})
        EXPECT_THROW(colourFromText(text), Error) << text;
    for (const char* text : {"j=1", "j=1,j=2", "j=0,k=1", "i=1,j=1,k=1"})
        EXPECT_THROW(lineFromText(text), Error) << text;
}

} // namespace
} // namespace plot3d::scene
