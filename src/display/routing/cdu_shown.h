#pragma once

/// A side's CDU stands on a half of some Display Unit, powered or not.
bool IsCduShown(int side);
