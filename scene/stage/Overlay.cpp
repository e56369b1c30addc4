#include "stage/Overlay.h"

#include <cmath>

#include <vtkBrush.h>
#include <vtkContext2D.h>
#include <vtkObjectFactory.h>
#include <vtkPen.h>
#include <vtkTextProperty.h>

namespace plot3d::scene {

vtkStandardNewMacro(Overlay)

    namespace {

    void paint(vtkContext2D & painter, const AreaMark_s& area) {
        painter.GetPen()->SetLineType(vtkPen::NO_PEN);
        painter.GetBrush()->SetColor(area.colour[0], area.colour[1], area.colour[2], 255);
        painter.DrawRect(static_cast<float>(area.corner[0]), static_cast<float>(area.corner[1]),
                         static_cast<float>(area.width), static_cast<float>(area.height));
    }

    void paint(vtkContext2D & painter, const LineMark_s& line) {
        painter.GetPen()->SetLineType(vtkPen::SOLID_LINE);
        painter.GetPen()->SetColor(line.colour[0], line.colour[1], line.colour[2], 255);
        painter.GetPen()->SetWidth(static_cast<float>(line.width));
        std::vector<float> points;
        for (const Pixel& point : line.points)
            for (const double part : point)
                points.push_back(static_cast<float>(part));
        painter.DrawPoly(points.data(), static_cast<int>(line.points.size()));
    }

    int justification(Across_e across) {
        return across == Across_e::Left    ? VTK_TEXT_LEFT
               : across == Across_e::Right ? VTK_TEXT_RIGHT
                                           : VTK_TEXT_CENTERED;
    }

    int justification(Along_e along) {
        return along == Along_e::Bottom ? VTK_TEXT_BOTTOM
               : along == Along_e::Top  ? VTK_TEXT_TOP
                                        : VTK_TEXT_CENTERED;
    }

    void paint(vtkContext2D & painter, const TextMark_s& text) {
        vtkTextProperty& property = *painter.GetTextProp();
        property.SetFontFamilyToArial();
        property.SetFontSize(static_cast<int>(std::lround(text.size)));
        property.SetColor(text.colour[0] / 255.0, text.colour[1] / 255.0, text.colour[2] / 255.0);
        property.SetBold(text.isBold ? 1 : 0);
        property.SetOrientation(text.isUpright ? 90 : 0);
        property.SetJustification(justification(text.across));
        property.SetVerticalJustification(justification(text.along));
        painter.DrawString(static_cast<float>(text.at[0]), static_cast<float>(text.at[1]),
                           text.text.c_str());
    }

} // namespace

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
