// Title, legend and axes as flat marks.
#include <algorithm>
#include <cmath>

#include "SceneFixture.h"
#include "annotation/Annotation.h"
#include "annotation/Ticks.h"

namespace plot3dtest {
namespace {

using namespace plot3d::scene;

std::vector<std::string> labels(const Range_s& range, int wanted) {
    std::vector<std::string> texts;
    for (const Tick_s& tick : ticksOf(range, wanted))
        texts.push_back(tick.label);
    return texts;
}

TEST(Ticks, AreRoundNumbersWithTheDigitsThatTellThemApart) {
    EXPECT_EQ(labels({0, 1}, 5),
              (std::vector<std::string>{"0.0", "0.2", "0.4", "0.6", "0.8", "1.0"}));
    EXPECT_EQ(labels({-7, 12}, 4), (std::vector<std::string>{"-5", "0", "5", "10"}));
    EXPECT_EQ(labels({1013.1, 1013.4}, 3),
              (std::vector<std::string>{"1013.1", "1013.2", "1013.3", "1013.4"}));
    EXPECT_EQ(labels({0, 3e-7}, 3), (std::vector<std::string>{"0e+00", "1e-07", "2e-07", "3e-07"}));
    EXPECT_TRUE(ticksOf({1, 1}, 5).empty());
}

using AnnotationTest = SceneTest;

Drawing_s drawn(const Content& content) {
    const auto [width, height] = content->view.size;
    const Layout_s layout = layoutOf(*content, width, height);
    return annotationOf(*content, layout, fitted(*content, content->view.camera, layout.data));
}

bool says(const Drawing_s& drawing, const std::string& text) {
    return std::any_of(drawing.texts.begin(), drawing.texts.end(),
                       [&](const TextMark_s& mark) { return mark.text == text; });
}

TEST_F(AnnotationTest, SaysWhatIsShownInAPictureWithoutOptions) {
    const DataSet data = opened({"cylinder"});
    const Drawing_s drawing = drawn(prepared(data));
    for (const char* text :
         {"cylinder.x, cylinder.q", "RHO 0.9411 to 1.02, map viridis, outer surface, view iso",
          "RHO", "viridis", "X", "Y", "Z"})
        EXPECT_TRUE(says(drawing, text)) << text;
}

TEST_F(AnnotationTest, NamesTheDirectionInAsFewDigitsAsTellIt) {
    const DataSet data = opened({"cylinder"});
    const auto summary = [&data](const Vector3& direction) {
        View_s view;
        view.camera.direction = direction;
        const std::string text = prepared(data, view)->summary;
        return text.substr(text.rfind("view "));
    };
    EXPECT_EQ(summary({1, 2, 3}), "view 1,2,3");
    EXPECT_EQ(summary({0.12345678, 0.5, -1e-9}), "view 0.123,0.5,0");
    EXPECT_EQ(summary({1e-4, 2e-4, 0}), "view 1e-04,2e-04,0");
    EXPECT_EQ(summary({3e6, 4e6, 1}), "view 3e+06,4e+06,0");
}

TEST_F(AnnotationTest, FitsIntoThePicture) {
    const DataSet data = opened({"cylinder"});
    for (const char* direction : {"iso", "+x", "-y", "+z"}) {
        View_s view;
        view.camera.direction = direction == std::string("iso")  ? view.camera.direction
                                : direction == std::string("+x") ? Vector3{1, 0, 0}
                                : direction == std::string("-y") ? Vector3{0, -1, 0}
                                                                 : Vector3{0, 0, 1};
        for (const TextMark_s& mark : drawn(prepared(data, view)).texts) {
            EXPECT_GE(mark.at[0], 0) << mark.text << direction;
            EXPECT_LE(mark.at[0], 1280) << mark.text << direction;
            EXPECT_GE(mark.at[1], 0) << mark.text << direction;
        }
    }
}

TEST_F(AnnotationTest, LeavesOutWhatIsNotWanted) {
    const DataSet data = opened({"cylinder"});
    View_s view;
    view.axes = view.legend = view.title = false;
    EXPECT_TRUE(drawn(prepared(data, view)).texts.empty());
}

TEST_F(AnnotationTest, ScalesPlanesEquallyInBothDirections) {
    const DataSet data = opened({"vortex", "--steps", "1"});
    const Content content = prepared(data);
    const Layout_s layout = layoutOf(*content, 1280, 960);
    const Projection_s view = fitted(*content, content->view.camera, layout.data);
    const Pixel origin = view.pixelOf({0, 0, 0});
    EXPECT_DOUBLE_EQ(view.pixelOf({1, 0, 0})[0] - origin[0],
                     view.pixelOf({0, 1, 0})[1] - origin[1]);
    EXPECT_NEAR(view.pointAt(view.pixelOf({2, -3, 0}))[1], -3, 1e-12);
}

} // namespace
} // namespace plot3dtest
