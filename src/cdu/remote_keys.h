#pragma once

/// A key of a CDU on another screen, by its code: 7 to 15 the digits 1 to 9, 16 the point, 17 the 0, 18 the
/// sign, 20 to 45 the letters, 46 SP, 47 DEL, 48 the slash, 49 CLR, 50 PREV PAGE, 51 NEXT PAGE, 52 EXEC.
/// Other codes do nothing here; 1 to 6 are the display select keys.
void OnRemoteKey(int side, int code);
