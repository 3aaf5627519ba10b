#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

/// The bytes of a file; empty where there is none.
inline std::string FileText(const std::filesystem::path& path) {
    std::ifstream file(path, std::ios::binary);
    return {std::istreambuf_iterator<char>(file), {}};
}
