#pragma once

/// Publishes what outside software reads of the route and its performance in named variables.
void PublishFmcValues();
