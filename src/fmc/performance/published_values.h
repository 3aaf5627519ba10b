#pragma once

/// Publishes what outside software reads of the route and its performance in named variables.
void PublishFmcValues();

/// Publishes what an approach without a localizer is flown by: the final course and the bearing of the runway
/// (degrees magnetic), its distance (nm), and whether the selected approach is one; 0 without a runway.
void PublishApproachValues();
