#pragma once

/// The whole vertical profile of the active route for a cruise altitude (ft): top of climb and of descent,
/// altitude and speed at each leg ahead, burns, winds and mean speeds of the three phases. Runs on EXEC and
/// on changes of its inputs. Without a cruise altitude one is sought for a short route; with none at all the
/// old profile stands.
void ComputeProfile(double cruise_alt, int mode);

/// No tops and no step point: a new route has none until its profile is computed.
void ForgetProfile();
