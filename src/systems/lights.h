#pragma once

// The switches of the external lights: they bring the host's lights to where they stand.

enum class Light { kBeacon, kNav, kLogo, kWing, kStrobe, kTaxi };
void FollowLight(Light light);

/// Any of the three landing light switches has moved; the host has one landing light.
void FollowLandingLights(int before);
