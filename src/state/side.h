#pragma once

// Which pilot's equipment. Lists and messages take kBothSides too.
constexpr int kCaptain = 1;
constexpr int kFirstOfficer = 2;
constexpr int kBothSides = 3;
