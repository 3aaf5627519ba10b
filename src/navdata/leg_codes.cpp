#include "navdata/leg_codes.h"

#include <algorithm>
#include <cmath>

#include "base/angles.h"
#include "base/text.h"
#include "base/units.h"

namespace {

constexpr double kNmPerStep = 0.1, kMaxWalk = 50;  // nm, until a distance
constexpr double kClimbNmPerMinute = 3.1666;
constexpr double kDepartureClimb = 1200, kMissedClimb = 1500;  // ft/min
constexpr double kStartOfClimb = 0.33;                         // nm
constexpr double kLeastRest = 0.2;                             // nm, of a climb behind its turn
constexpr double kTurnBeyondCrossing = 0.019444;               // nm a degree
constexpr int kMaxInterceptError = 7;                          // degrees
constexpr double kFarthestCrossing = 500;                      // nm
constexpr std::size_t kBoundDigits = 5;                        // of an altitude window
constexpr int kHighestAltitude = 99999;                        // ft
constexpr int kTouching = 2;                                   // degrees between lines that count as one

double Folded(double degrees) {
    const double folded = std::fmod(degrees, 360);
    return folded < 0 ? folded + 360 : folded;
}

// The smaller angle between two directions, 0 to 180.
double Between(double a, double b) {
    const double difference = Folded(a - b);
    return difference > 180 ? 360 - difference : difference;
}

double TurnAngle(const LegCode& code, double entry) {
    return Folded(code.turn == 2 ? code.course - entry : entry - code.course);
}

// Length of the chord of a turn by `a` degrees, nm.
double ChordLength(double a) {
    const auto leg = [](double degrees) { return degrees / 72 * (degrees / 72); };
    if (a <= 90) return std::sqrt(2 * leg(a));
    if (a <= 180) return std::sqrt(leg(a) + leg(180 - a));
    if (a <= 270) return std::sqrt(leg(360 - a) + leg(a - 180));
    return std::sqrt(2 * leg(360 - a));
}

double ChordCourse(const LegCode& code, double angle) {
    return code.turn == 2 ? code.course - angle / 2 : code.course + angle / 2;
}

// Diameter of a turn at 25 degrees of bank, nm.
double TurnDiameter(double speed_kt) {
    const double tan_bank = std::tan(25 * kRadPerDeg);
    return std::min(speed_kt, 250.0) * 120 / (tan_bank * 11.29) / kFeetPerNm * 4;
}

// A leg that begins with a turn towards a fix starts where that turn ends.
void OffsetStart(const LegCode& code, LegCodeInput& input) {
    if (code.turn == 0) return;
    const double angle = TurnAngle(code, input.entry_course);
    const double length = TurnDiameter(input.climb_speed) * std::sin(angle / 2 * kRadPerDeg);
    input.start = ProjectPoint(input.start.lat, input.start.lon,
                               Folded(ChordCourse(code, angle) + input.variation), std::fabs(length));
}

int UntilAltitude(const LegCode& code, LegCodeInput& input, double climb_fpm, double extra_nm, LatLon& end) {
    double length = (input.altitude - input.elevation) / climb_fpm * kClimbNmPerMinute + extra_nm;
    if (code.turn != 0) {
        const double angle = TurnAngle(code, input.entry_course);
        const double chord = ChordLength(angle);
        length -= chord;
        if (length <= kLeastRest) return kLegFails;
        input.start = ProjectPoint(input.start.lat, input.start.lon,
                                   Folded(ChordCourse(code, angle) + input.variation), chord);
    }
    if (length < 0) return kLegFails;
    end = ProjectPoint(input.start.lat, input.start.lon, Folded(code.course + input.variation), length);
    return 0;
}

int UntilDistance(const LegCode& code, const LegCodeInput& input, LatLon& end) {
    const double bearing = Folded(code.course + input.variation);
    end = input.start;
    for (double walked = kNmPerStep; walked <= kMaxWalk + kNmPerStep / 2; walked += kNmPerStep) {
        const LatLon point = ProjectPoint(input.start.lat, input.start.lon, bearing, walked);
        const double distance =
            GreatCircle(point.lat, point.lon, input.reference.lat, input.reference.lon).dist;
        if (std::fabs(distance - code.limit) >= kNmPerStep) continue;
        end = point;
        break;
    }
    return 0;
}

// The point lies on the half line from `from` in a direction, on this side of the globe: diverging lines
// cross on the other.
bool LiesAlong(const LatLon& from, double bearing, const LatLon& point) {
    const DistBearing to = GreatCircle(from.lat, from.lon, point.lat, point.lon);
    if (to.dist > kFarthestCrossing) return false;
    return to.dist < kNmPerStep || Between(to.bearing, bearing) < kMaxInterceptError;
}

int UntilIntercept(const LegCode& code, const LegCodeInput& input, LatLon& end) {
    const double bearing = Folded(code.course + input.variation);
    const double radial = Folded(code.limit + 180 + input.variation);
    const int angle = static_cast<int>(std::lround(Between(bearing, Folded(code.limit + input.variation))));
    if (angle < kTouching) {
        end = input.start;
        return 0;
    }
    LatLon crossing;
    for (const double line : {radial, Folded(radial + 180)}) {
        if (IntersectBearings(input.start.lat, input.start.lon, bearing, input.reference.lat,
                              input.reference.lon, line, crossing.lat, crossing.lon) != 0 ||
            !LiesAlong(input.start, bearing, crossing) || !LiesAlong(input.reference, line, crossing))
            continue;
        if (code.turn != 0)
            crossing = ProjectPoint(crossing.lat, crossing.lon, Folded(code.limit + input.variation),
                                    angle * kTurnBeyondCrossing);
        end = crossing;
        return 0;
    }
    return kLegFails;
}

int ComputeLeg(const LegCode& code, LegCodeInput& input, double climb_fpm, double extra_nm, LatLon& end) {
    switch (code.until) {
        case LegCode::kAltitude:
            return UntilAltitude(code, input, climb_fpm, extra_nm, end);
        case LegCode::kDistance:
            return UntilDistance(code, input, end);
        case LegCode::kIntercept:
            return UntilIntercept(code, input, end);
        case LegCode::kVectors:
        case LegCode::kNothing:
            end = input.start;
            return 0;
    }
    return kLegFails;
}

bool IsTowardsFix(const LegCode& code) {
    return code.until == LegCode::kIntercept || code.until == LegCode::kDistance;
}

bool TakeTurn(std::string_view& text, int& turn) {
    if (text.starts_with("/LT"))
        turn = 1;
    else if (text.starts_with("/RT"))
        turn = 2;
    else
        return false;
    text.remove_prefix(3);
    return true;
}

bool TakeEndCondition(std::string_view text, LegCode& code) {
    if (text.empty()) return true;
    const std::string_view condition = text.substr(0, 3), limit = text.substr(condition.size());
    if (condition == "/UA")
        code.until = LegCode::kAltitude;
    else if (condition == "/VT")
        code.until = LegCode::kVectors;
    else if (condition == "/IC")
        code.until = LegCode::kIntercept;
    else if (condition == "/UD")
        code.until = LegCode::kDistance;
    else
        return false;
    code.limit = LeadingDouble(limit);
    const bool has_limit = code.until == LegCode::kIntercept || code.until == LegCode::kDistance;
    return !has_limit || (!limit.empty() && IsDigit(limit[0]));
}

}  // namespace

