#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>

#include "gdiplus/cases.h"
#include "paint/fonts.h"
#include "paint/png.h"
#include "paint/rasterise.h"
#include "support/fake_host.h"
#include "support/paths.h"

namespace {

namespace fs = std::filesystem;

bool Runs(const std::string& command) {
    return std::system((command + " >/dev/null 2>&1").c_str()) == 0;
}

// Wine's own world, made once for all builds: it is large.
fs::path Prefix() {
    return fs::path(BinaryDir()).parent_path().parent_path() / "wine";
}

// Wine without a display or a browser.
std::string WineIn(const fs::path& folder) {
    return "cd '" + folder.string() +
           "' && WINEDEBUG=-all WINEDLLOVERRIDES='mscoree,mshtml=' DISPLAY= WINEPREFIX='" +
           Prefix().string() + "' wine";
}

// The picture that image cases draw: blocks of colours.
PixelImage Blocks() {
    PixelImage image{kCaseImageWidth, kCaseImageHeight, {}};
    constexpr std::uint32_t kColours[] = {0xffff0000, 0xff00ff00, 0xff2040ff,
                                          0xffffffff, 0xff000000, 0x80808000};
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x)
            image.pixels.push_back(kColours[static_cast<std::size_t>((x / 4 + 2 * (y / 4)) % 6)]);
    return image;
}

PixelImage ReadPixels(const fs::path& file, int percent) {
    PixelImage image{kCaseWidth * percent / 100, kCaseHeight * percent / 100, {}};
    image.pixels.resize(static_cast<std::size_t>(image.width * image.height));
    std::ifstream bytes(file, std::ios::binary);
    if (!bytes.read(reinterpret_cast<char*>(image.pixels.data()),
                    static_cast<std::streamsize>(image.pixels.size() * 4)))
        return {};
    return image;
}

int Channel(std::uint32_t pixel, int channel) {
    return static_cast<int>(pixel >> (8 * channel) & 255);
}

// How many pixels of `a` lie outside of what `b` shows at that place and beside it.
int StrayPixels(const PixelImage& a, const PixelImage& b, PixelImage& marks) {
    constexpr int kTolerance = 40;
    int strays = 0;
    for (int y = 0; y < a.height; ++y)
        for (int x = 0; x < a.width; ++x) {
            const auto at = static_cast<std::size_t>(y * a.width + x);
            bool stray = false;
            for (int channel = 0; channel < 4; ++channel) {
                int least = 255, most = 0;
                for (int v = std::max(0, y - 1); v <= std::min(a.height - 1, y + 1); ++v)
                    for (int u = std::max(0, x - 1); u <= std::min(a.width - 1, x + 1); ++u) {
                        const int value =
                            Channel(b.pixels[static_cast<std::size_t>(v * a.width + u)], channel);
                        least = std::min(least, value), most = std::max(most, value);
                    }
                const int value = Channel(a.pixels[at], channel);
                stray = stray || value < least - kTolerance || value > most + kTolerance;
            }
            if (stray) marks.pixels[at] = 0xffff0000;
            strays += stray ? 1 : 0;
        }
    return strays;
}

double InkOf(const PixelImage& image) {
    double ink = 0;
    for (const std::uint32_t pixel : image.pixels) ink += Channel(pixel, 3) / 255.0;
    return ink;
}

// The sum of a pixel's channels, evened out over 5 by 5 pixels, so that jagged and smooth edges become alike.
std::vector<double> Evened(const PixelImage& image) {
    std::vector<double> evened(image.pixels.size());
    for (int y = 2; y < image.height - 2; ++y)
        for (int x = 2; x < image.width - 2; ++x)
            for (int v = y - 2; v <= y + 2; ++v)
                for (int u = x - 2; u <= x + 2; ++u)
                    for (int channel = 0; channel < 4; ++channel)
                        evened[static_cast<std::size_t>(y * image.width + x)] +=
                            Channel(image.pixels[static_cast<std::size_t>(v * image.width + u)], channel);
    return evened;
}

struct Shift {
    double x, y;
};

