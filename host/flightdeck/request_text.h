#pragma once

#include <filesystem>
#include <optional>
#include <string>
#include <string_view>

// The texts of an HTTP request that come from anywhere, read with care.

namespace host {

/// The media type by a file name's extension; "application/octet-stream" for one that isn't served by name.
std::string_view MediaType(const std::filesystem::path& file);

/// A target's path, without its query.
std::string_view TargetPath(std::string_view target);

/// The value of a name in a target's query; empty when it isn't there.
std::string QueryValue(std::string_view target, std::string_view name);

/// The value of a name in a Cookie field; empty when it isn't there.
std::string CookieValue(std::string_view cookies, std::string_view name);

/// The text behind a target's %XX, its backslashes turned to slashes; nothing when it makes no sense.
std::optional<std::string> DecodePercent(std::string_view encoded);

/// A Host field's name without its port; an IPv6 address keeps its brackets.
std::string_view HostName(std::string_view host);

/// Can the name be one of the page's own files: no folder, nothing hidden, no odd letters?
bool IsPlainFileName(std::string_view name);

/// Takes as long for every wrong token of the right length.
bool SameToken(std::string_view given, std::string_view wanted);

}  // namespace host
