#pragma once

#include <string_view>

// Binary coded decimals, as the host has the frequencies of its radios.

/// Reads up to eight digits: 0x0930 is 930.
int DecodeBcd(double raw);

/// The same digits as binary coded decimals: 930 is 0x0930. A negative number counts as 0, of more than eight
/// digits the last eight count.
int EncodeBcd(int value);

/// A frequency text in hundredths of a MHz: "113.3" gives 0x11330.
int FrequencyToBcd(std::string_view freq);
