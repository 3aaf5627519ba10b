#include "paint/images.h"

#include <algorithm>
#include <iterator>

#include "paint/image_store.h"
#include "paint/jpeg.h"
#include "paint/png.h"

namespace {

struct ImageEncoder {
    ImageCodecInfo info;
    std::string (*encode)(const PixelImage& image, Density density);
};
constexpr ImageEncoder kEncoders[] = {
    {{"image/jpeg", "JPEG", "*.JPG;*.JPEG"}, EncodeJpeg},
    {{"image/png", "PNG", "*.PNG"}, EncodePng},
};

Image ImageNamed(std::string_view name) {
    const auto head = ImageHeadOf(name);
    if (!head) return {};
    return {std::string(name), head->width, head->height, head->density};
}

}  // namespace

Image GdipLoadImageFromFile(std::string_view file) {
    return ImageNamed(file);
}

Image GdipLoadImageFromStream(std::string_view stream) {
    return ImageNamed(KeepStreamImage(stream));
}

Image GdipCloneImage(const Image& image) {
    return image;
}

void GdipDisposeImage(Image& image) {
    image = {};
}

void GdipGetImageEncodersSize(unsigned& count, unsigned& size) {
    count = std::size(kEncoders);
    size = count * sizeof(ImageCodecInfo);
}

bool GdipGetImageEncoders(std::span<ImageCodecInfo> encoders) {
    if (encoders.size() != std::size(kEncoders)) return false;
    std::ranges::transform(kEncoders, encoders.begin(), &ImageEncoder::info);
    return true;
}

bool GdipSaveImageToStream(const Image& image, std::string& stream, std::string_view mime_type) {
    const auto* encoder =
        std::ranges::find(kEncoders, mime_type, [](const ImageEncoder& row) { return row.info.mime_type; });
    const auto pixels = encoder == std::end(kEncoders) ? nullptr : ImagePixelsOf(image.file);
    if (pixels == nullptr) return false;
    const std::string file = encoder->encode(*pixels, image.density);
    stream += file;
    return !file.empty();
}
