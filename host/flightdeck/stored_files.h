#pragma once

#include <string>
#include <string_view>

#include "host/flightdeck/site.h"

// Flight plans and panel states under the simulator's root, for a browser to list, fetch and add to.

namespace host {

constexpr std::size_t kMostStoredBytes = std::size_t{1} << 20;

/// The names of the stored flight plans and panels, as JSON: {"routes": [...], "panels": [...]}.
SiteAnswer ListStoredFiles(const std::string& root);

/// A stored file by "/route/NAME" or "/panel/NAME", percent-encoded; 404 for any other.
SiteAnswer StoredFile(const std::string& root, std::string_view path);

/// Stores a flight plan by "/route/NAME": whole or not at all, over an older one of that name. 201, or 400
/// for a name that is none of a flight plan in the folder, or for bytes that are no text.
SiteAnswer StoreFile(const std::string& root, std::string_view path, std::string_view bytes);

}  // namespace host
