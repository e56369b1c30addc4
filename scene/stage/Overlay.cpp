#include "stage/Overlay.h"

#include <array>
#include <cmath>

#include <vtkBrush.h>
#include <vtkContext2D.h>
#include <vtkPen.h>
#include <vtkTextProperty.h>

namespace plot3d::scene {

namespace {

void paint(vtkContext2D& painter, const AreaMark_s& area) {
    painter.GetPen()->SetLineType(vtkPen::NO_PEN);
    painter.GetBrush()->SetColor(area.colour[0], area.colour[1], area.colour[2], 255);
    painter.DrawRect(static_cast<float>(area.corner[0]), static_cast<float>(area.corner[1]),
                     static_cast<float>(area.width), static_cast<float>(area.height));
}

void paint(vtkContext2D& painter, const LineMark_s& line) {
    painter.GetPen()->SetLineType(vtkPen::SOLID_LINE);
    painter.GetPen()->SetColor(line.colour[0], line.colour[1], line.colour[2], 255);
    painter.GetPen()->SetWidth(static_cast<float>(line.width));
    std::vector<float> points;
    for (const Pixel& point : line.points)
        for (const double part : point)
            points.push_back(static_cast<float>(part));
    painter.DrawPoly(points.data(), static_cast<int>(line.points.size()));
}

/// How far the text begins to the left of its place.
double startOf(vtkContext2D& painter, const TextMark_s& text) {
    if (text.across == Across_e::Left)
        return 0;
    std::array<float, 4> bounds = {};
    painter.ComputeStringBounds(text.text.c_str(), bounds.data());
    const double width = bounds[text.isUpright ? 3 : 2];
    return text.across == Across_e::Right ? width : width / 2;
}

int justification(Along_e along) {
    return along == Along_e::Bottom ? VTK_TEXT_BOTTOM
           : along == Along_e::Top  ? VTK_TEXT_TOP
                                    : VTK_TEXT_CENTERED;
}

void paint(vtkContext2D& painter, const TextMark_s& text) {
    vtkTextProperty& property = *painter.GetTextProp();
    property.SetFontFamilyToArial();
    property.SetFontSize(static_cast<int>(std::lround(text.size)));
    property.SetColor(text.colour[0] / 255.0, text.colour[1] / 255.0, text.colour[2] / 255.0);
    property.SetBold(text.isBold ? 1 : 0);
    property.SetOrientation(text.isUpright ? 90 : 0);
    property.SetJustificationToLeft();
    property.SetVerticalJustification(justification(text.along));
    const double start = startOf(painter, text);
    const Pixel at = {text.at[0] - (text.isUpright ? 0 : start),
                      text.at[1] - (text.isUpright ? start : 0)};
    // Letters between two pixels are blurred; without a blank behind them the last one's edge shows
    // ahead of the first, since textures repeat.
    painter.DrawString(static_cast<float>(std::lround(at[0])),
                       static_cast<float>(std::lround(at[1])), (text.text + " ").c_str());
}

} // namespace

Overlay* Overlay::New() {
    auto* const made = new Overlay; // counted by VTK from here on
    made->InitializeObjectBase();
    return made;
}

bool Overlay::Paint(vtkContext2D* painter) {
    for (const AreaMark_s& area : drawing_.areas)
        paint(*painter, area);
    for (const LineMark_s& line : drawing_.lines)
        paint(*painter, line);
    for (const TextMark_s& text : drawing_.texts)
        if (!text.text.empty())
            paint(*painter, text);
    return true;
}

} // namespace plot3d::scene
