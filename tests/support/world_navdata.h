#pragma once

#include <filesystem>

#include "support/fake_host.h"
#include "support/paths.h"

/// The folder of the world's navigation data beside the source tree; it may be missing.
inline std::filesystem::path WorldNavdata() {
    return std::filesystem::path(SourceDir()) / "../shared/data/navdata-world";
}

/// Lets the fake's root hold that folder as its navigation data; false when it is missing.
inline bool UseWorldNavdata(const FakeHost& host) {
    if (!std::filesystem::exists(WorldNavdata())) return false;
    std::filesystem::create_directories(host.root / "Velarion/TZ900");
    std::filesystem::create_directory_symlink(WorldNavdata(), host.root / "Velarion/TZ900/Navdata");
    return true;
}
