#include "editor/widget/EditorOptions.h"

#include <algorithm>
#include <cmath>

void EditorOptions::set_default_colours_bright()
{
    colors = {
        QColor(255, 255, 255),  // background
        QColor(0, 0, 0),        // plain text
        QColor(96, 96, 96),     // strings
        QColor(0, 128, 0),      // comments
        QColor(0, 0, 255),      // keywords of the first class
        QColor(112, 32, 176),   // keywords of the second class
        QColor(128, 128, 128),  // line numbers, marks of white space
        QColor(204, 204, 204),  // any other role
        QColor(136, 136, 255),  // selection
    };
}

QColor EditorOptions::color_of_role(KVTextEditor::COLORINDEX role) const
{
    static constexpr std::array<int, 8> kSlotOfRole = {0, 1, 2, 3, 4, 6, 5, 7};
    const int known = std::clamp(role, 0, 7);
    return colors[static_cast<size_t>(kSlotOfRole[static_cast<size_t>(known)])];
}

// Relative luminance and contrast: WCAG 2.1.
static double luminance(const QColor& color)
{
    const auto linear = [](double channel) {
        return channel <= 0.03928 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) +
           0.0722 * linear(color.blueF());
}

static double contrast(const QColor& a, const QColor& b)
{
    const auto [darker, lighter] = std::minmax({luminance(a), luminance(b)});
    return (lighter + 0.05) / (darker + 0.05);
}

QColor legible_on(const QColor& color, const QColor& background)
{
    constexpr double kLegible = 4.5;
    if (contrast(color, background) >= kLegible) {
        return color;
    }
    return contrast(Qt::black, background) >= contrast(Qt::white, background) ? Qt::black
                                                                              : Qt::white;
}
