#include <filesystem>
#include <fstream>
#include <iostream>

#include "gdiplus/cases.h"
#include "paint/encode.h"
#include "paint/painter.h"
#include "paint/png.h"
#include "paint/rasterise.h"
#include "support/fake_host.h"

// Writes the picture cases for the comparison with a browser's canvas: NAME.list as it goes to the browser,
// and NAME.argb, Cairo's pixels at twice the size, premultiplied and blue first. Usage: browser_pictures
// FOLDER

namespace {

namespace fs = std::filesystem;

constexpr int kScale = 2;

void Write(const fs::path& file, const char* bytes, std::size_t size) {
    std::ofstream(file, std::ios::binary).write(bytes, static_cast<std::streamsize>(size));
}

// The picture that image cases draw: a cross in four colours.
PixelImage Cross() {
    PixelImage image{kCaseImageWidth, kCaseImageHeight, {}};
    for (int y = 0; y < image.height; ++y)
        for (int x = 0; x < image.width; ++x)
            image.pixels.push_back(x < image.width / 2 ? (y < image.height / 2 ? 0xffff0000 : 0xff00ff00)
                                                       : (y < image.height / 2 ? 0xff2040ff : 0xffffffff));
    return image;
}

// Texts of the usual sizes, as a format has them.
void TextPage(Graphics& graphics) {
    double y = 2;
    for (float size = 8; size <= 16; size += 2) {
        TextIn(graphics, "Velarion900DispL", 2, y, size, {222, 230, 233}, "ABCW 01");
        TextIn(graphics, "Velarion900EICAS", 84, y, size, {233, 183, 62}, "N1 88.5");
        y += 1.7 * size;
    }
}

void WriteCase(const fs::path& folder, const std::string& name, void (*draw)(Graphics&)) {
    DrawList list;
    Graphics graphics = GdipCreateGraphics(list, kCaseWidth, kCaseHeight);
    GdipGraphicsClear(graphics, 0xff000000);
    draw(graphics);
    std::string bytes;
    EncodeDrawList(list, bytes);
    Write(folder / (name + ".list"), bytes.data(), bytes.size());
    const PixelImage image = Rasterise(list, kCaseWidth * kScale, kCaseHeight * kScale);
    Write(folder / (name + ".argb"), reinterpret_cast<const char*>(image.pixels.data()),
          image.pixels.size() * 4);
}

}  // namespace

int main(int argc, char** argv) {
    if (argc != 2) {
        std::cerr << "usage: browser_pictures FOLDER\n";
        return 2;
    }
    const fs::path folder = argv[1];
    FakeHost host;
    const std::string png = EncodePng(Cross());
    Write(folder / kCaseImage, png.data(), png.size());
    Write(host.root / kCaseImage, png.data(), png.size());
    for (const PictureCase& picture : PictureCases()) WriteCase(folder, picture.name, picture.draw);
    WriteCase(folder, "text_page", TextPage);
    return 0;
}
