// The nine alarm LED pictures as an operator without colour vision, or with red-green blindness,
// sees them at 16x16: every two of them must differ clearly in shape or glyph, not only in hue.
#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include <QImage>
#include <QImageReader>

#include "support/qt_application.h"

namespace trovane {
namespace {

const std::array<const char*, 9> kLedFiles = {
    "AlarmLedActiveUnacked.ico", "AlarmLedFleeting.ico",   "AlarmLedActivAcked.ico",
    "AlarmLedNormal.ico",        "AlarmLedNotSampled.ico", "AlarmLedUncertain.ico",
    "AlarmLedBlocked.ico",       "AlarmLedManual.ico",     "AlarmLedSubstituted.ico",
};

// A pixel differs clearly when it moves by this much (0..255) in the simulated view; two pictures
// differ clearly when at least this many of their 256 pixels do: about a glyph's stroke.
constexpr double kClearStep = 48.0;
constexpr int kClearPixels = 12;

using Rgb = std::array<double, 3>;
using View = std::vector<Rgb>;

// The 16x16 image of an icon file, composited over the light grey of a list's background.
std::vector<Rgb> Small(const std::string& file) {
    QImageReader reader(QString::fromStdString(file));
    for (int i = 0; i < reader.imageCount(); ++i) {
        reader.jumpToImage(i);
        const QImage image = reader.read().convertToFormat(QImage::Format_ARGB32);
        if (image.width() != 16) continue;
        std::vector<Rgb> pixels;
        for (int y = 0; y < 16; ++y)
            for (int x = 0; x < 16; ++x) {
                const QColor c = image.pixelColor(x, y);
                const double a = c.alphaF();
                pixels.push_back({c.red() * a + 236 * (1 - a), c.green() * a + 236 * (1 - a),
                                  c.blue() * a + 236 * (1 - a)});
            }
        return pixels;
    }
    return {};
}

double ToLinear(double c) {
    c /= 255.0;
    return c <= 0.04045 ? c / 12.92 : std::pow((c + 0.055) / 1.055, 2.4);
}

double ToSrgb(double c) {
    c = std::clamp(c, 0.0, 1.0);
    return 255.0 * (c <= 0.0031308 ? 12.92 * c : 1.055 * std::pow(c, 1 / 2.4) - 0.055);
}

// Luminance as a monochrome display shows it, in all three channels.
View Greyscale(const std::vector<Rgb>& pixels) {
    View view;
    for (const Rgb& p : pixels) {
        const double y = 0.2126 * p[0] + 0.7152 * p[1] + 0.0722 * p[2];
        view.push_back({y, y, y});
    }
    return view;
}

// Full deuteranopia, the simulation matrix of Machado, Oliveira and Fernandes (2009), severity 1.0,
// applied in linear light.
View Deuteranopia(const std::vector<Rgb>& pixels) {
    constexpr double m[3][3] = {
        {0.367322, 0.860646, -0.227968}, {0.280085, 0.672501, 0.047413}, {-0.011820, 0.042940, 0.968881}};
    View view;
    for (const Rgb& p : pixels) {
        const Rgb linear{ToLinear(p[0]), ToLinear(p[1]), ToLinear(p[2])};
        Rgb seen{};
        for (int i = 0; i < 3; ++i)
            seen[i] = ToSrgb(m[i][0] * linear[0] + m[i][1] * linear[1] + m[i][2] * linear[2]);
        view.push_back(seen);
    }
    return view;
}

int ClearlyDifferentPixels(const View& a, const View& b) {
    int count = 0;
    for (size_t i = 0; i < a.size(); ++i) {
        double step = 0;
        for (int c = 0; c < 3; ++c) step = std::max(step, std::abs(a[i][c] - b[i][c]));
        if (step >= kClearStep) ++count;
    }
    return count;
}

TEST(LedIcons, EveryPairDiffersClearlyInGreyscaleAndWithDeuteranopia) {
    trovane::testing::TestApplication();
    std::vector<std::vector<Rgb>> pictures;
    for (const char* name : kLedFiles) {
        pictures.push_back(Small(std::string(TROVANE_ICONS_DIR) + "/" + name));
        ASSERT_EQ(pictures.back().size(), 256u) << name << " has no 16x16 image";
    }
    const std::pair<const char*, View (*)(const std::vector<Rgb>&)> simulations[] = {
        {"greyscale", Greyscale}, {"deuteranopia", Deuteranopia}};
    for (const auto& [simulation, see] : simulations) {
        std::vector<View> views;
        for (const auto& picture : pictures) views.push_back(see(picture));
        for (size_t i = 0; i < views.size(); ++i)
            for (size_t j = i + 1; j < views.size(); ++j)
                EXPECT_GE(ClearlyDifferentPixels(views[i], views[j]), kClearPixels)
                    << simulation << ": " << kLedFiles[i] << " and " << kLedFiles[j];
    }
}

}  // namespace
}  // namespace trovane