// How far `a` must be moved to lie on `b`, by least squares over the slopes of the picture.
Shift ShiftBetween(const PixelImage& a, const PixelImage& b) {
    const std::vector<double> from = Evened(a), to = Evened(b);
    double xx = 0, xy = 0, yy = 0, x_error = 0, y_error = 0;
    for (int y = 1; y < a.height - 1; ++y)
        for (int x = 1; x < a.width - 1; ++x) {
            const auto at = static_cast<std::size_t>(y * a.width + x);
            const auto row = static_cast<std::size_t>(a.width);
            const double slope_x = (from[at + 1] - from[at - 1]) / 2,
                         slope_y = (from[at + row] - from[at - row]) / 2;
            const double error = from[at] - to[at];
            xx += slope_x * slope_x, xy += slope_x * slope_y, yy += slope_y * slope_y;
            x_error += slope_x * error, y_error += slope_y * error;
        }
    const double determinant = xx * yy - xy * xy;
    if (determinant <= 1e-6 * xx * yy) return {0, 0};
    return {(yy * x_error - xy * y_error) / determinant, (xx * y_error - xy * x_error) / determinant};
}

void WritePng(const fs::path& file, const PixelImage& image) {
    std::ofstream(file, std::ios::binary) << EncodePng(image);
}

void Compare(const PictureCase& picture, int percent, const fs::path& folder) {
    const std::string name = std::string(picture.name) + "_" + std::to_string(percent);
    SCOPED_TRACE(name);
    const PixelImage theirs = ReadPixels(folder / (name + ".argb"), percent);
    ASSERT_FALSE(theirs.pixels.empty()) << "GDI+ drew no such picture";
    DrawList list;
    Graphics graphics = GdipCreateGraphics(list, kCaseWidth, kCaseHeight);
    picture.draw(graphics);
    const PixelImage ours = Rasterise(list, theirs.width, theirs.height);

    PixelImage marks{ours.width, ours.height, std::vector<std::uint32_t>(ours.pixels.size(), 0xff000000)};
    const int strays = StrayPixels(ours, theirs, marks) + StrayPixels(theirs, ours, marks);
    const double our_ink = InkOf(ours), their_ink = InkOf(theirs);
    const double ink = std::fabs(our_ink - their_ink) / std::max(1.0, their_ink);
    const Shift shift = ShiftBetween(ours, theirs);
    const int most_strays = picture.stray_pixels * percent * percent / 10000;
    const bool alike =
        strays <= most_strays && ink <= picture.ink && std::hypot(shift.x, shift.y) <= picture.shift;
    if (std::getenv("TZ900_KEEP_PICTURES") != nullptr || !alike) {
        WritePng(folder / (name + "_ours.png"), ours);
        WritePng(folder / (name + "_gdiplus.png"), theirs);
        WritePng(folder / (name + "_difference.png"), marks);
    }
    EXPECT_TRUE(alike) << strays << " stray pixels (" << most_strays << "), ink " << our_ink << " for "
                       << their_ink << " (" << picture.ink << "), shifted by " << shift.x << ", " << shift.y
                       << " (" << picture.shift << "); see the pictures in " << folder;
}

TEST(GdiPlus, PicturesAreAlike) {
    const fs::path program = fs::path(BinaryDir()) / "gdiplus_pictures.exe";
    if (!fs::exists(program))
        GTEST_SKIP() << "needs the package g++-mingw-w64-x86-64-posix, then cmake once more";
    if (!Runs("wine --version")) GTEST_SKIP() << "needs the packages wine and wine64";
    const fs::path folder = fs::path(BinaryDir()).parent_path() / "gdiplus";
    fs::create_directories(folder);
    if (!fs::exists(Prefix() / "system.reg")) {
        ASSERT_TRUE(Runs(WineIn(folder) + "boot -i")) << "Wine can't make its folder";
    }

    FakeHost host;
    WritePng(folder / kCaseImage, Blocks());
    WritePng(host.root / kCaseImage, Blocks());
    std::ofstream families(folder / "families.txt");
    for (int i = 0; i < FamilyCount(); ++i) {
        const auto family = static_cast<std::uint16_t>(i);
        families << FamilyName(family) << '\t' << InstalledFamily(family) << '\n';
        const fs::path file = FontFile(family);
        fs::copy_file(file, Prefix() / "drive_c/windows/Fonts" / file.filename(),
                      fs::copy_options::overwrite_existing);
    }
    families.close();
    for (const auto& entry : fs::directory_iterator(folder))
        if (entry.path().extension() == ".argb" ||
            entry.path().stem().string().find("_1") != std::string::npos)
            fs::remove(entry.path());
    ASSERT_TRUE(Runs(WineIn(folder) + " '" + program.string() + "' families.txt"));
    for (const PictureCase& picture : PictureCases()) {
        Compare(picture, 100, folder);
        if (picture.at_scale) Compare(picture, 150, folder);
    }
}

}  // namespace
