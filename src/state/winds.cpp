#include "state/winds.h"

template <>
struct Describe<WxStation> {
    using W = WxStation;
    static constexpr Field fields[] = {
        FieldRow<&W::ident>("ident"),       FieldRow<&W::lat_text>("lat_text"),
        FieldRow<&W::lon_text>("lon_text"), FieldRow<&W::leg>("leg"),
        FieldRow<&W::leg_lat>("leg_lat"),   FieldRow<&W::leg_lon>("leg_lon"),
        FieldRow<&W::levels>("levels"),
    };
    static constexpr ValueType type{.kind = ValueKind::kRecord, .fields = fields};
};

WindsState winds;

namespace {
constexpr Variable kWindsRows[] = {
    {"WxStations", &winds.WxStations},
    {"wx_station_cnt", &winds.wx_station_cnt},
    {"DescentForecast", &winds.DescentForecast},
    {"TransLvl", &winds.TransLvl},
    {"AntiIceAlt", &winds.AntiIceAlt},
    {"wind_uplink_timer", &winds.wind_uplink_timer},
    {"wind_uplink_pending", &winds.wind_uplink_pending},
    {"wind_uplink_side", &winds.wind_uplink_side},
    {"activesky_loaded", &winds.activesky_loaded},
    {"ActiveSkyFolder", &winds.ActiveSkyFolder},
};
}  // namespace

const std::span<const Variable> kWindsVariables = kWindsRows;