bool ParseLegCode(std::string_view text, LegCode& code) {
    code = {};
    TakeTurn(text, code.turn);
    const bool is_head = text.size() >= 5 && text[0] == '/' &&
                         (text[1] == 'T' || text[1] == 'H' || text[1] == 'C') && IsDigit(text[2]) &&
                         IsDigit(text[3]) && IsDigit(text[4]);
    if (!is_head) return false;
    code.letter = text[1];
    code.course = LeadingInt(text.substr(2, 3));
    return TakeEndCondition(text.substr(5), code);
}

bool IsProcedureTurn(const LegCode& code, std::string_view role) {
    return code.letter == 'H' && code.turn != 0 && role != "MAF";
}

std::string LegCodeIdent(const LegCode& code, std::string_view alt_token) {
    switch (code.until) {
        case LegCode::kIntercept:
            return "(INTC)";
        case LegCode::kVectors:
            return "VECTORS";
        case LegCode::kAltitude:
            alt_token = IsAltitudeWindow(alt_token) ? alt_token.substr(0, kBoundDigits)
                                                    : alt_token.substr(0, alt_token.find_first_of("+-"));
            return Format("(%s)", std::string(alt_token).c_str());
        default:
            break;
    }
    const char* kind = code.letter == 'T' ? "TR" : code.letter == 'C' ? "CR" : "HD";
    return Format("%s%03d", kind, code.course);
}

bool IsAltitudeWindow(std::string_view alt_token) {
    return alt_token.size() == 2 * kBoundDigits + 1 && alt_token.back() == 'B';
}

int AltitudeOfToken(std::string_view alt_token) {
    const int altitude =
        LeadingInt(IsAltitudeWindow(alt_token) ? alt_token.substr(0, kBoundDigits) : alt_token);
    return altitude >= 0 && altitude <= kHighestAltitude ? altitude : 0;
}

int ComputeDepartureLeg(const LegCode& code, LegCodeInput& input, LatLon& end) {
    if (IsTowardsFix(code)) OffsetStart(code, input);
    return ComputeLeg(code, input, kDepartureClimb, kStartOfClimb, end);
}

int ComputeArrivalLeg(const LegCode& code, LegCodeInput& input, LatLon& end) {
    return ComputeDepartureLeg(code, input, end);
}

int ComputeApproachLeg(const LegCode& code, LegCodeInput& input, LatLon& end) {
    if (IsTowardsFix(code) && !IsProcedureTurn(code, input.role)) OffsetStart(code, input);
    return ComputeLeg(code, input, kMissedClimb, 0, end);
}
