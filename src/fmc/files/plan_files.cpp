#include "fmc/files/plan_files.h"

#include <cmath>
#include <cstdio>
#include <string>
#include <vector>

#include "base/text.h"
#include "base/text_fields.h"
#include "fmc/files/route_folder.h"
#include "navdata/geodesy.h"

namespace {

constexpr std::size_t kMaxIdent = 64;

bool Begins(std::string_view text, std::string_view letters) {
    return text.size() > 1 && letters.find(text[0]) != std::string_view::npos && IsDigit(text[1]);
}

// An ident is one field of a row.
std::string Ident(std::string_view text) {
    std::string ident(Trimmed(text).substr(0, kMaxIdent));
    for (char& c : ident)
        if (IsBlank(c)) c = '_';
    return ident;
}

void AppendWaypoint(std::string& rows, std::string_view ident, LatLon at, std::string_view type) {
    const std::string name = Ident(ident);
    if (name.empty() || std::fabs(at.lat) > 90 || std::fabs(at.lon) > 180) return;
    rows += Format("%-8s %-3.5f %-3.5f  %s\n", name.c_str(), at.lat, at.lon, std::string(type).c_str());
}

// --- the older form: waypoint.3=, BTG, , BTG, V, N45* 44.87', W122* 35.49', +000000.00,

// "N45* 44.87'" becomes "N45:44:87": the parser takes what stands behind the point for seconds, and so do all
// who read these files with it.
std::string ColonAngle(std::string_view text) {
    std::string angle;
    for (const char c : text) {
        const bool divides = c == '*' || c == '.' || static_cast<unsigned char>(c) > 126;
        if (divides && !angle.ends_with(':')) angle += ':';
        if (!divides && !IsBlank(c) && c != '\'') angle += c;
    }
    std::size_t parts = 1, digits = 0;
    for (const char c : angle) {
        digits = c == ':' ? 0 : digits + 1;
        if (c == ':') ++parts;
    }
    if (parts == 2) angle += digits > 0 ? ":00" : "00:00";
    if (parts == 3 && digits < 2) angle.append(2 - digits, '0');
    return angle;
}

std::vector<std::string_view> SplitAtCommas(std::string_view text) {
    std::vector<std::string_view> parts;
    constexpr std::size_t kMostParts = 20;
    while (parts.size() < kMostParts) {
        const std::size_t comma = text.find(',');
        parts.push_back(Trimmed(text.substr(0, comma)));
        if (comma == std::string_view::npos) break;
        text.remove_prefix(comma + 1);
    }
    return parts;
}

std::string_view TypeOfLetter(std::string_view letter) {
    if (letter == "A") return "APT";
    if (letter == "V") return "VOR";
    return letter == "N" ? "NDB" : "INT";
}

// The letter of the type stands before the position, the ident before the letter; regions, airways and
// repetitions may stand in front.
void AppendIniWaypoint(std::string& rows, std::string_view value, std::string_view departure) {
    const std::vector<std::string_view> parts = SplitAtCommas(value);
    std::size_t at = 0;
    while (at + 1 < parts.size() && !(Begins(parts[at], "NS") && Begins(parts[at + 1], "EW"))) ++at;
    if (at + 1 >= parts.size() || at == 0) return;
    const LatLon place = ParseLatLonColons(ColonAngle(parts[at]), ColonAngle(parts[at + 1]));
    std::string_view ident = departure, type = departure.empty() ? TypeOfLetter(parts[at - 1]) : "APT";
    const bool has_letter = parts[at - 1].size() <= 1;
    for (std::size_t i = has_letter ? at - 1 : at; i > 0 && ident.empty(); --i) ident = parts[i - 1];
    if (ident.empty()) ident = parts[at - 1];
    AppendWaypoint(rows, ident, place, type);
}

std::string ConvertIni(std::string_view text) {
    constexpr std::string_view kDeparture = "departure_id", kWaypoint = "waypoint.";
    std::string rows, departure;
    for (std::string_view rest = text; const auto line = NextLine(rest);) {
        const std::size_t equals = line->find('=');
        if (equals == std::string_view::npos ||
            !EqualIgnoringCase(Trimmed(line->substr(0, equals)), kDeparture))
            continue;
        departure = SplitAtCommas(line->substr(equals + 1))[0];
        break;
    }
    if (departure.empty()) return rows;
    while (const auto line = NextLine(text)) {
        const std::size_t equals = line->find('=');
        if (equals == std::string_view::npos) continue;
        const std::string_view key = Trimmed(line->substr(0, equals));
        if (!EqualIgnoringCase(key.substr(0, kWaypoint.size()), kWaypoint)) continue;
        AppendIniWaypoint(rows, line->substr(equals + 1),
                          key.substr(kWaypoint.size()) == "0" ? departure : std::string_view());
    }
    return rows;
}

// --- XML

// The text between two tags, empty when they aren't there; `text` goes on behind it.
std::string_view TakeBetween(std::string_view& text, std::string_view open, std::string_view close) {
    const std::size_t start = text.find(open);
    const std::size_t end = start == std::string_view::npos ? start : text.find(close, start + open.size());
    if (end == std::string_view::npos) {
        text = {};
        return {};
    }
    const std::string_view found = text.substr(start + open.size(), end - start - open.size());
    text.remove_prefix(end + close.size());
    return found;
}

std::string_view Between(std::string_view text, std::string_view open, std::string_view close) {
    return Trimmed(TakeBetween(text, open, close));
}

// "N47\xb0 26' 59.40\"" becomes "N47:26:59.40", however the sign of degrees is encoded.
std::string XmlAngle(std::string_view text) {
    std::string angle;
    for (const char c : text) {
        const bool divides = c == '\'' || c == '*' || static_cast<unsigned char>(c) > 126;
        if (divides && !angle.ends_with(':')) angle += ':';
        if (!divides && !IsBlank(c) && c != '"') angle += c;
    }
    return angle;
}

std::string_view TypeOfWord(std::string_view word) {
    if (word == "Airport") return "APT";
    if (word == "VOR" || word == "NDB") return word;
    return word == "Intersection" ? "INT" : "WPT";
}

constexpr std::string_view kWaypointTag = "<ATCWaypoint";

// Behind the name of an element stands a blank; "<ATCWaypointType>" is another one.
std::size_t FindWaypoint(std::string_view text) {
    std::size_t at = text.find(kWaypointTag);
    while (at != std::string_view::npos) {
        const std::size_t behind = at + kWaypointTag.size();
        if (behind < text.size() && IsBlank(text[behind])) return at;
        at = text.find(kWaypointTag, behind);
    }
    return at;
}

// The attribute `id` of an opening tag, wherever it stands among the others, in quotes of either kind.
std::string_view IdOf(std::string_view tag) {
    tag = tag.substr(0, tag.find('>'));
    for (std::size_t at = tag.find("id="); at != std::string_view::npos; at = tag.find("id=", at + 1)) {
        if (at == 0 || !IsBlank(tag[at - 1]) || at + 3 >= tag.size()) continue;
        const char quote = tag[at + 3];
        const std::size_t end = tag.find(quote, at + 4);
        if ((quote == '"' || quote == '\'') && end != std::string_view::npos)
            return tag.substr(at + 4, end - at - 4);
    }
    return {};
}

std::string ConvertXml(std::string_view text) {
    std::string rows;
    if (Between(text, "<DepartureID>", "</DepartureID>").empty()) return rows;
    for (std::size_t at = FindWaypoint(text); at != std::string_view::npos; at = FindWaypoint(text)) {
        text.remove_prefix(at);
        const std::string_view waypoint = TakeBetween(text, kWaypointTag, "</ATCWaypoint>");
        const std::string_view ident = IdOf(waypoint);
        const std::string_view position = Between(waypoint, "<WorldPosition>", "</WorldPosition>");
        const std::vector<std::string_view> parts = SplitAtCommas(position);
        if (parts.size() < 2 || !Begins(parts[0], "NS") || !Begins(parts[1], "EW")) continue;
        AppendWaypoint(rows, ident, ParseLatLonColons(XmlAngle(parts[0]), XmlAngle(parts[1])),
                       TypeOfWord(Between(waypoint, "<ATCWaypointType>", "</ATCWaypointType>")));
    }
    return rows;
}

}  // namespace

int ConvertPlanFile(std::string_view name) {
    const auto file = ReadRouteFile(name);
    if (!file) return kNotConverted;
    const bool is_xml = FindWaypoint(file->Text()) != std::string_view::npos;
    const std::string rows = is_xml ? ConvertXml(file->Text()) : ConvertIni(file->Text());
    return WriteFile(kConvertedFile, "[FlightPlan]\n" + rows) ? 0 : kNotConverted;
}
