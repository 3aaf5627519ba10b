#pragma once

#include <string>
#include <string_view>

// Small text tools for the system's file formats: ASCII only, whatever the machine's language is set to.

/// Without the blanks and tabs at both ends.
std::string_view Trimmed(std::string_view text);

/// The whole number that a text begins with, after blanks: "12abc" is 12. 0 when there is none or it doesn't
/// fit 32 bits.
int LeadingInt(std::string_view text);

/// The decimal number that a text begins with, after blanks. 0 when there is none; never infinite or NaN.
double LeadingDouble(std::string_view text);

inline bool IsDigit(char c) {
    return c >= '0' && c <= '9';
}

/// Whether a text is nothing but digits and points, with a sign before them at the most.
bool IsNumber(std::string_view text);

/// Without the mark by which some editors begin a file of UTF-8.
std::string_view WithoutByteOrderMark(std::string_view text);

std::string UpperCase(std::string_view text);
std::string LowerCase(std::string_view text);
bool EqualIgnoringCase(std::string_view a, std::string_view b);

/// A text by printf's rules, cut at 511 characters.
[[gnu::format(printf, 1, 2)]] std::string Format(const char* format, ...);
