#include "paint/image_store.h"

#include <cstdint>
#include <list>
#include <mutex>
#include <utility>

#include "base/text.h"
#include "paint/bmp.h"
#include "paint/jpeg.h"
#include "paint/png.h"
#include "platform/files.h"

namespace {

constexpr std::size_t kLargestFile = std::size_t{1} << 26;
constexpr std::int64_t kMostPixels = std::int64_t{1} << 24;
constexpr std::size_t kKeptBytes = std::size_t{1} << 26;  // of pixels and streams together
constexpr std::size_t kMostKept = 200;
constexpr int kLoadsPerLook = 18;                      // about a second of one screen's pictures
constexpr std::string_view kStreamPrefix = "stream:";  // the colon keeps it apart from files

struct Form {
    std::string_view extension;
    std::optional<ImageHead> (*read_head)(std::string_view bytes);
    PixelImage (*decode)(std::string_view bytes);
};
constexpr Form kForms[] = {
    {".png", ReadPngHead, DecodePng}, {".jpg", ReadJpegHead, DecodeJpeg}, {".bmp", ReadBmpHead, DecodeBmp}};

struct Readable {
    const Form* form = nullptr;  // null: no picture
    ImageHead head;
};

Readable FindForm(std::string_view bytes) {
    for (const Form& form : kForms) {
        const auto head = form.read_head(bytes);
        if (!head) continue;
        const std::int64_t pixels = std::int64_t{head->width} * head->height;
        if (head->width < 1 || head->height < 1 || pixels > kMostPixels) return {};
        return {&form, *head};
    }
    return {};
}

// A picture that has been asked for, readable or not.
struct Entry {
    std::string name;
    std::int64_t written = 0;  // of its file
    int loads = 0;             // since the file was looked at
    Readable readable = {};
    std::shared_ptr<const std::string> stream = nullptr;  // null: a file
    std::shared_ptr<const PixelImage> pixels = nullptr;   // null until somebody paints it
};

std::size_t BytesOf(const Entry& entry) {
    return (entry.stream == nullptr ? 0 : entry.stream->size()) +
           (entry.pixels == nullptr ? 0 : entry.pixels->pixels.size() * 4);
}

// The entries, the last used one first.
struct Store {
    std::mutex lock;
    std::list<Entry> entries;
};
Store store;

// With the lock held.
Entry* FindEntry(std::string_view name) {
    for (auto entry = store.entries.begin(); entry != store.entries.end(); ++entry) {
        if (entry->name != name) continue;
        store.entries.splice(store.entries.begin(), store.entries, entry);
        return &*entry;
    }
    return nullptr;
}

// With the lock held.
void DropEntry(std::string_view name) {
    std::erase_if(store.entries, [&](const Entry& entry) { return entry.name == name; });
}

// Puts an entry first in place of its namesake. With the lock held.
void PutEntry(Entry entry) {
    DropEntry(entry.name);
    store.entries.push_front(std::move(entry));
    std::size_t bytes = 0, count = 0;
    std::erase_if(store.entries, [&](const Entry& kept) {
        bytes += BytesOf(kept);
        return ++count > 1 && (bytes > kKeptBytes || count > kMostKept);
    });
}

// Looks at a file and reads it anew when it has changed; nothing when there is none. Files are read without
// the lock, so that no painter waits for the disk.
std::optional<Entry> LookAtFile(std::string_view name) {
    const auto written = LastWriteTime(name);
    {
        const std::lock_guard guard(store.lock);
        Entry* entry = FindEntry(name);
        if (entry != nullptr && entry->written == written) {
            entry->loads = 0;
            return *entry;
        }
        if (!written) {
            DropEntry(name);
            return {};
        }
    }
    Entry entry{.name = std::string(name), .written = *written};
    if (const auto file = ReadFile(name, FileRoot::kSimulator, kLargestFile))
        entry.readable = FindForm(file->Text());
    const std::lock_guard guard(store.lock);
    PutEntry(entry);
    return entry;
}

// The entry of a picture that has been loaded, its file as it then was.
std::optional<Entry> LoadedEntry(std::string_view name) {
    {
        const std::lock_guard guard(store.lock);
        if (const Entry* entry = FindEntry(name)) return *entry;
    }
    return LookAtFile(name);
}

std::optional<ImageHead> HeadOf(const Readable& readable) {
    return readable.form == nullptr ? std::nullopt : std::optional(readable.head);
}

PixelImage Decode(const Entry& entry) {
    if (entry.stream != nullptr) return entry.readable.form->decode(*entry.stream);
    const auto file = ReadFile(entry.name, FileRoot::kSimulator, kLargestFile);
    // The file may have changed since its head was read.
    const Form* form = file ? FindForm(file->Text()).form : nullptr;
    return form == nullptr ? PixelImage{} : form->decode(file->Text());
}

// FNV-1a, G. Fowler, L. C. Noll, K.-P. Vo.
std::uint64_t HashOf(std::string_view bytes) {
    std::uint64_t hash = 14695981039346656037ull;
    for (const char c : bytes) hash = (hash ^ static_cast<unsigned char>(c)) * 1099511628211ull;
    return hash;
}

}  // namespace

std::optional<ImageHead> ImageHeadOf(std::string_view name) {
    {
        const std::lock_guard guard(store.lock);
        Entry* entry = FindEntry(name);
        if (entry != nullptr && (entry->stream != nullptr || ++entry->loads < kLoadsPerLook))
            return HeadOf(entry->readable);
    }
    const auto entry = LookAtFile(name);
    return entry ? HeadOf(entry->readable) : std::nullopt;
}

std::shared_ptr<const PixelImage> ImagePixelsOf(std::string_view name) {
    auto entry = LoadedEntry(name);
    if (!entry || entry->readable.form == nullptr) return nullptr;
    if (entry->pixels == nullptr) {
        entry->pixels = std::make_shared<const PixelImage>(Decode(*entry));
        const std::lock_guard guard(store.lock);
        PutEntry(*entry);
    }
    return entry->pixels->pixels.empty() ? nullptr : entry->pixels;
}

std::string KeepStreamImage(std::string_view bytes) {
    if (bytes.size() > kLargestFile) return {};
    const Readable readable = FindForm(bytes);
    if (readable.form == nullptr) return {};
    std::string name =
        std::string(kStreamPrefix) + Format("%016llx", static_cast<unsigned long long>(HashOf(bytes)));
    name += readable.form->extension;
    const std::lock_guard guard(store.lock);
    if (FindEntry(name) == nullptr)
        PutEntry({.name = name, .readable = readable, .stream = std::make_shared<const std::string>(bytes)});
    return name;
}

std::optional<std::string> StreamImageBytes(std::string_view name) {
    const std::lock_guard guard(store.lock);
    const Entry* entry = FindEntry(name);
    if (entry == nullptr || entry->stream == nullptr) return {};
    return *entry->stream;
}

void DropImages() {
    const std::lock_guard guard(store.lock);
    store.entries.clear();
}
