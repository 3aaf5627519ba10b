#pragma once

#include <filesystem>
#include <string>
#include <vector>

// The simulator's root folder as the host prepares it.

namespace host {

/// The entry of a folder by its name in any case; an empty path when there is none.
std::filesystem::path FindInFolder(const std::filesystem::path& folder, const std::string& name);

/// A file under the root by a path with "/" in any case; an empty path when there is none.
std::filesystem::path FindUnderRoot(const std::string& root, const std::string& path);

/// The navigation data folder of a `Velarion` folder, whether or not it exists.
std::filesystem::path FindNavdata(const std::filesystem::path& velarion);

/// Copies the demonstration root into a fresh temporary folder, and removes those of processes that were
/// killed.
bool MakePrivateRoot(const std::string& demo_root, std::string& root, std::string& error);

struct AirframeTitle {
    std::string title;
    std::string atc_id;
    std::string sim, model;    // variant; engines, "rr" or "ge"
    bool hires_panel = false;  // its panel's screens have twice the pixels
};

/// The aircraft of every Aircraft.cfg under the root, in the order of their folders.
std::vector<AirframeTitle> AirframeTitles(const std::string& root);

}  // namespace host
