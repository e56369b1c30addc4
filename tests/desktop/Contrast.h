// How well letters are seen on what they stand on.
#pragma once

#include <algorithm>
#include <cmath>

#include <QColor>
#include <QHash>
#include <QImage>

namespace quorvia::host {

/// Of the Web Content Accessibility Guidelines 2.1: text needs this, symbols 3.
constexpr double readable = 4.5;
constexpr double recognisable = 3;

inline double luminance(const QColor& colour) {
    const auto linear = [](double part) {
        return part <= 0.03928 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) +
           0.0722 * linear(colour.blueF());
}

/// From 1 (the same) to 21 (black on white); the formula of the guidelines.
inline double contrast(const QColor& one, const QColor& other) {
    const double first = luminance(one);
    const double second = luminance(other);
    return (std::max(first, second) + 0.05) / (std::min(first, second) + 0.05);
}

inline QColor mostFrequent(const QImage& image) {
    QHash<QRgb, int> counts;
    QRgb most = image.pixel(0, 0);
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            if (++counts[image.pixel(x, y)] > counts[most])
                most = image.pixel(x, y);
    return QColor(most);
}

/// The strongest contrast of a pixel with the colour that is there most.
inline double strongestContrast(const QImage& image) {
    const QColor ground = mostFrequent(image);
    double strongest = 1;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            strongest = std::max(strongest, contrast(QColor(image.pixel(x, y)), ground));
    return strongest;
}

} // namespace quorvia::host
