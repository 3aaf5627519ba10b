#pragma once

#include <cstdint>
#include <string_view>

// Numbers out of a picture file's bytes. The caller has seen that they are there.

inline std::uint32_t ByteAt(std::string_view bytes, std::size_t at) {
    return static_cast<unsigned char>(bytes[at]);
}
inline std::uint32_t BigHalf(std::string_view bytes, std::size_t at) {
    return ByteAt(bytes, at) << 8 | ByteAt(bytes, at + 1);
}
inline std::uint32_t BigWord(std::string_view bytes, std::size_t at) {
    return BigHalf(bytes, at) << 16 | BigHalf(bytes, at + 2);
}
inline std::uint32_t LittleHalf(std::string_view bytes, std::size_t at) {
    return ByteAt(bytes, at) | ByteAt(bytes, at + 1) << 8;
}
inline std::uint32_t LittleWord(std::string_view bytes, std::size_t at) {
    return LittleHalf(bytes, at) | LittleHalf(bytes, at + 2) << 16;
}

/// A width or height; 0, which no picture has, for one that is out of all reason.
inline int SizeOf(std::uint32_t size) {
    return size <= 0x7fff ? static_cast<int>(size) : 0;
}
