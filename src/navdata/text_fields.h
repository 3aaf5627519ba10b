#pragma once

#include <optional>
#include <string_view>

// Reading the navigation files: bounded lines, fields between blanks, numbers.

constexpr std::string_view kNavdataFolder = "\\Velarion\\TZ900\\Navdata\\";

/// Cuts the next line off the front of `rest`, without its line end; text beyond `bound` characters is a
/// further line. Nothing at the end.
std::optional<std::string_view> NextBoundedLine(std::string_view& rest, std::size_t bound);

/// The same, without the lines that begin with ";".
std::optional<std::string_view> NextDataLine(std::string_view& rest, std::size_t bound);

/// Cuts the next field off the front of a line; empty at the end. Blanks, tabs and every other control
/// character divide fields.
std::string_view NextField(std::string_view& line);

/// Cuts the next part off the front of a runway token, at any run of "_"; empty at the end.
std::string_view NextTokenPart(std::string_view& token);

/// The number at the start of a text; 0 where there is none.
double ToNumber(std::string_view text);

/// The same cut to a whole number, held inside an int.
int ToWholeNumber(std::string_view text);
