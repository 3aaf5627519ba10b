#pragma once

// Angles and bearings, in degrees.

constexpr double kPi = 3.14159265358979323846;
constexpr double kRadPerDeg = kPi / 180;
constexpr double kDegPerRad = 180 / kPi;

/// A bearing in 0 to below 360.
double FoldBearing(double bearing);
/// A magnetic course as it is shown and flown: 0.5 to below 360.5, so that north reads 360 and not 000.
double FoldCourse(double course);

/// The smaller difference of two bearings, 0 to 180; the second form is cut to whole degrees.
double BearingDifference(double a, double b);
int AngleBetween(double a, double b);

constexpr int kTurnLeft = 1;
constexpr int kTurnRight = 2;
/// The shorter way round from one bearing to another. Exactly opposite, it is left when `from` is the lesser.
int TurnSide(double from, double to);
