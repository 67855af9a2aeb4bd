#include "companion/reference/drawings.h"

#include <algorithm>
#include <cmath>

namespace companion::reference {

namespace {

constexpr const char* kOpening = R"(<svg xmlns="http://www.w3.org/2000/svg" )";
constexpr int kWidth = 160;
constexpr int kMargin = 8;
constexpr int kUnit = 96;  ///< Pixels from 0 to 1.
/// So much is shown below 0 and above 1; what goes on, is cut.
constexpr int kOver = 40;
constexpr int kHeight = kUnit + 2 * kOver + 2 * kMargin;

/// In tenths of a pixel: finer than that, machines compute curves differently.
std::string tenths(double pixels) {
    const long value = std::lround(pixels * 10);
    std::string digits = std::to_string(std::labs(value));
    if (digits.size() == 1) digits = "0" + digits;
    digits.insert(digits.size() - 1, ".");
    return value < 0 ? "-" + digits : digits;
}

double heightOf(double progress) { return kMargin + kOver + kUnit * (1 - progress); }

std::string level(double progress) {
    const std::string y = tenths(heightOf(progress));
    return "<line x1=\"0\" x2=\"" + std::to_string(kWidth) + "\" y1=\"" + y + "\" y2=\"" + y +
           "\" stroke=\"#9aa0a6\" stroke-dasharray=\"3 3\"/>\n";
}

std::string sizeOf(int width, int height) {
    const std::string w = std::to_string(width);
    const std::string h = std::to_string(height);
    return "width=\"" + w + "\" height=\"" + h + "\" viewBox=\"0 0 " + w + " " + h + "\"";
}

}  // namespace

std::string swatch(const Rgb& colour) {
    const std::string channels =
        std::to_string(colour.r) + "," + std::to_string(colour.g) + "," + std::to_string(colour.b);
    return kOpening + sizeOf(48, 24) + ">\n" +
           R"(<rect x="0.5" y="0.5" width="47" height="23" rx="4" fill="rgb()" + channels +
           ")\" stroke=\"#9aa0a6\"/>\n</svg>\n";
}

std::string graph(const std::vector<float>& points) {
    std::string line;
    const double step =
        static_cast<double>(kWidth - 2 * kMargin) / static_cast<double>(points.size() - 1);
    double x = kMargin;
    for (const float point : points) {
        if (!line.empty()) line += ' ';
        line += tenths(x) + "," + tenths(heightOf(point));
        x += step;
    }
    return kOpening + sizeOf(kWidth, kHeight) + ">\n" +
           "<rect width=\"100%\" height=\"100%\" fill=\"#ffffff\"/>\n" + level(0) + level(1) +
           "<polyline fill=\"none\" stroke=\"#2a9d8f\" stroke-width=\"2\" points=\"" + line +
           "\"/>\n</svg>\n";
}

}  // namespace companion::reference
