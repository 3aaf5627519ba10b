#include "module/pictures.h"

#include <cmath>

#include "display/pictures/gauge.h"
#include "paint/encode.h"
#include "paint/fonts.h"
#include "paint/image_store.h"
#include "paint/png.h"
#include "paint/rasterise.h"

namespace {

void Give(ByteSink sink, void* context, const std::string& bytes, uint64_t number) {
    sink(context, reinterpret_cast<const uint8_t*>(bytes.data()), bytes.size(), number);
}

template <class Use>
int WithPictureOf(std::string_view gauge, Use&& use) {
    int number = 0;
    WithLivingGauge(gauge, [&](GDIMTGauge& living) {
        living.WithPicture([&](const DrawList& list, uint64_t picture) {
            if (picture > 0) number = use(list, picture);
        });
    });
    return number;
}

}  // namespace

int PaintPending(GaugeInstance* instance) {
    GDIMTGauge* gauge = GaugeOf(*instance);
    return gauge != nullptr && gauge->PaintPendingFrame() ? 1 : 0;
}

int CopyPicture(const char* gauge, uint64_t after, ByteSink sink, void* context) {
    return WithPictureOf(gauge, [&](const DrawList& list, uint64_t number) {
        if (number <= after) return 0;
        std::string bytes;
        EncodeDrawList(list, bytes);
        Give(sink, context, bytes, number);
        return 1;
    });
}

int CopyPicturePng(const char* gauge, double scale, ByteSink sink, void* context) {
    return WithPictureOf(gauge, [&](const DrawList& list, uint64_t number) {
        if (!(scale > 0 && scale <= 16)) return 0;
        const auto pixels = [&](float length) { return static_cast<int>(std::lround(length * scale)); };
        const std::string png = EncodePng(Rasterise(list, pixels(list.width), pixels(list.height)));
        if (png.empty()) return 0;
        Give(sink, context, png, number);
        return 1;
    });
}

int CopyStreamImage(const char* name, ByteSink sink, void* context) {
    const auto bytes = StreamImageBytes(name);
    if (!bytes) return 0;
    Give(sink, context, *bytes, 0);
    return 1;
}

int ListFonts(ResultSink sink, void* context) {
    for (int i = 0; i < FamilyCount(); ++i) {
        const auto family = static_cast<std::uint16_t>(i);
        sink(context, std::string(FamilyName(family)).c_str(), FontFile(family).c_str());
    }
    return 1;
}

int PrintPictureTexts(std::string_view gauge, const Results& results) {
    WithPictureOf(gauge, [&](const DrawList& list, uint64_t) {
        for (const Primitive& primitive : list.primitives)
            if (const auto* run = std::get_if<TextRun>(&primitive)) results.Add("", DescribeText(list, *run));
        return 1;
    });
    return 1;
}

int PrintPictureDraws(std::string_view gauge, const Results& results) {
    WithPictureOf(gauge, [&](const DrawList& list, uint64_t) {
        for (const Primitive& primitive : list.primitives)
            results.Add("", DescribePrimitive(list, primitive));
        return 1;
    });
    return 1;
}
