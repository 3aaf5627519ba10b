#include "display/pfd/drum.h"

#include <cmath>

namespace {

constexpr std::string_view kDigits[] = {"0", "1", "2", "3", "4", "5", "6", "7", "8", "9"};

std::string_view DigitText(int digit) {
    return kDigits[((digit % 10) + 10) % 10];
}

// From one digit to the next on its drum.
double PitchOf(const DrumFace& face) {
    return face.size;
}

}  // namespace

DrumDigit DigitOnDrum(double value, double place, double step) {
    const double turns = std::floor(value / place);
    const int digit = static_cast<int>(std::fmod(turns, 10));
    return {(digit + 10) % 10, Bounded((value - turns * place - (place - step)) / step, 0, 1)};
}

void DrawDrum(const DrumFace& face, double x, double value, double place, double step, bool blank) {
    const DrumDigit drum = DigitOnDrum(value, place, step);
    const double offset = drum.rolled * PitchOf(face);
    if (!blank) TextAbout(face.graphics, x, offset, face.size, face.colour, DigitText(drum.digit));
    if (drum.rolled > 0)
        TextAbout(face.graphics, x, offset - PitchOf(face), face.size, face.colour,
                  DigitText(drum.digit + 1));
}

void DrawUnitsDrum(const DrumFace& face, double x, double value) {
    const double whole = std::floor(value);
    const int digit = static_cast<int>(std::fmod(whole, 10));
    for (int i = -2; i <= 2; ++i)
        TextAbout(face.graphics, x, (value - whole - i) * PitchOf(face), face.size, face.colour,
                  DigitText(digit + i));
}
