#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>
#include <string>

#include "paint/png.h"
#include "support/file_text.h"
#include "support/paths.h"

// The pictures of docs/pictures, drawn anew. One that has changed on purpose is looked at, and drawn again by
// `./dev shots`.

namespace {

namespace fs = std::filesystem;

struct PicturesFolder {
    fs::path path;
    PicturesFolder() {
        std::string name = (fs::temp_directory_path() / "tz900_test_XXXXXX").string();
        if (mkdtemp(name.data()) == nullptr) std::abort();
        path = name;
    }
    ~PicturesFolder() { fs::remove_all(path); }
};

// Part of the pixels in which a colour differs by more than the edges of shapes that have moved a little.
double PartThatDiffers(const PixelImage& a, const PixelImage& b) {
    constexpr int kMost = 64;
    if (a.width != b.width || a.height != b.height || a.pixels.empty()) return 1;
    int strays = 0;
    for (std::size_t i = 0; i < a.pixels.size(); ++i)
        for (const int shift : {0, 8, 16}) {
            const int left = a.pixels[i] >> shift & 255, right = b.pixels[i] >> shift & 255;
            if (std::abs(left - right) <= kMost) continue;
            ++strays;
            break;
        }
    return strays / static_cast<double>(a.pixels.size());
}

TEST(Moments, LookAsTheyDid) {
    // A second of flight is up to a seventieth, a horizon five degrees off a twentieth.
    constexpr double kTolerance = 0.02;
    const fs::path references = fs::path(SourceDir()) / "docs/pictures";
    const PicturesFolder drawn;
    const std::string run = "cd '" + drawn.path.string() + "' && '" + BinaryDir() + "/tz900' run '" +
                            (references / "moments.scn").string() + "'";
    ASSERT_EQ(std::system(run.c_str()), 0);
    int compared = 0;
    for (const fs::directory_entry& entry : fs::directory_iterator(references)) {
        if (entry.path().extension() != ".png") continue;
        const PixelImage then = DecodePng(FileText(entry.path()));
        const PixelImage now = DecodePng(FileText(drawn.path / entry.path().filename()));
        EXPECT_LT(PartThatDiffers(then, now), kTolerance) << entry.path().filename();
        EXPECT_LT(entry.file_size(), 100'000U) << entry.path().filename();
        ++compared;
    }
    EXPECT_GE(compared, 9);
}

}  // namespace
